#include "language/word_at.h"

#include <gtest/gtest.h>

namespace tarnwick::language {
namespace {

TEST(WordAt, IsTheNameThatTheCaretTouches) {
  EXPECT_EQ(WordAt("Dim Total As", 8), "Total");
  EXPECT_EQ(WordAt("Dim Total As", 4), "Total");
  EXPECT_EQ(WordAt("Dim Total As", 9), "Total");
  EXPECT_EQ(WordAt("Dim Total As", 3), "Dim");
}
TEST(WordAt, IsEmptyBetweenBlanks) {
  EXPECT_EQ(WordAt("a  b", 2), "");
  EXPECT_EQ(WordAt("", 0), "");
  EXPECT_EQ(WordAt("Dim a As ", 9), "");
}
TEST(WordAt, EndsAtSuffixesBracketsAndQuotes) {
  EXPECT_EQ(WordAt("Name$", 2), "Name");
  EXPECT_EQ(WordAt("Count%", 5), "Count");
  EXPECT_EQ(WordAt("Left(Name", 9), "Name");
  EXPECT_EQ(WordAt("\"abc", 4), "abc");
  EXPECT_EQ(WordAt("a'b", 3), "b");
}
TEST(WordAt, TakesTheDotThatEndsTheTextBeforeTheCaret) {
  EXPECT_EQ(WordAt("Button1.", 8), "Button1.");
  EXPECT_EQ(WordAt("Form1.Button1.", 14), "Button1.");
  EXPECT_EQ(WordAt("Button1.Caption", 8), "Button1.");
  EXPECT_EQ(WordAt("f().", 4), ".");
}
TEST(WordAt, BehindTheDotIsTheLastPartAlone) {
  EXPECT_EQ(WordAt("Button1.Ca", 10), "Ca");
}
TEST(WordAt, KeepsTheUnderscoreOfAProcedureName) {
  EXPECT_EQ(WordAt("Sub Button1_", 12), "Button1_");
}
TEST(WordAt, ACaretBehindTheLineCountsAsItsEnd) {
  EXPECT_EQ(WordAt("abc", 99), "abc");
}

}  // namespace
}  // namespace tarnwick::language
