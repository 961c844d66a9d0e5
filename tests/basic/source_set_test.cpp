#include "basic/source/source_set.h"

#include <gtest/gtest.h>

#include "fakes/source_text.h"

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

/// Includes of C:\W\main.bas, with the program folder C:\P.
class Includes : public testing::Test {
 protected:
  Includes() { set.Add("C:\\W\\main.bas", ""); }

  /// The path and the bytes of the file that is taken, parted by "="; "" for none.
  std::string Taken(std::string_view name) {
    const auto file = set.Include(sources, name, "C:\\P", 0);
    return file ? set.File(*file).Path + "=" + set.File(*file).Bytes : "";
  }

  test::MemorySources sources;
  SourceSet set;
};

TEST_F(Includes, AreLookedForWhereTheirPathPoints) {
  sources.Files = {{"D:\\x\\a.inc", "1"}, {"C:\\P\\a.inc", "2"}, {"C:\\W\\a.inc", "3"}};
  EXPECT_EQ(Taken("D:\\x\\a.inc"), "D:\\x\\a.inc=1");
}

TEST_F(Includes, AreLookedForInTheProgramFolderNext) {
  sources.Files = {{"C:\\P\\a.inc", "2"}, {"C:\\W\\a.inc", "3"}};
  EXPECT_EQ(Taken("D:\\x\\a.inc"), "C:\\P\\a.inc=2");
}

TEST_F(Includes, AreLookedForBesideTheSourceLast) {
  sources.Files = {{"C:\\W\\a.inc", "3"}, {"C:\\W\\sub\\b.inc", "4"}};
  EXPECT_EQ(Taken("a.inc"), "C:\\W\\a.inc=3");
  EXPECT_TRUE(set.Include(sources, "sub\\b.inc", "", 0));
  EXPECT_EQ(Taken("c.inc"), "");
}

TEST_F(Includes, TheOwnIncludeFileStandsInForThatOfTheLanguage) {
  sources.Files = {{"C:\\P\\Tarnwick1.lib", "own"}};
  EXPECT_TRUE(Taken("RapidQ.inc").ends_with("=own"));
  EXPECT_EQ(Taken("other.inc"), "");
}

TEST_F(Includes, TheIncludeFileOfTheLanguageIsTakenWhereItIsThere) {
  sources.Files = {{"C:\\P\\Tarnwick1.lib", "own"}, {"C:\\W\\rapidq.inc", "theirs"}};
  EXPECT_TRUE(Taken("rapidq.inc").ends_with("=theirs"));
}

}  // namespace
}  // namespace tarnwick::basic
