// Rows whose text is a number: places, sizes, orders and colours.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sheet_bench.h"

namespace tarnwick {
namespace {

TEST(RowNumbers, EachKeystrokeInANumberRowApplies) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Width"));
  EXPECT_TRUE(bench.Sheet.ApplyText("1"));
  EXPECT_EQ(button->Width, 15.0F);
  EXPECT_TRUE(bench.Sheet.ApplyText("12"));
  EXPECT_EQ(button->Width, 180.0F);
  EXPECT_TRUE(bench.Sheet.ApplyText("120"));
  EXPECT_EQ(button->Width, 1800.0F);
}

TEST(RowNumbers, NumbersAreReadByTheirLeadingDigits) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Type("Left", "12abc");
  EXPECT_EQ(button->Left, 180.0F);
  bench.Type("Left", "abc");
  EXPECT_EQ(button->Left, 0.0F);
}

TEST(RowNumbers, WidthOfAFormIsInPixelsAndItsWindowInTwips) {
  SheetBench bench;
  bench.Pick(nullptr);
  EXPECT_TRUE(bench.Type("Width", "200"));
  EXPECT_EQ(bench.Record().Width, 200);
  EXPECT_EQ(bench.Form().Width, 3000.0F);
  EXPECT_TRUE(bench.Logged("form 1"));
}

TEST(RowNumbers, LeftAndTopOfAFormAreTheProgramsAlone) {
  SheetBench bench;
  bench.Pick(nullptr);
  bench.Form().Left = 45;
  bench.Type("Left", "120");
  EXPECT_EQ(bench.Record().Left, 120);
  EXPECT_EQ(bench.Form().Left, 45.0F);
}

TEST(RowNumbers, ATransparentFramesPlaceGoesToItsFieldAndMovesTheControl) {
  SheetBench bench;
  const ControlRef frame = bench.Make(Kind::TransparentFrame);
  bench.Type("Left", "33");
  bench.Type("Height", "44");
  EXPECT_EQ(bench.Record().TfLeft, 33);
  EXPECT_EQ(frame->Left, 495.0F);
  EXPECT_EQ(bench.Record().TfHeight, 44);
  EXPECT_EQ(frame->Height, 660.0F);
}

TEST(RowNumbers, ValuesThatAPlaceRefusesAreDroppedAndTheTextStays) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  EXPECT_FALSE(bench.Type("TabOrder", "40000"));
  EXPECT_EQ(bench.Record().Buttons.At(1)->TabOrder, 0);
  EXPECT_EQ(bench.Text("TabOrder"), "40000");
  EXPECT_FALSE(bench.Type("Width", "-5"));
  EXPECT_EQ(button->Width, 75 * 15.0F);
  bench.Sheet.ShowSelection();
  EXPECT_EQ(bench.Text("TabOrder"), "0");
  EXPECT_EQ(bench.Text("Width"), "75");
  bench.Pick(nullptr);
  EXPECT_FALSE(bench.Type("Height", "70000"));
  EXPECT_EQ(bench.Record().Height, 333);
  EXPECT_EQ(bench.Form().Height, 5000.0F);
}

TEST(RowNumbers, SyncRowBringsTheFormsSizeFromItsWindow) {
  SheetBench bench;
  bench.Pick(nullptr);
  bench.Form().Width = 3000;
  bench.Form().Left = 990;
  bench.Sheet.SyncRow("Form", "width");
  bench.Sheet.SyncRow("Form", "left");
  EXPECT_EQ(bench.Record().Width, 200);
  EXPECT_EQ(bench.Record().Left, 0);
  EXPECT_EQ(bench.Text("Width"), "200");
}

TEST(RowNumbers, SyncRowBringsAFramesPlaceFromItsControl) {
  SheetBench bench;
  const ControlRef frame = bench.Make(Kind::TransparentFrame);
  frame->Left = 300;
  frame->Top = 457;
  bench.Sheet.SetPanelVisible(false);
  bench.Sheet.SyncRow("TransparentFrame", "left");
  bench.Sheet.SyncRow("TransparentFrame", "top");
  EXPECT_EQ(bench.Record().TfLeft, 20);
  EXPECT_EQ(bench.Record().TfTop, 30);
}

