// Ways of copying pictures, hints, marked ranges, tabs, pictures of menus, masks and shapes.
#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

#include "run/classic_palette.h"
#include "run/live_program.h"
#include "run/points.h"
#include "run/views/input_mask.h"

namespace tarnwick {
namespace {

using test::FormWith;
using test::LiveProgram;
using test::PointsOf;

TEST(RunSmallLooksTest, PicturesAreCopiedByTheirMode) {
  // A yellow ground, a picture of magenta; the letters of the language for the modes.
  struct Row {
    int Mode;
    const char* Color;
  };
  const Row rows[] = {{0, "0"},       {1, "FF0000"},  {3, "FFFF"},    {4, "FF00"},
                      {5, "0"},       {6, "FFFFFF"},  {9, "FF"},      {10, "FF00FF"},
                      {11, "FF0000"}, {12, "FFFF00"}, {13, "FFFFFF"}, {14, "FFFFFF"}};
  std::string text =
      "DIM S AS QBITMAP: S.Width = 8: S.Height = 8: S.FillRect(0, 0, 8, 8, &HFF00FF)\n"
      "DIM D AS QBITMAP: D.Width = 8: D.Height = 8\n"
      "DIM R AS QRECT: R.Right = 8: R.Bottom = 8\n";
  std::string wanted;
  for (const Row& row : rows) {
    text += "D.CopyMode = 10: D.FillRect(0, 0, 8, 8, &HFFFF): D.CopyMode = " +
            std::to_string(row.Mode) + ": D.Draw(0, 0, S)\nPRINT HEX$(D.Pixel(3, 3))\n";
    wanted += std::string(row.Color) + "\n";
  }
  text +=
      "D.CopyMode = 10: D.FillRect(0, 0, 8, 8, &HFFFF): D.CopyMode = 12\n"
      "D.StretchDraw(R, S): PRINT HEX$(D.Pixel(3, 3))\n"
      "D.CopyRect(R, S, R): PRINT HEX$(D.Pixel(3, 3))\n";
  wanted += "FFFF00\nFFFF\n";
  LiveProgram live(text);
  live.Run();
  EXPECT_EQ(live.Printed, wanted);
}

TEST(RunSmallLooksTest, AMonochromeBitmapIsReadAndKeptInBlackAndWhite) {
  LiveProgram live(
      "DIM S AS QBITMAP: S.Width = 8: S.Height = 8: S.Monochrome = 1\n"
      "S.FillRect(0, 0, 8, 8, &HFFFF): S.FillRect(0, 0, 4, 8, &H400000)\n"
      "DIM D AS QBITMAP: D.Width = 8: D.Height = 8: D.Draw(0, 0, S)\n"
      "PRINT HEX$(D.Pixel(1, 1)); \" \"; HEX$(D.Pixel(6, 1)); \" \"; HEX$(S.Pixel(6, 1))\n"
      "S.SaveToFile Application.Path + \"s.bmp\": D.SaveToFile Application.Path + \"d.bmp\"");
  live.Run();
  EXPECT_EQ(live.Printed, "0 FFFFFF FFFFFF\n");
  const auto kept = [&](const char* name) {
    return QImage::fromData(QByteArray::fromStdString(live.Folder.Read(name)));
  };
  EXPECT_EQ(kept("s.bmp").depth(), 1);
  EXPECT_EQ(kept("s.bmp").pixelColor(6, 1), QColor(Qt::white));
  EXPECT_EQ(kept("d.bmp").depth(), 32);
}

TEST(RunSmallLooksTest, HintsKeepToTheTimesOfTheProgram) {
  LiveProgram live(
      FormWith("DIM B AS QBUTTON: B.Parent = F: B.Hint = \"a tip\": B.ShowHint = 1\n"
               "Application.HintPause = 90: Application.HintHidePause = 4000\nDIM Go AS QBUTTON",
               "SUB Change\nApplication.ShowHint = 0\nEND SUB\nGo.OnClick = Change"));
  const auto ask = [&] {
    QWidget& button = *live.Widget("B");
    const QPoint at(5, 5);
    QHelpEvent event(QEvent::ToolTip, at, button.mapToGlobal(at));
    QApplication::sendEvent(&button, &event);
  };
  live.Then([&] {
    EXPECT_EQ(qApp->style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay), 90);
    ask();
    EXPECT_EQ(QToolTip::text(), QStringLiteral("a tip"));
    EXPECT_EQ(live.Widget("B")->toolTipDuration(), 4000);
    QToolTip::hideText();
  });
  live.Then([&] { live.World->Click(live.Object("Go").Id); });
  live.Pause(400);
  live.Then([&] {
    ask();
    EXPECT_FALSE(QToolTip::isVisible());
  });
  live.Run();
  run::ProgramHints() = {};
}

TEST(RunSmallLooksTest, ATrackBarMarksItsRange) {
  const QColor marked(0, 0, 0x80);
  for (const int orientation : {0, 1}) {
    LiveProgram live(FormWith("DIM T AS QTRACKBAR: T.Parent = F: T.Height = 150: T.Orientation = " +
                                  std::to_string(orientation) +
                                  ": T.SelStart = 2: T.SelEnd = 7\nDIM Go AS QBUTTON",
                              "SUB Change\nT.SelEnd = 9\nEND SUB\nGo.OnClick = Change"));
    live.Then([&] {
      const int before = PointsOf(*live.Widget("T"), marked);
      EXPECT_GT(before, 100) << orientation;
      live.World->Click(live.Object("Go").Id);
      EXPECT_GT(PointsOf(*live.Widget("T"), marked), before);
    });
    live.Run();
  }
}

TEST(RunSmallLooksTest, TheThumbOfAScrollBarStandsForAPage) {
  LiveProgram live(
      FormWith("DIM S AS QSCROLLBAR: S.Parent = F: S.Width = 200: S.Max = 100: S.PageSize = 100\n"
               "S.LargeChange = 10"));
  live.Then([&] {
    auto& bar = live.The<QScrollBar>("S");
    // The thumb takes half of the groove; a press beside it moves by LargeChange.
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(80, 8));
    EXPECT_EQ(bar.value(), 0) << "on the thumb";
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(150, 8));
    EXPECT_EQ(bar.value(), 10);
  });
  live.Run();
}

