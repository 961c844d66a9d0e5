// F5 with the runner itself as a second process.
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QListView>
#include <QTest>
#include <QToolButton>
#include <filesystem>
#include <optional>

#include <gtest/gtest.h>

#include "fakes/build_paths.h"
#include "program.h"
#include "qt/editor/code_edit.h"
#include "qt/frame/output_panel.h"
#include "qt/kit/runner_process.h"
#include "shell/run_command.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr int kPatience = 20000;  // milliseconds

/// The real runner, with a note of each start.
class NotedRunner final : public RunnerPort {
 public:
  bool Start(const RunRequest& request, RunListener& listener) override {
    ++Starts;
    return runner_.Start(request, listener);
  }
  void Stop() override { runner_.Stop(); }
  [[nodiscard]] bool Running() const override { return runner_.Running(); }

  int Starts = 0;

 private:
  RunnerProcess runner_{QString::fromStdString(test::ProgramFolder() + "/tarnwick-run")};
};

class RealRun : public testing::Test {
 protected:
  RealRun() {
    program.emplace();
    program->Shell().Runner().Use(*runner);
  }
  ~RealRun() override {
    if (runner == nullptr || !runner->Running()) return;
    runner->Stop();
    EXPECT_TRUE(Until([this] { return !runner->Running(); }));
  }
  /// Opens an example from a copy of its folder, as the user does.
  void OpenExample(const std::string& name) {
    fs::copy(fs::path(test::SourceFolder()) / "examples" / name, program->Projects.Native(),
             fs::copy_options::recursive);
    program->Dialogs.OpenAnswers = {program->Projects.Path(name + ".tnp")};
    program->Key(Qt::Key_O, Qt::ControlModifier);
    ASSERT_EQ(program->Tables().SourceFile, program->Projects.Path(name + ".com"));
  }
  /// Saves the new project and gives its form this code, which runs when it is shown.
  void PutOnShow(const std::string& code) {
    program->Dialogs.SaveAnswers = {program->Projects.Path("p.tnp"),
                                    program->Projects.Path("f.ftn")};
    program->Key(Qt::Key_S, Qt::ControlModifier);
    program->Tables().EventTable.Replace("Form1.OnShow", code);
  }
  static bool Until(const std::function<bool()>& holds) {
    return QTest::qWaitFor(holds, kPatience);
  }
  std::string Status() {
    return program->Find<QLabel>(QStringLiteral("StatusText")).text().toStdString();
  }
  bool UntilStatus(const std::string& text) {
    return Until([&] { return Status().starts_with(text); });
  }
  /// The rows of the output panel as it is shown, a line each.
  std::string Shown() {
    OutputPanel& panel = program->Window().Output();
    if (!panel.isVisible()) return {};
    std::string text;
    QAbstractItemModel& rows = *panel.List().model();
    for (int row = 0; row < rows.rowCount(); ++row) {
      text += rows.index(row, 0).data().toString().toStdString() + "\n";
    }
    return text;
  }
  bool UntilShown(const std::string& text) {
    return Until([&] { return Shown().find(text) != std::string::npos; });
  }
  static QWidget* CodeEditor() {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (window->objectName() == QStringLiteral("FormCodigo") && window->isVisible()) {
        return window;
      }
    }
    return nullptr;
  }
  /// The line of the code editor's caret, from 1; 0 while it is closed.
  static int CaretLine() {
    QWidget* const code = CodeEditor();
    if (code == nullptr) return 0;
    int line = 0;
    int column = 0;
    code->findChild<CodeEdit*>(QStringLiteral("Editor"))->getCursorPosition(&line, &column);
    return line + 1;
  }
  /// The main window gets the keys again.
  void CloseCodeEditor() {
    CodeEditor()->close();
    program->Window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&program->Window()));
  }
  void Stop() { program->Key(Qt::Key_F5, Qt::ShiftModifier); }

  std::unique_ptr<NotedRunner> runner = std::make_unique<NotedRunner>();
  std::optional<Program> program;
};

