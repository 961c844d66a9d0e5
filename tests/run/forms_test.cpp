// Forms and what stands on them, shown by real windows.
#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "looks/frame_metrics.h"
#include "run/live_program.h"
#include "run/views/run_form.h"

namespace tarnwick {
namespace {

using test::FormWith;
using test::LiveProgram;

QWidget& ClientOf(const LiveProgram& live) {
  auto* const form = dynamic_cast<run::RunForm*>(live.Widget("F"));
  if (form == nullptr) throw std::runtime_error("no form");
  return *form->Client();
}

TEST(RunFormTest, TheClientAreaIsWhatTheDesignFormLeavesFree) {
  LiveProgram live(FormWith("PRINT F.ClientWidth; \" \"; F.ClientHeight"));
  live.Then(
      [&] { EXPECT_EQ(ClientOf(live).size(), QSize(320 - 8, 240 - 8 - looks::kTitleHeight)); });
  live.Run();
  EXPECT_EQ(live.Printed, "312 208\n");
}

TEST(RunFormTest, EachBorderStyleHasItsFrame) {
  struct Row {
    int Style;
    QSize Client;
  };
  for (const Row& row : {Row{0, {320, 240}}, Row{1, {316, 212}}, Row{2, {312, 208}},
                         Row{3, {316, 212}}, Row{4, {316, 217}}, Row{5, {312, 213}}}) {
    LiveProgram live(FormWith("F.BorderStyle = " + std::to_string(row.Style)));
    live.Then([&] { EXPECT_EQ(ClientOf(live).size(), row.Client) << row.Style; });
    live.Run();
  }
}

TEST(RunFormTest, AnotherBorderLeavesTheWindowAtItsPlace) {
  LiveProgram live(
      FormWith("DIM Go AS QBUTTON", "SUB Change\nF.BorderStyle = 3\nEND SUB\nGo.OnClick = Change"));
  QPoint before;
  live.Then([&] {
    before = live.Widget("F")->pos();
    live.World->Click(live.Object("Go").Id);
  });
  live.Then([&] {
    EXPECT_EQ(before, QPoint(40, 40));
    EXPECT_TRUE(live.Widget("F")->isVisible());
    EXPECT_EQ(live.Widget("F")->pos(), QPoint(40, 40));
    EXPECT_GE(live.Widget("F")->geometry().y(), 40);
    EXPECT_EQ(live.Get("F", "Top"), "40");
    EXPECT_EQ(ClientOf(live).size(), QSize(316, 212));
  });
  live.Run();
}

TEST(RunFormTest, BarsComeWhenObjectsNeedMoreRoom) {
  LiveProgram live(
      FormWith("DIM B AS QBUTTON: B.Parent = F: B.Left = 10: B.Top = 150\n"
               "DIM P AS QPANEL: P.Parent = F: P.Align = 1: P.Height = 20",
               "DIM Far AS QBUTTON, Near AS QBUTTON\nSUB GoFar\nB.Top = 400\nEND SUB\n"
               "SUB GoNear\nB.Top = 100\nEND SUB\nFar.OnClick = GoFar: Near.OnClick = GoNear\n"
               "SUB Down (Button AS INTEGER, X AS INTEGER, Y AS INTEGER)\nPRINT X; \" \"; Y\n"
               "END SUB\nF.OnMouseDown = Down"));
  const auto bar = [&] { return live.Widget("F")->findChild<QScrollArea*>()->verticalScrollBar(); };
  live.Then([&] {
    EXPECT_EQ(ClientOf(live).size(), QSize(312, 208));
    EXPECT_FALSE(bar()->isVisible());
    live.World->Click(live.Object("Far").Id);
  });
  live.Then([] {});
  live.Then([&] {
    EXPECT_TRUE(bar()->isVisible());
    EXPECT_EQ(ClientOf(live).height(), 425);
    EXPECT_EQ(ClientOf(live).width(), 312 - bar()->width());
    EXPECT_EQ(live.Widget("P")->width(), ClientOf(live).width()) << "docked";
    bar()->setValue(bar()->maximum());
    EXPECT_EQ(ClientOf(live).y(), 208 - 425);
    QTest::mouseClick(&ClientOf(live), Qt::LeftButton, {}, QPoint(200, 420));
    live.World->Click(live.Object("Near").Id);
  });
  live.Then([] {});
  live.Then([&] {
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_EQ(ClientOf(live).geometry(), QRect(0, 0, 312, 208));
  });
  live.Run();
  EXPECT_EQ(live.Printed, "200 420\n") << "positions are those of the whole area";
}

TEST(RunFormTest, ABorderSetAheadOfShowingIsThatOfTheWindow) {
  LiveProgram live(
      "DIM F AS QFORM\nF.Left = 60: F.Top = 70: F.Width = 320: F.Height = 240\n"
      "F.Show\nF.Hide\nF.BorderStyle = 3\nF.BorderStyle = 4\nF.Show\nDO\nDOEVENTS\nLOOP\n");
  live.Then([&] {
    const QWidget& window = *live.Widget("F");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.windowFlags() & Qt::WindowType_Mask, Qt::Tool);
    EXPECT_EQ(window.pos(), QPoint(60, 70));
    EXPECT_EQ(ClientOf(live).size(), QSize(316, 217));
  });
  live.Run();
}

TEST(RunFormTest, AnotherBorderKeepsStateFocusAndWaiting) {
  LiveProgram live(
      FormWith("DIM A AS QEDIT: A.Parent = F\nDIM B AS QEDIT: B.Parent = F: B.Top = 50\n"
               "DIM Go AS QBUTTON",
               "SUB Change\nF.BorderStyle = 1\nF.BorderStyle = 5\nF.DelBorderIcons 2\nEND SUB\n"
               "Go.OnClick = Change\nSUB Seen\nPRINT \"shown\"\nEND SUB\nF.OnShow = Seen"));
  live.Then([&] {
    live.Widget("B")->setFocus();
    live.World->Click(live.Object("Go").Id);
  });
  live.Then([&] {
    const QWidget& window = *live.Widget("F");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.windowModality(), Qt::ApplicationModal) << "ShowModal still waits";
    EXPECT_EQ(window.focusWidget(), live.Widget("B"));
    EXPECT_EQ(window.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)) << "can be dragged";
    live.Widget("F")->close();
    EXPECT_FALSE(window.isVisible());
  });
  live.Run();
  EXPECT_EQ(live.Printed, "shown\n");
}

