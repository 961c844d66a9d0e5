// `UserControl1`: the design look of a ComboBox, a box with a drop arrow that never opens.
#pragma once

#include "model/design_control.h"

namespace tarnwick {

/// Widths and heights of the parts of a combo control, twips. The text box lies over the combo
/// box and reaches past it, so that no press ever finds the arrow and opens the list.
struct ComboLayout {
  float ComboWidth = 0;   ///< of `Combo1`
  float TextWidth = 0;    ///< of `Text1`
  float ComboHeight = 0;  ///< of `Combo1`, and of the control
};

/// The parts of a combo control of a width.
[[nodiscard]] ComboLayout LayoutCombo(float control_width) noexcept;
/// What a resize does: the control takes the height of its combo box, whatever height it was
/// given. Nothing for a control of another class.
void FitComboControl(DesignControl& control) noexcept;

}  // namespace tarnwick
