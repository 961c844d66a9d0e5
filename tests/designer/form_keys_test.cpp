// The keyboard of a design window.
#include "surface_fixture.h"

namespace tarnwick {
namespace {

using FormKeysTest = SurfaceTest;
using Entries = std::vector<std::string>;

constexpr char kUnblock[] = "show Need to Unblock controls before copy/cut/paste";

TEST_F(FormKeysTest, TheDeleteKeyDeletesUnlessTheFormIsBlocked) {
  const ControlRef button = Place("Button", 10, 10);
  commands.ToggleLock();
  EXPECT_TRUE(user.Keys().KeyDown(keys::kDelete, 0));
  EXPECT_EQ(Log().back(), kUnblock);
  EXPECT_EQ(form.UBound(Kind::Button), 1);
  commands.ToggleLock();
  Click(button);
  EXPECT_TRUE(user.Keys().KeyDown(keys::kDelete, 0));
  EXPECT_EQ(form.UBound(Kind::Button), 0);
}

TEST_F(FormKeysTest, AKeyWithAMeaningIsTakenAndNoOther) {
  Place("Button", 10, 10);
  for (const int key :
       {keys::kLeft, keys::kUp, keys::kRight, keys::kDown, keys::kTab, keys::kReturn, keys::kF7}) {
    EXPECT_TRUE(user.Keys().KeyDown(key, 0)) << key;
  }
  for (const int key : {keys::kC, keys::kV, keys::kX}) {
    EXPECT_FALSE(user.Keys().KeyDown(key, 0)) << key;
    EXPECT_TRUE(user.Keys().KeyDown(key, kCtrlBit)) << key;
  }
}

TEST_F(FormKeysTest, F5CompilesAndF8DoesNothing) {
  EXPECT_TRUE(user.Keys().KeyDown(keys::kF5, 0));
  EXPECT_EQ(Log(), Entries{"compile"});
  ports.Log.Clear();
  EXPECT_FALSE(user.Keys().KeyDown(119, 0));
  EXPECT_EQ(ports.Log.Count("compile"), 0U);
  EXPECT_FALSE(user.Keys().KeyDown(65, 0));
}

TEST_F(FormKeysTest, F7AndEnterOpenTheCode) {
  Place("Button", 10, 10);
  user.Keys().KeyDown(keys::kF7, 0);
  user.Keys().KeyDown(keys::kReturn, 0);
  EXPECT_EQ(ports.Log.Count("code"), 2U);
}

TEST_F(FormKeysTest, EnterPlacesTheArmedObjectAndLeavesNoDragBehind) {
  form.Objeto = "Button";
  user.Keys().KeyDown(keys::kReturn, 0);
  ASSERT_NE(form.ControlSel, nullptr);
  EXPECT_EQ(form.NameObjet, "Button1");
  EXPECT_EQ(gestures.Mode(), DragMode::None);
  EXPECT_FALSE(ports.Gestures.Confined);
  EXPECT_TRUE(HandleVisible(0));
  EXPECT_EQ(history.UndoName(), "Place Form1Btn1");
}

TEST_F(FormKeysTest, ArrowsMoveToTheNextGridLine) {
  const ControlRef button = Place("Button", 13, 20);
  user.Keys().KeyDown(keys::kRight, 0);
  EXPECT_EQ(button->Left, Twips(20));
  user.Keys().KeyDown(keys::kRight, 0);
  EXPECT_EQ(button->Left, Twips(30));
  user.Keys().KeyDown(keys::kLeft, 0);
  EXPECT_EQ(button->Left, Twips(20));
  user.Keys().KeyDown(keys::kUp, 0);
  EXPECT_EQ(button->Top, Twips(10));
  user.Keys().KeyDown(keys::kDown, 0);
  EXPECT_EQ(button->Top, Twips(20));
  EXPECT_EQ(button->Width, Twips(75));
}

TEST_F(FormKeysTest, CtrlArrowsMoveByOnePixelAndHandlesAndSheetFollow) {
  const ControlRef button = Place("Button", 13, 20);
  const float handle = form.Element(Kind::Handle, 0)->Left;
  ports.Log.Clear();
  user.Keys().KeyDown(keys::kLeft, kCtrlBit);
  EXPECT_EQ(button->Left, Twips(12));
  EXPECT_EQ(form.Element(Kind::Handle, 0)->Left, handle - 15);
  EXPECT_EQ(ports.Log.Count("sync Button1"), 4U);
  EXPECT_EQ(Log().back(), "properties Button1 Form1Btn1");
}

TEST_F(FormKeysTest, ShiftArrowsSizeByOnePixelWhereTheKindTakesIt) {
  const ControlRef button = Place("Button", 10, 20);
  user.Keys().KeyDown(keys::kRight, kShiftBit);
  user.Keys().KeyDown(keys::kUp, kShiftBit);
  EXPECT_EQ(button->Width, Twips(76));
  EXPECT_EQ(button->Height, Twips(24));
  EXPECT_EQ(button->Left, Twips(10));
  const ControlRef text = Place("TextBox", 10, 100);
  user.Keys().KeyDown(keys::kDown, kShiftBit);
  user.Keys().KeyDown(keys::kRight, kShiftBit);
  EXPECT_EQ(text->Height, Twips(21));
  EXPECT_EQ(text->Width, Twips(122));
  const ControlRef time = Place("Time", 200, 200);
  user.Keys().KeyDown(keys::kRight, kShiftBit);
  EXPECT_EQ(time->Width, Twips(28));
}

TEST_F(FormKeysTest, ShiftArrowsNeverMakeASizeNegative) {
  const ControlRef label = Place("Label", 10, 20);
  for (int i = 0; i < 100; ++i) user.Keys().KeyDown(keys::kUp, kShiftBit);
  EXPECT_EQ(label->Height, 0);
}

TEST_F(FormKeysTest, ArrowsDoNothingOnABlockedFormOrWithTheFormSelected) {
  const ControlRef button = Place("Button", 13, 20);
  commands.ToggleLock();
  Click(button);
  user.Keys().KeyDown(keys::kRight, 0);
  EXPECT_EQ(button->Left, Twips(13));
  commands.ToggleLock();
  user.SelectForm();
  user.Keys().KeyDown(keys::kRight, 0);
  EXPECT_EQ(button->Left, Twips(13));
}

TEST_F(FormKeysTest, AfterALockIsLiftedAnArrowBringsTheHandlesBackOntoTheSelection) {
  const ControlRef button = Place("Button", 10, 20);
  commands.ToggleLock();
  commands.ToggleLock();
  user.Keys().KeyDown(keys::kRight, 0);
  EXPECT_TRUE(HandleVisible(0));
  EXPECT_EQ(form.Element(Kind::Handle, 0)->Left, button->Left - 52 + 8);
}

TEST_F(FormKeysTest, TabWalksTheObjectsRoundAndRound) {
  const ControlRef a = Place("Button", 10, 10);
  const ControlRef b = Place("Label", 10, 100);
  const ControlRef c = Place("Time", 10, 200);
  // A file can bring menu controls in front of the objects and behind them.
  form.Load(Kind::MenuItem)->Visible = true;
  form.Load(Kind::Menu)->Visible = true;
  user.SelectForm();
  for (const ControlRef& expected : {a, b, c, a}) {
    user.Keys().KeyDown(keys::kTab, 0);
    EXPECT_EQ(form.ControlSel, expected);
  }
  EXPECT_TRUE(HandleVisible(0));
  user.Keys().KeyDown(keys::kTab, kShiftBit);
  EXPECT_EQ(form.ControlSel, c);
  user.Keys().KeyDown(keys::kTab, kShiftBit);
  EXPECT_EQ(form.ControlSel, b);
}

TEST_F(FormKeysTest, KeysWaitForTheEndOfAGesture) {
  const ControlRef button = Place("Button", 10, 10);
  PressOn(button);
  user.Keys().KeyDown(keys::kDelete, 0);
  user.Keys().KeyDown(keys::kRight, 0);
  gestures.MouseUp();
  EXPECT_EQ(form.UBound(Kind::Button), 1);
  EXPECT_EQ(button->Left, Twips(10));
}

}  // namespace
}  // namespace tarnwick
