#include "persistence/support_tables.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Rows = std::vector<std::string>;

// The marks by the letters under which the texts below write them.
std::string Marked(std::string_view readable) {
  std::string text;
  for (const char c : readable) {
    switch (c) {
      case '<':
        text += '\x8D';
        break;
      case '>':
        text += '\x8E';
        break;
      case ';':
        text += '\x8C';
        break;
      case '|':
        text += '\x95';
        break;
      case '~':
        text += '\x8F';
        break;
      default:
        text += c;
    }
  }
  return text;
}

const std::string kMembers = Marked(
    "Form/Button/Font\r\n"
    "[Form] <Caption|Show>\r\n"
    "[As]<Integer|String>\r\n"
    "**tn**\r\n"
    "{Caption; any <A text~ shown|on the form>\r\n"
    "{Form%;<The window>\r\n"
    "**etn**\r\n"
    "{Form;x<OnClick|OnShow>\r\n"
    "{Menu;<OnClick~>\r\n"
    "**tn**\r\n"
    "{Show;<Shows it>\r\n");

const std::string kFunctions = Marked(
    "Functions,Abs*Mid$**Len\r\n"
    "Left$*Right$\r\n"
    "[Abs] <ABS(n~ m)|Absolute value>\r\n"
    "\r\n"
    "no name at all <Nameless>\r\n"
    "[Len]<Length>\r\n");

const std::string kKinds = Marked(
    "[FORM]<Caption|Color\x9B>\r\n"
    "[Button] <Left|Top>\r\n"
    "[BUTTON]<Width>\r\n");

std::string Of(const KeyedTexts& table, std::string_view key) {
  const std::string* text = table.Find(key);
  return text != nullptr ? *text : "(absent)";
}

class FileTexts final : public FilePort {
 public:
  std::map<std::string, std::string> Texts;
  bool Exists(const std::string& path) override { return Texts.contains(path); }
  std::optional<std::string> Read(const std::string& path) override {
    const auto found = Texts.find(path);
    if (found == Texts.end()) return std::nullopt;
    return found->second;
  }
  bool Replace(const std::string&, std::string_view) override { return false; }
  bool Remove(const std::string&) override { return false; }
  std::string ShortPathOf(const std::string&) override { return ""; }
};

TEST(SupportTables, LineZeroOfTheFirstFileListsTheObjectKinds) {
  SupportTables tables;
  AddMemberFile(tables, kMembers);
  EXPECT_EQ(tables.ListaObjetos, (Rows{"Form", "Button", "Font"}));
}

TEST(SupportTables, SectionAFillsMemberListsUnderLowerCaseNames) {
  SupportTables tables;
  AddMemberFile(tables, kMembers);
  EXPECT_EQ(tables.MemberLists.Size(), 2U);
  EXPECT_EQ(Of(tables.MemberLists, "form"), "Caption\x95Show");
  EXPECT_EQ(Of(tables.MemberLists, "AS"), "Integer\x95String");
}

TEST(SupportTables, SectionBFillsMemberHelpWithCommasAndLines) {
  SupportTables tables;
  AddMemberFile(tables, kMembers);
  EXPECT_EQ(Of(tables.MemberHelp, "caption"), "A text, shown\r\non the form");
  EXPECT_EQ(Of(tables.MemberHelp, "form%"), "The window");
}

TEST(SupportTables, SectionCFillsEventListsAndReplacesNothing) {
  SupportTables tables;
  AddMemberFile(tables, kMembers);
  EXPECT_EQ(tables.EventLists.Size(), 2U);
  EXPECT_EQ(Of(tables.EventLists, "form"), "OnClick\x95OnShow");
  EXPECT_EQ(Of(tables.EventLists, "menu"), "OnClick\x8F");
}

TEST(SupportTables, SectionCEndsAtTheNextHelpMarkAndLeadsBackToHelp) {
  SupportTables tables;
  AddMemberFile(tables, kMembers);
  EXPECT_EQ(Of(tables.MemberHelp, "show"), "Shows it");
  EXPECT_EQ(Of(tables.EventLists, "show"), "(absent)");
}

TEST(SupportTables, ALineWithASectionMarkCarriesNothingElse) {
  SupportTables tables;
  AddMemberFile(tables, Marked("Form\r\n[x]<y> **tn**\r\n{a;<b> **etn**\r\n{c;<d>\r\n"));
  EXPECT_TRUE(tables.MemberLists.Empty());
  EXPECT_TRUE(tables.MemberHelp.Empty());
  EXPECT_EQ(Of(tables.EventLists, "c"), "d");
}

