#include "designer/combo_control.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(ComboControl, TheComboBoxTakesTheWidthAndTheTextReaches220TwipsPastIt) {
  const ComboLayout layout = LayoutCombo(2175);
  EXPECT_EQ(layout.ComboWidth, 2175);
  EXPECT_EQ(layout.TextWidth, 2395);
}

TEST(ComboControl, TheControlTakesTheHeightOfItsComboBox) {
  DesignControl control;
  control.Id = Kind::ComboBox;
  control.Width = 900;
  control.Height = 5000;
  FitComboControl(control);
  EXPECT_EQ(control.Height, LayoutCombo(900).ComboHeight);
  EXPECT_EQ(control.Width, 900);
}

TEST(ComboControl, ControlsOfOtherClassesKeepTheirHeight) {
  DesignControl control;
  control.Id = Kind::ListBox;
  control.Height = 5000;
  FitComboControl(control);
  EXPECT_EQ(control.Height, 5000);
}

}  // namespace
}  // namespace tarnwick
