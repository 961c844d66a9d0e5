#include "inspector/form_add_items.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sheet_bench.h"

namespace tarnwick {
namespace {

using Rows = std::vector<std::string>;

struct ItemsBench : SheetBench {
  FormAddItems Open() { return FormAddItems{Tables, Observer, Steps, Form()}; }
};

TEST(FormAddItems, ItemsOpenOneALine) {
  ItemsBench bench;
  bench.Make(Kind::ListBox);
  bench.Record().ListBoxes.At(1)->Items = "one\x95two\x95";
  EXPECT_EQ(bench.Open().TextAdd(), "one\r\ntwo\r\n");
}

TEST(FormAddItems, AListWithoutMarksOpensAsCommaSeparated) {
  ItemsBench bench;
  bench.Make(Kind::ComboBox);
  bench.Record().ComboBoxes.At(1)->Items = "one,two";
  EXPECT_EQ(bench.Open().TextAdd(), "one\r\ntwo\r\n");
}

TEST(FormAddItems, OkStoresTheLinesInTheRecordAndOnTheControl) {
  ItemsBench bench;
  const ControlRef list = bench.Make(Kind::ListBox);
  EXPECT_TRUE(bench.Open().Ok("one\r\ntwo, three"));
  EXPECT_EQ(bench.Record().ListBoxes.At(1)->Items, "one\x95two, three\x95");
  EXPECT_EQ(list->Items, (Rows{"one", "two, three"}));
  EXPECT_TRUE(bench.Logged("controls 1"));
}

TEST(FormAddItems, ATextThatEndsInALineEndGetsNoFurtherItem) {
  ItemsBench bench;
  const ControlRef combo = bench.Make(Kind::ComboBox);
  EXPECT_TRUE(bench.Open().Ok("one\ntwo\r\n"));
  EXPECT_EQ(bench.Record().ComboBoxes.At(1)->Items, "one\x95two\x95");
  EXPECT_EQ(combo->Items, (Rows{"one", "two"}));
}

TEST(FormAddItems, OneItemWithCommasStaysOneItem) {
  ItemsBench bench;
  const ControlRef list = bench.Make(Kind::ListBox);
  bench.Open().Ok("a,b");
  EXPECT_EQ(list->Items, Rows{"a,b"});
  EXPECT_EQ(bench.Open().TextAdd(), "a,b\r\n");
}

TEST(FormAddItems, AnEmptyTextStoresNothing) {
  ItemsBench bench;
  const ControlRef list = bench.Make(Kind::ListBox);
  bench.Open().Ok("x");
  EXPECT_TRUE(bench.Open().Ok(""));
  EXPECT_EQ(bench.Record().ListBoxes.At(1)->Items, "");
  EXPECT_TRUE(list->Items.empty());
}

TEST(FormAddItems, TheRecordIsThatOfTheSelectedKindAndIndex) {
  ItemsBench bench;
  bench.Make(Kind::ListBox);
  bench.Make(Kind::ComboBox);
  bench.Make(Kind::ListBox);
  bench.Open().Ok("x");
  EXPECT_EQ(bench.Record().ListBoxes.At(1)->Items, "");
  EXPECT_EQ(bench.Record().ListBoxes.At(2)->Items, "x\x95");
  EXPECT_EQ(bench.Record().ComboBoxes.At(1)->Items, "");
}

TEST(FormAddItems, OpeningAndOkLeaveTheItemsAsTheyAre) {
  ItemsBench bench;
  bench.Make(Kind::ListBox);
  for (const char* items : {"", "one\x95", "one\x95\x95two\x95", "\x95"}) {
    bench.Record().ListBoxes.At(1)->Items = items;
    FormAddItems dialog = bench.Open();
    dialog.Ok(dialog.TextAdd());
    EXPECT_EQ(bench.Record().ListBoxes.At(1)->Items, items);
  }
}

TEST(FormAddItems, BytesThatTheStoredListUsesAreQuestionMarks) {
  ItemsBench bench;
  const ControlRef list = bench.Make(Kind::ListBox);
  EXPECT_EQ(FormAddItems::Storable("a\x95"
                                   "b\x8C"
                                   "c\xA0"),
            "a?b?c\xA0");
  bench.Open().Ok(
      "a\x95"
      "b\r\n\x8C");
  EXPECT_EQ(list->Items, (Rows{"a?b", "?"}));
}

TEST(FormAddItems, AnObjectThatIsGoneTakesNothing) {
  ItemsBench bench;
  bench.Pick(nullptr);
  EXPECT_FALSE(bench.Open().Ok("x"));
  EXPECT_EQ(bench.Record().ComboBoxes.UBound(), 0);
}

}  // namespace
}  // namespace tarnwick