TEST(RowNumbers, SyncRowOfOtherObjectsHasNothingToBring) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  button->Left = 300;
  bench.Sheet.SyncRow("Button1", "left");
  bench.Sheet.SyncRow("Label1", "left");
  bench.Sheet.SyncRow("", "left");
  EXPECT_EQ(button->Left, 300.0F);
}

TEST(RowNumbers, SyncRowWithNothingToBringLeavesTheTextThatIsBeingTyped) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Type("Left", "12abc");
  bench.Sheet.SyncRow("Button1", "left");
  EXPECT_EQ(bench.Text("Left"), "12abc");
}

TEST(RowNumbers, SyncRowOfASelectionRowStoresTheSharedChoice) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Choose("Cursor", 7);
  const ControlRef label = bench.Make(Kind::Label);
  bench.Sheet.SyncRow("Label1", "cursor");
  EXPECT_EQ(bench.Record().Labels.At(1)->Cursor, 7);
  EXPECT_EQ(bench.Text("Cursor"), "crSizeNS");
}

TEST(RowNumbers, ATypedTabOrderGoesToTheRecord) {
  SheetBench bench;
  bench.Make(Kind::Button);
  EXPECT_TRUE(bench.Type("TabOrder", "5"));
  EXPECT_EQ(bench.Record().Buttons.At(1)->TabOrder, 5);
}

// What a row shows is what is stored.

TEST(RowNumbers, ANumberThatIsRefusedPutsBackTheValueBeforeIt) {
  struct Case {
    Kind On;
    const char* Row;
    std::vector<const char*> Keys;
  };
  for (const Case& c :
       {Case{Kind::Button, "TabOrder", {"7", "70", "700", "7000", "70000"}},
        Case{Kind::Button, "FontColor", {"429496729", "4294967296"}},
        Case{Kind::Button, "Width", {"-", "-5"}}, Case{Kind::Form, "Height", {"7000", "70000"}},
        Case{Kind::Time, "Interval", {"4000", "40000"}},
        Case{Kind::TransparentFrame, "Width", {"4000", "40000"}}}) {
    SheetBench bench;
    bench.MakeOrForm(c.On);
    const std::string before = bench.Text(c.Row);
    bench.Sheet.SelectRow(bench.RowOf(c.Row));
    for (const char* text : c.Keys) bench.Sheet.ApplyText(text);
    EXPECT_EQ(bench.Text(c.Row), c.Keys.back()) << c.Row;
    bench.Sheet.LeaveRow();
    EXPECT_EQ(bench.Text(c.Row), before) << c.Row;
    bench.Sheet.ShowSelection();
    EXPECT_EQ(bench.Text(c.Row), before) << c.Row;
  }
}

TEST(RowNumbers, ANumberThatIsCorrectedAfterARefusalIsStored) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("TabOrder"));
  EXPECT_FALSE(bench.Sheet.ApplyText("70000"));
  EXPECT_TRUE(bench.Sheet.ApplyText("700"));
  EXPECT_EQ(bench.Record().Buttons.At(1)->TabOrder, 700);
}

TEST(RowNumbers, AnEmptiedNumberRowAndASignAloneApplyNothing) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  for (const char* text : {"", "-", "+", ".", " "}) {
    EXPECT_FALSE(bench.Type("Width", text)) << text;
    EXPECT_EQ(button->Width, 75 * 15.0F) << text;
  }
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  EXPECT_EQ(bench.Text("Width"), "75");
}

TEST(RowNumbers, EditsOfPlaceAndSizeMoveTheHandles) {
  for (const char* row : {"Left", "Top", "Width", "Height"}) {
    SheetBench bench;
    bench.Make(Kind::Button);
    bench.Fakes.Log.Clear();
    bench.Type(row, "40");
    EXPECT_TRUE(bench.Logged("place 1")) << row;
  }
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Fakes.Log.Clear();
  bench.Type("Caption", "40");
  bench.Pick(nullptr);
  bench.Type("Width", "400");
  EXPECT_EQ(bench.Fakes.Log.Count("place"), 0U);
}

}  // namespace
}  // namespace tarnwick
