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

TEST(ComboControl, ItsListGrowsAndShrinksByRows) {
  DesignControl control;
  control.Id = Kind::ComboBox;
  UserControl1 combo(control);
  EXPECT_EQ(combo.ListCount(), 0);
  for (const char* row : {"one", "two", "three"}) combo.AddItem(row);
  EXPECT_EQ(combo.ListCount(), 3);
  EXPECT_EQ(combo.List(2), "three");
  combo.RemoveItem(1);
  EXPECT_EQ(combo.List(1), "three");
  combo.RemoveItem(2);
  combo.RemoveItem(-1);
  EXPECT_EQ(combo.ListCount(), 2);
  EXPECT_EQ(combo.List(2), "");
  EXPECT_EQ(combo.List(-1), "");
  combo.Clear();
  EXPECT_EQ(combo.ListCount(), 0);
}

TEST(ComboControl, TheChosenRowIsTheOneThatTheTextShows) {
  DesignControl control;
  control.Id = Kind::ComboBox;
  control.Items = {"one", "two", "two"};
  UserControl1 combo(control);
  EXPECT_EQ(combo.ListIndex(), -1);
  combo.SetListIndex(1);
  EXPECT_EQ(control.Text, "two");
  EXPECT_EQ(combo.ListIndex(), 1);
  combo.SetListIndex(-1);
  EXPECT_EQ(control.Text, "");
  combo.SetListIndex(0);
  combo.SetListIndex(3);
  EXPECT_EQ(control.Text, "");
}

}  // namespace
}  // namespace tarnwick
