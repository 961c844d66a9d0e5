#include "platform/run_report_reader.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

/// Keeps what it hears, a line each.
class Listener final : public RunListener {
 public:
  std::vector<std::string> Heard;
  std::vector<RunMessage> Messages;

  void RunStarted() override { Heard.emplace_back("start"); }
  void RunOutput(std::string_view text) override { Heard.emplace_back(text); }
  void RunMessaged(const RunMessage& message) override {
    Heard.emplace_back(message.Severity == RunSeverity::Error ? "error" : "note");
    Messages.push_back(message);
  }
  void RunShows(const RunMessage& place) override {
    Heard.emplace_back("show");
    Messages.push_back(place);
  }
  void RunEnded(RunnerEnd /*how*/) override { Heard.emplace_back("end"); }
};

TEST(RunReportReader, AMessageHasItsFields) {
  Listener listener;
  RunReportReader reader(listener);
  reader.Take("error\t/home/me/a.com\t12\t3\t4\t\"x\" is not declared\n");
  ASSERT_EQ(listener.Messages.size(), 1U);
  const RunMessage& message = listener.Messages[0];
  EXPECT_EQ(message.Severity, RunSeverity::Error);
  EXPECT_EQ(message.File, "/home/me/a.com");
  EXPECT_EQ(message.Line, 12);
  EXPECT_EQ(message.Column, 3);
  EXPECT_EQ(message.Length, 4);
  EXPECT_EQ(message.Text, "\"x\" is not declared");
}

TEST(RunReportReader, LinesComeInPiecesOfAnySize) {
  const std::string report = "start\r\nnote\ta\t1\t1\t1\tone\ttab\nshow\ta\t2\t0\t0\t\nend\t0\n";
  for (std::size_t size = 1; size <= report.size(); ++size) {
    Listener listener;
    RunReportReader reader(listener);
    for (std::size_t at = 0; at < report.size(); at += size) reader.Take(report.substr(at, size));
    EXPECT_EQ(listener.Heard, (std::vector<std::string>{"start", "note", "show"})) << size;
    EXPECT_EQ(listener.Messages[0].Text, "one\ttab");
    EXPECT_EQ(listener.Messages[1].Line, 2);
  }
}

TEST(RunReportReader, OtherLinesArePassedOver) {
  Listener listener;
  RunReportReader reader(listener);
  reader.Take("\nQt: something\nerror\tshort\nerrors\ta\t1\t1\t1\tx\n");
  EXPECT_TRUE(listener.Heard.empty());
  EXPECT_EQ(reader.LastOther(), "errors\ta\t1\t1\t1\tx");
  reader.Take("no caf\xC3\xA9 here \nend\t6\n\n");
  EXPECT_EQ(reader.LastOther(), "no caf\xE9 here");
}

TEST(RunReportReader, ALineWithoutEndIsNotKeptForEver) {
  Listener listener;
  RunReportReader reader(listener);
  reader.Take(std::string(1'000'001, 'x'));
  reader.Take("start\n");
  EXPECT_EQ(listener.Heard, std::vector<std::string>{"start"});
}

TEST(RunReportReader, NumbersThatAreNoneAreZeroAndTextIsOfTheCodePage) {
  Listener listener;
  RunReportReader reader(listener);
  reader.Take("note\t\xC3\xA9.com\tx\t99999999999\t\t\xE2\x82\xAC\n");
  EXPECT_EQ(listener.Messages[0].File, "\xE9.com");
  EXPECT_EQ(listener.Messages[0].Line, 0);
  EXPECT_EQ(listener.Messages[0].Column, 0);
  EXPECT_EQ(listener.Messages[0].Text, "\x80");
}

TEST(Utf8Pieces, CutCharactersWaitForTheirRest) {
  Utf8Pieces pieces;
  std::string text;
  for (const char byte : std::string("a\xC3\xA9"
                                     "b\xE2\x82\xAC"
                                     "c")) {
    text += pieces.Take(std::string_view(&byte, 1));
  }
  EXPECT_EQ(text,
            "a\xE9"
            "b\x80"
            "c");
}

TEST(RunnerEnd, UnknownCodesAreFaultsOfTheRunner) {
  EXPECT_EQ(RunnerEndOf(0), RunnerEnd::Ended);
  EXPECT_EQ(RunnerEndOf(3), RunnerEnd::RunTimeError);
  EXPECT_EQ(RunnerEndOf(6), RunnerEnd::RunnerFault);
  EXPECT_EQ(RunnerEndOf(127), RunnerEnd::RunnerFault);
  EXPECT_EQ(RunnerEndOf(-1), RunnerEnd::RunnerFault);
}

}  // namespace
}  // namespace tarnwick
