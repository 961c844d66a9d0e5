// Edit commands of a design window: clipboard, deletion, lock, z-order, grid.
#include "designer/hit_test.h"
#include "designer/tool_box.h"
#include "surface_fixture.h"

namespace tarnwick {
namespace {

using ObjectCommandsTest = SurfaceTest;
using Entries = std::vector<std::string>;

constexpr char kUnblock[] = "show Need to Unblock controls before copy/cut/paste";

TEST_F(ObjectCommandsTest, DeletingFollowsThisOrderAndAsksNothing) {
  Place("Button", 10, 10);
  ports.Log.Clear();
  commands.CutObject(keys::kDelete);
  EXPECT_EQ(Log(), (Entries{"head - Form1Btn1", "paint", "commands", "selection",
                            "properties Form Form1"}));
  EXPECT_EQ(form.UBound(Kind::Button), 0);
  EXPECT_EQ(form.NameObjet, "Form");
  EXPECT_EQ(form.ControlSel, nullptr);
  EXPECT_EQ(form.IndexObjet, 0);
  EXPECT_FALSE(HandleVisible(0));
}

TEST_F(ObjectCommandsTest, AKeyOtherThanDeleteLeavesTheObject) {
  Place("Button", 10, 10);
  EXPECT_FALSE(user.Keys().KeyDown(keys::kX, 0));
  EXPECT_EQ(form.UBound(Kind::Button), 1);
}

TEST_F(ObjectCommandsTest, CtrlXDeletesAndAFollowingPasteTakesOnlyWhatWasCopiedBefore) {
  const ControlRef kept = Place("Label", 10, 10);
  kept->Caption = "Kept";
  commands.CopyObject(keys::kC, kCtrlBit);
  Place("Button", 100, 100);
  commands.DeletObject(keys::kX, kCtrlBit);
  EXPECT_EQ(form.UBound(Kind::Button), 0);
  commands.PasteObject(keys::kV, kCtrlBit);
  EXPECT_EQ(form.UBound(Kind::Button), 0);
  ASSERT_EQ(form.UBound(Kind::Label), 2);
  EXPECT_EQ(form.ControlSel->Caption, "Kept");
}

TEST_F(ObjectCommandsTest, WithNothingCopiedAPasteMakesNothing) {
  Place("Button", 10, 10);
  commands.DeletObject(keys::kX, kCtrlBit);
  commands.PasteObject(keys::kV, kCtrlBit);
  EXPECT_EQ(form.UBound(Kind::Button), 0);
}

TEST_F(ObjectCommandsTest, DeleteWithTheFormSelectedLosesNothing) {
  Place("Button", 10, 10);
  Press(300, 300);
  gestures.MouseUp();
  commands.CutObject(keys::kDelete);
  EXPECT_EQ(form.UBound(Kind::Button), 1);
  EXPECT_EQ(form.NameObjet, "Form");
}

TEST_F(ObjectCommandsTest, DeletingATransparentFrameGivesItsToolBack) {
  Place("TransparentFrame", 10, 10);
  ports.Log.Clear();
  commands.CutObject(keys::kDelete);
  EXPECT_TRUE(ToolFits(kTransparentFrameTool, &form));
  EXPECT_NE(ports.Log.Find("commands"), -1);
}

TEST_F(ObjectCommandsTest, WithASecondTransparentFrameTheToolStaysOff) {
  Place("TransparentFrame", 10, 10);
  form.Load(Kind::TransparentFrame)->Visible = true;  // as a file can bring
  ports.Log.Clear();
  commands.CutObject(keys::kDelete);
  EXPECT_FALSE(ToolFits(kTransparentFrameTool, &form));
}

TEST_F(ObjectCommandsTest, OnABlockedFormTheClipboardKeysShowTheMessage) {
  const ControlRef button = Place("Button", 10, 10);
  commands.CopyObject(keys::kC, kCtrlBit);
  commands.ToggleLock();
  for (const int key : {keys::kX, keys::kC, keys::kV}) {
    ports.Log.Clear();
    EXPECT_TRUE(user.Keys().KeyDown(key, kCtrlBit));
    EXPECT_EQ(Log(), Entries{kUnblock}) << key;
  }
  EXPECT_EQ(ports.Messages.LastTitle, "Tarnwick");
  EXPECT_EQ(form.UBound(Kind::Button), 1);
}

TEST_F(ObjectCommandsTest, CtrlCOnABlockedFormLeavesTheClipboardAsItWas) {
  Place("Button", 10, 10);
  commands.CopyObject(keys::kC, kCtrlBit);
  const ControlRef label = Place("Label", 10, 100);
  commands.ToggleLock();
  Click(label);
  commands.CopyObject(keys::kC, kCtrlBit);
  EXPECT_EQ(Log().back(), kUnblock);
  commands.ToggleLock();
  commands.PasteObject(keys::kV, kCtrlBit);
  EXPECT_EQ(form.UBound(Kind::Label), 1);
  EXPECT_EQ(form.UBound(Kind::Button), 2);
}

TEST_F(ObjectCommandsTest, OtherShiftStatesAreNoClipboardKeys) {
  Place("Button", 10, 10);
  commands.ToggleLock();
  ports.Log.Clear();
  EXPECT_FALSE(user.Keys().KeyDown(keys::kC, kCtrlBit | kShiftBit));
  EXPECT_FALSE(user.Keys().KeyDown(keys::kV, 0));
  EXPECT_FALSE(user.Keys().KeyDown(keys::kX, kCtrlBit | kAltBit));
  EXPECT_TRUE(Log().empty());
}

TEST_F(ObjectCommandsTest, LockEndsTheDragHidesTheHandlesAndTells) {
  const ControlRef button = Place("Button", 10, 10);
  ports.Log.Clear();
  commands.ToggleLock();
  EXPECT_FALSE(form.m_bDesignMode);
  EXPECT_FALSE(HandleVisible(0));
  EXPECT_EQ(Log().back(), "commands");
  EXPECT_EQ(form.ControlSel, button) << "what is selected stays so";
  commands.ToggleLock();
  EXPECT_TRUE(form.m_bDesignMode);
}

TEST_F(ObjectCommandsTest, ZOrderMovesTheSelectionInPaintingOnly) {
  const ControlRef a = Place("Button", 10, 10);
  const ControlRef b = Place("Button", 200, 10);
  const std::vector<ControlRef> collection = form.Controls();
  Click(a);
  commands.BringToFront();
  EXPECT_EQ(PaintOrder(form), (std::vector<ControlRef>{b, a}));
  commands.SendToBack();
  EXPECT_EQ(PaintOrder(form), (std::vector<ControlRef>{a, b}));
  EXPECT_EQ(form.Controls(), collection);
}

TEST_F(ObjectCommandsTest, LabelsAndImagesStayUnderAllOtherControls) {
  const ControlRef button = Place("Button", 10, 10);
  const ControlRef label = Place("Label", 200, 10);
  commands.BringToFront();
  EXPECT_EQ(PaintOrder(form), (std::vector<ControlRef>{label, button}));
}

TEST_F(ObjectCommandsTest, ZOrderWithTheFormSelectedDoesNothing) {
  Place("Button", 10, 10);
  user.SelectForm();
  ports.Log.Clear();
  commands.BringToFront();
  commands.SendToBack();
  EXPECT_TRUE(Log().empty());
}

TEST_F(ObjectCommandsTest, AlignToGridRoundsExactHalfDown) {
  const ControlRef a = Place("Button", 15, 16);
  const ControlRef b = Place("Label", 114, 230);
  commands.aligngrid();
  EXPECT_EQ(a->Left, Twips(10));
  EXPECT_EQ(a->Top, Twips(20));
  EXPECT_EQ(b->Left, Twips(110));
  EXPECT_EQ(b->Top, Twips(230));
  EXPECT_EQ(a->Width, Twips(75)) << "sizes stay";
}

TEST_F(ObjectCommandsTest, AlignToGridWritesTheWholePlaceOfATransparentFrameToItsRecord) {
  const ControlRef frame = Place("TransparentFrame", 13, 28);
  frame->Width = Twips(123);
  frame->Height = Twips(77);
  commands.aligngrid();
  EXPECT_EQ(record.TfLeft, 10);
  EXPECT_EQ(record.TfTop, 30);
  EXPECT_EQ(record.TfWidth, 123);
  EXPECT_EQ(record.TfHeight, 77);
}

TEST_F(ObjectCommandsTest, AlignToGridYieldsAtEachControlAndEndsUpToDate) {
  const ControlRef frame = Place("TransparentFrame", 13, 28);
  Place("Button", 203, 11);
  const ControlRef menu = form.Load(Kind::MenuItem);
  menu->Visible = true;
  menu->Left = Twips(13);
  ports.Screen.Yields = 0;
  commands.aligngrid();
  EXPECT_EQ(ports.Screen.Yields, static_cast<int>(form.Controls().size()) - 1);
  EXPECT_EQ(record.TfLeft, 10);
  EXPECT_EQ(record.TfTop, 30);
  EXPECT_EQ(frame->Left, Twips(10));
  EXPECT_EQ(menu->Left, Twips(13));
  EXPECT_EQ(form.Element(Kind::Handle, 0)->Left, Twips(200) - 52 + 8);
  EXPECT_EQ(Log().back(), "properties Button1 Form1Btn1");
}

TEST_F(ObjectCommandsTest, CtrlCOnATransparentFrameKeepsTheObjectThatWasCopied) {
  Place("Button", 10, 10);
  user.Keys().KeyDown(keys::kC, kCtrlBit);
  Place("TransparentFrame", 200, 100);
  user.Keys().KeyDown(keys::kC, kCtrlBit);
  user.SelectForm();
  user.Keys().KeyDown(keys::kV, kCtrlBit);
  EXPECT_EQ(form.NameObjet, "Button2");
}

TEST_F(ObjectCommandsTest, APasteWithoutItsSourceSaysThatTheObjectIsNew) {
  Place("ListBox", 10, 10);
  commands.CopyObject(keys::kC, kCtrlBit);
  commands.DeletObject(keys::kX, kCtrlBit);
  ports.Log.Clear();
  commands.PasteObject(keys::kV, kCtrlBit);
  EXPECT_NE(ports.Log.Find("status The copied object is gone: Form1List1 is a new one"), -1);
  ASSERT_NE(form.ControlSel, nullptr);
  EXPECT_EQ(form.ControlSel->Items, Entries{"Form1List1"});
}

}  // namespace
}  // namespace tarnwick
