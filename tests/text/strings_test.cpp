#include "text/strings.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Pieces = std::vector<std::string_view>;

TEST(Strings, TrimTakesBlanksOffBothEnds) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(TrimLeft("  a b  "), "a b  ");
  EXPECT_EQ(TrimRight("  a b  "), "  a b");
}

TEST(Strings, TrimLeavesTabsLineEndsAndHardBlanks) {
  EXPECT_EQ(Trim(" \ta\r\n "), "\ta\r\n");
  EXPECT_EQ(Trim("\xA0x\xA0"), "\xA0x\xA0");
}

TEST(Strings, TrimOfNothingOrBlanksIsEmpty) {
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(TrimLeft("   "), "");
  EXPECT_EQ(TrimRight("   "), "");
}

TEST(Strings, OnlyBlanksAreBlank) {
  EXPECT_TRUE(IsBlank(""));
  EXPECT_TRUE(IsBlank("  "));
  EXPECT_FALSE(IsBlank(" \t"));
}

TEST(Strings, SplitKeepsEmptyPieces) {
  EXPECT_EQ(Split(",a,,b,", ","), (Pieces{"", "a", "", "b", ""}));
}

TEST(Strings, SplitOfEmptyTextIsOneEmptyPiece) {
  EXPECT_EQ(Split("", ","), (Pieces{""}));
}

TEST(Strings, SplitTakesLongSeparatorsFromTheLeft) {
  EXPECT_EQ(Split("a\r\nb\r\n\r\n", "\r\n"), (Pieces{"a", "b", "", ""}));
  EXPECT_EQ(Split("---a", "--"), (Pieces{"", "-a"}));
}

TEST(Strings, AnEmptySeparatorSeparatesNothing) {
  EXPECT_EQ(Split("abc", ""), (Pieces{"abc"}));
}

TEST(Strings, JoinPutsSeparatorsBetween) {
  EXPECT_EQ(Join({"a", "", "b"}, "#"), "a##b");
  EXPECT_EQ(Join({"a"}, "#"), "a");
  EXPECT_EQ(Join({}, "#"), "");
}

TEST(Strings, ReplaceAllIsOnePassFromTheLeft) {
  EXPECT_EQ(ReplaceAll("aaa", "aa", "a"), "aa");
  EXPECT_EQ(ReplaceAll("a.b.c", ".", ".."), "a..b..c");
  EXPECT_EQ(ReplaceAll("abc", "b", ""), "ac");
  EXPECT_EQ(ReplaceAll("abc", "x", "y"), "abc");
}

TEST(Strings, ReplaceAllOfNothingChangesNothing) {
  EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
}

TEST(Strings, ReplaceByteWorksInPlace) {
  std::string text = "a,b,c";
  ReplaceByte(text, ',', '\x8D');
  EXPECT_EQ(text,
            "a\x8D"
            "b\x8D"
            "c");
}

TEST(Strings, ContainsLooksAtExactBytes) {
  EXPECT_TRUE(Contains("Form1.Show", ".Show"));
  EXPECT_FALSE(Contains("Form1.Show", ".show"));
  EXPECT_TRUE(Contains("x", ""));
}

TEST(Strings, ArrayFormAndStem) {
  EXPECT_TRUE(IsArrayForm("Cmd(3)"));
  EXPECT_FALSE(IsArrayForm("Cmd3"));
  EXPECT_EQ(ArrayStem("Cmd(3)"), "Cmd");
  EXPECT_EQ(ArrayStem("Cmd3"), "Cmd3");
  EXPECT_EQ(ArrayStem("(3)"), "");
}

TEST(Strings, WithoutDigitsTakesAllDigits) {
  EXPECT_EQ(WithoutDigits("Button12"), "Button");
  EXPECT_EQ(WithoutDigits("1a2b3"), "ab");
  EXPECT_EQ(WithoutDigits("007"), "");
}

}  // namespace
}  // namespace tarnwick
