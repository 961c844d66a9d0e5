// The code window: opening, typing, keeping and leaving it by keys.
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <string>

#include <gtest/gtest.h>

#include "qt/code_window_in_program.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

constexpr int kLabelTool = 3;

TEST_F(CodeWindowTest, F7OpensTheCodeOfTheSelection) {
  OpenCodeOfNewButton();
  EXPECT_EQ(Window().windowTitle(), QStringLiteral("Form1Btn1"));
  EXPECT_EQ(Events().currentText(), QStringLiteral("Sub Form1Btn1_OnClick"));
  EXPECT_EQ(Events().count(), 7);
  EXPECT_FALSE(Window().isModal());
  EXPECT_EQ(QApplication::focusWidget(), &Editor());
}

TEST_F(CodeWindowTest, WhatIsTypedAndAcceptedReachesTheGeneratedSourceAndTheEventsBar) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("Beep"));
  program.Find<QPushButton>(QStringLiteral("BtnFrm_0")).click();
  Program::Settle();
  EXPECT_FALSE(Window().isVisible());
  EXPECT_EQ(program.Code("Form1.Button1.OnClick"), "Beep");
  EXPECT_TRUE(Contains(program.Source(), "Sub Form1Btn1_OnClick\r\nBeep"));
  EXPECT_EQ(program.Shell().Tables().FormsBar.at(1)->Entries.size(), 1U);
}

TEST_F(CodeWindowTest, TheFunctionPanelOpensWithItsFieldInStepWithTheList) {
  OpenCodeOfNewButton();
  program.Key(Qt::Key_F2);
  program.Type(QStringLiteral("mid"));
  auto& field = program.Find<QLineEdit>(QStringLiteral("EditSearch_1"));
  ASSERT_EQ(field.text(), QStringLiteral("mid"));
  QTest::keyClick(&Window(), Qt::Key_Escape);
  program.Key(Qt::Key_F7);
  EXPECT_EQ(field.text(), QString());
  EXPECT_EQ(program.Find<QListWidget>(QStringLiteral("ListFunc_1")).currentRow(), 0);
}

TEST_F(CodeWindowTest, AChangeOfEventKeepsTheTextOfTheOneBefore) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("one"));
  ChooseEvent(1);
  EXPECT_EQ(Editor().Text(), "");
  TypeCode(QStringLiteral("two"));
  ChooseEvent(0);
  EXPECT_EQ(Editor().Text(), "one");
  EXPECT_FALSE(Editor().isUndoAvailable());
  EXPECT_EQ(program.Code("Form1.Button1.OnKeyDown"), "two");
}

TEST_F(CodeWindowTest, EscClosesWithoutKeepingAndTheLostTextIsOffered) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("lost"));
  QTest::keyClick(&Window(), Qt::Key_Escape);
  EXPECT_FALSE(Window().isVisible());
  EXPECT_EQ(program.Code("Form1.Button1.OnClick"), "(none)");
  program.Key(Qt::Key_F7);
  Program::Settle();
  EXPECT_EQ(Editor().Text(), "");
  auto& restore = program.Find<QPushButton>(QStringLiteral("RestoreCode"));
  ASSERT_TRUE(restore.isVisible());
  restore.click();
  EXPECT_EQ(Editor().Text(), "lost");
  EXPECT_FALSE(restore.isVisible());
  Editor().undo();
  EXPECT_EQ(Editor().Text(), "");
}

TEST_F(CodeWindowTest, ClosingTheWindowIsACancel) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("lost"));
  Window().close();
  EXPECT_FALSE(Window().isVisible());
  EXPECT_EQ(program.Code("Form1.Button1.OnClick"), "(none)");
}

TEST_F(CodeWindowTest, CtrlEnterAccepts) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("x"));
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(program.Code("Form1.Button1.OnClick"), "x");
  EXPECT_FALSE(Window().isVisible());
}