/// The bars of the form F; null for one that is not to be seen.
QScrollBar* DownBar(const LiveProgram& live) {
  QScrollBar* const bar = live.Widget("F")->findChild<QScrollArea*>()->verticalScrollBar();
  return bar->isVisible() ? bar : nullptr;
}
QScrollBar* AcrossBar(const LiveProgram& live) {
  QScrollBar* const bar = live.Widget("F")->findChild<QScrollArea*>()->horizontalScrollBar();
  return bar->isVisible() ? bar : nullptr;
}

TEST(RunFormTest, AFormAsDrawnHasNoBars) {
  // What another frame or the menu strip takes away hides a little of the objects at the edges.
  struct Row {
    const char* Code;
    int Right;
    int Bottom;
    bool Across;
    bool Down;
  };
  constexpr auto kMenu = "DIM M AS QMAINMENU, I AS QMENUITEM: M.Parent = F: M.AddItems I";
  for (const Row& row :
       {Row{"", 312, 208, false, false}, Row{"", 320, 216, false, false},
        Row{"", 321, 100, true, false}, Row{"", 100, 217, false, true},
        Row{"", 312, 217, true, true}, Row{kMenu, 312, 216, false, false},
        Row{kMenu, 100, 217, false, true}, Row{"F.AutoScroll = 0", 900, 900, false, false},
        Row{"B.Visible = 0", 900, 900, false, false}, Row{"B.Align = 5", 900, 900, false, false},
        Row{"F.BorderStyle = 3", 324, 220, false, false},
        Row{"F.BorderStyle = 3", 325, 400, true, true}}) {
    LiveProgram live(
        FormWith("DIM B AS QBUTTON: B.Parent = F: B.Left = " + std::to_string(row.Right - 75) +
                 ": B.Top = " + std::to_string(row.Bottom - 25) + "\n" + row.Code));
    live.Then([] {});
    live.Then([&] {
      EXPECT_EQ(AcrossBar(live) != nullptr, row.Across) << row.Code << ' ' << row.Right;
      EXPECT_EQ(DownBar(live) != nullptr, row.Down) << row.Code << ' ' << row.Bottom;
    });
    live.Run();
  }
}

