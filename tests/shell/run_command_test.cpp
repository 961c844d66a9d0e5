// The program that the IDE runs, with a fake runner.
#include "shell/run_command.h"

#include "delivered_files.h"
#include "fakes/fake_runner.h"
#include "shell/shell_fixture.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

/// A project with a button of two lines of code, and no compiler.
class RunCommandTest : public ShellTest {
 protected:
  void SetUp() override {
    PutDeliveredFiles(ports.Files, std::string(kProgram));
    Start();
    main.Runner().Use(runner);
    ports.Processes.Succeeds = false;
    Place(0, 10, 10);
    const ControlRef button = tables().User(1)->Element(Kind::Button, 1);
    button->Tag = "Push";
    tables().EventTable.Replace("Form1.Button1.OnClick", "Dim a As Integer\r\na = Lable1");
    tables().Form(1)->DeclarePbl = "Dim b As Integer";
    SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  }
  void Compile() { main.Commands().Run(Command::Compile); }
  /// The line of the generated text, from 1.
  int LineOf(std::string_view text) {
    const std::string source = ports.Files.Bytes("Z:\\p\\a.com").value_or("");
    const auto lines = Split(source, kLineEnd);
    for (std::size_t n = 0; n < lines.size(); ++n) {
      if (lines[n] == text) return static_cast<int>(n) + 1;
    }
    ADD_FAILURE() << "no line " << text;
    return 0;
  }
  const std::vector<RunLines::Line>& Shown() { return main.Runner().Lines().All(); }

  FakeRunner runner{ports.Log};
};

TEST_F(RunCommandTest, TheCompilerComesFirstAndTheRunnerWhenItCannotBeStarted) {
  Compile();
  ExpectOrder({"replace Z:\\p\\a.com", "start Z:\\opt\\tarnwick\\Rc.exe", "run Z:\\p\\a.com"});
  EXPECT_EQ(runner.Last.Source, "Z:\\p\\a.com");
  EXPECT_EQ(runner.Last.ProgramFolder, kProgram);
  EXPECT_EQ(runner.Last.ExeName, tables().ExeFile);
  runner.Begin();
  EXPECT_EQ(view.Status, "Running Form1");
}

TEST_F(RunCommandTest, ACompilerThatStartsLeavesTheRunnerAlone) {
  ports.Processes.Succeeds = true;
  ports.Files.Put("Z:\\opt\\tarnwick\\Rc.exe", "MZ");
  Compile();
  EXPECT_EQ(log().Count("run "), 0U);
  EXPECT_EQ(view.Status, "Rc.exe started. Source text: Z:\\p\\a.com");
}

TEST_F(RunCommandTest, TheSettingChoosesTheRunner) {
  ports.Processes.Succeeds = true;
  ports.Profiles.Write("Z:\\opt\\tarnwick\\Tarnwick.ini", "Run", "With", "runner");
  Compile();
  EXPECT_EQ(log().Count("start "), 0U);
  EXPECT_EQ(log().Count("run "), 1U);
}

TEST_F(RunCommandTest, TheSettingChoosesTheCompiler) {
  ports.Profiles.Write("Z:\\opt\\tarnwick\\Tarnwick.ini", "Run", "With", "Compiler");
  Compile();
  EXPECT_EQ(log().Count("start "), 1U);
  EXPECT_EQ(log().Count("run "), 0U);
  EXPECT_TRUE(view.Status.starts_with("Rc.exe was not found")) << view.Status;
}

TEST_F(RunCommandTest, NeitherThereIsSaidInTheStatusBar) {
  runner.Succeeds = false;
  Compile();
  EXPECT_EQ(view.Status,
            "Source text: Z:\\p\\a.com. No compiler or runner found; Rc.exe belongs into "
            "Z:\\opt\\tarnwick");
  EXPECT_EQ(log().Count("show"), 0U);
}

