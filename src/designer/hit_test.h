// What lies at a position of a design window.
#pragma once

#include <vector>

#include "model/design_form.h"

namespace tarnwick {

/// The visible objects of a form as they are painted, back to front: labels and images lie under
/// all controls with a window of their own, whatever order was asked for.
[[nodiscard]] std::vector<ControlRef> PaintOrder(const DesignForm& form);

/// What the mouse finds. `Handle` is -1 unless a visible handle lies there; handles lie on top.
struct Hit {
  int Handle = -1;
  ControlRef Object;  ///< null for the empty form
};
/// The topmost thing at a position in twips: what the user sees there takes the press.
[[nodiscard]] Hit HitTest(const DesignForm& form, float x, float y);

/// The first visible object of the collection that covers a position, the way a press that placed
/// an object looks for one to drag; null when there is none.
[[nodiscard]] ControlRef FirstObjectUnder(const DesignForm& form, float x, float y);

}  // namespace tarnwick
