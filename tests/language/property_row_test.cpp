#include "language/property_row.h"

#include <gtest/gtest.h>

namespace tarnwick::language {
namespace {

using Values = std::vector<std::string>;

TEST(PropertyRow, IsNameMarkAndValues) {
  const PropertyRow row = ParsePropertyRow(
      "Align\x9E"
      "alNone\x8B"
      "alTop");
  EXPECT_EQ(row, (PropertyRow{"Align", row_mark::kList, {"alNone", "alTop"}}));
}

TEST(PropertyRow, WithoutAMarkIsItsName) {
  EXPECT_EQ(ParsePropertyRow("Caption"), (PropertyRow{"Caption", row_mark::kText, {}}));
  EXPECT_EQ(NameLengthOf("Caption"), 7U);
  EXPECT_EQ(NameLengthOf(""), 0U);
}

// 0x9A, 0x9C, 0x9E and 0x9F are letters with another case; as marks they are bytes.
TEST(PropertyRow, MarksThatAreLettersAreNotFolded) {
  EXPECT_EQ(ParsePropertyRow("font\x9A").Mark, row_mark::kFont);
  EXPECT_EQ(ParsePropertyRow("font\x8A").Mark, 0x8A);
  EXPECT_EQ(ParsePropertyRow("color\x9C").Mark, row_mark::kColorToo);
  EXPECT_EQ(ParsePropertyRow("color\x8C").Mark, 0x8C);
  EXPECT_EQ(ParsePropertyRow("align\x9Ex").Mark, row_mark::kList);
  EXPECT_EQ(ParsePropertyRow("additems\x9F").Mark, row_mark::kItems);
  EXPECT_EQ(ParsePropertyRow("additems\xFF").Mark, 0xFF);
}

TEST(PropertyRow, AListWithoutValuesIsEmpty) {
  EXPECT_TRUE(ParsePropertyRow("Parent\x9E").Values.empty());
}

TEST(PropertyRow, TrueAndFalseHaveTheirTwoValues) {
  EXPECT_EQ(ParsePropertyRow("Enabled\x97").Values, (Values{"False", "True"}));
}

}  // namespace
}  // namespace tarnwick::language