TEST_F(CodeWindowTest, EscHidesTheMemberListFirstAndClosesTheWindowThen) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("Form1Btn1."));
  auto& list = *Editor().findChild<QListWidget*>(QStringLiteral("lstIntellisense"));
  ASSERT_TRUE(list.isVisible());
  program.Key(Qt::Key_Escape);
  EXPECT_FALSE(list.isVisible());
  EXPECT_TRUE(Window().isVisible());
  program.Key(Qt::Key_Escape);
  EXPECT_FALSE(Window().isVisible());
}

TEST_F(CodeWindowTest, CtrlEnterWithAnOpenMemberListKeepsTheTextAsItStands) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("Form1Btn1."));
  auto& list = *Editor().findChild<QListWidget*>(QStringLiteral("lstIntellisense"));
  ASSERT_TRUE(list.isVisible());
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(program.Code("Form1.Button1.OnClick"), "Form1Btn1.");
  EXPECT_FALSE(Window().isVisible());
  EXPECT_FALSE(list.isVisible());
}

TEST_F(CodeWindowTest, TheCodeOfADeletedNeighbourGoesAndItsOwnStays) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("mine"));
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  program.Place(kLabelTool, {150, 100});
  program.Shell().Commands().Run(Command::Delete);
  EXPECT_EQ(program.Code("Form1.Button1.OnClick"), "mine");
}

TEST_F(CodeWindowTest, MenuBarToolbarAndContextMenuHaveTheirRows) {
  OpenCodeOfNewButton();
  const QStringList tips{QStringLiteral("Open Code"),
                         QStringLiteral("Save Code"),
                         QStringLiteral("Cut"),
                         QStringLiteral("Copy"),
                         QStringLiteral("Paste"),
                         QStringLiteral("UnDo"),
                         QStringLiteral("ReDo"),
                         QStringLiteral("Search"),
                         QStringLiteral("Public Declarations"),
                         QStringLiteral("Functions"),
                         QStringLiteral("Objects Examiner")};
  auto& bar = program.Find<QToolBar>(QStringLiteral("Barra"));
  for (int i = 0; i < tips.size(); ++i) {
    auto* button = bar.findChild<QToolButton*>(QStringLiteral("BtnMenu_%1").arg(i));
    ASSERT_NE(button, nullptr) << i;
    EXPECT_EQ(button->accessibleName(), tips[i]);
    EXPECT_TRUE(button->toolTip().startsWith(tips[i])) << i;
  }
}

TEST_F(CodeWindowTest, UndoIsOffAtTheStartOfTheHistoryOfEachOpening) {
  OpenCodeOfNewButton();
  QToolButton& undo = Tool(5);
  EXPECT_FALSE(undo.isEnabled());
  TypeCode(QStringLiteral("x"));
  EXPECT_TRUE(undo.isEnabled());
  undo.click();
  EXPECT_EQ(Editor().Text(), "");
  EXPECT_FALSE(undo.isEnabled());
  TypeCode(QStringLiteral("Beep"));
  KeyInCode(Qt::Key_Return, Qt::ControlModifier);
  program.Key(Qt::Key_F7);
  Program::Settle();
  ASSERT_EQ(Editor().Text(), "Beep");
  EXPECT_FALSE(undo.isEnabled());
  EXPECT_FALSE(Tool(6).isEnabled());
}

TEST_F(CodeWindowTest, OpenCodeReplacesTheTextAndACancelledDialogLeavesIt) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("old"));
  Events().setFocus();
  Tool(0).click();
  EXPECT_EQ(Editor().Text(), "old");
  EXPECT_EQ(QApplication::focusWidget(), &Editor());
  EXPECT_EQ(program.Dialogs.LastRequest.Title, "OPEN FILE - Tarnwick -");
  program.Projects.Write("code.txt", "line 1\r\nline 2");
  program.Dialogs.OpenAnswers.push_back(program.Projects.Path("code.txt"));
  Tool(0).click();
  EXPECT_EQ(Editor().Text(), "line 1\r\nline 2");
  Editor().undo();
  EXPECT_EQ(Editor().Text(), "old");
  program.Projects.Write("unix.txt", "line 1\nline 2\n");
  program.Dialogs.OpenAnswers.push_back(program.Projects.Path("unix.txt"));
  Tool(0).click();
  EXPECT_EQ(Editor().Text(), "line 1\r\nline 2\r\n");
  Editor().SetText("line 1\r\nline 2");
  program.Dialogs.SaveAnswers.push_back(program.Projects.Path("out.txt"));
  Tool(1).click();
  EXPECT_EQ(program.Projects.Read("out.txt"), "line 1\r\nline 2");
}

