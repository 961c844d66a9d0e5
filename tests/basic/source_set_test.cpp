#include "basic/source/source_set.h"

#include <gtest/gtest.h>

#include "basic/source_text.h"

namespace tarnwick::basic {
namespace {

std::vector<std::string_view> LinesOf(const SourceSet& set) {
  std::vector<std::string_view> lines;
  for (LineWalk walk(set.File(0).Bytes); !walk.AtEnd();) lines.push_back(walk.Next());
  return lines;
}

TEST(SourceSet, LinesEndWithCrLfLfOrCr) {
  SourceSet set;
  set.Add("a.bas", "one\r\ntwo\nthree\rfour\n\rsix");
  EXPECT_EQ(LinesOf(set),
            (std::vector<std::string_view>{"one", "two", "three", "four", "", "six"}));
}
TEST(SourceSet, SeveralCarriageReturnsInARowEndSeveralLines) {
  SourceSet set;
  set.Add("a.bas", "one\r\r\n\n\rtwo\r\r");
  EXPECT_EQ(LinesOf(set), (std::vector<std::string_view>{"one", "", "", "", "two", ""}));
}
TEST(SourceSet, ALineEndAtTheEndOfAFileBeginsNoFurtherLine) {
  for (const char* const text : {"one\n", "one\r", "one\r\n", "one"}) {
    SourceSet set;
    set.Add("a.bas", text);
    EXPECT_EQ(LinesOf(set), (std::vector<std::string_view>{"one"})) << text;
  }
}
TEST(SourceSet, AnEmptyFileHasNoLines) {
  SourceSet set;
  set.Add("a.bas", "");
  EXPECT_TRUE(LinesOf(set).empty());
  EXPECT_EQ(set.LineAt({1, 0, 1, 1}), "");
}
TEST(SourceSet, GivesTheLineOfAPlace) {
  SourceSet set;
  set.Add("a.bas", "one\r\ntwo");
  EXPECT_EQ(set.LineAt({2, 0, 1, 1}), "two");
  EXPECT_EQ(set.LineAt({3, 0, 1, 1}), "");
  EXPECT_EQ(set.LineAt({0, 0, 1, 1}), "");
  EXPECT_EQ(set.LineAt({1, 7, 1, 1}), "");
}
TEST(SourceSet, LooksForAnIncludeWhereItsPathPoints) {
  test::MemorySources sources;
  sources.Files = {{"D:\\x\\a.inc", "1"}, {"C:\\P\\a.inc", "2"}, {"C:\\W\\a.inc", "3"}};
  SourceSet set;
  set.Add("C:\\W\\main.bas", "");
  const auto file = set.Include(sources, "D:\\x\\a.inc", "C:\\P", 0);
  ASSERT_TRUE(file);
  EXPECT_EQ(set.File(*file).Bytes, "1");
}
TEST(SourceSet, LooksForAnIncludeInTheProgramFolderNext) {
  test::MemorySources sources;
  sources.Files = {{"C:\\P\\a.inc", "2"}, {"C:\\W\\a.inc", "3"}};
  SourceSet set;
  set.Add("C:\\W\\main.bas", "");
  const auto file = set.Include(sources, "D:\\x\\a.inc", "C:\\P", 0);
  ASSERT_TRUE(file);
  EXPECT_EQ(set.File(*file).Path, "C:\\P\\a.inc");
}
TEST(SourceSet, LooksForAnIncludeBesideTheSourceLast) {
  test::MemorySources sources;
  sources.Files = {{"C:\\W\\a.inc", "3"}, {"C:\\W\\sub\\b.inc", "4"}};
  SourceSet set;
  set.Add("C:\\W\\main.bas", "");
  EXPECT_TRUE(set.Include(sources, "a.inc", "C:\\P", 0));
  EXPECT_TRUE(set.Include(sources, "sub\\b.inc", "", 0));
  EXPECT_FALSE(set.Include(sources, "c.inc", "C:\\P", 0));
}
TEST(SourceSet, TheOwnIncludeFileStandsInForThatOfTheLanguage) {
  test::MemorySources sources;
  sources.Files = {{"C:\\P\\Tarnwick1.lib", "own"}};
  SourceSet set;
  set.Add("C:\\W\\main.bas", "");
  const auto file = set.Include(sources, "RapidQ.inc", "C:\\P", 0);
  ASSERT_TRUE(file);
  EXPECT_EQ(set.File(*file).Bytes, "own");
  EXPECT_FALSE(set.Include(sources, "other.inc", "C:\\P", 0));
}
TEST(SourceSet, TheIncludeFileOfTheLanguageIsTakenWhereItIsThere) {
  test::MemorySources sources;
  sources.Files = {{"C:\\P\\Tarnwick1.lib", "own"}, {"C:\\W\\rapidq.inc", "theirs"}};
  SourceSet set;
  set.Add("C:\\W\\main.bas", "");
  const auto file = set.Include(sources, "rapidq.inc", "C:\\P", 0);
  ASSERT_TRUE(file);
  EXPECT_EQ(set.File(*file).Bytes, "theirs");
}

}  // namespace
}  // namespace tarnwick::basic
