#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "built_files.h"
#include "model/kinds.h"

namespace tarnwick::support {
namespace {

using Rows = std::vector<std::string>;

// The words under which the program looks up members: the kinds, the arrays that hold them, and
// the words that stand for no object of a form.
const Rows kListWords{"as",           "form",       "menu",
                      "item(menu)",   "clipboard",  "application",
                      "font",         "screen",     "image",
                      "images",       "button",     "label",
                      "checkbox",     "textbox",    "richtextbox",
                      "optionbutton", "listbox",    "combobox",
                      "time",         "opendialog", "savedialog",
                      "filestream",   "htmlviewer", "winsock",
                      "popupmnu",     "popupmenu",  "transparentframe"};

TEST(ObjectsFile, EveryRequiredMemberListIsThere) {
  for (const std::string& word : kListWords) {
    EXPECT_FALSE(RowsOf(DeliveredTables().MemberLists.Find(word)).empty()) << word;
  }
  EXPECT_EQ(DeliveredTables().MemberLists.Size(), kListWords.size());
}

TEST(ObjectsFile, WhatChangesInAViewerIsNoText) {
  for (const MemberEntry& member : Sources().Members) {
    if (member.Name != "Modified") continue;
    EXPECT_EQ(member.Description.find("the text") != std::string::npos, member.Kind != "HtmlViewer")
        << member.Kind;
  }
}

TEST(ObjectsFile, EveryObjectArrayHasMembersAndEvents) {
  for (const KindInfo& kind : AllKinds().first<kObjectKindCount>()) {
    EXPECT_NE(DeliveredTables().MemberLists.Find(kind.Tag), nullptr) << kind.Name;
    EXPECT_NE(DeliveredTables().EventLists.Find(kind.Tag), nullptr) << kind.Name;
  }
}

TEST(ObjectsFile, EventListsAreThoseOfTheVocabulary) {
  const std::map<std::string, std::string> other_words{
      {"image", "images"}, {"popupmenu", "popupmnu"}, {"item(menu)", "menu"}};
  std::size_t lists = 0;
  for (const std::string& word : kListWords) {
    const std::vector<std::string>* value = DeliveredTables().EventLists.Find(word);
    if (value == nullptr) continue;
    ++lists;
    const auto other = other_words.find(word);
    Rows expected;
    for (const Event event :
         EventListOfTag(other == other_words.end() ? word : other->second).Events) {
      expected.emplace_back(InfoOf(event).Name);
    }
    EXPECT_EQ(RowsOf(value), expected) << word;
  }
  EXPECT_EQ(lists, DeliveredTables().EventLists.Size());
  for (const char* word : {"form", "menu", "item(menu)", "image", "images", "popupmnu"}) {
    EXPECT_FALSE(RowsOf(DeliveredTables().EventLists.Find(word)).empty()) << word;
  }
}

TEST(ObjectsFile, WhatIsNoObjectOfAFormHasNoEventList) {
  for (const char* word : {"as", "font", "clipboard", "application", "screen"}) {
    EXPECT_EQ(DeliveredTables().EventLists.Find(word), nullptr) << word;
  }
}

TEST(ObjectsFile, TheEventsOfAKindAreAmongItsMembers) {
  for (const KindEntry& kind : Sources().Kinds) {
    std::set<std::string> members;
    for (const std::string& row : RowsOf(DeliveredTables().MemberLists.Find(kind.Name))) {
      members.insert(Lower(row));
    }
    for (const std::string& event : kind.Events.value_or(Rows{})) {
      // A title of the menu bar is an item: its click is told there.
      if (kind.Name == "Menu") continue;
      EXPECT_TRUE(members.contains(Lower(event))) << kind.Name << " " << event;
    }
  }
}

TEST(ObjectsFile, TheExaminerListsEveryKindOnceAndFindsItsMembers) {
  const Rows& kinds = DeliveredTables().ListaObjetos;
  EXPECT_EQ(kinds.size(), 24U);
  EXPECT_EQ(kinds.front(), "Form");
  EXPECT_EQ(std::set<std::string>(kinds.begin(), kinds.end()).size(), kinds.size());
  for (const std::string& kind : kinds) {
    EXPECT_NE(DeliveredTables().MemberLists.Find(kind), nullptr) << kind;
    EXPECT_NE(DeliveredTables().MemberHelp.Find(kind + "%"), nullptr) << kind;
  }
}

TEST(ObjectsFile, EveryMemberOfTheFactsIsListed) {
  std::map<std::string, Rows> facts;
  for (const MemberEntry& member : Sources().Members) facts[member.Kind].push_back(member.Name);
  EXPECT_EQ(facts.size(), DeliveredTables().ListaObjetos.size());
  for (const auto& [kind, members] : facts) {
    EXPECT_EQ(RowsOf(DeliveredTables().MemberLists.Find(kind)), members) << kind;
  }
}

TEST(ObjectsFile, TheTablesKnowOfEachMemberWhatItIs) {
  const std::map<std::string, language::MemberSort> sorts{
      {"property", language::MemberSort::Property},
      {"method", language::MemberSort::Method},
      {"event", language::MemberSort::Event}};
  for (const MemberEntry& member : Sources().Members) {
    const auto* members = DeliveredTables().MemberLists.Find(member.Kind);
    ASSERT_NE(members, nullptr) << member.Kind;
    EXPECT_EQ(std::count(members->begin(), members->end(),
                         language::KindMember{member.Name, sorts.at(member.Category)}),
              1)
        << member.Kind << "." << member.Name;
  }
  EXPECT_EQ(*DeliveredTables().MemberLists.Find("image"),
            *DeliveredTables().MemberLists.Find("images"));
}

// The keys by which the examiner tells members of one name apart.
std::string ExaminerKey(const std::string& kind, const std::string& member) {
  const std::map<std::pair<std::string, std::string>, std::string> keys{
      {{"popupmenu", "alignment"}, "alignmentpop"}, {{"clipboard", "close"}, "closeclip"},
      {{"filestream", "close"}, "closefile"},       {{"clipboard", "clear"}, "clearclip"},
      {{"clipboard", "open"}, "openclip"},          {{"filestream", "open"}, "openfile"},
      {{"filestream", "size"}, "sizefile"},         {{"font", "color"}, "colorfont"},
      {{"richtextbox", "line"}, "linerich"},        {{"clipboard", "text"}, "textclip"}};
  if (Lower(kind) == "winsock") return Lower(member) + "winsock";
  const auto found = keys.find({Lower(kind), Lower(member)});
  return found == keys.end() ? Lower(member) : found->second;
}

TEST(ObjectsFile, TheHelpOfAMemberNamesItsKind) {
  for (const MemberEntry& member : Sources().Members) {
    const std::string* help =
        DeliveredTables().MemberHelp.Find(ExaminerKey(member.Kind, member.Name));
    ASSERT_NE(help, nullptr) << member.Kind << "." << member.Name;
    EXPECT_NE(help->find(member.Kind), std::string::npos) << member.Kind << "." << member.Name;
    EXPECT_NE(help->find(member.Description), std::string::npos) << *help;
  }
}

TEST(ObjectsFile, MembersWithAKeyOfTheirOwnDoNotMixWithOthers) {
  const auto help = [](const char* key) {
    const std::string* text = DeliveredTables().MemberHelp.Find(key);
    return text == nullptr ? std::string() : *text;
  };
  EXPECT_TRUE(help("openfile").starts_with("Open, method of FileStream\r\n"));
  EXPECT_TRUE(help("sizefile").starts_with("Size, property of FileStream\r\n"));
  EXPECT_TRUE(help("size").starts_with("Size, property of Font\r\n"));
  EXPECT_TRUE(help("colorfont").starts_with("Color, property of Font\r\n"));
  EXPECT_TRUE(help("linerich").starts_with("Line, property of RichTextBox\r\n"));
  EXPECT_TRUE(help("textclip").starts_with("Text, property of Clipboard\r\n"));
  EXPECT_TRUE(help("alignmentpop").starts_with("Alignment, property of PopUpMenu\r\n"));
  EXPECT_EQ(help("close").find("Clipboard"), std::string::npos);
  EXPECT_EQ(help("close").find("WinSock"), std::string::npos);
}

TEST(ObjectsFile, SeveralKindsShareOneHelpAndDifferencesStandApart) {
  const std::string* help = DeliveredTables().MemberHelp.Find("borderstyle");
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->starts_with("BorderStyle, property of Form\r\n"));
  EXPECT_NE(help->find("\r\n\r\nBorderStyle, property of TextBox, ListBox, RichTextBox"),
            std::string::npos);
}

TEST(ObjectsFile, NoHelpIsEmptyAndNoStoredHelpHoldsAComma) {
  const std::string text = Delivered("Add001.tn");
  const std::size_t start = text.find("\r\n**tn**\r\n");
  const std::size_t end = text.find("\r\n**etn**\r\n");
  ASSERT_LT(start, end);
  ASSERT_NE(end, std::string::npos);
  std::size_t entries = 0;
  for (const auto line :
       Split(std::string_view(text).substr(start + 10, end - start - 10), "\r\n")) {
    ++entries;
    EXPECT_EQ(line.find(','), std::string_view::npos) << line;
    EXPECT_EQ(line.find("\x8D\x8E"), std::string_view::npos) << line;
  }
  EXPECT_EQ(entries, DeliveredTables().MemberHelp.Size());
}

TEST(ObjectsFile, TypesBeginWithThePlainOnes) {
  const Rows types = RowsOf(DeliveredTables().MemberLists.Find("as"));
  ASSERT_GT(types.size(), 10U);
  EXPECT_EQ(types.front(), "BYTE");
  for (const KindEntry& kind : Sources().Kinds) {
    if (!kind.Class.starts_with('Q')) continue;
    EXPECT_NE(std::find(types.begin(), types.end(), kind.Class), types.end()) << kind.Class;
  }
}

}  // namespace
}  // namespace tarnwick::support
