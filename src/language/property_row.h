// The rows that the property grid offers for a kind.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick::language {

/// Row types, by the byte that marks them behind a row's name. Marks compare as bytes and are
/// never folded: four of them are letters with another case.
namespace row_mark {
inline constexpr int kText = 0;        ///< no mark: typing only
inline constexpr int kYesNo = 151;     ///< "False" or "True"
inline constexpr int kPicture = 152;   ///< file dialog, pictures
inline constexpr int kIcon = 153;      ///< file dialog, icons
inline constexpr int kFont = 154;      ///< font dialog
inline constexpr int kColor = 155;     ///< colour dialog
inline constexpr int kColorToo = 156;  ///< colour dialog, the button not focused
inline constexpr int kFolder = 157;    ///< folder browser
inline constexpr int kList = 158;      ///< list of named values
inline constexpr int kItems = 159;     ///< item or popup editor
inline constexpr int kAnyFile = 161;   ///< file dialog, all files
inline constexpr int kHtmlFile = 162;  ///< file dialog, pages
}  // namespace row_mark

/// One row of a kind.
struct PropertyRow {
  std::string Name;
  int Mark = row_mark::kText;
  /// What the row's list offers: "False" and "True", or the values of a list row.
  std::vector<std::string> Values;

  friend bool operator==(const PropertyRow&, const PropertyRow&) = default;
};

/// Length of a row's name: it ends at the first byte of 0x80 and above.
[[nodiscard]] std::size_t NameLengthOf(std::string_view row) noexcept;
/// A row as the support file writes it: name, mark, and the values of a list with 0x8B between.
[[nodiscard]] PropertyRow ParsePropertyRow(std::string_view text);

}  // namespace tarnwick::language