/// One turn of the wheel towards the user.
void TurnWheel(QWidget& over, const QPoint& at) {
  const QPoint global = over.mapToGlobal(at);
  QWheelEvent turn(at, global, QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(&over, &turn);
}

TEST(RunFormTest, BarsScrollByWheelAndMouseAndLeavePositions) {
  LiveProgram live(
      FormWith("DIM L AS QLABEL: L.Parent = F: L.AutoSize = 0: L.Width = 200: L.Height = 150\n"
               "DIM T AS QLISTBOX: T.Parent = F: T.Left = 210: T.Height = 60: T.Width = 60\n"
               "FOR k = 1 TO 30: T.AddItems STR$(k): NEXT\n"
               "DIM B AS QBUTTON: B.Parent = F: B.Left = 10: B.Top = 400\n"
               "SUB Pressed\nPRINT B.Left; \" \"; B.Top; \" \"; F.ClientHeight\nEND SUB\n"
               "B.OnClick = Pressed"));
  int at = 0;
  live.Then([] {});
  live.Then([&] {
    ASSERT_NE(DownBar(live), nullptr);
    TurnWheel(ClientOf(live), QPoint(100, 180));
    EXPECT_GT(DownBar(live)->value(), at) << "over the ground";
    at = DownBar(live)->value();
    TurnWheel(*live.Widget("L"), QPoint(20, 20));
    EXPECT_GT(DownBar(live)->value(), at) << "over an object that has no use for it";
    at = DownBar(live)->value();
    auto& list = live.The<QListWidget>("T");
    TurnWheel(*list.viewport(), QPoint(5, 5));
    EXPECT_EQ(DownBar(live)->value(), at) << "the list under the pointer scrolls";
    EXPECT_GT(list.verticalScrollBar()->value(), 0);
  });
  live.Then([&] {
    QScrollBar& bar = *DownBar(live);
    bar.setValue(0);
    // The thumb stands right behind the arrow.
    QTest::mousePress(&bar, Qt::LeftButton, {}, QPoint(8, 22));
    const QPoint foot(8, bar.height());
    QMouseEvent drag(QEvent::MouseMove, foot, bar.mapToGlobal(foot), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&bar, &drag);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, foot);
    EXPECT_EQ(bar.value(), bar.maximum());
    const QPoint shown = live.Widget("B")->mapTo(live.Widget("F"), QPoint());
    EXPECT_LE(shown.y() + 25, live.Widget("F")->height());
    QTest::mouseClick(live.Widget("B"), Qt::LeftButton);
  });
  live.Run();
  EXPECT_EQ(live.Printed, "10 400 208\n") << "what the program reads is where it put it";
}

TEST(RunFormTest, TabShowsWhatLiesBelowTheEdge) {
  LiveProgram live(
      FormWith("DIM A AS QEDIT: A.Parent = F\nDIM B AS QEDIT: B.Parent = F: B.Top = 500"));
  live.Then([] {});
  live.Then([&] {
    ASSERT_NE(DownBar(live), nullptr);
    live.Widget("A")->setFocus();
    QTest::keyClick(live.Widget("A"), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), live.Widget("B"));
    EXPECT_GT(DownBar(live)->value(), 250);
  });
  live.Run();
}

