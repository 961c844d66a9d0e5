// Where an object goes that is placed without the mouse.
#pragma once

#include "model/design_form.h"

namespace tarnwick {

/// A position on a form, in twips.
struct FormPlace {
  float X = 0;
  float Y = 0;
};

/// The first place on the grid, row by row, at which an object of this size (twips) lies within the
/// form and over no visible object; one step from the corner where the form has no such place.
[[nodiscard]] FormPlace FreePlaceFor(const DesignForm& form, float width, float height);

}  // namespace tarnwick
