// The console of a program without a terminal: what is printed goes out, keys come from a window.
#include "run/window_console.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "fakes/text_stream.h"
#include "run/points.h"

namespace tarnwick::run {
namespace {

QWidget* ConsoleWindow() {
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QStringLiteral("Console") && window->isVisible()) return window;
  }
  return nullptr;
}

class WindowConsoleTest : public testing::Test {
 protected:
  /// Does something when the console waits for keys.
  static void WhenItWaits(std::function<void(QWidget&)> act) {
    QTimer::singleShot(30, qApp, [act = std::move(act)] {
      QWidget* const window = ConsoleWindow();
      ASSERT_NE(window, nullptr);
      act(*window);
    });
  }
  test::TextStream out;
  WindowConsole console{QStringLiteral("p"), out.File()};
};

TEST_F(WindowConsoleTest, PrintedTextGoesOutAtOnceAndOpensNoWindow) {
  console.Write(0, "h\xE9llo");
  EXPECT_EQ(out.Text(), "h\xC3\xA9llo");
  EXPECT_EQ(console.Column(0), 6);
  EXPECT_EQ(ConsoleWindow(), nullptr);
}

TEST_F(WindowConsoleTest, HiddenPagesKeepTheirTextToThemselves) {
  console.Write(1, "hidden");
  console.Write(8, "no page");
  EXPECT_EQ(out.Text(), "");
  EXPECT_EQ(console.Column(1), 7);
  EXPECT_EQ(console.Column(8), 1);
  console.CopyPage(1, 0);
  EXPECT_EQ(console.CharacterAt(1, 1), 'h');
}

TEST_F(WindowConsoleTest, ALineIsTypedInTheWindow) {
  console.Write(0, "? ");
  WhenItWaits([](QWidget& window) {
    QTest::keyClicks(&window, QStringLiteral("abx"));
    QTest::keyClick(&window, Qt::Key_Backspace);
    QTest::keyClicks(&window, QStringLiteral("c"));
    QTest::keyClick(&window, Qt::Key_Return);
  });
  EXPECT_EQ(console.ReadLine(), "abc");
  EXPECT_EQ(out.Text(), "? abc\n");
  EXPECT_EQ(console.CharacterAt(1, 5), 'c');
  EXPECT_EQ(console.CharacterAt(1, 6), ' ');
  EXPECT_EQ(console.Row(0), 2);
}

TEST_F(WindowConsoleTest, BytesAndKeysAreNotShown) {
  EXPECT_EQ(console.Key(), "");
  ASSERT_NE(ConsoleWindow(), nullptr);
  QTest::keyClicks(ConsoleWindow(), QStringLiteral("xyz"));
  EXPECT_EQ(console.Key(), "x");
  EXPECT_EQ(console.ReadBytes(2), "yz");
  EXPECT_EQ(console.Key(), "");
  EXPECT_EQ(out.Text(), "");
}

TEST_F(WindowConsoleTest, ClosingTheWindowEndsTheInputAndTheProgram) {
  bool closed = false;
  console.Closed = [&] { closed = true; };
  WhenItWaits([](QWidget& window) { window.close(); });
  EXPECT_EQ(console.ReadLine(), std::nullopt);
  EXPECT_TRUE(closed);
  EXPECT_EQ(console.ReadBytes(3), "") << "it is not opened again";
}

TEST_F(WindowConsoleTest, AProgramThatIsToEndWaitsNoLonger) {
  bool ending = false;
  console.Ending = [&] { return ending; };
  WhenItWaits([&](QWidget&) { ending = true; });
  EXPECT_EQ(console.ReadLine(), std::nullopt);
}

TEST_F(WindowConsoleTest, PlacesAndColoursArePainted) {
  console.Color(14, 4);
  console.Locate(2, 3);
  console.Write(0, "\xDB");
  QWidget* const window = ConsoleWindow();
  ASSERT_NE(window, nullptr);
  EXPECT_GT(test::PointsOf(*window, QColor(0x80, 0x00, 0x00)), 10);
  EXPECT_EQ(console.Peek(2 * 82), 0xDB);
  console.Clear();
  EXPECT_EQ(console.CharacterAt(2, 3), ' ');
}

}  // namespace
}  // namespace tarnwick::run