TEST(RunFormTest, BarsGoWhereAutoScrollIsTakenAway) {
  LiveProgram live(
      FormWith("DIM B AS QBUTTON: B.Parent = F: B.Top = 400",
               "DIM Go AS QBUTTON\nSUB Change\nF.AutoScroll = 1 - F.AutoScroll\nEND SUB\n"
               "Go.OnClick = Change"));
  live.Then([] {});
  live.Then([&] {
    EXPECT_NE(DownBar(live), nullptr);
    live.World->Click(live.Object("Go").Id);
    EXPECT_EQ(DownBar(live), nullptr);
    EXPECT_EQ(ClientOf(live).size(), QSize(312, 208));
    live.World->Click(live.Object("Go").Id);
    EXPECT_NE(DownBar(live), nullptr);
  });
  live.Run();
}

TEST(RunFormTest, AProgramThatFollowsTheClientAreaHasNoBars) {
  LiveProgram live(
      FormWith("DIM T AS QRICHEDIT: T.Parent = F: T.Width = 300: T.Height = 190\n"
               "DIM L AS QLABEL: L.Parent = F: L.Top = 190",
               "SUB Sized\nT.Width = F.ClientWidth: T.Height = F.ClientHeight - 20\n"
               "L.Top = F.ClientHeight - 18: L.Width = F.ClientWidth\nEND SUB\n"
               "F.OnResize = Sized"));
  for (const QSize& size : {QSize(312, 208), QSize(500, 400), QSize(200, 100), QSize(311, 90)}) {
    live.Then([&live, size] {
      live.Widget("F")->resize(size);
      EXPECT_EQ(DownBar(live), nullptr);
    });
    live.Then([&live, size] {
      EXPECT_EQ(DownBar(live), nullptr) << size.width();
      EXPECT_EQ(AcrossBar(live), nullptr) << size.width();
      EXPECT_EQ(ClientOf(live).size(), size);
      EXPECT_EQ(live.Widget("T")->size(), QSize(size.width(), size.height() - 20));
    });
  }
  live.Run();
}

TEST(RunFormTest, ClosingAsksOnCloseAndHides) {
  LiveProgram live(
      "DIM F AS QFORM\nDIM Asked AS INTEGER\n"
      "SUB Closing (Action AS INTEGER)\nAsked = Asked + 1\nIF Asked = 1 THEN Action = 0\nEND SUB\n"
      "F.OnClose = Closing\nF.ShowModal\nPRINT Asked; F.Visible\n");
  live.Then([&] { live.Widget("F")->close(); });
  live.Then([&] {
    EXPECT_TRUE(live.Widget("F")->isVisible());
    live.Widget("F")->close();
  });
  live.Run();
  EXPECT_EQ(live.Printed, "20\n");
}

TEST(RunFormTest, ADragOfTheWindowReachesTheProgram) {
  LiveProgram live(FormWith("",
                            "SUB Sized\nPRINT F.Width; \"x\"; F.Height\nEND SUB\n"
                            "F.OnResize = Sized"));
  live.Then([&] {
    live.Printed.clear();
    live.Widget("F")->resize(400, 300);
  });
  live.Then([&] {
    EXPECT_EQ(live.Get("F", "Width"), "408");
    EXPECT_EQ(live.Get("F", "Height"), "332");
    EXPECT_TRUE(live.Printed.ends_with("408x332\n")) << live.Printed;
  });
  live.Run();
}

TEST(RunFormTest, EnterPressesTheDefaultButtonAndEscapeTheCancelButton) {
  LiveProgram live(
      FormWith("DIM E AS QEDIT: E.Parent = F\nDIM A AS QBUTTON: A.Parent = F\n"
               "DIM B AS QBUTTON: B.Parent = F\nA.Default = 1: B.Cancel = 1",
               "SUB OnA\nPRINT \"A\";\nEND SUB\nSUB OnB\nPRINT \"B\";\nEND SUB\n"
               "A.OnClick = OnA: B.OnClick = OnB"));
  live.Then([&] {
    live.The<QLineEdit>("E").setFocus();
    QTest::keyClick(live.Widget("E"), Qt::Key_Return);
    QTest::keyClick(live.Widget("E"), Qt::Key_Escape);
  });
  live.Run();
  EXPECT_EQ(live.Printed, "AB");
}