TEST_F(RealRun, AnExampleRunsStopsAndRunsAgain) {
  OpenExample("temperature");
  program->Key(Qt::Key_F5);
  ASSERT_TRUE(UntilStatus("Running frmTemperature")) << Status();
  EXPECT_EQ(Shown(), "") << "an example says nothing";
  EXPECT_TRUE(program->Action(QStringLiteral("mnuStop")).isEnabled());
  Stop();
  ASSERT_TRUE(UntilStatus("frmTemperature stopped")) << Status();
  EXPECT_FALSE(program->Window().Output().isVisible()) << "a stop is nothing to be read";
  EXPECT_TRUE(Until([this] { return !program->Action(QStringLiteral("mnuStop")).isEnabled(); }));
  program->Key(Qt::Key_F5);
  ASSERT_TRUE(UntilStatus("Running frmTemperature"));
  EXPECT_EQ(runner->Starts, 2);
}

TEST_F(RealRun, ASecondF5StopsTheProgramAndStartsItAgain) {
  OpenExample("converter");
  program->Key(Qt::Key_F5);
  ASSERT_TRUE(UntilStatus("Running ")) << Status();
  program->Key(Qt::Key_F5);
  ASSERT_TRUE(Until([this] { return runner->Starts == 2; }));
  ASSERT_TRUE(UntilStatus("Running ")) << Status();
}

TEST_F(RealRun, WhatIsPrintedArrivesWhileTheProgramRuns) {
  PutOnShow("Print \"first\"\r\nPrint \"second, not ended\";");
  program->Key(Qt::Key_F5);
  ASSERT_TRUE(UntilShown("first\nsecond, not ended\n")) << Shown() << Status();
  EXPECT_TRUE(runner->Running());
  EXPECT_EQ(Status(), "Running Form1");
}

TEST_F(RealRun, NotesAreCountedAtTheEndAndLeadToTheirPlace) {
  PutOnShow("Kill \"C:\\\\none\\\\none.txt\"\r\nForm1.Close");
  program->Key(Qt::Key_F5);
  ASSERT_TRUE(UntilStatus("Form1 ended. 1 note")) << Status();
  ASSERT_TRUE(UntilShown("Form1.OnShow, line 1: ")) << Shown();
  QListView& list = program->Window().Output().List();
  list.setCurrentIndex(list.model()->index(0, 0));
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_TRUE(Until([] { return CaretLine() == 1; }));
}

