#include "language/support_tables.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick::language {
namespace {

TEST(KeyedTexts, RefuseASecondKeyInAnyCase) {
  KeyedTexts texts;
  EXPECT_TRUE(texts.Add("\xC9t\xE9", "one"));
  EXPECT_FALSE(texts.Add("\xE9T\xC9", "two"));
  ASSERT_NE(texts.Find("\xE9t\xE9"), nullptr);
  EXPECT_EQ(*texts.Find("\xE9t\xE9"), "one");
  EXPECT_EQ(texts.Size(), 1U);
  EXPECT_EQ(texts.Find("other"), nullptr);
}

TEST(FunctionList, FindsTheFirstOfANameInAnyCase) {
  FunctionList functions;
  functions.Add("MID$", "a part");
  functions.Add("", "no name");
  functions.Add("Mid$", "again");
  ASSERT_NE(functions.Find("mid$"), nullptr);
  EXPECT_EQ(functions.Find("mid$")->Help, "a part");
  EXPECT_EQ(functions.Find(""), nullptr);
  EXPECT_EQ(functions.Find("mid"), nullptr);
  EXPECT_EQ(functions.Rows().size(), 3U);
}

TEST(MemberHelpKey, IsMadeDistinctWhereKindsShareANameButNotItsMeaning) {
  using Case = std::pair<std::pair<const char*, const char*>, const char*>;
  for (const Case& c :
       {Case{{"WinSock", "Port"}, "portwinsock"}, Case{{"PopUpMenu", "Alignment"}, "alignmentpop"},
        Case{{"PopUpMenu", "AutoPopUp"}, "autopopup"}, Case{{"ClipBoard", "Close"}, "closeclip"},
        Case{{"FileStream", "Close"}, "closefile"}, Case{{"ClipBoard", "Clear"}, "clearclip"},
        Case{{"ClipBoard", "Open"}, "openclip"}, Case{{"FileStream", "Open"}, "openfile"},
        Case{{"FileStream", "Size"}, "sizefile"}, Case{{"Font", "Color"}, "colorfont"},
        Case{{"RichTextBox", "Line"}, "linerich"}, Case{{"ClipBoard", "Text"}, "textclip"},
        Case{{"Font", "Size"}, "size"}, Case{{"Form", "Close"}, "close"},
        Case{{"Label", "Alignment"}, "alignment"}}) {
    EXPECT_EQ(MemberHelpKey(c.first.first, c.first.second), c.second);
  }
}

constexpr std::string_view kCenterHelp =
    "Center, method of Form\r\nSUB\r\n\r\nCenter, property of RichTextBox, Image\r\nINTEGER";

TEST(HelpPassages, HaveAHeadThatNamesKindsAsWholeWords) {
  const std::vector<HelpPassage> passages = PassagesOf(kCenterHelp);
  ASSERT_EQ(passages.size(), 2U);
  EXPECT_EQ(passages[0].Head, "Center, method of Form");
  EXPECT_EQ(passages[1].Body, "INTEGER");
  EXPECT_TRUE(NamesKind(passages[0], "FORM"));
  EXPECT_TRUE(NamesKind(passages[1], "image"));
  EXPECT_FALSE(NamesKind(passages[1], "TextBox"));
  EXPECT_FALSE(NamesKind(passages[1], ""));
}

TEST(HelpPassages, GiveTheSortOfAMemberForItsKind) {
  EXPECT_EQ(SortInHelp(kCenterHelp, "Form"), MemberSort::Method);
  EXPECT_EQ(SortInHelp(kCenterHelp, "Image"), MemberSort::Property);
  EXPECT_EQ(SortInHelp(kCenterHelp, "Button"), MemberSort::Method);
  EXPECT_EQ(SortInHelp("OnClick, event of Form\r\nSUB", "Form"), MemberSort::Event);
  EXPECT_EQ(SortInHelp("A description of something", "Form"), std::nullopt);
  EXPECT_EQ(SortInHelp("Center, propertyless of Form", "Form"), std::nullopt);
  EXPECT_EQ(SortInHelp("", "Form"), std::nullopt);
}

TEST(SupportTables, HelpOfKindsAndMembersIsFoundByTheirNames) {
  SupportTables tables;
  tables.MemberHelp.Add("font%", "The font");
  tables.MemberHelp.Add("colorfont", "The font's colour");
  ASSERT_NE(tables.HelpOfKind("Font"), nullptr);
  EXPECT_EQ(*tables.HelpOfKind("Font"), "The font");
  ASSERT_NE(tables.HelpOfMember("Font", "Color"), nullptr);
  EXPECT_EQ(*tables.HelpOfMember("Font", "Color"), "The font's colour");
  EXPECT_EQ(tables.HelpOfMember("Form", "Color"), nullptr);
}

}  // namespace
}  // namespace tarnwick::language
