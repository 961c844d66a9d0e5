// The runner as a process, played by small shell scripts.
#include "qt/kit/runner_process.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

class Listener final : public RunListener {
 public:
  std::string Output;
  std::vector<std::string> Messages;
  bool Started = false;
  std::vector<RunnerEnd> Ends;
  std::function<void()> OnEnded;

  void RunStarted() override { Started = true; }
  void RunOutput(std::string_view text) override { Output += text; }
  void RunMessaged(const RunMessage& message) override {
    Messages.push_back(message.File + ":" + std::to_string(message.Line) + ":" + message.Text);
  }
  void RunShows(const RunMessage& place) override {
    Messages.push_back("show " + std::to_string(place.Line));
  }
  void RunEnded(RunnerEnd how) override {
    Ends.push_back(how);
    if (OnEnded) OnEnded();
  }
};

class RunnerProcessTest : public ::testing::Test {
 protected:
  /// The path of a script with these lines.
  QString Script(const QByteArray& lines) {
    const QString path = folder.filePath(QStringLiteral("runner%1").arg(++scripts));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + lines);
    file.close();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
  }
  bool WaitForEnd() {
    return QTest::qWaitFor([this] { return !listener.Ends.empty(); }, 8000);
  }

  QTemporaryDir folder;
  int scripts = 0;
  Listener listener;
  RunRequest request{"Z:\\p\\a.com", "Z:\\opt\\t", "Z:\\p\\a.exe"};
};

TEST_F(RunnerProcessTest, ReportOutputAndEndReachTheListener) {
  RunnerProcess runner(
      Script("printf 'start\\nnote\\t/p/a.com\\t3\\t1\\t1\\tsome text\\n' >&2\n"
             "printf 'h\\303\\251llo\\n'\nexit 3\n"));
  ASSERT_TRUE(runner.Start(request, listener));
  EXPECT_TRUE(runner.Running());
  EXPECT_FALSE(listener.Started) << "heard within Start";
  ASSERT_TRUE(WaitForEnd());
  EXPECT_TRUE(listener.Started);
  EXPECT_EQ(listener.Output, "h\xE9llo\n");
  EXPECT_EQ(listener.Messages, std::vector<std::string>{"/p/a.com:3:some text"});
  EXPECT_EQ(listener.Ends, std::vector<RunnerEnd>{RunnerEnd::RunTimeError});
  EXPECT_FALSE(runner.Running());
}

TEST_F(RunnerProcessTest, TheWordsOfTheCommandLineAreThoseOfTheRunner) {
  RunnerProcess runner(Script("for word; do printf '%s|' \"$word\"; done\n"));
  ASSERT_TRUE(runner.Start(request, listener));
  ASSERT_TRUE(WaitForEnd());
  EXPECT_EQ(listener.Output,
            "--with-ide|--report=tab|--program-folder|Z:\\opt\\t|--exe-name|Z:\\p\\a.exe|"
            "Z:\\p\\a.com|");
  EXPECT_EQ(listener.Ends, std::vector<RunnerEnd>{RunnerEnd::Ended});
}

TEST_F(RunnerProcessTest, StopIsAWordOnItsInput) {
  RunnerProcess runner(Script("read line\n[ \"$line\" = stop ] && exit 5\nexit 1\n"));
  ASSERT_TRUE(runner.Start(request, listener));
  runner.Stop();
  ASSERT_TRUE(WaitForEnd());
  EXPECT_EQ(listener.Ends, std::vector<RunnerEnd>{RunnerEnd::Stopped});
}

TEST_F(RunnerProcessTest, AProgramThatComesToItsEndWhenStoppedWasStopped) {
  RunnerProcess runner(Script("read line\nexit 0\n"));
  ASSERT_TRUE(runner.Start(request, listener));
  runner.Stop();
  ASSERT_TRUE(WaitForEnd());
  EXPECT_EQ(listener.Ends, std::vector<RunnerEnd>{RunnerEnd::Stopped});
}

TEST_F(RunnerProcessTest, AProgramThatDoesNotStopIsEndedAfterTwoSeconds) {
  RunnerProcess runner(Script("exec sleep 30\n"));
  ASSERT_TRUE(runner.Start(request, listener));
  QElapsedTimer time;
  time.start();
  runner.Stop();
  ASSERT_TRUE(WaitForEnd());
  EXPECT_GE(time.elapsed(), 1900);
  EXPECT_EQ(listener.Ends, std::vector<RunnerEnd>{RunnerEnd::Stopped});
}

TEST_F(RunnerProcessTest, ARunnerThatDiesIsAFault) {
  RunnerProcess runner(Script("kill -9 $$\n"));
  ASSERT_TRUE(runner.Start(request, listener));
  ASSERT_TRUE(WaitForEnd());
  EXPECT_EQ(listener.Ends, std::vector<RunnerEnd>{RunnerEnd::RunnerFault});
}

TEST_F(RunnerProcessTest, ARunnerThatFailsSaysWhyInItsOwnWords) {
  RunnerProcess runner(Script("printf 'start\\nno display\\nend\\t6\\n' >&2\nexit 6\n"));
  ASSERT_TRUE(runner.Start(request, listener));
  ASSERT_TRUE(WaitForEnd());
  EXPECT_EQ(listener.Messages, std::vector<std::string>{":0:no display"});
  EXPECT_EQ(listener.Ends, std::vector<RunnerEnd>{RunnerEnd::RunnerFault});
}

TEST_F(RunnerProcessTest, WithoutARunnerNothingStarts) {
  RunnerProcess runner(folder.filePath(QStringLiteral("none")));
  EXPECT_FALSE(runner.Start(request, listener));
  EXPECT_FALSE(runner.Running());
}

TEST_F(RunnerProcessTest, OneProgramRunsAtATimeAndTheNextStartsFromTheEndOfTheLast) {
  RunnerProcess runner(Script("read line\nexit 0\n"));
  ASSERT_TRUE(runner.Start(request, listener));
  EXPECT_FALSE(runner.Start(request, listener));
  bool again = false;
  listener.OnEnded = [&] {
    if (!again) again = runner.Start(request, listener);
  };
  runner.Stop();
  ASSERT_TRUE(WaitForEnd());
  EXPECT_TRUE(again);
  runner.Stop();
  EXPECT_TRUE(QTest::qWaitFor([this] { return listener.Ends.size() == 2; }, 8000));
}

TEST_F(RunnerProcessTest, AProgramOutlivesTheIde) {
  const QString mark = folder.filePath(QStringLiteral("lives"));
  {
    RunnerProcess runner(
        Script("read line\nsleep 0.3\nprintf '%s' \"$line\" > '" + mark.toLocal8Bit() + "'\n"));
    ASSERT_TRUE(runner.Start(request, listener));
  }
  QFile file(mark);
  ASSERT_TRUE(QTest::qWaitFor([&] { return file.exists() && file.size() > 0; }, 8000));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "leave");
  EXPECT_TRUE(listener.Ends.empty());
}

}  // namespace
}  // namespace tarnwick