TEST_F(RealRun, ARunTimeErrorLeadsToItsLineInTheCodeEditor) {
  PutOnShow("Dim n As Integer\r\nn = 0\r\nn = 5 \\ n");
  program->Key(Qt::Key_F5);
  // The program itself shows a message, and waits.
  ASSERT_TRUE(UntilStatus("Stopped: Form1.OnShow, line 3: ")) << Status();
  EXPECT_TRUE(runner->Running());
  ASSERT_TRUE(UntilShown("Form1.OnShow, line 3: ")) << Shown();
  QListView& list = program->Window().Output().List();
  const QPoint place = list.visualRect(list.model()->index(0, 0)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
  ASSERT_TRUE(Until([] { return CaretLine() == 3; })) << CaretLine();
  CloseCodeEditor();
  // The message goes with the program, at once and not by force.
  QElapsedTimer time;
  time.start();
  Stop();
  ASSERT_TRUE(Until([this] { return !runner->Running(); }));
  EXPECT_LT(time.elapsed(), 1900);
  EXPECT_TRUE(UntilStatus("Stopped: Form1.OnShow, line 3: ")) << Status();
}

TEST_F(RealRun, TheCodeEditorRunsAndStopsTheProgramToo) {
  PutOnShow("Print \"shown\"");
  program->Key(Qt::Key_F7);
  ASSERT_TRUE(Until([] { return CodeEditor() != nullptr; }));
  ASSERT_TRUE(QTest::qWaitForWindowActive(CodeEditor()));
  program->Key(Qt::Key_F5);
  ASSERT_TRUE(UntilShown("shown")) << Status();
  ASSERT_TRUE(QTest::qWaitForWindowActive(CodeEditor()));
  Stop();
  EXPECT_TRUE(UntilStatus("Form1 stopped")) << Status();
  CloseCodeEditor();
}

TEST_F(RealRun, AFaultySourceDoesNotStartAndIsShownWhereItStands) {
  PutOnShow("Dim n As Integer\r\nLable1.Caption = \"x\"");
  program->Key(Qt::Key_F5);
  ASSERT_TRUE(UntilStatus("Not started: Form1.OnShow, line 2: ")) << Status();
  EXPECT_TRUE(UntilShown("Lable1")) << Shown();
  EXPECT_TRUE(Until([] { return CaretLine() == 2; })) << CaretLine();
  CloseCodeEditor();
}

TEST_F(RealRun, AProgramThatHangsDoesNotHangTheIde) {
  PutOnShow("Do\r\nLoop");
  program->Key(Qt::Key_F5);
  ASSERT_TRUE(UntilStatus("Running Form1"));
  program->Place(3, {20, 120});
  EXPECT_EQ(program->Form().UBound(Kind::Label), 1);
  Stop();
  EXPECT_TRUE(UntilStatus("Form1 stopped")) << Status();
}

TEST_F(RealRun, AProgramThatPrintsWithoutEndDoesNotHangTheIde) {
  PutOnShow("Do\r\nPrint \"again and again\"\r\nLoop");
  program->Key(Qt::Key_F5);
  ASSERT_TRUE(UntilShown("again and again"));
  QElapsedTimer time;
  time.start();
  program->Place(3, {20, 120});
  EXPECT_EQ(program->Form().UBound(Kind::Label), 1);
  EXPECT_LT(time.elapsed(), kPatience);
  Stop();
  EXPECT_TRUE(UntilStatus("Form1 stopped")) << Status();
  EXPECT_LE(program->Shell().Runner().Lines().All().size(), 2 * RunLines::kMost);
}

TEST_F(RealRun, ClosingTheIdeLeavesTheProgramRunning) {
  TemporaryFolder folder;
  PutOnShow("Dim f As QFileStream\r\nf.Open(\"" + folder.Path("begun") +
            "\", fmCreate)\r\nf.Close\r\nSleep 1\r\nf.Open(\"" + folder.Path("lives") +
            "\", fmCreate)\r\nf.Close\r\nPrint \"nothing reads this\"\r\nf.Open(\"" +
            folder.Path("printed") + "\", fmCreate)\r\nf.Close\r\nForm1.Close");
  program->Key(Qt::Key_F5);
  ASSERT_TRUE(Until([&] { return fs::exists(folder.Native("begun")); })) << Status();
  program.reset();
  runner.reset();
  EXPECT_FALSE(fs::exists(folder.Native("lives")));
  EXPECT_TRUE(Until([&] { return fs::exists(folder.Native("printed")); }));
  EXPECT_TRUE(fs::exists(folder.Native("lives")));
}

TEST_F(RealRun, TheRunnerThatIsChosenRunsAlthoughThereIsACompiler) {
  program->Home.Write("Rc.exe", "#!/bin/sh\n");
  fs::permissions(program->Home.Native("Rc.exe"), fs::perms::owner_all);
  PutOnShow("Print \"by the runner\"");
  program->Log.Clear();
  program->Key(Qt::Key_F5);
  EXPECT_EQ(program->Log.Count("start "), 1U);
  EXPECT_EQ(runner->Starts, 0);
  program->Action(QStringLiteral("mnuRunWithRunner")).trigger();
  program->Key(Qt::Key_F5);
  EXPECT_TRUE(UntilShown("by the runner")) << Status();
  EXPECT_EQ(program->Log.Count("start "), 1U);
  EXPECT_EQ(program->Home.Read("Tarnwick.ini").find("With=runner") == std::string::npos, false);
}

}  // namespace
}  // namespace tarnwick
