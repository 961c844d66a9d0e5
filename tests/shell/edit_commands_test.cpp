#include "shell/command_table.h"
#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

constexpr std::string_view kUnblock = "show Need to Unblock controls before copy/cut/paste";

class EditCommandsTest : public ShellTest {
 protected:
  void SetUp() override { Start(); }
  DesignForm& form() { return *tables().CurrentForm; }
};

TEST_F(EditCommandsTest, CutDeletesAndCopiesNothing) {
  Place(0, 10, 10);
  main.Commands().Run(Command::Cut);
  EXPECT_FALSE(form().HasObjects(Kind::Button));
  EXPECT_EQ(form().NameObjet, "Form");
  main.Commands().Run(Command::Paste);
  EXPECT_FALSE(form().HasObjects(Kind::Button));
}

TEST_F(EditCommandsTest, DeleteTakesTheObjectAtOnce) {
  Place(3, 10, 10);
  main.Commands().Run(Command::Delete);
  EXPECT_FALSE(form().HasObjects(Kind::Label));
  EXPECT_EQ(log().Count("ask"), 0U);
  EXPECT_EQ(main.Sheet().Combo().Rows().size(), 1U);
}

TEST_F(EditCommandsTest, CopyAndPasteMakeASecondObject) {
  Place(0, 10, 10);
  main.Commands().Run(Command::Copy);
  main.Commands().Run(Command::Paste);
  EXPECT_EQ(form().UBound(Kind::Button), 2);
  EXPECT_EQ(form().NameObjet, "Button2");
}

TEST_F(EditCommandsTest, PasteReadsTheSourceAsItIsThen) {
  Place(0, 10, 10);
  main.Commands().Run(Command::Copy);
  form().Element(Kind::Button, 1)->Caption = "changed";
  main.Commands().Run(Command::Paste);
  EXPECT_EQ(form().Element(Kind::Button, 2)->Caption, "changed");
}

TEST_F(EditCommandsTest, DeleteWithTheFormSelectedLosesNothing) {
  Place(0, 10, 10);
  main.Commands().PressTool(kArrowTool);
  main.Commands().Run(Command::Delete);
  EXPECT_TRUE(form().HasObjects(Kind::Button));
}

TEST_F(EditCommandsTest, OnABlockedFormCutCopyAndPasteTellSo) {
  Place(0, 10, 10);
  main.Commands().Run(Command::Lock);
  main.Commands().Run(Command::Cut);
  main.Commands().Run(Command::Copy);
  main.Commands().Run(Command::Paste);
  EXPECT_EQ(log().Count(kUnblock), 3U);
  EXPECT_EQ(form().UBound(Kind::Button), 1);
}

TEST_F(EditCommandsTest, LockTogglesAndMarksItsEntries) {
  EXPECT_FALSE(main.Commands().State(Command::Lock).Checked);
  main.Commands().Run(Command::Lock);
  EXPECT_TRUE(main.Commands().State(Command::Lock).Checked);
  EXPECT_FALSE(form().m_bDesignMode);
  main.Commands().Run(Command::Lock);
  EXPECT_FALSE(main.Commands().State(Command::Lock).Checked);
}

TEST_F(EditCommandsTest, ABlockedFormPlacesNothing) {
  main.Commands().Run(Command::Lock);
  form().Objeto = "Button";
  surface().Gestures().Form_MouseDown(kLeftButton, 0, Twips(10), Twips(10));
  EXPECT_FALSE(form().HasObjects(Kind::Button));
}

TEST_F(EditCommandsTest, AlignToGridRoundsTheHalfDown) {
  Place(0, 15, 16);
  main.Commands().Run(Command::AlignToGrid);
  EXPECT_FLOAT_EQ(form().Element(Kind::Button, 1)->Left, Twips(10));
  EXPECT_FLOAT_EQ(form().Element(Kind::Button, 1)->Top, Twips(20));
}

TEST_F(EditCommandsTest, FrontAndBackChangeTheDrawingOrder) {
  Place(0, 10, 10);
  Place(0, 200, 10);
  const ControlRef first = form().Element(Kind::Button, 1);
  const ControlRef second = form().Element(Kind::Button, 2);
  const auto place_of = [this](const ControlRef& control) {
    const auto& order = form().DrawOrder();
    return std::find(order.begin(), order.end(), control) - order.begin();
  };
  surface().SelectObject(first);
  main.Commands().Run(Command::BringToFront);
  EXPECT_GT(place_of(first), place_of(second));
  main.Commands().Run(Command::StayBack);
  EXPECT_LT(place_of(first), place_of(second));
}

TEST_F(EditCommandsTest, OrderCommandsNeedAnObject) {
  EXPECT_FALSE(main.Commands().State(Command::BringToFront).Enabled);
  EXPECT_FALSE(main.Commands().State(Command::StayBack).Enabled);
  Place(0, 10, 10);
  EXPECT_TRUE(main.Commands().State(Command::BringToFront).Enabled);
  EXPECT_TRUE(main.Commands().State(Command::StayBack).Enabled);
}

