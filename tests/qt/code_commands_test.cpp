// The commands of the code windows: files, search, function panel, context menus, and where the
// keys go afterwards.
#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <string>

#include <gtest/gtest.h>

#include "qt/code_edit_window.h"
#include "qt/editor/code_window.h"
#include "qt/editor/declarations_window.h"
#include "qt/program.h"

namespace tarnwick {
namespace {

class CodeCommands : public testing::Test {
 protected:
  CodeWindow& Window() { return program.Find<CodeWindow>(QStringLiteral("FormCodigo")); }
  CodeEdit& Editor() { return program.Find<CodeEdit>(QStringLiteral("Editor")); }
  DeclarationsWindow& Declare() {
    return program.Find<DeclarationsWindow>(QStringLiteral("FormViewCodes"));
  }
  QToolButton& Tool(QWidget& window, int index) {
    auto* tool = window.findChild<QToolButton*>(QStringLiteral("BtnMenu_%1").arg(index));
    EXPECT_NE(tool, nullptr) << index;
    return *tool;
  }
  QString Words() { return program.Find<QLabel>(QStringLiteral("MarkText")).text(); }
  void OpenCode() {
    program.Key(Qt::Key_F7);
    Program::Settle();
    ASSERT_TRUE(Window().isVisible());
  }
  void OpenDeclarations() {
    program.Key(Qt::Key_D, Qt::ControlModifier);
    Program::Settle();
    ASSERT_TRUE(Declare().isVisible());
  }
  /// The rows of the menu that `open` shows, which is closed again.
  template <class Open>
  QStringList RowsOfMenu(Open open) {
    QStringList rows;
    QTimer::singleShot(0, [&rows] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      for (const QAction* row : menu->actions()) rows.append(row->text());
      menu->close();
    });
    open();
    return rows;
  }

  Program program;
};

TEST_F(CodeCommands, TheTextIsTheFirstThatTabReaches) {
  OpenCode();
  const QWidget* first = Window().nextInFocusChain();
  while (!first->isVisibleTo(&Window()) || (first->focusPolicy() & Qt::TabFocus) == 0 ||
         !first->isEnabled()) {
    first = first->nextInFocusChain();
  }
  EXPECT_EQ(first, &Editor());
}

TEST_F(CodeCommands, TheDialogsOfOpenAndSaveCodeOfferAllFiles) {
  OpenCode();
  Tool(Window(), 0).click();
  EXPECT_EQ(program.Dialogs.LastRequest.Title, "OPEN FILE - Tarnwick -");
  EXPECT_EQ(program.Dialogs.LastRequest.Filter, "All Files|*.*");
  Tool(Window(), 1).click();
  EXPECT_EQ(program.Dialogs.LastRequest.Title, "SAVE FILE - Tarnwick -");
  EXPECT_EQ(program.Dialogs.LastRequest.Filter, "All Files|*.*");
}

TEST_F(CodeCommands, ASaveWithoutANameDoesNothingAndTheTextHasTheKeys) {
  OpenCode();
  program.Type(QStringLiteral("Beep"));
  program.Find<QWidget>(QStringLiteral("Events")).setFocus();
  program.Dialogs.SaveAnswers.emplace_back("");
  Tool(Window(), 1).click();
  EXPECT_EQ(Words(), QString());
  EXPECT_EQ(QApplication::focusWidget(), &Editor());
}

TEST_F(CodeCommands, ASaveTellsThatItSucceededOrWhyItFailed) {
  OpenCode();
  program.Type(QStringLiteral("Beep"));
  const std::string path = program.Projects.Path("out.txt");
  program.Dialogs.SaveAnswers.push_back(path);
  Tool(Window(), 1).click();
  EXPECT_EQ(Words().toStdString(), "Saved: " + path);
  EXPECT_EQ(program.Projects.Read("out.txt"), "Beep");
  const std::string nowhere = program.Projects.Path("no such folder\\out.txt");
  program.Dialogs.SaveAnswers.push_back(nowhere);
  Tool(Window(), 1).click();
  EXPECT_TRUE(Words().toStdString().starts_with("Not saved: " + nowhere)) << Words().toStdString();
  EXPECT_TRUE(program.User.Seen().empty());
  EXPECT_EQ(QApplication::focusWidget(), &Editor());
  program.Type(QStringLiteral("x"));
  EXPECT_EQ(Words(), QString());
}

TEST_F(CodeCommands, AFileThatCannotBeReadLeavesTheTextAndIsNamed) {
  OpenCode();
  program.Type(QStringLiteral("Beep"));
  program.Dialogs.OpenAnswers.push_back(program.Projects.Path("missing.txt"));
  Tool(Window(), 0).click();
  EXPECT_EQ(Editor().Text(), "Beep");
  EXPECT_TRUE(Words().startsWith(QStringLiteral("Not opened: "))) << Words().toStdString();
}

TEST_F(CodeCommands, AClosedEditorGivesTheKeysBackToTheForm) {
  OpenCode();
  program.Key(Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([this] { return program.Surface().hasFocus(); }));
  OpenDeclarations();
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return program.Surface().hasFocus(); }));
}

