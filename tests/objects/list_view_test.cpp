#include <gtest/gtest.h>

#include "fakes/object_program.h"

namespace tarnwick::objects {
namespace {

using test::ObjectProgram;
using test::PrintedBy;

const std::string kShow =
    "DIM L AS QLISTVIEW\nSUB Show\nDIM k AS INTEGER\nFOR k = 0 TO L.ItemCount - 1\n"
    "PRINT L.Item(k).Caption; \" \";\nNEXT\nPRINT L.ItemIndex\nEND SUB\n";

TEST(ListViews, HaveItemsWithTextsForTheirColumns) {
  EXPECT_EQ(
      PrintedBy(kShow +
                "L.AddColumns \"Name\", \"Size\"\nL.AddItems \"a\", \"b\"\n"
                "L.AddSubItem 0, \"1\", \"2\"\nL.AddSubItem 0, \"3\"\nShow\n"
                "PRINT L.Item(0).SubItemCount; L.Item(0).SubItem(2); L.Item(1).SubItemCount;\n"
                "PRINT \"<\"; L.Item(1).SubItem(0); L.Item(0).SubItem(-1); \">\";\n"
                "L.Item(1).SubItem(2) = \"z\"\nL.Item(1).Caption = \"c\"\n"
                "PRINT L.Item(1).SubItemCount; L.Item(1).SubItem(2)\nShow"),
      "a b -1\n330<>3z\na c -1\n");
}

TEST(ListViews, ColumnsHaveCaptionsWidthsAndSides) {
  EXPECT_EQ(PrintedBy("DIM L AS QLISTVIEW\nL.AddColumns \"Name\", \"Size\"\n"
                      "L.Column(1).Caption = \"Bytes\": L.Column(1).Width = 90\n"
                      "L.Column(1).Alignment = 1\nPRINT L.ColumnCount; L.Column(0).Width; "
                      "L.Column(1).Caption; L.Column(1).Width; L.Column(1).Alignment"),
            "250Bytes901\n");
}

TEST(ListViews, ItemsComeAndGoAndThePickGoesWithThem) {
  EXPECT_EQ(
      PrintedBy(kShow +
                "L.AddItems \"a\", \"b\", \"c\", \"d\"\nL.ItemIndex = 2\nL.InsertItem 0, \"x\"\n"
                "Show\nL.InsertItem 5, \"y\"\nL.DelItems 1, 0, 1\nShow\nL.DelItems 1\nShow\n"
                "L.ItemIndex = 99\nShow\nL.Clear\nShow"),
      "x a b c d 3\nb c d y 1\nb d y -1\nb d y -1\n-1\n");
}

TEST(ListViews, ASortedListKeepsItsOrder) {
  EXPECT_EQ(
      PrintedBy(kShow + "L.AddItems \"b\", \"C\"\nL.SortType = 2\nL.AddItems \"a\", \"d\"\nShow"),
      "a b C d -1\n");
}

TEST(ListViews, ItemsKeepPicturesTicksAndTags) {
  EXPECT_EQ(PrintedBy("DIM L AS QLISTVIEW\nL.AddItems \"a\", \"b\"\n"
                      "PRINT L.Item(1).ImageIndex; L.Item(1).Checked;\nL.Item(1).ImageIndex = 4\n"
                      "L.Item(1).Checked = 5\nL.Item(1).Tag = 7\n"
                      "PRINT L.Item(1).ImageIndex; L.Item(1).Checked; L.Item(1).Tag"),
            "-10417\n");
}

TEST(ListViews, OneItemIsPickedOrMany) {
  EXPECT_EQ(PrintedBy("DIM L AS QLISTVIEW\nL.AddItems \"a\", \"b\", \"c\"\nPRINT L.SelCount;\n"
                      "L.Item(1).Selected = 1\nPRINT L.ItemIndex; L.Item(1).Selected; L.SelCount;\n"
                      "L.Item(1).Selected = 0\nPRINT L.ItemIndex; \" \";\nL.MultiSelect = 1\n"
                      "L.Item(0).Selected = 1: L.Item(2).Selected = 1\n"
                      "PRINT L.SelCount; L.Item(1).Selected; L.Item(2).Selected"),
            "0111-1 201\n");
}

TEST(ListViews, WhatIsNotThereIsAnError) {
  EXPECT_EQ(PrintedBy("DIM L AS QLISTVIEW\nL.AddItems \"a\"\nL.Item(1).Caption = \"x\""),
            "error: L has no item 1: it has 1, counted from 0");
  EXPECT_EQ(PrintedBy("DIM L AS QLISTVIEW\nL.Column(0).Width = 9"),
            "error: L has no column 0: it has 0, counted from 0");
  EXPECT_EQ(PrintedBy("DIM L AS QLISTVIEW\nL.DelItems -1"),
            "error: L has no item -1: it has 0, counted from 0");
  EXPECT_EQ(PrintedBy("DIM L AS QLISTVIEW\nL.AddItems \"a\"\nL.Item(0).SubItem(999) = \"x\""),
            "error: L.Item(0) can have no text 999");
}

TEST(ListViews, APickByTheUserIsAChange) {
  ObjectProgram program(
      "DIM F AS QFORM\nDIM L AS QLISTVIEW\nL.Parent = F\nL.AddItems \"a\", \"b\"\nSUB Changed\n"
      "PRINT L.ItemIndex\nEND SUB\nL.OnChange = Changed\nL.ItemIndex = 0\nF.ShowModal");
  program.Then(
      [&] { program.World->UserSet(program.Id("L"), Word::ItemIndex, Value::Integer(1)); });
  EXPECT_EQ(program.Run(), "1\n");
}

// --- Trees

const std::string kTree =
    "DIM T AS QTREEVIEW\nSUB Show\nDIM k AS INTEGER\nFOR k = 0 TO T.ItemCount - 1\n"
    "PRINT T.Item(k).Text; T.Item(k).Level; \" \";\nNEXT\nPRINT T.ItemIndex\nEND SUB\n"
    "T.AddItems \"a\", \"b\"\nT.AddChildItems 0, \"c\", \"d\"\nT.AddChildItems 1, \"e\"\n";

TEST(Trees, NodesStandBelowOthers) {
  EXPECT_EQ(PrintedBy(kTree + "Show\nPRINT T.Item(0).HasChildren; T.Item(0).Count; "
                              "T.Item(2).ParentIndex; T.Item(4).ParentIndex; T.Item(4).Count; "
                              "T.Item(4).HasChildren"),
            "a0 c1 e2 d1 b0 -1\n121-100\n");
}

TEST(Trees, NodesComeAndGoWithWhatIsBelowThem) {
  EXPECT_EQ(PrintedBy(kTree +
                      "T.ItemIndex = 4\nT.InsertItem 1, \"x\"\nShow\nT.InsertItem 6, \"y\"\nShow\n"
                      "T.DelItems 2\nShow\nT.DelItems 0\nShow\nT.Clear\nShow"),
            "a0 x1 c1 e2 d1 b0 5\na0 x1 c1 e2 d1 b0 y0 5\na0 x1 d1 b0 y0 3\nb0 y0 0\n-1\n");
}

TEST(Trees, ThePickGoesWithItsNode) {
  EXPECT_EQ(PrintedBy(kTree + "T.ItemIndex = 2\nT.DelItems 0, 1\nShow"), "b0 -1\n");
}

TEST(Trees, NodesHaveTextsPicturesAndAState) {
  EXPECT_EQ(
      PrintedBy(kTree + "T.Item(1).Caption = \"new\": T.Item(1).ImageIndex = 2\n"
                        "T.Item(1).SelectedIndex = 3: T.Item(1).Expanded = 1\n"
                        "PRINT T.Item(1).Text; T.Item(1).ImageIndex; T.Item(1).SelectedIndex; "
                        "T.Item(1).Expanded;\nT.FullExpand\nPRINT T.Item(0).Expanded;\n"
                        "T.FullCollapse\nPRINT T.Item(1).Expanded"),
      "new23110\n");
}

TEST(Trees, AFileHasATabForEachLevel) {
  ObjectProgram program(kTree +
                        "T.SaveToFile \"t.txt\"\nT.Clear\nT.LoadFromFile \"t.txt\"\nShow\n"
                        "T.LoadFromFile \"deep.txt\"\nShow");
  program.Files.Add("C:\\work\\deep.txt", "\t\ta\r\n\t\t\tb\r\n");
  EXPECT_EQ(program.Run(), "a0 c1 e2 d1 b0 -1\na0 b1 -1\n");
  EXPECT_EQ(program.Files.BytesOf("t.txt"), "a\r\n\tc\r\n\t\te\r\n\td\r\nb\r\n");
}

TEST(Trees, NodesBesideEachOtherAreSortedByText) {
  // What is picked stays picked, and what is below goes with its node.
  constexpr auto kMixed =
      "T.Clear\nT.AddItems \"m\", \"B\", \"a\"\nT.AddChildItems 0, \"z\", \"Y\"\nT.ItemIndex = 1\n";
  EXPECT_EQ(PrintedBy(std::string(kTree) + kMixed + "T.SortType = 2\nShow\nT.SortType = 3\nShow"),
            "a0 B0 m0 Y1 z1 4\na0 B0 m0 Y1 z1 4\n");
  EXPECT_EQ(PrintedBy(std::string(kTree) + "T.SortType = 1\n" + kMixed + "Show"),
            "m0 z1 Y1 B0 a0 1\n");
}

TEST(Trees, ASortedTreeStaysSorted) {
  EXPECT_EQ(PrintedBy(std::string(kTree) +
                      "T.Clear\nT.SortType = 2\nT.AddItems \"m\", \"b\", \"a\"\n"
                      "T.AddChildItems 1, \"z\", \"y\"\nT.InsertItem 0, \"c\"\nShow\n"
                      "T.Item(0).Text = \"x\"\nShow"),
            "a0 b0 y1 z1 c0 m0 -1\nb0 y1 z1 c0 m0 x0 -1\n");
  ObjectProgram program(std::string(kTree) + "T.SortType = 2\nT.LoadFromFile \"mixed.txt\"\nShow");
  program.Files.Add("C:\\work\\mixed.txt", "b\r\n\td\r\n\tc\r\na\r\n");
  EXPECT_EQ(program.Run(), "a0 b0 c1 d1 -1\n");
}

TEST(Trees, LevelsHaveTheirLimit) {
  EXPECT_EQ(PrintedBy("DIM T AS QTREEVIEW\nT.AddItems \"0\"\nFOR k = 0 TO 998\n"
                      "T.AddChildItems k, STR$(k)\nNEXT\nPRINT T.Item(999).Level\n"
                      "T.AddChildItems 999, \"x\""),
            "999\nerror: T: nodes can stand 1000 levels deep at most");
}

TEST(Trees, WhatIsNotThereIsAnError) {
  EXPECT_EQ(PrintedBy(kTree + "PRINT T.Item(5).Text"),
            "error: T has no item 5: it has 5, counted from 0");
  EXPECT_EQ(PrintedBy(kTree + "T.AddChildItems -1, \"x\""),
            "error: T has no item -1: it has 5, counted from 0");
  EXPECT_EQ(PrintedBy(kTree + "T.InsertItem 6, \"x\""),
            "error: T has no item 6: it has 5, counted from 0");
}

TEST(Trees, ANodeObjectStandsForItsIndex) {
  EXPECT_EQ(
      PrintedBy(kTree + "T.Item(4).Tag = 9\nT.DelItems 1\nPRINT T.Item(2).Tag; T.Item(2).Text"),
      "0b\n");
}

}  // namespace
}  // namespace tarnwick::objects
