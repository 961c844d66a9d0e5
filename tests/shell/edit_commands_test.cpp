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
  main.Run(Command::Cut);
  EXPECT_FALSE(form().HasObjects(Kind::Button));
  EXPECT_EQ(form().NameObjet, "Form");
  main.Run(Command::Paste);
  EXPECT_FALSE(form().HasObjects(Kind::Button));
}

TEST_F(EditCommandsTest, DeleteTakesTheObjectAtOnce) {
  Place(3, 10, 10);
  main.Run(Command::Delete);
  EXPECT_FALSE(form().HasObjects(Kind::Label));
  EXPECT_EQ(log().Count("ask"), 0U);
  EXPECT_EQ(main.Sheet().Combo().Rows().size(), 1U);
}

TEST_F(EditCommandsTest, CopyAndPasteMakeASecondObject) {
  Place(0, 10, 10);
  main.Run(Command::Copy);
  main.Run(Command::Paste);
  EXPECT_EQ(form().UBound(Kind::Button), 2);
  EXPECT_EQ(form().NameObjet, "Button2");
}

TEST_F(EditCommandsTest, PasteReadsTheSourceAsItIsThen) {
  Place(0, 10, 10);
  main.Run(Command::Copy);
  form().Element(Kind::Button, 1)->Caption = "changed";
  main.Run(Command::Paste);
  EXPECT_EQ(form().Element(Kind::Button, 2)->Caption, "changed");
}

TEST_F(EditCommandsTest, DeleteWithTheFormSelectedLosesNothing) {
  Place(0, 10, 10);
  main.PressTool(kArrowTool);
  main.Run(Command::Delete);
  EXPECT_TRUE(form().HasObjects(Kind::Button));
}

TEST_F(EditCommandsTest, OnABlockedFormCutCopyAndPasteTellSo) {
  Place(0, 10, 10);
  main.Run(Command::Lock);
  main.Run(Command::Cut);
  main.Run(Command::Copy);
  main.Run(Command::Paste);
  EXPECT_EQ(log().Count(kUnblock), 3U);
  EXPECT_EQ(form().UBound(Kind::Button), 1);
}

TEST_F(EditCommandsTest, LockTogglesAndMarksItsEntries) {
  EXPECT_FALSE(main.State(Command::Lock).Checked);
  main.Run(Command::Lock);
  EXPECT_TRUE(main.State(Command::Lock).Checked);
  EXPECT_FALSE(form().m_bDesignMode);
  main.Run(Command::Lock);
  EXPECT_FALSE(main.State(Command::Lock).Checked);
}

TEST_F(EditCommandsTest, ABlockedFormPlacesNothing) {
  main.Run(Command::Lock);
  form().Objeto = "Button";
  surface().Form_MouseDown(kLeftButton, 0, Twips(10), Twips(10));
  EXPECT_FALSE(form().HasObjects(Kind::Button));
}

TEST_F(EditCommandsTest, AlignToGridRoundsTheHalfDown) {
  Place(0, 15, 16);
  main.Run(Command::AlignToGrid);
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
  main.Run(Command::BringToFront);
  EXPECT_GT(place_of(first), place_of(second));
  main.Run(Command::StayBack);
  EXPECT_LT(place_of(first), place_of(second));
}

TEST_F(EditCommandsTest, OrderCommandsNeedAnObject) {
  EXPECT_FALSE(main.State(Command::BringToFront).Enabled);
  EXPECT_FALSE(main.State(Command::StayBack).Enabled);
  Place(0, 10, 10);
  EXPECT_TRUE(main.State(Command::BringToFront).Enabled);
  EXPECT_TRUE(main.State(Command::StayBack).Enabled);
}

TEST_F(EditCommandsTest, CopyAndPasteAreOffWhileATransparentFrameIsSelected) {
  Place(kTransparentFrameTool, 10, 10);
  EXPECT_FALSE(main.State(Command::Copy).Enabled);
  EXPECT_FALSE(main.State(Command::Paste).Enabled);
  EXPECT_TRUE(main.State(Command::Cut).Enabled);
  main.PressTool(kArrowTool);
  EXPECT_TRUE(main.State(Command::Copy).Enabled);
  EXPECT_TRUE(main.State(Command::Paste).Enabled);
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
    EXPECT_EQ(main.State(Command::Code).Enabled, c.HasCode) << form().NameObjet;
    // The pop-up of the surface and the commands it runs say the same.
    const ObjectPopUp entries = surface().PopUpEntries();
    EXPECT_EQ(main.State(Command::Code).Enabled, entries.Code);
    EXPECT_EQ(main.State(Command::Copy).Enabled, entries.Copy);
    EXPECT_EQ(main.State(Command::Paste).Enabled, entries.Paste);
    EXPECT_EQ(main.State(Command::BringToFront).Enabled, entries.Front);
    EXPECT_EQ(main.State(Command::Lock).Checked, entries.Locked);
    EXPECT_EQ(main.State(Command::Properties).Checked, entries.PropertiesChecked);
    main.Run(Command::Delete);
  }
}

