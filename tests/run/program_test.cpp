// The program itself: exit codes, report lines, stopping, its own windows.
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include "fakes/build_paths.h"
#include "fakes/temporary_folder.h"
#include "run/message_windows.h"

namespace tarnwick {
namespace {

struct Outcome {
  int Exit = -1;
  QString Out;
  QString Err;
};

class RunnerProcess {
 public:
  RunnerProcess(const std::string& source, QStringList words) {
    folder_.Write("p.bas", source);
    path_ = QString::fromStdString(folder_.Native("p.bas"));
    words << path_;
    process_.start(QString::fromStdString(test::ProgramFolder() + "/tarnwick-run"), words);
    process_.waitForStarted();
  }
  /// Waits until a text is there on standard error.
  bool WaitFor(const QString& text) {
    QElapsedTimer clock;
    clock.start();
    while (!err_.contains(text) && clock.elapsed() < 20'000) {
      process_.waitForReadyRead(50);
      err_ += QString::fromUtf8(process_.readAllStandardError());
    }
    return err_.contains(text);
  }
  void Write(const char* text) {
    process_.write(text);
    process_.waitForBytesWritten();
  }
  void CloseInput() { process_.closeWriteChannel(); }
  Outcome End() {
    const bool ended = process_.waitForFinished(20'000);
    if (!ended) process_.kill();
    err_ += QString::fromUtf8(process_.readAllStandardError());
    return {ended ? process_.exitCode() : -1, QString::fromUtf8(process_.readAllStandardOutput()),
            err_.replace(path_, QStringLiteral("P"))};
  }

 private:
  TemporaryFolder folder_;
  QString path_;
  QString err_;
  QProcess process_;
};

const QStringList kIde{QStringLiteral("--with-ide"), QStringLiteral("--report=tab")};
constexpr auto kWindow = "DIM F AS QFORM\nF.ShowModal\n";

TEST(RunnerProgramTest, AProgramThatEndsHasExitCodeZero) {
  RunnerProcess runner("PRINT \"done\"\n", kIde);
  const Outcome outcome = runner.End();
  EXPECT_EQ(outcome.Exit, 0) << outcome.Err.toStdString();
  EXPECT_EQ(outcome.Out, QStringLiteral("done\n"));
  EXPECT_TRUE(outcome.Err.endsWith(QStringLiteral("start\nend\t0\n"))) << outcome.Err.toStdString();
}

TEST(RunnerProgramTest, AFaultySourceIsReportedWithItsPlace) {
  RunnerProcess runner("$TYPECHECK ON\nx = 1\n", kIde);
  const Outcome outcome = runner.End();
  EXPECT_EQ(outcome.Exit, 1);
  EXPECT_TRUE(outcome.Err.contains(QStringLiteral("error\tP\t2\t1\t1\t")))
      << outcome.Err.toStdString();
  EXPECT_TRUE(outcome.Err.endsWith(QStringLiteral("end\t1\n")));
}

TEST(RunnerProgramTest, TheIncludeFileOfTheLanguageIsAtHandWithoutAFolderGiven) {
  RunnerProcess runner("$INCLUDE \"rapidq.inc\"\nPRINT goRowSelect\n", kIde);
  const Outcome outcome = runner.End();
  EXPECT_EQ(outcome.Exit, 0) << outcome.Err.toStdString();
  EXPECT_EQ(outcome.Out, QStringLiteral("12\n"));
}

TEST(RunnerProgramTest, TheWordStopEndsAProgramThatWaits) {
  RunnerProcess runner(kWindow, kIde);
  ASSERT_TRUE(runner.WaitFor(QStringLiteral("start")));
  runner.Write("stop\n");
  EXPECT_EQ(runner.End().Exit, 5);
}

TEST(RunnerProgramTest, TheEndOfTheInputStopsAProgramThatIsBusy) {
  RunnerProcess runner("DO\nLOOP\n", kIde);
  ASSERT_TRUE(runner.WaitFor(QStringLiteral("start")));
  runner.CloseInput();
  EXPECT_EQ(runner.End().Exit, 5);
}

TEST(RunnerProgramTest, TheEndOfTheInputStopsAProgramThatWaits) {
  // What is left when the program that started it is killed.
  for (const char* const text : {kWindow, "ShowMessage \"wait\"\n", "INPUT x\n"}) {
    RunnerProcess runner(text, kIde);
    ASSERT_TRUE(runner.WaitFor(QStringLiteral("start")));
    runner.CloseInput();
    EXPECT_EQ(runner.End().Exit, 5) << text;
  }
}

TEST(RunnerProgramTest, TheWordStopClosesTheMessageOfAnError) {
  RunnerProcess runner("x = 0\nx = 1 \\ x\n", kIde);
  ASSERT_TRUE(runner.WaitFor(QStringLiteral("error\t")));
  runner.Write("stop\n");
  EXPECT_EQ(runner.End().Exit, 3);
}

TEST(RunnerProgramTest, TheWordStopClosesAMessageOfTheProgram) {
  RunnerProcess runner("ShowMessage \"wait\"\nPRINT \"not reached\"\n", kIde);
  ASSERT_TRUE(runner.WaitFor(QStringLiteral("start")));
  runner.Write("stop\n");
  const Outcome outcome = runner.End();
  EXPECT_EQ(outcome.Exit, 5);
  EXPECT_EQ(outcome.Out, QString());
}

TEST(RunnerProgramTest, TheWordStopEndsAProgramThatWaitsForALine) {
  RunnerProcess runner("INPUT \"name\"; n$\nPRINT \"not reached\"\n", kIde);
  ASSERT_TRUE(runner.WaitFor(QStringLiteral("start")));
  runner.Write("stop\n");
  const Outcome outcome = runner.End();
  EXPECT_EQ(outcome.Exit, 5);
  EXPECT_FALSE(outcome.Out.contains(QStringLiteral("not reached")));
}

TEST(RunnerProgramTest, TheWordLeaveLetsAProgramGoOnAlone) {
  RunnerProcess runner("SLEEP 0.4\nPRINT \"still there\"\n", kIde);
  ASSERT_TRUE(runner.WaitFor(QStringLiteral("start")));
  runner.Write("leave\n");
  runner.CloseInput();
  const Outcome outcome = runner.End();
  EXPECT_EQ(outcome.Exit, 0);
  EXPECT_EQ(outcome.Out, QStringLiteral("still there\n"));
}

/// Forms that are shown in each other's OnShow, each closed when the inner one is.
std::string NestedForms(int depth) {
  return "DIM F(250) AS QFORM\nDIM n AS INTEGER\n"
         "SUB Shown (Sender AS QFORM)\nn = n + 1\nIF n < " +
         std::to_string(depth) +
         " THEN F(n).ShowModal\nSender.Close\nEND SUB\n"
         "FOR i = 0 TO 250\nF(i).OnShow = Shown\nNEXT i\nF(0).ShowModal\nPRINT n; \" back\"\n";
}

TEST(RunnerProgramTest, WindowsWaitInEachOtherUpToALimit) {
  RunnerProcess below(NestedForms(199), kIde);
  const Outcome good = below.End();
  EXPECT_EQ(good.Exit, 0) << good.Err.toStdString();
  EXPECT_EQ(good.Out, QStringLiteral("199 back\n"));
  RunnerProcess above(NestedForms(201), kIde);
  ASSERT_TRUE(above.WaitFor(QStringLiteral("More than 200 events")));
  above.Write("stop\n");
  const Outcome bad = above.End();
  EXPECT_EQ(bad.Exit, 3) << bad.Err.toStdString();
  EXPECT_EQ(bad.Out, QString());
}

TEST(RunnerProgramTest, LimitsEndAProgramThatWaitsOrWorks) {
  RunnerProcess waits(kWindow, kIde + QStringList{QStringLiteral("--max-seconds=0.3")});
  EXPECT_EQ(waits.End().Exit, 4);
  RunnerProcess works("DO\nLOOP\n", kIde + QStringList{QStringLiteral("--max-steps=1000")});
  EXPECT_EQ(works.End().Exit, 4);
}

TEST(RunnerProgramTest, TheTraceHasTheChangesThatTheWindowsShow) {
  const TemporaryFolder folder;
  const std::string file = folder.Native("trace.txt");
  RunnerProcess runner(
      "DIM F AS QFORM: DIM L AS QLABEL: L.Parent = F: L.Caption = \"one\"\n"
      "F.Show\nL.Caption = \"two\": L.Free\n",
      kIde + QStringList{QStringLiteral("--trace"), QString::fromStdString(file)});
  EXPECT_EQ(runner.End().Exit, 0);
  const std::string trace = folder.Read("trace.txt");
  EXPECT_TRUE(trace.starts_with("realise F QFORM\nrealise L QLABEL\n")) << trace;
  EXPECT_NE(trace.find("\nF.Visible = 1\n"), std::string::npos) << trace;
  EXPECT_NE(trace.find("\nL.Caption = two\n"), std::string::npos) << trace;
  EXPECT_NE(trace.find("\ndestroy L\n"), std::string::npos) << trace;
}

TEST(RunnerProgramTest, ATraceThatCannotBeWrittenIsUsage) {
  const TemporaryFolder folder;
  RunnerProcess runner("PRINT 1\n",
                       kIde + QStringList{QStringLiteral("--trace"),
                                          QString::fromStdString(folder.Native("none/t.txt"))});
  const Outcome outcome = runner.End();
  EXPECT_EQ(outcome.Exit, 2);
  EXPECT_EQ(outcome.Out, QString());
}

TEST(RunnerProgramTest, WrongWordsAreUsage) {
  RunnerProcess runner("PRINT 1\n", {QStringLiteral("--fast")});
  EXPECT_EQ(runner.End().Exit, 2);
}

// --- The windows in which it speaks

/// Does something to the window that waits.
void WhenItWaits(std::function<void(QDialog&)> act) {
  QTimer::singleShot(50, qApp, [act = std::move(act)] {
    auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    act(*box);
  });
}

const run::FaultText kFault{
    QStringLiteral("p.bas"),
    QStringLiteral("Division by zero"),
    QStringLiteral("p.bas:3:1"),
    QStringLiteral("x = 1 / n"),
    {QStringLiteral("in Deep, p.bas:3:1"), QStringLiteral("in the program")}};

TEST(MessageWindowsTest, TheErrorBoxShowsPlaceLineAndCalls) {
  WhenItWaits([](QDialog& box) {
    EXPECT_EQ(box.findChild<QLabel*>(QStringLiteral("What"))->text(), kFault.What);
    EXPECT_EQ(box.findChild<QLabel*>(QStringLiteral("Place"))->text(), kFault.Place);
    EXPECT_EQ(box.findChild<QLabel*>(QStringLiteral("Line"))->text(), kFault.Line);
    EXPECT_EQ(box.findChild<QListWidget*>(QStringLiteral("Chain"))->count(), 2);
    EXPECT_EQ(box.findChild<QPushButton*>(QStringLiteral("Show")), nullptr);
    box.findChild<QPushButton*>(QStringLiteral("Close"))->click();
  });
  EXPECT_FALSE(run::ShowFault(kFault, false));
}

TEST(MessageWindowsTest, TheErrorBoxOfTheIdeCanShowThePlace) {
  WhenItWaits([](QDialog& box) { box.findChild<QPushButton*>(QStringLiteral("Show"))->click(); });
  EXPECT_TRUE(run::ShowFault(kFault, true));
}

TEST(MessageWindowsTest, TheErrorsOfASourceAreAList) {
  WhenItWaits([](QDialog& box) {
    EXPECT_EQ(box.findChild<QListWidget*>(QStringLiteral("Errors"))->count(), 2);
    box.reject();
  });
  run::ShowErrors(QStringLiteral("p.bas"), {QStringLiteral("one"), QStringLiteral("two")});
}

}  // namespace
}  // namespace tarnwick
