// Moving, sizing, keys, clipboard, lock, grid and order of objects on a design form.
#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "program.h"
#include "qt/surface/container.h"

namespace tarnwick {
namespace {

constexpr QPoint kPlace{100, 100};

TEST(Moving, TheObjectLandsWhereItIsDropped) {
  Program program;
  const DesignControl* button = program.Place(0, kPlace);
  program.Drag(program.Surface(), {110, 110}, {147, 93});
  EXPECT_EQ(RectOf(*button), (PixelRect{137, 83, 75, 25}));
  EXPECT_EQ(program.Selected(), button);
  // The panel's rows follow, as soon as the mouse is up.
  EXPECT_EQ(program.Find<QLabel>(QStringLiteral("SelectionText")).text(),
            QStringLiteral("Form1Btn1   Left 137  Top 83  Width 75  Height 25"));
}

TEST(Moving, TheObjectStaysUntilTheRelease) {
  Program program;
  const DesignControl* button = program.Place(0, kPlace);
  program.Press(program.Surface(), {110, 110});
  program.Move(program.Surface(), {150, 150});
  EXPECT_EQ(RectOf(*button), (PixelRect{100, 100, 75, 25}));
  program.Release(program.Surface(), {150, 150});
  EXPECT_EQ(RectOf(*button), (PixelRect{140, 140, 75, 25}));
}

TEST(Moving, TheOutlineFollowsThePointerAndIsGoneAfterTheRelease) {
  Program program;
  program.Place(0, kPlace);
  program.Click(program.Surface(), {300, 280});
  DesignSurface& surface = program.Surface();
  const QImage before = surface.grab().toImage();
  const auto inverted = [&](const QImage& image, QPoint at) {
    return image.pixelColor(at) != before.pixelColor(at);
  };
  program.Press(surface, {110, 110});
  program.Move(surface, {200, 180});
  const QImage under_way = surface.grab().toImage();
  // The edges of the button, moved by the way of the pointer.
  EXPECT_TRUE(inverted(under_way, {220, 170}));
  EXPECT_TRUE(inverted(under_way, {190, 182}));
  EXPECT_FALSE(inverted(under_way, {225, 182})) << "inside of it the form shows";
  EXPECT_FALSE(inverted(under_way, {140, 100})) << "no outline is left where it began";
  program.Move(surface, {110, 110});
  program.Release(surface, {110, 110});
  program.Click(surface, {300, 280});
  EXPECT_EQ(surface.grab().toImage(), before);
}

TEST(Moving, ThePointerStaysWithinTheWindow) {
  Program program;
  const DesignControl* button = program.Place(0, kPlace);
  DesignSurface& surface = program.Surface();
  program.Press(surface, {110, 110});
  program.Move(surface, {900, 700});
  program.Release(surface, {900, 700});
  // The grab offset is kept from the window's last pixel, frame included.
  EXPECT_LE(RectOf(*button).Left, static_cast<float>(surface.width()));
  EXPECT_LE(RectOf(*button).Top, static_cast<float>(surface.height()));
  EXPECT_GT(RectOf(*button).Left, static_cast<float>(surface.width()) - 30);
}

TEST(Moving, APressWithoutAMoveChangesNothing) {
  Program program;
  DesignControl* button = program.Place(0, kPlace);
  // A place between two pixels, as a file may give it.
  button->Left = 1507;
  program.Click(program.Surface(), {120, 110});
  EXPECT_EQ(button->Left, 1507);
  EXPECT_EQ(program.Selected(), button);
}

struct HandleMove {
  int Handle;
  PixelRect Grown;    ///< after a move by (13, 9)
  PixelRect Crossed;  ///< after a move by (-250, -220) or, for the far edges, beyond the near ones
};
void PrintTo(const HandleMove& move, std::ostream* out) {
  *out << move.Handle;
}

class EveryHandle : public testing::TestWithParam<HandleMove> {};

// An image of 105 by 105 at 100, 100. The border is the handle's middle, give or take the half
// pixel by which handles are pulled in, so a press on the middle takes the edge to the pointer.
TEST_P(EveryHandle, MovesItsEdges) {
  Program program;
  const DesignControl* image = program.Place(2, kPlace);
  ASSERT_EQ(RectOf(*image), (PixelRect{100, 100, 105, 105}));
  program.DragHandle(GetParam().Handle, {13, 9});
  const PixelRect got = RectOf(*image);
  const PixelRect want = GetParam().Grown;
  EXPECT_NEAR(got.Left, want.Left, 1);
  EXPECT_NEAR(got.Top, want.Top, 1);
  EXPECT_NEAR(got.Left + got.Width, want.Left + want.Width, 1);
  EXPECT_NEAR(got.Top + got.Height, want.Top + want.Height, 1);
  // Edges that do not follow the mouse stay to the twip.
  if (want.Left == 100) {
    EXPECT_EQ(got.Left, 100);
  }
  if (want.Top == 100) {
    EXPECT_EQ(got.Top, 100);
  }
  if (want.Left + want.Width == 205) {
    EXPECT_EQ(got.Left + got.Width, 205);
  }
  if (want.Top + want.Height == 205) {
    EXPECT_EQ(got.Top + got.Height, 205);
  }
}

TEST_P(EveryHandle, MayCrossTheOppositeEdge) {
  Program program;
  const DesignControl* image = program.Place(2, kPlace);
  const int handle = GetParam().Handle;
  const bool near_x = handle == 0 || handle == 6 || handle == 7;
  const bool near_y = handle == 0 || handle == 1 || handle == 2;
  program.DragHandle(handle, {near_x ? 140 : -140, near_y ? 140 : -140});
  const PixelRect got = RectOf(*image);
  const PixelRect want = GetParam().Crossed;
  EXPECT_NEAR(got.Left, want.Left, 1);
  EXPECT_NEAR(got.Top, want.Top, 1);
  EXPECT_NEAR(got.Width, want.Width, 1);
  EXPECT_NEAR(got.Height, want.Height, 1);
}

TEST_P(EveryHandle, MovesASmallKindAndLeavesItsSize) {
  Program program;
  const DesignControl* time = program.Place(11, kPlace);
  program.DragHandle(GetParam().Handle, {13, 9});
  const PixelRect got = RectOf(*time);
  EXPECT_EQ(got.Width, 28);
  EXPECT_EQ(got.Height, 28);
  EXPECT_NEAR(got.Left, GetParam().Grown.Left, 1);
  EXPECT_NEAR(got.Top, GetParam().Grown.Top, 1);
}

TEST_P(EveryHandle, ChangesNoHeightOfATextBox) {
  Program program;
  const DesignControl* text = program.Place(1, kPlace);
  program.DragHandle(GetParam().Handle, {13, 9});
  EXPECT_EQ(RectOf(*text).Height, 21);
}

INSTANTIATE_TEST_SUITE_P(Sizing, EveryHandle,
                         testing::Values(HandleMove{0, {113, 109, 92, 96}, {205, 205, 35, 35}},
                                         HandleMove{1, {100, 109, 105, 96}, {100, 205, 105, 35}},
                                         HandleMove{2, {100, 109, 118, 96}, {65, 205, 35, 35}},
                                         HandleMove{3, {100, 100, 118, 105}, {65, 100, 35, 105}},
                                         HandleMove{4, {100, 100, 118, 114}, {65, 65, 35, 35}},
                                         HandleMove{5, {100, 100, 105, 114}, {100, 65, 105, 35}},
                                         HandleMove{6, {113, 100, 92, 114}, {205, 65, 35, 35}},
                                         HandleMove{7, {113, 100, 92, 105}, {205, 100, 35, 105}}),
                         testing::PrintToStringParamName());

TEST(Sizing, ARichTextBoxCanBeMadeHigher) {
  Program program;
  const DesignControl* text = program.Place(10, {20, 20});
  program.DragHandle(5, {0, 40});
  EXPECT_NEAR(RectOf(*text).Height, 129, 1);
}

TEST(Sizing, AComboBoxKeepsTheHeightOfItsField) {
  Program program;
  const DesignControl* combo = program.Place(7, {20, 20});
  const PixelRect before = RectOf(*combo);
  for (const int handle : {5, 4, 1}) program.DragHandle(handle, {30, handle == 1 ? -10 : 40});
  EXPECT_EQ(RectOf(*combo).Height, before.Height);
  EXPECT_NEAR(RectOf(*combo).Width, before.Width + 30, 1) << "the corner took the pointer along";
}

TEST(Sizing, EveryHandleHasItsPointer) {
  Program program;
  program.Place(2, kPlace);
  const std::array<Qt::CursorShape, 8> shapes{
      Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor, Qt::SizeHorCursor,
      Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor, Qt::SizeHorCursor};
  for (int i = 0; i < 8; ++i) {
    const ControlRef grip = program.Form().Element(Kind::Handle, i);
    program.Move(program.Surface(),
                 PixelsOf(grip->Left + grip->Width / 2, grip->Top + grip->Height / 2));
    EXPECT_EQ(program.Surface().cursor().shape(), shapes[static_cast<std::size_t>(i)]) << i;
  }
}

TEST(Keys, ArrowsGoToTheNextGridLine) {
  Program program;
  const DesignControl* button = program.Place(0, {103, 100});
  program.Key(Qt::Key_Right);
  EXPECT_EQ(RectOf(*button).Left, 110);
  program.Key(Qt::Key_Right);
  EXPECT_EQ(RectOf(*button).Left, 120);
  program.Key(Qt::Key_Left);
  EXPECT_EQ(RectOf(*button).Left, 110);
  program.Key(Qt::Key_Down);
  EXPECT_EQ(RectOf(*button).Top, 110);
  program.Key(Qt::Key_Up);
  program.Key(Qt::Key_Up);
  EXPECT_EQ(RectOf(*button), (PixelRect{110, 90, 75, 25}));
}

TEST(Keys, CtrlArrowsMoveByOnePixel) {
  Program program;
  const DesignControl* button = program.Place(0, kPlace);
  program.Key(Qt::Key_Right, Qt::ControlModifier);
  program.Key(Qt::Key_Down, Qt::ControlModifier);
  program.Key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(RectOf(*button), (PixelRect{101, 102, 75, 25}));
  program.Key(Qt::Key_Left, Qt::ControlModifier);
  program.Key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(RectOf(*button), (PixelRect{100, 101, 75, 25}));
}

TEST(Keys, ShiftArrowsSizeByOnePixel) {
  Program program;
  const DesignControl* button = program.Place(0, kPlace);
  program.Key(Qt::Key_Right, Qt::ShiftModifier);
  program.Key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(RectOf(*button), (PixelRect{100, 100, 76, 26}));
  program.Key(Qt::Key_Left, Qt::ShiftModifier);
  program.Key(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(RectOf(*button), (PixelRect{100, 100, 75, 25}));
}

TEST(Keys, ArrowsLeaveASmallKindItsSize) {
  Program program;
  const DesignControl* time = program.Place(11, kPlace);
  program.Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(RectOf(*time), (PixelRect{100, 100, 28, 28}));
}

TEST(Keys, HandlesGoWithTheObject) {
  Program program;
  program.Place(0, kPlace);
  const float before = program.Form().Element(Kind::Handle, 0)->Left;
  program.Key(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(program.Form().Element(Kind::Handle, 0)->Left, before + 15);
}

TEST(Keys, WithTheFormSelectedArrowsDoNothing) {
  Program program;
  const DesignControl* button = program.Place(0, kPlace);
  program.Click(program.Surface(), {300, 250});
  program.Key(Qt::Key_Right);
  EXPECT_EQ(RectOf(*button), (PixelRect{100, 100, 75, 25}));
}

TEST(Keys, DeleteTakesTheObjectAtOnce) {
  Program program;
  program.Place(0, kPlace);
  program.Key(Qt::Key_Delete);
  EXPECT_EQ(program.Selected(), nullptr);
  EXPECT_EQ(program.Form().NameObjet, "Form");
  EXPECT_EQ(program.Form().FirstOf(Kind::Button), nullptr);
  EXPECT_FALSE(program.Form().Element(Kind::Handle, 0)->Visible);
  EXPECT_TRUE(program.User.Seen().empty());
  EXPECT_EQ(program.Find<QLineEdit>(QStringLiteral("Text_0")).text(), QStringLiteral("Form1"));
}

TEST(Keys, DeleteWithTheFormSelectedLosesNothing) {
  Program program;
  program.Place(0, kPlace);
  program.Click(program.Surface(), {300, 250});
  program.Key(Qt::Key_Delete);
  EXPECT_NE(program.Form().FirstOf(Kind::Button), nullptr);
  EXPECT_EQ(program.Form().NameObjet, "Form");
}

TEST(Keys, CtrlXDeletesAndCopiesNothing) {
  Program program;
  program.Place(0, kPlace);
  program.Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(program.Form().FirstOf(Kind::Button), nullptr);
  program.Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(program.Form().FirstOf(Kind::Button), nullptr);
}

TEST(Keys, CtrlCAndVMakeTheNextObjectBesideTheSource) {
  Program program;
  DesignControl* source = program.Place(0, kPlace);
  program.Key(Qt::Key_C, Qt::ControlModifier);
  // The source is read when it is pasted.
  source->Caption = "Go";
  program.Key(Qt::Key_V, Qt::ControlModifier);
  ASSERT_NE(program.Selected(), nullptr);
  EXPECT_EQ(program.Selected()->Tag, "Form1Btn2");
  EXPECT_EQ(program.Selected()->Caption, "Go");
  EXPECT_EQ(RectOf(*program.Selected()), (PixelRect{110, 110, 75, 25}));
  program.Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(RectOf(*program.Selected()), (PixelRect{120, 120, 75, 25}));
  EXPECT_EQ(program.Selected()->Tag, "Form1Btn3");
}

TEST(Keys, TheMenuDoesTheSame) {
  Program program;
  program.Place(0, kPlace);
  program.Choose(QStringLiteral("mnuCopy"));
  program.Choose(QStringLiteral("mnuPaste"));
  EXPECT_EQ(program.Form().UBound(Kind::Button), 2);
  program.Choose(QStringLiteral("mnuCut"));
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
  program.Click(program.Surface(), {110, 110});
  program.Choose(QStringLiteral("mnuDelete"));
  EXPECT_EQ(program.Form().FirstOf(Kind::Button), nullptr);
}

TEST(Keys, TheToolbarDoesTheSame) {
  Program program;
  program.Place(0, kPlace);
  program.Click(program.Find<QToolButton>(QStringLiteral("BtnMenu_4")));
  program.Click(program.Find<QToolButton>(QStringLiteral("BtnMenu_5")));
  EXPECT_EQ(program.Form().UBound(Kind::Button), 2);
  program.Click(program.Find<QToolButton>(QStringLiteral("BtnMenu_3")));
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
}

TEST(Keys, DeletingTheFrameLetsItBePlacedAgain) {
  Program program;
  program.Place(15, kPlace);
  EXPECT_FALSE(program.Find<QToolButton>(QStringLiteral("BtnMenu_4")).isEnabled());
  EXPECT_FALSE(program.Find<QToolButton>(QStringLiteral("BtnMenu_5")).isEnabled());
  program.Key(Qt::Key_Delete);
  EXPECT_TRUE(program.Find<QToolButton>(QStringLiteral("BtnObjet_15")).isEnabled());
  EXPECT_TRUE(program.Action(QStringLiteral("mnuItemObj_15")).isEnabled());
  EXPECT_TRUE(program.Find<QToolButton>(QStringLiteral("BtnMenu_4")).isEnabled());
  EXPECT_TRUE(program.Find<QToolButton>(QStringLiteral("BtnMenu_5")).isEnabled());
}

/// A program whose form is locked, with a button on it.
class Locked : public testing::Test {
 protected:
  Locked() : Button(program.Place(0, kPlace)) {
    program.Key(Qt::Key_L, Qt::ControlModifier);
    EXPECT_FALSE(program.Form().m_bDesignMode);
  }
  void ExpectRefusal() {
    const std::vector<SeenBox> seen = program.User.TakeSeen();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].Text, QStringLiteral("Need to Unblock controls before copy/cut/paste"));
    EXPECT_EQ(seen[0].Title, QStringLiteral("Tarnwick"));
    EXPECT_EQ(seen[0].Buttons, QMessageBox::Ok);
  }
  Program program;
  DesignControl* Button;
};

TEST_F(Locked, CopyCutAndPasteSayWhatIsNeeded) {
  for (const Qt::Key key : {Qt::Key_C, Qt::Key_X, Qt::Key_V}) {
    program.User.Ok();
    program.Key(key, Qt::ControlModifier);
    ExpectRefusal();
  }
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
}

TEST_F(Locked, CopyLeavesTheClipboardAsItWas) {
  program.User.Ok();
  program.Key(Qt::Key_C, Qt::ControlModifier);
  program.Key(Qt::Key_L, Qt::ControlModifier);
  program.Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
}

TEST_F(Locked, APressSelectsAndMovesNothing) {
  program.Click(program.Surface(), {300, 250});
  program.Drag(program.Surface(), {110, 110}, {150, 150});
  EXPECT_EQ(program.Selected(), Button);
  EXPECT_EQ(RectOf(*Button), (PixelRect{100, 100, 75, 25}));
  program.Key(Qt::Key_Right);
  program.Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(RectOf(*Button), (PixelRect{100, 100, 75, 25}));
}

TEST_F(Locked, MenusAndButtonShowIt) {
  EXPECT_TRUE(program.Action(QStringLiteral("mnuBloquear")).isChecked());
  EXPECT_TRUE(program.Action(QStringLiteral("popBloquear")).isChecked());
  EXPECT_TRUE(program.Find<QToolButton>(QStringLiteral("BtnMenu_7")).isChecked());
  EXPECT_FALSE(program.Form().Element(Kind::Handle, 0)->Visible);
  program.Click(program.Find<QToolButton>(QStringLiteral("BtnMenu_7")));
  EXPECT_FALSE(program.Action(QStringLiteral("mnuBloquear")).isChecked());
  EXPECT_TRUE(program.Form().m_bDesignMode);
}

TEST_F(Locked, ThePopUpStillComesUpForTheForm) {
  program.Click(program.Surface(), {300, 250}, Qt::RightButton);
  EXPECT_TRUE(program.Find<QMenu>(QStringLiteral("ObjectPopUp")).isVisible());
  program.Key(Qt::Key_Escape);
}

TEST_F(Locked, AToolLiftsTheBlock) {
  program.PressTool(3);
  EXPECT_TRUE(program.Form().m_bDesignMode);
  EXPECT_FALSE(program.Action(QStringLiteral("mnuBloquear")).isChecked());
  program.Click(program.Surface(), {20, 20});
  EXPECT_EQ(program.Form().UBound(Kind::Label), 1);
}

TEST(Grid, EveryObjectSnapsAndExactHalfGoesDown) {
  Program program;
  program.Place(0, {15, 16});
  program.Place(3, {94, 107});
  program.Place(11, {200, 205});
  program.Key(Qt::Key_G, Qt::ControlModifier);
  EXPECT_EQ(RectOf(*program.Form().Element(Kind::Button, 1)), (PixelRect{10, 20, 75, 25}));
  EXPECT_EQ(RectOf(*program.Form().Element(Kind::Label, 1)), (PixelRect{90, 110, 65, 17}));
  EXPECT_EQ(RectOf(*program.Form().Element(Kind::Time, 1)), (PixelRect{200, 200, 28, 28}));
}

TEST(Grid, HandlesFrameFieldsAndGridFollow) {
  Program program;
  const DesignControl* frame = program.Place(15, {53, 47});
  program.Click(program.Find<QToolButton>(QStringLiteral("BtnMenu_6")));
  EXPECT_EQ(RectOf(*frame), (PixelRect{50, 50, 105, 105}));
  EXPECT_EQ(program.Record().TfLeft, 50);
  EXPECT_EQ(program.Record().TfTop, 50);
  EXPECT_NEAR(program.Form().Element(Kind::Handle, 0)->Left + 52, frame->Left, 16);
}

TEST(Order, BringToFrontAndStayBackDecideWhatAPressMeets) {
  Program program;
  const DesignControl* below = program.Place(0, {50, 50});
  program.PressTool(0);
  program.Click(program.Surface(), {40, 45});
  const DesignControl* above = program.Form().Element(Kind::Button, 2).get();
  ASSERT_NE(above, nullptr);
  program.Click(program.Surface(), {60, 55});
  EXPECT_EQ(program.Selected(), above);
  program.Key(Qt::Key_BracketLeft, Qt::ControlModifier);
  program.Click(program.Surface(), {300, 250});
  program.Click(program.Surface(), {60, 55});
  EXPECT_EQ(program.Selected(), below);
  program.Key(Qt::Key_Tab);
  ASSERT_EQ(program.Selected(), above);
  program.Choose(QStringLiteral("mnuFrente"));
  program.Click(program.Surface(), {300, 250});
  program.Click(program.Surface(), {60, 55});
  EXPECT_EQ(program.Selected(), above);
}

TEST(Order, LabelsStayUnderWindowedObjects) {
  Program program;
  program.Place(3, {50, 50});
  program.Place(0, {45, 45});
  const DesignControl* button = program.Form().Element(Kind::Button, 1).get();
  program.Click(program.Surface(), {300, 250});
  // The label reaches further right than nothing of it but the button's lower edge leaves free.
  program.Key(Qt::Key_Tab);
  ASSERT_EQ(program.Selected()->Id, Kind::Label);
  program.Key(Qt::Key_BracketRight, Qt::ControlModifier);
  program.Click(program.Surface(), {300, 250});
  program.Click(program.Surface(), {60, 55});
  EXPECT_EQ(program.Selected(), button);
}

}  // namespace
}  // namespace tarnwick