TEST_F(EditCommandsTest, CopyAndPasteAreOffWhileATransparentFrameIsSelected) {
  Place(kTransparentFrameTool, 10, 10);
  EXPECT_FALSE(main.Commands().State(Command::Copy).Enabled);
  EXPECT_FALSE(main.Commands().State(Command::Paste).Enabled);
  EXPECT_TRUE(main.Commands().State(Command::Cut).Enabled);
  main.Commands().PressTool(kArrowTool);
  EXPECT_TRUE(main.Commands().State(Command::Copy).Enabled);
  EXPECT_TRUE(main.Commands().State(Command::Paste).Enabled);
}

TEST_F(EditCommandsTest, CodeIsOffForKindsWithoutEvents) {
  struct Case {
    int Tool;
    bool HasCode;
  };
  constexpr Case kCases[]{{0, true},   {1, true},   {2, true},   {3, true},   {4, true},
                          {5, true},   {6, true},   {7, true},   {10, true},  {11, true},
                          {12, false}, {13, false}, {14, false}, {15, false}, {16, false},
                          {18, false}, {19, true}};
  int x = 0;
  for (const Case& c : kCases) {
    Place(c.Tool, x += 20, 300);
    EXPECT_EQ(main.Commands().State(Command::Code).Enabled, c.HasCode) << form().NameObjet;
    EXPECT_EQ(main.Commands().State(Command::Copy).Enabled, c.Tool != kTransparentFrameTool);
    EXPECT_EQ(main.Commands().State(Command::Paste).Enabled, c.Tool != kTransparentFrameTool);
    EXPECT_TRUE(main.Commands().State(Command::Cut).Enabled);
    EXPECT_TRUE(main.Commands().State(Command::BringToFront).Enabled);
    EXPECT_TRUE(main.Commands().State(Command::StayBack).Enabled);
    // A double click on the object opens the code just where the command does.
    surface().Gestures().DoubleClick();
    EXPECT_EQ(windows.CodeOpen, c.HasCode) << form().NameObjet;
    windows.CodeOpen = false;
    main.Commands().Run(Command::Delete);
  }
}

TEST_F(EditCommandsTest, CodeOpensTheEditor) {
  main.Commands().Run(Command::Code);
  EXPECT_TRUE(windows.CodeOpen);
}

TEST_F(EditCommandsTest, WhileTheEditorIsOpenItsObjectCannotGo) {
  Place(0, 10, 10);
  main.Commands().Run(Command::Copy);
  main.Commands().Run(Command::Code);
  main.Commands().Run(Command::Cut);
  main.Commands().Run(Command::Delete);
  main.Commands().Run(Command::Paste);
  EXPECT_EQ(form().UBound(Kind::Button), 1);
  EXPECT_EQ(form().NameObjet, "Button1");
  EXPECT_EQ(log().Count("windows code to front"), 3U);
}

TEST_F(EditCommandsTest, TheRightButtonOpensThePopUp) {
  Place(0, 10, 10);
  log().Clear();
  surface().Gestures().ObjectMouseDown(form().Element(Kind::Button, 1), kRightButton, 0, 5, 5);
  EXPECT_EQ(log().Count("view pop-up"), 1U);
}

TEST_F(EditCommandsTest, ACommandChosenInThePopUpRuns) {
  Place(0, 10, 10);
  view.OnObjectPopUp = [this] { main.Commands().Run(Command::Delete); };
  surface().Gestures().ObjectMouseDown(form().Element(Kind::Button, 1), kRightButton, 0, 5, 5);
  EXPECT_FALSE(form().HasObjects(Kind::Button));
}

TEST_F(EditCommandsTest, DoubleClickOpensTheCode) {
  Place(0, 10, 10);
  surface().Gestures().DoubleClick();
  EXPECT_TRUE(windows.CodeOpen);
}

class OtherCommandsTest : public EditCommandsTest {};

TEST_F(OtherCommandsTest, HelpOpensTheHelpFileOfTheProgramFolder) {
  ports.Files.Put("Z:\\opt\\tarnwick\\Tarnwick.chm", "help");
  main.Commands().Run(Command::Help);
  EXPECT_EQ(log().Entries(), std::vector<std::string>{"open Z:\\opt\\tarnwick\\Tarnwick.chm"});
}

TEST_F(OtherCommandsTest, HelpThatIsNotInstalledIsTold) {
  main.Commands().Run(Command::Help);
  EXPECT_TRUE(log().Entries().empty());
  EXPECT_EQ(view.Status, "The help is not installed: there is no Z:\\opt\\tarnwick\\Tarnwick.chm");
}