TEST_F(CodeWindowTest, AnEnterKeepsTheIndentOfTheLine) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("    a"));
  KeyInCode(Qt::Key_Return);
  TypeCode(QStringLiteral("b"));
  EXPECT_EQ(Editor().Text(), "    a\r\n    b");
}

TEST_F(CodeWindowTest, CtrlSlashCommentsTheSelectedLinesAndTakesItBack) {
  OpenCodeOfNewButton();
  Editor().SetText("a\r\nb\r\nc");
  Editor().SetSel({0, 0, 1, 1});
  KeyInCode(Qt::Key_Slash, Qt::ControlModifier);
  EXPECT_EQ(Editor().Text(), "'a\r\n'b\r\nc");
  Editor().SetSel({0, 0, 1, 2});
  KeyInCode(Qt::Key_Slash, Qt::ControlModifier);
  EXPECT_EQ(Editor().Text(), "a\r\nb\r\nc");
}

TEST_F(CodeWindowTest, ACharacterThatTheCodePageLacksBecomesAQuestionMarkAtOnce) {
  OpenCodeOfNewButton();
  QApplication::clipboard()->setText(QStringLiteral("a\u4e2db\u20ac"));
  Editor().paste();
  EXPECT_EQ(Editor().text(), QStringLiteral("a?b\u20ac"));
  QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QStringLiteral("\u4e2d"));
  QApplication::sendEvent(&Editor(), &key);
  EXPECT_EQ(Editor().text(), QStringLiteral("a?b\u20ac?"));
  QInputMethodEvent typed;
  typed.setCommitString(QStringLiteral("\u4e2d\u20ac"));
  QApplication::sendEvent(&Editor(), &typed);
  EXPECT_EQ(Editor().text(), QStringLiteral("a?b\u20ac??\u20ac"));
}

TEST_F(CodeWindowTest, TabIndentsTheSelectedLinesAndShiftTabTakesItBack) {
  OpenCodeOfNewButton();
  Editor().SetText("a\r\nb\r\nc");
  Editor().SetSel({0, 0, 1, 1});
  KeyInCode(Qt::Key_Tab);
  EXPECT_EQ(Editor().Text(), "    a\r\n    b\r\nc");
  KeyInCode(Qt::Key_Backtab);
  EXPECT_EQ(Editor().Text(), "a\r\nb\r\nc");
}

TEST_F(CodeWindowTest, GoToLineAsksForTheNumber) {
  OpenCodeOfNewButton();
  Editor().SetText("a\r\nb\r\nc");
  program.User.Do([](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Go to Line"));
    auto* number = dialog.findChild<QSpinBox*>();
    EXPECT_EQ(number->maximum(), 3);
    number->setValue(3);
    dialog.accept();
  });
  KeyInCode(Qt::Key_G, Qt::ControlModifier);
  EXPECT_EQ(Editor().GetSel(), (editor::EditRange{2, 0, 2, 0}));
}

TEST_F(CodeWindowTest, CtrlDOpensTheDeclarationsFromTheText) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("Beep"));
  program.Key(Qt::Key_D, Qt::ControlModifier);
  EXPECT_TRUE(program.Find<QWidget>(QStringLiteral("FormViewCodes")).isVisible());
  EXPECT_EQ(Editor().Text(), "Beep");
}

