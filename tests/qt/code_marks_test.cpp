// The mistakes that the code windows show while the user types.
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTest>
#include <QToolTip>
#include <string>

#include <gtest/gtest.h>

#include "qt/editor/code_edit.h"
#include "qt/editor/code_marks_view.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "qt/program.h"

namespace tarnwick {
namespace {

constexpr int kButtonTool = 0;

class CodeMarksWindow : public testing::Test {
 protected:
  Program program;

  CodeEdit& Editor(const char* name = "Editor") {
    return program.Find<CodeEdit>(QString::fromLatin1(name));
  }
  CodeMarksView& Marks(const char* name = "Editor") {
    auto* marks = Editor(name).findChild<CodeMarksView*>();
    EXPECT_NE(marks, nullptr);
    return *marks;
  }
  QLabel& Words() {
    return *program.Find<QWidget>(QStringLiteral("FormCodigo"))
                .findChild<QLabel*>(QStringLiteral("MarkText"));
  }
  void OpenCodeOfNewButton() {
    program.Place(kButtonTool, {40, 60});
    program.Key(Qt::Key_F7);
    ASSERT_TRUE(Editor().isVisible());
  }
  void TypeCode(const QString& text) { QTest::keyClicks(Editor().viewport(), text); }
  /// Waits for the check after a pause.
  bool Marked(std::size_t count, const char* name = "Editor") {
    return QTest::qWaitFor([&] { return Marks(name).Marks().size() == count; });
  }
  /// The tip at a place of the text's widget; "" when none comes.
  QString TipAt(QPoint at) {
    // A tip takes a while to go.
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent event(QEvent::ToolTip, at, Editor().viewport()->mapToGlobal(at));
    QApplication::sendEvent(Editor().viewport(), &event);
    return QToolTip::text();
  }
  QPoint PlaceOf(int line, int column) {
    const long at = Editor().positionFromLineIndex(line, column);
    const long x = Editor().SendScintilla(QsciScintilla::SCI_POINTXFROMPOSITION, 0UL, at);
    const long y = Editor().SendScintilla(QsciScintilla::SCI_POINTYFROMPOSITION, 0UL, at);
    return {static_cast<int>(x) + 2, static_cast<int>(y) + 4};
  }
};

TEST_F(CodeMarksWindow, AMistakeIsASignInTheMarginWithATipAndNoBox) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("a = 1\rIf a Then"));
  EXPECT_TRUE(Marks().Marks().empty());
  ASSERT_TRUE(Marked(1));
  const QString text = QStringLiteral("END IF of this block is missing");
  EXPECT_EQ(TipAt({PlaceOf(1, 0).x() - 8, PlaceOf(1, 0).y()}), text);
  EXPECT_EQ(TipAt({PlaceOf(0, 0).x() - 8, PlaceOf(0, 0).y()}), QString());
  EXPECT_EQ(TipAt(PlaceOf(1, 0)), text);
  EXPECT_EQ(TipAt(PlaceOf(0, 0)), QString());
  EXPECT_NE(Editor().markersAtLine(1), 0U);
  EXPECT_EQ(Editor().markersAtLine(0), 0U);
  EXPECT_EQ(Words().text(), text);
  EXPECT_EQ(QApplication::focusWidget(), &Editor());
  EXPECT_TRUE(program.User.Seen().empty());
}

TEST_F(CodeMarksWindow, AMendedMistakeLosesItsSign) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("If a Then\r"));
  ASSERT_TRUE(Marked(1));
  TypeCode(QStringLiteral("End If"));
  ASSERT_TRUE(Marked(0));
  EXPECT_EQ(Editor().markersAtLine(0), 0U);
  EXPECT_EQ(Words().text(), QString());
  EXPECT_EQ(TipAt(PlaceOf(0, 0)), QString());
}

TEST_F(CodeMarksWindow, TheCheckWaitsForAPauseInTyping) {
  OpenCodeOfNewButton();
  for (int i = 0; i < 12; ++i) {
    TypeCode(i == 0 ? QStringLiteral("Wend") : QStringLiteral("\r"));
    QTest::qWait(50);
    EXPECT_TRUE(Marks().Marks().empty());
  }
  EXPECT_TRUE(Marked(1));
}

