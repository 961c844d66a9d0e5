#include "shell/command_table.h"

#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

std::vector<std::string> TipsOf(std::span<const ToolbarButton> bar) {
  std::vector<std::string> tips;
  for (const ToolbarButton& button : bar) tips.emplace_back(button.Tip);
  return tips;
}

TEST(CommandTable, TheToolbarHasItsTipsInOrder) {
  EXPECT_EQ(TipsOf(MainToolbar()),
            (std::vector<std::string>{"New Projet", "Open Project", "Save Projet", "Cut", "Copy",
                                      "Paste", "Align To Grid", "Lock Objets", "Code", "Properties",
                                      "Compile", "Objects Examiner"}));
}

TEST(CommandTable, SeparatorsOfTheToolbarStandAfterTheirButtons) {
  std::vector<std::size_t> after;
  for (std::size_t i = 0; i < MainToolbar().size(); ++i) {
    if (MainToolbar()[i].SeparatorAfter) after.push_back(i);
  }
  EXPECT_EQ(after, (std::vector<std::size_t>{2, 5, 7, 9, 10}));
}

TEST(CommandTable, TheBarAboveTheFormListAddsAndRemoves) {
  EXPECT_EQ(TipsOf(FormListBar()), (std::vector<std::string>{"Add New Form", "Remove Form"}));
}

TEST(CommandTable, EveryCommandStandsInTheMenuBarOnce) {
  std::multiset<Command> seen;
  for (const MenuColumn& column : MenuBar()) {
    for (const MenuRow& row : column.Rows) {
      if (row.Does) seen.insert(*row.Does);
    }
  }
  EXPECT_EQ(seen.size(), kCommandCount);
  EXPECT_EQ(std::set<Command>(seen.begin(), seen.end()).size(), kCommandCount);
}

TEST(CommandTable, TheMenusHaveTheirCaptions) {
  std::vector<std::string> captions;
  for (const MenuColumn& column : MenuBar()) captions.emplace_back(column.Caption);
  EXPECT_EQ(captions, (std::vector<std::string>{"&File", "&Edit", "&View", "&Project", "&Objects",
                                                "&Run", "&Help"}));
  EXPECT_TRUE(MenuBar()[4].ShowsTools);
}

TEST(CommandTable, NamesAreGivenOnceAndSoAreKeys) {
  std::set<std::string_view> names;
  std::set<std::string_view> keys;
  for (const MenuColumn& column : MenuBar()) {
    for (const MenuRow& row : column.Rows) {
      if (!row.Does) continue;
      EXPECT_TRUE(names.insert(row.Name).second) << row.Name;
      if (!row.Key.empty()) {
        EXPECT_TRUE(keys.insert(row.Key).second) << row.Key;
      }
    }
  }
}

TEST(CommandTable, AccessKeysOfAMenuDoNotMeet) {
  for (const MenuColumn& column : MenuBar()) {
    std::set<char> letters;
    for (const MenuRow& row : column.Rows) {
      const std::size_t at = row.Caption.find('&');
      if (at == std::string_view::npos) continue;
      const char letter = static_cast<char>(row.Caption[at + 1] | 0x20);
      EXPECT_TRUE(letters.insert(letter).second) << row.Caption;
    }
  }
}

TEST(CommandTable, ThePopUpOffersItsEntriesInOrder) {
  std::vector<std::string> names;
  for (const MenuRow& row : ObjectPopUpRows()) names.emplace_back(row.Name);
  EXPECT_EQ(names, (std::vector<std::string>{"popCode", "", "popCut", "popCopy", "popPaste", "",
                                             "popFrente", "popFondo", "", "popGrid", "popBloquear",
                                             "", "popPropiedades"}));
}

TEST(CommandTable, KeysOfTheSpecialEntriesStand) {
  EXPECT_EQ(MenuRowOf(Command::Cut)->Key, "Ctrl+X");
  EXPECT_EQ(MenuRowOf(Command::Copy)->Key, "Ctrl+C");
  EXPECT_EQ(MenuRowOf(Command::Paste)->Key, "Ctrl+V");
  EXPECT_EQ(MenuRowOf(Command::Delete)->Key, "Del");
  EXPECT_EQ(MenuRowOf(Command::Compile)->Key, "F5");
  EXPECT_EQ(MenuRowOf(Command::Compile)->Name, "mnuCompile");
  EXPECT_EQ(MenuRowOf(Command::Lock)->Name, "mnuBloquear");
  EXPECT_EQ(MenuRowOf(Command::BringToFront)->Name, "mnuFrente");
  EXPECT_EQ(MenuRowOf(Command::StayBack)->Name, "mnuFondo");
  EXPECT_EQ(MenuRowOf(Command::AlignToGrid)->Name, "mnuGrid");
  EXPECT_EQ(MenuRowOf(Command::Remove)->Name, "mnuRemove");
}

}  // namespace
}  // namespace tarnwick
