// Compile and Run with a real child in the compiler's place.
#include <QAction>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QToolButton>
#include <cerrno>
#include <csignal>
#include <filesystem>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "program.h"
#include "qt/surface/container.h"

namespace tarnwick {
namespace {

constexpr int kPatience = 20000;  // milliseconds

class Compile : public testing::Test {
 protected:
  Compile() {
    program.Place(0, {20, 20});
    program.Dialogs.SaveAnswers = {program.Projects.Path("p.tnp"), program.Projects.Path("f.ftn")};
    program.Key(Qt::Key_S, Qt::ControlModifier);
    program.Log.Clear();
  }
  ~Compile() override {
    if (child_ > 0) ::kill(child_, SIGKILL);
  }
  /// Puts a script in the compiler's place.
  void PutCompiler(const std::string& script) {
    program.Home.Write("Rc.exe", "#!/bin/sh\n" + script);
    namespace fs = std::filesystem;
    fs::permissions(program.Home.Native("Rc.exe"), fs::perms::owner_all);
  }
  /// A script that notes its arguments, one a line, then its process number, and goes on with
  /// `rest`.
  void PutRecorder(const std::string& rest) {
    PutCompiler("for a; do printf '%s\\n' \"$a\"; done > '" + program.Projects.Native("args") +
                "'\necho $$ > '" + program.Projects.Native("pid.new") + "'\nmv '" +
                program.Projects.Native("pid.new") + "' '" + program.Projects.Native("pid") +
                "'\n" + rest);
  }
  /// Waits until the child has noted its number.
  void WaitForChild() {
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return !program.Projects.Read("pid").empty(); }, kPatience));
    child_ = std::stoi(program.Projects.Read("pid"));
  }
  [[nodiscard]] std::size_t Starts() const { return program.Log.Count("start "); }
  [[nodiscard]] QString Status() {
    return program.Find<QLabel>(QStringLiteral("StatusText")).text();
  }

  Program program;
  pid_t child_ = 0;
};

TEST_F(Compile, TheCommandLineIsExact) {
  PutRecorder("");
  program.Key(Qt::Key_F5);
  ASSERT_EQ(Starts(), 1U);
  const std::string home = program.Home.Path();
  const std::string project = program.Projects.Path("p");
  EXPECT_EQ(program.Log.Entries().back(), "start " + home + "\\Rc.exe /COMPILE  \"" + home +
                                              "\\IconApp.ico\" \"" + project + ".com\" \"" +
                                              project + ".EXE\" \"" + project + ".exe\"");
  WaitForChild();
  EXPECT_EQ(program.Projects.Read("args"), "/COMPILE\n" + home + "\\IconApp.ico\n" + project +
                                               ".com\n" + project + ".EXE\n" + project + ".exe\n");
}

TEST_F(Compile, TheSourceStandsOnTheDiskBeforeTheCompilerStarts) {
  PutRecorder("cp '" + program.Projects.Native("p.com") + "' '" + program.Projects.Native("seen") +
              "'\n");
  program.Choose(QStringLiteral("mnuCompile"));
  WaitForChild();
  ASSERT_TRUE(QTest::qWaitFor(
      [this] { return program.Projects.Read("seen") == program.Projects.Read("p.com"); },
      kPatience));
  EXPECT_TRUE(program.Projects.Read("p.com").starts_with("Dim Font As QFont\r\n"));
  EXPECT_NE(program.Projects.Read("p.com").find("Form1.ShowModal"), std::string::npos);
}

TEST_F(Compile, TheStatusBarTellsWhereTheSourceLies) {
  program.Key(Qt::Key_F5);
  EXPECT_TRUE(Status().contains(QString::fromStdString(program.Projects.Path("p.com"))))
      << Status().toStdString();
}

TEST_F(Compile, AHangingCompilerIsNotWaitedFor) {
  PutRecorder("exec sleep 600\n");
  QElapsedTimer time;
  time.start();
  program.Key(Qt::Key_F5);
  EXPECT_LT(time.elapsed(), kPatience);
  WaitForChild();
  ASSERT_EQ(::kill(child_, 0), 0);
  // The program goes on beside it.
  program.Place(3, {20, 120});
  EXPECT_EQ(program.Form().UBound(Kind::Label), 1);
  program.Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_NE(program.Projects.Read("f.ftn").find("Form1Label1"), std::string::npos);
}

TEST_F(Compile, AHangingCompilerOutlivesTheProgram) {
  PutRecorder("exec sleep 600\n");
  program.Key(Qt::Key_F5);
  WaitForChild();
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(::kill(child_, 0), 0);
}

