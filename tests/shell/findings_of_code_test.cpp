// Faults of the code in the list of findings, and the way to their lines.
#include "codegen/generator_state.h"
#include "codegen/program_source.h"
#include "shell/findings_list.h"
#include "shell_fixture.h"

namespace tarnwick {
namespace {

using project::Severity;

class FindingsOfCode : public ShellTest {
 protected:
  void SetUp() override {
    ports.Files.Put(std::string(kProgram) + "\\Add004.tn",
                    "button\x8D*\x8D"
                    "form\x8D*\x8D");
    ports.Files.Put(std::string(kProgram) + "\\Tarnwick1.lib", "' nothing\r\n");
    Start();
    Place(0, 20, 20);
  }
  FindingsList& findings() { return main.Findings(); }
  void Code(std::string_view key, std::string_view code) {
    tables().EventTable.Replace(std::string(key), std::string(code));
  }
  /// A fault in the second line of the button's click.
  void BreakClick() { Code("Form1.Button1.OnClick", "Dim n As Integer\r\nForm1Btn1.Captoin = 1"); }
  void Check() { main.Commands().Run(Command::Check); }
};

TEST_F(FindingsOfCode, AFaultIsALineWithObjectEventAndLine) {
  BreakClick();
  Check();
  ASSERT_EQ(findings().Lines().size(), 1U);
  EXPECT_EQ(findings().Lines()[0],
            (FindingLine{Severity::Error, "Form1", "Form1Btn1", "OnClick",
                         "line 2: QBUTTON has no member \"Captoin\"; did you mean Caption?"}));
  EXPECT_EQ(findings().Word(), "1 finding");
}

TEST_F(FindingsOfCode, AFaultThatKnowsNoRemedySaysToCorrectTheCode) {
  Code("Form1.OnShow", "n = (1");
  Check();
  ASSERT_FALSE(findings().Lines().empty());
  EXPECT_EQ(findings().Lines()[0].Object, "");
  EXPECT_EQ(findings().Lines()[0].Row, "OnShow");
  const std::string& text = findings().Lines()[0].Text;
  EXPECT_EQ(text.substr(0, 8), "line 1: ");
  EXPECT_FALSE(text.ends_with("; "));
}

TEST_F(FindingsOfCode, ALineLeadsToTheCaretOfTheEditor) {
  BreakClick();
  Check();
  surface().SelectForm();
  log().Clear();
  findings().GoTo(0);
  EXPECT_EQ(surface().Form().NameObjet, "Button1");
  EXPECT_EQ(tables().JumpKey, "OnClick");
  ExpectOrder({"windows open code", "windows line 2"});
}

TEST_F(FindingsOfCode, CodeOfAFormOpensBySelectingTheForm) {
  Code("Form1.OnShow", "Form1Btn1.Captoin = 1");
  Check();
  ASSERT_EQ(findings().Lines().size(), 1U);
  log().Clear();
  findings().GoTo(0);
  EXPECT_EQ(surface().Form().NameObjet, "Form");
  EXPECT_EQ(tables().JumpKey, "OnShow");
  ExpectOrder({"windows open code", "windows line 1"});
}

TEST_F(FindingsOfCode, DeclarationsOfAnotherFormOpenAtTheirLine) {
  tables().Form(1)->DeclarePbl = "Dim a As Integer\r\nDim b As QNOTHING";
  main.Commands().Run(Command::AddNewForm);
  Check();
  ASSERT_FALSE(findings().Lines().empty());
  EXPECT_EQ(findings().Lines()[0].Form, "Form1");
  EXPECT_EQ(findings().Lines()[0].Row, "Declarations");
  log().Clear();
  findings().GoTo(0);
  EXPECT_EQ(tables().CurrentForm, tables().User(1));
  ExpectOrder({"windows declarations", "windows line 2"});
}

TEST_F(FindingsOfCode, WhileTheEditorIsOpenTheSelectedObjectsCodeIsGoneTo) {
  BreakClick();
  Check();
  windows.CodeOpen = true;
  log().Clear();
  findings().GoTo(0);
  EXPECT_EQ(tables().JumpKey, "OnClick") << "the editor keeps its list of events";
  ExpectOrder({"windows open code", "windows line 2"});
}

TEST_F(FindingsOfCode, WhileTheEditorIsOpenAnotherObjectsCodeIsGoneToByItsKey) {
  BreakClick();
  Check();
  surface().SelectForm();
  windows.CodeOpen = true;
  log().Clear();
  findings().GoTo(0);
  EXPECT_EQ(surface().Form().NameObjet, "Form");
  EXPECT_EQ(tables().JumpKey, "Form1.Button1.OnClick");
  ExpectOrder({"windows open code", "windows line 2"});
}

TEST_F(FindingsOfCode, WhileTheEditorIsOpenTheCodeOfAFormThatIsNotSelectedWaits) {
  Code("Form1.OnShow", "Form1Btn1.Captoin = 1");
  tables().Form(1)->DeclarePbl = "Dim b As QNOTHING";
  Check();
  ASSERT_GE(findings().Lines().size(), 2U);
  main.Commands().Run(Command::AddNewForm);
  windows.CodeOpen = true;
  log().Clear();
  for (int line = 0; line < static_cast<int>(findings().Lines().size()); ++line) {
    findings().GoTo(line);
  }
  EXPECT_EQ(log().Count("windows open code"), 0U);
  EXPECT_EQ(log().Count("windows declarations"), 0U);
  EXPECT_EQ(log().Count("windows code to front"), findings().Lines().size());
}

TEST_F(FindingsOfCode, TheQuietCheckOfACompileLeavesTheCodeToTheCompiler) {
  BreakClick();
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::Compile);
  EXPECT_EQ(findings().Word(), "");
}

TEST_F(FindingsOfCode, ButAWordThatCountsFaultsOfCodeStaysTrue) {
  BreakClick();
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  Check();
  main.Commands().SetPanelShown(Panel::Findings, false);
  main.Commands().Run(Command::Compile);
  EXPECT_EQ(findings().Word(), "1 finding");
  Code("Form1.Button1.OnClick", "Form1Btn1.Caption = \"x\"");
  main.Commands().Run(Command::Compile);
  EXPECT_EQ(findings().Word(), "");
}

TEST_F(FindingsOfCode, TheShownListFollowsTheCodeAfterAPause) {
  BreakClick();
  Check();
  Code("Form1.Button1.OnClick", "Form1Btn1.Caption = \"x\"");
  main.KeepWork();
  EXPECT_TRUE(findings().Lines().empty());
  BreakClick();
  main.KeepWork();
  EXPECT_EQ(findings().Lines().size(), 1U);
}

TEST_F(FindingsOfCode, FaultsOfTheCodeStandBesideWhatElseIsWrong) {
  BreakClick();
  surface().Form().ControlSel->Caption = "say \"hi\"";
  Check();
  ASSERT_EQ(findings().Lines().size(), 2U);
  EXPECT_EQ(findings().Lines()[0].Row, "Caption");
  EXPECT_EQ(findings().Lines()[1].Row, "OnClick");
  surface().Form().ControlSel->Caption = "hi";
  main.KeepWork();
  ASSERT_EQ(findings().Lines().size(), 1U);
  EXPECT_EQ(findings().Lines()[0].Row, "OnClick");
}

TEST_F(FindingsOfCode, WithoutTheIncludeFileTheCodeIsNotJudged) {
  ports.Files.Remove(std::string(kProgram) + "\\Tarnwick1.lib");
  BreakClick();
  Check();
  EXPECT_TRUE(findings().Lines().empty());
}

TEST_F(FindingsOfCode, ACheckChangesNothingInTheProject) {
  BreakClick();
  GeneratorState before;
  const std::string text = GenerateSource(tables(), before);
  Check();
  GeneratorState after;
  EXPECT_EQ(GenerateSource(tables(), after), text);
  EXPECT_EQ(main.Steps().Size(), 1U);
}

}  // namespace
}  // namespace tarnwick
