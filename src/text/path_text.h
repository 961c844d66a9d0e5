// Windows paths as text.
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// The path up to and including its last "\"; "" when there is none.
[[nodiscard]] std::string_view FolderOf(std::string_view path) noexcept;
/// The text behind the last "\".
[[nodiscard]] std::string_view BareName(std::string_view path) noexcept;
/// A machine path as the Windows path a program under Wine sees: "/home/ann" is "Z:\home\ann".
/// UTF-8 in, Windows-1252 out.
[[nodiscard]] std::string PathFromNative(std::string_view native);
/// The machine path of a Windows path on drive Z: (drive letter in either case). UTF-8 out. "" for
/// other drives, which have no machine path.
[[nodiscard]] std::string PathToNative(std::string_view path);

}  // namespace tarnwick
