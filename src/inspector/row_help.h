// The few lines on a property that stand under the grid.
#pragma once

#include <string>
#include <string_view>

#include "language/support_tables.h"

namespace tarnwick {

/// What a row is for on a kind ("Button", "Images"). A row that the grid has no words for takes the
/// passages of the member's description that speak of the kind, without the lines that name the
/// kinds; all passages when none does. Lines end in CR LF. "" when nothing is known of the row.
[[nodiscard]] std::string RowHelp(const language::SupportTables& support, std::string_view kind,
                                  std::string_view row);

}  // namespace tarnwick
