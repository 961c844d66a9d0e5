#include <gtest/gtest.h>

#include "fakes/object_program.h"

namespace tarnwick::objects {
namespace {

using test::ObjectProgram;
using test::PrintedBy;

TEST(Lists, EntriesAreAddedInsertedReplacedAndTakenOut) {
  EXPECT_EQ(PrintedBy("DIM L AS QLISTBOX\nL.AddItems \"a\", \"b\", \"c\", \"d\"\n"
                      "L.InsertItem(1, \"x\")\nL.DelItems 0, 3\nL.Item(0) = \"y\"\n"
                      "PRINT L.ItemCount; L.Item(0); L.Item(1); L.Item(2)"),
            "3ybd\n");
}

TEST(Lists, AnIndexOutsideIsAnErrorThatNamesTheBounds) {
  EXPECT_EQ(PrintedBy("DIM L AS QLISTBOX\nL.AddItems \"a\"\nPRINT L.Item(1)"),
            "error: L has no entry 1: it has 1, counted from 0");
  EXPECT_EQ(PrintedBy("DIM L AS QLISTBOX\nL.DelItems 0"),
            "error: L has no entry 0: it has 0, counted from 0");
  EXPECT_EQ(PrintedBy("DIM L AS QLISTBOX\nL.InsertItem(2, \"a\")"),
            "error: L: an entry can be inserted at 0 to 0, not at 2");
}

TEST(Lists, ASortedListKeepsItsOrderWithoutRegardToCase) {
  EXPECT_EQ(
      PrintedBy("DIM L AS QLISTBOX\nL.AddItems \"b\", \"C\", \"a\"\nL.Sorted = 1\n"
                "L.AddItems \"B2\"\nDIM i AS INTEGER\nFOR i = 0 TO 3\nPRINT L.Item(i);\nNEXT"),
      "abB2C");
}

TEST(Lists, ThePickedEntryStaysPickedWhenOthersMove) {
  EXPECT_EQ(
      PrintedBy("DIM L AS QLISTBOX\nL.AddItems \"a\", \"b\", \"c\"\nL.ItemIndex = 1\n"
                "L.InsertItem(0, \"x\")\nPRINT L.ItemIndex;\nL.DelItems 0\nPRINT L.ItemIndex;\n"
                "L.DelItems 1\nPRINT L.ItemIndex;\nL.ItemIndex = 9\nPRINT L.ItemIndex"),
      "21-1-1\n");
}

TEST(Lists, OnlyTheUserRaisesOnClick) {
  ObjectProgram program(
      "DIM F AS QFORM, L AS QLISTBOX\nL.Parent = F\nL.AddItems \"a\", \"b\"\n"
      "SUB Picked\nPRINT \"picked\"; L.ItemIndex\nEND SUB\nL.OnClick = Picked\n"
      "L.ItemIndex = 0\nF.ShowModal");
  program.Then(
      [&] { program.World->UserSet(program.Id("L"), Word::ItemIndex, Value::Integer(1)); });
  EXPECT_EQ(program.Run(), "picked1\n");
}

TEST(Lists, SelectedCountsManyOnlyWithMultiSelect) {
  EXPECT_EQ(PrintedBy("DIM L AS QLISTBOX\nL.AddItems \"a\", \"b\", \"c\"\nL.ItemIndex = 1\n"
                      "PRINT L.Selected(1); L.SelCount;\nL.MultiSelect = 1\nL.Selected(0) = 1\n"
                      "L.Selected(2) = 1\nPRINT L.Selected(1); L.SelCount"),
            "1102\n");
}

TEST(Lists, AreReadFromAndWrittenToFiles) {
  ObjectProgram program(
      "DIM L AS QLISTBOX\nL.AddItems \"one\", \"two\"\nL.SaveToFile(\"l.txt\")\n"
      "L.Clear\nL.LoadFromFile(\"l.txt\")\nPRINT L.ItemCount; L.Item(1)\n"
      "L.LoadFromFile(\"gone.txt\")\nPRINT L.ItemCount");
  EXPECT_EQ(program.Run(), "2two\n2\n");
  ASSERT_EQ(program.Result.Notes.size(), 1U);
  EXPECT_EQ(program.Result.Notes[0].Text, "L: the file gone.txt cannot be read");
}

TEST(Lists, ADropDownListShowsThePickedEntryAndSaysSoOnlyForTheUser) {
  ObjectProgram program(
      "DIM F AS QFORM, C AS QCOMBOBOX\nC.Parent = F\nC.AddItems \"red\", \"blue\"\n"
      "SUB Changed\nPRINT C.Text; C.ItemIndex\nEND SUB\nC.OnChange = Changed\n"
      "C.ItemIndex = 0\nPRINT C.Text\nF.ShowModal");
  program.Then(
      [&] { program.World->UserSet(program.Id("C"), Word::ItemIndex, Value::Integer(1)); });
  program.Then([&] { program.World->UserSet(program.Id("C"), Word::Text, Value::Text("re")); });
  program.Then([&] { program.World->UserSet(program.Id("C"), Word::Text, Value::Text("red")); });
  EXPECT_EQ(program.Run(), "red\nblue1\nre-1\nred0\n");
}

TEST(Lists, AStringListHasOneText) {
  EXPECT_EQ(PrintedBy("DIM S AS QSTRINGLIST\nS.Text = \"b\" + CHR$(10) + \"a\"\nS.AddItems \"c\"\n"
                      "S.Sort\nPRINT S.ItemCount; S.Item(0); S.IndexOf(\"C\"); S.IndexOf(\"x\");\n"
                      "PRINT LEN(S.Text)"),
            "3a2-19\n");
}

TEST(Lists, ShownListsHearOfEveryChange) {
  ObjectProgram program(
      "DIM F AS QFORM, L AS QLISTBOX\nL.Parent = F\nL.AddItems \"a\"\nF.Show\n"
      "L.AddItems \"b\"\nL.Item(0) = \"c\"\nL.DelItems 0\nL.Clear");
  program.Run();
  EXPECT_EQ(program.Widgets.Log,
            "realise F\nrealise L\napply F.Visible = 1\nitems L inserted 1 1\n"
            "items L replaced 0 1\nitems L removed 0 1\nitems L all 0 0\n");
}

TEST(Lists, GridsKeepTheirCells) {
  EXPECT_EQ(
      PrintedBy("DIM G AS QSTRINGGRID\nG.Cell(1, 2) = \"x\"\nG.InsertRow(0)\n"
                "PRINT G.RowCount; G.Cell(1, 3); G.Cell(1, 2);\nG.DeleteRow(1)\n"
                "PRINT G.Cell(1, 2); G.ColWidths(0);\nG.ColWidths(0) = 9\nPRINT G.ColWidths(0)"),
      "6xx649\n");
  EXPECT_EQ(PrintedBy("DIM G AS QSTRINGGRID\nG.Cell(5, 0) = \"x\""),
            "error: G has no cell (5, 0): it has 5 columns and 5 rows");
}

}  // namespace
}  // namespace tarnwick::objects
