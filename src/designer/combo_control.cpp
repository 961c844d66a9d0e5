#include "designer/combo_control.h"

#include <algorithm>
#include <cstddef>

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

std::string_view UserControl1::List(int row) const noexcept {
  return HasRow(row) ? std::string_view(control_.Items[static_cast<std::size_t>(row)])
                     : std::string_view();
}

int UserControl1::ListIndex() const noexcept {
  const auto shown = std::find(control_.Items.begin(), control_.Items.end(), control_.Text);
  return shown == control_.Items.end() ? -1 : static_cast<int>(shown - control_.Items.begin());
}

void UserControl1::SetListIndex(int row) {
  control_.Text = List(row);
}

void UserControl1::RemoveItem(int row) {
  if (HasRow(row)) control_.Items.erase(control_.Items.begin() + row);
}

}  // namespace tarnwick
