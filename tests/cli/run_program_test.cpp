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

}  // namespace
}  // namespace tarnwick
