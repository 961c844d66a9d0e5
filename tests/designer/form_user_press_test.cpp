// Presses on a design window and its objects.
#include "designer/tool_box.h"
#include "surface_fixture.h"

namespace tarnwick {
namespace {

using FormUserPress = SurfaceTest;
using Entries = std::vector<std::string>;

TEST_F(FormUserPress, LoadingPaintsTheGridWithAYieldAfterEachDotAndSizesTheHandles) {
  form.Element(Kind::Handle, 3)->Width = 1;
  user.Form_Load();
  EXPECT_EQ(ports.Screen.Yields, 103 * 77);
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(form.Element(Kind::Handle, i)->Width, 7 * 15);
    EXPECT_EQ(form.Element(Kind::Handle, i)->Height, 7 * 15);
  }
  EXPECT_EQ(user.FormStyle().hwnd, 1);
}

TEST_F(FormUserPress, LoadingTakesTheFrameOfTheRecordsBorder) {
  record.BorderStyle = 0;
  user.Form_Load();
  EXPECT_FALSE(user.FormStyle().Get(clsStyle::Member::ControlBox));
}

TEST_F(FormUserPress, BorderStyleASetsTheFrameAndTheRecordKeepsTheCode) {
  user.borderstylea(5);
  EXPECT_TRUE(user.FormStyle().Get(clsStyle::Member::ToolWindow));
  EXPECT_EQ(record.BorderStyle, 5);
  EXPECT_GT(ports.Log.Count("window"), 0U);
}

TEST_F(FormUserPress, APressWithNoArmedToolSelectsTheFormAndHidesTheHandles) {
  Place("Button", 10, 10);
  ASSERT_TRUE(HandleVisible(0));
  Press(300, 300);
  EXPECT_EQ(form.NameObjet, "Form");
  EXPECT_EQ(form.ControlSel, nullptr);
  EXPECT_EQ(form.IndexObjet, 0);
  EXPECT_FALSE(HandleVisible(0));
  EXPECT_EQ(user.GestureMode(), DragMode::None);
}

TEST_F(FormUserPress, TheFirstPressPlacesAndTheSecondSelectsTheForm) {
  form.Objeto = "Button";
  Press(10, 10);
  user.MouseUp();
  EXPECT_EQ(form.NameObjet, "Button1");
  EXPECT_EQ(form.Objeto, "");
  Press(200, 200);
  user.MouseUp();
  EXPECT_EQ(form.NameObjet, "Form");
  EXPECT_EQ(form.UBound(Kind::Button), 1);
}

TEST_F(FormUserPress, TheFirstButtonHasItsNamesAndARenamedFormDoesNotChangeThem) {
  const ControlRef first = Place("Button", 10, 10);
  EXPECT_EQ(first->Tag, "Form1Btn1");
  EXPECT_EQ(form.NameObjet, "Button1");
  EXPECT_EQ(form.IndexObjet, 1);
  record.Name = "Main";
  const ControlRef second = Place("Button", 200, 200);
  EXPECT_EQ(first->Tag, "Form1Btn1");
  EXPECT_EQ(second->Tag, "MainBtn2");
}

TEST_F(FormUserPress, ThePressPointBecomesTheCornerWithoutSnapping) {
  const ControlRef button = Place("Button", 13, 27);
  EXPECT_EQ(button->Left, Twips(13));
  EXPECT_EQ(button->Top, Twips(27));
}

TEST_F(FormUserPress, ANewListShowsItsNameAsFirstRowAndANewLabelAsCaption) {
  EXPECT_EQ(Place("ListBox", 10, 10)->Items, Entries{"Form1List1"});
  EXPECT_EQ(Place("ComboBox", 10, 150)->Items, Entries{"Form1Combo1"});
  EXPECT_EQ(Place("Label", 10, 200)->Caption, "Form1Label1");
  EXPECT_EQ(Place("TextBox", 10, 250)->Text, "Form1Text1");
}

TEST_F(FormUserPress, NameObjetIsKindWordAndIndex) {
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

TEST_F(FormUserPress, ANewObjectIsAtOnceInAMoveDrag) {
  form.Objeto = "Button";
  Press(20, 30);
  EXPECT_EQ(user.GestureMode(), DragMode::Move);
  MoveTo(50, 70);
  user.MouseUp();
  EXPECT_EQ(form.ControlSel->Left, Twips(50));
  EXPECT_EQ(form.ControlSel->Top, Twips(70));
}

TEST_F(FormUserPress, AnEarlierControlUnderThePressIsDraggedAndThenTheSelection) {
  const ControlRef image = Place("Image", 10, 10);
  form.Objeto = "Button";
  PressOn(image, 20, 20);
  EXPECT_EQ(form.ControlSel, image);
  EXPECT_EQ(form.NameObjet, "Image1");
  EXPECT_EQ(form.IndexObjet, 1);
  MoveTo(40, 40);
  user.MouseUp();
  EXPECT_EQ(image->Left, Twips(20)) << "it followed the mouse";
  EXPECT_EQ(form.Element(Kind::Button, 1)->Left, Twips(30)) << "the new one stays";
}

TEST_F(FormUserPress, APressOnABlockedFormPlacesNothing) {
  form.m_bDesignMode = false;
  form.Objeto = "Button";
  Press(10, 10);
  EXPECT_EQ(form.UBound(Kind::Button), 0);
  EXPECT_EQ(form.Objeto, "Button");
  EXPECT_EQ(Log(), Entries{"clear panel"});
}

TEST_F(FormUserPress, TheRightButtonOnABlockedFormSelectsItAndOpensThePopUp) {
  const ControlRef button = Place("Button", 10, 10);
  user.ToggleLock();
  Press(300, 300, kRightButton);
  EXPECT_EQ(form.NameObjet, "Form");
  EXPECT_EQ(ports.Log.Count("pop-up"), 1U);
  EXPECT_TRUE(host.LastPopUp.Locked);
  EXPECT_NE(form.Element(Kind::Button, 1), nullptr);
}

TEST_F(FormUserPress, TheRightButtonOnTheEmptyFormOpensThePopUpAfterTheRelease) {
  Press(300, 300, kRightButton);
  EXPECT_EQ(Log().back(), "pop-up");
  EXPECT_LT(ports.Log.Find("properties Form Form1"), ports.Log.Find("pop-up"));
}

TEST_F(FormUserPress, AnUnknownWordPlacesNothingAndIsDisarmed) {
  form.Objeto = "Gauge";
  Press(10, 10);
  EXPECT_EQ(form.Objeto, "");
  EXPECT_EQ(form.NameObjet, "Form");
}

TEST_F(FormUserPress, PlacingATransparentFrameTurnsItsToolAndCopyAndPasteOff) {
  form.Objeto = "TransparentFrame";
  Press(10, 10);
  EXPECT_NE(ports.Log.Find("tool 15 off"), -1);
  user.MouseUp();
  EXPECT_EQ(ports.Log.Count("copy-paste on"), 0U);
  Place("Button", 300, 10);
  EXPECT_EQ(ports.Log.Count("copy-paste on"), 1U) << "the release turns them on again";
}

TEST_F(FormUserPress, ASecondTransparentFrameCannotBeArmedWhileOneExists) {
  EXPECT_TRUE(ToolFits(kTransparentFrameTool, &form));
  Place("TransparentFrame", 10, 10);
  EXPECT_FALSE(ToolFits(kTransparentFrameTool, &form));
  user.CutObject(keys::kDelete);
  EXPECT_TRUE(ToolFits(kTransparentFrameTool, &form));
}

TEST_F(FormUserPress, PlacingAnObjectLetsTheToolBoxGoBackToTheArrow) {
  form.Objeto = "Button";
  Press(10, 10);
  EXPECT_EQ(ports.Log.Count("armed"), 1U);
  EXPECT_EQ(ArmedTool(&form), kArrowTool);
}

TEST_F(FormUserPress, PressingAnObjectSelectsItAndBeginsADrag) {
  const ControlRef button = Place("Button", 10, 10);
  Place("Label", 200, 10);
  ports.Log.Clear();
  PressOn(button);
  EXPECT_EQ(form.ControlSel, button);
  EXPECT_EQ(form.NameObjet, "Button1");
  EXPECT_EQ(form.IndexObjet, 1);
  EXPECT_EQ(user.GestureMode(), DragMode::Move);
  EXPECT_EQ(Log().front(), "copy-paste on");
}

TEST_F(FormUserPress, PressingATransparentFrameTurnsCopyAndPasteOff) {
  const ControlRef frame = Place("TransparentFrame", 10, 10);
  Press(300, 300);
  ports.Log.Clear();
  PressOn(frame);
  EXPECT_EQ(Log().front(), "copy-paste off");
  EXPECT_EQ(form.NameObjet, "TransparentFrame");
}

TEST_F(FormUserPress, OnABlockedFormAPressOnlySelects) {
  const ControlRef button = Place("Button", 10, 10);
  Press(300, 300);
  user.ToggleLock();
  PressOn(button);
  EXPECT_EQ(form.ControlSel, button);
  EXPECT_EQ(user.GestureMode(), DragMode::None);
  EXPECT_FALSE(ports.Gestures.Captured);
  EXPECT_FALSE(HandleVisible(0));
}

TEST_F(FormUserPress, TheRightButtonSelectsEndsTheGestureAndOpensThePopUp) {
  const ControlRef button = Place("Button", 10, 10);
  Press(300, 300);
  ports.Log.Clear();
  PressOn(button, 1, 1, kRightButton);
  EXPECT_EQ(form.ControlSel, button);
  EXPECT_EQ(user.GestureMode(), DragMode::None);
  EXPECT_FALSE(ports.Gestures.Confined);
  EXPECT_TRUE(HandleVisible(0));
  EXPECT_EQ(Log().back(), "pop-up");
}

TEST_F(FormUserPress, APressOnAnObjectLeavesTheToolArmed) {
  const ControlRef button = Place("Button", 10, 10);
  form.Objeto = "Label";
  Click(button);
  EXPECT_EQ(form.Objeto, "Label");
  EXPECT_EQ(form.UBound(Kind::Label), 0);
}

TEST_F(FormUserPress, AnImageForwardsThePressWhileAToolIsArmed) {
  const ControlRef image = Place("Image", 100, 100);
  form.Objeto = "Label";
  PressOn(image, 30, 40);
  const ControlRef label = form.Element(Kind::Label, 1);
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->Left, Twips(130));
  EXPECT_EQ(label->Top, Twips(140));
  EXPECT_EQ(form.Objeto, "");
}

TEST_F(FormUserPress, TheArrowArmsNothingSoAnImageIsSelected) {
  const ControlRef image = Place("Image", 100, 100);
  form.Objeto = "Form";
  Click(image);
  EXPECT_EQ(form.ControlSel, image);
  EXPECT_EQ(form.Objeto, "Form");
}

TEST_F(FormUserPress, AFrameForwardsAllButTheToolsThatHoldItsWord) {
  const ControlRef frame = Place("Frame", 100, 100);
  ASSERT_NE(frame, nullptr);
  form.Objeto = "TransparentFrame";
  PressOn(frame, 5, 5);
  user.MouseUp();
  EXPECT_FALSE(form.HasObjects(Kind::TransparentFrame));
  EXPECT_EQ(form.ControlSel, frame);
  form.Objeto = "Button";
  PressOn(frame, 5, 5);
  user.MouseUp();
  EXPECT_TRUE(form.HasObjects(Kind::Button));
}

TEST_F(FormUserPress, WhileTheCodeEditorIsOpenNothingIsSelected) {
  const ControlRef button = Place("Button", 10, 10);
  Press(300, 300);
  user.MouseUp();
  host.EditorOpen = true;
  ports.Log.Clear();
  PressOn(button);
  EXPECT_EQ(form.ControlSel, nullptr);
  EXPECT_EQ(Log(), Entries{"raise editor"});
  form.Objeto = "Label";
  Press(200, 200);
  EXPECT_EQ(form.UBound(Kind::Label), 0);
}

TEST_F(FormUserPress, WhileAProjectIsReadNoPressWorks) {
  tables.LoadingProject = 1;
  form.Objeto = "Button";
  Press(10, 10);
  EXPECT_EQ(form.UBound(Kind::Button), 0);
  EXPECT_TRUE(Log().empty());
}

TEST_F(FormUserPress, AReleaseRebuildsThePropertySheetOfTheSelection) {
  Place("Button", 10, 10);
  EXPECT_EQ(Log().back(), "properties Button1 Form1Btn1");
  Press(300, 300);
  user.MouseUp();
  EXPECT_EQ(Log().back(), "properties Form Form1");
}

TEST_F(FormUserPress, WithThePanelHiddenTheGridStaysAsItWas) {
  host.PanelVisible = false;
  const ControlRef button = Place("Button", 10, 10);
  Click(button);
  EXPECT_EQ(ports.Log.Count("properties"), 0U);
}

TEST_F(FormUserPress, AMenuItemIsSelectedByItsNameAndItsCodeOpened) {
  const ControlRef item = form.Load(Kind::MenuItem);
  item->Tag = "Form1mnuSave";
  item->Visible = true;
  Place("Button", 10, 10);
  user.MenuItemPress(item);
  EXPECT_EQ(form.NameObjet, "Form1mnuSave");
  EXPECT_EQ(form.IndexObjet, 1);
  EXPECT_EQ(Log().back(), "code");
  EXPECT_FALSE(HandleVisible(0));
  user.CutObject(keys::kDelete);
  EXPECT_EQ(form.Element(Kind::MenuItem, 1), item) << "only the menu designer takes items off";
}

TEST_F(FormUserPress, ADoubleClickOpensTheCodeOfKindsWithEvents) {
  Place("Button", 10, 10);
  user.DoubleClick();
  EXPECT_EQ(ports.Log.Count("code"), 1U);
  Place("OpenDialog", 200, 10);
  user.DoubleClick();
  EXPECT_EQ(ports.Log.Count("code"), 1U);
  Press(400, 300);
  user.MouseUp();
  user.DoubleClick();
  EXPECT_EQ(ports.Log.Count("code"), 2U) << "the form has events";
}

struct PopUpCase {
  const char* Kind;
  bool Code;
  bool CopyAndPaste;
};

TEST_F(FormUserPress, ThePopUpOffersWhatTheSelectionHas) {
  const PopUpCase cases[] = {
      {"Button", true, true},    {"OpenDialog", false, true}, {"SaveDialog", false, true},
      {"WinSock", false, true},  {"FileStream", false, true}, {"HtmlViewer", false, true},
      {"PopUpMenu", true, true}, {"Time", true, true},        {"TransparentFrame", false, false},
  };
  int y = 0;
  for (const PopUpCase& c : cases) {
    Place(c.Kind, 500, y);
    y += 130;
    const ObjectPopUp entries = user.PopUpEntries();
    EXPECT_EQ(entries.Code, c.Code) << c.Kind;
    EXPECT_EQ(entries.Copy, c.CopyAndPaste) << c.Kind;
    EXPECT_EQ(entries.Paste, c.CopyAndPaste) << c.Kind;
    EXPECT_TRUE(entries.Cut) << c.Kind;
    EXPECT_TRUE(entries.Front) << c.Kind;
  }
}

TEST_F(FormUserPress, ThePopUpOfTheFormHasNoZOrderAndTellsOfThePanel) {
  EXPECT_EQ(user.PopUpEntries(), (ObjectPopUp{true, true, true, true, false, false, false, true}));
  host.PanelVisible = false;
  EXPECT_FALSE(user.PopUpEntries().PropertiesChecked);
}

TEST_F(FormUserPress, ShowMessageIsABoxWithTheText) {
  user.ShowMessage("Hello");
  EXPECT_EQ(Log().back(), "show Hello");
}

}  // namespace
}  // namespace tarnwick
