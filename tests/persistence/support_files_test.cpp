#include "persistence/support_files.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using language::KeyedTexts;
using language::KindMember;
using language::MemberSort;
using language::SupportTables;
using Rows = std::vector<std::string>;
using Members = std::vector<KindMember>;
using Functions = std::vector<language::FunctionHelp>;

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

Rows Of(const language::Keyed<Rows>& table, std::string_view key) {
  const Rows* rows = table.Find(key);
  return rows != nullptr ? *rows : Rows{"(absent)"};
}

Rows NamesOf(const SupportTables& tables, std::string_view key) {
  Rows names;
  const Members* members = tables.MemberLists.Find(key);
  if (members == nullptr) return {"(absent)"};
  for (const KindMember& member : *members) names.push_back(member.Name);
  return names;
}

Rows GridRowsOf(const SupportTables& tables, std::string_view key) {
  Rows names;
  const std::vector<language::PropertyRow>* rows = tables.ObjectHelp.Find(key);
  if (rows == nullptr) return {"(absent)"};
  for (const language::PropertyRow& row : *rows) names.push_back(row.Name);
  return names;
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

TEST(SupportFiles, LineZeroOfTheFirstFileListsTheObjectKinds) {
  SupportTables tables;
  AddMemberFile(tables, kMembers);
  EXPECT_EQ(tables.ListaObjetos, (Rows{"Form", "Button", "Font"}));
}

TEST(SupportFiles, SectionAFillsMemberListsUnderLowerCaseNames) {
  SupportTables tables;
  AddMemberFile(tables, kMembers);
  EXPECT_EQ(tables.MemberLists.Size(), 2U);
  EXPECT_EQ(NamesOf(tables, "form"), (Rows{"Caption", "Show"}));
  EXPECT_EQ(NamesOf(tables, "AS"), (Rows{"Integer", "String"}));
}

TEST(SupportFiles, SectionBFillsMemberHelpWithCommasAndLines) {
  SupportTables tables;
  AddMemberFile(tables, kMembers);
  EXPECT_EQ(Of(tables.MemberHelp, "caption"), "A text, shown\r\non the form");
  EXPECT_EQ(Of(tables.MemberHelp, "form%"), "The window");
}

TEST(SupportFiles, SectionCFillsEventListsAndReplacesNothing) {
  SupportTables tables;
  AddMemberFile(tables, kMembers);
  EXPECT_EQ(tables.EventLists.Size(), 2U);
  EXPECT_EQ(Of(tables.EventLists, "form"), (Rows{"OnClick", "OnShow"}));
  EXPECT_EQ(Of(tables.EventLists, "menu"), Rows{"OnClick\x8F"});
}

TEST(SupportFiles, SectionCEndsAtTheNextHelpMarkAndLeadsBackToHelp) {
  SupportTables tables;
  AddMemberFile(tables, kMembers);
  EXPECT_EQ(Of(tables.MemberHelp, "show"), "Shows it");
  EXPECT_EQ(Of(tables.EventLists, "show"), Rows{"(absent)"});
}

TEST(SupportFiles, ALineWithASectionMarkCarriesNothingElse) {
  SupportTables tables;
  AddMemberFile(tables, Marked("Form\r\n[x]<y> **tn**\r\n{a;<b> **etn**\r\n{c;<d>\r\n"));
  EXPECT_TRUE(tables.MemberLists.Empty());
  EXPECT_TRUE(tables.MemberHelp.Empty());
  EXPECT_EQ(Of(tables.EventLists, "c"), Rows{"d"});
}

TEST(SupportFiles, ADuplicateLineHasNoEffectAndTheFirstStays) {
  SupportTables tables;
  AddMemberFile(tables, Marked("K\r\n[a]<one>\r\n[A]<two>\r\n**tn**\r\n{b;<one>\r\n{B;<two>\r\n"
                               "**etn**\r\n{c;<one>\r\n{C;<two>\r\n"));
  AddKindFile(tables, kKinds);
  EXPECT_EQ(NamesOf(tables, "a"), Rows{"one"});
  EXPECT_EQ(Of(tables.MemberHelp, "b"), "one");
  EXPECT_EQ(Of(tables.EventLists, "c"), Rows{"one"});
  EXPECT_EQ(GridRowsOf(tables, "button"), (Rows{"Left", "Top"}));
}

TEST(SupportFiles, WhatAMemberIsComesFromEventListsAndHelp) {
  SupportTables tables;
  AddMemberFile(tables, Marked("K\r\n[form]<Caption|Center|OnShow|OnPopup|Other>\r\n"
                               "[image]<Center>\r\n[images]<Center>\r\n[as]<BYTE|QFORM>\r\n"
                               "**tn**\r\n"
                               "{caption;}<Caption~ property of Form|STRING>\r\n"
                               "{center;}<Center~ method of Form|SUB||"
                               "Center~ property of Image~ Label|INTEGER>\r\n"
                               "{onpopup;}<OnPopup~ event of Form|SUB>\r\n"
                               "**etn**\r\n{form;}<OnClick|onshow>\r\n"));
  EXPECT_EQ(*tables.MemberLists.Find("form"), (Members{{"Caption", MemberSort::Property},
                                                       {"Center", MemberSort::Method},
                                                       {"OnShow", MemberSort::Event},
                                                       {"OnPopup", MemberSort::Event},
                                                       {"Other", MemberSort::Property}}));
  EXPECT_EQ(*tables.MemberLists.Find("image"), (Members{{"Center", MemberSort::Property}}));
  EXPECT_EQ(*tables.MemberLists.Find("images"), (Members{{"Center", MemberSort::Property}}));
  EXPECT_EQ(*tables.MemberLists.Find("as"),
            (Members{{"BYTE", MemberSort::TypeName}, {"QFORM", MemberSort::TypeName}}));
}

TEST(SupportFiles, SecondFileSkipsItsFirstTwoLines) {
  SupportTables tables;
  AddFunctionFile(tables, kFunctions);
  EXPECT_EQ(
      tables.Functions.Rows(),
      (Functions{{"Abs", "ABS(n, m)\r\nAbsolute value"}, {"", "Nameless"}, {"Len", "Length"}}));
}

TEST(SupportFiles, SecondFileLineWithoutABracketAddsAnEmptyName) {
  SupportTables tables;
  AddFunctionFile(tables, Marked("w,a\r\nb\r\njust words\r\n"));
  EXPECT_EQ(tables.Functions.Rows(), (Functions{{"", ""}}));
}

TEST(SupportFiles, HelpHoldsNoCommaAsStoredAndShowsCommas) {
  const std::string stored = Marked("[f]<a~b>");
  EXPECT_EQ(stored.find(','), std::string::npos);
  SupportTables tables;
  AddFunctionFile(tables, "w,a\r\nb\r\n" + stored);
  EXPECT_EQ(tables.Functions.Rows().back().Help, "a,b");
}

TEST(SupportFiles, PanelListsComeFromTheSecondAndThirdValue) {
  SupportTables tables;
  AddFunctionFile(tables, kFunctions);
  EXPECT_EQ(tables.ListFunc1, (Rows{"Abs", "Mid$", "Len"}));
  EXPECT_EQ(tables.ListFunc0, (Rows{"Left$", "Right$"}));
}

TEST(SupportFiles, KeywordsAreThePartsOfTheLastLine) {
  SupportTables tables;
  AddKeywordFile(tables, "Old/Words\r\nDim/Sub/If\r\n");
  EXPECT_EQ(tables.Keywords, (Rows{"Dim", "Sub", "If"}));
  AddKeywordFile(tables, "Dim");
  EXPECT_EQ(tables.Keywords, Rows{"Dim"});
}

TEST(SupportFiles, KeywordFileWithoutWordsGivesNone) {
  SupportTables tables;
  AddKeywordFile(tables, "");
  EXPECT_EQ(tables.Keywords, Rows{});
  AddKeywordFile(tables, "Dim\r\n\r\n");
  EXPECT_EQ(tables.Keywords, Rows{});
}

TEST(SupportFiles, FourthFileGivesTheRowsOfEachKindTakenApart) {
  SupportTables tables;
  AddKindFile(tables, kKinds);
  EXPECT_EQ(*tables.ObjectHelp.Find("Form"), (std::vector<language::PropertyRow>{
                                                 {"Caption", language::row_mark::kText, {}},
                                                 {"Color", language::row_mark::kColor, {}},
                                             }));
  EXPECT_EQ(GridRowsOf(tables, "BUTTON"), (Rows{"Left", "Top"}));
}

TEST(SupportFiles, AllFourFilesAreReadFromTheProgramFolder) {
  FileTexts files;
  files.Texts = {{"C:\\T\\Add001.tn", kMembers},
                 {"C:\\T\\Add002.tn", kFunctions},
                 {"C:\\T\\Add003.tn", "Dim/Sub"},
                 {"C:\\T\\Add004.tn", kKinds}};
  const SupportTables tables = ReadSupportTables(files, "C:\\T");
  EXPECT_EQ(tables.ListaObjetos.size(), 3U);
  EXPECT_EQ(tables.Functions.Rows().size(), 3U);
  EXPECT_EQ(tables.Keywords, (Rows{"Dim", "Sub"}));
  EXPECT_EQ(tables.ObjectHelp.Size(), 2U);
}

TEST(SupportFiles, AMissingFileLeavesItsTablesEmptyAndStopsNothing) {
  FileTexts files;
  files.Texts = {{"C:\\T\\Add004.tn", kKinds}};
  const SupportTables tables = ReadSupportTables(files, "C:\\T");
  EXPECT_TRUE(tables.ListaObjetos.empty());
  EXPECT_TRUE(tables.MemberLists.Empty());
  EXPECT_TRUE(tables.MemberHelp.Empty());
  EXPECT_TRUE(tables.EventLists.Empty());
  EXPECT_TRUE(tables.Functions.Rows().empty());
  EXPECT_TRUE(tables.ListFunc1.empty());
  EXPECT_TRUE(tables.ListFunc0.empty());
  EXPECT_EQ(tables.Keywords, Rows{});
  EXPECT_EQ(tables.ObjectHelp.Size(), 2U);
}

TEST(SupportFiles, EmptyFilesGiveNothing) {
  SupportTables tables;
  AddMemberFile(tables, "");
  AddFunctionFile(tables, "");
  AddKindFile(tables, "");
  EXPECT_TRUE(tables.ListaObjetos.empty());
  EXPECT_TRUE(tables.Functions.Rows().empty());
  EXPECT_TRUE(tables.ObjectHelp.Empty());
}

TEST(SupportFiles, LinesWithoutTheirMarksAreSkipped) {
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

TEST(SupportFiles, AnEmptyValueIsAValue) {
  SupportTables tables;
  AddKindFile(tables, Marked("[FILESTREAM]<>"));
  EXPECT_EQ(GridRowsOf(tables, "FileStream"), Rows{});
}

// Wherever a file is cut, the lines ahead of the cut are there and the cut line does no harm.
TEST(SupportFiles, FilesCutAtAnyPlaceKeepTheWholeLinesAheadOfTheCut) {
  const std::size_t members_end = kMembers.find("Show\x8E") + 5;
  ASSERT_LT(members_end, kMembers.size());
  for (std::size_t cut = 0; cut <= kMembers.size(); ++cut) {
    SupportTables tables;
    AddMemberFile(tables, std::string_view{kMembers}.substr(0, cut));
    EXPECT_EQ(tables.MemberLists.Find("form") != nullptr, cut >= members_end) << cut;
    if (cut >= members_end) {
      EXPECT_EQ(NamesOf(tables, "form"), (Rows{"Caption", "Show"})) << cut;
    }
  }
  const std::size_t first_end = kFunctions.find("value\x8E") + 6;
  for (std::size_t cut = 0; cut <= kFunctions.size(); ++cut) {
    SupportTables tables;
    AddFunctionFile(tables, std::string_view{kFunctions}.substr(0, cut));
    if (cut < first_end) continue;
    ASSERT_FALSE(tables.Functions.Rows().empty()) << cut;
    EXPECT_EQ(tables.Functions.Rows()[0].Name, "Abs") << cut;
    EXPECT_NE(tables.Functions.Find("ABS"), nullptr) << cut;
  }
  const std::size_t form_end = kKinds.find('\x8E') + 1;
  for (std::size_t cut = 0; cut <= kKinds.size(); ++cut) {
    SupportTables tables;
    AddKindFile(tables, std::string_view{kKinds}.substr(0, cut));
    EXPECT_EQ(tables.ObjectHelp.Find("FORM") != nullptr, cut >= form_end) << cut;
  }
}

TEST(SupportFiles, AnyBytesAreHarmless) {
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
  for (const language::FunctionHelp& function : tables.Functions.Rows()) {
    EXPECT_EQ(tables.Functions.Find(function.Name) == nullptr, function.Name.empty());
  }
}

}  // namespace
}  // namespace tarnwick
