// Windows paths found on the machine's disk.
#pragma once

#include <optional>
#include <string>

namespace tarnwick {

/// The machine path (UTF-8) of the file or folder that a Windows path names. Where no name on the
/// disk equals a component, a name that differs only in case is taken; a "?" also matches a
/// character that the code page lacks. Null when there is no such file or folder.
[[nodiscard]] std::optional<std::string> FindNative(const std::string& path);

/// The same for a file to be made: its folder must exist, the file need not.
[[nodiscard]] std::optional<std::string> FindNativeForWriting(const std::string& path);

}  // namespace tarnwick
