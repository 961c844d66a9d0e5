// Panels, bars, tabs and grids: what they show, and what the user does with them.
#include <QAbstractButton>
#include <QApplication>
#include <QFontDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>

#include "run/live_program.h"
#include "run/views/run_form.h"

namespace tarnwick {
namespace {

using test::FormWith;
using test::LiveProgram;

QImage Shown(const LiveProgram& live, std::string_view name) {
  return live.Widget(name)->grab().toImage();
}

void Click(const LiveProgram& live, std::string_view name) {
  QTest::mouseClick(live.Widget(name), Qt::LeftButton);
}

TEST(RunPanelsTest, APanelHoldsObjectsAndDocksThem) {
  LiveProgram live(
      FormWith("DIM P AS QPANEL: P.Parent = F: P.Align = 1: P.Height = 60: P.Color = &HFF\n"
               "DIM B AS QBUTTON: B.Parent = P: B.Left = 10: B.Top = 20\n"
               "DIM E AS QRICHEDIT: E.Parent = P: E.Align = 4: E.Width = 50",
               "SUB Press\nPRINT \"pressed\"\nEND SUB\nB.OnClick = Press"));
  live.Then([&] {
    EXPECT_EQ(live.Widget("P")->geometry(), QRect(0, 0, 312, 60));
    EXPECT_EQ(live.Widget("B")->parentWidget(), live.Widget("P"));
    EXPECT_EQ(live.Widget("B")->pos(), QPoint(10, 20));
    // The bevel is a pixel wide.
    EXPECT_EQ(live.Widget("E")->geometry(), QRect(261, 1, 50, 58));
    Click(live, "B");
    const QImage panel = Shown(live, "P");
    EXPECT_EQ(panel.pixelColor(0, 0), QColor(Qt::white)) << "raised";
    EXPECT_EQ(panel.pixelColor(5, 5), QColor(Qt::red));
    live.Widget("F")->resize(400, 300);
  });
  live.Then([&] { EXPECT_EQ(live.Widget("E")->geometry(), QRect(349, 1, 50, 58)); });
  live.Run();
  EXPECT_EQ(live.Printed, "pressed\n");
}

TEST(RunPanelsTest, APanelIsClickedAndShowsItsCaptionAndBevels) {
  LiveProgram live(
      FormWith("DIM P AS QPANEL: P.Parent = F: P.BevelOuter = 0: P.BorderStyle = 1\n"
               "P.BevelInner = 1: P.BevelWidth = 2: P.BorderWidth = 3",
               "SUB Press\nPRINT \"pressed\"\nP.Caption = \"Words\"\nEND SUB\nP.OnClick = Press"));
  live.Then([&] {
    const QImage before = Shown(live, "P");
    EXPECT_EQ(before.pixelColor(0, 0), QColor(Qt::black));
    EXPECT_EQ(before.pixelColor(4, 4), QColor(0x80, 0x80, 0x80)) << "lowered";
    Click(live, "P");
    EXPECT_FALSE(Shown(live, "P") == before);
  });
  live.Run();
  EXPECT_EQ(live.Printed, "pressed\n");
}

TEST(RunPanelsTest, RadioButtonsOfAGroupBoxExcludeEachOtherAlone) {
  LiveProgram live(
      FormWith("DIM G AS QGROUPBOX: G.Parent = F: G.Caption = \"Group\"\n"
               "DIM A AS QRADIOBUTTON: A.Parent = G: A.Top = 20: A.Left = 8\n"
               "DIM B AS QRADIOBUTTON: B.Parent = G: B.Top = 40: B.Left = 8\n"
               "DIM C AS QRADIOBUTTON: C.Parent = F: C.Top = 150: C.Checked = 1"));
  live.Then([&] {
    const QImage group = Shown(live, "G");
    EXPECT_EQ(group.pixelColor(0, 60), QColor(0x80, 0x80, 0x80)) << "the frame";
    Click(live, "A");
    Click(live, "B");
    EXPECT_EQ(live.Get("A", "Checked"), "0");
    EXPECT_EQ(live.Get("B", "Checked"), "1");
    EXPECT_EQ(live.Get("C", "Checked"), "1");
  });
  live.Run();
}

TEST(RunPanelsTest, AScrollBoxHasBarsWhenItsObjectsNeedMoreRoom) {
  LiveProgram live(
      FormWith("DIM S AS QSCROLLBOX: S.Parent = F: S.Height = 100\n"
               "DIM B AS QBUTTON: B.Parent = S",
               "DIM Go AS QBUTTON\nSUB Down\nB.Top = 300\nEND SUB\nGo.OnClick = Down"));
  live.Then([&] {
    EXPECT_EQ(live.The<QScrollArea>("S").verticalScrollBar()->maximum(), 0);
    live.World->Click(live.Object("Go").Id);
  });
  live.Then([&] { EXPECT_GT(live.The<QScrollArea>("S").verticalScrollBar()->maximum(), 200); });
  live.Run();
}

TEST(RunPanelsTest, AGaugeFillsWithItsPosition) {
  LiveProgram live(
      FormWith("DIM G AS QGAUGE: G.Parent = F: G.Width = 100: G.Height = 20: G.ShowText = 0\n"
               "G.ForeColor = &HFF: G.BackColor = &HFFFFFF: G.Max = 10: G.Position = 5"));
  live.Then([&] {
    const QImage gauge = Shown(live, "G");
    EXPECT_EQ(gauge.pixelColor(40, 10), QColor(Qt::red));
    EXPECT_EQ(gauge.pixelColor(60, 10), QColor(Qt::white));
  });
  live.Run();
}

TEST(RunPanelsTest, BarsAreMovedByKeysAndByTheProgram) {
  LiveProgram live(
      FormWith("DIM T AS QTRACKBAR: T.Parent = F: T.Max = 20: T.Position = 5\n"
               "DIM S AS QSCROLLBAR: S.Parent = F: S.Top = 100: S.LargeChange = 10",
               "SUB TChanged\nPRINT \"t\"; T.Position; \" \";\nEND SUB\nT.OnChange = TChanged\n"
               "SUB SChanged\nPRINT \"s\"; S.Position; \" \";\nEND SUB\nS.OnScroll = SChanged\n"
               "DIM Go AS QBUTTON\nSUB Far\nT.Position = 99\nEND SUB\nGo.OnClick = Far"));
  live.Then([&] {
    EXPECT_EQ(live.The<QSlider>("T").value(), 5);
    live.Widget("T")->setFocus();
    QTest::keyClick(live.Widget("T"), Qt::Key_Right);
    live.Widget("S")->setFocus();
    EXPECT_EQ(live.The<QScrollBar>("S").orientation(), Qt::Horizontal);
    EXPECT_EQ(live.The<QScrollBar>("S").singleStep(), 1);
    QTest::keyClick(live.Widget("S"), Qt::Key_Right);
    EXPECT_EQ(live.The<QScrollBar>("S").value(), 1);
    QTest::keyClick(live.Widget("S"), Qt::Key_PageDown);
    live.World->Click(live.Object("Go").Id);
    EXPECT_EQ(live.The<QSlider>("T").value(), 20) << "within its bounds";
  });
  live.Run();
  EXPECT_EQ(live.Printed, "t6 s1 s11 t20 ");
}

TEST(RunPanelsTest, AStatusBarStandsBelowAndHasPanels) {
  LiveProgram live(
      FormWith("DIM S AS QSTATUSBAR: S.Parent = F: S.AddPanels \"one\", \"two\"\n"
               "S.Panel(0).Width = 100",
               "DIM Go AS QBUTTON\nSUB Change\nS.Panel(1).Caption = \"other words\"\n"
               "PRINT S.Panel(0).Caption; S.Panel(0).Width; S.PanelCount\nEND SUB\n"
               "Go.OnClick = Change"));
  live.Then([&] {
    EXPECT_EQ(live.Widget("S")->geometry(), QRect(0, 208 - 19, 312, 19));
    const QImage before = Shown(live, "S");
    EXPECT_EQ(before.pixelColor(102, 2), QColor(0x80, 0x80, 0x80)) << "edge of the second panel";
    live.World->Click(live.Object("Go").Id);
    EXPECT_FALSE(Shown(live, "S") == before);
  });
  live.Run();
  EXPECT_EQ(live.Printed, "one1002\n");
}

TEST(RunPanelsTest, APanelThatIsNotThereIsAnError) {
  LiveProgram live("DIM S AS QSTATUSBAR\nS.AddPanels \"one\"\nPRINT S.Panel(1).Caption\n");
  live.Run();
  EXPECT_EQ(live.Result.Text, "S has no panel 1: it has 1, counted from 0");
}

TEST(RunPanelsTest, ATabIsPickedByTheMouse) {
  LiveProgram live(
      FormWith("DIM T AS QTABCONTROL: T.Parent = F: T.AddTabs \"one\", \"two\"\n"
               "DIM B AS QBUTTON: B.Parent = T: B.Top = 60",
               "SUB Picked\nPRINT T.TabIndex; T.Tab(T.TabIndex)\nEND SUB\nT.OnChange = Picked"));
  live.Then([&] {
    auto* const bar = live.Widget("T")->findChild<QTabBar*>();
    ASSERT_EQ(bar->count(), 2);
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    EXPECT_TRUE(live.Widget("B")->isVisible());
  });
  live.Run();
  EXPECT_EQ(live.Printed, "1two\n");
}

TEST(RunPanelsTest, ASplitterSizesWhatIsDockedBesideIt) {
  LiveProgram live(
      FormWith("DIM P AS QPANEL: P.Parent = F: P.Align = 3: P.Width = 100\n"
               "DIM S AS QSPLITTER: S.Parent = F: S.Left = 100: S.Align = 3\n"
               "DIM R AS QPANEL: R.Parent = F: R.Align = 5"));
  live.Then([&] {
    EXPECT_EQ(live.Widget("S")->geometry(), QRect(100, 0, 3, 208));
    QTest::mousePress(live.Widget("S"), Qt::LeftButton, {}, QPoint(1, 50));
    QTest::mouseRelease(live.Widget("S"), Qt::LeftButton, {}, QPoint(41, 50));
    EXPECT_EQ(live.Get("P", "Width"), "140");
    EXPECT_EQ(live.Widget("R")->geometry(), QRect(143, 0, 312 - 143, 208));
  });
  live.Run();
}

TEST(RunPanelsTest, FlatButtonsOfAGroupStayDown) {
  LiveProgram live(
      FormWith("DIM A AS QCOOLBTN: A.Parent = F: A.GroupIndex = 1: A.AllowAllUp = 1\n"
               "DIM B AS QCOOLBTN: B.Parent = F: B.Left = 40: B.GroupIndex = 1\n"
               "DIM O AS QOVALBTN: O.Parent = F: O.Left = 80",
               "SUB OnA\nPRINT \"a\"; A.Down; B.Down; \" \";\nEND SUB\nA.OnClick = OnA\n"
               "SUB OnO\nPRINT \"o\";\nEND SUB\nO.OnClick = OnO"));
  live.Then([&] {
    const QImage up = Shown(live, "A");
    Click(live, "B");
    Click(live, "A");
    EXPECT_FALSE(Shown(live, "A") == up);
    Click(live, "A");
    Click(live, "O");
    EXPECT_EQ(Shown(live, "O").pixelColor(0, 0), QColor(0xC0, 0xC0, 0xC0)) << "it is oval";
  });
  live.Run();
  EXPECT_EQ(live.Printed, "a10 a00 o");
}

TEST(RunPanelsTest, ACanvasIsPaintedByItsEvent) {
  LiveProgram live(
      FormWith("DIM C AS QCANVAS: C.Parent = F: C.Color = &HFFFFFF",
               "SUB Paint\nC.FillRect 10, 10, 30, 30, &HFF\nEND SUB\nC.OnPaint = Paint"));
  live.Then([] {});
  live.Then([&] {
    const QImage canvas = Shown(live, "C");
    EXPECT_EQ(canvas.pixelColor(5, 5), QColor(Qt::white));
    EXPECT_EQ(canvas.pixelColor(15, 15), QColor(Qt::red));
  });
  live.Run();
}

// --- Entries and cells that the program draws

TEST(RunPanelsTest, EntriesOfAListAreDrawnByTheProgram) {
  LiveProgram live(FormWith(
      "DIM L AS QLISTBOX: L.Parent = F: L.Style = 1: L.ItemHeight = 20: L.AddItems \"a\", \"b\"",
      "SUB DrawIt (Index AS INTEGER, State AS INTEGER, R AS QRECT)\n"
      "DIM C AS INTEGER: C = &HFF\nIF State AND 1 THEN C = &HFF0000\n"
      "IF Index = 1 THEN L.FillRect R.Left, R.Top, R.Right, R.Bottom, C\n"
      "END SUB\nL.OnDrawItem = DrawIt"));
  live.Then([] {});
  live.Then([&] {
    auto& list = live.The<QListWidget>("L");
    EXPECT_EQ(list.visualItemRect(list.item(1)).height(), 20);
    EXPECT_EQ(list.viewport()->grab().toImage().pixelColor(30, 30), QColor(Qt::red));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(10, 25));
  });
  live.Then([] {});
  live.Then([&] {
    const QImage shown = live.The<QListWidget>("L").viewport()->grab().toImage();
    EXPECT_EQ(shown.pixelColor(30, 30), QColor(Qt::blue)) << "it is picked now";
  });
  live.Run();
}

TEST(RunPanelsTest, EntriesOfAListHaveTheHeightsThatTheProgramGives) {
  LiveProgram live(
      FormWith("DIM L AS QLISTBOX: L.Parent = F: L.AddItems \"a\", \"b\": L.Style = 2",
               "SUB Measure (Index AS INTEGER, Height AS INTEGER)\nHeight = 20 + 10 * Index\n"
               "END SUB\nL.OnMeasureItem = Measure"));
  live.Then([&] {
    auto& list = live.The<QListWidget>("L");
    EXPECT_EQ(list.visualItemRect(list.item(0)).height(), 20);
    EXPECT_EQ(list.visualItemRect(list.item(1)).height(), 30);
  });
  live.Run();
}

/// A grid of 3 columns and 4 rows, the first ones fixed; cells of 50 by 20 pixels with lines.
std::string Grid(const std::string& more, const std::string& code = {}) {
  return FormWith(
      "DIM G AS QSTRINGGRID: G.Parent = F: G.ColCount = 3: G.RowCount = 4\n"
      "G.DefaultColWidth = 49: G.DefaultRowHeight = 19\n" +
          more,
      code);
}

QWidget& CellsOf(const LiveProgram& live) {
  return *live.The<QAbstractScrollArea>("G").viewport();
}

TEST(RunPanelsTest, CellsArePickedUnlessTheProgramRefuses) {
  LiveProgram live(Grid("G.Cell(1, 1) = \"one\"",
                        "SUB Selects (Col AS INTEGER, Row AS INTEGER, CanSelect AS INTEGER)\n"
                        "IF Row = 2 THEN CanSelect = 0\nPRINT Col; Row; \" \";\nEND SUB\n"
                        "G.OnSelectCell = Selects"));
  live.Then([&] {
    QTest::mouseClick(&CellsOf(live), Qt::LeftButton, {}, QPoint(120, 65));
    EXPECT_EQ(live.Get("G", "Col") + live.Get("G", "Row"), "23");
    QTest::mouseClick(&CellsOf(live), Qt::LeftButton, {}, QPoint(60, 45));
    EXPECT_EQ(live.Get("G", "Col") + live.Get("G", "Row"), "23") << "refused";
    live.Widget("G")->setFocus();
    QTest::keyClick(live.Widget("G"), Qt::Key_Left);
    EXPECT_EQ(live.Get("G", "Col") + live.Get("G", "Row"), "13");
    QTest::mouseClick(&CellsOf(live), Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(live.Get("G", "Col") + live.Get("G", "Row"), "13") << "fixed";
    const QImage grid = CellsOf(live).grab().toImage();
    EXPECT_EQ(grid.pixelColor(90, 75), QColor(0, 0, 0x80)) << "the cell that is picked";
    EXPECT_EQ(grid.pixelColor(10, 10), QColor(0xC0, 0xC0, 0xC0)) << "fixed";
    EXPECT_EQ(grid.pixelColor(90, 35), QColor(Qt::white));
  });
  live.Run();
  EXPECT_EQ(live.Printed, "23 12 13 ");
}

TEST(RunPanelsTest, CellsAreTypedIntoWhenTheGridLetsThem) {
  LiveProgram live(Grid("G.AddOptions 10"));
  live.Then([&] {
    live.Widget("G")->setFocus();
    QTest::keyClick(live.Widget("G"), Qt::Key_A);
    auto* const editor = live.Widget("G")->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, QStringLiteral("bc"));
    QTest::keyClick(editor, Qt::Key_Return);
    const objects::ObjectRecord& grid = live.Object("G");
    EXPECT_EQ(grid.As<objects::GridCells>()->Texts.at(65536 + 1), "abc");
  });
  live.Run();
}

TEST(RunPanelsTest, ATextThatIsTypedEndsWithItsKeys) {
  LiveProgram live(Grid("G.AddOptions 10"));
  const auto editor = [&] { return live.Widget("G")->findChild<QLineEdit*>(); };
  const auto texts = [&] { return live.Object("G").As<objects::GridCells>()->Texts; };
  live.Then([&] {
    live.Widget("G")->setFocus();
    QTest::keyClick(live.Widget("G"), Qt::Key_A);
    ASSERT_NE(editor(), nullptr);
    QTest::keyClick(editor(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), live.Widget("G"));
  });
  live.Then([&] {
    EXPECT_EQ(editor(), nullptr) << "Return ends it and begins nothing";
    QTest::keyClick(live.Widget("G"), Qt::Key_B);
    EXPECT_FALSE(CellsOf(live).rect().isEmpty());
    EXPECT_EQ(editor()->size(), QSize(49, 19)) << "the line beside the cell is seen";
    QTest::keyClick(editor(), Qt::Key_Escape);
  });
  live.Then([&] {
    EXPECT_EQ(texts().at(65536 + 1), "a") << "Escape takes it back";
    QTest::keyClick(live.Widget("G"), Qt::Key_C);
    QTest::keyClick(editor(), Qt::Key_Down);
    EXPECT_EQ(live.Get("G", "Col") + live.Get("G", "Row"), "12") << "to the cell below";
    EXPECT_EQ(texts().at(65536 + 1), "c");
  });
  live.Run();
}

TEST(RunPanelsTest, TabGoesFromCellToCellWhereTheGridLetsIt) {
  LiveProgram live(
      Grid("G.ColCount = 3: G.RowCount = 3: G.AddOptions 10, 11\n"
           "DIM E AS QEDIT: E.Parent = F: E.Top = 180"));
  live.Then([&] {
    QWidget& grid = *live.Widget("G");
    grid.setFocus();
    const auto at = [&] { return live.Get("G", "Col") + live.Get("G", "Row"); };
    QTest::keyClick(&grid, Qt::Key_Tab);
    EXPECT_EQ(at(), "21");
    QTest::keyClick(&grid, Qt::Key_X);
    QTest::keyClick(grid.findChild<QLineEdit*>(), Qt::Key_Tab);
    EXPECT_EQ(at(), "12") << "over the end of the row, also while a text is typed";
    EXPECT_EQ(live.Object("G").As<objects::GridCells>()->Texts.at(65536 + 2), "x");
    QTest::keyClick(&grid, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(at(), "21");
    QTest::keyClick(&grid, Qt::Key_Tab);
    QTest::keyClick(&grid, Qt::Key_Tab);
    EXPECT_EQ(at(), "22");
    QTest::keyClick(&grid, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), live.Widget("E")) << "behind the last one";
  });
  live.Run();
}

TEST(RunPanelsTest, HeadsAreDraggedToAnotherSizeWhereTheGridLetsThem) {
  for (const bool lets : {true, false}) {
    LiveProgram live(Grid(lets ? "G.AddOptions 6, 7" : "",
                          "DIM Go AS QBUTTON\nSUB Tell\nPRINT G.ColWidths(1); \" \"; "
                          "G.RowHeights(0)\nEND SUB\nGo.OnClick = Tell"));
    live.Then([&] {
      QWidget& cells = CellsOf(live);
      const auto drag = [&](const QPoint& from, const QPoint& to) {
        QTest::mousePress(&cells, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, cells.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&cells, &move);
        QTest::mouseRelease(&cells, Qt::LeftButton, {}, to);
      };
      drag(QPoint(100, 10), QPoint(120, 12));
      drag(QPoint(10, 20), QPoint(12, 25));
      live.World->Click(live.Object("Go").Id);
    });
    live.Run();
    EXPECT_EQ(live.Printed, lets ? "69 24\n" : "49 19\n");
  }
}

TEST(RunPanelsTest, AGridScrollsToTheCellThatIsPicked) {
  LiveProgram live(Grid("G.RowCount = 60000: G.Height = 100",
                        "DIM Go AS QBUTTON\nSUB Far\nG.Row = 59999\nPRINT G.Row; \" \"; "
                        "G.TopRow > 59990\nEND SUB\nGo.OnClick = Far"));
  live.Then([&] { live.World->Click(live.Object("Go").Id); });
  live.Run();
  EXPECT_EQ(live.Printed, "59999 -1\n");
}

TEST(RunPanelsTest, CellsAreDrawnByTheProgram) {
  LiveProgram live(
      Grid("",
           "SUB DrawIt (Col AS INTEGER, Row AS INTEGER, State AS INTEGER, R AS QRECT)\n"
           "IF Col = 2 AND Row = 2 THEN G.FillRect R.Left, R.Top, R.Right, R.Bottom, &HFF\n"
           "END SUB\nG.OnDrawCell = DrawIt"));
  live.Then([] {});
  live.Then([&] {
    const QImage grid = CellsOf(live).grab().toImage();
    EXPECT_EQ(grid.pixelColor(120, 50), QColor(Qt::red));
    EXPECT_EQ(grid.pixelColor(70, 50), QColor(Qt::white));
  });
  live.Run();
}

TEST(RunPanelsTest, AFontIsPicked) {
  LiveProgram live(
      FormWith("DIM D AS QFONTDIALOG: D.Font.Size = 20\nDIM B AS QBUTTON: B.Parent = F",
               "SUB OnB\nPRINT D.Execute; D.Font.Size; D.Font.Bold\nEND SUB\nB.OnClick = OnB"));
  live.Then([&] { Click(live, "B"); });
  live.Then([&] {
    auto* const dialog = qobject_cast<QFontDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    QFont font = dialog->currentFont();
    font.setPointSize(14);
    font.setBold(true);
    dialog->setCurrentFont(font);
    dialog->accept();
  });
  live.Run();
  EXPECT_EQ(live.Printed, "1141\n");
}

}  // namespace
}  // namespace tarnwick
