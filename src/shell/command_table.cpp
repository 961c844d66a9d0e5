#include "shell/command_table.h"

#include <array>

namespace tarnwick {

namespace {

constexpr MenuRow kSeparator{};
constexpr MenuRow kRecentProjects{"mnuRecent", "&Recent Projects", "", std::nullopt,
                                  SubMenu::RecentProjects};
constexpr MenuRow kRunWith{"mnuRunWith", "Run &With", "", std::nullopt, SubMenu::RunWith};

constexpr std::array kFileRows{
    MenuRow{"mnuNew", "&New Project", "Ctrl+N", Command::New},
    MenuRow{"mnuOpen", "&Open Project...", "Ctrl+O", Command::Open},
    MenuRow{"mnuOpenOld", "Open Old &Version...", "", Command::OpenOld},
    kSeparator,
    MenuRow{"mnuSave", "&Save Project", "Ctrl+S", Command::Save},
    MenuRow{"mnuSaveAs", "Save Project &As...", "Ctrl+Shift+S", Command::SaveAs},
    MenuRow{"mnuSaveForm", "Save &Form", "Ctrl+Alt+S", Command::SaveForm},
    MenuRow{"mnuSaveFormAs", "Save For&m As...", "", Command::SaveFormAs},
    kSeparator,
    kRecentProjects,
    MenuRow{"mnuRestore", "Restore &Unsaved Work...", "", Command::Restore},
    kSeparator,
    MenuRow{"mnuExit", "E&xit", "Ctrl+Q", Command::Exit},
};

constexpr std::array kEditRows{
    MenuRow{"mnuUndo", "&Undo", "Ctrl+Z", Command::Undo},
    MenuRow{"mnuRedo", "&Redo", "Ctrl+Y", Command::Redo},
    kSeparator,
    MenuRow{"mnuCut", "Cu&t", "Ctrl+X", Command::Cut},
    MenuRow{"mnuCopy", "&Copy", "Ctrl+C", Command::Copy},
    MenuRow{"mnuPaste", "&Paste", "Ctrl+V", Command::Paste},
    MenuRow{"mnuDelete", "&Delete", "Del", Command::Delete},
    kSeparator,
    MenuRow{"mnuFrente", "Bring to &front", "Ctrl+]", Command::BringToFront},
    MenuRow{"mnuFondo", "Stay &back", "Ctrl+[", Command::StayBack},
    kSeparator,
    MenuRow{"mnuGrid", "Align To &Grid", "Ctrl+G", Command::AlignToGrid},
    MenuRow{"mnuBloquear", "&Lock Objets", "Ctrl+L", Command::Lock},
};

constexpr std::array kViewRows{
    MenuRow{"mnuCode", "&Code", "F7", Command::Code},
    MenuRow{"mnuDeclare", "Public &Declarations", "Ctrl+D", Command::PublicDeclarations},
    MenuRow{"mnuProperties", "&Properties", "F6", Command::Properties},
    MenuRow{"mnuForms", "&Forms", "", Command::Forms},
    MenuRow{"mnuEventsBar", "&Events Bar", "Ctrl+E", Command::EventsBar},
    MenuRow{"mnuObjectBar", "Object &Bar", "Ctrl+B", Command::ObjectBar},
    kSeparator,
    MenuRow{"mnuExaminer", "&Objects Examiner", "Ctrl+F1", Command::Examiner},
};

constexpr std::array kProjectRows{
    MenuRow{"mnuAddForm", "&Add New Form", "Ctrl+Shift+N", Command::AddNewForm},
    MenuRow{"mnuRemove", "Remove from project", "", Command::Remove},
    kSeparator,
    MenuRow{"mnuMain", "Select &Main Form...", "", Command::SelectMainForm},
    MenuRow{"mnuMenuEdit", "M&enu Edit...", "Ctrl+M", Command::MenuEdit},
};

constexpr std::array kRunRows{
    MenuRow{"mnuCompile", "&Compile and Run", "F5", Command::Compile},
    MenuRow{"mnuStop", "&Stop", "Shift+F5", Command::Stop},
    kRunWith,
    kSeparator,
    MenuRow{"mnuCheck", "C&heck", "Shift+F8", Command::Check},
    MenuRow{"mnuOutput", "&Output", "", Command::Output},
};

constexpr std::array kRunWithRows{
    MenuRow{"mnuRunWithAutomatic", "&Automatic", "", Command::RunWithEither},
    MenuRow{"mnuRunWithCompiler", "&Compiler", "", Command::RunWithCompiler},
    MenuRow{"mnuRunWithRunner", "&Runner", "", Command::RunWithRunner},
};

constexpr std::array kHelpRows{
    MenuRow{"mnuHelp", "&Contents", "F1", Command::Help},
    kSeparator,
    MenuRow{"mnuHelpRunning", "&Runner and Compiler", "", Command::HelpRunning},
    MenuRow{"mnuHelpChoices", "C&hoices of the Runner", "", Command::HelpChoices},
    MenuRow{"mnuHelpSupported", "What the Runner &Supports", "", Command::HelpSupported},
    kSeparator,
    MenuRow{"mnuAbout", "&About Tarnwick", "", Command::About},
};

constexpr std::array kMenuBar{
    MenuColumn{"&File", kFileRows},   MenuColumn{"&Edit", kEditRows},
    MenuColumn{"&View", kViewRows},   MenuColumn{"&Project", kProjectRows},
    MenuColumn{"&Objects", {}, true}, MenuColumn{"&Run", kRunRows},
    MenuColumn{"&Help", kHelpRows},
};

// The misspelt tips are the program's own.
constexpr std::array kMainToolbar{
    ToolbarButton{"New Projet", Command::New},
    ToolbarButton{"Open Project", Command::Open},
    ToolbarButton{"Save Projet", Command::Save, true},
    ToolbarButton{"Cut", Command::Cut},
    ToolbarButton{"Copy", Command::Copy},
    ToolbarButton{"Paste", Command::Paste, true},
    ToolbarButton{"Align To Grid", Command::AlignToGrid},
    ToolbarButton{"Lock Objets", Command::Lock, true},
    ToolbarButton{"Code", Command::Code},
    ToolbarButton{"Properties", Command::Properties, true},
    ToolbarButton{"Compile", Command::Compile, true},
    ToolbarButton{"Objects Examiner", Command::Examiner},
};

constexpr std::array kFormListBar{
    ToolbarButton{"Add New Form", Command::AddNewForm},
    ToolbarButton{"Remove Form", Command::Remove},
};

constexpr std::array kObjectPopUp{
    MenuRow{"popCode", "C&ode", "F7", Command::Code},
    kSeparator,
    MenuRow{"popCut", "Cu&t", "Ctrl+X", Command::Cut},
    MenuRow{"popCopy", "&Copy", "Ctrl+C", Command::Copy},
    MenuRow{"popPaste", "&Paste", "Ctrl+V", Command::Paste},
    kSeparator,
    MenuRow{"popFrente", "Bring to &front", "", Command::BringToFront},
    MenuRow{"popFondo", "Stay &back", "", Command::StayBack},
    kSeparator,
    MenuRow{"popGrid", "Align To &Grid", "Ctrl+G", Command::AlignToGrid},
    MenuRow{"popBloquear", "&Lock Objets", "Ctrl+L", Command::Lock},
    kSeparator,
    MenuRow{"popPropiedades", "P&roperties", "F6", Command::Properties},
};

}  // namespace

std::span<const MenuColumn> MenuBar() noexcept {
  return kMenuBar;
}
std::span<const MenuRow> RowsOf(SubMenu menu) noexcept {
  return menu == SubMenu::RunWith ? std::span<const MenuRow>(kRunWithRows)
                                  : std::span<const MenuRow>();
}
std::span<const ToolbarButton> MainToolbar() noexcept {
  return kMainToolbar;
}
std::span<const ToolbarButton> FormListBar() noexcept {
  return kFormListBar;
}
std::span<const MenuRow> ObjectPopUpRows() noexcept {
  return kObjectPopUp;
}

const MenuRow* MenuRowOf(Command command) noexcept {
  const auto find_in = [&](std::span<const MenuRow> rows) -> const MenuRow* {
    for (const MenuRow& row : rows) {
      if (row.Does == command) return &row;
    }
    return nullptr;
  };
  for (const MenuColumn& column : kMenuBar) {
    if (const MenuRow* const row = find_in(column.Rows)) return row;
  }
  return find_in(kRunWithRows);
}

}  // namespace tarnwick
