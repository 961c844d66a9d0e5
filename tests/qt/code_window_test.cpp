#include "qt/editor/code_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <string>

#include <Qsci/qscilexer.h>
#include <gtest/gtest.h>

#include "codegen/program_source.h"
#include "editor/editor_project.h"
#include "editor/intellisense_cases.h"
#include "qt/editor/code_edit.h"
#include "qt/kit/text_bridge.h"
#include "qt/program.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

constexpr int kButtonTool = 0;
constexpr int kLabelTool = 3;

class CodeWindowTest : public testing::Test {
 protected:
  CodeWindow& Window() { return program.Find<CodeWindow>(QStringLiteral("FormCodigo")); }
  CodeEdit& Editor() { return program.Find<CodeEdit>(QStringLiteral("Editor")); }
  QToolButton& Tool(int index) {
    auto* tool = Window().findChild<QToolButton*>(QStringLiteral("BtnMenu_%1").arg(index));
    EXPECT_NE(tool, nullptr) << index;
    return *tool;
  }
  QComboBox& Events() { return program.Find<QComboBox>(QStringLiteral("Events")); }
  std::string Code(std::string_view key) {
    const std::string* code = program.Tables().EventTable.Find(key);
    return code == nullptr ? "(none)" : *code;
  }
  void OpenCodeOfNewButton() {
    program.Place(kButtonTool, {40, 60});
    program.Key(Qt::Key_F7);
    Program::Settle();
    ASSERT_TRUE(Window().isVisible());
  }
  void TypeCode(const QString& text) { QTest::keyClicks(Editor().viewport(), text); }
  void KeyInCode(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QTest::keyClick(&Editor(), key, held);
  }
  void ChooseEvent(int row) {
    Events().setCurrentIndex(row);
    Q_EMIT Events().activated(row);
  }

  Program program;
};

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
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "Beep");
  GeneratorState state;
  EXPECT_TRUE(Contains(GenerateSource(program.Tables(), state), "Sub Form1Btn1_OnClick\r\nBeep"));
  EXPECT_EQ(program.Shell().Tables().FormsBar.at(1)->Entries.size(), 1U);
}

TEST_F(CodeWindowTest, UndoIsOffWhereATextWasJustOpened) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("Beep"));
  EXPECT_TRUE(Tool(5).isEnabled());
  KeyInCode(Qt::Key_Return, Qt::ControlModifier);
  program.Key(Qt::Key_F7);
  Program::Settle();
  ASSERT_EQ(Editor().Text(), "Beep");
  EXPECT_FALSE(Tool(5).isEnabled());
  EXPECT_FALSE(Tool(6).isEnabled());
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

TEST_F(CodeWindowTest, NoTwoPartsOfFindAndReplaceShareALetter) {
  OpenCodeOfNewButton();
  program.Key(Qt::Key_F, Qt::ControlModifier);
  auto& dialog = program.Find<QDialog>(QStringLiteral("FindDialog"));
  ASSERT_TRUE(dialog.isVisible());
  QStringList letters;
  const auto take = [&letters](const QString& caption) {
    const QString letter = QKeySequence::mnemonic(caption).toString();
    if (!letter.isEmpty()) letters.append(letter);
  };
  for (const auto* button : dialog.findChildren<QAbstractButton*>()) take(button->text());
  for (const auto* label : dialog.findChildren<QLabel*>()) take(label->text());
  EXPECT_GE(letters.size(), 9);
  EXPECT_EQ(letters.removeDuplicates(), 0) << letters.join(u' ').toStdString();
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
  EXPECT_EQ(Code("Form1.Button1.OnKeyDown"), "two");
}

TEST_F(CodeWindowTest, EscClosesWithoutKeepingAndTheLostTextIsOffered) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("lost"));
  QTest::keyClick(&Window(), Qt::Key_Escape);
  EXPECT_FALSE(Window().isVisible());
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "(none)");
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
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "(none)");
}

