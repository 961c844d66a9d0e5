// Who shows what went wrong: the runner in a window of its own, or the program that started it.
#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QTimer>
#include <array>
#include <cstdio>
#include <optional>

#include <gtest/gtest.h>
#include <unistd.h>

#include "fakes/temporary_folder.h"
#include "fakes/text_stream.h"
#include "run/session.h"
#include "run/views/run_form.h"

namespace tarnwick {
namespace {

using hosts::RunExit;

/// A window in which the runner spoke.
struct Spoken {
  QString Name;
  QString What;
  QString Place;
  int Calls = 0;
  bool CanShow = false;
  bool FormsLeft = false;
};

/// Runs a program and closes the window in which the runner speaks by one of its buttons.
class SpokenRun {
 public:
  explicit SpokenRun(const std::string& text) {
    folder_.Write("p.bas", text);
    Source = folder_.Native("p.bas");
    QObject::connect(&closing_, &QTimer::timeout, &closing_, [this] { Look(); });
    closing_.start(10);
  }

  RunExit Run(const run::RunnerArguments& arguments, std::FILE* in = stdin) {
    const test::TextStream out;
    const test::TextStream err;
    const RunExit exit = run::RunSession(arguments, {in, out.File(), err.File()});
    Err = err.Text();
    return exit;
  }

  std::string Source;
  std::string Err;
  std::optional<Spoken> Seen;
  const char* Button = "Close";

 private:
  void Look() {
    auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    Seen.emplace();
    Seen->Name = box->objectName();
    Seen->What = TextOf(*box, "What");
    Seen->Place = TextOf(*box, "Place");
    if (auto* const list = box->findChild<QListWidget*>()) Seen->Calls = list->count();
    Seen->CanShow = box->findChild<QAbstractButton*>(QStringLiteral("Show")) != nullptr;
    for (const QWidget* const window : QApplication::topLevelWidgets()) {
      Seen->FormsLeft |= dynamic_cast<const run::RunForm*>(window) != nullptr;
    }
    auto* const button = box->findChild<QAbstractButton*>(QString::fromLatin1(Button));
    if (button != nullptr) {
      button->click();
    } else {
      box->reject();
    }
  }
  static QString TextOf(const QDialog& box, const char* name) {
    const auto* const label = box.findChild<QLabel*>(QString::fromLatin1(name));
    return label == nullptr ? QString() : label->text();
  }

