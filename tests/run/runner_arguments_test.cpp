#include "run/runner_arguments.h"

#include <gtest/gtest.h>

namespace tarnwick::run {
namespace {

RunnerArguments Parsed(const std::vector<std::string>& words) {
  std::string wrong;
  const auto arguments = ReadRunnerArguments(words, wrong);
  EXPECT_TRUE(arguments.has_value()) << wrong;
  return arguments.value_or(RunnerArguments{});
}

std::string Wrong(const std::vector<std::string>& words) {
  std::string wrong;
  EXPECT_FALSE(ReadRunnerArguments(words, wrong).has_value());
  return wrong;
}

TEST(RunnerArgumentsTest, TheWordsOfTheIdeAreTaken) {
  const RunnerArguments arguments =
      Parsed({"--with-ide", "--report=tab", "--program-folder", "C:\\Tarnwick\\", "--exe-name",
              "C:\\p\\a.exe", "--max-steps=5", "/p/a.com", "--", "one", "-two"});
  EXPECT_TRUE(arguments.WithIde);
  EXPECT_EQ(arguments.Report, hosts::ReportForm::Tab);
  EXPECT_EQ(arguments.ProgramFolder, "C:\\Tarnwick");
  EXPECT_EQ(arguments.ExeName, "C:\\p\\a.exe");
  EXPECT_EQ(arguments.MaxSteps, 5U);
  EXPECT_EQ(arguments.Source, "/p/a.com");
  EXPECT_EQ(arguments.Arguments, (std::vector<std::string>{"one", "-two"}));
}

TEST(RunnerArgumentsTest, FoldersOfTheMachineBecomeWindowsPaths) {
  EXPECT_EQ(Parsed({"--program-folder", "/opt/tarnwick", "a"}).ProgramFolder, "Z:\\opt\\tarnwick");
}

TEST(RunnerArgumentsTest, ASourceOnDriveZIsAFileOfTheMachine) {
  EXPECT_EQ(Parsed({"Z:\\p\\a.com"}).Source, "/p/a.com");
}

TEST(RunnerArgumentsTest, TheWordsOfTheCompilerAreTaken) {
  const RunnerArguments arguments =
      Parsed({"/COMPILE", "C:\\i.ico", "/p/UnTitle.com", "Z:\\p\\UnTitle.EXE", "Clock.exe"});
  EXPECT_EQ(arguments.Source, "/p/UnTitle.com");
  EXPECT_EQ(arguments.ExeName, "Clock.exe");
  EXPECT_TRUE(arguments.Windows);
  EXPECT_NE(Wrong({"/compile", "icon"}), "");
}

TEST(RunnerArgumentsTest, FaultyWordsAreNamed) {
  EXPECT_EQ(Wrong({}), "the source file is missing");
  EXPECT_EQ(Wrong({"--fast", "a"}), "unknown option \"--fast\"");
  EXPECT_EQ(Wrong({"--report=paper", "a"}), "--report does not take \"paper\"");
  EXPECT_EQ(Wrong({"--seed", "x", "a"}), "--seed does not take \"x\"");
}

TEST(RunnerArgumentsTest, HelpAndListNeedNoSource) {
  EXPECT_TRUE(Parsed({"--help"}).Help);
  EXPECT_TRUE(Parsed({"--supported"}).Supported);
}

}  // namespace
}  // namespace tarnwick::run
