// Presses on a design window and its objects.
#include "designer/tool_box.h"
#include "surface_fixture.h"

namespace tarnwick {
namespace {

using FormGesturesTest = SurfaceTest;
using Entries = std::vector<std::string>;

TEST_F(FormGesturesTest, APressWithNoArmedToolSelectsTheFormAndHidesTheHandles) {
  Place("Button", 10, 10);
  ASSERT_TRUE(HandleVisible(0));
  Press(300, 300);
  EXPECT_EQ(form.NameObjet, "Form");
  EXPECT_EQ(form.ControlSel, nullptr);
  EXPECT_EQ(form.IndexObjet, 0);
  EXPECT_FALSE(HandleVisible(0));
  EXPECT_EQ(gestures.Mode(), DragMode::None);
}

TEST_F(FormGesturesTest, TheFirstPressPlacesAndTheSecondSelectsTheForm) {
  form.Objeto = "Button";
  Press(10, 10);
  gestures.MouseUp();
  EXPECT_EQ(form.NameObjet, "Button1");
  EXPECT_EQ(form.Objeto, "");
  Press(200, 200);
  gestures.MouseUp();
  EXPECT_EQ(form.NameObjet, "Form");
  EXPECT_EQ(form.UBound(Kind::Button), 1);
}

TEST_F(FormGesturesTest, TheFirstButtonHasItsNamesAndARenamedFormDoesNotChangeThem) {
  const ControlRef first = Place("Button", 10, 10);
  EXPECT_EQ(first->Tag, "Form1Btn1");
  EXPECT_EQ(form.NameObjet, "Button1");
  EXPECT_EQ(form.IndexObjet, 1);
  record.Name = "Main";
  const ControlRef second = Place("Button", 200, 200);
  EXPECT_EQ(first->Tag, "Form1Btn1");
  EXPECT_EQ(second->Tag, "MainBtn2");
}

TEST_F(FormGesturesTest, ThePressPointBecomesTheCornerWithoutSnapping) {
  const ControlRef button = Place("Button", 13, 27);
  EXPECT_EQ(button->Left, Twips(13));
  EXPECT_EQ(button->Top, Twips(27));
}

TEST_F(FormGesturesTest, ANewListShowsItsNameAsFirstRowAndANewLabelAsCaption) {
  EXPECT_EQ(Place("ListBox", 10, 10)->Items, Entries{"Form1List1"});
  EXPECT_EQ(Place("ComboBox", 10, 150)->Items, Entries{"Form1Combo1"});
  EXPECT_EQ(Place("Label", 10, 200)->Caption, "Form1Label1");
  EXPECT_EQ(Place("TextBox", 10, 250)->Text, "Form1Text1");
}

TEST_F(FormGesturesTest, NameObjetIsKindWordAndIndex) {
  const std::pair<const char*, const char*> words[] = {
      {"PopUpMenu", "PopupMenu1"},   {"WinSock", "WinSock1"},
      {"HtmlViewer", "HtmlViewer1"}, {"Image", "Image1"},
      {"FileStream", "FileStream1"}, {"TransparentFrame", "TransparentFrame"}};
  int y = 0;
  for (const auto& [kind, name] : words) {
    Place(kind, 600, y);
    EXPECT_EQ(form.NameObjet, name);
    y += 130;
  }
}

TEST_F(FormGesturesTest, ANewObjectIsAtOnceInAMoveDrag) {
  form.Objeto = "Button";
  Press(20, 30);
  EXPECT_EQ(gestures.Mode(), DragMode::Move);
  MoveTo(50, 70);
  gestures.MouseUp();
  EXPECT_EQ(form.ControlSel->Left, Twips(50));
  EXPECT_EQ(form.ControlSel->Top, Twips(70));
}

TEST_F(FormGesturesTest, AnEarlierControlUnderThePressIsDraggedAndThenTheSelection) {
  const ControlRef image = Place("Image", 10, 10);
  form.Objeto = "Button";
  PressOn(image, 20, 20);
  EXPECT_EQ(form.ControlSel, image);
  EXPECT_EQ(form.NameObjet, "Image1");
  EXPECT_EQ(form.IndexObjet, 1);
  MoveTo(40, 40);
  gestures.MouseUp();
  EXPECT_EQ(image->Left, Twips(20)) << "it followed the mouse";
  EXPECT_EQ(form.Element(Kind::Button, 1)->Left, Twips(30)) << "the new one stays";
}

TEST_F(FormGesturesTest, APressOnABlockedFormPlacesNothing) {
  form.m_bDesignMode = false;
  form.Objeto = "Button";
  Press(10, 10);
  EXPECT_EQ(form.UBound(Kind::Button), 0);
  EXPECT_EQ(form.Objeto, "Button");
  EXPECT_EQ(Log(), Entries{"clear panel"});
}

TEST_F(FormGesturesTest, TheRightButtonOnABlockedFormSelectsItAndOpensThePopUp) {
  const ControlRef button = Place("Button", 10, 10);
  commands.ToggleLock();
  Press(300, 300, kRightButton);
  EXPECT_EQ(form.NameObjet, "Form");
  EXPECT_EQ(ports.Log.Count("pop-up"), 1U);
  EXPECT_NE(form.Element(Kind::Button, 1), nullptr);
}

TEST_F(FormGesturesTest, TheRightButtonOnTheEmptyFormOpensThePopUpAfterTheRelease) {
  Press(300, 300, kRightButton);
  EXPECT_EQ(Log().back(), "pop-up");
  EXPECT_LT(ports.Log.Find("properties Form Form1"), ports.Log.Find("pop-up"));
}

TEST_F(FormGesturesTest, TheToolOfAFormPlacesNothingAndIsDisarmed) {
  Place("Button", 10, 10);
  form.Objeto = ToolOf(kFormTool)->Objeto;
  Press(200, 200);
  EXPECT_EQ(form.Objeto, "");
  EXPECT_EQ(form.NameObjet, "Form");
  EXPECT_EQ(form.UBound(Kind::Button), 1);
}

TEST_F(FormGesturesTest, PlacingATransparentFrameChangesTheCommandsAtOnce) {
  form.Objeto = "TransparentFrame";
  Press(10, 10);
  EXPECT_FALSE(ToolFits(kTransparentFrameTool, &form));
  EXPECT_NE(ports.Log.Find("commands"), -1) << "before the release";
  ports.Log.Clear();
  gestures.MouseUp();
  EXPECT_EQ(Log().front(), "commands");
}

TEST_F(FormGesturesTest, ASecondTransparentFrameCannotBeArmedWhileOneExists) {
  EXPECT_TRUE(ToolFits(kTransparentFrameTool, &form));
  Place("TransparentFrame", 10, 10);
  EXPECT_FALSE(ToolFits(kTransparentFrameTool, &form));
  commands.CutObject(keys::kDelete);
  EXPECT_TRUE(ToolFits(kTransparentFrameTool, &form));
}

TEST_F(FormGesturesTest, APressPlacesNothingWhereTheNumbersOfAKindAreUsedUp) {
  Place("Button", 10, 10);
  constexpr int kHighest = 32767;
  while (form.UBound(Kind::Label) < kHighest) form.Load(Kind::Label);
  form.Objeto = "Label";
  Press(300, 300);
  EXPECT_EQ(form.UBound(Kind::Label), kHighest);
  EXPECT_EQ(gestures.Mode(), DragMode::None);
  EXPECT_FALSE(HandleVisible(0));
  EXPECT_EQ(form.Objeto, "");
}

TEST_F(FormGesturesTest, PlacingAnObjectLetsTheToolBoxGoBackToTheArrow) {
  form.Objeto = "Button";
  Press(10, 10);
  EXPECT_EQ(ports.Log.Count("commands"), 1U);
  EXPECT_EQ(ArmedTool(&form), kArrowTool);
}

TEST_F(FormGesturesTest, PressingAnObjectSelectsItAndBeginsADrag) {
  const ControlRef button = Place("Button", 10, 10);
  Place("Label", 200, 10);
  ports.Log.Clear();
  PressOn(button);
  EXPECT_EQ(form.ControlSel, button);
  EXPECT_EQ(form.NameObjet, "Button1");
  EXPECT_EQ(form.IndexObjet, 1);
  EXPECT_EQ(gestures.Mode(), DragMode::Move);
  EXPECT_EQ(Log().front(), "commands");
}

TEST_F(FormGesturesTest, PressingATransparentFrameChangesTheCommands) {
  const ControlRef frame = Place("TransparentFrame", 10, 10);
  Press(300, 300);
  ports.Log.Clear();
  PressOn(frame);
  EXPECT_EQ(Log().front(), "commands");
  EXPECT_EQ(form.NameObjet, "TransparentFrame");
}

TEST_F(FormGesturesTest, OnABlockedFormAPressOnlySelects) {
  const ControlRef button = Place("Button", 10, 10);
  Press(300, 300);
  commands.ToggleLock();
  ports.Log.Clear();
  PressOn(button);
  EXPECT_EQ(Log(), (Entries{"commands", "selection"})) << "at the press, not at the release";
  EXPECT_EQ(form.ControlSel, button);
  EXPECT_EQ(gestures.Mode(), DragMode::None);
  EXPECT_FALSE(ports.Gestures.Captured);
  EXPECT_FALSE(HandleVisible(0));
}

TEST_F(FormGesturesTest, TheRightButtonSelectsEndsTheGestureAndOpensThePopUp) {
  const ControlRef button = Place("Button", 10, 10);
  Press(300, 300);
  ports.Log.Clear();
  PressOn(button, 1, 1, kRightButton);
  EXPECT_EQ(form.ControlSel, button);
  EXPECT_EQ(gestures.Mode(), DragMode::None);
  EXPECT_FALSE(ports.Gestures.Confined);
  EXPECT_TRUE(HandleVisible(0));
  EXPECT_EQ(Log().back(), "pop-up");
}

TEST_F(FormGesturesTest, APressOnAnObjectLeavesTheToolArmedAndSaysWhereToPress) {
  const ControlRef button = Place("Button", 10, 10);
  form.Objeto = "Label";
  ports.Log.Clear();
  Click(button);
  EXPECT_NE(ports.Log.Find("status Press on a free part of the form to place the new Label"), -1);
  EXPECT_EQ(form.Objeto, "Label");
  EXPECT_EQ(form.UBound(Kind::Label), 0);
}

TEST_F(FormGesturesTest, AnImageForwardsThePressWhileAToolIsArmed) {
  const ControlRef image = Place("Image", 100, 100);
  form.Objeto = "Label";
  PressOn(image, 30, 40);
  const ControlRef label = form.Element(Kind::Label, 1);
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->Left, Twips(130));
  EXPECT_EQ(label->Top, Twips(140));
  EXPECT_EQ(form.Objeto, "");
}

TEST_F(FormGesturesTest, TheArrowArmsNothingSoAnImageIsSelected) {
  const ControlRef image = Place("Image", 100, 100);
  form.Objeto = "Form";
  Click(image);
  EXPECT_EQ(form.ControlSel, image);
  EXPECT_EQ(form.Objeto, "Form");
}

TEST_F(FormGesturesTest, AFrameForwardsAllButTheToolsThatHoldItsWord) {
  const ControlRef frame = Place("Frame", 100, 100);
  ASSERT_NE(frame, nullptr);
  form.Objeto = "TransparentFrame";
  PressOn(frame, 5, 5);
  gestures.MouseUp();
  EXPECT_FALSE(form.HasObjects(Kind::TransparentFrame));
  EXPECT_EQ(form.ControlSel, frame);
  form.Objeto = "Button";
  PressOn(frame, 5, 5);
  gestures.MouseUp();
  EXPECT_TRUE(form.HasObjects(Kind::Button));
}

TEST_F(FormGesturesTest, WhileTheCodeEditorIsOpenNothingIsSelected) {
  const ControlRef button = Place("Button", 10, 10);
  Press(300, 300);
  gestures.MouseUp();
  host.EditorOpen = true;
  ports.Log.Clear();
  PressOn(button);
  EXPECT_EQ(form.ControlSel, nullptr);
  EXPECT_EQ(Log(), Entries{"raise editor"});
  form.Objeto = "Label";
  Press(200, 200);
  EXPECT_EQ(form.UBound(Kind::Label), 0);
}

TEST_F(FormGesturesTest, WhileAProjectIsReadNoPressWorks) {
  tables.LoadingProject = 1;
  form.Objeto = "Button";
  Press(10, 10);
  EXPECT_EQ(form.UBound(Kind::Button), 0);
  EXPECT_TRUE(Log().empty());
}

TEST_F(FormGesturesTest, AReleaseRebuildsThePropertySheetOfTheSelection) {
  Place("Button", 10, 10);
  EXPECT_EQ(Log().back(), "properties Button1 Form1Btn1");
  Press(300, 300);
  gestures.MouseUp();
  EXPECT_EQ(Log().back(), "properties Form Form1");
}

TEST_F(FormGesturesTest, WithThePanelHiddenTheGridStaysAsItWas) {
  host.PanelVisible = false;
  const ControlRef button = Place("Button", 10, 10);
  Click(button);
  EXPECT_EQ(ports.Log.Count("properties"), 0U);
}

TEST_F(FormGesturesTest, ADoubleClickOpensTheCodeOfKindsWithEvents) {
  Place("Button", 10, 10);
  gestures.DoubleClick();
  EXPECT_EQ(ports.Log.Count("code"), 1U);
  Place("OpenDialog", 200, 10);
  gestures.DoubleClick();
  EXPECT_EQ(ports.Log.Count("code"), 1U);
  Press(400, 300);
  gestures.MouseUp();
  gestures.DoubleClick();
  EXPECT_EQ(ports.Log.Count("code"), 2U) << "the form has events";
}

}  // namespace
}  // namespace tarnwick
