// The rows of the property grid: what the fourth support file says of a kind.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "persistence/support_tables.h"

namespace tarnwick {

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

/// Which parts of the panel a row type brings up.
struct RowWidgets {
  int Mark = row_mark::kText;
  bool Boton1 = false;
  bool Boton2 = false;
  bool TakesFocus = false;  ///< the shown button, rather than the row's text, takes the focus
  bool List = false;        ///< `ListBox` is filled; `Boton2` opens it
};

/// One row of a kind. The views live as long as the support tables.
struct PropertyRow {
  std::string_view Name;
  int Mark = row_mark::kText;
  std::string_view Rest;  ///< what stands behind the mark
};

/// Length of a row's name: it ends at the first byte of 0x80 and above.
[[nodiscard]] std::size_t NameLengthOf(std::string_view row) noexcept;
[[nodiscard]] PropertyRow ParseRow(std::string_view row) noexcept;
/// The kind word of a selection or a control array: without the index, and by the names of the
/// support file ("Images2" is "Image").
[[nodiscard]] std::string KindWordOf(std::string_view kind_or_name);
/// The rows of a kind word in any case; none for a kind without a line.
[[nodiscard]] std::vector<PropertyRow> PropertyRowsOf(const SupportTables& tables,
                                                      std::string_view kind);
/// The values that a row offers in its list: "False" and "True", or those of its line.
[[nodiscard]] std::vector<std::string_view> ValuesOf(const PropertyRow& row);
[[nodiscard]] const RowWidgets& WidgetsOf(int mark) noexcept;

/// The text of a named value: the one whose place in the row's list is the number. The row's name
/// is compared whole and may carry its mark; "" for an unknown kind, row or place.
[[nodiscard]] std::string EnumText(const SupportTables& tables, std::string_view kind,
                                   std::string_view row_name, int value);

}  // namespace tarnwick