TEST(SupportTables, ADuplicateLineHasNoEffectAndTheFirstStays) {
  SupportTables tables;
  AddMemberFile(tables, Marked("K\r\n[a]<one>\r\n[A]<two>\r\n**tn**\r\n{b;<one>\r\n{B;<two>\r\n"
                               "**etn**\r\n{c;<one>\r\n{C;<two>\r\n"));
  AddKindFile(tables, kKinds);
  EXPECT_EQ(Of(tables.MemberLists, "a"), "one");
  EXPECT_EQ(Of(tables.MemberHelp, "b"), "one");
  EXPECT_EQ(Of(tables.EventLists, "c"), "one");
  EXPECT_EQ(Of(tables.ObjectHelp, "button"), "Left\x95Top");
}

TEST(SupportTables, KeyedTextsRefuseASecondKeyInAnyCase) {
  KeyedTexts texts;
  EXPECT_TRUE(texts.Add("\xC9t\xE9", "one"));
  EXPECT_FALSE(texts.Add("\xE9T\xC9", "two"));
  EXPECT_EQ(Of(texts, "\xE9t\xE9"), "one");
  EXPECT_EQ(texts.Size(), 1U);
}

TEST(SupportTables, SecondFileSkipsItsFirstTwoLinesAndKeepsRowsParallel) {
  SupportTables tables;
  AddFunctionFile(tables, kFunctions);
  EXPECT_EQ(tables.ListColFunc, (Rows{"", "Abs", "", "Len"}));
  EXPECT_EQ(tables.FunctionDescriptions,
            (Rows{"", "ABS(n, m)\r\nAbsolute value", "Nameless", "Length"}));
}

TEST(SupportTables, SecondFileLineWithoutABracketAddsAnEmptyName) {
  SupportTables tables;
  AddFunctionFile(tables, Marked("w,a\r\nb\r\njust words\r\n"));
  EXPECT_EQ(tables.ListColFunc, (Rows{"", ""}));
  EXPECT_EQ(tables.FunctionDescriptions, (Rows{"", ""}));
}

TEST(SupportTables, HelpHoldsNoCommaAsStoredAndShowsCommas) {
  const std::string stored = Marked("[f]<a~b>");
  EXPECT_EQ(stored.find(','), std::string::npos);
  SupportTables tables;
  AddFunctionFile(tables, "w,a\r\nb\r\n" + stored);
  EXPECT_EQ(tables.FunctionDescriptions.back(), "a,b");
}

TEST(SupportTables, PanelListsComeFromTheSecondAndThirdValue) {
  SupportTables tables;
  AddFunctionFile(tables, kFunctions);
  EXPECT_EQ(tables.ListFunc1, (Rows{"Abs", "Mid$", "Len"}));
  EXPECT_EQ(tables.ListFunc0, (Rows{"Left$", "Right$"}));
}

TEST(SupportTables, KeywordsAreThePartsOfTheLastLine) {
  SupportTables tables;
  AddKeywordFile(tables, "Old/Words\r\nDim/Sub/If\r\n");
  EXPECT_EQ(tables.Keywords, "Dim\nSub\nIf\n\n");
  AddKeywordFile(tables, "Dim");
  EXPECT_EQ(tables.Keywords, "Dim\n\n");
}

TEST(SupportTables, KeywordFileWithoutWordsGivesNone) {
  SupportTables tables;
  AddKeywordFile(tables, "");
  EXPECT_EQ(tables.Keywords, "");
  AddKeywordFile(tables, "Dim\r\n\r\n");
  EXPECT_EQ(tables.Keywords, "");
}

TEST(SupportTables, FourthFileKeepsAllLinesAndKeysByUpperCase) {
  SupportTables tables;
  AddKindFile(tables, kKinds);
  ASSERT_EQ(tables.KindLines.size(), 5U);
  EXPECT_EQ(tables.KindLines[1], Marked("[Button] <Left|Top>"));
  EXPECT_EQ(tables.KindLines[3], "");
  EXPECT_EQ(Of(tables.ObjectHelp, "FORM"),
            "Caption\x95"
            "Color\x9B");
}

TEST(SupportTables, AllFourFilesAreReadFromTheProgramFolder) {
  FileTexts files;
  files.Texts = {{"C:\\T\\Add001.tn", kMembers},
                 {"C:\\T\\Add002.tn", kFunctions},
                 {"C:\\T\\Add003.tn", "Dim/Sub"},
                 {"C:\\T\\Add004.tn", kKinds}};
  const SupportTables tables = ReadSupportTables(files, "C:\\T");
  EXPECT_EQ(tables.ListaObjetos.size(), 3U);
  EXPECT_EQ(tables.ListColFunc.size(), 4U);
  EXPECT_EQ(tables.Keywords, "Dim\nSub\n\n");
  EXPECT_EQ(tables.ObjectHelp.Size(), 2U);
}