TEST(RunFormTest, TabGoesByTheNumbers) {
  LiveProgram live(
      FormWith("DIM A AS QEDIT: A.Parent = F: A.TabOrder = 2\n"
               "DIM B AS QEDIT: B.Parent = F: B.TabOrder = 0\n"
               "DIM C AS QEDIT: C.Parent = F: C.TabOrder = 1"));
  live.Then([&] {
    EXPECT_EQ(QApplication::focusWidget(), live.Widget("B"));
    QTest::keyClick(live.Widget("B"), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), live.Widget("C"));
    QTest::keyClick(live.Widget("C"), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), live.Widget("A"));
  });
  live.Run();
}

TEST(RunFormTest, KeyPreviewSeesKeysFirstAndCanKeepThem) {
  LiveProgram live(FormWith(
      "DIM E AS QEDIT: E.Parent = F: F.KeyPreview = 1",
      "SUB FKey (Key AS BYTE)\nPRINT \"F\"; Key; \" \";\nIF Key = 120 THEN Key = 0\nEND SUB\n"
      "SUB EKey (Key AS BYTE)\nPRINT \"E\"; Key; \" \";\nIF Key = 97 THEN Key = 98\nEND SUB\n"
      "F.OnKeyPress = FKey: E.OnKeyPress = EKey"));
  live.Then([&] {
    live.Widget("E")->setFocus();
    QTest::keyClicks(live.Widget("E"), QStringLiteral("axc"));
    EXPECT_EQ(live.Get("E", "Text"), "bc");
  });
  live.Run();
  EXPECT_EQ(live.Printed, "F97 E97 F120 F99 E99 ");
}

TEST(RunFormTest, ASecondWindowWaitsAboveTheFirst) {
  LiveProgram live(
      FormWith("DIM G AS QFORM\nDIM B AS QBUTTON: B.Parent = F\n"
               "DIM C AS QBUTTON: C.Parent = G: C.ModalResult = 1",
               "SUB OnB\nPRINT G.ShowModal\nEND SUB\nB.OnClick = OnB"));
  live.Then([&] { QTest::mouseClick(live.Widget("B"), Qt::LeftButton); });
  live.Then([&] {
    ASSERT_TRUE(live.Widget("G")->isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), live.Widget("G"));
    QTest::mouseClick(live.Widget("C"), Qt::LeftButton);
  });
  live.Then([&] { EXPECT_FALSE(live.Widget("G")->isVisible()); });
  live.Run();
  EXPECT_EQ(live.Printed, "1\n");
}

TEST(RunFormTest, AHandlerMayFreeItsOwnObject) {
  LiveProgram live(FormWith("DIM B AS QBUTTON: B.Parent = F",
                            "SUB OnB\nB.Free\nPRINT \"gone\"\nEND SUB\nB.OnClick = OnB"));
  live.Then([&] { QTest::mouseClick(live.Widget("B"), Qt::LeftButton); });
  live.Then([&] { EXPECT_EQ(live.Stage.ViewOf(live.Object("F").Id)->Widget(), live.Widget("F")); });
  live.Run();
  EXPECT_EQ(live.Printed, "gone\n");
}

TEST(RunFormTest, ARunTimeErrorInAHandlerEndsTheProgram) {
  LiveProgram live(FormWith("DIM B AS QBUTTON: B.Parent = F",
                            "SUB OnB\nDIM n AS INTEGER\nPRINT 1 / n\nEND SUB\nB.OnClick = OnB"));
  live.Then([&] { QTest::mouseClick(live.Widget("B"), Qt::LeftButton); });
  live.Run();
  EXPECT_EQ(live.Result.End, basic::RunEnd::Error);
}

}  // namespace
}  // namespace tarnwick
