// Keys, clipboard, deletion, lock, z-order and grid.
#include "designer/hit_test.h"
#include "surface_fixture.h"

namespace tarnwick {
namespace {

using FormUserCommands = SurfaceTest;
using Entries = std::vector<std::string>;

constexpr char kUnblock[] = "show Need to Unblock controls before copy/cut/paste";

TEST_F(FormUserCommands, DeletingFollowsThisOrderAndAsksNothing) {
  Place("Button", 10, 10);
  ports.Log.Clear();
  user.CutObject(keys::kDelete);
  EXPECT_EQ(Log(), (Entries{"head - Form1Btn1", "paint", "copy-paste on", "selection",
                            "properties Form Form1"}));
  EXPECT_EQ(form.UBound(Kind::Button), 0);
  EXPECT_EQ(form.NameObjet, "Form");
  EXPECT_EQ(form.ControlSel, nullptr);
  EXPECT_EQ(form.IndexObjet, 0);
  EXPECT_FALSE(HandleVisible(0));
}

TEST_F(FormUserCommands, CutObjectListensToTheDeleteKeyAlone) {
  Place("Button", 10, 10);
  user.CutObject(keys::kX);
  EXPECT_EQ(form.UBound(Kind::Button), 1);
}

TEST_F(FormUserCommands, CtrlXDeletesAndAFollowingPasteTakesOnlyWhatWasCopiedBefore) {
  const ControlRef kept = Place("Label", 10, 10);
  kept->Caption = "Kept";
  user.CopyObject(keys::kC, kCtrlBit);
  Place("Button", 100, 100);
  user.DeletObject(keys::kX, kCtrlBit);
  EXPECT_EQ(form.UBound(Kind::Button), 0);
  user.PasteObject(keys::kV, kCtrlBit);
  EXPECT_EQ(form.UBound(Kind::Button), 0);
  ASSERT_EQ(form.UBound(Kind::Label), 2);
  EXPECT_EQ(form.ControlSel->Caption, "Kept");
}

TEST_F(FormUserCommands, WithNothingCopiedAPasteMakesNothing) {
  Place("Button", 10, 10);
  user.DeletObject(keys::kX, kCtrlBit);
  user.PasteObject(keys::kV, kCtrlBit);
  EXPECT_EQ(form.UBound(Kind::Button), 0);
}

TEST_F(FormUserCommands, DeleteWithTheFormSelectedLosesNothing) {
  Place("Button", 10, 10);
  Press(300, 300);
  user.MouseUp();
  user.CutObject(keys::kDelete);
  EXPECT_EQ(form.UBound(Kind::Button), 1);
  EXPECT_EQ(form.NameObjet, "Form");
}

TEST_F(FormUserCommands, DeletingATransparentFrameGivesItsToolBack) {
  Place("TransparentFrame", 10, 10);
  ports.Log.Clear();
  user.CutObject(keys::kDelete);
  EXPECT_NE(ports.Log.Find("tool 15 on"), -1);
  EXPECT_NE(ports.Log.Find("copy-paste on"), -1);
}

TEST_F(FormUserCommands, WithASecondTransparentFrameTheToolStaysOff) {
  Place("TransparentFrame", 10, 10);
  form.Load(Kind::TransparentFrame)->Visible = true;  // as a file can bring
  ports.Log.Clear();
  user.CutObject(keys::kDelete);
  EXPECT_NE(ports.Log.Find("tool 15 off"), -1);
  EXPECT_EQ(ports.Log.Find("tool 15 on"), -1);
}

TEST_F(FormUserCommands, OnABlockedFormTheClipboardKeysShowTheMessage) {
  const ControlRef button = Place("Button", 10, 10);
  user.CopyObject(keys::kC, kCtrlBit);
  user.ToggleLock();
  for (const int key : {keys::kX, keys::kC, keys::kV}) {
    ports.Log.Clear();
    EXPECT_TRUE(user.KeyDown(key, kCtrlBit));
    EXPECT_EQ(Log(), Entries{kUnblock}) << key;
  }
  EXPECT_EQ(ports.Messages.LastTitle, "Tarnwick");
  EXPECT_EQ(form.UBound(Kind::Button), 1);
}

TEST_F(FormUserCommands, CtrlCOnABlockedFormLeavesTheClipboardAsItWas) {
  Place("Button", 10, 10);
  user.CopyObject(keys::kC, kCtrlBit);
  const ControlRef label = Place("Label", 10, 100);
  user.ToggleLock();
  Click(label);
  user.CopyObject(keys::kC, kCtrlBit);
  EXPECT_EQ(Log().back(), kUnblock);
  user.ToggleLock();
  user.PasteObject(keys::kV, kCtrlBit);
  EXPECT_EQ(form.UBound(Kind::Label), 1);
  EXPECT_EQ(form.UBound(Kind::Button), 2);
}

TEST_F(FormUserCommands, OtherShiftStatesAreNoClipboardKeys) {
  Place("Button", 10, 10);
  user.ToggleLock();
  ports.Log.Clear();
  user.CopyObject(keys::kC, kCtrlBit | kShiftBit);
  user.PasteObject(keys::kV, 0);
  user.DeletObject(keys::kC, kCtrlBit);
  EXPECT_TRUE(Log().empty());
}

TEST_F(FormUserCommands, TheDeleteKeyDeletesUnlessTheFormIsBlocked) {
  const ControlRef button = Place("Button", 10, 10);
  user.ToggleLock();
  EXPECT_TRUE(user.KeyDown(keys::kDelete, 0));
  EXPECT_EQ(Log().back(), kUnblock);
  EXPECT_EQ(form.UBound(Kind::Button), 1);
  user.ToggleLock();
  Click(button);
  EXPECT_TRUE(user.KeyDown(keys::kDelete, 0));
  EXPECT_EQ(form.UBound(Kind::Button), 0);
}

TEST_F(FormUserCommands, F5CompilesAndF8DoesNothing) {
  EXPECT_TRUE(user.KeyDown(keys::kF5, 0));
  EXPECT_EQ(Log(), Entries{"compile"});
  ports.Log.Clear();
  EXPECT_FALSE(user.KeyDown(119, 0));
  EXPECT_EQ(ports.Log.Count("compile"), 0U);
  EXPECT_FALSE(user.KeyDown(65, 0));
}

TEST_F(FormUserCommands, F7AndEnterOpenTheCode) {
  Place("Button", 10, 10);
  user.KeyDown(keys::kF7, 0);
  user.KeyDown(keys::kReturn, 0);
  EXPECT_EQ(ports.Log.Count("code"), 2U);
}

TEST_F(FormUserCommands, ArrowsMoveToTheNextGridLine) {
  const ControlRef button = Place("Button", 13, 20);
  user.KeyDown(keys::kRight, 0);
  EXPECT_EQ(button->Left, Twips(20));
  user.KeyDown(keys::kRight, 0);
  EXPECT_EQ(button->Left, Twips(30));
  user.KeyDown(keys::kLeft, 0);
  EXPECT_EQ(button->Left, Twips(20));
  user.KeyDown(keys::kUp, 0);
  EXPECT_EQ(button->Top, Twips(10));
  user.KeyDown(keys::kDown, 0);
  EXPECT_EQ(button->Top, Twips(20));
  EXPECT_EQ(button->Width, Twips(75));
}

TEST_F(FormUserCommands, CtrlArrowsMoveByOnePixelAndHandlesAndSheetFollow) {
  const ControlRef button = Place("Button", 13, 20);
  const float handle = form.Element(Kind::Handle, 0)->Left;
  ports.Log.Clear();
  user.KeyDown(keys::kLeft, kCtrlBit);
  EXPECT_EQ(button->Left, Twips(12));
  EXPECT_EQ(form.Element(Kind::Handle, 0)->Left, handle - 15);
  EXPECT_EQ(ports.Log.Count("sync Button1"), 4U);
  EXPECT_EQ(Log().back(), "properties Button1 Form1Btn1");
}

TEST_F(FormUserCommands, ShiftArrowsSizeByOnePixelWhereTheKindTakesIt) {
  const ControlRef button = Place("Button", 10, 20);
  user.KeyDown(keys::kRight, kShiftBit);
  user.KeyDown(keys::kUp, kShiftBit);
  EXPECT_EQ(button->Width, Twips(76));
  EXPECT_EQ(button->Height, Twips(24));
  EXPECT_EQ(button->Left, Twips(10));
  const ControlRef text = Place("TextBox", 10, 100);
  user.KeyDown(keys::kDown, kShiftBit);
  user.KeyDown(keys::kRight, kShiftBit);
  EXPECT_EQ(text->Height, Twips(21));
  EXPECT_EQ(text->Width, Twips(122));
  const ControlRef time = Place("Time", 200, 200);
  user.KeyDown(keys::kRight, kShiftBit);
  EXPECT_EQ(time->Width, Twips(28));
}

TEST_F(FormUserCommands, ShiftArrowsNeverMakeASizeNegative) {
  const ControlRef label = Place("Label", 10, 20);
  for (int i = 0; i < 100; ++i) user.KeyDown(keys::kUp, kShiftBit);
  EXPECT_EQ(label->Height, 0);
}

TEST_F(FormUserCommands, ArrowsDoNothingOnABlockedFormOrWithTheFormSelected) {
  const ControlRef button = Place("Button", 13, 20);
  user.ToggleLock();
  Click(button);
  user.KeyDown(keys::kRight, 0);
  EXPECT_EQ(button->Left, Twips(13));
  user.ToggleLock();
  user.SelectForm();
  user.KeyDown(keys::kRight, 0);
  EXPECT_EQ(button->Left, Twips(13));
}

TEST_F(FormUserCommands, AfterALockIsLiftedAnArrowBringsTheHandlesBackOntoTheSelection) {
  const ControlRef button = Place("Button", 10, 20);
  user.ToggleLock();
  user.ToggleLock();
  user.KeyDown(keys::kRight, 0);
  EXPECT_TRUE(HandleVisible(0));
  EXPECT_EQ(form.Element(Kind::Handle, 0)->Left, button->Left - 52 + 8);
}

TEST_F(FormUserCommands, TabWalksTheObjectsRoundAndRound) {
  const ControlRef a = Place("Button", 10, 10);
  const ControlRef b = Place("Label", 10, 100);
  const ControlRef c = Place("Time", 10, 200);
  form.Load(Kind::MenuItem)->Visible = true;
  user.SelectForm();
  for (const ControlRef& expected : {a, b, c, a}) {
    user.KeyDown(keys::kTab, 0);
    EXPECT_EQ(form.ControlSel, expected);
  }
  EXPECT_TRUE(HandleVisible(0));
  user.KeyDown(keys::kTab, kShiftBit);
  EXPECT_EQ(form.ControlSel, c);
  user.KeyDown(keys::kTab, kShiftBit);
  EXPECT_EQ(form.ControlSel, b);
}

TEST_F(FormUserCommands, KeysWaitForTheEndOfAGesture) {
  const ControlRef button = Place("Button", 10, 10);
  PressOn(button);
  user.KeyDown(keys::kDelete, 0);
  user.KeyDown(keys::kRight, 0);
  user.MouseUp();
  EXPECT_EQ(form.UBound(Kind::Button), 1);
  EXPECT_EQ(button->Left, Twips(10));
}

TEST_F(FormUserCommands, LockEndsTheDragHidesTheHandlesAndTells) {
  const ControlRef button = Place("Button", 10, 10);
  ports.Log.Clear();
  user.ToggleLock();
  EXPECT_FALSE(form.m_bDesignMode);
  EXPECT_FALSE(HandleVisible(0));
  EXPECT_EQ(Log().back(), "lock");
  EXPECT_EQ(form.ControlSel, button) << "what is selected stays so";
  user.ToggleLock();
  EXPECT_TRUE(form.m_bDesignMode);
}

TEST_F(FormUserCommands, ZOrderMovesTheSelectionInPaintingOnly) {
  const ControlRef a = Place("Button", 10, 10);
  const ControlRef b = Place("Button", 200, 10);
  const std::vector<ControlRef> collection = form.Controls();
  Click(a);
  user.BringToFront();
  EXPECT_EQ(PaintOrder(form), (std::vector<ControlRef>{b, a}));
  user.SendToBack();
  EXPECT_EQ(PaintOrder(form), (std::vector<ControlRef>{a, b}));
  EXPECT_EQ(form.Controls(), collection);
}

TEST_F(FormUserCommands, LabelsAndImagesStayUnderAllOtherControls) {
  const ControlRef button = Place("Button", 10, 10);
  const ControlRef label = Place("Label", 200, 10);
  user.BringToFront();
  EXPECT_EQ(PaintOrder(form), (std::vector<ControlRef>{label, button}));
}

TEST_F(FormUserCommands, ZOrderWithTheFormSelectedDoesNothing) {
  Place("Button", 10, 10);
  user.SelectForm();
  ports.Log.Clear();
  user.BringToFront();
  user.SendToBack();
  EXPECT_TRUE(Log().empty());
}

TEST_F(FormUserCommands, AlignToGridRoundsExactHalfDown) {
  const ControlRef a = Place("Button", 15, 16);
  const ControlRef b = Place("Label", 114, 230);
  user.aligngrid();
  EXPECT_EQ(a->Left, Twips(10));
  EXPECT_EQ(a->Top, Twips(20));
  EXPECT_EQ(b->Left, Twips(110));
  EXPECT_EQ(b->Top, Twips(230));
  EXPECT_EQ(a->Width, Twips(75)) << "sizes stay";
}

TEST_F(FormUserCommands, AlignToGridYieldsAtEachControlAndEndsUpToDate) {
  const ControlRef frame = Place("TransparentFrame", 13, 28);
  Place("Button", 203, 11);
  const ControlRef menu = form.Load(Kind::MenuItem);
  menu->Visible = true;
  menu->Left = Twips(13);
  ports.Screen.Yields = 0;
  user.aligngrid();
  EXPECT_EQ(ports.Screen.Yields, static_cast<int>(form.Controls().size()) - 1);
  EXPECT_EQ(record.TfLeft, 10);
  EXPECT_EQ(record.TfTop, 30);
  EXPECT_EQ(frame->Left, Twips(10));
  EXPECT_EQ(menu->Left, Twips(13));
  EXPECT_EQ(form.Element(Kind::Handle, 0)->Left, Twips(200) - 52 + 8);
  EXPECT_EQ(Log().back(), "properties Button1 Form1Btn1");
}

TEST_F(FormUserCommands, SelectingByAnotherWindowIsAsAPress) {
  const ControlRef frame = Place("TransparentFrame", 10, 10);
  const ControlRef button = Place("Button", 200, 10);
  ports.Log.Clear();
  user.SelectObject(frame);
  EXPECT_EQ(form.ControlSel, frame);
  EXPECT_EQ(form.NameObjet, "TransparentFrame");
  EXPECT_EQ(form.Element(Kind::Handle, 0)->Left, frame->Left - 52 + 8);
  EXPECT_EQ(Log(),
            (Entries{"copy-paste off", "selection", "properties TransparentFrame Form1TrnspFrm"}));
  user.DeletObject(keys::kX, kCtrlBit);
  user.SelectObject(frame);
  EXPECT_EQ(form.ControlSel, nullptr) << "a deleted object cannot be selected";
}

}  // namespace
}  // namespace tarnwick
