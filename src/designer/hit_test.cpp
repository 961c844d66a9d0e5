#include "designer/hit_test.h"

#include <algorithm>

#include "designer/drag.h"
#include "designer/rect.h"
#include "designer/selection.h"

namespace tarnwick {

namespace {

bool Covers(const DesignControl& control, float x, float y) {
  CRect rect;
  rect.SetRectToCtrl(control);
  return rect.PtInRect(WholeUnits(x), WholeUnits(y));
}

bool HasOwnWindow(const DesignControl& control) noexcept {
  return control.Class() != ControlClass::Label && control.Class() != ControlClass::Image;
}

}  // namespace

std::vector<ControlRef> PaintOrder(const DesignForm& form) {
  std::vector<ControlRef> order;
  order.reserve(form.DrawOrder().size());
  for (const ControlRef& control : form.DrawOrder()) {
    if (control->Visible && IsObject(*control)) order.push_back(control);
  }
  std::stable_partition(order.begin(), order.end(),
                        [](const ControlRef& control) { return !HasOwnWindow(*control); });
  return order;
}

Hit HitTest(const DesignForm& form, float x, float y) {
  for (int i = 0; i < kHandleCount; ++i) {
    const ControlRef handle = form.Element(Kind::Handle, i);
    if (handle && handle->Visible && Covers(*handle, x, y)) return {i, nullptr};
  }
  const std::vector<ControlRef> order = PaintOrder(form);
  const auto found = std::find_if(order.rbegin(), order.rend(), [x, y](const ControlRef& control) {
    return Covers(*control, x, y);
  });
  return {-1, found == order.rend() ? nullptr : *found};
}

ControlRef FirstObjectUnder(const DesignForm& form, float x, float y) {
  const auto& controls = form.Controls();
  const auto found = std::find_if(controls.begin(), controls.end(), [x, y](const ControlRef& c) {
    return c->Visible && IsObject(*c) && Covers(*c, x, y);
  });
  return found == controls.end() ? nullptr : *found;
}

}  // namespace tarnwick
