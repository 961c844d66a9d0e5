#include "qt/frame/events_bar_window.h"

#include <QApplication>
#include <QListWidget>
#include <QMenu>
#include <QTest>
#include <QToolButton>
#include <string>

#include <gtest/gtest.h>

#include "fakes/fake_instance_folders.h"
#include "fakes/fake_ports.h"
#include "fakes/fake_shell.h"
#include "qt/frame/form_list_panel.h"
#include "qt/frame/main_view.h"
#include "qt/frame/main_window.h"
#include "qt/surface/container.h"
#include "shell/command_center.h"
#include "shell/form_commands.h"
#include "shell/mdi_form.h"

namespace tarnwick {
namespace {

/// The main window over the real shell, with fakes for the platform and the code editor.
class EventsBarWindowTest : public ::testing::Test {
 protected:
  FakePorts ports;
  FakeInstanceFolders instances{ports.Files};
  MDIForm1 shell{ports.All(), instances, "Z:\\opt\\tarnwick"};
  MainWindow window{shell, ports.Files};
  MainView view{window, shell};
  FakeSideWindows windows{ports.Log};

  void SetUp() override {
    window.show();
    shell.Load({view, windows, windows, windows});
    shell.Time_Timer();
    Settle();
  }
  /// Refreshes wait for the end of a command.
  static void Settle() { QTest::qWait(20); }

  EventsBarWindow& bar() { return window.EventButtons(); }
  QToolButton* Button(const QString& name) {
    for (QToolButton* button : bar().findChildren<QToolButton*>(name)) {
      if (!button->isHidden()) return button;
    }
    return nullptr;
  }
  QMenu& Pross() { return *bar().findChild<QMenu*>(QStringLiteral("Pross")); }
  void Store(const std::string& owner, Event event, const std::string& code) {
    shell.Tables().EventTable.Replace("Form1" + (owner == "Form" ? "" : "." + owner), event, code);
    if (code.empty()) {
      shell.Bar().DelBoockMarck(1, owner);
    } else {
      shell.Bar().PopBoockMarck(1, owner);
    }
    Settle();
  }
  void DragBy(const QPoint& way) {
    const QPoint grip(60, 12);
    QTest::mousePress(&bar(), Qt::LeftButton, {}, grip);
    QMouseEvent move(QEvent::MouseMove, grip + way, bar().mapToGlobal(grip + way), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&bar(), &move);
    QTest::mouseRelease(&bar(), Qt::LeftButton, {}, grip);
  }
};

TEST_F(EventsBarWindowTest, ItFloatsAtTheLowerEdgeOfTheContainerFromTheFirstStart) {
  ASSERT_TRUE(bar().isVisible());
  const QRect container(window.Forms().mapTo(&window, QPoint(0, 0)), window.Forms().size());
  EXPECT_TRUE(container.contains(bar().geometry()));
  EXPECT_LT(container.bottom() - bar().geometry().bottom(), 40);
}

TEST_F(EventsBarWindowTest, ItStaysAtTheLowerEdgeWhenTheWindowGrows) {
  window.resize(window.width(), window.height() + 60);
  Settle();
  const int edge = window.Forms().mapTo(&window, QPoint(0, window.Forms().height())).y();
  EXPECT_LT(edge - bar().geometry().bottom(), 40);
}

TEST_F(EventsBarWindowTest, AnObjectThatGetsCodeGetsAButtonWithItsName) {
  shell.Tables().Form(1)->Name = "Main";
  Store("Form", Event::OnShow, "a");
  QToolButton* button = Button(QStringLiteral("btncodigo_1"));
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->toolTip(), QStringLiteral("Main"));
  EXPECT_EQ(Button(QStringLiteral("btncodigo_2")), nullptr);
}

TEST_F(EventsBarWindowTest, LaterButtonsMoveWhereARemovedOneStood) {
  Store("Item1", Event::OnClick, "a");
  Store("Item2", Event::OnClick, "a");
  Store("Item3", Event::OnClick, "a");
  const QPoint second = Button(QStringLiteral("btncodigo_2"))->pos();
  Store("Item2", Event::OnClick, "");
  EXPECT_EQ(Button(QStringLiteral("btncodigo_2"))->toolTip(), QStringLiteral("Item3"));
  EXPECT_EQ(Button(QStringLiteral("btncodigo_2"))->pos(), second);
  EXPECT_EQ(Button(QStringLiteral("btncodigo_3")), nullptr);
}

TEST_F(EventsBarWindowTest, AButtonPastTheRightEdgeStartsANewRowAndTheBarGrowsByIt) {
  const int height = bar().height();
  const int bottom = bar().geometry().bottom();
  for (int i = 1; i <= 9; ++i) Store("Item" + std::to_string(i), Event::OnClick, "a");
  EXPECT_EQ(bar().height(), height);
  Store("Item10", Event::OnClick, "a");
  const QToolButton* button = Button(QStringLiteral("btncodigo_10"));
  EXPECT_EQ(button->x(), 0);
  EXPECT_EQ(bar().height(), height + button->height());
  EXPECT_EQ(bar().geometry().bottom(), bottom);
}

TEST_F(EventsBarWindowTest, TwoHundredButtonsScrollInThreeRowsAndTheKeysReachTheLast) {
  for (int i = 1; i <= 200; ++i) {
    shell.Tables().EventTable.Replace("Form1.Item" + std::to_string(i), Event::OnClick, "a");
    shell.Bar().PopBoockMarck(1, "Item" + std::to_string(i));
  }
  Settle();
  const QToolButton* last = Button(QStringLiteral("btncodigo_200"));
  ASSERT_NE(last, nullptr);
  EXPECT_LE(bar().height(), 3 * last->height() + 60);
  EXPECT_LE(bar().width(), 10 * last->width() + 60);
  const QRect container(window.Forms().mapTo(&window, QPoint(0, 0)), window.Forms().size());
  EXPECT_TRUE(container.contains(bar().geometry()));
  EXPECT_TRUE(last->visibleRegion().isEmpty());
  QApplication::setActiveWindow(&window);
  Button(QStringLiteral("btnCDeclare"))->setFocus();
  for (int i = 0; i < 200; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), last);
  EXPECT_FALSE(last->visibleRegion().isEmpty()) << "the room scrolls to it";
}

