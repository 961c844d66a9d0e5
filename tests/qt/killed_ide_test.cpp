// An IDE that is killed while a program runs, and one that has let its program go before. The IDE
// is this test program itself, started once more.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QThread>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "fakes/build_paths.h"
#include "fakes/temporary_folder.h"
#include "qt/kit/runner_process.h"

namespace tarnwick {
namespace {

constexpr auto kSource = "TARNWICK_TEST_SOURCE";  ///< set: this process plays the IDE
constexpr auto kLeaves = "TARNWICK_TEST_LEAVES";  ///< set: it lets the program go
constexpr int kPatience = 20000;                  // milliseconds

class Listener final : public RunListener {
 public:
  bool Started = false;
  void RunStarted() override { Started = true; }
  void RunOutput(std::string_view) override {}
  void RunMessaged(const RunMessage&) override {}
  void RunShows(const RunMessage&) override {}
  void RunEnded(RunnerEnd) override {}
};

/// Starts the program, says so, and waits to be killed.
[[noreturn]] void PlayIde() {
  Listener listener;
  auto runner = std::make_unique<RunnerProcess>(
      QString::fromStdString(test::ProgramFolder() + "/tarnwick-run"));
  const std::string source = PathFromNative(qEnvironmentVariable(kSource).toStdString());
  if (!runner->Start({source, "C:\\p", "C:\\p\\p.exe"}, listener)) std::_Exit(1);
  QEventLoop events;
  while (!listener.Started) events.processEvents(QEventLoop::WaitForMoreEvents);
  if (qEnvironmentVariableIsSet(kLeaves)) runner.reset();
  std::puts("the program runs");
  std::fflush(stdout);
  events.exec();
  std::_Exit(0);
}

/// A process whose children become this one's when it is killed.
class KilledIde : public testing::Test {
 protected:
  KilledIde() { ::prctl(PR_SET_CHILD_SUBREAPER, 1); }
  ~KilledIde() override {
    if (runner_ > 0) ::kill(runner_, SIGKILL);
    if (runner_ > 0) ::waitpid(runner_, nullptr, 0);
    ::prctl(PR_SET_CHILD_SUBREAPER, 0);
  }

  /// Starts the IDE with this program, waits until that runs, and kills the IDE.
  void KillWhileItRuns(const std::string& program, bool leaves = false) {
    folder.Write("p.bas", program);
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(kSource),
                       QString::fromStdString(folder.Native("p.bas")));
    if (leaves) environment.insert(QString::fromLatin1(kLeaves), QStringLiteral("1"));
    QProcess ide;
    ide.setProcessEnvironment(environment);
    ide.start(QCoreApplication::applicationFilePath(),
              {QStringLiteral("--gtest_filter=KilledIde.") + QString::fromLatin1(test.name())});
    QByteArray said;
    QElapsedTimer clock;
    clock.start();
    while (!said.contains("the program runs") && clock.elapsed() < kPatience) {
      ide.waitForReadyRead(100);
      said += ide.readAllStandardOutput();
    }
    ASSERT_TRUE(said.contains("the program runs")) << said.toStdString();
    const QString pid = QString::number(ide.processId());
    QFile children(QStringLiteral("/proc/%1/task/%1/children").arg(pid));
    ASSERT_TRUE(children.open(QIODevice::ReadOnly));
    runner_ = children.readAll().trimmed().toInt();
    ASSERT_GT(runner_, 0);
    ::kill(static_cast<pid_t>(ide.processId()), SIGKILL);
    ASSERT_TRUE(ide.waitForFinished(kPatience));
    EXPECT_EQ(ide.exitStatus(), QProcess::CrashExit);
  }
  /// The exit code of the program that ran; nothing when it goes on for so long.
  std::optional<int> EndWithin(int milliseconds) {
    QElapsedTimer clock;
    clock.start();
    do {
      int status = 0;
      if (::waitpid(runner_, &status, WNOHANG) == runner_) {
        runner_ = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
      }
      QThread::msleep(20);
    } while (clock.elapsed() < milliseconds);
    return std::nullopt;
  }

  TemporaryFolder folder;
  pid_t runner_ = 0;
};

TEST_F(KilledIde, AProgramThatShowsAWindowEndsWithIt) {
  if (qEnvironmentVariableIsSet(kSource)) PlayIde();
  ASSERT_NO_FATAL_FAILURE(KillWhileItRuns("DIM F AS QFORM\nF.ShowModal\n"));
  EXPECT_EQ(EndWithin(kPatience), 5);
}

TEST_F(KilledIde, ABusyProgramEndsWithIt) {
  if (qEnvironmentVariableIsSet(kSource)) PlayIde();
  ASSERT_NO_FATAL_FAILURE(KillWhileItRuns("DO\nLOOP\n"));
  EXPECT_EQ(EndWithin(kPatience), 5);
}

TEST_F(KilledIde, AProgramThatItLetGoGoesOn) {
  if (qEnvironmentVariableIsSet(kSource)) PlayIde();
  ASSERT_NO_FATAL_FAILURE(KillWhileItRuns(
      "DO\nSLEEP .05\nLOOP UNTIL FILEEXISTS(\"" + folder.Path("end") + "\")\n", true));
  EXPECT_EQ(EndWithin(500), std::nullopt);
  folder.Write("end", "");
  EXPECT_EQ(EndWithin(kPatience), 0);
}

}  // namespace
}  // namespace tarnwick
