// Windows paths found on the machine's disk.
#pragma once

#include <optional>
#include <string>

namespace tarnwick {

/// The machine path (UTF-8) of what a Windows path names. Where no name on the disk is equal to a
/// component, one that differs only in case is taken, and one whose characters the code page
/// lacks is met by the "?" that stands for them. Nothing when no such file or folder is there.
[[nodiscard]] std::optional<std::string> FindNative(const std::string& path);

/// The same for a file about to be made: its folder must be there, the file need not.
[[nodiscard]] std::optional<std::string> FindNativeForWriting(const std::string& path);

}  // namespace tarnwick
