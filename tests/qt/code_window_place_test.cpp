// Size, place and fonts of the code windows.
#include <QTest>
#include <string>

#include <Qsci/qscilexer.h>
#include <gtest/gtest.h>

#include "qt/code_window_in_program.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

class CodeWindowPlace : public CodeWindowTest {};

TEST_F(CodeWindowPlace, ZoomWidensTheLineNumbersWithTheText) {
  OpenCodeOfNewButton();
  const int before = Editor().marginWidth(0);
  Editor().zoomIn(6);
  Program::Settle();
  EXPECT_GT(Editor().marginWidth(0), before);
  Editor().zoomTo(0);
  Program::Settle();
  EXPECT_EQ(Editor().marginWidth(0), before);
}

TEST_F(CodeWindowPlace, TheWindowRemembersItsSize) {
  OpenCodeOfNewButton();
  Window().resize(720, 500);
  QTest::keyClick(&Window(), Qt::Key_Escape);
  const std::string kept = program.Shell().SettingsFile().Read("Window", "FormCodigo");
  EXPECT_TRUE(Contains(kept, ",720,500")) << kept;
}

TEST_F(CodeWindowPlace, AWindowThatWasLargerThanTheScreenComesBackWithinIt) {
  program.Shell().SettingsFile().Write("Window", "FormCodigo", "-300,-200,5000,4000");
  program.Shell().SettingsFile().Write("Window", "FormViewCodes", "9000,9000,700,500");
  OpenCodeOfNewButton();
  const QRect screen = Window().screen()->availableGeometry();
  EXPECT_TRUE(screen.contains(Window().geometry()));
  program.Key(Qt::Key_D, Qt::ControlModifier);
  EXPECT_TRUE(screen.contains(program.Find<QWidget>(QStringLiteral("FormViewCodes")).geometry()));
}

TEST_F(CodeWindowPlace, NoCodeWindowNeedsMoreThanASmallScreenHas) {
  OpenCodeOfNewButton();
  ASSERT_TRUE(program.Find<QWidget>(QStringLiteral("WndFunc")).isVisible());
  const QSize small(1024 - 8, 600 - 36);
  EXPECT_EQ(Window().minimumSizeHint().boundedTo(small), Window().minimumSizeHint());
  program.Key(Qt::Key_D, Qt::ControlModifier);
  const QSize least = program.Find<QWidget>(QStringLiteral("FormViewCodes")).minimumSizeHint();
  EXPECT_EQ(least.boundedTo(small), least);
}

TEST_F(CodeWindowPlace, WhileTheEditorIsOpenTheOtherWindowsCanBeUsed) {
  OpenCodeOfNewButton();
  EXPECT_TRUE(Window().isWindow());
  EXPECT_FALSE(Window().isModal());
  program.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&program.Window()));
  program.Choose(QStringLiteral("mnuForms"));
  EXPECT_TRUE(Window().isVisible());
}

TEST_F(CodeWindowPlace, TheFontOfTheCodeIsAskedForByItsName) {
  OpenCodeOfNewButton();
  EXPECT_EQ(Editor().lexer()->font(0).family(), QStringLiteral("Courier New"));
  EXPECT_EQ(Editor().lexer()->font(0).pointSize(), 10);
  EXPECT_EQ(program.Find<CodeEdit>(QStringLiteral("EditorPublic")).lexer()->font(0).family(),
            QStringLiteral("Courdir new"));
}

}  // namespace
}  // namespace tarnwick