TEST_F(EventsBarWindowTest, ALongNameOfAFormLeavesTheBarAsWideAsItsButtons) {
  const int width = bar().width();
  shell.Tables().Bar(1)->Caption = std::string(300, 'W');
  view.EventsBarChanged(1);
  Settle();
  EXPECT_EQ(bar().width(), width);
  EXPECT_EQ(bar().accessibleName(), QString(300, u'W'));
}

TEST_F(EventsBarWindowTest, AButtonPopsUpItsEventsAndARowOpensTheCode) {
  Store("Form", Event::OnShow, "a");
  Button(QStringLiteral("btncodigo_1"))->click();
  ASSERT_TRUE(Pross().isVisible());
  ASSERT_EQ(Pross().actions().size(), 1);
  EXPECT_EQ(Pross().actions()[0]->text(), QStringLiteral("OnShow"));
  QTest::keyClick(&Pross(), Qt::Key_Return);
  EXPECT_EQ(shell.Tables().JumpKey, "OnShow");
  EXPECT_TRUE(windows.CodeOpen);
}

TEST_F(EventsBarWindowTest, TheDeclarationsButtonPopsUpItsOneRow) {
  Button(QStringLiteral("btnCDeclare"))->click();
  ASSERT_EQ(Pross().actions().size(), 1);
  EXPECT_EQ(Pross().actions()[0]->text(), QStringLiteral("Public Declarations"));
  Pross().actions()[0]->trigger();
  EXPECT_EQ(ports.Log.Count("windows declarations"), 1U);
}

TEST_F(EventsBarWindowTest, TabReachesItFromTheFormListAndWalksItsButtons) {
  QApplication::setActiveWindow(&window);
  Store("Form", Event::OnShow, "a");
  Store("Item1", Event::OnClick, "a");
  window.FormLines().findChild<QListWidget*>()->setFocus();
  const auto tab = [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); };
  for (int i = 0; i < 8 && !Button(QStringLiteral("btnCDeclare"))->hasFocus(); ++i) tab();
  for (const char* name : {"btnCDeclare", "btncodigo_1", "btncodigo_2", "FrmBarraClose"}) {
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QString::fromLatin1(name));
    tab();
  }
}

TEST_F(EventsBarWindowTest, ReturnPressesTheButtonWithTheFocusAndEscapeGoesBackToTheForm) {
  QApplication::setActiveWindow(&window);
  QToolButton* button = Button(QStringLiteral("btnCDeclare"));
  button->setFocus();
  QTest::keyClick(button, Qt::Key_Return);
  EXPECT_TRUE(Pross().isVisible());
  Pross().close();
  QTest::keyClick(button, Qt::Key_Escape);
  EXPECT_TRUE(window.Forms().Window(1)->Surface().hasFocus());
}

TEST_F(EventsBarWindowTest, ACloseHidesItAndItsEntryLosesTheCheckMark) {
  Store("Form", Event::OnShow, "a");
  Button(QStringLiteral("FrmBarraClose"))->click();
  Settle();
  EXPECT_FALSE(bar().isVisible());
  EXPECT_FALSE(shell.Commands().State(Command::EventsBar).Checked);
  shell.Commands().Run(Command::EventsBar);
  Settle();
  EXPECT_TRUE(bar().isVisible());
  EXPECT_NE(Button(QStringLiteral("btncodigo_1")), nullptr);
}

TEST_F(EventsBarWindowTest, ADraggedBarComesBackWhereItWasLeft) {
  const QPoint before = bar().pos();
  DragBy(QPoint(80, -120));
  EXPECT_EQ(bar().pos(), before + QPoint(80, -120));
  shell.Commands().Run(Command::EventsBar);
  Settle();
  shell.Commands().Run(Command::EventsBar);
  Settle();
  EXPECT_EQ(bar().pos(), before + QPoint(80, -120));
}

TEST_F(EventsBarWindowTest, ADragNeverTakesItOutOfTheMainWindow) {
  DragBy(QPoint(-5000, 5000));
  EXPECT_TRUE(window.rect().contains(bar().geometry()));
}

TEST_F(EventsBarWindowTest, ItShowsTheBarOfTheCurrentFormOnly) {
  Store("Form", Event::OnShow, "a");
  shell.Commands().Run(Command::AddNewForm);
  Settle();
  EXPECT_TRUE(bar().isVisible());
  EXPECT_EQ(Button(QStringLiteral("btncodigo_1")), nullptr);
  shell.Forms().SelectLine(0);
  Settle();
  EXPECT_NE(Button(QStringLiteral("btncodigo_1")), nullptr);
}

TEST_F(EventsBarWindowTest, WithoutAFormThereIsNoBar) {
  ports.Messages.Answers = {true};
  shell.Commands().Run(Command::Remove);
  Settle();
  EXPECT_EQ(shell.Tables().CurrentForm, nullptr);
  EXPECT_FALSE(bar().isVisible());
}

}  // namespace
}  // namespace tarnwick