TEST_F(CodeCommands, TheFunctionPanelHasItsCaptions) {
  OpenCode();
  auto& panel = program.Find<QWidget>(QStringLiteral("WndFunc"));
  EXPECT_EQ(panel.findChild<QLabel*>()->text(), QStringLiteral(" Functions..."));
  auto& tabs = program.Find<QTabWidget>(QStringLiteral("TabOrder"));
  ASSERT_EQ(tabs.count(), 3);
  EXPECT_EQ(tabs.tabText(0), QStringLiteral("Tarnwick Functions"));
  EXPECT_EQ(tabs.tabText(1), QStringLiteral("+ Functions"));
  EXPECT_EQ(tabs.tabText(2), QStringLiteral("Search"));
}

TEST_F(CodeCommands, ATabOfTheFunctionPanelGivesTheKeysToItsField) {
  OpenCode();
  auto& tabs = program.Find<QTabWidget>(QStringLiteral("TabOrder"));
  for (const auto& [tab, field] :
       {std::pair(1, "EditSearch_0"), {2, "EditSearch_2"}, {0, "EditSearch_1"}}) {
    tabs.setCurrentIndex(tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QLatin1String(field));
  }
}

TEST_F(CodeCommands, ThePanelsCloseGivesTheKeysToTheTextAndF2BackToItsField) {
  OpenCode();
  program.Click(*Window().findChild<QToolButton*>(QStringLiteral("btnClose")));
  EXPECT_FALSE(program.Find<QWidget>(QStringLiteral("WndFunc")).isVisible());
  EXPECT_EQ(QApplication::focusWidget(), &Editor());
  program.Key(Qt::Key_F2);
  EXPECT_TRUE(program.Find<QWidget>(QStringLiteral("WndFunc")).isVisible());
  EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("EditSearch_1"));
}

TEST_F(CodeCommands, EnterInTheSearchFieldSearchesWhereTheListSays) {
  OpenCode();
  program.Find<QTabWidget>(QStringLiteral("TabOrder")).setCurrentIndex(2);
  auto& field = program.Find<QLineEdit>(QStringLiteral("EditSearch_2"));
  auto& found = program.Find<QListWidget>(QStringLiteral("ListFunc_2"));
  program.Type(QStringLiteral("no function has this"));
  program.Key(Qt::Key_Return);
  ASSERT_EQ(found.count(), 1);
  EXPECT_EQ(found.item(0)->text(), QStringLiteral("Not Found"));
  EXPECT_EQ(QApplication::focusWidget(), &field);
  field.setText(QStringLiteral("left$"));
  program.Key(Qt::Key_Return);
  EXPECT_EQ(found.item(0)->text().toUpper(), QStringLiteral("LEFT$"));
}

TEST_F(CodeCommands, TheHelpsMenuHasTheOneRowCopy) {
  OpenCode();
  auto& help = program.Find<QPlainTextEdit>(QStringLiteral("EditHelp"));
  EXPECT_TRUE(help.isReadOnly());
  EXPECT_EQ(RowsOfMenu([&help] { Q_EMIT help.customContextMenuRequested(QPoint(5, 5)); }),
            QStringList{QStringLiteral("Copy")});
}