TEST_F(CodeWindowTest, CtrlEnterAccepts) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("x"));
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "x");
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
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "Form1Btn1.");
  EXPECT_FALSE(Window().isVisible());
  EXPECT_FALSE(list.isVisible());
}

TEST_F(CodeWindowTest, TheCodeOfADeletedNeighbourGoesAndItsOwnStays) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("mine"));
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  program.Place(kLabelTool, {150, 100});
  program.Shell().Commands().Run(Command::Delete);
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "mine");
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

TEST_F(CodeWindowTest, UndoIsOffAtTheStartOfTheHistory) {
  OpenCodeOfNewButton();
  auto& undo = Tool(5);
  EXPECT_FALSE(undo.isEnabled());
  TypeCode(QStringLiteral("x"));
  EXPECT_TRUE(undo.isEnabled());
  undo.click();
  EXPECT_EQ(Editor().Text(), "");
  EXPECT_FALSE(undo.isEnabled());
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

TEST_F(CodeWindowTest, FindAndReplaceAllTellTheCount) {
  OpenCodeOfNewButton();
  Editor().SetText("one two one");
  program.Key(Qt::Key_F, Qt::ControlModifier);
  Program::Settle();
  program.Find<QLineEdit>(QStringLiteral("FindText")).setText(QStringLiteral("ONE"));
  program.Find<QLineEdit>(QStringLiteral("ReplaceText")).setText(QStringLiteral("three"));
  program.Find<QPushButton>(QStringLiteral("FindNext")).click();
  EXPECT_EQ(Editor().GetSel(), (editor::EditRange{0, 0, 0, 3}));
  program.Find<QPushButton>(QStringLiteral("FindNext")).click();
  EXPECT_EQ(Editor().GetSel(), (editor::EditRange{0, 8, 0, 11}));
  program.Find<QPushButton>(QStringLiteral("FindPrevious")).click();
  EXPECT_EQ(Editor().GetSel(), (editor::EditRange{0, 0, 0, 3}));
  program.Find<QPushButton>(QStringLiteral("ReplaceAll")).click();
  EXPECT_EQ(Editor().Text(), "three two three");
  EXPECT_EQ(program.Find<QLabel>(QStringLiteral("FindResult")).text(),
            QStringLiteral("2 replaced."));
  program.Find<QPushButton>(QStringLiteral("ReplaceAll")).click();
  EXPECT_EQ(program.Find<QLabel>(QStringLiteral("FindResult")).text(),
            QStringLiteral("Nothing was found."));
  Editor().undo();
  EXPECT_EQ(Editor().Text(), "one two one");
}

TEST_F(CodeWindowTest, ReplaceTakesWholeWordsAloneWhenAsked) {
  OpenCodeOfNewButton();
  Editor().SetText("bone one One");
  program.Key(Qt::Key_F, Qt::ControlModifier);
  program.Find<QLineEdit>(QStringLiteral("FindText")).setText(QStringLiteral("one"));
  program.Find<QLineEdit>(QStringLiteral("ReplaceText")).setText(QStringLiteral("two"));
  auto& dialog = program.Find<QDialog>(QStringLiteral("FindDialog"));
  const auto boxes = dialog.findChildren<QCheckBox*>();
  for (QCheckBox* box : boxes) box->setChecked(box->text() != QStringLiteral("Match &case"));
  Editor().SetSel({0, 1, 0, 4});
  auto& replace = program.Find<QPushButton>(QStringLiteral("Replace"));
  replace.click();
  EXPECT_EQ(Editor().Text(), "bone one One");
  EXPECT_EQ(Editor().GetSel(), (editor::EditRange{0, 5, 0, 8}));
  replace.click();
  EXPECT_EQ(Editor().Text(), "bone two One");
  for (QCheckBox* box : boxes) box->setChecked(true);
  replace.click();
  EXPECT_EQ(Editor().Text(), "bone two One");
  Editor().SetText("one One");
  Editor().SetCaretPos(0, 4);
  program.Find<QPushButton>(QStringLiteral("FindNext")).click();
  EXPECT_EQ(Editor().GetSel(), (editor::EditRange{0, 0, 0, 3}));
  for (QCheckBox* box : boxes) box->setChecked(false);
  Editor().SetCaretPos(0, 7);
  program.Find<QPushButton>(QStringLiteral("FindNext")).click();
  EXPECT_EQ(program.Find<QLabel>(QStringLiteral("FindResult")).text(),
            QStringLiteral("Nothing was found."));
}

TEST_F(CodeWindowTest, TheFindDialogStandsAsideAndGivesTheKeysBack) {
  OpenCodeOfNewButton();
  Editor().SetText("one");
  program.Key(Qt::Key_F, Qt::ControlModifier);
  auto& dialog = program.Find<QDialog>(QStringLiteral("FindDialog"));
  const QRect first_line(Editor().mapToGlobal(QPoint(0, 0)), QSize(Editor().width(), 40));
  EXPECT_FALSE(dialog.geometry().intersects(first_line));
  program.Key(Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::focusWidget() == &Editor(); }));
}