TEST_F(Compile, NoZombieIsLeft) {
  PutRecorder("exit 3\n");
  program.Key(Qt::Key_F5);
  WaitForChild();
  // This process has no child at all, dead or alive.
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
}

TEST_F(Compile, WithoutACompilerOnlyTheSourceIsWritten) {
  ASSERT_FALSE(std::filesystem::exists(program.Home.Native("Rc.exe")));
  program.Key(Qt::Key_F5);
  EXPECT_EQ(Starts(), 1U);
  EXPECT_FALSE(program.Projects.Read("p.com").empty());
  EXPECT_TRUE(program.User.Seen().empty());
  program.Place(3, {20, 120});
  EXPECT_EQ(program.Form().UBound(Kind::Label), 1);
}

TEST_F(Compile, ACompilerThatCannotRunIsAsGoodAsNone) {
  program.Home.Write("Rc.exe", "no program");
  program.Key(Qt::Key_F5);
  EXPECT_FALSE(program.Projects.Read("p.com").empty());
  EXPECT_TRUE(program.User.Seen().empty());
}

TEST_F(Compile, RunsOnceFromDesignFormPanelAndFormList) {
  program.Surface().setFocus();
  program.Key(Qt::Key_F5);
  EXPECT_EQ(Starts(), 1U);
  program.Find<QLineEdit>(QStringLiteral("Text_0")).setFocus();
  program.Key(Qt::Key_F5);
  EXPECT_EQ(Starts(), 2U);
  program.Find<QListWidget>(QStringLiteral("ListaFrms")).setFocus();
  program.Key(Qt::Key_F5);
  EXPECT_EQ(Starts(), 3U);
  program.Click(program.Find<QToolButton>(QStringLiteral("BtnMenu_10")));
  EXPECT_EQ(Starts(), 4U);
}

TEST_F(Compile, SavesTheProjectFirst) {
  program.Place(3, {20, 120});
  program.Key(Qt::Key_F5);
  EXPECT_NE(program.Projects.Read("f.ftn").find("Form1Label1"), std::string::npos);
  EXPECT_EQ(program.Tables().AccionProject, "save");
}

TEST_F(Compile, TheDesignFormStandsAsBeforeAfterwards) {
  program.PressTool(9);
  program.Dialogs.SaveAnswers = {program.Projects.Path("g.ftn")};
  const QImage before = program.Surface(2).grab().toImage();
  program.Key(Qt::Key_F5);
  EXPECT_TRUE(program.Surface(2).isVisible());
  EXPECT_EQ(program.Form().Number(), 2);
  EXPECT_EQ(program.Surface(2).grab().toImage(), before);
  EXPECT_EQ(program.Form().FirstOf(Kind::Button), nullptr);
}

TEST(CompileWithoutForm, F5DoesNothing) {
  Program program;
  program.User.Yes();
  program.Choose(QStringLiteral("mnuRemove"));
  program.Key(Qt::Key_F5);
  EXPECT_EQ(program.Log.Count("start "), 0U);
  EXPECT_FALSE(program.Find<QToolButton>(QStringLiteral("BtnMenu_10")).isEnabled());
}

TEST(CompileNewProject, ACancelledSaveWritesTheDefaultProjectsSource) {
  Program program;
  program.Dialogs.SaveAnswers = {std::nullopt};
  program.Key(Qt::Key_F5);
  EXPECT_EQ(program.Log.Count("dialog save"), 1U);
  EXPECT_TRUE(program.Projects.Names().empty());
  EXPECT_NE(program.Home.Read("UnTitle.com").find("Dim Form1 As QForm"), std::string::npos);
  EXPECT_TRUE(program.Surface().isVisible());
}

TEST(Help, HelpThatIsNotInstalledIsToldInTheStatusBar) {
  Program program;
  program.Key(Qt::Key_F1);
  EXPECT_EQ(program.Log.Count("open "), 0U);
  EXPECT_TRUE(program.Find<QLabel>(QStringLiteral("StatusText"))
                  .text()
                  .startsWith(QStringLiteral("The help is not installed")));
}

TEST(Help, OpensTheFileOfTheProgramFolder) {
  Program program;
  program.Home.Write("Tarnwick.chm", "help");
  program.Key(Qt::Key_F1);
  EXPECT_EQ(program.Log.Entries().back(), "open " + program.Home.Path() + "\\Tarnwick.chm");
}

}  // namespace
}  // namespace tarnwick