TEST_F(EditCommandsTest, CodeOpensTheEditor) {
  main.Run(Command::Code);
  EXPECT_TRUE(windows.CodeOpen);
}

TEST_F(EditCommandsTest, WhileTheEditorIsOpenItsObjectCannotGo) {
  Place(0, 10, 10);
  main.Run(Command::Copy);
  main.Run(Command::Code);
  main.Run(Command::Cut);
  main.Run(Command::Delete);
  main.Run(Command::Paste);
  EXPECT_EQ(form().UBound(Kind::Button), 1);
  EXPECT_EQ(form().NameObjet, "Button1");
  EXPECT_EQ(log().Count("windows code to front"), 3U);
}

TEST_F(EditCommandsTest, TheRightButtonOpensThePopUp) {
  Place(0, 10, 10);
  log().Clear();
  surface().ObjectMouseDown(form().Element(Kind::Button, 1), kRightButton, 0, 5, 5);
  EXPECT_EQ(log().Count("view pop-up"), 1U);
}

TEST_F(EditCommandsTest, ACommandChosenInThePopUpRuns) {
  Place(0, 10, 10);
  view.OnObjectPopUp = [this] { main.Run(Command::Delete); };
  surface().ObjectMouseDown(form().Element(Kind::Button, 1), kRightButton, 0, 5, 5);
  EXPECT_FALSE(form().HasObjects(Kind::Button));
}

TEST_F(EditCommandsTest, DoubleClickOpensTheCode) {
  Place(0, 10, 10);
  surface().DoubleClick();
  EXPECT_TRUE(windows.CodeOpen);
}

class OtherCommandsTest : public EditCommandsTest {};

TEST_F(OtherCommandsTest, HelpOpensTheHelpFileOfTheProgramFolder) {
  main.Run(Command::Help);
  EXPECT_EQ(log().Entries(), std::vector<std::string>{"open Z:\\opt\\tarnwick\\Tarnwick.chm"});
}

TEST_F(OtherCommandsTest, AboutNamesTheProgramFolder) {
  main.Run(Command::About);
  EXPECT_EQ(log().Entries(), std::vector<std::string>{"view about Z:\\opt\\tarnwick"});
}

TEST_F(OtherCommandsTest, WindowsOfOtherRoomsOpen) {
  main.Run(Command::PublicDeclarations);
  main.Run(Command::Examiner);
  main.Run(Command::MenuEdit);
  EXPECT_EQ(log().Entries(), (std::vector<std::string>{"windows declarations", "windows examiner",
                                                       "windows menu edit"}));
}

TEST_F(OtherCommandsTest, EachPanelIsShownAndHiddenByItsEntry) {
  const std::pair<Command, Panel> panels[]{{Command::Properties, Panel::Properties},
                                           {Command::Forms, Panel::Forms},
                                           {Command::EventsBar, Panel::EventsBar},
                                           {Command::ObjectBar, Panel::ObjectBar}};
  for (const auto& [command, panel] : panels) {
    const bool before = main.PanelShown(panel);
    main.Run(command);
    EXPECT_EQ(view.PanelShown[panel], !before);
    EXPECT_EQ(main.State(command).Checked, !before);
    main.Run(command);
    EXPECT_EQ(main.State(command).Checked, before);
  }
}

TEST_F(OtherCommandsTest, APanelClosedByItsOwnButtonLosesItsCheckMark) {
  main.SetPanelShown(Panel::Properties, false);
  EXPECT_FALSE(main.State(Command::Properties).Checked);
  EXPECT_EQ(view.PanelShown[Panel::Properties], false);
}

TEST_F(OtherCommandsTest, APropertyPanelShownAgainShowsTheSelection) {
  ports.Files.Put("Z:\\opt\\tarnwick\\Add004.tn", "");
  main.SetPanelShown(Panel::Properties, false);
  Place(0, 10, 10);
  EXPECT_NE(main.Sheet().SelName(), "Form1Btn1");
  main.SetPanelShown(Panel::Properties, true);
  EXPECT_EQ(main.Sheet().SelName(), "Form1Btn1");
  EXPECT_EQ(main.Sheet().SelKind(), "Button");
}

TEST_F(OtherCommandsTest, ACommandThatIsOffDoesNothing) {
  ports.Messages.Answers = {true};
  main.Run(Command::Remove);
  log().Clear();
  main.Run(Command::Compile);
  main.Run(Command::Code);
  EXPECT_TRUE(log().Entries().empty());
}

}  // namespace
}  // namespace tarnwick