TEST_F(RunCommandTest, ASourceThatCannotBeWrittenIsNotRun) {
  ports.Files.SetReadOnly(true);
  Compile();
  EXPECT_EQ(log().Count("run "), 0U);
  EXPECT_TRUE(view.Status.starts_with("Not saved: ")) << view.Status;
}

TEST_F(RunCommandTest, AFaultySourceIsNamedByItsPlace) {
  Compile();
  runner.Tell(RunSeverity::Error, LineOf("a = Lable1"), "\"Lable1\" is not declared");
  runner.Tell(RunSeverity::Error, 1, "another");
  runner.End(RunnerEnd::SourceFaulty);
  EXPECT_EQ(view.Status, "Not started: Form1.Push.OnClick, line 2: \"Lable1\" is not declared");
}

TEST_F(RunCommandTest, ARunTimeErrorStopsWithItsPlace) {
  Compile();
  runner.Begin();
  runner.Tell(RunSeverity::Error, LineOf("Dim b As Integer"), "no");
  runner.End(RunnerEnd::RunTimeError);
  EXPECT_EQ(view.Status, "Stopped: Form1, public declarations, line 1: no");
}

TEST_F(RunCommandTest, PropertyLinesAreNamedByObjectAndMember) {
  Compile();
  runner.Tell(RunSeverity::Note, LineOf("Push.ShowHint = 1"), "a note");
  runner.Tell(RunSeverity::Note, LineOf("Form1.ShowHint = 1"), "of the form");
  ASSERT_EQ(Shown().size(), 2U);
  EXPECT_EQ(Shown()[0].Text, "Form1.Push.ShowHint: a note");
  EXPECT_EQ(Shown()[1].Text, "Form1.ShowHint: of the form");
}

TEST_F(RunCommandTest, LinesWithoutAPlaceAndOtherFilesKeepTheirNumbers) {
  Compile();
  runner.Tell(RunSeverity::Note, 1, "first");
  runner.Tell({RunSeverity::Note, "Z:\\x\\other.inc", 7, 0, 0, "elsewhere"});
  runner.Tell({RunSeverity::Note, "", 0, 0, 0, "in general"});
  EXPECT_EQ(Shown()[0].Text, "a.com, line 1: first");
  EXPECT_EQ(Shown()[1].Text, "other.inc, line 7: elsewhere");
  EXPECT_EQ(Shown()[2].Text, "in general");
}

TEST_F(RunCommandTest, TheEndTellsHowManyNotesThereWere) {
  Compile();
  runner.Begin();
  runner.End(RunnerEnd::Ended);
  EXPECT_EQ(view.Status, "Form1 ended");
  Compile();
  runner.Tell(RunSeverity::Note, 1, "a");
  runner.Tell(RunSeverity::Note, 1, "b");
  runner.End(RunnerEnd::Ended);
  EXPECT_EQ(view.Status, "Form1 ended. 2 notes");
}

TEST_F(RunCommandTest, StopIsOnWhileAProgramRuns) {
  EXPECT_FALSE(main.Commands().State(Command::Stop).Enabled);
  Compile();
  EXPECT_TRUE(main.Commands().State(Command::Stop).Enabled);
  main.Commands().Run(Command::Stop);
  EXPECT_EQ(log().Count("stop run"), 1U);
  runner.End(RunnerEnd::Stopped);
  EXPECT_EQ(view.Status, "Form1 stopped");
  EXPECT_FALSE(main.Commands().State(Command::Stop).Enabled);
}

TEST_F(RunCommandTest, ASecondF5StopsTheProgramAndStartsItAgainAfterItsEnd) {
  Compile();
  runner.Begin();
  log().Clear();
  Compile();
  EXPECT_EQ(log().Count("stop run"), 1U);
  EXPECT_EQ(log().Count("run "), 0U);
  EXPECT_EQ(log().Count("replace"), 0U);
  runner.End(RunnerEnd::Stopped);
  ExpectOrder({"stop run", "replace Z:\\p\\a.com", "run Z:\\p\\a.com"});
  EXPECT_TRUE(runner.Running());
}

