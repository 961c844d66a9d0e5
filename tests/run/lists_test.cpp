// Lists of files, lists with columns and trees, in windows.
#include <QHeaderView>
#include <QImage>
#include <QListWidget>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "run/live_program.h"

namespace tarnwick {
namespace {

using test::FormWith;
using test::LiveProgram;

TEST(RunListsTest, AListOfFilesIsPickedByTheMouse) {
  TemporaryFolder files;
  for (const char* const name : {"a.txt", "b.txt", "c.dat"}) files.Write(name, "x");
  LiveProgram live(
      FormWith("DIM L AS QFILELISTBOX: L.Parent = F: L.Mask = \"*.txt\"\n"
               "L.Directory = \"" +
                   files.Path() + "\"",
               "SUB Picked\nPRINT L.FileName; L.ItemIndex;\nEND SUB\n"
               "L.OnClick = Picked\nSUB Twice\nPRINT \"twice\";\nEND SUB\n"
               "L.OnDblClick = Twice"));
  live.Then([&] {
    auto& list = live.The<QListWidget>("L");
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(1)->text(), QStringLiteral("b.txt"));
    const QPoint at = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
  });
  live.Then([&] {
    EXPECT_EQ(live.Printed, files.Path("b.txt") + "1");
    live.Printed.clear();
    live.Widget("L")->setFocus();
    QTest::keyClick(live.Widget("L"), Qt::Key_Up);
  });
  live.Then([&] { EXPECT_EQ(live.Printed, files.Path("a.txt") + "0"); });
  live.Run();
}

TEST(RunListsTest, AListOfFilesShowsAnotherFolder) {
  TemporaryFolder files;
  files.Write("a.txt", "x");
  LiveProgram live(FormWith("DIM L AS QFILELISTBOX: L.Parent = F: L.Directory = \"" + files.Path() +
                                "\"\nDIM Go AS QBUTTON",
                            "SUB Change\nL.Mask = \"*.bas\"\nEND SUB\nGo.OnClick = Change"));
  live.Then([&] {
    EXPECT_EQ(live.The<QListWidget>("L").count(), 1);
    live.World->Click(live.Object("Go").Id);
    EXPECT_EQ(live.The<QListWidget>("L").count(), 0);
  });
  live.Run();
}

TEST(RunListsTest, AListWithColumnsIsAReport) {
  LiveProgram live(FormWith(
      "DIM L AS QLISTVIEW: L.Parent = F: L.ViewStyle = 3: L.Width = 250: L.RowSelect = 1\n"
      "L.AddColumns \"Name\", \"Size\": L.AddItems \"a\", \"b\": L.AddSubItem 1, \"22\"\n"
      "L.Column(1).Width = 70: L.Column(1).Alignment = 1",
      "SUB Changed\nPRINT \"<\"; L.ItemIndex; \">\";\nEND SUB\nL.OnChange = Changed\n"
      "SUB Clicked\nPRINT \"click\";\nEND SUB\nL.OnClick = Clicked\n"
      "SUB Sorts (Column AS INTEGER)\nPRINT \"column\"; Column;\nEND SUB\nL.OnColumnClick = Sorts\n"
      "DIM Go AS QBUTTON\nSUB More\nL.AddItems \"c\": L.Item(0).Caption = \"A\"\nL.DelItems 1\n"
      "END SUB\nGo.OnClick = More"));
  live.Then([&] {
    auto& list = live.The<QTreeWidget>("L");
    ASSERT_EQ(list.topLevelItemCount(), 2);
    EXPECT_FALSE(list.isHeaderHidden());
    EXPECT_EQ(list.headerItem()->text(1), QStringLiteral("Size"));
    EXPECT_EQ(list.columnWidth(1), 70);
    EXPECT_EQ(list.topLevelItem(1)->text(1), QStringLiteral("22"));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.topLevelItem(1)).center());
  });
  live.Then([&] {
    EXPECT_EQ(live.Printed, "<1>click");
    live.Printed.clear();
    live.Widget("L")->setFocus();
    QTest::keyClick(live.Widget("L"), Qt::Key_Up);
  });
  live.Then([&] {
    EXPECT_EQ(live.Printed, "<0>");
    live.Printed.clear();
    QHeaderView* const head = live.The<QTreeWidget>("L").header();
    QTest::mouseClick(head->viewport(), Qt::LeftButton, {},
                      QPoint(head->sectionViewportPosition(1) + 30, 5));
  });
  live.Then([&] {
    EXPECT_EQ(live.Printed, "column1");
    live.World->Click(live.Object("Go").Id);
    auto& list = live.The<QTreeWidget>("L");
    ASSERT_EQ(list.topLevelItemCount(), 2);
    EXPECT_EQ(list.topLevelItem(0)->text(0), QStringLiteral("A"));
    EXPECT_EQ(list.topLevelItem(1)->text(0), QStringLiteral("c"));
  });
  live.Run();
}