/// Long enough for a check that is still running when the next key comes.
std::string LongText() {
  std::string text;
  for (int line = 0; line < 50'000; ++line) text += "x = x + 1 ' line\r\n";
  return text;
}

TEST_F(CodeMarksWindow, WhileALongTextIsCheckedTheWindowTakesKeysAndWhatIsOldIsNotShown) {
  OpenCodeOfNewButton();
  Editor().SetText(LongText() + "Wend");
  // Seen from here, so the check runs beside the window.
  ASSERT_TRUE(QTest::qWaitFor([this] { return Marks().Checking(); }));
  Editor().SetText("a = 1\r\n");
  TypeCode(QStringLiteral("b = 2"));
  EXPECT_EQ(Editor().Text(), "b = 2a = 1\r\n");
  Editor().SetText("a = 1\r\n");
  while (Marks().Checking()) {
    QTest::qWait(1);
    ASSERT_TRUE(Marks().Marks().empty());
  }
  QTest::qWait(600);
  EXPECT_TRUE(Marks().Marks().empty()) << "the mark of the text before";
}

TEST_F(CodeMarksWindow, ALongTextIsMarkedAtItsEnd) {
  OpenCodeOfNewButton();
  Editor().SetText(LongText() + "Wend");
  ASSERT_TRUE(Marked(1));
  EXPECT_EQ(Marks().Marks()[0].Line, 50'000);
}

TEST_F(CodeMarksWindow, TheWindowMayCloseAndTheProgramEndWhileACheckRuns) {
  OpenCodeOfNewButton();
  Editor().SetText(LongText());
  ASSERT_TRUE(QTest::qWaitFor([this] { return Marks().Checking(); }));
  program.Key(Qt::Key_Escape);
  EXPECT_FALSE(Editor().isVisible());
}

TEST_F(CodeMarksWindow, AMacroOfTheDeclarationsTakesTheMarkOfTheOpenCodeAway) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("If a Begin\r  Beep\rEnd If"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !Marks().Marks().empty(); }));
  program.Key(Qt::Key_D, Qt::ControlModifier);
  QTest::keyClicks(Editor("EditorPublic").viewport(), QStringLiteral("$DEFINE Begin Then"));
  program.Find<QPushButton>(QStringLiteral("Command1")).click();
  EXPECT_TRUE(Marked(0));
}

TEST_F(CodeMarksWindow, AMacroOfAnotherEventMakesNoFalseMark) {
  program.Tables().EventTable.Replace("Form1.OnClick", "$DEFINE Begin Then");
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("If a Begin\r  Beep\rEnd If\rWend"));
  ASSERT_TRUE(Marked(1));
  EXPECT_EQ(Marks().Marks()[0].Line, 3);
}

TEST_F(CodeMarksWindow, F8GoesFromMarkToMark) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("a = 1\rWend\rb = 1\r  Loop\r"));
  ASSERT_TRUE(Marked(2));
  EXPECT_EQ(Words().text(),
            QStringLiteral("2 mistakes (F8). Line 2: This closes no block: the line that opens it "
                           "is missing"));
  program.Key(Qt::Key_F8);
  EXPECT_EQ(Editor().GetSel(), (editor::EditRange{1, 0, 1, 0}));
  EXPECT_EQ(Words().text(),
            QStringLiteral("This closes no block: the line that opens it is missing"));
  program.Key(Qt::Key_F8);
  EXPECT_EQ(Editor().GetSel(), (editor::EditRange{3, 2, 3, 2}));
  program.Key(Qt::Key_F8);
  EXPECT_EQ(Editor().GetSel(), (editor::EditRange{1, 0, 1, 0}));
}

TEST_F(CodeMarksWindow, AnotherEventBeginsWithoutTheMarksOfTheOneBefore) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("Wend"));
  ASSERT_TRUE(Marked(1));
  auto& events = program.Find<QComboBox>(QStringLiteral("Events"));
  events.setFocus();
  QTest::keyClick(&events, Qt::Key_Down);
  ASSERT_EQ(events.currentIndex(), 1);
  EXPECT_TRUE(Marks().Marks().empty());
  EXPECT_EQ(Editor().markersAtLine(0), 0U);
  events.setFocus();
  QTest::keyClick(&events, Qt::Key_Up);
  EXPECT_EQ(Editor().Text(), "Wend");
  EXPECT_TRUE(Marked(1));
}

TEST_F(CodeMarksWindow, ATextWithoutItsQuoteIsMarkedInAnotherColour) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("a = \"open\rWend"));
  ASSERT_TRUE(Marked(2));
  EXPECT_NE(Editor().markersAtLine(0), 0U);
  EXPECT_NE(Editor().markersAtLine(0), Editor().markersAtLine(1));
}

TEST_F(CodeMarksWindow, TheDeclarationsAreCheckedAsDeclarations) {
  program.Key(Qt::Key_D, Qt::ControlModifier);
  CodeEdit& text = Editor("EditorPublic");
  ASSERT_TRUE(text.isVisible());
  QTest::keyClicks(text.viewport(), QStringLiteral("Sub Go\r  Beep"));
  ASSERT_TRUE(Marked(1, "EditorPublic"));
  EXPECT_EQ(Marks("EditorPublic").Marks()[0].Text, "END SUB of this block is missing");
  QTest::keyClicks(text.viewport(), QStringLiteral("\rEnd Sub"));
  EXPECT_TRUE(Marked(0, "EditorPublic"));
}

TEST_F(CodeMarksWindow, SignsFollowTheTheme) {
  OpenCodeOfNewButton();
  TypeCode(QStringLiteral("Wend"));
  ASSERT_TRUE(Marked(1));
  const auto sign = [this] {
    const QImage image = Editor().viewport()->grab().toImage();
    // Beside the exclamation mark in the middle of the disc.
    const QPoint at(PlaceOf(0, 0).x() - 19, PlaceOf(0, 0).y() + 4);
    return image.pixelColor(at * image.devicePixelRatio());
  };
  ApplyTheme(*qApp, Theme::Light);
  Program::Settle();
  const QColor light = sign();
  ApplyTheme(*qApp, Theme::Dark);
  Program::Settle();
  const QColor dark = sign();
  ResetLook();
  EXPECT_GT(light.red(), light.green() + 50);
  EXPECT_GT(dark.red(), dark.green() + 50);
  EXPECT_NE(light, dark);
}

}  // namespace
}  // namespace tarnwick
