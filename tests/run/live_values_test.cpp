// What the program reads after the user has changed it; and the time that passes by itself.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>

#include <gtest/gtest.h>

#include "run/live_program.h"

namespace tarnwick {
namespace {

using test::FormWith;
using test::LiveProgram;

TEST(RunLiveValuesTest, WhatIsTypedAndSelectedIsRead) {
  for (const std::string kind : {"QEDIT", "QRICHEDIT"}) {
    LiveProgram live(FormWith("DIM E AS " + kind + ": E.Parent = F"));
    live.Then([&] {
      live.Widget("E")->setFocus();
      QTest::keyClicks(live.Widget("E"), QStringLiteral("words"));
      EXPECT_EQ(live.Get("E", "Text"), "words") << kind;
      EXPECT_EQ(live.Get("E", "SelStart"), "5") << kind;
      QTest::keyClick(live.Widget("E"), Qt::Key_Left, Qt::ShiftModifier);
      QTest::keyClick(live.Widget("E"), Qt::Key_Left, Qt::ShiftModifier);
      EXPECT_EQ(live.Get("E", "SelStart"), "3") << kind;
      EXPECT_EQ(live.Get("E", "SelLength"), "2") << kind;
      EXPECT_EQ(live.Get("E", "SelText"), "ds") << kind;
      EXPECT_EQ(live.Get("E", "Modified"), "1") << kind;
    });
    live.Run();
  }
}

TEST(RunLiveValuesTest, SelectionsSetAheadOfShowingStay) {
  LiveProgram live(FormWith(
      "DIM E AS QEDIT: E.Parent = F: E.Text = \"first\": E.SelStart = 1: E.SelLength = 3"));
  live.Then([&] {
    EXPECT_EQ(live.Get("E", "SelText"), "irs");
    EXPECT_EQ(live.The<QLineEdit>("E").selectedText(), QStringLiteral("irs"));
  });
  live.Run();
}

TEST(RunLiveValuesTest, EntriesThatArePickedAndScrolledToAreRead) {
  LiveProgram live(FormWith(
      "DIM L AS QLISTBOX: L.Parent = F: FOR k = 1 TO 50: L.AddItems STR$(k): NEXT\n"
      "DIM C AS QCOMBOBOX: C.Parent = F: C.Left = 150: C.Style = 2: C.AddItems \"a\", \"b\"\n"
      "DIM E AS QCOMBOBOX: E.Parent = F: E.Left = 150: E.Top = 40"));
  live.Then([&] {
    auto& list = live.The<QListWidget>("L");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(2)).center());
    EXPECT_EQ(live.Get("L", "ItemIndex"), "2");
    list.verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
    EXPECT_NE(live.Get("L", "TopIndex"), "0");
    EXPECT_EQ(live.Get("L", "TopIndex"), std::to_string(list.indexAt(QPoint(1, 1)).row()));
    live.Widget("C")->setFocus();
    QTest::keyClick(live.Widget("C"), Qt::Key_Down);
    EXPECT_EQ(live.Get("C", "ItemIndex"), "0");
    EXPECT_EQ(live.Get("C", "Text"), "a");
    live.Widget("E")->setFocus();
    QTest::keyClicks(live.Widget("E"), QStringLiteral("own"));
    EXPECT_EQ(live.Get("E", "Text"), "own");
    EXPECT_EQ(live.Get("E", "ItemIndex"), "-1");
  });
  live.Run();
}

TEST(RunLiveValuesTest, BoxesThatAreCheckedAreRead) {
  LiveProgram live(FormWith(
      "DIM C AS QCHECKBOX: C.Parent = F\nDIM R AS QRADIOBUTTON: R.Parent = F: R.Top = 40"));
  live.Then([&] {
    QTest::mouseClick(live.Widget("C"), Qt::LeftButton);
    EXPECT_EQ(live.Get("C", "Checked"), "1");
    live.Widget("R")->setFocus();
    QTest::keyClick(live.Widget("R"), Qt::Key_Space);
    EXPECT_EQ(live.Get("R", "Checked"), "1");
  });
  live.Run();
}

