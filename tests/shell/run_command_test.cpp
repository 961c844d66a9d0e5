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

TEST_F(RunCommandTest, AProgramThatBeginsWithAFrameIsNamedByItsForm) {
  Place(kTransparentFrameTool, 60, 60);
  main.Commands().Run(Command::AddNewForm);
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\two.ftn"});
  tables().MainFormName = "Form2 (two.ftn)";
  Compile();
  const std::string source = ports.Files.Bytes("Z:\\p\\a.com").value_or("");
  EXPECT_NE(source.find("TrnspAbrFrm1"), std::string::npos);
  runner.Begin();
  EXPECT_EQ(view.Status, "Running Form1") << "Form1 is shown first, whichever is the main form";
}

TEST_F(RunCommandTest, TheMainFormNamesAProgramWithoutAFrame) {
  main.Commands().Run(Command::AddNewForm);
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\two.ftn"});
  tables().MainFormName = "Form2 (two.ftn)";
  Compile();
  runner.Begin();
  EXPECT_EQ(view.Status, "Running Form2");
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
            "Neither Rc.exe nor tarnwick-run was found: put Rc.exe into Z:\\opt\\tarnwick. "
            "Source text: Z:\\p\\a.com");
  EXPECT_EQ(log().Count("show"), 0U);
}

TEST_F(RunCommandTest, ACompilerThatCannotBeStartedAndNoRunnerAreBothNamed) {
  ports.Files.Put("Z:\\opt\\tarnwick\\Rc.exe", "MZ");
  runner.Succeeds = false;
  Compile();
  EXPECT_EQ(view.Status,
            "Rc.exe could not be started, and tarnwick-run was not found. Source text: "
            "Z:\\p\\a.com");
}

// --- Run With

TEST_F(RunCommandTest, RunWithIsAutomaticUntilSomethingElseIsChosen) {
  EXPECT_TRUE(main.Commands().State(Command::RunWithEither).Checked);
  EXPECT_FALSE(main.Commands().State(Command::RunWithCompiler).Checked);
  EXPECT_FALSE(main.Commands().State(Command::RunWithRunner).Checked);
  EXPECT_TRUE(main.Commands().State(Command::RunWithRunner).Enabled);
}

TEST_F(RunCommandTest, TheRunnerIsChosenByItsRow) {
  ports.Processes.Succeeds = true;
  main.Commands().Run(Command::RunWithRunner);
  EXPECT_EQ(view.Status, "F5 starts the runner, tarnwick-run");
  EXPECT_TRUE(main.Commands().State(Command::RunWithRunner).Checked);
  EXPECT_FALSE(main.Commands().State(Command::RunWithEither).Checked);
  Compile();
  EXPECT_EQ(log().Count("start "), 0U);
  EXPECT_EQ(log().Count("run "), 1U);
}

TEST_F(RunCommandTest, TheCompilerIsChosenByItsRow) {
  main.Commands().Run(Command::RunWithCompiler);
  EXPECT_EQ(view.Status, "F5 starts Rc.exe");
  Compile();
  EXPECT_EQ(log().Count("start "), 1U);
  EXPECT_EQ(log().Count("run "), 0U);
}

TEST_F(RunCommandTest, AutomaticIsChosenAgainByItsRow) {
  main.Commands().Run(Command::RunWithCompiler);
  main.Commands().Run(Command::RunWithEither);
  EXPECT_EQ(view.Status, "F5 starts Rc.exe, and the runner where there is none");
  Compile();
  EXPECT_EQ(log().Count("start "), 1U);
  EXPECT_EQ(log().Count("run "), 1U);
}

TEST_F(RunCommandTest, TheChoiceIsRememberedForTheNextStart) {
  main.Commands().Run(Command::RunWithRunner);
  EXPECT_EQ(ports.Profiles.Read("Z:\\opt\\tarnwick\\Tarnwick.ini", "Run", "With", 50), "runner");
  MDIForm1 next{ports.All(), instances, std::string(kProgram)};
  next.Load(views);
  EXPECT_TRUE(next.Commands().State(Command::RunWithRunner).Checked);
}

TEST_F(RunCommandTest, AnUnknownWordOfTheSettingsIsAutomatic) {
  ports.Profiles.Write("Z:\\opt\\tarnwick\\Tarnwick.ini", "Run", "With", "both");
  Compile();
  EXPECT_TRUE(main.Commands().State(Command::RunWithEither).Checked);
  EXPECT_EQ(log().Count("start "), 1U);
}

TEST_F(RunCommandTest, TheRunnerThatIsChosenAndNotThereGivesWayToTheCompiler) {
  MDIForm1 bare{ports.All(), instances, std::string(kProgram)};
  bare.Load(views);
  bare.Time_Timer();
  bare.Commands().Run(Command::RunWithRunner);
  ports.Processes.Succeeds = true;
  ports.Files.Put("Z:\\opt\\tarnwick\\Rc.exe", "MZ");
  ports.Dialogs.SaveAnswers = {"Z:\\q\\b.tnp", "Z:\\q\\two.ftn"};
  log().Clear();
  bare.Commands().Run(Command::Compile);
  EXPECT_EQ(log().Count("start "), 1U);
}

