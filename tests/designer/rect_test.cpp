#include "designer/rect.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

DesignControl ControlAt(float left, float top, float width, float height) {
  DesignControl control;
  control.Left = left;
  control.Top = top;
  control.Width = width;
  control.Height = height;
  return control;
}

TEST(Rect, TakesAControlsPlaceAndSize) {
  CRect rect;
  rect.SetRectToCtrl(ControlAt(150, 300, 1500, 450));
  EXPECT_EQ(rect, (CRect{150, 300, 1650, 750, 0}));
  EXPECT_EQ(rect.Width(), 1500);
  EXPECT_EQ(rect.Height(), 450);
}

TEST(Rect, SettingWidthMovesRightAndSettingHeightMovesBottom) {
  CRect rect{10, 20, 30, 40, 0};
  rect.SetWidth(100);
  rect.SetHeight(200);
  EXPECT_EQ(rect, (CRect{10, 20, 110, 220, 0}));
}

TEST(Rect, AReversedLineIsNormalisedAndFlagged) {
  CRect rect;
  rect.SetRectToLine(50, 10, 20, 40);
  EXPECT_EQ(rect, (CRect{20, 10, 50, 40, CRect::kLeftRightSwapped}));
  rect.SetRectToLine(50, 40, 20, 10);
  EXPECT_EQ(rect.Flags, CRect::kLeftRightSwapped | CRect::kTopBottomSwapped);
  rect.SetRectToLine(1, 2, 3, 4);
  EXPECT_EQ(rect.Flags, 0);
  rect.SetRectToLine(7, 5, 7, 5);
  EXPECT_EQ(rect, (CRect{7, 5, 7, 5, 0})) << "nothing is reversed in a point";
}

TEST(Rect, NormalizeSwapsOnlyCrossedEdges) {
  CRect rect{30, 1, 10, 2, 0};
  rect.NormalizeRect();
  EXPECT_EQ(rect, (CRect{10, 1, 30, 2, 0}));
  rect = {1, 20, 2, 10, 0};
  rect.NormalizeRect();
  EXPECT_EQ(rect, (CRect{1, 10, 2, 20, 0}));
}

TEST(Rect, RightAndBottomEdgesLieOutside) {
  const CRect rect{10, 20, 30, 40, 0};
  EXPECT_TRUE(rect.PtInRect(10, 20));
  EXPECT_TRUE(rect.PtInRect(29, 39));
  EXPECT_FALSE(rect.PtInRect(30, 39));
  EXPECT_FALSE(rect.PtInRect(29, 40));
  EXPECT_FALSE(rect.PtInRect(9, 20));
}

TEST(Rect, GoesToTheScreenAndBack) {
  CRect rect{150, 300, 1650, 750, 0};
  rect.TwipsToScreen({100, 50});
  EXPECT_EQ(rect, (CRect{110, 70, 210, 100, 0}));
  rect.ScreenToTwips({100, 50});
  EXPECT_EQ(rect, (CRect{150, 300, 1650, 750, 0}));
}

TEST(Rect, BothAxesTakeTheFactorOfX) {
  CRect rect{10, 10, 20, 20, 0};
  rect.ScreenToTwips({0, 0}, {15, 12});
  EXPECT_EQ(rect, (CRect{150, 150, 300, 300, 0}));
  rect.TwipsToScreen({0, 0}, {15, 12});
  EXPECT_EQ(rect, (CRect{10, 10, 20, 20, 0}));
}

struct SizeCase {
  const char* NameObjet;
  SizeRule Rule;
};

TEST(Rect, TheSelectionsKindDecidesWhichSizesStay) {
  const SizeCase cases[] = {
      {"Time1", SizeRule::KeepsBoth},
      {"FileStream2", SizeRule::KeepsBoth},
      {"WinSock1", SizeRule::KeepsBoth},
      {"PopupMenu3", SizeRule::KeepsBoth},
      {"OpenDialog1", SizeRule::KeepsBoth},
      {"SaveDialog1", SizeRule::KeepsBoth},
      {"TransparentFrame", SizeRule::KeepsBoth},
      {"TextBox1", SizeRule::KeepsHeight},
      {"RichTextBox1", SizeRule::Free},
      {"Button1", SizeRule::Free},
      {"HtmlViewer1", SizeRule::Free},
      {"ComboBox1", SizeRule::Free},
      {"Image1", SizeRule::Free},
  };
  for (const SizeCase& c : cases) EXPECT_EQ(SizeRuleOf(c.NameObjet), c.Rule) << c.NameObjet;
}

TEST(Rect, AFixedKindTakesThePlaceAndKeepsTheSelectionsSize) {
  DesignControl control = ControlAt(0, 0, 5, 6);
  const DesignControl selected = ControlAt(0, 0, 420, 421);
  CRect{600, 700, 100, 200, 0}.SetCtrlToRect(control, "Time1", selected);
  EXPECT_EQ(control.Left, 100);
  EXPECT_EQ(control.Top, 200);
  EXPECT_EQ(control.Width, 420);
  EXPECT_EQ(control.Height, 421);
}

TEST(Rect, ATextBoxTakesTheWidthAndKeepsTheHeight) {
  DesignControl control = ControlAt(0, 0, 1815, 315);
  CRect{10, 20, 110, 620, 0}.SetCtrlToRect(control, "TextBox4", control);
  EXPECT_EQ(control.Left, 10);
  EXPECT_EQ(control.Top, 20);
  EXPECT_EQ(control.Width, 100);
  EXPECT_EQ(control.Height, 315);
}

TEST(Rect, OtherKindsTakeAllFour) {
  DesignControl control = ControlAt(0, 0, 1, 1);
  CRect{110, 620, 10, 20, 0}.SetCtrlToRect(control, "RichTextBox1", control);
  EXPECT_EQ(control.Left, 10);
  EXPECT_EQ(control.Top, 20);
  EXPECT_EQ(control.Width, 100);
  EXPECT_EQ(control.Height, 600);
}

TEST(Rect, GiantPlacesStayWithinReach) {
  CRect rect;
  rect.SetRectToCtrl(ControlAt(3e38F, -3e38F, 3e38F, 3e38F));
  EXPECT_LE(rect.Left, rect.Right);
  EXPECT_LE(rect.Top, rect.Bottom);
  rect.ScreenToTwips({0, 0});
  EXPECT_LT(rect.Top, 0);
  EXPECT_GT(rect.Left, 0);
}

}  // namespace
}  // namespace tarnwick
