// Programs of tests/run/programs as their users know them, with real keys and the mouse.
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QScrollArea>
#include <QTest>

#include <gtest/gtest.h>

#include "fakes/build_paths.h"
#include "run/live_program.h"
#include "run/points.h"

namespace tarnwick {
namespace {

using test::LiveProgram;

std::string PathOf(const std::string& name) {
  return test::SourceFolder() + "/tests/run/programs/" + name;
}

void Drag(QWidget& over, const std::vector<QPoint>& way) {
  QTest::mousePress(&over, Qt::LeftButton, {}, way.front());
  for (const QPoint& at : way) {
    QMouseEvent move(QEvent::MouseMove, at, over.mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&over, &move);
  }
  QTest::mouseRelease(&over, Qt::LeftButton, {}, way.back());
}

TEST(WholeProgramsTest, ADrawingIsMadeKeptAndWiped) {
  LiveProgram live("", PathOf("draw.bas"));
  const auto color = [&](int x, int y) {
    return live.Widget("C")->grab().toImage().pixelColor(x, y);
  };
  live.Then([&] {
    Drag(*live.Widget("C"), {{20, 20}, {60, 60}, {100, 60}});
    EXPECT_EQ(color(40, 40), QColor(Qt::black));
    EXPECT_EQ(color(80, 60), QColor(Qt::black));
    EXPECT_EQ(color(80, 80), QColor(Qt::white));
    QTest::mouseClick(live.Widget("Pen(1)"), Qt::LeftButton);
    Drag(*live.Widget("C"), {{20, 100}, {120, 100}});
    EXPECT_EQ(color(70, 100), QColor(Qt::red));
    QTest::mouseClick(live.Widget("Keep"), Qt::LeftButton);
    const QImage kept =
        QImage::fromData(QByteArray::fromStdString(live.Folder.Read("drawing.bmp")));
    ASSERT_FALSE(kept.isNull());
    EXPECT_EQ(kept.pixelColor(70, 100), QColor(Qt::red));
    QTest::mouseClick(live.Widget("Wipe"), Qt::LeftButton);
    EXPECT_EQ(color(70, 100), QColor(Qt::white));
    live.Widget("F")->resize(600, 400);
  });
  live.Then([&] {
    EXPECT_EQ(live.Widget("C")->size(), QSize(520, 380));
    Drag(*live.Widget("C"), {{500, 350}, {510, 360}});
    EXPECT_EQ(color(505, 355), QColor(Qt::red)) << "also where there was no room before";
  });
  live.Run();
  EXPECT_EQ(live.Result.Text, "");
}

TEST(WholeProgramsTest, AddressesAreTypedKeptFoundAndDeleted) {
  TemporaryFolder kept;
  {
    LiveProgram live("", PathOf("addresses.bas"));
    live.ExeName = kept.Path("main.exe");
    QWidget* grid = nullptr;
    const auto type = [&](const char* text) {
      grid = live.Widget("G");
      QTest::keyClick(grid, text[0]);
      auto* const editor = grid->findChild<QLineEdit*>();
      ASSERT_NE(editor, nullptr);
      QTest::keyClicks(editor, QString::fromLatin1(text + 1));
      QTest::keyClick(editor, Qt::Key_Return);
    };
    live.Then([&] {
      live.Widget("G")->setFocus();
      type("Ada");
    });
    live.Then([&] {
      QTest::keyClick(grid, Qt::Key_Right);
      type("Mill Lane 3");
    });
    live.Then([&] { QTest::mouseClick(live.Widget("AddBtn"), Qt::LeftButton); });
    live.Then([&] { type("Ben"); });
    live.Then([&] { QTest::keyClick(live.Widget("F"), Qt::Key_S, Qt::ControlModifier); });
    live.Run();
    EXPECT_EQ(kept.Read("book.txt"), "Ada|Mill Lane 3|\r\nBen||\r\n");
  }
  LiveProgram live("", PathOf("addresses.bas"));
  live.ExeName = kept.Path("main.exe");
  live.Then([&] {
    live.Widget("Find")->setFocus();
    QTest::keyClicks(live.Widget("Find"), QStringLiteral("be"));
    EXPECT_EQ(live.Get("G", "Row"), "2");
    QTest::mouseClick(live.Widget("DelBtn"), Qt::LeftButton);
  });
  live.Then([&] {
    auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(question, nullptr);
    EXPECT_EQ(question->text(), QStringLiteral("Delete Ben?"));
    QTest::mouseClick(question->button(QMessageBox::Yes), Qt::LeftButton);
  });
  live.Then([&] {
    EXPECT_EQ(live.Get("G", "RowCount"), "3");
    QTest::mouseClick(live.Widget("SaveBtn"), Qt::LeftButton);
    EXPECT_EQ(kept.Read("book.txt"), "Ada|Mill Lane 3|\r\n");
  });
  live.Run();
  EXPECT_EQ(live.Result.Text, "");
}

TEST(WholeProgramsTest, TheGameFollowsItsKeysAndClock) {
  LiveProgram live("", PathOf("catch.bas"));
  const auto row = [&](int y, const QColor& color) {
    const QImage image = live.Widget("C")->grab().toImage();
    int first = -1;
    for (int x = 0; x < image.width() && first < 0; ++x) {
      if (image.pixelColor(x, y) == color) first = x;
    }
    return first;
  };
  constexpr int kBatRow = 250;
  int before = -1;
  live.Pause(70);
  live.Then([] {});
  live.Then([&] {
    before = row(kBatRow, Qt::white);
    EXPECT_EQ(before, 120);
    QTest::keyPress(live.Widget("F"), Qt::Key_Right);
  });
  live.Then([] {});
  live.Then([&] {
    QTest::keyRelease(live.Widget("F"), Qt::Key_Right);
    EXPECT_GT(row(kBatRow, Qt::white), before);
    QWidget& canvas = *live.Widget("C");
    EXPECT_GT(test::PointsOf(canvas, Qt::yellow), 100);
    EXPECT_EQ(test::PointsOf(canvas, Qt::black), 0) << "the mask leaves the ground around the ball";
  });
  live.Run();
  EXPECT_EQ(live.Result.Text, "");
}

}  // namespace
}  // namespace tarnwick