TEST_F(CodeCommands, TheDeclarationsHaveSixToolsAndFiveRows) {
  OpenDeclarations();
  const QStringList tips{QStringLiteral("Cut"),  QStringLiteral("Copy"), QStringLiteral("Paste"),
                         QStringLiteral("UnDo"), QStringLiteral("ReDo"), QStringLiteral("Search")};
  for (int i = 0; i < tips.size(); ++i) {
    EXPECT_TRUE(Tool(Declare(), i).toolTip().startsWith(tips[i])) << i;
  }
  EXPECT_EQ(Declare().findChild<QToolButton*>(QStringLiteral("BtnMenu_6")), nullptr);
  auto& text = program.Find<CodeEdit>(QStringLiteral("EditorPublic"));
  EXPECT_EQ(RowsOfMenu([&text] { Q_EMIT text.customContextMenuRequested(QPoint(5, 5)); }),
            tips.first(5));
}

TEST_F(CodeCommands, UndoAndRedoOfTheDeclarationsAreOnWhileThereIsSomething) {
  OpenDeclarations();
  EXPECT_FALSE(Tool(Declare(), 3).isEnabled());
  program.Type(QStringLiteral("Dim a"));
  EXPECT_TRUE(Tool(Declare(), 3).isEnabled());
  EXPECT_FALSE(Tool(Declare(), 4).isEnabled());
  Tool(Declare(), 3).click();
  auto& text = program.Find<CodeEdit>(QStringLiteral("EditorPublic"));
  EXPECT_EQ(text.Text(), "");
  EXPECT_FALSE(Tool(Declare(), 3).isEnabled());
  EXPECT_TRUE(Tool(Declare(), 4).isEnabled());
  EXPECT_EQ(QApplication::focusWidget(), &text);
}

TEST_F(CodeCommands, EscInTheFindDialogClosesItAloneAndEscInTheTextTheWindow) {
  OpenCode();
  program.Type(QStringLiteral("one"));
  program.Key(Qt::Key_F, Qt::ControlModifier);
  Program::Settle();
  program.Key(Qt::Key_Escape);
  EXPECT_TRUE(Window().isVisible());
  ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::focusWidget() == &Editor(); }));
  program.Key(Qt::Key_Escape);
  EXPECT_FALSE(Window().isVisible());
}

class CodeText : public CodeEditWindow {
 protected:
  /// What is painted of one character of the first line, with the caret at a column.
  QImage Painted(int column, int caret) {
    code_->SetCaretPos(0, caret);
    QTest::qWait(1);
    const int left = PlaceOf(0, column).x() + 1;
    const QRect cell(left, 0, PlaceOf(0, column + 1).x() - 1 - left, LineHeight());
    return code_->viewport()->grab(cell).toImage();
  }
};

TEST_F(CodeText, TheBracketThatMatchesTheOneAtTheCaretIsShown) {
  code_->SetText("a(bcd(e)f)g");
  const QImage quiet = Painted(1, 4);
  EXPECT_NE(Painted(1, 10), quiet);
  EXPECT_EQ(Painted(1, 4), quiet);
  EXPECT_EQ(Painted(5, 10), Painted(5, 4)) << "the inner one does not match it";
}

TEST_F(CodeText, ABracketWithoutItsPartnerIsShownInAnotherColour) {
  code_->SetText("a(bcd");
  const QImage alone = Painted(1, 2);
  EXPECT_NE(alone, Painted(1, 4));
  code_->SetText("a(bcd)");
  EXPECT_NE(Painted(1, 2), alone);
}

TEST_F(CodeText, ATextThatIsSetHasItsCaretAtTheStart) {
  code_->SetText("one\r\ntwo");
  code_->SetCaretPos(1, 2);
  code_->SetText("three\r\nfour");
  EXPECT_EQ(code_->GetSel(), (editor::EditRange{0, 0, 0, 0}));
}

TEST_F(CodeText, WithoutKeywordsNoWordIsColoured) {
  code_->SetText("Print");
  code_->SendScintilla(QsciScintilla::SCI_COLOURISE, 0UL, -1L);
  EXPECT_EQ(code_->SendScintilla(QsciScintilla::SCI_GETSTYLEAT, 0UL), 0);
}

}  // namespace
}  // namespace tarnwick
