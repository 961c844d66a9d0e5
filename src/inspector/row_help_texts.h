// What the rows of the property grid are for, in the words of the grid.
#pragma once

#include <string_view>

#include "model/kinds.h"

namespace tarnwick {

/// The text for a row of a kind, the row's name in any case; "" when there is none. Lines end in
/// CR LF.
[[nodiscard]] std::string_view RowHelpText(std::string_view row, Kind kind) noexcept;

}  // namespace tarnwick
