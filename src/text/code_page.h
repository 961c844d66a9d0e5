// Windows-1252 text: the code page of project files, sources and support files.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

// The separators of stored text: bytes of the code page that users hardly ever type.
inline constexpr char kStoredComma =
    '\x8D';  ///< a comma in captions, tips, hints and code; starts a value
inline constexpr char kStoredLineBreak = '\x95';  ///< a line break in code; ends an item of a list
inline constexpr char kStoredListComma = '\x8C';  ///< a comma in an item list
inline constexpr char kMenuNested = '\x8E';  ///< marks nested menu items; ends a top row of a popup
inline constexpr char kPopUpEntry = '\x8F';  ///< starts a sub-item of a popup; a comma in help text

/// Lower-case and upper-case forms of all bytes.
extern const std::array<char, 256> kLowerBytes;
extern const std::array<char, 256> kUpperBytes;

/// The byte's lower-case form in the code page (letters with accents included); other bytes are
/// unchanged.
[[nodiscard]] inline char LowerByte(char c) noexcept {
  return kLowerBytes[static_cast<unsigned char>(c)];
}
/// The byte's upper-case form in the code page; a letter without one in the page is unchanged.
[[nodiscard]] inline char UpperByte(char c) noexcept {
  return kUpperBytes[static_cast<unsigned char>(c)];
}
/// Lower-case copy of the same length: positions in it apply to the original.
[[nodiscard]] std::string Lower(std::string_view text);
/// Upper-case copy of the same length.
[[nodiscard]] std::string Upper(std::string_view text);
/// True when both texts are equal without regard to case.
[[nodiscard]] bool EqualsFolded(std::string_view a, std::string_view b) noexcept;
/// True when `text` begins with `start`, without regard to case.
[[nodiscard]] bool StartsWithFolded(std::string_view text, std::string_view start) noexcept;
/// Position of `part` in `text` from `from` on, without regard to case; npos when there is none.
[[nodiscard]] std::size_t FindFolded(std::string_view text, std::string_view part,
                                     std::size_t from = 0) noexcept;

/// Hash and equality that ignore case, for keyed tables looked up by string_view.
struct FoldedHash {
  using is_transparent = void;
  /// Not noexcept, so that the library's tables keep the hashes and do not compute them again
  /// while they search.
  [[nodiscard]] std::size_t operator()(std::string_view text) const;
};
struct FoldedEqual {
  using is_transparent = void;
  [[nodiscard]] bool operator()(std::string_view a, std::string_view b) const noexcept {
    return EqualsFolded(a, b);
  }
};

/// Windows-1252 to UTF-8. The five unassigned bytes become the control characters of their number.
[[nodiscard]] std::string CodePageToUtf8(std::string_view text);
/// UTF-8 to Windows-1252. What the page lacks, and each byte that is no UTF-8, becomes "?".
[[nodiscard]] std::string Utf8ToCodePage(std::string_view utf8);
/// The byte of one Unicode code point; null when the page lacks it.
[[nodiscard]] std::optional<char> CodePointToByte(char32_t code_point) noexcept;
/// The Unicode code point of one byte.
[[nodiscard]] char32_t ByteToCodePoint(char byte) noexcept;

}  // namespace tarnwick