TEST_F(CodeWindowTest, TheContextMenuHasItsRowsInOrderAndHelpDoesNothing) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("Beep"));
  QStringList rows;
  QTimer::singleShot(0, [&rows] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return;
    for (const QAction* row : menu->actions()) {
      rows.append(row->isSeparator() ? QStringLiteral("-") : row->text());
    }
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                      menu->actionGeometry(menu->actions().at(13)).center());
  });
  Q_EMIT Editor().customContextMenuRequested(QPoint(60, 20));
  const QStringList expected{QStringLiteral("UnDo"),
                             QStringLiteral("ReDo"),
                             QStringLiteral("-"),
                             QStringLiteral("Copy"),
                             QStringLiteral("Cut"),
                             QStringLiteral("Paste"),
                             QStringLiteral("-"),
                             QStringLiteral("Search"),
                             QStringLiteral("-"),
                             QStringLiteral("Public Declarations"),
                             QStringLiteral("Functions and Examples"),
                             QStringLiteral("Objets Properties"),
                             QStringLiteral("-"),
                             QStringLiteral("Help")};
  EXPECT_EQ(rows, expected);
  EXPECT_EQ(Editor().Text(), "Beep");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(CodeWindowTest, F1ShowsTheHelpOfTheWord) {
  OpenCodeOfNewButton();
  Editor().SetText("x = Mid$(a, 1)");
  Editor().SetCaretPos(0, 6);
  KeyInCode(Qt::Key_F1);
  EXPECT_TRUE(program.Find<QPlainTextEdit>(QStringLiteral("EditHelp"))
                  .toPlainText()
                  .startsWith(QStringLiteral("MID$")));
}

TEST_F(CodeWindowTest, TheFunctionPanelFindsInsertsAndCloses) {
  OpenCodeOfNewButton();
  auto& panel = program.Find<QWidget>(QStringLiteral("WndFunc"));
  ASSERT_TRUE(panel.isVisible());
  EXPECT_FALSE(Tool(9).isEnabled());
  program.Key(Qt::Key_F2);
  auto& field = program.Find<QLineEdit>(QStringLiteral("EditSearch_1"));
  EXPECT_EQ(QApplication::focusWidget(), &field);
  QTest::keyClicks(&field, QStringLiteral("left"));
  auto& list = program.Find<QListWidget>(QStringLiteral("ListFunc_1"));
  EXPECT_TRUE(list.currentItem()->text().startsWith(QStringLiteral("LEFT"), Qt::CaseInsensitive));
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(Editor().text(), list.currentItem()->text());
  panel.findChild<QToolButton*>(QStringLiteral("btnClose"))->click();
  EXPECT_FALSE(panel.isVisible());
  EXPECT_TRUE(Tool(9).isEnabled());
}

TEST_F(CodeWindowTest, ARenameShowsInTheOpenWindowAndTheCodeStays) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("kept"));
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  program.Selected()->Tag = "Renamed";
  program.Key(Qt::Key_F7);
  Program::Settle();
  EXPECT_EQ(Window().windowTitle(), QStringLiteral("Renamed"));
  EXPECT_EQ(Editor().Text(), "kept");
}

TEST_F(CodeWindowTest, PublicDeclarationsAreKeptByTheirOkAlone) {
  program.Key(Qt::Key_D, Qt::ControlModifier);
  Program::Settle();
  auto& window = program.Find<QWidget>(QStringLiteral("FormViewCodes"));
  ASSERT_TRUE(window.isVisible());
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Form: Form1  (Public Declarations)"));
  auto& text = program.Find<CodeEdit>(QStringLiteral("EditorPublic"));
  QTest::keyClicks(text.viewport(), QStringLiteral("Dim a"));
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(program.Record().DeclarePbl, "");
  program.Key(Qt::Key_D, Qt::ControlModifier);
  Program::Settle();
  QTest::keyClicks(text.viewport(), QStringLiteral("Dim b"));
  program.Find<QPushButton>(QStringLiteral("Command1")).click();
  EXPECT_EQ(program.Record().DeclarePbl, "Dim b");
}

TEST_F(CodeWindowTest, ALongTextIsColouredAsFarAsItIsSeenAndTypingGoesOn) {
  OpenCodeOfNewButton();
  std::string text;
  for (int line = 0; line < 50000; ++line) text += "x = x + 1 ' line\r\n";
  Editor().SetText(text);
  Editor().SetCaretPos(49999, 0);
  TypeCode(QStringLiteral("y"));
  EXPECT_TRUE(Editor().GetLine(49999).starts_with("yx"));
}

}  // namespace
}  // namespace tarnwick
