// How the values of the property grid look beside their text.
#pragma once

#include "qt/property_row_view.h"

namespace tarnwick {

class MDIForm1;
class PictureCache;

/// Look of a row of the sheet: a colour has its swatch, a font its face, style and size, a picture
/// or icon a small image of itself.
[[nodiscard]] RowLook LookOfRow(MDIForm1& shell, PictureCache& pictures, const QWidget& grid,
                                int row);

}  // namespace tarnwick
