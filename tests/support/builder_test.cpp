#include <string>

#include <gtest/gtest.h>

#include "build/support_format.h"

namespace tarnwick::support {
namespace {

const Place kHere{"here.txt", 7};

bool NameRefused(std::string_view name, std::string_view forbidden = "") {
  Faults faults;
  (void)EncodeName(name, forbidden, kHere, faults);
  return !faults.Empty();
}

bool LineRefused(std::string_view line) {
  Faults faults;
  (void)EncodeLine(line, kHere, faults);
  return !faults.Empty();
}

TEST(SupportBuilder, NamesArePlainPrintableText) {
  EXPECT_FALSE(NameRefused("Icon(App)"));
  EXPECT_FALSE(NameRefused("CASE ELSE"));
  EXPECT_FALSE(NameRefused("MID$"));
  EXPECT_TRUE(NameRefused(""));
  EXPECT_TRUE(NameRefused(" a"));
  EXPECT_TRUE(NameRefused("a,b"));
  EXPECT_TRUE(NameRefused("a\"b"));
  EXPECT_TRUE(NameRefused("a\tb"));
  EXPECT_TRUE(NameRefused("\xC3\xA9"));
  EXPECT_TRUE(NameRefused("a/b", "/"));
  EXPECT_FALSE(NameRefused("a/b"));
}

TEST(SupportBuilder, TextOutsideTheCodePageIsRefused) {
  EXPECT_FALSE(LineRefused("caf\xC3\xA9 \xE2\x82\xAC"));
  EXPECT_TRUE(LineRefused("\xCF\x80"));
  EXPECT_TRUE(LineRefused("broken \xC3"));
}

TEST(SupportBuilder, CodePageCharactersComeOutAsOneByte) {
  Faults faults;
  EXPECT_EQ(EncodeLine("caf\xC3\xA9 \xE2\x82\xAC", kHere, faults), "caf\xE9 \x80");
  EXPECT_EQ(EncodeLine("why?", kHere, faults), "why?");
  EXPECT_TRUE(faults.Empty());
}

TEST(SupportBuilder, MarksOfTheFilesAreRefusedInText) {
  EXPECT_TRUE(LineRefused("\xE2\x80\xA2 point"));  // U+2022
  EXPECT_TRUE(LineRefused("\xC5\x92uvre"));        // U+0152
  EXPECT_TRUE(LineRefused("\xC5\xBD"));            // U+017D
  EXPECT_TRUE(LineRefused("\xE2\x80\xB9quoted"));  // U+2039
  EXPECT_TRUE(LineRefused("a\xC2\x8D"));           // U+008D
  EXPECT_TRUE(LineRefused("a\xC2\x8F"));           // U+008F
}

TEST(SupportBuilder, LineBreaksAndControlsAreRefused) {
  EXPECT_TRUE(LineRefused("two\nlines"));
  EXPECT_TRUE(LineRefused("a\r"));
  EXPECT_TRUE(LineRefused("a\tb"));
  EXPECT_TRUE(LineRefused(std::string_view("a\0b", 3)));
  EXPECT_TRUE(LineRefused("a\x7F"));
}

TEST(SupportBuilder, SectionWordsAreRefusedInText) {
  EXPECT_TRUE(LineRefused("a **tn** b"));
  EXPECT_TRUE(LineRefused("a **etn** b"));
  EXPECT_FALSE(LineRefused("a ** b"));
}

TEST(SupportBuilder, HelpKeepsItsLinesAndHidesItsCommas) {
  Faults faults;
  EXPECT_EQ(EncodeHelp({"a, b", "", "c"}, kHere, faults),
            "a\x8F b\x95\x95"
            "c");
  EXPECT_TRUE(faults.Empty());
}

TEST(SupportBuilder, AFaultTellsItsPlace) {
  Faults faults;
  (void)EncodeLine("a\tb", kHere, faults);
  ASSERT_EQ(faults.Lines().size(), 1U);
  EXPECT_TRUE(faults.Lines().front().starts_with("here.txt:7: "));
}

TEST(SupportBuilder, TablesNeedTheirColumns) {
  Faults faults;
  EXPECT_TRUE(ParseTable("a\tb\n1\t2\n", "t", {"a", "c"}, faults).empty());
  EXPECT_FALSE(faults.Empty());
}

TEST(SupportBuilder, ARowWithAnotherNumberOfCellsIsAFault) {
  Faults faults;
  const auto rows = ParseTable("a\tb\n1\t2\n3\n4\t\n", "t", {"a", "b"}, faults);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[1].Cells, (std::vector<std::string>{"4", ""}));
  EXPECT_EQ(rows[1].Where.Line, 4U);
  ASSERT_EQ(faults.Lines().size(), 1U);
  EXPECT_TRUE(faults.Lines().front().starts_with("t:3: "));
}

TEST(SupportBuilder, BlocksHaveFieldsTextAndExample) {
  Faults faults;
  const auto blocks = ParseBlocks(
      "# note\n[MID$]\ngroup: string\nsyntax: MID$(s$, n)\nTakes part.\nNote: n from 1.\n"
      "example:\n  a$ = MID$(b$, 2)\n\n[X]\nText\n",
      "f", {"group", "syntax"}, faults);
  EXPECT_TRUE(faults.Empty());
  ASSERT_EQ(blocks.size(), 2U);
  EXPECT_EQ(blocks[0].Name, "MID$");
  EXPECT_EQ(blocks[0].Fields.at("syntax"), "MID$(s$, n)");
  EXPECT_EQ(blocks[0].Text, (std::vector<std::string>{"Takes part.", "Note: n from 1."}));
  EXPECT_EQ(blocks[0].Example, (std::vector<std::string>{"a$ = MID$(b$, 2)"}));
  EXPECT_EQ(blocks[1].Where.Line, 10U);
}

TEST(SupportBuilder, BlocksRefuseStrayTextAndUnindentedExamples) {
  Faults faults;
  EXPECT_TRUE(ParseBlocks("stray\n", "f", {}, faults).empty());
  EXPECT_EQ(faults.Lines().size(), 1U);
  (void)ParseBlocks("[A]\nText\nexample:\nnot indented\n", "f", {}, faults);
  EXPECT_EQ(faults.Lines().size(), 2U);
  (void)ParseBlocks("[A\n", "f", {}, faults);
  EXPECT_EQ(faults.Lines().size(), 3U);
}

TEST(SupportBuilder, ANameThatStandsTwiceIsAFault) {
  SupportSources sources;
  sources.Keywords = {{"DIM", {"k", 1}}, {"dim", {"k", 2}}};
  Faults faults;
  (void)KeywordsFile(sources, faults);
  ASSERT_EQ(faults.Lines().size(), 1U);
  EXPECT_TRUE(faults.Lines().front().starts_with("k:2: "));
}

TEST(SupportBuilder, ARowNeedsAMarkAndOnlyAListHasValues) {
  SupportSources sources;
  sources.Rows = {{"FORM", "Caption", "text", {}, {"r", 2}},
                  {"FORM", "Align", "list", {"alNone", "alTop"}, {"r", 3}}};
  Faults faults;
  EXPECT_EQ(GridFile(sources, faults),
            "[FORM]\x8D"
            "Caption\x95"
            "Align\x9E"
            "alNone\x8B"
            "alTop\x8E\r\n");
  EXPECT_TRUE(faults.Empty());
  sources.Rows.push_back({"FORM", "Hint", "texts", {}, {"r", 4}});
  sources.Rows.push_back({"FORM", "Left", "text", {"0"}, {"r", 5}});
  (void)GridFile(sources, faults);
  ASSERT_EQ(faults.Lines().size(), 2U);
}

TEST(SupportBuilder, AKindThatStandsApartFromItsRowsIsAFault) {
  SupportSources sources;
  sources.Rows = {{"FORM", "Left", "text", {}, {"r", 2}},
                  {"LABEL", "Left", "text", {}, {"r", 3}},
                  {"FORM", "Top", "text", {}, {"r", 4}}};
  Faults faults;
  (void)GridFile(sources, faults);
  ASSERT_EQ(faults.Lines().size(), 1U);
  EXPECT_TRUE(faults.Lines().front().starts_with("r:4: "));
}

TEST(SupportBuilder, TheIncludeFileGetsItsLineEnds) {
  Faults faults;
  EXPECT_EQ(IncludeFile("a\n\nb\n", "x", faults), "a\r\n\r\nb\r\n");
  EXPECT_EQ(IncludeFile("a", "x", faults), "a\r\n");
  EXPECT_TRUE(faults.Empty());
}

}  // namespace
}  // namespace tarnwick::support
