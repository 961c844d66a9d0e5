// The pages of the Help menu on the screen.
#include "qt/frame/help_window.h"

#include <QAbstractTextDocumentLayout>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include <gtest/gtest.h>

#include "program.h"
#include "reach.h"

namespace tarnwick {
namespace {

class HelpOnScreen : public testing::Test {
 protected:
  void Open(const char* row) {
    program.Choose(QString::fromLatin1(row));
    window = program.Window().findChild<HelpWindow*>();
    ASSERT_NE(window, nullptr);
    ASSERT_TRUE(window->isVisible());
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  }
  QTextBrowser& Text() { return *window->findChild<QTextBrowser*>(QStringLiteral("HelpText")); }
  std::string Shown() { return Text().toPlainText().toStdString(); }
  /// Presses the first link of the page.
  void PressLink() {
    const QTextDocument& document = *Text().document();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
      for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
        if (!piece.fragment().charFormat().isAnchor()) continue;
        QTextCursor caret(block);
        caret.setPosition(piece.fragment().position() + 1);
        Text().setTextCursor(caret);
        Text().ensureCursorVisible();
        QTest::mouseClick(Text().viewport(), Qt::LeftButton, {}, Text().cursorRect(caret).center());
        return;
      }
    }
    FAIL() << "no link";
  }

  Program program;
  HelpWindow* window = nullptr;
};

TEST_F(HelpOnScreen, EachRowOpensItsPage) {
  Open("mnuHelpRunning");
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Runner and Compiler"));
  EXPECT_TRUE(Shown().starts_with("Runner and compiler\nF5 makes one")) << Shown().substr(0, 80);
  EXPECT_TRUE(Text().hasFocus());
  Open("mnuHelpChoices");
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Choices of the Runner"));
  EXPECT_TRUE(Shown().starts_with("Choices\nRapidQ leaves")) << Shown().substr(0, 80);
  Open("mnuHelpSupported");
  EXPECT_EQ(window->windowTitle(), QStringLiteral("What the Runner Supports"));
  EXPECT_TRUE(Shown().starts_with("What the runner supports\n")) << Shown().substr(0, 80);
  EXPECT_EQ(program.Window().findChildren<HelpWindow*>().size(), 1);
}

TEST_F(HelpOnScreen, TheListOfWhatIsSupportedHasClassesWordsAndLines) {
  Open("mnuHelpSupported");
  const std::string text = Shown();
  EXPECT_NE(text.find("\nQBUTTON\n"), std::string::npos);
  EXPECT_NE(text.find("INPUTHANDLE"), std::string::npos);
  EXPECT_NE(text.find("TrnspAbrFrm1odal"), std::string::npos);
  EXPECT_EQ(text.find("|---"), std::string::npos) << "tables are shown as such";
}

TEST_F(HelpOnScreen, ALinkLeadsToItsPageAndBackLeadsBack) {
  Open("mnuHelpRunning");
  PressLink();
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Choices of the Runner"));
  program.Key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Runner and Compiler"));
  program.Key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Runner and Compiler")) << "the first page";
}

TEST_F(HelpOnScreen, EscClosesItAndTheMainWindowCanBeUsedWhileItIsOpen) {
  Open("mnuHelpChoices");
  EXPECT_FALSE(window->isModal());
  program.Key(Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  Open("mnuHelpChoices");
  EXPECT_TRUE(window->isVisible());
}

TEST_F(HelpOnScreen, ItsWidgetsHaveNames) {
  Open("mnuHelpRunning");
  EXPECT_EQ(tarnwick::Text(Nameless(*window)), "");
}

}  // namespace
}  // namespace tarnwick
