// What the property sheet keeps and forgets between selections.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sheet_bench.h"

namespace tarnwick {
namespace {

TEST(SheetState, WithoutASelectedRowThereIsNoHelp) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  EXPECT_NE(bench.Sheet.Help(), "");
  bench.Sheet.ClearPanel();
  EXPECT_EQ(bench.Sheet.Help(), "");
}

TEST(SheetState, RowsOfAKindThatIsNotSelectedTakeNoEdit) {
  SheetBench bench;
  bench.Make(Kind::Button);
  const ControlRef label = bench.Make(Kind::Label);
  bench.Sheet.ShowProperties("Button1", "Form1Btn1");
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  EXPECT_FALSE(bench.Sheet.ApplyText("late"));
  EXPECT_EQ(label->Caption, "Form1Label1");
}

TEST(SheetState, AnEmptiedPanelHasNoNameNoHeadRowAndTakesNoEdit) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  bench.Sheet.ClearPanelAndCombo();
  EXPECT_EQ(bench.Sheet.SelName(), "");
  EXPECT_EQ(bench.Sheet.Combo().Selected(), -1);
  EXPECT_FALSE(bench.Sheet.HasSelectedRow());
  EXPECT_FALSE(bench.Sheet.ApplyText("late"));
  EXPECT_EQ(button->Caption, "Form1Btn1");
}

TEST(SheetState, ItalicIsPartOfTheFontOfARow) {
  SheetBench bench;
  bench.Make(Kind::Button)->FontItalic = true;
  EXPECT_TRUE(bench.Sheet.RowFont(bench.RowOf("Font"))->Italic);
}

TEST(SheetState, ANewSelectionEndsTheStayInARow) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Type("Caption", "Go");
  bench.Sheet.ClearPanel();
  EXPECT_EQ(bench.Steps.Size(), 1U);
  EXPECT_EQ(button->Caption, "Go");
}

TEST(SheetState, AChoiceThatIsPickedNotifiesTheViewOfItsRow) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Cursor"));
  bench.Sheet.ApplyText("crCross");
  bench.View.Texts.clear();
  EXPECT_TRUE(bench.Sheet.ApplyChoice("crCross", 3));
  EXPECT_EQ(bench.View.Texts, std::vector<int>{bench.RowOf("Cursor")}) << "its note may differ";
}

}  // namespace
}  // namespace tarnwick
