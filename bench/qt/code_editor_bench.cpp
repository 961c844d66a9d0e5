// The code editor with fifty thousand lines in one event: from a key to the painted line, and the
// search over all functions, must take no longer than a frame of 16 ms, and so must every stop that
// the check of the text makes after a pause; opening such an event, and the check itself, are
// measured along with them. The whole main window is there.
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <algorithm>
#include <cstdint>
#include <string>

#include <benchmark/benchmark.h>

#include "editor/code_marks.h"
#include "fakes/build_paths.h"
#include "fakes/fake_instance_folders.h"
#include "fakes/fake_ports.h"
#include "platform/native_files.h"
#include "qt/editor/code_edit.h"
#include "qt/editor/code_marks_view.h"
#include "qt/frame/main_view.h"
#include "qt/frame/main_window.h"
#include "qt/kit/qt_ports.h"
#include "qt/kit/theme.h"
#include "shell/command_center.h"
#include "shell/mdi_form.h"
#include "text/path_text.h"

namespace tarnwick {
namespace {

constexpr int kLines = 50'000;

std::string LongCode() {
  std::string code;
  for (int line = 0; line < kLines; line += 5) {
    code +=
        "If Form1Text1.Text = \"a text\" Then ' what is typed\r\n"
        "  For i = 1 To 10\r\n"
        "    total = total + Val(Mid$(Form1Text1.Text, i, 1)) * 2\r\n"
        "  Next i\r\n"
        "End If\r\n";
  }
  return code;
}

/// The program after its start, with the long text as the code of the form's OnShow.
struct CodeDesk {
  FakePorts Fakes;
  NativeFiles Files;
  QtScreen Screen;
  Ports Given{Files, Fakes.Profiles, Fakes.Processes, Fakes.Messages, Fakes.Dialogs, Screen};
  FakeInstanceFolders Instances{Fakes.Files};
  MDIForm1 Shell{Given, Instances, PathFromNative(test::ProgramFolder())};
  MainWindow Window{Shell, Files};
  MainView View{Window, Shell};

  CodeDesk() {
    ApplyTheme(*qApp, Theme::Light);
    Window.show();
    View.Load();
    Shell.Time_Timer();
    Shell.Tables().EventTable.Replace("Form1.OnShow", LongCode());
    QApplication::processEvents();
  }
  void Open() {
    Shell.Commands().Run(Command::Code);
    QApplication::processEvents();
  }
  CodeEdit& Editor() { return *Window.findChild<CodeEdit*>(QStringLiteral("Editor")); }
  void Press(int key, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&Editor(), &press);
    QApplication::processEvents();
  }
};

/// A letter and a Backspace by turns, in the middle of the text.
void KeyToPaint(benchmark::State& state) {
  CodeDesk desk;
  desk.Open();
  desk.Editor().SetCaretPos(kLines / 2, 0);
  QApplication::processEvents();
  bool letter = true;
  for (auto _ : state) {
    if (letter) {
      desk.Press(Qt::Key_X, QStringLiteral("x"));
    } else {
      desk.Press(Qt::Key_Backspace, QString());
    }
    letter = !letter;
  }
}
BENCHMARK(KeyToPaint)->Unit(benchmark::kMillisecond);

/// An Enter and a Backspace by turns, which move all lines below.
void LineEndToPaint(benchmark::State& state) {
  CodeDesk desk;
  desk.Open();
  desk.Editor().SetCaretPos(kLines / 2, 0);
  QApplication::processEvents();
  bool enter = true;
  for (auto _ : state) {
    if (enter) {
      desk.Press(Qt::Key_Return, QStringLiteral("\r"));
    } else {
      desk.Press(Qt::Key_Backspace, QString());
    }
    enter = !enter;
  }
}
BENCHMARK(LineEndToPaint)->Unit(benchmark::kMillisecond);

/// The jump to the end colours all lines above for the first time.
void FirstKeyAtTheEnd(benchmark::State& state) {
  CodeDesk desk;
  for (auto _ : state) {
    state.PauseTiming();
    desk.Open();
    desk.Editor().SetCaretPos(kLines, 0);
    state.ResumeTiming();
    desk.Press(Qt::Key_X, QStringLiteral("x"));
    state.PauseTiming();
    desk.Editor().window()->close();
    state.ResumeTiming();
  }
}
BENCHMARK(FirstKeyAtTheEnd)->Unit(benchmark::kMillisecond);

void OpenLongEvent(benchmark::State& state) {
  CodeDesk desk;
  for (auto _ : state) {
    desk.Open();
    state.PauseTiming();
    desk.Editor().window()->close();
    QApplication::processEvents();
    state.ResumeTiming();
  }
}
BENCHMARK(OpenLongEvent)->Unit(benchmark::kMillisecond);

/// The check of the text, wherever it runs.
void CheckLongText(benchmark::State& state) {
  CodeDesk desk;
  desk.Open();
  const editor::CodeMarks marks(desk.Shell.Tables(), desk.Files);
  for (auto _ : state) {
    benchmark::DoNotOptimize(marks.EventCheck("Form1.OnShow").Run(desk.Editor().Text()));
  }
}
BENCHMARK(CheckLongText)->Unit(benchmark::kMillisecond);

/// The longest time for which the windows stand still from a key until its text has been checked.
void LongestStopOfCheck(benchmark::State& state) {
  CodeDesk desk;
  desk.Open();
  auto* marks = desk.Editor().findChild<CodeMarksView*>();
  for (auto _ : state) {
    desk.Press(Qt::Key_X, QStringLiteral("x"));
    QElapsedTimer all;
    all.start();
    std::int64_t longest = 0;
    bool checked = false;
    while (all.elapsed() < 5000 && !(checked && !marks->Checking())) {
      checked = checked || marks->Checking();
      QElapsedTimer step;
      step.start();
      QApplication::processEvents();
      longest = std::max(longest, static_cast<std::int64_t>(step.nsecsElapsed()));
    }
    if (!checked) state.SkipWithError("no check came");
    state.SetIterationTime(static_cast<double>(longest) / 1e9);
  }
}
BENCHMARK(LongestStopOfCheck)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

/// A letter that most help texts hold, looked for in names and descriptions.
void SearchAllFunctions(benchmark::State& state) {
  CodeDesk desk;
  desk.Open();
  auto* field = desk.Window.findChild<QLineEdit*>(QStringLiteral("EditSearch_2"));
  auto* where = desk.Window.findChild<QComboBox*>(QStringLiteral("ComboSearch"));
  auto* tabs = desk.Window.findChild<QTabWidget*>(QStringLiteral("TabOrder"));
  auto* search = desk.Window.findChild<QPushButton*>(QStringLiteral("btnSearch"));
  tabs->setCurrentIndex(2);
  where->setCurrentIndex(2);
  field->setText(QStringLiteral("e"));
  QApplication::processEvents();
  for (auto _ : state) {
    search->click();
    QApplication::processEvents();
  }
}
BENCHMARK(SearchAllFunctions)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick
