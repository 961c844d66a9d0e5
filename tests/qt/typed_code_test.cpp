// Code that is typed: what a crash leaves of it, and its steps.
#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <thread>

#include <gtest/gtest.h>
#include <unistd.h>

#include "program.h"
#include "project/recovery.h"
#include "qt/editor/code_edit.h"
#include "shell/events_bar.h"
#include "shell/project_commands.h"
#include "text/path_text.h"

namespace tarnwick {
namespace {

using Milliseconds = std::chrono::milliseconds;

/// What may be lost.
constexpr std::int64_t kMostLost = 5000;

std::int64_t Now() {
  return std::chrono::duration_cast<Milliseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

/// Types code with real keys, and notes the time of each in the file, until the process is killed
/// by itself after `life`.
void TypeUntilKilled(const std::string& notes, Milliseconds life) {
  Program program;
  std::ofstream(notes + ".home") << program.Home.Native();
  program.Place(0, {20, 20});
  program.Key(Qt::Key_F7);
  program.Type(QStringLiteral("'"));
  std::thread([life] {
    std::this_thread::sleep_for(life);
    ::kill(::getpid(), SIGKILL);
  }).detach();
  std::ofstream out(notes);
  for (;;) {
    program.Type(QStringLiteral("x"));
    out << Now() << std::endl;
    QTest::qWait(20);
  }
}

/// Of each of some processes that are killed, at moments of their own.
class KilledProcess : public ::testing::TestWithParam<int> {};

TEST_P(KilledProcess, LosesTheCodeOfFiveSecondsAtMost) {
  // The child runs this test from its start, too.
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  constexpr const char* kNotes = "TARNWICK_TYPED_NOTES";
  const TemporaryFolder folder;
  ::setenv(kNotes, folder.Native("notes").c_str(), 0);
  const std::string notes = std::getenv(kNotes);
  const Milliseconds life(2500 + std::random_device()() % 3500);
  EXPECT_EXIT(TypeUntilKilled(notes, life), testing::KilledBySignal(SIGKILL), "");
  const std::int64_t killed = Now();
  ::unsetenv(kNotes);

  std::vector<std::int64_t> keys;
  std::ifstream in(notes);
  for (std::int64_t time = 0; in >> time;) keys.push_back(time);
  std::string home;
  std::ifstream(notes + ".home") >> home;
  ASSERT_FALSE(home.empty());
  ProjectTables tables;
  NativeFiles files;
  NativeInstanceFolders folders;
  project::Recovery recovery(tables, files, folders, PathFromNative(home) + "\\recovery",
                             [] { return "now"; });
  std::size_t kept = 0;
  for (const auto& offer : recovery.Offers()) {
    EXPECT_TRUE(offer.Crashed);
    const auto& code = offer.Project.Forms.at(0).Code;
    if (const auto text = code.find(".Button1.OnClick"); text != code.end()) {
      kept = text->second.size() - 1;
    }
  }
  EXPECT_GT(keys.size(), 10U);
  if (kept < keys.size()) {
    EXPECT_LT(killed - keys[kept], kMostLost) << "of " << keys.size();
  }
  std::error_code ignored;
  std::filesystem::remove_all(home, ignored);
}

INSTANTIATE_TEST_SUITE_P(Moments, KilledProcess, ::testing::Values(1, 2));

class Typed : public ::testing::Test {
 protected:
  CodeEdit& Editor() { return *program.Window().findChild<CodeEdit*>(QStringLiteral("Editor")); }
  Program program;
};

TEST_F(Typed, CodeOfALeftProjectIsOfferedInTheEditorWhenItIsRestored) {
  program.Place(0, {20, 20});
  program.Key(Qt::Key_F7);
  program.Type(QStringLiteral("Beep"));
  program.User.No();
  program.Shell().Commands().Run(Command::New);
  EXPECT_FALSE(Editor().isVisible());
  const auto offers = program.Shell().Projects().UnsavedWork();
  ASSERT_EQ(offers.size(), 1U);
  program.Shell().Projects().Restore(offers[0]);
  program.Settle();
  program.Click(program.Surface(), {30, 30});
  program.Key(Qt::Key_F7);
  EXPECT_EQ(Editor().Text(), "") << "it was never accepted";
  auto& bar = program.Find<QFrame>(QStringLiteral("LostCode"));
  EXPECT_TRUE(bar.isVisible());
  program.Click(program.Find<QPushButton>(QStringLiteral("RestoreCode")));
  EXPECT_EQ(Editor().Text(), "Beep");
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(*program.Tables().EventTable.Find("Form1.Button1.OnClick"), "Beep");
}

TEST_F(Typed, AcceptedCodeIsAStepThatUndoTakesBackWithItsButton) {
  program.Place(0, {20, 20});
  program.Key(Qt::Key_F7);
  program.Type(QStringLiteral("Beep"));
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  ASSERT_FALSE(Editor().isVisible());
  const auto code = [this] { return program.Tables().EventTable.Find("Form1.Button1.OnClick"); };
  ASSERT_NE(code(), nullptr);
  EXPECT_EQ(program.Shell().Bar().btncodigo(1).size(), 1U);
  EXPECT_EQ(program.Shell().Commands().Caption(Command::Undo), "&Undo Code Form1Btn1");
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(code() == nullptr || code()->empty());
  EXPECT_TRUE(program.Shell().Bar().btncodigo(1).empty());
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
  program.Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(*code(), "Beep");
  EXPECT_EQ(program.Shell().Bar().btncodigo(1).size(), 1U);
}

TEST_F(Typed, AChangeOfEventThatStoresCodeIsAStepToo) {
  program.Place(0, {20, 20});
  program.Key(Qt::Key_F7);
  program.Type(QStringLiteral("Beep"));
  auto& events = program.Find<QComboBox>(QStringLiteral("Events"));
  events.setFocus();
  QTest::keyClick(&events, Qt::Key_Down);
  program.Key(Qt::Key_Escape);
  ASSERT_FALSE(Editor().isVisible());
  EXPECT_EQ(*program.Tables().EventTable.Find("Form1.Button1.OnClick"), "Beep");
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  const std::string* code = program.Tables().EventTable.Find("Form1.Button1.OnClick");
  EXPECT_TRUE(code == nullptr || code->empty());
}

TEST_F(Typed, AcceptedDeclarationsAreAStep) {
  program.Key(Qt::Key_D, Qt::ControlModifier);
  program.Type(QStringLiteral("Dim a"));
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(program.Record().DeclarePbl, "Dim a");
  EXPECT_EQ(program.Shell().Commands().Caption(Command::Undo), "&Undo Public Declarations");
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(program.Record().DeclarePbl, "");
}

TEST_F(Typed, AnAcceptThatChangedNothingLeavesNoStep) {
  program.Place(0, {20, 20});
  const std::string before = program.Shell().Commands().Caption(Command::Undo);
  program.Key(Qt::Key_F7);
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  ASSERT_FALSE(Editor().isVisible());
  EXPECT_EQ(program.Shell().Commands().Caption(Command::Undo), before);
  program.Key(Qt::Key_D, Qt::ControlModifier);
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(program.Shell().Commands().Caption(Command::Undo), before);
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(program.Form().UBound(Kind::Button), 0) << "the step before is taken back";
}

/// The Public Declarations of the first form.
class TypedDeclarations : public Typed {
 protected:
  QWidget& Declare() { return program.Find<QWidget>(QStringLiteral("FormViewCodes")); }
  CodeEdit& Text() { return program.Find<CodeEdit>(QStringLiteral("EditorPublic")); }
  QWidget& Offer() { return *Declare().findChild<QWidget*>(QStringLiteral("LostCode")); }
  void Open() {
    program.Key(Qt::Key_D, Qt::ControlModifier);
    Program::Settle();
    ASSERT_TRUE(Declare().isVisible());
  }
  void Press(const char* button) {
    program.Click(*Declare().findChild<QPushButton*>(QString::fromLatin1(button)));
  }
};

TEST_F(TypedDeclarations, WhatEscLostIsOfferedAtTheNextOpeningAndUndoneWithinTheText) {
  Open();
  EXPECT_FALSE(Offer().isVisible());
  program.Type(QStringLiteral("Dim a"));
  program.Key(Qt::Key_Escape);
  EXPECT_EQ(program.Record().DeclarePbl, "");
  Open();
  EXPECT_EQ(Text().Text(), "");
  ASSERT_TRUE(Offer().isVisible());
  Press("RestoreCode");
  EXPECT_EQ(Text().Text(), "Dim a");
  EXPECT_FALSE(Offer().isVisible());
  EXPECT_EQ(QApplication::focusWidget(), &Text());
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text().Text(), "");
  program.Key(Qt::Key_Y, Qt::ControlModifier);
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(program.Record().DeclarePbl, "Dim a");
}

TEST_F(TypedDeclarations, CtrlSInThemStoresThemAndSavesTheProject) {
  Open();
  program.Type(QStringLiteral("Dim a"));
  program.Dialogs.SaveAnswers = {program.Projects.Path("p.tnp"),
                                 program.Projects.Path("Form1.ftn")};
  program.Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(Declare().isVisible());
  EXPECT_EQ(QApplication::focusWidget(), &Text());
  EXPECT_EQ(program.Record().DeclarePbl, "Dim a");
  EXPECT_NE(program.Projects.Read("Form1.ftn").find("Dim a"), std::string::npos);
}

TEST_F(TypedDeclarations, WhatIsDiscardedIsOfferedNoMore) {
  Open();
  program.Type(QStringLiteral("Dim a"));
  Declare().close();
  Open();
  Press("DiscardCode");
  EXPECT_FALSE(Offer().isVisible());
  EXPECT_EQ(QApplication::focusWidget(), &Text());
  program.Key(Qt::Key_Escape);
  Open();
  EXPECT_FALSE(Offer().isVisible());
}

TEST_F(TypedDeclarations, OpenedAgainWhileTheyAreOpenTheyKeepWhatIsTyped) {
  Open();
  program.Type(QStringLiteral("Dim a"));
  program.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&program.Window()));
  Open();
  EXPECT_EQ(Text().Text(), "Dim a");
  EXPECT_FALSE(Offer().isVisible());
}

TEST_F(TypedDeclarations, ThoseOfALeftProjectAreAskedForAndOfferedWhenItIsRestored) {
  Open();
  program.Type(QStringLiteral("Dim a"));
  program.User.No();
  program.Shell().Commands().Run(Command::New);
  EXPECT_TRUE(program.User.Done()) << "New asks while something is typed";
  EXPECT_FALSE(Declare().isVisible());
  Open();
  EXPECT_FALSE(Offer().isVisible()) << "it belongs to the project that was left";
  program.Key(Qt::Key_Escape);
  const auto offers = program.Shell().Projects().UnsavedWork();
  ASSERT_EQ(offers.size(), 1U);
  program.Shell().Projects().Restore(offers[0]);
  Program::Settle();
  Open();
  EXPECT_EQ(Text().Text(), "");
  ASSERT_TRUE(Offer().isVisible());
  Press("RestoreCode");
  EXPECT_EQ(Text().Text(), "Dim a");
}

TEST_F(TypedDeclarations, TheyFollowAnUndoWhileNothingIsTyped) {
  Open();
  program.Type(QStringLiteral("Dim a"));
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  Open();
  program.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&program.Window()));
  program.Choose(QStringLiteral("mnuUndo"));
  EXPECT_EQ(program.Record().DeclarePbl, "");
  EXPECT_EQ(Text().Text(), "");
  program.Choose(QStringLiteral("mnuRedo"));
  EXPECT_EQ(Text().Text(), "Dim a");
}

TEST_F(TypedDeclarations, TheyCloseWithTheirFormAndAreOfferedWhenItComesBack) {
  program.Shell().Commands().Run(Command::AddNewForm);
  ASSERT_EQ(program.Form().Number(), 2);
  Open();
  EXPECT_EQ(Declare().windowTitle(), QStringLiteral("Form: Form2  (Public Declarations)"));
  program.Type(QStringLiteral("Dim a"));
  program.User.Yes();
  program.Shell().Commands().Run(Command::Remove);
  EXPECT_FALSE(Declare().isVisible());
  program.Shell().Commands().Run(Command::Undo);
  ASSERT_EQ(program.Form().Number(), 2);
  Open();
  EXPECT_TRUE(Offer().isVisible());
}

TEST_F(TypedDeclarations, TheirTitleFollowsTheFormsName) {
  Open();
  program.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&program.Window()));
  program.Click(program.Surface(), {300, 200});
  ASSERT_EQ(program.Shell().Sheet().Label(0), "Name");
  program.Click(program.Find<QLabel>(QStringLiteral("Label_0")));
  program.Type(QStringLiteral("Main"));
  program.Key(Qt::Key_Return);
  ASSERT_EQ(program.Record().Name, "Main");
  EXPECT_EQ(Declare().windowTitle(), QStringLiteral("Form: Main  (Public Declarations)"));
}

}  // namespace
}  // namespace tarnwick
