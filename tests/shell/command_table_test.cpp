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
      for (const MenuRow& inner : RowsOf(row.Opens)) seen.insert(inner.Does.value());
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

TEST(CommandTable, EachRowOfTheMenuBarHasItsNameCaptionKeyAndCommand) {
  const std::vector<std::vector<MenuRow>> wanted{
      {{"mnuNew", "&New Project", "Ctrl+N", Command::New},
       {"mnuOpen", "&Open Project...", "Ctrl+O", Command::Open},
       {"mnuOpenOld", "Open Old &Version...", "", Command::OpenOld},
       {},
       {"mnuSave", "&Save Project", "Ctrl+S", Command::Save},
       {"mnuSaveAs", "Save Project &As...", "Ctrl+Shift+S", Command::SaveAs},
       {"mnuSaveForm", "Save &Form", "Ctrl+Alt+S", Command::SaveForm},
       {"mnuSaveFormAs", "Save For&m As...", "", Command::SaveFormAs},
       {},
       {"mnuRecent", "&Recent Projects", "", std::nullopt, SubMenu::RecentProjects},
       {"mnuRestore", "Restore &Unsaved Work...", "", Command::Restore},
       {},
       {"mnuExit", "E&xit", "Ctrl+Q", Command::Exit}},
      {{"mnuUndo", "&Undo", "Ctrl+Z", Command::Undo},
       {"mnuRedo", "&Redo", "Ctrl+Y", Command::Redo},
       {},
       {"mnuCut", "Cu&t", "Ctrl+X", Command::Cut},
       {"mnuCopy", "&Copy", "Ctrl+C", Command::Copy},
       {"mnuPaste", "&Paste", "Ctrl+V", Command::Paste},
       {"mnuDelete", "&Delete", "Del", Command::Delete},
       {},
       {"mnuFrente", "Bring to &front", "Ctrl+]", Command::BringToFront},
       {"mnuFondo", "Stay &back", "Ctrl+[", Command::StayBack},
       {},
       {"mnuGrid", "Align To &Grid", "Ctrl+G", Command::AlignToGrid},
       {"mnuBloquear", "&Lock Objets", "Ctrl+L", Command::Lock}},
      {{"mnuCode", "&Code", "F7", Command::Code},
       {"mnuDeclare", "Public &Declarations", "Ctrl+D", Command::PublicDeclarations},
       {"mnuProperties", "&Properties", "F6", Command::Properties},
       {"mnuForms", "&Forms", "", Command::Forms},
       {"mnuEventsBar", "&Events Bar", "Ctrl+E", Command::EventsBar},
       {"mnuObjectBar", "Object &Bar", "Ctrl+B", Command::ObjectBar},
       {},
       {"mnuExaminer", "&Objects Examiner", "Ctrl+F1", Command::Examiner}},
      {{"mnuAddForm", "&Add New Form", "Ctrl+Shift+N", Command::AddNewForm},
       {"mnuRemove", "Remove from project", "", Command::Remove},
       {},
       {"mnuMain", "Select &Main Form...", "", Command::SelectMainForm},
       {"mnuMenuEdit", "M&enu Edit...", "Ctrl+M", Command::MenuEdit}},
      {},
      {{"mnuCompile", "&Compile and Run", "F5", Command::Compile},
       {"mnuStop", "&Stop", "Shift+F5", Command::Stop},
       {"mnuRunWith", "Run &With", "", std::nullopt, SubMenu::RunWith},
       {},
       {"mnuCheck", "C&heck", "Shift+F8", Command::Check},
       {"mnuOutput", "&Output", "", Command::Output}},
      {{"mnuHelp", "&Contents", "F1", Command::Help},
       {},
       {"mnuHelpRunning", "&Runner and Compiler", "", Command::HelpRunning},
       {"mnuHelpChoices", "C&hoices of the Runner", "", Command::HelpChoices},
       {"mnuHelpSupported", "What the Runner &Supports", "", Command::HelpSupported},
       {},
       {"mnuAbout", "&About Tarnwick", "", Command::About}},
  };
  ASSERT_EQ(MenuBar().size(), wanted.size());
  for (std::size_t menu = 0; menu < wanted.size(); ++menu) {
    const auto rows = MenuBar()[menu].Rows;
    ASSERT_EQ(rows.size(), wanted[menu].size()) << MenuBar()[menu].Caption;
    for (std::size_t row = 0; row < rows.size(); ++row) {
      EXPECT_EQ(rows[row].Name, wanted[menu][row].Name);
      EXPECT_EQ(rows[row].Caption, wanted[menu][row].Caption);
      EXPECT_EQ(rows[row].Key, wanted[menu][row].Key) << rows[row].Name;
      EXPECT_EQ(rows[row].Does, wanted[menu][row].Does) << rows[row].Name;
      EXPECT_EQ(rows[row].Opens, wanted[menu][row].Opens) << rows[row].Name;
    }
  }
}