TEST(RunLiveValuesTest, AWindowThatIsMovedSizedAndMaximisedIsRead) {
  LiveProgram live(FormWith(""));
  live.Then([&] {
    live.Widget("F")->move(70, 80);
    live.Widget("F")->resize(300, 200);
  });
  live.Then([&] {
    EXPECT_EQ(live.Get("F", "Left"), "70");
    EXPECT_EQ(live.Get("F", "Top"), "80");
    EXPECT_EQ(live.Get("F", "Width"), "308");
    EXPECT_EQ(live.Get("F", "ClientHeight"), "200");
    live.Widget("F")->showMaximized();
  });
  live.Then([&] { EXPECT_EQ(live.Get("F", "WindowState"), "2"); });
  live.Run();
}

// --- Timers

/// The number of times that the program has printed.
std::ptrdiff_t Ticks(const LiveProgram& live) {
  return std::count(live.Printed.begin(), live.Printed.end(), 't');
}

/// Lets time pass: a step takes 20 milliseconds at least.
void Pass(LiveProgram& live, int steps) {
  for (int i = 0; i < steps; ++i) live.Then([] {});
}

TEST(RunLiveValuesTest, ATimerTicksUntilItIsSwitchedOff) {
  LiveProgram live(FormWith(
      "DIM T AS QTIMER: T.Interval = 10",
      "SUB Ticked\nPRINT \"t\";\nEND SUB\nT.OnTimer = Ticked\n"
      "DIM Off AS QBUTTON\nSUB SwitchOff\nT.Enabled = 0\nEND SUB\nOff.OnClick = SwitchOff"));
  std::ptrdiff_t before = 0;
  Pass(live, 10);
  live.Then([&] {
    EXPECT_GE(Ticks(live), 3);
    live.World->Click(live.Object("Off").Id);
    before = Ticks(live);
  });
  Pass(live, 5);
  live.Then([&] { EXPECT_EQ(Ticks(live), before); });
  live.Run();
}

TEST(RunLiveValuesTest, ATimerKeepsItsIntervalAndZeroStopsIt) {
  LiveProgram live(
      FormWith("DIM T AS QTIMER: T.Interval = 200",
               "SUB Ticked\nPRINT \"t\";\nT.Interval = 0\nEND SUB\nT.OnTimer = Ticked"));
  QElapsedTimer clock;
  clock.start();
  live.Then([&] {
    const std::ptrdiff_t ticks = Ticks(live);
    if (clock.elapsed() < 180) {
      EXPECT_EQ(ticks, 0);
    }
  });
  Pass(live, 25);
  live.Then([&] { EXPECT_EQ(Ticks(live), 1); });
  live.Run();
}

TEST(RunLiveValuesTest, TicksAreDroppedWhileTheirHandlerRuns) {
  LiveProgram live(FormWith("DIM T AS QTIMER: T.Interval = 10\nDIM G AS QFORM",
                            "SUB Ticked\nPRINT \"t\";\nG.ShowModal\nEND SUB\nT.OnTimer = Ticked"));
  Pass(live, 10);
  live.Then([&] {
    ASSERT_TRUE(live.Widget("G")->isVisible());
    EXPECT_EQ(Ticks(live), 1) << "the second window is open";
    live.Widget("G")->close();
  });
  Pass(live, 5);
  live.Then([&] { EXPECT_EQ(Ticks(live), 2) << "it is open again"; });
  live.Run();
}

TEST(RunLiveValuesTest, ATimerWaitsUntilAFormIsVisible) {
  LiveProgram live(
      "DIM T AS QTIMER: T.Interval = 10\nSUB Ticked\nPRINT \"t\";\nEND SUB\nT.OnTimer = Ticked\n"
      "SLEEP 0.1\nDOEVENTS\nPRINT \"|\";\nDIM F AS QFORM\nF.ShowModal\n");
  Pass(live, 10);
  live.Then([&] { EXPECT_GE(Ticks(live), 1); });
  live.Run();
  EXPECT_TRUE(live.Printed.starts_with("|")) << live.Printed;
}

}  // namespace
}  // namespace tarnwick
