#include "hosts/run_report.h"

#include <gtest/gtest.h>

#include "fakes/text_stream.h"
#include "hosts/run_settings.h"

namespace tarnwick::hosts {
namespace {

basic::SourceSet OneFile() {
  basic::SourceSet files;
  files.Add("Z:\\home\\me\\a.bas", "PRINT 1\nPRINT x\n");
  return files;
}

TEST(RunReportTest, PeopleReadFileLineAndColumn) {
  const test::TextStream err;
  RunReport report(err.File(), ReportForm::People, "runner");
  report.SetFiles(OneFile());
  report.Say({2, 0, 7, 1}, "error", "\"x\" is not declared.", "Write DIM.");
  report.Say({}, "note", "Stopped");
  EXPECT_EQ(err.Text(),
            "/home/me/a.bas:2:7: error: \"x\" is not declared. Write DIM.\n"
            "runner: note: Stopped\n");
}

TEST(RunReportTest, ProgramsReadFieldsBetweenTabs) {
  const test::TextStream err;
  RunReport report(err.File(), ReportForm::Tab, "runner");
  report.SetFiles(OneFile());
  report.Signal("start");
  report.Say({2, 0, 7, 1}, "error", "a\tb\r\nc");
  report.Say({}, "note", "Stopped");
  report.Show({1, 0, 1, 5});
  report.Signal("end", "3");
  EXPECT_EQ(err.Text(),
            "start\n"
            "error\t/home/me/a.bas\t2\t7\t1\ta b  c\n"
            "note\t\t0\t0\t0\tStopped\n"
            "show\t/home/me/a.bas\t1\t1\t5\t\n"
            "end\t3\n");
}

TEST(RunReportTest, PeopleGetNoSignals) {
  const test::TextStream err;
  const RunReport report(err.File(), ReportForm::People, "runner");
  report.Signal("start");
  report.Show({1, 0, 1, 5});
  EXPECT_EQ(err.Text(), "");
}

TEST(RunReportTest, EveryEndHasItsExitCode) {
  const test::TextStream err;
  const RunReport report(err.File(), ReportForm::People, "runner");
  const auto exit_of = [&](basic::RunEnd end) {
    basic::RunResult result;
    result.End = end;
    return report.SayResult(result);
  };
  EXPECT_EQ(exit_of(basic::RunEnd::Ended), RunExit::Ended);
  EXPECT_EQ(exit_of(basic::RunEnd::Error), RunExit::Error);
  EXPECT_EQ(exit_of(basic::RunEnd::StepLimit), RunExit::Limit);
  EXPECT_EQ(exit_of(basic::RunEnd::TimeLimit), RunExit::Limit);
  EXPECT_EQ(exit_of(basic::RunEnd::Stopped), RunExit::Stopped);
}

TEST(RunReportTest, AStopIsSaidToPeopleOnly) {
  const test::TextStream tab;
  const test::TextStream people;
  basic::RunResult result;
  result.End = basic::RunEnd::Stopped;
  EXPECT_EQ(RunReport(tab.File(), ReportForm::Tab, "runner").SayResult(result), RunExit::Stopped);
  EXPECT_EQ(RunReport(people.File(), ReportForm::People, "runner").SayResult(result),
            RunExit::Stopped);
  EXPECT_EQ(tab.Text(), "");
  EXPECT_EQ(people.Text(), "runner: note: Stopped\n");
}

TEST(RunReportTest, ALongChainIsShortened) {
  const test::TextStream err;
  RunReport report(err.File(), ReportForm::People, "runner");
  report.SetFiles(OneFile());
  EXPECT_TRUE(ChainLines(report, {{"Deep", {1, 0, 1, 1}}}).empty());
  const std::vector<basic::CallSite> chain(10'000, {"Deep", {1, 0, 1, 1}});
  const std::vector<std::string> lines = ChainLines(report, chain);
  ASSERT_EQ(lines.size(), 21U);
  EXPECT_EQ(lines[0], "in Deep, /home/me/a.bas:1:1");
  EXPECT_EQ(lines[10], "...");
}

TEST(RunSettingsTest, WordsAreTakenWithTheirValues) {
  RunSettings settings;
  EXPECT_EQ(TakeSetting(settings, "--strict", ""), Taken::Alone);
  EXPECT_EQ(TakeSetting(settings, "--seed", "7"), Taken::Value);
  EXPECT_EQ(TakeSetting(settings, "--clock", "2024-02-29 13:05:09"), Taken::Value);
  EXPECT_EQ(TakeSetting(settings, "--max-steps", "-1"), Taken::Wrong);
  EXPECT_EQ(TakeSetting(settings, "--fast", "1"), Taken::No);
  EXPECT_TRUE(settings.Strict);
  EXPECT_EQ(settings.Options().Seed, 7U);
  EXPECT_EQ(settings.Clock->Day, 29);
}

}  // namespace
}  // namespace tarnwick::hosts
