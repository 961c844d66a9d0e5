#include "designer/free_place.h"

#include <algorithm>
#include <cmath>

#include "designer/grid.h"
#include "designer/selection.h"
#include "model/units.h"

namespace tarnwick {

namespace {

constexpr float kStep = kGridStep * kTwipsPerPixel;
/// What the frame of a window takes at most, at the sides and above and below.
constexpr float kFrameWidth = 8 * kTwipsPerPixel;
constexpr float kFrameHeight = 60 * kTwipsPerPixel;

const DesignControl* FirstOver(const DesignForm& form, const FormPlace& at, float width,
                               float height) {
  const auto& controls = form.Controls();
  const auto found = std::find_if(controls.begin(), controls.end(), [&](const ControlRef& c) {
    return c->Visible && IsObject(*c) && c->Left < at.X + width && at.X < c->Left + c->Width &&
           c->Top < at.Y + height && at.Y < c->Top + c->Height;
  });
  return found == controls.end() ? nullptr : found->get();
}

}  // namespace

FormPlace FreePlaceFor(const DesignForm& form, float width, float height) {
  const float right = form.Width - kFrameWidth - width;
  const float bottom = form.Height - kFrameHeight - height;
  for (float y = kStep; y <= bottom; y += kStep) {
    float x = kStep;
    while (x <= right) {
      const DesignControl* const over = FirstOver(form, {x, y}, width, height);
      if (over == nullptr) return {x, y};
      // Nothing is free up to its far side.
      const float beyond = std::ceil((over->Left + over->Width) / kStep) * kStep;
      x = std::max(beyond, x + kStep);
    }
  }
  return {kStep, kStep};
}

}  // namespace tarnwick
