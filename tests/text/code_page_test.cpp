#include "text/code_page.h"

#include <chrono>
#include <set>
#include <unordered_map>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

std::string AllBytes() {
  std::string all;
  for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
  return all;
}

TEST(CodePage, LettersOfTheAlphabetFold) {
  EXPECT_EQ(Lower("ABZ@[az"), "abz@[az");
  EXPECT_EQ(Upper("abz`{AZ"), "ABZ`{AZ");
}

TEST(CodePage, LettersWithAccentsFold) {
  EXPECT_EQ(Lower("\xC0\xC9\xD1\xD6\xD8\xDE"), "\xE0\xE9\xF1\xF6\xF8\xFE");
  EXPECT_EQ(Upper("\xE0\xE9\xF1\xF6\xF8\xFE"), "\xC0\xC9\xD1\xD6\xD8\xDE");
}

TEST(CodePage, LettersOfTheHighControlsFold) {
  EXPECT_EQ(Lower("\x8A\x8C\x8E\x9F"), "\x9A\x9C\x9E\xFF");
  EXPECT_EQ(Upper("\x9A\x9C\x9E\xFF"), "\x8A\x8C\x8E\x9F");
}

TEST(CodePage, SignsAndLettersWithoutAnotherFormStand) {
  for (const char c : {'\xD7', '\xF7', '\xDF', '\xB5', '\x83', '\x8D', '\x8F', '\x95', '\xAA'}) {
    EXPECT_EQ(LowerByte(c), c);
    EXPECT_EQ(UpperByte(c), c);
  }
}

TEST(CodePage, FoldingIsAPairingOfBytes) {
  int pairs = 0;
  for (const char c : AllBytes()) {
    EXPECT_EQ(LowerByte(UpperByte(c)), LowerByte(c));
    EXPECT_EQ(UpperByte(LowerByte(c)), UpperByte(c));
    if (LowerByte(c) != c) ++pairs;
  }
  EXPECT_EQ(pairs, 26 + 30 + 4);
}

TEST(CodePage, EqualsFoldedComparesWholeTexts) {
  EXPECT_TRUE(EqualsFolded("A\xD1O", "a\xF1o"));
  EXPECT_TRUE(EqualsFolded("", ""));
  EXPECT_FALSE(EqualsFolded("abc", "ab"));
  EXPECT_FALSE(EqualsFolded("abc", "abd"));
}

TEST(CodePage, StartsWithFolded) {
  EXPECT_TRUE(StartsWithFolded("Form1.x", "FORM"));
  EXPECT_TRUE(StartsWithFolded("x", ""));
  EXPECT_FALSE(StartsWithFolded("For", "Form"));
}

TEST(CodePage, FindFoldedFindsEitherCase) {
  EXPECT_EQ(FindFolded("xx SHOW show", "Show"), 3U);
  EXPECT_EQ(FindFolded("xx SHOW show", "Show", 4), 8U);
  EXPECT_EQ(FindFolded("ni\xD1o", "\xF1O"), 2U);
  EXPECT_EQ(FindFolded("a.b", ".B"), 1U);
}

TEST(CodePage, FindFoldedAtTheEdges) {
  constexpr auto npos = std::string_view::npos;
  EXPECT_EQ(FindFolded("abc", "c", 2), 2U);
  EXPECT_EQ(FindFolded("abc", "c", 3), npos);
  EXPECT_EQ(FindFolded("abc", "abcd"), npos);
  EXPECT_EQ(FindFolded("abc", ""), 0U);
  EXPECT_EQ(FindFolded("abc", "", 3), 3U);
  EXPECT_EQ(FindFolded("abc", "", 4), npos);
  EXPECT_EQ(FindFolded("", "a"), npos);
  EXPECT_EQ(FindFolded("aab", "AB"), 1U);
}

TEST(CodePage, FindFoldedIsLinearWhenOneCaseIsRare) {
  // One form of the first byte is everywhere, the other nowhere: a search that looked for the
  // rare one again at each step would take minutes here.
  const std::string text(4U << 20U, 'a');
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(FindFolded(text, "AB"), std::string::npos);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(CodePage, FoldedTablesLookUpByView) {
  std::unordered_map<std::string, int, FoldedHash, FoldedEqual> table;
  table["Form2.Button1.OnClick"] = 7;
  EXPECT_EQ(table.count(std::string_view("FORM2.button1.onclick")), 1U);
  EXPECT_EQ(table.count(std::string_view("Form2.Button1.OnClic")), 0U);
  for (const char c : AllBytes()) {
    const std::string text = "Name" + std::string(7, c);
    EXPECT_EQ(FoldedHash{}(Lower(text)), FoldedHash{}(Upper(text)));
    EXPECT_EQ(FoldedHash{}(text), FoldedHash{}(Lower(text)));
  }
}

TEST(CodePage, EveryByteSurvivesUtf8AndBack) {
  EXPECT_EQ(Utf8ToCodePage(CodePageToUtf8(AllBytes())), AllBytes());
  std::set<char32_t> points;
  for (const char c : AllBytes()) {
    points.insert(ByteToCodePoint(c));
    EXPECT_EQ(CodePointToByte(ByteToCodePoint(c)), c);
  }
  EXPECT_EQ(points.size(), 256U);
}

TEST(CodePage, KnownCharacters) {
  EXPECT_EQ(CodePageToUtf8("\x80\x95\x8C\x8E\x9F\xE9"),
            "\xE2\x82\xAC\xE2\x80\xA2\xC5\x92\xC5\xBD\xC5\xB8\xC3\xA9");
  EXPECT_EQ(ByteToCodePoint('\x95'), U'\x2022');
  EXPECT_EQ(ByteToCodePoint('\x8D'), U'\x8D');
}

TEST(CodePage, WhatThePageLacksBecomesAQuestionMark) {
  EXPECT_EQ(Utf8ToCodePage("a\xCE\xA9z"), "a?z");
  EXPECT_EQ(Utf8ToCodePage("\xF0\x9F\x98\x80"), "?");
  EXPECT_FALSE(CodePointToByte(0x80).has_value());
  EXPECT_FALSE(CodePointToByte(0x3A9).has_value());
  EXPECT_FALSE(CodePointToByte(0x10FFFF).has_value());
}

TEST(CodePage, EachByteThatIsNoUtf8BecomesAQuestionMark) {
  EXPECT_EQ(Utf8ToCodePage("a\xE9"
                           "b"),
            "a?b");
  EXPECT_EQ(Utf8ToCodePage("\xE2\x82"), "??");
  EXPECT_EQ(Utf8ToCodePage("\xC0\x80"), "??");
  EXPECT_EQ(Utf8ToCodePage("\xED\xA0\x80"), "???");
  EXPECT_EQ(Utf8ToCodePage("\xE0\x80\x80"), "???");
  EXPECT_EQ(Utf8ToCodePage("\xF5\x80\x80\x80"), "????");
  EXPECT_EQ(Utf8ToCodePage("\xF4\x90\x80\x80"), "????");
}

}  // namespace
}  // namespace tarnwick
