// Design surface, property sheet and main window as they work on each other.
#include "project/open_project.h"
#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

std::string Rows(std::string_view kind, std::string_view rows) {
  return "[" + std::string(kind) + "]\x8D" + std::string(rows) + "\x8E\r\n";
}

class RoomsJoinedTest : public ShellTest {
 protected:
  void SetUp() override {
    ports.Files.Put(std::string(kProgram) + "\\Add004.tn",
                    Rows("FORM", "Caption\x95Width\x95Height") +
                        Rows("BUTTON", "Caption\x95Left\x95Top") +
                        Rows("TRANSPARENTFRAME", "Left\x95Top\x95Width"));
    Start();
  }
  PropertySheet& sheet() { return main.Sheet(); }
  DesignForm& form() { return *tables().CurrentForm; }
  std::string Value(std::string_view row) {
    for (int i = 0; i < sheet().RowCount(); ++i) {
      if (sheet().Label(i) == row) return sheet().Text(i);
    }
    return "no such row";
  }
  void Type(std::string_view row, std::string_view text) {
    for (int i = 0; i < sheet().RowCount(); ++i) {
      if (sheet().Label(i) == row) sheet().SelectRow(i);
    }
    sheet().ApplyText(text);
  }
  void Drag(const ControlRef& control, int dx, int dy) {
    FakeGestures& gestures = view.GesturesOf(form().Number());
    gestures.Cursor = {100, 100};
    surface().Gestures().ObjectMouseDown(control, kLeftButton, 0, 15, 15);
    gestures.Cursor = {100 + dx, 100 + dy};
    surface().Gestures().MouseMove();
    surface().Gestures().MouseUp();
  }
};

TEST_F(RoomsJoinedTest, APlacedObjectShowsInTheSheet) {
  Place(0, 20, 30);
  EXPECT_EQ(sheet().SelKind(), "Button");
  EXPECT_EQ(Value("Name"), "Form1Btn1");
  EXPECT_EQ(Value("Left"), "20");
  ASSERT_EQ(sheet().Combo().Rows().size(), 2U);
  EXPECT_EQ(sheet().Combo().Rows()[1].Text, "Form1Btn1   (Button)");
}

TEST_F(RoomsJoinedTest, ADragChangesTheSheetAndTheStatus) {
  Place(0, 20, 30);
  Drag(form().ControlSel, 15, 7);
  EXPECT_EQ(Value("Left"), "35");
  EXPECT_EQ(Value("Top"), "37");
  EXPECT_EQ(view.SelectionText, "Form1Btn1   Left 35  Top 37  Width 75  Height 25");
}

TEST_F(RoomsJoinedTest, ADragOfATransparentFrameReachesItsRecordWithThePanelHidden) {
  main.Commands().SetPanelShown(Panel::Properties, false);
  Place(kTransparentFrameTool, 20, 30);
  Drag(form().ControlSel, 15, 7);
  EXPECT_EQ(tables().Form(1)->TfLeft, 35);
  EXPECT_EQ(tables().Form(1)->TfTop, 37);
}

TEST_F(RoomsJoinedTest, AnEditReachesTheObjectAndTheStatus) {
  Place(0, 20, 30);
  Type("Left", "120");
  EXPECT_FLOAT_EQ(form().ControlSel->Left, Twips(120));
  EXPECT_EQ(view.SelectionText, "Form1Btn1   Left 120  Top 30  Width 75  Height 25");
}

TEST_F(RoomsJoinedTest, ARowOfTheObjectListSelectsOnTheSurface) {
  Place(0, 20, 30);
  main.Commands().PressTool(kArrowTool);
  sheet().ChooseComboRow(1);
  EXPECT_EQ(form().NameObjet, "Button1");
  EXPECT_TRUE(form().Element(Kind::Handle, 0)->Visible);
  sheet().ChooseComboRow(0);
  EXPECT_EQ(form().NameObjet, "Form");
}

TEST_F(RoomsJoinedTest, WhileTheCodeEditorIsOpenTheObjectListSelectsNothing) {
  Place(0, 20, 30);
  main.Commands().PressTool(kArrowTool);
  windows.CodeOpen = true;
  sheet().ChooseComboRow(1);
  EXPECT_EQ(form().NameObjet, "Form");
  EXPECT_GE(log().Count("windows code to front"), 1U);
}

TEST_F(RoomsJoinedTest, ARenamedFormShowsInListSheetAndTitleOfRemove) {
  Type("Name", "Start");
  EXPECT_EQ(Lines(), std::vector<std::string>{"Start ()"});
  EXPECT_EQ(main.Commands().Caption(Command::Remove), "Remove Start from project");
  EXPECT_EQ(log().Count("windows renamed 1 Form1 to Start"), 1U);
  EXPECT_EQ(sheet().Combo().Rows().front().Text, "Start   (Form)");
  EXPECT_EQ(view.SelectionText, "Start   Left 0  Top 0  Width 400  Height 333");
}

TEST_F(RoomsJoinedTest, ARenamedMainFormIsNoLongerFoundUnlessTheWholeTextWasItsName) {
  Type("Name", "Start");
  EXPECT_EQ(tables().MainFormName, "Form1 ()");
  EXPECT_EQ(main.Forms().Marks().MainForm, 0);
  tables().MainFormName = "Start";
  Type("Name", "Begin");
  EXPECT_EQ(tables().MainFormName, "Begin");
  EXPECT_EQ(main.Forms().Marks().MainForm, 1);
}

TEST_F(RoomsJoinedTest, RenamingAFormChangesNoObjectAlreadyPlaced) {
  Place(0, 20, 30);
  main.Commands().PressTool(kArrowTool);
  sheet().ChooseComboRow(0);
  Type("Name", "Start");
  EXPECT_EQ(form().Element(Kind::Button, 1)->Tag, "Form1Btn1");
}

TEST_F(RoomsJoinedTest, AResizedWindowShowsInTheSheetOfTheForm) {
  sheet().ShowSelection();
  surface().Frame().Form_Resize(Twips(500), Twips(200), WindowState::Normal);
  EXPECT_EQ(tables().Form(1)->Width, 500);
  EXPECT_EQ(Value("Width"), "500");
}

TEST_F(RoomsJoinedTest, ARemovedFormLeavesNothingToEdit) {
  Place(0, 20, 30);
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Remove);
  sheet().SelectRow(1);
  EXPECT_FALSE(sheet().ApplyText("late"));
  EXPECT_TRUE(sheet().Combo().Rows().empty());
}

TEST_F(RoomsJoinedTest, AFormReadBackIntoItsNumberGetsANewSurface) {
  Place(0, 20, 30);
  const std::string text =
      "[Form](1) {Form1}  Left<0>Left  Top<0>Top  Width<300>Width  Height<200>Height\r\n";
  project::ReadFormTextInto(main.Context(), text, 1);
  ASSERT_NE(main.CurrentUser(), nullptr);
  EXPECT_EQ(&main.CurrentUser()->Form(), tables().UserIfAny(1));
  EXPECT_FALSE(form().HasObjects(Kind::Button));
  Place(0, 40, 50);
  EXPECT_TRUE(form().HasObjects(Kind::Button));
}

}  // namespace
}  // namespace tarnwick
