// Forms and what stands on them, shown by real windows.
#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTest>

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
