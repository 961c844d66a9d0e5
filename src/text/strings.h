// Trimming, splitting, joining and replacing. A blank is the byte 0x20 and nothing else.
#pragma once

#include <concepts>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// What ends a line in every file of the system.
inline constexpr std::string_view kLineEnd = "\r\n";

/// The text without blanks at both ends; tabs and line ends stay.
[[nodiscard]] std::string_view Trim(std::string_view text) noexcept;
[[nodiscard]] std::string_view TrimLeft(std::string_view text) noexcept;
[[nodiscard]] std::string_view TrimRight(std::string_view text) noexcept;
/// True for "" and for a text of blanks only.
[[nodiscard]] bool IsBlank(std::string_view text) noexcept;

/// The pieces between separators, empty ones kept: n separators give n + 1 pieces. An empty text
/// gives one empty piece. The views live as long as `text`.
[[nodiscard]] std::vector<std::string_view> Split(std::string_view text,
                                                  std::string_view separator);
/// Deleted for temporary strings: the pieces would outlive their text.
template <std::same_as<std::string> Text>
std::vector<std::string_view> Split(Text&& text, std::string_view separator) = delete;
[[nodiscard]] std::string Join(const std::vector<std::string>& pieces, std::string_view separator);
/// Every `from` replaced by `to`, in one pass from the left; an empty `from` changes nothing.
[[nodiscard]] std::string ReplaceAll(std::string_view text, std::string_view from,
                                     std::string_view to);
/// In-place replacement of single bytes.
void ReplaceByte(std::span<char> text, char from, char to) noexcept;
[[nodiscard]] bool Contains(std::string_view text, std::string_view part) noexcept;
/// True for a name in array form, such as "Cmd(3)": it holds a "(".
[[nodiscard]] bool IsArrayForm(std::string_view name) noexcept;
/// The text before the first "("; the whole name when there is none.
[[nodiscard]] std::string_view ArrayStem(std::string_view name) noexcept;
/// The text without the digits 0 to 9: "Button12" gives "Button".
[[nodiscard]] std::string WithoutDigits(std::string_view text);

}  // namespace tarnwick
