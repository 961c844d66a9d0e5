// The few lines on a property that stand under the grid.
#pragma once

#include <string>
#include <string_view>

#include "language/support_tables.h"

namespace tarnwick {

/// What the member descriptions say of a row on a kind ("Button", "Images"): the passages of the
/// member that speak of the kind, without the lines that name the kinds; all passages when none
/// does. Lines end in CR LF. "" when nothing is known of the row.
[[nodiscard]] std::string RowHelp(const language::SupportTables& support, std::string_view kind,
                                  std::string_view row);

}  // namespace tarnwick