/// Points of a widget that are rather blue.
int BluePoints(QWidget& widget) {
  constexpr int kMuch = 60;
  return test::PointsWhere(widget, [](const QColor& at) { return at.blue() > at.red() + kMuch; });
}

TEST(RunSmallLooksTest, TheTabUnderThePointerIsMarked) {
  for (const bool hot : {true, false}) {
    LiveProgram live(
        FormWith("DIM T AS QTABCONTROL: T.Parent = F: T.AddTabs \"one\", \"two\"\n"
                 "T.HotTrack = " +
                 std::to_string(hot ? 1 : 0)));
    live.Then([&] {
      auto* const bar = live.Widget("T")->findChild<QTabBar*>();
      ASSERT_NE(bar, nullptr);
      const QPoint at = bar->tabRect(1).center();
      QHoverEvent hover(QEvent::HoverMove, at, bar->mapToGlobal(at), QPoint());
      QApplication::sendEvent(bar, &hover);
      EXPECT_EQ(BluePoints(*bar) > 5, hot);
    });
    live.Run();
  }
}

TEST(RunSmallLooksTest, RowsOfMenusHaveThePicturesOfTheirList) {
  LiveProgram live(
      FormWith("DIM P AS QBITMAP: P.Width = 16: P.Height = 16: P.FillRect(0, 0, 16, 16, &HFF)\n"
               "P.SaveToFile Application.Path + \"red.bmp\"\n"
               "DIM L AS QIMAGELIST: L.AddBMPFile Application.Path + \"red.bmp\"\n"
               "DIM M AS QMAINMENU: DIM T AS QMENUITEM: DIM A AS QMENUITEM: DIM B AS QMENUITEM\n"
               "M.ImageList = L: M.AddItems T: T.AddItems A, B: A.ImageIndex = 0\nM.Parent = F\n"
               "DIM Go AS QBUTTON",
               "SUB Change\nB.ImageIndex = 0: A.ImageIndex = 9\nEND SUB\nGo.OnClick = Change"));
  const auto rows = [&] {
    return live.Widget("F")->findChild<QMenuBar*>()->actions().at(0)->menu()->actions();
  };
  live.Then([&] {
    EXPECT_FALSE(rows().at(0)->icon().isNull());
    EXPECT_TRUE(rows().at(1)->icon().isNull());
    live.World->Click(live.Object("Go").Id);
  });
  live.Then([&] {
    EXPECT_TRUE(rows().at(0)->icon().isNull()) << "no such picture";
    EXPECT_FALSE(rows().at(1)->icon().isNull());
  });
  live.Run();
}

TEST(RunSmallLooksTest, MasksAreThoseOfTheToolkit) {
  struct Row {
    const char* Mask;
    const char* Toolkit;
  };
  for (const Row& row :
       {Row{"", ""}, Row{"00/00", "99/99;_"}, Row{"!99/99/00;1; ", "00/00/99; "},
        Row{"LlAaCc#", "AaNnXx#;_"}, Row{">LL<LL<>LL", ">AA<AA!AA;_"}, Row{"\\A\\00", "\\A\\09;_"},
        Row{"DN", "\\D\\N;_"}, Row{"0_0;0;*", "9 9;*"}, Row{";1;_", ""}}) {
    EXPECT_EQ(run::ToolkitMask(row.Mask).toStdString(), row.Toolkit) << row.Mask;
  }
}

TEST(RunSmallLooksTest, TextFollowsItsMask) {
  LiveProgram live(
      FormWith("DIM E AS QEDIT: E.Parent = F: E.InputMask = \"00/00\"",
               "DIM Go AS QBUTTON\nSUB Tell\nPRINT E.Text; \" \"; E.EditText; E.IsMasked\nEND SUB\n"
               "Go.OnClick = Tell"));
  live.Then([&] {
    auto& edit = live.The<QLineEdit>("E");
    edit.setFocus();
    edit.setCursorPosition(0);
    QTest::keyClicks(&edit, QStringLiteral("1x23"));
    live.World->Click(live.Object("Go").Id);
  });
  live.Run();
  EXPECT_EQ(live.Printed, "12/3 12/3_1\n");
}

TEST(RunSmallLooksTest, AWindowHasTheShapeOfABitmap) {
  for (const bool late : {false, true}) {
    const std::string shape = "F.ShapeForm(P, &HFF)";
    LiveProgram live(
        FormWith("DIM P AS QBITMAP: P.Width = 100: P.Height = 80\n"
                 "P.FillRect(0, 0, 100, 80, &HFF): P.FillRect(10, 10, 50, 50, 0)\n"
                 "DIM Go AS QBUTTON\n" +
                     (late ? std::string() : shape),
                 "SUB Change\n" + shape + "\nEND SUB\nGo.OnClick = Change"));
    live.Then([&] {
      if (late) live.World->Click(live.Object("Go").Id);
      const QRegion mask = live.Widget("F")->mask();
      EXPECT_EQ(mask.boundingRect(), QRect(10, 10, 40, 40));
    });
    live.Run();
  }
}

}  // namespace
}  // namespace tarnwick