TEST_F(OtherCommandsTest, DeleteOnALockedFormIsRefusedWithTheMessageOfCut) {
  Place(0, 20, 20);
  main.Commands().Run(Command::Lock);
  main.Commands().Run(Command::Delete);
  EXPECT_EQ(log().Count("show Need to Unblock controls before copy/cut/paste"), 1U);
  EXPECT_TRUE(tables().CurrentForm->HasObjects(Kind::Button));
}

TEST_F(OtherCommandsTest, EscNeverLiftsTheLock) {
  Place(0, 20, 20);
  main.Commands().Run(Command::Lock);
  main.Commands().Escape();
  EXPECT_FALSE(tables().CurrentForm->m_bDesignMode);
  EXPECT_EQ(tables().CurrentForm->NameObjet, "Button1");
}

TEST_F(OtherCommandsTest, EscGivesTheArmedToolBackAndKeepsTheSelection) {
  Place(0, 20, 20);
  main.Commands().PressTool(1);
  main.Commands().Escape();
  EXPECT_TRUE(main.Commands().ToolState(kArrowTool).Checked);
  EXPECT_EQ(tables().CurrentForm->NameObjet, "Button1");
}

TEST_F(OtherCommandsTest, TheNextCommandTakesTheStatusTextAway) {
  main.Commands().Run(Command::Help);
  ASSERT_NE(view.Status, "");
  main.Commands().Run(Command::Lock);
  EXPECT_EQ(view.Status, "");
}

TEST_F(OtherCommandsTest, AboutNamesTheProgramFolder) {
  main.Commands().Run(Command::About);
  EXPECT_EQ(log().Entries(), std::vector<std::string>{"view about Z:\\opt\\tarnwick"});
}

TEST_F(OtherCommandsTest, EachPageOfTheHelpIsOpenedByItsRow) {
  for (const HelpPageRow& page : HelpPages()) {
    log().Clear();
    EXPECT_TRUE(main.Commands().State(page.Opens).Enabled);
    main.Commands().Run(page.Opens);
    EXPECT_EQ(log().Entries(), std::vector<std::string>{"view help " + std::string(page.File)});
  }
}

TEST_F(OtherCommandsTest, WindowsOfOtherRoomsOpen) {
  main.Commands().Run(Command::PublicDeclarations);
  main.Commands().Run(Command::Examiner);
  main.Commands().Run(Command::MenuEdit);
  EXPECT_EQ(log().Entries(), (std::vector<std::string>{"windows declarations", "windows examiner",
                                                       "windows menu edit"}));
}

TEST_F(OtherCommandsTest, OnlyEntriesThatAreOnOrOffHaveACheckMark) {
  for (std::size_t i = 0; i < kCommandCount; ++i) {
    const auto command = static_cast<Command>(i);
    const bool shown = command == Command::Properties || command == Command::Forms ||
                       command == Command::EventsBar || command == Command::RunWithEither;
    EXPECT_EQ(main.Commands().State(command).Checked, shown) << i;
  }
}

TEST_F(OtherCommandsTest, EachPanelIsShownAndHiddenByItsEntry) {
  const std::pair<Command, Panel> panels[]{{Command::Properties, Panel::Properties},
                                           {Command::Forms, Panel::Forms},
                                           {Command::EventsBar, Panel::EventsBar},
                                           {Command::ObjectBar, Panel::ObjectBar}};
  for (const auto& [command, panel] : panels) {
    const bool before = main.Commands().PanelShown(panel);
    main.Commands().Run(command);
    EXPECT_EQ(view.PanelShown[panel], !before);
    EXPECT_EQ(main.Commands().State(command).Checked, !before);
    main.Commands().Run(command);
    EXPECT_EQ(main.Commands().State(command).Checked, before);
  }
}

TEST_F(OtherCommandsTest, APanelClosedByItsOwnButtonLosesItsCheckMark) {
  main.Commands().SetPanelShown(Panel::Properties, false);
  EXPECT_FALSE(main.Commands().State(Command::Properties).Checked);
  EXPECT_EQ(view.PanelShown[Panel::Properties], false);
}

TEST_F(OtherCommandsTest, APropertyPanelShownAgainShowsTheSelection) {
  ports.Files.Put("Z:\\opt\\tarnwick\\Add004.tn", "");
  main.Commands().SetPanelShown(Panel::Properties, false);
  Place(0, 10, 10);
  EXPECT_NE(main.Sheet().SelName(), "Form1Btn1");
  EXPECT_FALSE(main.Sheet().PanelVisible());
  main.Commands().SetPanelShown(Panel::Properties, true);
  EXPECT_TRUE(main.Sheet().PanelVisible());
  EXPECT_EQ(main.Sheet().SelName(), "Form1Btn1");
  EXPECT_EQ(main.Sheet().SelKind(), "Button");
}

TEST_F(OtherCommandsTest, ACommandThatIsOffDoesNothing) {
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Remove);
  log().Clear();
  main.Commands().Run(Command::Compile);
  main.Commands().Run(Command::Code);
  EXPECT_TRUE(log().Entries().empty());
}

}  // namespace
}  // namespace tarnwick