TEST(SupportTables, AMissingFileLeavesItsTablesEmptyAndStopsNothing) {
  FileTexts files;
  files.Texts = {{"C:\\T\\Add004.tn", kKinds}};
  const SupportTables tables = ReadSupportTables(files, "C:\\T");
  EXPECT_TRUE(tables.ListaObjetos.empty());
  EXPECT_TRUE(tables.MemberLists.Empty());
  EXPECT_TRUE(tables.MemberHelp.Empty());
  EXPECT_TRUE(tables.EventLists.Empty());
  EXPECT_EQ(tables.ListColFunc, Rows{""});
  EXPECT_EQ(tables.FunctionDescriptions, Rows{""});
  EXPECT_TRUE(tables.ListFunc1.empty());
  EXPECT_TRUE(tables.ListFunc0.empty());
  EXPECT_EQ(tables.Keywords, "");
  EXPECT_EQ(tables.ObjectHelp.Size(), 2U);
}

TEST(SupportTables, EmptyFilesGiveNothing) {
  SupportTables tables;
  AddMemberFile(tables, "");
  AddFunctionFile(tables, "");
  AddKindFile(tables, "");
  EXPECT_TRUE(tables.ListaObjetos.empty());
  EXPECT_EQ(tables.ListColFunc.size(), 1U);
  EXPECT_TRUE(tables.ObjectHelp.Empty());
  EXPECT_EQ(tables.KindLines, (Rows{"", ""}));
}

TEST(SupportTables, LinesWithoutTheirMarksAreSkipped) {
  for (const char* line : {"[a<v>", "a]<v>", "[a]v>", "[a]<v", "<v>[a]", "[]<v>", "[a]><"}) {
    SupportTables tables;
    AddMemberFile(tables, "K\r\n" + Marked(line) + "\r\n");
    AddKindFile(tables, Marked(line));
    EXPECT_TRUE(tables.MemberLists.Empty()) << line;
    EXPECT_TRUE(tables.ObjectHelp.Empty()) << line;
  }
  for (const char* line : {"{a<v>", "a;<v>", "{a;v>", "{a;<v", "{;<v>", ";{<v>"}) {
    SupportTables tables;
    AddMemberFile(tables, Marked("K\r\n**tn**\r\n" + std::string{line} + "\r\n**etn**\r\n" + line));
    EXPECT_TRUE(tables.MemberHelp.Empty()) << line;
    EXPECT_TRUE(tables.EventLists.Empty()) << line;
  }
}

TEST(SupportTables, AnEmptyValueIsAValue) {
  SupportTables tables;
  AddKindFile(tables, Marked("[FILESTREAM]<>"));
  EXPECT_EQ(Of(tables.ObjectHelp, "FileStream"), "");
}

// Wherever a file is cut, the lines ahead of the cut are there and the cut line does no harm.
TEST(SupportTables, FilesCutAtAnyPlaceKeepTheWholeLinesAheadOfTheCut) {
  for (std::size_t cut = 0; cut <= kMembers.size(); ++cut) {
    SupportTables tables;
    AddMemberFile(tables, std::string_view{kMembers}.substr(0, cut));
    const bool has_form = kMembers.find("Show>") < cut;
    EXPECT_LE(tables.MemberLists.Size(), 2U);
    if (has_form) {
      EXPECT_EQ(Of(tables.MemberLists, "form"), "Caption\x95Show") << cut;
    }
  }
  const std::size_t first_end = kFunctions.find("value\x8E") + 6;
  for (std::size_t cut = 0; cut <= kFunctions.size(); ++cut) {
    SupportTables tables;
    AddFunctionFile(tables, std::string_view{kFunctions}.substr(0, cut));
    ASSERT_EQ(tables.ListColFunc.size(), tables.FunctionDescriptions.size()) << cut;
    if (cut >= first_end) {
      EXPECT_EQ(tables.ListColFunc[1], "Abs") << cut;
    }
  }
  const std::size_t form_end = kKinds.find('\x8E') + 1;
  for (std::size_t cut = 0; cut <= kKinds.size(); ++cut) {
    SupportTables tables;
    AddKindFile(tables, std::string_view{kKinds}.substr(0, cut));
    EXPECT_EQ(tables.ObjectHelp.Find("FORM") != nullptr, cut >= form_end) << cut;
  }
}

TEST(SupportTables, AnyBytesAreHarmless) {
  std::string noise;
  unsigned state = 7;
  for (int i = 0; i < 4000; ++i) {
    state = state * 1103515245U + 12345U;
    constexpr std::string_view kBytes = "[]{}\x8D\x8E\x8C\x95\x8F\r\n*tn/,aB\x9D";
    noise += kBytes[(state >> 16U) % kBytes.size()];
  }
  SupportTables tables;
  AddMemberFile(tables, noise);
  AddFunctionFile(tables, noise);
  AddKeywordFile(tables, noise);
  AddKindFile(tables, noise);
  EXPECT_EQ(tables.ListColFunc.size(), tables.FunctionDescriptions.size());
}

}  // namespace
}  // namespace tarnwick
