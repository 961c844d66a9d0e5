// `UserControl1`: the design look of a ComboBox, a box with a drop arrow that never opens.
#pragma once

#include <string_view>

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

/// The list of a combo control. Rows count from 0; the row that is chosen is the one that the text
/// shows. The control must live as long as this.
class UserControl1 {
 public:
  explicit UserControl1(DesignControl& control) noexcept : control_(control) {}

  [[nodiscard]] int ListCount() const noexcept { return static_cast<int>(control_.Items.size()); }
  /// The text of a row; "" for one that is not there.
  [[nodiscard]] std::string_view List(int row) const noexcept;
  /// The first row whose text the control shows; -1 for none.
  [[nodiscard]] int ListIndex() const noexcept;
  /// Shows the text of a row; -1, or a row that is not there, empties the text.
  void SetListIndex(int row);
  void AddItem(std::string_view text) { control_.Items.emplace_back(text); }
  /// Nothing for a row that is not there.
  void RemoveItem(int row);
  void Clear() noexcept { control_.Items.clear(); }

 private:
  [[nodiscard]] bool HasRow(int row) const noexcept { return row >= 0 && row < ListCount(); }

  DesignControl& control_;
};

}  // namespace tarnwick
