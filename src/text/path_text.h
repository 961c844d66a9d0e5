// Windows paths as text.
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// The path up to and including its last "\"; "" when there is none.
[[nodiscard]] std::string_view FolderOf(std::string_view path) noexcept;
/// What stands behind the last "\".
[[nodiscard]] std::string_view BareName(std::string_view path) noexcept;
/// A machine path as the Windows path a program under Wine sees: "/home/ann" is "Z:\home\ann".
/// UTF-8 in, Windows-1252 out.
[[nodiscard]] std::string PathFromNative(std::string_view native);
/// The way back for a path on drive Z: (drive letter in either case). UTF-8 out. Nothing sensible
/// can be named for other drives: "" comes back.
[[nodiscard]] std::string PathToNative(std::string_view path);

}  // namespace tarnwick