TEST_F(RunCommandTest, AStopAfterTheSecondF5StartsNothing) {
  Compile();
  Compile();
  main.Commands().Run(Command::Stop);
  log().Clear();
  runner.End(RunnerEnd::Stopped);
  EXPECT_EQ(log().Count("run "), 0U);
}

TEST_F(RunCommandTest, ClosingTheMainWindowLeavesTheProgramRunning) {
  Compile();
  EXPECT_TRUE(main.Close());
  EXPECT_EQ(log().Count("stop run"), 0U);
}

TEST_F(RunCommandTest, PrintedPiecesBecomeLines) {
  Compile();
  runner.Print("one\r\ntw");
  runner.Print("o\n");
  runner.Tell(RunSeverity::Note, 0, "note");
  runner.Print("three");
  ASSERT_EQ(Shown().size(), 4U);
  EXPECT_EQ(Shown()[0].Text, "one");
  EXPECT_EQ(Shown()[1].Text, "two");
  EXPECT_EQ(Shown()[3].Text, "three");
  EXPECT_EQ(Shown()[3].What, RunLines::Sort::Print);
}

TEST_F(RunCommandTest, TheNextRunStartsWithNoLines) {
  Compile();
  runner.Print("old\n");
  runner.End(RunnerEnd::Ended);
  Compile();
  EXPECT_TRUE(Shown().empty());
}

TEST_F(RunCommandTest, AJumpIntoCodeOpensTheEditorAtEventAndLine) {
  Compile();
  runner.Tell(RunSeverity::Error, LineOf("a = Lable1"), "no");
  runner.End(RunnerEnd::SourceFaulty);
  log().Clear();
  EXPECT_TRUE(main.Runner().Jump(0));
  ExpectOrder({"windows open code", "windows line 2"});
  EXPECT_EQ(tables().JumpKey, "OnClick");
  EXPECT_EQ(tables().User(1)->NameObjet, "Button1");
}

TEST_F(RunCommandTest, AJumpIntoDeclarationsOpensThem) {
  Compile();
  runner.Tell(RunSeverity::Note, LineOf("Dim b As Integer"), "no");
  EXPECT_TRUE(main.Runner().Jump(0));
  ExpectOrder({"windows declarations", "windows line 1"});
}

TEST_F(RunCommandTest, AJumpToAPropertySelectsObjectAndRow) {
  main.CurrentUser()->SelectForm();
  Compile();
  runner.Tell(
      RunSeverity::Note,
      LineOf("Push.Caption = \"" + tables().User(1)->Element(Kind::Button, 1)->Caption + "\""),
      "no");
  EXPECT_TRUE(main.Runner().Jump(0));
  EXPECT_EQ(tables().User(1)->NameObjet, "Button1");
  EXPECT_EQ(main.Sheet().Label(main.Sheet().RowIndex()), "Caption");
}

TEST_F(RunCommandTest, ALineWithoutAPlaceIsNamedInTheStatusBar) {
  Compile();
  runner.Tell(RunSeverity::Note, 1, "first");
  runner.Print("text\n");
  EXPECT_FALSE(main.Runner().Jump(0));
  EXPECT_EQ(view.Status, "Line 1 of Z:\\p\\a.com");
  EXPECT_FALSE(main.Runner().Jump(1));
  EXPECT_FALSE(main.Runner().Jump(2));
}

TEST(RunLines, OnlyTheLastLinesOfAnEndlessPrinterAreKept) {
  RunLines lines;
  for (std::size_t n = 0; n < 3 * RunLines::kMost; ++n) lines.Print(std::to_string(n) + "\n");
  EXPECT_LE(lines.All().size(), 2 * RunLines::kMost);
  EXPECT_EQ(lines.All().back().Text, std::to_string(3 * RunLines::kMost - 1));
}

}  // namespace
}  // namespace tarnwick