TEST_F(CodeWindowTest, ASelectionBecomesTheTextToFind) {
  OpenCodeOfNewButton();
  Editor().SetText("one two");
  Editor().SetSel({0, 4, 0, 7});
  program.Key(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(program.Find<QLineEdit>(QStringLiteral("FindText")).text(), QStringLiteral("two"));
}

TEST_F(CodeWindowTest, F3FindsTheNextAndShiftF3TheOneBeforeWithoutTheDialog) {
  OpenCodeOfNewButton();
  Editor().SetText("a b a b");
  program.Find<QLineEdit>(QStringLiteral("FindText")).setText(QStringLiteral("b"));
  program.Key(Qt::Key_F3);
  EXPECT_EQ(Editor().GetSel(), (editor::EditRange{0, 2, 0, 3}));
  program.Key(Qt::Key_F3);
  EXPECT_EQ(Editor().GetSel(), (editor::EditRange{0, 6, 0, 7}));
  program.Key(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(Editor().GetSel(), (editor::EditRange{0, 2, 0, 3}));
}

TEST_F(CodeWindowTest, ZoomWidensTheLineNumbersWithTheText) {
  OpenCodeOfNewButton();
  const int before = Editor().marginWidth(0);
  Editor().zoomIn(6);
  Program::Settle();
  EXPECT_GT(Editor().marginWidth(0), before);
  Editor().zoomTo(0);
  Program::Settle();
  EXPECT_EQ(Editor().marginWidth(0), before);
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

TEST_F(CodeWindowTest, TheWindowRemembersItsSize) {
  OpenCodeOfNewButton();
  Window().resize(720, 500);
  QTest::keyClick(&Window(), Qt::Key_Escape);
  const std::string kept = program.Shell().SettingsFile().Read("Window", "FormCodigo");
  EXPECT_TRUE(Contains(kept, ",720,500")) << kept;
}

TEST_F(CodeWindowTest, AWindowThatWasLargerThanTheScreenComesBackWithinIt) {
  program.Shell().SettingsFile().Write("Window", "FormCodigo", "-300,-200,5000,4000");
  program.Shell().SettingsFile().Write("Window", "FormViewCodes", "9000,9000,700,500");
  OpenCodeOfNewButton();
  const QRect screen = Window().screen()->availableGeometry();
  EXPECT_TRUE(screen.contains(Window().geometry()));
  program.Key(Qt::Key_D, Qt::ControlModifier);
  EXPECT_TRUE(screen.contains(program.Find<QWidget>(QStringLiteral("FormViewCodes")).geometry()));
}

TEST_F(CodeWindowTest, NoCodeWindowNeedsMoreThanASmallScreenHas) {
  OpenCodeOfNewButton();
  ASSERT_TRUE(program.Find<QWidget>(QStringLiteral("WndFunc")).isVisible());
  const QSize small(1024 - 8, 600 - 36);
  EXPECT_EQ(Window().minimumSizeHint().boundedTo(small), Window().minimumSizeHint());
  program.Key(Qt::Key_D, Qt::ControlModifier);
  const QSize least = program.Find<QWidget>(QStringLiteral("FormViewCodes")).minimumSizeHint();
  EXPECT_EQ(least.boundedTo(small), least);
}

TEST_F(CodeWindowTest, WhileTheEditorIsOpenTheOtherWindowsCanBeUsed) {
  OpenCodeOfNewButton();
  EXPECT_TRUE(Window().isWindow());
  EXPECT_FALSE(Window().isModal());
  program.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&program.Window()));
  program.Choose(QStringLiteral("mnuForms"));
  EXPECT_TRUE(Window().isVisible());
}

TEST_F(CodeWindowTest, TheFontOfTheCodeIsAskedForByItsName) {
  OpenCodeOfNewButton();
  EXPECT_EQ(Editor().lexer()->font(0).family(), QStringLiteral("Courier New"));
  EXPECT_EQ(Editor().lexer()->font(0).pointSize(), 10);
  EXPECT_EQ(program.Find<CodeEdit>(QStringLiteral("EditorPublic")).lexer()->font(0).family(),
            QStringLiteral("Courdir new"));
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

/// The table of the member list on the real widget, with real keys.
class RealMemberList : public testing::TestWithParam<test::IntellisenseCase> {};

TEST_P(RealMemberList, TypedKeysGiveTheList) {
  const test::EditorProject project;
  const editor::MemberLookup lookup(project.Tables, project.Language, editor::kFixedWordsOfCode);
  QWidget window;
  window.resize(700, 500);
  CodeEdit code(QStringLiteral("Editor"), {}, lookup, "Courier New", &window);
  code.setGeometry(0, 0, 700, 500);
  code.setAutoIndent(false);
  window.show();
  window.activateWindow();
  code.setFocus();
  QTest::qWait(1);
  for (const char c : GetParam().Typed) {
    switch (c) {
      case '\b':
        QTest::keyClick(&code, Qt::Key_Backspace);
        break;
      case '\r':
        QTest::keyClick(&code, Qt::Key_Return);
        break;
      case '\x1B':
        QTest::keyClick(&code, Qt::Key_Escape);
        break;
      case '\x01':
        QTest::keyClick(&code, Qt::Key_Down);
        break;
      case '\x02':
        QTest::keyClick(&code, Qt::Key_Up);
        break;
      default:
        QTest::keyClick(&code, c);
    }
  }
  const auto* list = code.findChild<QListWidget*>(QStringLiteral("lstIntellisense"));
  ASSERT_NE(list, nullptr);
  std::string rows;
  std::string selected;
  if (list->isVisible()) {
    for (int row = 0; row < list->count(); ++row) {
      rows += (row == 0 ? "" : ",") + list->item(row)->text().toStdString();
    }
    if (!list->selectedItems().isEmpty()) selected = list->selectedItems()[0]->text().toStdString();
  }
  const editor::EditRange caret = code.GetSel();
  std::string text;
  for (int line = 0; line < caret.EndLineNo; ++line) text += code.GetLine(line) + "/";
  std::string last = code.GetLine(caret.EndLineNo);
  last.insert(static_cast<std::size_t>(caret.EndColNo), "|");
  EXPECT_EQ(rows, GetParam().Rows);
  EXPECT_EQ(selected, GetParam().Selected);
  EXPECT_EQ(text + last, GetParam().Text);
  EXPECT_EQ(QApplication::focusWidget(), &code);
}

INSTANTIATE_TEST_SUITE_P(Cases, RealMemberList, testing::ValuesIn(test::IntellisenseCases()),
                         [](const auto& tested) { return std::string(tested.param.Name); });

}  // namespace
}  // namespace tarnwick
