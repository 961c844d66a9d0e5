#include "qt/frame/output_panel.h"

#include <QListView>
#include <QTest>
#include <QToolButton>
#include <algorithm>

#include <gtest/gtest.h>

#include "fakes/fake_instance_folders.h"
#include "fakes/fake_ports.h"
#include "fakes/fake_runner.h"
#include "fakes/fake_shell.h"
#include "qt/frame/main_view.h"
#include "qt/frame/main_window.h"
#include "shell/command_center.h"
#include "shell/mdi_form.h"
#include "shell/run_command.h"

namespace tarnwick {
namespace {

class OutputPanelTest : public ::testing::Test {
 protected:
  FakePorts ports;
  FakeInstanceFolders instances{ports.Files};
  FakeRunner runner{ports.Log};
  MDIForm1 shell{ports.All(), instances, "Z:\\opt\\tarnwick"};
  MainWindow window{shell, ports.Files};
  MainView view{window, shell};
  FakeSideWindows windows{ports.Log};

  void SetUp() override {
    shell.Runner().Use(runner);
    ports.Processes.Succeeds = false;
    window.show();
    shell.Load({view, windows, windows, windows});
    shell.Time_Timer();
    shell.Tables().Form(1)->DeclarePbl = "Dim b As Integer";
    ports.Dialogs.SaveAnswers = {"Z:\\p\\a.tnp", "Z:\\p\\one.ftn"};
    shell.Commands().Run(Command::Compile);
    ASSERT_TRUE(runner.Running());
  }
  static void Settle() { QTest::qWait(120); }
  OutputPanel& panel() { return window.Output(); }
  QString Row(int row) { return panel().List().model()->index(row, 0).data().toString(); }
  int DeclarationLine() {
    const std::string source = ports.Files.Bytes("Z:\\p\\a.com").value_or("");
    const std::size_t at = source.find("Dim b As Integer");
    return static_cast<int>(
               std::count(source.begin(), source.begin() + static_cast<std::ptrdiff_t>(at), '\n')) +
           1;
  }
};

TEST_F(OutputPanelTest, ItIsHiddenUntilTheFirstLine) {
  Settle();
  EXPECT_FALSE(panel().isVisible());
  runner.Print("printed\n");
  Settle();
  EXPECT_TRUE(panel().isVisible());
  EXPECT_EQ(Row(0), QStringLiteral("printed"));
}

TEST_F(OutputPanelTest, ADoubleClickOnANoteGoesToItsPlace) {
  runner.Print("printed\n");
  runner.Tell(RunSeverity::Note, DeclarationLine(), "a note");
  Settle();
  EXPECT_EQ(Row(1), QStringLiteral("Form1, public declarations, line 1: a note"));
  ports.Log.Clear();
  const QPoint place = panel().List().visualRect(panel().List().model()->index(1, 0)).center();
  QTest::mouseClick(panel().List().viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(panel().List().viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(ports.Log.Count("windows declarations"), 1U);
  EXPECT_EQ(ports.Log.Count("windows line 1"), 1U);
}

TEST_F(OutputPanelTest, EnterGoesThereToo) {
  runner.Tell(RunSeverity::Note, DeclarationLine(), "a note");
  Settle();
  panel().List().setCurrentIndex(panel().List().model()->index(0, 0));
  ports.Log.Clear();
  QTest::keyClick(&panel().List(), Qt::Key_Return);
  EXPECT_EQ(ports.Log.Count("windows declarations"), 1U);
}

TEST_F(OutputPanelTest, ManyLinesAreShownInTimeAndTheLastIsInView) {
  for (int n = 0; n < 5000; ++n) runner.Print(std::to_string(n) + "\n");
  Settle();
  QListView& list = panel().List();
  EXPECT_EQ(list.model()->rowCount(), 5000);
  EXPECT_TRUE(list.viewport()->rect().intersects(list.visualRect(list.model()->index(4999, 0))));
}

TEST_F(OutputPanelTest, ItsButtonsStopAndClear) {
  runner.Print("printed\n");
  Settle();
  auto* stop = panel().findChild<QToolButton*>(QStringLiteral("OutputStop_0"));
  ASSERT_TRUE(stop->isEnabled());
  QTest::mouseClick(stop, Qt::LeftButton);
  EXPECT_EQ(ports.Log.Count("stop run"), 1U);
  runner.End(RunnerEnd::Stopped);
  Settle();
  EXPECT_FALSE(stop->isEnabled());
  QTest::mouseClick(panel().findChild<QToolButton*>(QStringLiteral("ClearOutput")), Qt::LeftButton);
  Settle();
  EXPECT_EQ(panel().List().model()->rowCount(), 0);
  EXPECT_TRUE(panel().isVisible());
}

TEST_F(OutputPanelTest, ItsButtonHidesIt) {
  runner.Print("printed\n");
  Settle();
  QTest::mouseClick(panel().findChild<QToolButton*>(QStringLiteral("CloseOutput")), Qt::LeftButton);
  EXPECT_FALSE(panel().isVisible());
}

}  // namespace
}  // namespace tarnwick