TEST(RunListsTest, ItemsAreTickedAndManyArePicked) {
  LiveProgram live(FormWith(
      "DIM L AS QLISTVIEW: L.Parent = F: L.CheckBoxes = 1: L.MultiSelect = 1\n"
      "L.AddItems \"a\", \"b\", \"c\"",
      "SUB Changed\nPRINT L.Item(1).Checked;\nEND SUB\nL.OnChange = Changed\n"
      "DIM Go AS QBUTTON\nSUB Tell\nPRINT L.SelCount; L.Item(0).Selected; L.Item(2).Selected\n"
      "L.Item(1).Checked = 0\nEND SUB\nGo.OnClick = Tell"));
  live.Then([&] {
    auto& list = live.The<QTreeWidget>("L");
    EXPECT_TRUE(list.isHeaderHidden());
    const auto at = [&](int row) { return list.visualItemRect(list.topLevelItem(row)); };
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at(0).center());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, at(2).center());
    live.Printed.clear();
    list.topLevelItem(1)->setCheckState(0, Qt::Checked);
  });
  live.Then([&] {
    EXPECT_EQ(live.Printed, "1");
    live.Printed.clear();
    live.World->Click(live.Object("Go").Id);
    EXPECT_EQ(live.Printed, "211\n");
    EXPECT_EQ(live.The<QTreeWidget>("L").topLevelItem(1)->checkState(0), Qt::Unchecked);
  });
  live.Run();
}

TEST(RunListsTest, PicturesStandInFrontOfItems) {
  TemporaryFolder files;
  QImage red(16, 16, QImage::Format_RGB32);
  red.fill(Qt::red);
  red.save(QString::fromStdString(files.Native("red.bmp")), "BMP");
  LiveProgram live(FormWith("DIM P AS QIMAGELIST: P.AddBMPFile \"" + files.Path("red.bmp") +
                            "\"\nDIM L AS QLISTVIEW: L.Parent = F: L.ViewStyle = 2\n"
                            "L.SmallImages = P: L.AddItems \"a\", \"b\": L.Item(0).ImageIndex = 0\n"
                            "DIM T AS QTREEVIEW: T.Parent = F: T.Top = 110: T.Images = P\n"
                            "T.AddItems \"a\": T.Item(0).ImageIndex = 0"));
  live.Then([] {});
  live.Then([&] {
    EXPECT_FALSE(live.The<QTreeWidget>("L").topLevelItem(0)->icon(0).isNull());
    EXPECT_TRUE(live.The<QTreeWidget>("L").topLevelItem(1)->icon(0).isNull());
    EXPECT_FALSE(live.The<QTreeWidget>("T").topLevelItem(0)->icon(0).isNull());
  });
  live.Run();
}

TEST(RunListsTest, ATreeIsOpenedAndPickedByTheUser) {
  LiveProgram live(FormWith(
      "DIM T AS QTREEVIEW: T.Parent = F: T.AddItems \"a\", \"b\": T.AddChildItems 0, \"c\"\n"
      "T.AddChildItems 1, \"d\"",
      "SUB Changed\nPRINT \"<\"; T.Item(T.ItemIndex).Text; \">\";\nEND SUB\nT.OnChange = Changed\n"
      "SUB Opens (Node AS INTEGER)\nPRINT \"open\"; Node; T.Item(Node).Expanded;\nEND SUB\n"
      "T.OnExpanded = Opens\nSUB Closes (Node AS INTEGER)\nPRINT \"close\"; Node;\nEND SUB\n"
      "T.OnCollapsed = Closes\nSUB Clicked\nPRINT \"click\";\nEND SUB\nT.OnClick = Clicked\n"
      "DIM Go AS QBUTTON\nSUB All\nT.FullExpand: T.ItemIndex = 2\nEND SUB\nGo.OnClick = All"));
  live.Then([&] {
    auto& tree = live.The<QTreeWidget>("T");
    ASSERT_EQ(tree.topLevelItemCount(), 2);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {},
                      tree.visualItemRect(tree.topLevelItem(0)).center());
  });
  live.Then([&] {
    EXPECT_EQ(live.Printed, "<a>click");
    live.Printed.clear();
    live.Widget("T")->setFocus();
    QTest::keyClick(live.Widget("T"), Qt::Key_Right);
    QTest::keyClick(live.Widget("T"), Qt::Key_Down);
    QTest::keyClick(live.Widget("T"), Qt::Key_Up);
    QTest::keyClick(live.Widget("T"), Qt::Key_Left);
  });
  live.Then([&] {
    EXPECT_EQ(live.Printed, "open01<c><a>close0");
    live.Printed.clear();
    live.World->Click(live.Object("Go").Id);
  });
  live.Then([] {});
  live.Then([&] {
    auto& tree = live.The<QTreeWidget>("T");
    EXPECT_EQ(live.Printed, "");
    EXPECT_TRUE(tree.topLevelItem(0)->isExpanded());
    EXPECT_EQ(tree.currentItem()->text(0), QStringLiteral("d"));
    EXPECT_EQ(tree.currentItem()->parent()->text(0), QStringLiteral("c"));
  });
  live.Run();
}

}  // namespace
}  // namespace tarnwick
