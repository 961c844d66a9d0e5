// Handles, moving and sizing.
#include "designer/drag.h"

#include "surface_fixture.h"

namespace tarnwick {
namespace {

using DragTest = SurfaceTest;
using Entries = std::vector<std::string>;

TEST_F(DragTest, AMoveFollowsThisOrder) {
  const ControlRef button = Place("Button", 10, 20);
  ports.Log.Clear();
  PressOn(button, 5, 5);
  MoveTo(45, 65);
  gestures.MouseUp();
  EXPECT_EQ(Log(), (Entries{"commands",
                            "paint",
                            "selection",
                            "band 110,70,185,95",
                            "release",
                            "capture",
                            "confine",
                            "band 110,70,185,95",
                            "band 140,110,215,135",
                            "commands",
                            "band 140,110,215,135",
                            "free",
                            "release",
                            "focus",
                            "paint",
                            "selection",
                            "sync Button1 height",
                            "sync Button1 left",
                            "sync Button1 top",
                            "sync Button1 width",
                            "properties Button1 Form1Btn1"}));
  EXPECT_EQ(button->Left, Twips(40));
  EXPECT_EQ(button->Top, Twips(60));
  EXPECT_EQ(button->Width, Twips(75));
  EXPECT_EQ(button->Height, Twips(25));
}

TEST_F(DragTest, TheControlStaysWhereItIsUntilTheRelease) {
  const ControlRef button = Place("Button", 10, 20);
  PressOn(button);
  MoveTo(200, 200);
  EXPECT_EQ(button->Left, Twips(10));
  EXPECT_EQ(button->Top, Twips(20));
}

TEST_F(DragTest, APressWithoutAMoveLeavesTheObjectAndShowsHandlesAndProperties) {
  const ControlRef button = Place("Button", 10, 20);
  button->Left = 187.5F;  // twelve and a half pixels, as a typed value can be
  button->Width = 1000.5F;
  Press(300, 300);
  gestures.MouseUp();
  ports.Log.Clear();
  Click(button);
  EXPECT_EQ(button->Left, 187.5F);
  EXPECT_EQ(button->Width, 1000.5F);
  EXPECT_TRUE(HandleVisible(0));
  EXPECT_EQ(Log().back(), "properties Button1 Form1Btn1");
}

TEST_F(DragTest, CaptureAndConfinedCursorLastAsLongAsTheGesture) {
  const ControlRef button = Place("Button", 10, 20);
  EXPECT_FALSE(ports.Gestures.Captured);
  PressOn(button);
  EXPECT_TRUE(ports.Gestures.Captured);
  EXPECT_TRUE(ports.Gestures.Confined) << "the mouse cannot leave the window";
  gestures.MouseUp();
  EXPECT_FALSE(ports.Gestures.Captured);
  EXPECT_FALSE(ports.Gestures.Confined);
  gestures.HandleMouseDown(4, kLeftButton);
  EXPECT_TRUE(ports.Gestures.Captured);
  EXPECT_TRUE(ports.Gestures.Confined);
  gestures.MouseUp();
  EXPECT_FALSE(ports.Gestures.Confined);
}

TEST_F(DragTest, TheHandlesSitOnTheBorder) {
  Place("Button", 10, 20);  // 150, 300, 1125 by 375 twips
  const auto at = [this](int i) {
    const ControlRef handle = form.Element(Kind::Handle, i);
    return std::make_pair(handle->Left, handle->Top);
  };
  EXPECT_EQ(at(0), std::make_pair(150.F - 52 + 8, 300.F - 52 + 8));
  EXPECT_EQ(at(1), std::make_pair(150.F + 562.5F - 52, 300.F - 52 + 8));
  EXPECT_EQ(at(2), std::make_pair(150.F + 1125 - 52 - 8, 300.F - 52 + 8));
  EXPECT_EQ(at(3), std::make_pair(150.F + 1125 - 52 - 8, 300.F + 187.5F - 52));
  EXPECT_EQ(at(4), std::make_pair(150.F + 1125 - 52 - 8, 300.F + 375 - 52 - 8));
  EXPECT_EQ(at(5), std::make_pair(150.F + 562.5F - 52, 300.F + 375 - 52 - 8));
  EXPECT_EQ(at(6), std::make_pair(150.F - 52 + 8, 300.F + 375 - 52 - 8));
  EXPECT_EQ(at(7), std::make_pair(150.F - 52 + 8, 300.F + 187.5F - 52));
}

TEST_F(DragTest, HandlesHavePointersForTheirEdges) {
  const int pointers[] = {8, 7, 6, 9, 8, 7, 6, 9};
  for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(Handles()[i].Pointer, pointers[i]);
}

struct EdgeCase {
  int Handle;
  int Left, Top, Right, Bottom;  ///< edges after a drag to (60, 70), pixels
};

TEST_F(DragTest, EachHandleMovesItsEdges) {
  const EdgeCase cases[] = {
      {0, 60, 70, 300, 250}, {1, 100, 70, 300, 250}, {2, 100, 70, 60, 250}, {3, 100, 100, 60, 250},
      {4, 100, 100, 60, 70}, {5, 100, 100, 300, 70}, {6, 60, 100, 300, 70}, {7, 60, 100, 300, 250},
  };
  const ControlRef box = Place("RichTextBox", 100, 100);
  for (const EdgeCase& c : cases) {
    box->Left = Twips(100);
    box->Top = Twips(100);
    box->Width = Twips(200);
    box->Height = Twips(150);
    DragHandle(c.Handle, 60, 70);
    EXPECT_EQ(box->Left, Twips(std::min(c.Left, c.Right))) << c.Handle;
    EXPECT_EQ(box->Top, Twips(std::min(c.Top, c.Bottom))) << c.Handle;
    EXPECT_EQ(box->Width, Twips(std::abs(c.Right - c.Left))) << c.Handle;
    EXPECT_EQ(box->Height, Twips(std::abs(c.Bottom - c.Top))) << c.Handle;
  }
}

TEST_F(DragTest, DraggingTheLastCornerPastTheFirstGivesNoNegativeSize) {
  const ControlRef button = Place("Button", 100, 100);
  DragHandle(4, 40, 30);
  EXPECT_EQ(button->Left, Twips(40));
  EXPECT_EQ(button->Top, Twips(30));
  EXPECT_EQ(button->Width, Twips(60));
  EXPECT_EQ(button->Height, Twips(70));
}

TEST_F(DragTest, AnyHandleOfATimeMovesItAndLeavesItsSize) {
  const ControlRef time = Place("Time", 100, 100);
  DragHandle(4, 300, 300);
  EXPECT_EQ(time->Left, Twips(100));
  EXPECT_EQ(time->Width, Twips(28));
  DragHandle(0, 50, 60);
  EXPECT_EQ(time->Left, Twips(50));
  EXPECT_EQ(time->Top, Twips(60));
  EXPECT_EQ(time->Width, Twips(28));
  EXPECT_EQ(time->Height, Twips(28));
}

TEST_F(DragTest, ABottomHandleChangesNothingInATextBoxButMakesARichTextBoxHigher) {
  const ControlRef text = Place("TextBox", 10, 10);
  DragHandle(5, 20, 200);
  EXPECT_EQ(text->Height, Twips(21));
  const ControlRef rich = Place("RichTextBox", 200, 100);
  DragHandle(5, 210, 300);
  EXPECT_EQ(rich->Height, Twips(200));
}

TEST_F(DragTest, AComboBoxKeepsTheHeightOfItsBox) {
  const ControlRef combo = Place("ComboBox", 10, 10);
  const float height = combo->Height;
  DragHandle(4, 300, 300);
  EXPECT_EQ(combo->Width, Twips(290));
  EXPECT_EQ(combo->Height, height);
}

TEST_F(DragTest, AResizeHidesTheHandlesUntilTheRelease) {
  Place("Button", 10, 10);
  gestures.HandleMouseDown(4, kLeftButton);
  EXPECT_EQ(gestures.Mode(), DragMode::Resize);
  for (int i = 0; i < 8; ++i) EXPECT_FALSE(HandleVisible(i));
  gestures.MouseUp();
  for (int i = 0; i < 8; ++i) EXPECT_TRUE(HandleVisible(i));
}

TEST_F(DragTest, AfterAReleaseOnTheEmptyFormTheHandlesRemainHidden) {
  Place("Button", 10, 10);
  Press(300, 300);
  gestures.MouseUp();
  EXPECT_FALSE(HandleVisible(0));
  EXPECT_EQ(ports.Log.Count("focus"), 1U) << "only the gesture took the focus";
}

TEST_F(DragTest, EveryOutlineIsErasedInTheEnd) {
  const ControlRef button = Place("Button", 10, 10);
  PressOn(button);
  MoveTo(30, 40);
  MoveTo(80, 90);
  gestures.MouseUp();
  DragHandle(2, 200, 5);
  std::vector<std::string> drawn;
  for (const std::string& entry : Log()) {
    if (entry.rfind("band", 0) != 0) continue;
    if (!drawn.empty() && drawn.back() == entry) {
      drawn.pop_back();
    } else {
      drawn.push_back(entry);
    }
  }
  EXPECT_TRUE(drawn.empty());
}

TEST_F(DragTest, AMoveOutsideAGestureDoesNothing) {
  Place("Button", 10, 10);
  ports.Log.Clear();
  MoveTo(100, 100);
  EXPECT_TRUE(Log().empty());
}

TEST_F(DragTest, AHandlePressNeedsDesignModeAndALiveControl) {
  gestures.HandleMouseDown(0, kLeftButton);
  EXPECT_EQ(gestures.Mode(), DragMode::None);
  const ControlRef button = Place("Button", 10, 10);
  form.m_bDesignMode = false;
  gestures.HandleMouseDown(0, kLeftButton);
  EXPECT_EQ(gestures.Mode(), DragMode::None);
  form.m_bDesignMode = true;
  form.Unload(button);
  gestures.HandleMouseDown(0, kLeftButton);
  EXPECT_EQ(gestures.Mode(), DragMode::None);
  EXPECT_FALSE(ports.Gestures.Captured);
}

TEST_F(DragTest, HandlesAskedForWithoutAControlComeUpAtTheirOldPlaces) {
  Place("Button", 10, 20);
  const float left = form.Element(Kind::Handle, 0)->Left;
  gestures.DragEnd();
  user.Selection().ShowHandles(false);
  form.ControlSel->Left = Twips(200);
  user.Selection().ShowHandles(true);
  EXPECT_TRUE(HandleVisible(0));
  EXPECT_EQ(form.Element(Kind::Handle, 0)->Left, left);
}

TEST_F(DragTest, AGestureGivenUpLeavesTheControlAndFreesTheMouse) {
  const ControlRef button = Place("Button", 10, 20);
  PressOn(button);
  MoveTo(200, 200);
  gestures.DragEnd();
  EXPECT_EQ(button->Left, Twips(10));
  EXPECT_FALSE(ports.Gestures.Captured);
  EXPECT_FALSE(ports.Gestures.Confined);
  EXPECT_EQ(gestures.Mode(), DragMode::None);
}

TEST_F(DragTest, ASecondPressEndsTheGestureBeforeItBeginsAnother) {
  const ControlRef button = Place("Button", 10, 20);
  PressOn(button);
  MoveTo(51, 61);
  PressOn(button, 5, 5, kRightButton);
  EXPECT_EQ(button->Left, Twips(50)) << "the first gesture ended where the mouse had been";
  EXPECT_EQ(gestures.Mode(), DragMode::None);
  EXPECT_FALSE(ports.Gestures.Captured);
}

TEST_F(DragTest, APressOnAHandleWithoutAMoveKeepsTheSize) {
  const ControlRef image = Place("Image", 100, 100);
  for (int handle = 0; handle < 8; ++handle) {
    const ControlRef grip = form.Element(Kind::Handle, handle);
    Point(static_cast<int>(grip->Left) / kTwipsPerPixel + 1,
          static_cast<int>(grip->Top) / kTwipsPerPixel + 1);
    gestures.HandleMouseDown(handle, kLeftButton);
    gestures.MouseMove();
    gestures.MouseUp();
    EXPECT_EQ(image->Left, Twips(100)) << handle;
    EXPECT_EQ(image->Top, Twips(100)) << handle;
    EXPECT_EQ(image->Width, Twips(105)) << handle;
    EXPECT_EQ(image->Height, Twips(105)) << handle;
  }
}

TEST_F(DragTest, EscInADragKeepsTheObjectAndTheSelectionWithItsHandles) {
  const ControlRef button = Place("Button", 10, 20);
  PressOn(button);
  MoveTo(200, 200);
  gestures.Escape();
  EXPECT_EQ(gestures.Mode(), DragMode::None);
  EXPECT_FALSE(ports.Gestures.Captured);
  EXPECT_EQ(button->Left, Twips(10));
  EXPECT_EQ(form.ControlSel, button);
  // The handles serve the object on.
  DragHandle(4, 120, 90);
  EXPECT_EQ(button->Width, Twips(110));
}

}  // namespace
}  // namespace tarnwick
