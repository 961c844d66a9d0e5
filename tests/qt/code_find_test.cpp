// Find and replace in the code window.
#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include "qt/code_window_in_program.h"

namespace tarnwick {
namespace {

class CodeFind : public CodeWindowTest {};

TEST_F(CodeFind, NoTwoPartsOfFindAndReplaceShareALetter) {
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

TEST_F(CodeFind, FindAndReplaceAllTellTheCount) {
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

TEST_F(CodeFind, ReplaceTakesWholeWordsAloneWhenAsked) {
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

TEST_F(CodeFind, TheFindDialogStandsAsideAndGivesTheKeysBack) {
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

TEST_F(CodeFind, ASelectionBecomesTheTextToFind) {
  OpenCodeOfNewButton();
  Editor().SetText("one two");
  Editor().SetSel({0, 4, 0, 7});
  program.Key(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(program.Find<QLineEdit>(QStringLiteral("FindText")).text(), QStringLiteral("two"));
}

TEST_F(CodeFind, F3FindsTheNextAndShiftF3TheOneBeforeWithoutTheDialog) {
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

}  // namespace
}  // namespace tarnwick
