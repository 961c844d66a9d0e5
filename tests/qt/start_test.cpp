// The start: the logo window, and a project that the desktop names.
#include <QApplication>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

#include "fakes/fake_instance_folders.h"
#include "fakes/fake_ports.h"
#include "fakes/fake_shell.h"
#include "qt/frame/logo_window.h"
#include "qt/frame/main_view.h"
#include "qt/frame/main_window.h"
#include "shell/mdi_form.h"

namespace tarnwick {
namespace {

class Start : public ::testing::Test {
 protected:
  FakePorts ports;
  FakeInstanceFolders instances{ports.Files};
  MDIForm1 shell{ports.All(), instances, "Z:\\opt\\tarnwick"};
  MainWindow window{shell, ports.Files};
  MainView view{window, shell};
  FakeSideWindows windows{ports.Log};

  static LogoWindow* Logo() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* logo = qobject_cast<LogoWindow*>(widget);
      if (logo != nullptr && logo->isVisible()) return logo;
    }
    return nullptr;
  }
  static QStringList TextsOf(const LogoWindow& logo) {
    QStringList texts;
    for (const QLabel* label : logo.findChildren<QLabel*>()) texts.append(label->text());
    return texts;
  }
};

TEST_F(Start, TheLogoStandsOnTopOfAllOverTheMiddleOfTheWindowUntilItIsClosed) {
  window.show();
  view.ShowLogo("Wait...  1%");
  LogoWindow* logo = Logo();
  ASSERT_NE(logo, nullptr);
  EXPECT_TRUE(logo->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(TextsOf(*logo).contains(QStringLiteral("Wait...  1%")));
  EXPECT_TRUE(window.frameGeometry().contains(logo->geometry()));
  view.ShowLogo("Wait...  100%");
  EXPECT_EQ(Logo(), logo) << "one window changes its text";
  EXPECT_TRUE(TextsOf(*logo).contains(QStringLiteral("Wait...  100%")));
  EXPECT_FALSE(TextsOf(*logo).contains(QStringLiteral("Wait...  1%")));
  view.CloseLogo();
  EXPECT_EQ(Logo(), nullptr);
}

TEST_F(Start, TheLogoIsGoneWhenTheFirstFormStands) {
  window.show();
  shell.Load({view, windows, windows, windows});
  EXPECT_TRUE(QTest::qWaitFor([this] { return shell.Tables().CurrentForm != nullptr; }, 5000));
  EXPECT_EQ(Logo(), nullptr);
}

TEST_F(Start, AProjectThatTheDesktopNamesOpensBehindTheStart) {
  ports.Files.Put("Z:\\p\\one.ftn", "[Form](1) {Mine} Width<300>Width\r\n");
  ports.Files.Put("Z:\\p\\one.tnp", "one.ftn\r\nMF##Mine (one.ftn)\r\n");
  view.OpenAfterStart("Z:\\p\\one.tnp");
  window.show();
  shell.Load({view, windows, windows, windows});
  EXPECT_EQ(shell.Tables().FormsCount, 0) << "nothing opens ahead of the start";
  EXPECT_TRUE(
      QTest::qWaitFor([this] { return shell.Tables().ProjectFile == "Z:\\p\\one.tnp"; }, 5000));
  ASSERT_EQ(shell.Tables().FormsCount, 1);
  EXPECT_EQ(shell.Tables().Form(1)->Name, "Mine");
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Tarnwick    Z:\\p\\one.tnp"));
}

}  // namespace
}  // namespace tarnwick
