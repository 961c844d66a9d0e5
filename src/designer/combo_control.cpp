#include "designer/combo_control.h"

#include "model/units.h"

namespace tarnwick {

namespace {

constexpr float kComboHeight = 21 * kTwipsPerPixel;
constexpr float kTextOverlap = 220;

}  // namespace

ComboLayout LayoutCombo(float control_width) noexcept {
  return {control_width, control_width + kTextOverlap, kComboHeight};
}

void FitComboControl(DesignControl& control) noexcept {
  if (control.Class() != ControlClass::UserControl1) return;
  control.Height = LayoutCombo(control.Width).ComboHeight;
}

}  // namespace tarnwick