// --- The panel

TEST_F(RunCommandTest, ThePanelOpensWithTheFirstLine) {
  Compile();
  runner.Begin();
  EXPECT_FALSE(main.Commands().PanelShown(Panel::Output));
  runner.Print("text");
  EXPECT_TRUE(main.Commands().PanelShown(Panel::Output));
  EXPECT_TRUE(main.Commands().State(Command::Output).Checked);
}

TEST_F(RunCommandTest, ThePanelThatTheUserClosedOpensAgainForAnErrorOnly) {
  Compile();
  runner.Begin();
  runner.Print("text\n");
  main.Commands().Run(Command::Output);
  EXPECT_FALSE(main.Commands().PanelShown(Panel::Output));
  runner.Print("more\n");
  runner.Tell(RunSeverity::Note, 0, "a note");
  EXPECT_FALSE(main.Commands().PanelShown(Panel::Output));
  runner.Tell(RunSeverity::Error, 0, "an error");
  EXPECT_TRUE(main.Commands().PanelShown(Panel::Output));
}

TEST_F(RunCommandTest, TheNextRunOpensThePanelAgain) {
  Compile();
  runner.Print("text\n");
  main.Commands().Run(Command::Output);
  runner.End(RunnerEnd::Ended);
  Compile();
  EXPECT_FALSE(main.Commands().PanelShown(Panel::Output));
  runner.Print("text\n");
  EXPECT_TRUE(main.Commands().PanelShown(Panel::Output));
}

TEST_F(RunCommandTest, ClearedLinesAreGoneAndNewOnesCome) {
  Compile();
  runner.Print("old");
  main.Runner().ClearLines();
  EXPECT_TRUE(Shown().empty());
  runner.Print("new");
  ASSERT_EQ(Shown().size(), 1U);
  EXPECT_EQ(Shown()[0].Text, "new");
}

// --- Odd moments

TEST_F(RunCommandTest, AnErrorIsSaidWhileTheProgramStillShowsIt) {
  Compile();
  runner.Begin();
  runner.Tell(RunSeverity::Error, LineOf("a = Lable1"), "no");
  EXPECT_EQ(view.Status, "Stopped: Form1.Push.OnClick, line 2: no");
  main.Commands().Run(Command::Stop);
  runner.End(RunnerEnd::Stopped);
  EXPECT_EQ(view.Status, "Stopped: Form1.Push.OnClick, line 2: no");
}

TEST_F(RunCommandTest, AFaultySourceIsShownWhereItStands) {
  Compile();
  runner.Tell(RunSeverity::Error, LineOf("a = Lable1"), "no");
  log().Clear();
  runner.End(RunnerEnd::SourceFaulty);
  ExpectOrder({"windows open code", "windows line 2"});
  EXPECT_EQ(view.Status, "Not started: Form1.Push.OnClick, line 2: no");
}

TEST_F(RunCommandTest, TheOpenCodeEditorGoesToTheEventAndLine) {
  windows.CodeOpen = true;
  Compile();
  runner.Tell(RunSeverity::Error, LineOf("a = Lable1"), "no");
  runner.Tell(RunSeverity::Error, LineOf("Dim b As Integer"), "no");
  log().Clear();
  runner.End(RunnerEnd::SourceFaulty);
  ExpectOrder({"windows open code", "windows line 2"});
  EXPECT_EQ(tables().JumpKey, "OnClick") << "the button is selected";
  main.CurrentUser()->SelectForm();
  EXPECT_TRUE(main.Runner().Jump(0));
  EXPECT_EQ(tables().JumpKey, "Form1.Button1.OnClick");
  // What is no code waits behind the editor.
  log().Clear();
  EXPECT_TRUE(main.Runner().Jump(1));
  EXPECT_EQ(log().Count("windows code to front"), 1U);
  EXPECT_EQ(log().Count("windows declarations"), 0U);
}

TEST_F(RunCommandTest, AFaultWithoutAPlaceShowsNothing) {
  Compile();
  runner.Tell(RunSeverity::Error, 1, "no");
  log().Clear();
  runner.End(RunnerEnd::SourceFaulty);
  EXPECT_EQ(log().Count("windows"), 0U);
  EXPECT_EQ(view.Status, "Not started: a.com, line 1: no");
}

TEST_F(RunCommandTest, AnotherProjectLeavesTheProgramRunningAndItsLinesWithoutAPlace) {
  Compile();
  runner.Begin();
  const int line = LineOf("a = Lable1");
  runner.Tell(RunSeverity::Note, line, "before");
  main.Commands().Run(Command::New);
  EXPECT_TRUE(runner.Running());
  EXPECT_EQ(log().Count("stop run"), 0U);
  runner.Tell(RunSeverity::Note, line, "behind");
  ASSERT_EQ(Shown().size(), 2U);
  EXPECT_EQ(Shown()[0].Text, "Form1.Push.OnClick, line 2: before");
  EXPECT_EQ(Shown()[1].Text, "a.com, line " + std::to_string(line) + ": behind");
  EXPECT_EQ(Shown()[0].SourceLine, 0) << "it is about the source that was";
  EXPECT_FALSE(main.Runner().Jump(0));
  EXPECT_FALSE(main.Runner().Jump(1));
  EXPECT_EQ(log().Count("windows open code"), 0U);
  runner.End(RunnerEnd::Ended);
  EXPECT_EQ(view.Status, "Form1 ended. 2 notes");
}

TEST_F(RunCommandTest, F5InAnotherProjectStopsTheProgramAndRunsThatOne) {
  Compile();
  runner.Begin();
  main.Commands().Run(Command::New);
  Compile();
  EXPECT_EQ(log().Count("stop run"), 1U);
  ports.Dialogs.SaveAnswers = {"Z:\\q\\b.tnp", "Z:\\q\\two.ftn"};
  runner.End(RunnerEnd::Stopped);
  EXPECT_EQ(runner.Last.Source, "Z:\\q\\b.com");
}

TEST_F(RunCommandTest, AFormThatIsGoneByNowHasNoPlace) {
  Compile();
  runner.Begin();
  const int line = LineOf("a = Lable1");
  main.Commands().Run(Command::AddNewForm);
  main.Forms().GoTo(1);
  ports.Messages.Answers = {true, true};
  main.Commands().Run(Command::Remove);
  runner.Tell(RunSeverity::Error, line, "no");
  EXPECT_FALSE(main.Runner().Jump(0));
}

TEST_F(RunCommandTest, ARunnerThatDiesIsSaid) {
  Compile();
  runner.Begin();
  runner.End(RunnerEnd::RunnerFault);
  EXPECT_EQ(view.Status, "The runner failed while Form1 ran");
}

TEST_F(RunCommandTest, WhatARunnerThatFailedSaysIsShown) {
  Compile();
  runner.Tell({RunSeverity::Error, "", 0, 0, 0, "tarnwick-run: there is no display"});
  runner.End(RunnerEnd::RunnerFault);
  EXPECT_EQ(view.Status, "The runner failed while Form1 ran: tarnwick-run: there is no display");
  EXPECT_TRUE(main.Commands().PanelShown(Panel::Output));
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
  EXPECT_EQ(Shown()[0].SourceLine, 1);
  EXPECT_EQ(Shown()[1].SourceLine, 0);
  EXPECT_EQ(Shown()[2].SourceLine, 0);
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

TEST_F(RunCommandTest, OnlyAStartThatSucceedsChangesTheCommands) {
  const int before = view.CommandChanges;
  runner.Succeeds = false;
  EXPECT_FALSE(main.Runner().Start("", {}));
  EXPECT_EQ(view.CommandChanges, before);
  runner.Succeeds = true;
  EXPECT_TRUE(main.Runner().Start("", {}));
  EXPECT_EQ(view.CommandChanges, before + 1);
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
  runner.End(RunnerEnd::RunTimeError);
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

TEST(RunLines, ALineWithoutEndIsCutInPieces) {
  RunLines lines;
  const std::string piece(RunLines::kLongest / 2 + 1, 'x');
  for (int n = 0; n < 4; ++n) lines.Print(piece);
  ASSERT_EQ(lines.All().size(), 3U);
  EXPECT_EQ(lines.All()[0].Text.size(), RunLines::kLongest);
  EXPECT_EQ(lines.All()[2].Text.size(), 4U);
  lines.Clear();
  lines.Print(std::string(RunLines::kLongest, 'x'));
  lines.Print("\nnext");
  ASSERT_EQ(lines.All().size(), 2U);
  EXPECT_EQ(lines.All()[1].Text, "next");
}

TEST(RunLines, ALineEndMayComeInTwoPieces) {
  RunLines lines;
  lines.Print("one\r");
  lines.Print("\n\ntwo");
  ASSERT_EQ(lines.All().size(), 3U);
  EXPECT_EQ(lines.All()[0].Text, "one");
  EXPECT_EQ(lines.All()[1].Text, "");
}

TEST(RunLines, OnlyTheLastLinesOfAnEndlessPrinterAreKept) {
  RunLines lines;
  for (std::size_t n = 0; n < 3 * RunLines::kMost; ++n) lines.Print(std::to_string(n) + "\n");
  EXPECT_LE(lines.All().size(), 2 * RunLines::kMost);
  EXPECT_EQ(lines.All().back().Text, std::to_string(3 * RunLines::kMost - 1));
}

}  // namespace
}  // namespace tarnwick
