// Where the keyboard focus goes, and what the Edit menu acts on by it.
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "program.h"
#include "qt/surface/container.h"

namespace tarnwick {
namespace {

class Focus : public ::testing::Test {
 protected:
  void Save() {
    program.Dialogs.SaveAnswers = {program.Projects.Path("p.tnp"), program.Projects.Path("f.ftn"),
                                   program.Projects.Path("g.ftn")};
    program.Key(Qt::Key_S, Qt::ControlModifier);
    program.Dialogs.SaveAnswers.clear();
  }
  QLineEdit& NameCell() { return program.Find<QLineEdit>(QStringLiteral("Text_0")); }
  QListWidget& List() { return program.Find<QListWidget>(QStringLiteral("ListaFrms")); }
  /// A window of its own closes a design window as its X does.
  void CloseWindow(int form) {
    DesignWindow& window = *program.Window().Forms().Window(form);
    for (int x = window.width() - 1; x > 0 && window.isVisible(); x -= 6) {
      if (x < window.width() - 40) break;
      program.Click(window, QPoint(x, 14));
    }
  }

  Program program;
};

TEST_F(Focus, TheEditMenuCutsTheTextThatIsSelectedInACellAndNotTheObject) {
  program.Place(0, {20, 20});
  program.Click(NameCell());
  NameCell().selectAll();
  QApplication::clipboard()->clear();
  program.Choose(QStringLiteral("mnuCut"));
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Form1Btn1"));
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
  EXPECT_EQ(NameCell().text(), QString());
}

TEST_F(Focus, TheToolbarCopiesAndPastesInTheCellWithTheFocus) {
  program.Place(0, {20, 20});
  program.Click(NameCell());
  NameCell().selectAll();
  QToolButton& copy = program.Find<QToolButton>(QStringLiteral("BtnMenu_4"));
  QToolButton& paste = program.Find<QToolButton>(QStringLiteral("BtnMenu_5"));
  program.Click(copy);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Form1Btn1"));
  QTest::keyClick(&NameCell(), Qt::Key_End);
  program.Click(paste);
  EXPECT_EQ(NameCell().text(), QStringLiteral("Form1Btn1Form1Btn1"));
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
}

TEST_F(Focus, DeleteFromTheMenuTakesALetterWhileATextHasTheFocus) {
  program.Place(0, {20, 20});
  program.Click(NameCell());
  QTest::keyClick(&NameCell(), Qt::Key_Home);
  program.Choose(QStringLiteral("mnuDelete"));
  EXPECT_EQ(NameCell().text(), QStringLiteral("orm1Btn1"));
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
}

TEST_F(Focus, SaveLeavesTheFocusInTheCellWithItsRow) {
  program.Place(0, {20, 20});
  Save();
  program.Click(NameCell());
  NameCell().setCursorPosition(3);
  program.Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(QApplication::focusWidget(), &NameCell());
  EXPECT_EQ(NameCell().cursorPosition(), 3);
  program.Key(Qt::Key_Delete);
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
}

TEST_F(Focus, AfterACompileTheDesignFormHasItsKeysAgain) {
  program.Place(0, {20, 20});
  Save();
  program.Surface().setFocus();
  const float left = program.Selected()->Left;
  program.Key(Qt::Key_F5);
  EXPECT_EQ(QApplication::focusWidget(), &program.Surface());
  program.Key(Qt::Key_Right);
  ASSERT_NE(program.Selected(), nullptr);
  EXPECT_GT(program.Selected()->Left, left);
}

TEST_F(Focus, AfterACompileFromACellTheCellHasTheFocus) {
  program.Place(0, {20, 20});
  Save();
  program.Click(NameCell());
  program.Key(Qt::Key_F5);
  EXPECT_EQ(QApplication::focusWidget(), &NameCell());
}

TEST_F(Focus, DeleteOnALockedFormIsRefused) {
  program.Place(0, {20, 20});
  program.Key(Qt::Key_L, Qt::ControlModifier);
  program.Surface().setFocus();
  program.User.Ok();
  program.Key(Qt::Key_Delete);
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
  const std::vector<SeenBox> seen = program.User.TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].Text, QStringLiteral("Need to Unblock controls before copy/cut/paste"));
}

TEST_F(Focus, EscOnALockedFormLeavesItLocked) {
  program.Place(0, {20, 20});
  program.Key(Qt::Key_L, Qt::ControlModifier);
  program.Surface().setFocus();
  program.Key(Qt::Key_Escape);
  EXPECT_FALSE(program.Form().m_bDesignMode);
  EXPECT_TRUE(program.Action(QStringLiteral("mnuBloquear")).isChecked());
}

TEST_F(Focus, ArrowsInTheFormListStayInItAndEnterGoesToTheForm) {
  program.PressTool(9);
  program.Place(0, {20, 20});
  const float left = program.Selected()->Left;
  program.Click(List(), List().visualItemRect(List().item(1)).center());
  List().setFocus();
  program.Key(Qt::Key_Up);
  EXPECT_EQ(program.Form().Number(), 1);
  EXPECT_EQ(QApplication::focusWidget(), &List());
  program.Key(Qt::Key_Down);
  EXPECT_EQ(program.Form().Number(), 2);
  EXPECT_EQ(QApplication::focusWidget(), &List());
  EXPECT_EQ(program.Selected()->Left, left);
  program.Key(Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), &program.Surface(2));
}

TEST_F(Focus, TheMainFormIsChosenByKeysAlone) {
  program.PressTool(9);
  program.User.Do([](QDialog& dialog) {
    auto* list = dialog.findChild<QListWidget*>(QStringLiteral("List1"));
    ASSERT_NE(list, nullptr);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
  });
  program.Choose(QStringLiteral("mnuMain"));
  EXPECT_EQ(program.Tables().MainFormName, "Form2 ()");
}

TEST_F(Focus, AWindowClosedByItsXIsNoTargetAnyMoreAndItsLineBringsItBack) {
  program.Place(0, {20, 20});
  Save();
  CloseWindow(1);
  ASSERT_FALSE(program.Window().Forms().Window(1)->isVisible());
  EXPECT_EQ(program.Tables().CurrentForm, nullptr);
  program.Key(Qt::Key_Delete);
  program.Choose(QStringLiteral("mnuSave"));
  EXPECT_FALSE(program.Window().Forms().Window(1)->isVisible());
  program.Click(List(), List().visualItemRect(List().item(0)).center());
  EXPECT_TRUE(program.Window().Forms().Window(1)->isVisible());
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
}

TEST_F(Focus, TheRowThatRemovesAFormShowsTheAmpersandOfItsName) {
  program.Record().Name = "A&B";
  program.Shell().RefreshStatus();
  QTest::qWait(20);
  EXPECT_EQ(program.Action(QStringLiteral("mnuRemove")).text(),
            QStringLiteral("Remove A&&B from project"));
}

TEST_F(Focus, TheWindowFitsTheScreenAndComesBackAsItWasLeft) {
  const QRect free = program.Window().screen()->availableGeometry();
  program.Window().TakePlacement({});
  Program::Settle();
  EXPECT_TRUE(free.contains(program.Window().geometry()));
  program.Window().setGeometry(free.x() + 40, free.y() + 50, 700, 520);
  Program::Settle();
  const QRect left = program.Window().geometry();
  const WindowPlacement placement = program.Window().Placement();
  program.Window().setGeometry(free.x() + 5, free.y() + 40, 790, 540);
  program.Window().TakePlacement(placement);
  Program::Settle();
  EXPECT_EQ(program.Window().geometry(), left);
}

}  // namespace
}  // namespace tarnwick