  TemporaryFolder folder_;
  QTimer closing_;
};

constexpr auto kFaulty =
    "DIM F AS QFORM\nSUB Deep\nDIM x AS INTEGER\nx = 1 \\ x\nEND SUB\nF.Show\nDeep\n";

TEST(SessionWindowsTest, AFaultOfAProgramStartedByHandHasAWindow) {
  SpokenRun run(kFaulty);
  run::RunnerArguments arguments;
  arguments.Source = run.Source;
  EXPECT_EQ(run.Run(arguments), RunExit::Error);
  ASSERT_TRUE(run.Seen.has_value());
  EXPECT_EQ(run.Seen->Name, QStringLiteral("RunTimeError"));
  EXPECT_EQ(run.Seen->What, QStringLiteral("Division by zero"));
  EXPECT_EQ(run.Seen->Place.toStdString(), run.Source + ":4:1");
  EXPECT_EQ(run.Seen->Calls, 2);
  EXPECT_FALSE(run.Seen->CanShow);
  EXPECT_FALSE(run.Seen->FormsLeft) << "the windows of the program are closed";
  EXPECT_TRUE(run.Err.starts_with(run.Source + ":4:1: error: Division by zero\n")) << run.Err;
}

TEST(SessionWindowsTest, SoHasOneThatIsStartedByTheWordsOfTheCompiler) {
  SpokenRun run(kFaulty);
  std::string wrong;
  const auto arguments =
      run::ReadRunnerArguments({"/COMPILE", "", run.Source, "p.exe", "p.exe"}, wrong);
  ASSERT_TRUE(arguments.has_value()) << wrong;
  EXPECT_EQ(run.Run(*arguments), RunExit::Error);
  ASSERT_TRUE(run.Seen.has_value());
  EXPECT_EQ(run.Seen->What, QStringLiteral("Division by zero"));
  EXPECT_FALSE(run.Seen->CanShow);
}

/// What the program that started the runner holds open.
class Pipe {
 public:
  Pipe() {
    if (::pipe(ends_.data()) != 0) throw std::runtime_error("no pipe");
    in_ = ::fdopen(ends_[0], "rb");
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;
  ~Pipe() {
    ::close(ends_[1]);
    std::fclose(in_);
  }
  [[nodiscard]] std::FILE* In() const { return in_; }

 private:
  std::array<int, 2> ends_{};
  std::FILE* in_ = nullptr;
};

run::RunnerArguments FromIde(const SpokenRun& run) {
  run::RunnerArguments arguments;
  arguments.Source = run.Source;
  arguments.WithIde = true;
  arguments.Report = hosts::ReportForm::Tab;
  return arguments;
}

TEST(SessionWindowsTest, AFaultOfAProgramOfTheIdeIsReportedAndHasAWayToItsLine) {
  for (const char* const button : {"Show", "Close"}) {
    SpokenRun run(kFaulty);
    run.Button = button;
    const Pipe pipe;
    EXPECT_EQ(run.Run(FromIde(run), pipe.In()), RunExit::Error);
    ASSERT_TRUE(run.Seen.has_value());
    EXPECT_TRUE(run.Seen->CanShow);
    EXPECT_FALSE(run.Seen->FormsLeft);
    const std::string error = "error\t" + run.Source + "\t4\t1\t";
    EXPECT_NE(run.Err.find(error), std::string::npos) << "what the panel shows\n" << run.Err;
    const bool shows = run.Err.find("\nshow\t" + run.Source + "\t4\t1\t") != std::string::npos;
    EXPECT_EQ(shows, button == std::string("Show")) << run.Err;
    EXPECT_TRUE(run.Err.ends_with("end\t3\n"));
  }
}

TEST(SessionWindowsTest, ErrorsOfASourceHaveAWindowWhereNoPanelListsThem) {
  {
    SpokenRun run("$TYPECHECK ON\nx = 1\ny = 2\n");
    run::RunnerArguments arguments;
    arguments.Source = run.Source;
    EXPECT_EQ(run.Run(arguments), RunExit::Faulty);
    ASSERT_TRUE(run.Seen.has_value());
    EXPECT_EQ(run.Seen->Name, QStringLiteral("SourceErrors"));
    EXPECT_EQ(run.Seen->Calls, 2) << "a row each";
  }
  SpokenRun run("$TYPECHECK ON\nx = 1\ny = 2\n");
  const Pipe pipe;
  EXPECT_EQ(run.Run(FromIde(run), pipe.In()), RunExit::Faulty);
  EXPECT_FALSE(run.Seen.has_value());
  EXPECT_NE(run.Err.find("error\t" + run.Source + "\t3\t1\t"), std::string::npos) << run.Err;
}

QWidget* ConsoleWindow() {
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QStringLiteral("Console") && window->isVisible()) return window;
  }
  return nullptr;
}

/// Runs a program as one that was started from the desktop, and closes its console. Returns the
/// title of the console; "" without one.
QString RunFromDesktop(const std::string& text) {
  const TemporaryFolder folder;
  folder.Write("p.bas", text);
  run::RunnerArguments arguments;
  arguments.Source = folder.Native("p.bas");
  QString title;
  QTimer closing;
  QObject::connect(&closing, &QTimer::timeout, &closing, [&] {
    QWidget* const window = ConsoleWindow();
    if (window == nullptr) return;
    title = window->windowTitle();
    window->close();
  });
  closing.start(100);
  std::FILE* const nothing = std::fopen("/dev/null", "r+");
  const test::TextStream err;
  EXPECT_EQ(run::RunSession(arguments, {nothing, nothing, err.File()}), RunExit::Ended);
  std::fclose(nothing);
  return title;
}

TEST(SessionWindowsTest, WhatIsPrintedWithoutATerminalStaysInAWindow) {
  EXPECT_EQ(RunFromDesktop("PRINT \"seen\"\n"), QStringLiteral("p (ended)"));
  EXPECT_EQ(RunFromDesktop("DIM x AS INTEGER\n"), QString()) << "nothing was printed";
  EXPECT_EQ(RunFromDesktop("DIM F AS QFORM\nF.Show\nPRINT \"seen\"\n"), QString())
      << "it ends with its forms";
}

}  // namespace
}  // namespace tarnwick
