#include "cli/run_program.h"

#include <fstream>

#include <gtest/gtest.h>

#include "fakes/temporary_folder.h"
#include "fakes/text_stream.h"

namespace tarnwick {
namespace {

struct Outcome {
  RunExit Exit;
  std::string Out;
  std::string Err;
};

Outcome RunText(const std::string& source, RunArguments arguments = {}) {
  const TemporaryFolder folder;
  arguments.Program = folder.Native("program.bas");
  std::ofstream(arguments.Program, std::ios::binary) << source;
  const test::TextStream out;
  const test::TextStream err;
  Outcome outcome{};
  std::FILE* const in = std::fopen("/dev/null", "rb");
  outcome.Exit = RunProgram(arguments, in, out.File(), err.File());
  std::fclose(in);
  outcome.Out = out.Text();
  outcome.Err = err.Text();
  const std::size_t at = outcome.Err.find(folder.Native());
  if (at != std::string::npos) outcome.Err.erase(at, folder.Native().size() + 1);
  return outcome;
}

TEST(RunProgramTest, PrintsAsUtf8AndEnds) {
  const Outcome outcome = RunText("PRINT \"caf\xE9\"\n");
  EXPECT_EQ(outcome.Exit, RunExit::Ended);
  EXPECT_EQ(outcome.Out, "caf\xC3\xA9\n");
  EXPECT_EQ(outcome.Err, "");
}

TEST(RunProgramTest, AFaultySourceIsNotRun) {
  const Outcome outcome = RunText("PRINT 1\nPRINT (\n");
  EXPECT_EQ(outcome.Exit, RunExit::Faulty);
  EXPECT_EQ(outcome.Out, "");
  EXPECT_EQ(outcome.Err.substr(0, 14), "program.bas:2:") << outcome.Err;
  EXPECT_NE(outcome.Err.find(": error: "), std::string::npos);
}

TEST(RunProgramTest, AnErrorNamesItsLineAndTheCalls) {
  const Outcome outcome = RunText("SUB Work\n  PRINT 1 \\ 0\nEND SUB\nPRINT \"a\"\nWork\n");
  EXPECT_EQ(outcome.Exit, RunExit::Error);
  EXPECT_EQ(outcome.Out, "a\n");
  EXPECT_NE(outcome.Err.find("program.bas:2:"), std::string::npos);
  EXPECT_NE(outcome.Err.find("error: Division by zero\n  in Work, "), std::string::npos);
  EXPECT_NE(outcome.Err.find("  in the program, "), std::string::npos);
}

TEST(RunProgramTest, LimitsHaveAnExitCodeOfTheirOwn) {
  RunArguments arguments;
  arguments.MaxSteps = 1000;
  EXPECT_EQ(RunText("DO\nLOOP\n", arguments).Exit, RunExit::Limit);
  arguments.MaxSteps = 0;
  arguments.MaxSeconds = 0.05;
  EXPECT_EQ(RunText("DO\nLOOP\n", arguments).Exit, RunExit::Limit);
}

TEST(RunProgramTest, ClockAndArgumentsReachTheProgram) {
  std::string wrong;
  const auto arguments = ParseRunArguments(
      {"--clock", "2024-02-29 13:05:09", "--seed=7", "p.bas", "--dump", "b"}, wrong);
  ASSERT_TRUE(arguments.has_value()) << wrong;
  EXPECT_FALSE(arguments->Dump) << "what stands behind the program is the program's";
  EXPECT_EQ(arguments->Seed, 7U);
  EXPECT_EQ(RunText("PRINT TIME$; COMMAND$(2); COMMANDCOUNT\n", *arguments).Out, "13:05:09b2\n");
}

TEST(RunProgramTest, ADumpShowsTheCodeAndRunsNothing) {
  RunArguments arguments;
  arguments.Dump = true;
  const Outcome outcome = RunText("PRINT \"hi\"\n", arguments);
  EXPECT_EQ(outcome.Exit, RunExit::Ended);
  EXPECT_NE(outcome.Out.find("PRINT_TEXT"), std::string::npos);
}

TEST(RunProgramTest, FaultyOptionsAreNamed) {
  std::string wrong;
  EXPECT_FALSE(ParseRunArguments({}, wrong));
  EXPECT_EQ(wrong, "an argument is missing");
  EXPECT_FALSE(ParseRunArguments({"--max-steps", "x", "a"}, wrong));
  EXPECT_EQ(wrong, "--max-steps does not take \"x\"");
  EXPECT_FALSE(ParseRunArguments({"--fast", "a"}, wrong));
  EXPECT_EQ(wrong, "unknown option \"--fast\"");
}

TEST(RunProgramTest, WindowsAreThereAndTheEventsOfAScriptArePlayed) {
  const TemporaryFolder folder;
  RunArguments arguments;
  arguments.Events = folder.Native("events.txt");
  std::ofstream(arguments.Events, std::ios::binary) << "click B\nclick NoSuch\nclick B\n";
  const Outcome outcome = RunText(
      "DIM F AS QFORM, B AS QBUTTON\nB.Parent = F\nSUB Press\nPRINT \"pressed\"\n"
      "END SUB\nB.OnClick = Press\nF.ShowModal\nPRINT \"over\"\n",
      arguments);
  EXPECT_EQ(outcome.Exit, RunExit::Ended);
  EXPECT_EQ(outcome.Out, "pressed\npressed\nover\n");
  EXPECT_NE(outcome.Err.find("click NoSuch: there is no object of this name"), std::string::npos);
}

TEST(RunProgramTest, ATraceTellsWhatTheWindowsShow) {
  RunArguments arguments;
  arguments.Trace = true;
  const Outcome outcome = RunText("DIM F AS QFORM\nF.Caption = \"A\"\nF.Show\n", arguments);
  EXPECT_EQ(outcome.Out, "realise F QFORM\nF.Visible = 1\n");
}

TEST(RunProgramTest, EventsThatCannotBeReadAreAFaultOfUse) {
  RunArguments arguments;
  arguments.Events = "/nowhere/events.txt";
  EXPECT_EQ(RunText("PRINT 1\n", arguments).Exit, RunExit::Usage);
}

TEST(RunProgramTest, TextAndRemedyAreTwoSentences) {
  const Outcome outcome = RunText("DIM B AS QBUTTON\nB.Captoin = 1\n");
  EXPECT_NE(outcome.Err.find("no member \"Captoin\". Did you mean Caption?\n"), std::string::npos)
      << outcome.Err;
}

TEST(RunProgramTest, WhatIsSupportedIsListed) {
  std::string wrong;
  const auto arguments = ParseRunArguments({"--supported"}, wrong);
  ASSERT_TRUE(arguments.has_value()) << wrong;
  const Outcome outcome = RunText("", *arguments);
  EXPECT_EQ(outcome.Exit, RunExit::Ended);
  EXPECT_NE(outcome.Out.find("QFORM\n  works: "), std::string::npos);
  EXPECT_NE(outcome.Out.find("passed over: "), std::string::npos);
  EXPECT_NE(outcome.Out.find("INPUTHANDLE: "), std::string::npos);
}

}  // namespace
}  // namespace tarnwick
