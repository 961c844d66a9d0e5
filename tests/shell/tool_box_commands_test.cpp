#include "designer/tool_box.h"
#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

class ToolBoxTest : public ShellTest {
 protected:
  void SetUp() override { Start(); }

  /// The numbers of the tools that are down.
  std::vector<int> Down() {
    std::vector<int> down;
    for (const ToolInfo& tool : AllTools()) {
      if (main.Commands().ToolState(tool.Number).Checked) down.push_back(tool.Number);
    }
    return down;
  }
  DesignForm& form() { return *tables().CurrentForm; }
};

TEST_F(ToolBoxTest, TheToolsStandInTheOrderOfTheScreenTheArrowFirst) {
  std::vector<int> numbers;
  for (const ToolInfo& tool : AllTools()) numbers.push_back(tool.Number);
  EXPECT_EQ(numbers, (std::vector<int>{17, 9,  0,  1,  2,  3,  4,  5,  6,  7,
                                       10, 11, 12, 13, 14, 15, 16, 18, 19, 8}));
}

TEST_F(ToolBoxTest, EachNumberArmsItsKind) {
  const std::vector<std::pair<int, std::string>> kinds{
      {0, "Button"},      {1, "TextBox"},           {2, "Image"},
      {3, "Label"},       {4, "ListBox"},           {5, "OptionButton"},
      {6, "CheckBox"},    {7, "ComboBox"},          {10, "RichTextBox"},
      {11, "Time"},       {12, "OpenDialog"},       {13, "SaveDialog"},
      {14, "FileStream"}, {15, "TransparentFrame"}, {16, "HtmlViewer"},
      {18, "WinSock"},    {19, "PopUpMenu"}};
  for (const auto& [number, kind] : kinds) {
    main.Commands().PressTool(number);
    EXPECT_EQ(form().Objeto, kind);
    EXPECT_EQ(Down(), std::vector<int>{number});
    EXPECT_EQ(ToolOf(number)->Tip, kind);
  }
}

TEST_F(ToolBoxTest, TheArmedToolStaysDownUntilTheObjectIsPlaced) {
  main.Commands().PressTool(3);
  EXPECT_EQ(Down(), std::vector<int>{3});
  surface().Gestures().Form_MouseDown(kLeftButton, 0, Twips(10), Twips(10));
  EXPECT_EQ(Down(), std::vector<int>{kArrowTool});
  EXPECT_TRUE(form().HasObjects(Kind::Label));
}

TEST_F(ToolBoxTest, OneToolPlacesOneObjectWhateverThePresses) {
  Place(3, 10, 10);
  surface().Gestures().Form_MouseDown(kLeftButton, 0, Twips(200), Twips(200));
  surface().Gestures().MouseUp();
  EXPECT_EQ(form().UBound(Kind::Label), 1);
  EXPECT_EQ(form().NameObjet, "Form");
}

TEST_F(ToolBoxTest, TheArrowClearsWhatIsArmedAndSelectsTheForm) {
  Place(0, 10, 10);
  main.Commands().PressTool(1);
  main.Commands().PressTool(kArrowTool);
  EXPECT_EQ(form().Objeto, "Form");
  EXPECT_EQ(form().NameObjet, "Form");
  EXPECT_EQ(form().ControlSel, nullptr);
  EXPECT_EQ(Down(), std::vector<int>{kArrowTool});
}

TEST_F(ToolBoxTest, TheFormToolAlwaysAddsAForm) {
  main.Commands().PressTool(kFormTool);
  EXPECT_EQ(tables().FormsCount, 2);
  EXPECT_EQ(form().Number(), 2);
  EXPECT_EQ(form().Objeto, "Form");
  EXPECT_EQ(Down(), std::vector<int>{kArrowTool});
}

TEST_F(ToolBoxTest, TheMenuToolOpensTheMenuDesignerOnTheForm) {
  Place(0, 10, 10);
  main.Commands().PressTool(kMenuTool);
  EXPECT_EQ(log().Count("windows menu edit"), 1U);
  EXPECT_EQ(form().ControlSel, nullptr);
  EXPECT_EQ(form().NameObjet, "Form");
  EXPECT_EQ(Down(), std::vector<int>{kArrowTool});
}

TEST_F(ToolBoxTest, AKindPressedWithNoFormOpenAddsAFormThenStaysPendingOnIt) {
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Remove);
  log().Clear();
  main.Commands().PressTool(0);
  EXPECT_EQ(Lines(), std::vector<std::string>{"Form2 ()"});
  EXPECT_EQ(form().Objeto, "Button");
  EXPECT_EQ(Down(), std::vector<int>{0});
  ExpectOrder({"told opened 2", "view container shown"});
}

TEST_F(ToolBoxTest, AnyToolLiftsTheBlockOfTheForm) {
  for (const int tool : {0, kArrowTool, kMenuTool}) {
    main.Commands().Run(Command::Lock);
    ASSERT_FALSE(form().m_bDesignMode);
    main.Commands().PressTool(tool);
    EXPECT_TRUE(form().m_bDesignMode) << tool;
    EXPECT_FALSE(main.Commands().State(Command::Lock).Checked) << tool;
  }
}

TEST_F(ToolBoxTest, ASecondTransparentFrameCannotBeArmed) {
  EXPECT_TRUE(main.Commands().ToolState(kTransparentFrameTool).Enabled);
  Place(kTransparentFrameTool, 10, 10);
  EXPECT_FALSE(main.Commands().ToolState(kTransparentFrameTool).Enabled);
  main.Commands().PressTool(kTransparentFrameTool);
  EXPECT_EQ(form().Objeto, "");
}

TEST_F(ToolBoxTest, ItsToolComesBackWhenTheTransparentFrameIsDeleted) {
  Place(kTransparentFrameTool, 10, 10);
  main.Commands().Run(Command::Delete);
  EXPECT_TRUE(main.Commands().ToolState(kTransparentFrameTool).Enabled);
}

TEST_F(ToolBoxTest, ItsToolFollowsTheCurrentForm) {
  Place(kTransparentFrameTool, 10, 10);
  main.Commands().Run(Command::AddNewForm);
  EXPECT_TRUE(main.Commands().ToolState(kTransparentFrameTool).Enabled);
  main.Forms().SelectLine(0);
  EXPECT_FALSE(main.Commands().ToolState(kTransparentFrameTool).Enabled);
}

TEST_F(ToolBoxTest, ItsToolFollowsAProjectThatWasRead) {
  Place(kTransparentFrameTool, 10, 10);
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\1.ftn"});
  main.Commands().Run(Command::New);
  EXPECT_TRUE(main.Commands().ToolState(kTransparentFrameTool).Enabled);
  ports.Dialogs.OpenAnswers = {"Z:\\p\\a.tnp"};
  main.Commands().Run(Command::Open);
  EXPECT_FALSE(main.Commands().ToolState(kTransparentFrameTool).Enabled);
}

TEST_F(ToolBoxTest, ANumberWithoutAToolArmsNothing) {
  main.Commands().PressTool(42);
  EXPECT_EQ(form().Objeto, "");
  EXPECT_EQ(ToolOf(42), nullptr);
}

TEST_F(ToolBoxTest, EachFormKeepsWhatIsArmedOnIt) {
  main.Commands().PressTool(0);
  main.Commands().Run(Command::AddNewForm);
  EXPECT_EQ(Down(), std::vector<int>{kArrowTool});
  main.Forms().SelectLine(0);
  EXPECT_EQ(Down(), std::vector<int>{0});
}

}  // namespace
}  // namespace tarnwick
