// How lists, trees and edits look: heights, hidden selections, lines, captions that are changed.
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QTest>
#include <QTextEdit>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "run/live_program.h"
#include "run/points.h"

namespace tarnwick {
namespace {

using test::FormWith;
using test::LiveProgram;
using test::PointsOf;

const QColor kMarked(0, 0, 0x80);
const QColor kLine(0xC0, 0xC0, 0xC0);

TEST(RunListLooksTest, AListWithIntegralHeightCutsNoEntry) {
  LiveProgram live(
      FormWith("DIM L AS QLISTBOX: L.Parent = F: L.IntegralHeight = 1: L.Height = 100\n"
               "DIM D AS QLISTBOX: D.Parent = F: D.Left = 130: D.Style = 1: D.ItemHeight = 30: "
               "D.IntegralHeight = 1: D.Height = 100\n"
               "DIM Go AS QBUTTON",
               "SUB Change\nL.Font.Size = 20: D.Height = 80\nEND SUB\nGo.OnClick = Change"));
  const auto fits = [&](const char* name) {
    auto& list = live.The<QListWidget>(name);
    const int row = list.fontMetrics().height();
    EXPECT_EQ((list.height() - 4) % row, 0) << list.height() << " by " << row;
    EXPECT_EQ(live.Get(name, "Height"), std::to_string(list.height()));
    return list.height();
  };
  live.Then([&] {
    EXPECT_LE(fits("L"), 100);
    EXPECT_EQ(live.Get("D", "Height"), "94");
    live.World->Click(live.Object("Go").Id);
    EXPECT_LE(fits("L"), 100);
    EXPECT_EQ(live.Get("D", "Height"), "64");
    EXPECT_EQ(live.Widget("D")->height(), 64);
  });
  live.Run();
}

TEST(RunListLooksTest, AnEditGetsTheHeightOfItsFont) {
  LiveProgram live(
      FormWith("DIM Big AS QFONT: Big.Size = 20\n"
               "DIM A AS QEDIT: A.Parent = F: A.Font = Big\n"
               "DIM B AS QEDIT: B.Parent = F: B.Font = Big: B.Height = 60\n"
               "DIM C AS QEDIT: C.Parent = F: C.AutoSize = 0: C.Font = Big\n"
               "DIM D AS QEDIT: D.Parent = F: D.Height = 40\nDIM Go AS QBUTTON",
               "SUB Change\nD.Font.Size = 8: D.Font.Size = 9\nEND SUB\nGo.OnClick = Change"));
  live.Then([&] {
    EXPECT_GE(live.Widget("A")->height(), live.Widget("A")->fontMetrics().height() + 4);
    EXPECT_LT(live.Widget("A")->height(), 60);
    EXPECT_EQ(live.Widget("B")->height(), 60) << "set behind the font";
    EXPECT_EQ(live.Widget("C")->height(), 21);
    EXPECT_EQ(live.Widget("D")->height(), 40) << "as it was drawn";
    live.World->Click(live.Object("Go").Id);
    EXPECT_LT(live.Widget("D")->height(), 30);
    EXPECT_EQ(live.Get("D", "Height"), std::to_string(live.Widget("D")->height()));
  });
  live.Run();
}

TEST(RunListLooksTest, ASelectionIsSeenWhileItsBoxHasTheFocus) {
  for (const char* const kind : {"QEDIT", "QRICHEDIT"}) {
    for (const bool hides : {true, false}) {
      LiveProgram live(FormWith(std::string("DIM E AS ") + kind +
                                ": E.Parent = F: E.Text = \"Words\": E.SelLength = 5\n" +
                                "DIM O AS QEDIT: O.Parent = F: O.Top = 150\n" +
                                (hides ? "" : "E.HideSelection = 0")));
      live.Then([&] {
        QWidget& box = *live.Widget("E");
        box.setFocus();
        EXPECT_GT(PointsOf(box, kMarked), 50) << kind;
        QTest::keyClick(&box, Qt::Key_Tab);
        ASSERT_EQ(QApplication::focusWidget(), live.Widget("O"));
        EXPECT_EQ(PointsOf(box, kMarked) > 50, !hides) << kind;
        box.setFocus();
        EXPECT_GT(PointsOf(box, kMarked), 50) << kind;
        EXPECT_EQ(live.Get("E", "SelLength"), "5");
      });
      live.Run();
    }
  }
}

constexpr auto kReport =
    "DIM V AS QLISTVIEW: V.Parent = F: V.ViewStyle = 3: V.AddColumns \"one\", \"two\"\n"
    "V.AddItems \"a\", \"b\": V.AddSubItem 0, \"x\"\n";

TEST(RunListLooksTest, GridLinesStandBehindRowsAndColumns) {
  for (const bool lines : {true, false}) {
    LiveProgram live(FormWith(std::string(kReport) + (lines ? "V.GridLines = 1" : "")));
    live.Then([&] {
      auto& view = live.The<QTreeWidget>("V");
      const QImage image = view.grab().toImage();
      const QPoint from = view.viewport()->pos();
      const QRect row = view.visualItemRect(view.topLevelItem(0)).translated(from);
      const int right = from.x() + view.columnViewportPosition(0) + view.columnWidth(0) - 1;
      EXPECT_EQ(image.pixelColor(200, row.bottom()) == kLine, lines);
      EXPECT_EQ(image.pixelColor(200, row.bottom() + 4 * row.height()) == kLine, lines)
          << "below the last row";
      const int between = row.bottom() + 4 * row.height() + 3;
      EXPECT_EQ(image.pixelColor(right, between) == kLine, lines);
      EXPECT_NE(image.pixelColor(right - 5, between), kLine);
    });
    live.Run();
  }
}

TEST(RunListLooksTest, APickIsMarkedAsFarAsItGoes) {
  for (const bool whole : {true, false}) {
    LiveProgram live(FormWith(std::string(kReport) +
                              "V.Column(0).Width = 100: V.HideSelection = 0\n" +
                              (whole ? "V.RowSelect = 1\n" : "") + "V.ItemIndex = 0"));
    live.Then([&] {
      auto& view = live.The<QTreeWidget>("V");
      const QImage image = view.grab().toImage();
      const QRect row =
          view.visualItemRect(view.topLevelItem(0)).translated(view.viewport()->pos());
      EXPECT_EQ(image.pixelColor(row.left() + 2, row.bottom() - 1), kMarked);
      EXPECT_EQ(image.pixelColor(row.left() + 80, row.bottom() - 1) == kMarked, whole);
      EXPECT_EQ(image.pixelColor(row.left() + 140, row.bottom() - 1) == kMarked, whole)
          << "the second column";
    });
    live.Run();
  }
}

TEST(RunListLooksTest, TheRowUnderThePointerIsUnderlined) {
  LiveProgram live(FormWith(std::string(kReport) + "V.HotTrack = 1"));
  QImage before;
  live.Then([&] {
    auto& view = live.The<QTreeWidget>("V");
    before = view.viewport()->grab().toImage();
    const QPoint at = view.visualItemRect(view.topLevelItem(1)).center();
    const QPoint within(8, at.y());
    QHoverEvent hover(QEvent::HoverMove, within, view.viewport()->mapToGlobal(within), QPoint());
    QApplication::sendEvent(view.viewport(), &hover);
    QMouseEvent move(QEvent::MouseMove, within, view.viewport()->mapToGlobal(within), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &move);
    EXPECT_NE(view.viewport()->grab().toImage(), before);
    EXPECT_EQ(view.viewport()->cursor().shape(), Qt::PointingHandCursor);
  });
  live.Run();
}

/// Changes the caption of the current item with the keyboard.
void Rename(QTreeWidget& field, const char* text) {
  field.setFocus();
  QTest::keyClick(&field, Qt::Key_F2);
  auto* const line = field.findChild<QLineEdit*>();
  if (line == nullptr) return;
  line->selectAll();
  QTest::keyClicks(line, QString::fromLatin1(text));
  QTest::keyClick(line, Qt::Key_Return);
}

TEST(RunListLooksTest, CaptionsAreChangedByTheUserWhereTheListLetsHim) {
  for (const bool lets : {true, false}) {
    const std::string set = lets ? "" : ": V.ReadOnly = 1: T.ReadOnly = 1";
    LiveProgram live(FormWith(
        std::string(kReport) +
            "V.ItemIndex = 1\nDIM T AS QTREEVIEW: T.Parent = F: T.Top = 150\nT.AddItems \"c\"\n"
            "T.AddChildItems 0, \"d\": T.FullExpand: T.ItemIndex = 1" +
            set,
        "DIM Go AS QBUTTON\nSUB Tell\nPRINT V.Item(1).Caption; \" \"; T.Item(1).Text\nEND SUB\n"
        "SUB Changed\nPRINT \"!\";\nEND SUB\n"
        "Go.OnClick = Tell: V.OnChange = Changed: T.OnChange = Changed"));
    live.Then([] {});
    live.Then([&] { Rename(live.The<QTreeWidget>("V"), "new"); });
    live.Then([&] { Rename(live.The<QTreeWidget>("T"), "low"); });
    live.Then([&] { live.World->Click(live.Object("Go").Id); });
    live.Run();
    EXPECT_EQ(live.Printed, lets ? "!!new low\n" : "b d\n");
  }
}

TEST(RunListLooksTest, TheKeysThatEndACaptionAreNotThoseOfTheForm) {
  LiveProgram live(FormWith(std::string(kReport) +
                                "V.ItemIndex = 0\nDIM D AS QBUTTON: D.Parent = F: D.Top = 170\n"
                                "D.Default = 1: D.Cancel = 1",
                            "SUB Pressed\nPRINT \"pressed\"\nEND SUB\nD.OnClick = Pressed"));
  live.Then([&] { Rename(live.The<QTreeWidget>("V"), "new"); });
  live.Then([&] {
    EXPECT_EQ(live.The<QTreeWidget>("V").topLevelItem(0)->text(0), QStringLiteral("new"));
    auto& field = live.The<QTreeWidget>("V");
    QTest::keyClick(&field, Qt::Key_F2);
    QTest::keyClick(field.findChild<QLineEdit*>(), Qt::Key_Escape);
    EXPECT_EQ(live.Printed, "");
    QTest::keyClick(&field, Qt::Key_Return);
  });
  live.Run();
  EXPECT_EQ(live.Printed, "pressed\n") << "the list itself leaves it to the form";
}

TEST(RunListLooksTest, ATreeHasLinesAndOpenersOfItsOwn) {
  LiveProgram live(FormWith(
      "DIM T AS QTREEVIEW: T.Parent = F: T.AddItems \"a\", \"b\": T.AddChildItems 0, \"c\"",
      "DIM Go AS QBUTTON\nSUB Change\nT.ShowButtons = 0\nEND SUB\nGo.OnClick = Change\n"
      "SUB Opened (Node AS INTEGER)\nPRINT Node\nEND SUB\nT.OnExpanded = Opened"));
  const QColor grey(0x80, 0x80, 0x80);
  live.Then([] {});
  live.Then([&] {
    auto& tree = live.The<QTreeWidget>("T");
    const QRect row = tree.visualItemRect(tree.topLevelItem(0));
    const int closed = PointsOf(*tree.viewport(), grey);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {},
                      QPoint(row.left() - 9, row.center().y()));
    EXPECT_TRUE(tree.topLevelItem(0)->isExpanded());
    const int open = PointsOf(*tree.viewport(), grey);
    EXPECT_GT(open, closed) << "the line goes on to the node below";
    live.World->Click(live.Object("Go").Id);
    EXPECT_LT(PointsOf(*tree.viewport(), grey), open) << "without the box";
  });
  live.Run();
  EXPECT_EQ(live.Printed, "0\n");
}

constexpr auto kDrawnCombo =
    "DIM C AS QCOMBOBOX: C.Parent = F: C.Style = 3: C.ItemHeight = 20\n"
    "C.AddItems \"red\", \"green\", \"blue\"\n"
    "DIM Inks(2) AS INTEGER: Inks(0) = &HFF: Inks(1) = &HFF00: Inks(2) = &HFF0000\n"
    "SUB Entry (Index AS INTEGER, State AS INTEGER, R AS QRECT)\n"
    "C.FillRect(R.Left, R.Top, R.Right, R.Bottom, Inks(Index))\nEND SUB\nC.OnDrawItem = Entry\n";

TEST(RunListLooksTest, EntriesOfADropDownListAreDrawnByTheProgram) {
  LiveProgram live(FormWith(std::string(kDrawnCombo) + "C.ItemIndex = 0"));
  const auto list = [&] { return live.The<QComboBox>("C").view(); };
  live.Then([] {});
  live.Then([&] {
    auto& combo = live.The<QComboBox>("C");
    EXPECT_GT(PointsOf(combo, Qt::red), 500) << "the box has the picked entry";
    EXPECT_EQ(PointsOf(combo, Qt::blue), 0);
    QTest::mouseClick(&combo, Qt::LeftButton, {}, QPoint(combo.width() - 8, 10));
  });
  live.Then([] {});
  live.Then([&] {
    ASSERT_TRUE(list()->isVisible());
    QWidget& rows = *list()->viewport();
    EXPECT_GE(rows.height(), 60);
    EXPECT_GT(PointsOf(rows, Qt::green), 1000);
    EXPECT_GT(PointsOf(rows, Qt::blue), 1000);
    EXPECT_GT(PointsOf(live.The<QWidget>("C"), Qt::red), 500) << "the box stays";
    const QPoint third = list()->visualRect(list()->model()->index(2, 0)).center();
    QTest::mouseMove(&rows, third);
    QTest::mouseClick(&rows, Qt::LeftButton, {}, third);
  });
  live.Then([] {});
  live.Then([&] {
    EXPECT_FALSE(list()->isVisible());
    EXPECT_EQ(live.Get("C", "ItemIndex"), "2");
    EXPECT_GT(PointsOf(live.The<QWidget>("C"), Qt::blue), 500);
    EXPECT_EQ(PointsOf(live.The<QWidget>("C"), Qt::red), 0);
  });
  live.Run();
}

TEST(RunListLooksTest, EntriesOfADropDownListHaveTheirOwnHeights) {
  LiveProgram live(
      FormWith("DIM C AS QCOMBOBOX: C.Parent = F: C.Style = 4: C.ItemHeight = 20\n"
               "SUB Size (Index AS INTEGER, Height AS INTEGER)\nHeight = 20 + 10 * Index\nEND SUB\n"
               "C.OnMeasureItem = Size\nC.AddItems \"a\", \"b\", \"c\""));
  live.Then([&] {
    const QAbstractItemView& list = *live.The<QComboBox>("C").view();
    EXPECT_EQ(list.sizeHintForRow(0), 20);
    EXPECT_EQ(list.sizeHintForRow(2), 40);
  });
  live.Run();
}

}  // namespace
}  // namespace tarnwick
