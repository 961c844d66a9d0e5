// How the values of the property grid look beside their text.
#pragma once

#include "qt/grid/property_row_view.h"

namespace tarnwick::looks {
class PictureCache;
}

namespace tarnwick {

class PropertySheet;

/// Look of a row of the sheet: a colour has its swatch and name, a font its face, style and size, a
/// picture or icon a small image of itself.
[[nodiscard]] RowLook LookOfRow(const PropertySheet& sheet, looks::PictureCache& pictures,
                                const QWidget& grid, int row);

}  // namespace tarnwick
