// The rows of the property grid: what the fourth support file says of a kind.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "language/support_tables.h"

namespace tarnwick {

namespace row_mark = language::row_mark;
using language::PropertyRow;

/// Which parts of the panel a row type brings up.
struct RowWidgets {
  int Mark = row_mark::kText;
  bool Boton1 = false;
  bool Boton2 = false;
  bool TakesFocus = false;  ///< the shown button, rather than the row's text, takes the focus
  bool List = false;        ///< `ListBox` is filled; `Boton2` opens it
};

/// The kind word of a selection or a control array: without the index, and by the names of the
/// support file ("Images2" is "Image").
[[nodiscard]] std::string KindWordOf(std::string_view kind_or_name);
/// The rows of a kind word in any case; none for a kind without a line.
[[nodiscard]] std::span<const PropertyRow> PropertyRowsOf(const language::SupportTables& tables,
                                                          std::string_view kind);
[[nodiscard]] const RowWidgets& WidgetsOf(int mark) noexcept;

/// The text of a named value: the one whose index in the row's list is the number. The row's name
/// is compared whole and may carry its mark; "" for an unknown kind, row or index.
[[nodiscard]] std::string EnumText(const language::SupportTables& tables, std::string_view kind,
                                   std::string_view row_name, int value);

}  // namespace tarnwick