TEST(CommandTable, RunWithOffersItsThreeChoices) {
  const std::vector<MenuRow> wanted{
      {"mnuRunWithAutomatic", "&Automatic", "", Command::RunWithEither},
      {"mnuRunWithCompiler", "&Compiler", "", Command::RunWithCompiler},
      {"mnuRunWithRunner", "&Runner", "", Command::RunWithRunner}};
  const auto rows = RowsOf(SubMenu::RunWith);
  ASSERT_EQ(rows.size(), wanted.size());
  for (std::size_t row = 0; row < rows.size(); ++row) {
    EXPECT_EQ(rows[row].Name, wanted[row].Name);
    EXPECT_EQ(rows[row].Caption, wanted[row].Caption);
    EXPECT_EQ(rows[row].Does, wanted[row].Does);
    EXPECT_EQ(MenuRowOf(*wanted[row].Does), &rows[row]);
  }
  EXPECT_TRUE(RowsOf(SubMenu::RecentProjects).empty()) << "the program fills them in";
}

TEST(CommandTable, EachRowOfThePopUpHasItsCaptionKeyAndCommand) {
  const std::vector<MenuRow> wanted{{"popCode", "C&ode", "F7", Command::Code},
                                    {},
                                    {"popCut", "Cu&t", "Ctrl+X", Command::Cut},
                                    {"popCopy", "&Copy", "Ctrl+C", Command::Copy},
                                    {"popPaste", "&Paste", "Ctrl+V", Command::Paste},
                                    {},
                                    {"popFrente", "Bring to &front", "", Command::BringToFront},
                                    {"popFondo", "Stay &back", "", Command::StayBack},
                                    {},
                                    {"popGrid", "Align To &Grid", "Ctrl+G", Command::AlignToGrid},
                                    {"popBloquear", "&Lock Objets", "Ctrl+L", Command::Lock},
                                    {},
                                    {"popPropiedades", "P&roperties", "F6", Command::Properties}};
  const auto rows = ObjectPopUpRows();
  ASSERT_EQ(rows.size(), wanted.size());
  for (std::size_t row = 0; row < rows.size(); ++row) {
    EXPECT_EQ(rows[row].Name, wanted[row].Name);
    EXPECT_EQ(rows[row].Caption, wanted[row].Caption);
    EXPECT_EQ(rows[row].Key, wanted[row].Key) << rows[row].Name;
    EXPECT_EQ(rows[row].Does, wanted[row].Does) << rows[row].Name;
  }
}

TEST(CommandTable, TheButtonsOfBothBarsRunTheirCommands) {
  const std::vector<Command> toolbar{Command::New,         Command::Open,    Command::Save,
                                     Command::Cut,         Command::Copy,    Command::Paste,
                                     Command::AlignToGrid, Command::Lock,    Command::Code,
                                     Command::Properties,  Command::Compile, Command::Examiner};
  ASSERT_EQ(MainToolbar().size(), toolbar.size());
  for (std::size_t i = 0; i < toolbar.size(); ++i) EXPECT_EQ(MainToolbar()[i].Does, toolbar[i]);
  ASSERT_EQ(FormListBar().size(), 2U);
  EXPECT_EQ(FormListBar()[0].Does, Command::AddNewForm);
  EXPECT_EQ(FormListBar()[1].Does, Command::Remove);
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
