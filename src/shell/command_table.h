// Every command of the main window, and the menus, toolbars and pop-ups that offer it, as data.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace tarnwick {

enum class Command : std::uint8_t {
  New,
  Open,
  OpenOld,
  Save,
  SaveAs,
  SaveForm,
  SaveFormAs,
  Exit,
  Restore,
  Undo,
  Redo,
  Cut,
  Copy,
  Paste,
  Delete,
  BringToFront,
  StayBack,
  AlignToGrid,
  Lock,
  Code,
  PublicDeclarations,
  Properties,
  Forms,
  EventsBar,
  ObjectBar,
  Examiner,
  AddNewForm,
  Remove,
  SelectMainForm,
  MenuEdit,
  Compile,
  Stop,
  RunWithEither,
  RunWithCompiler,
  RunWithRunner,
  Check,
  Output,
  Help,
  HelpRunning,
  HelpChoices,
  HelpSupported,
  About,
};
inline constexpr std::size_t kCommandCount = static_cast<std::size_t>(Command::About) + 1;

/// Menus that open from a row of another one.
enum class SubMenu : std::uint8_t {
  None,
  RecentProjects,  ///< its rows are the projects, which the program fills in
  RunWith,
};

/// A row of a menu. A row without a name is a separator; one with a name and no command opens a
/// menu.
struct MenuRow {
  std::string_view Name;  ///< of the entry, "mnuSave"
  std::string_view Caption;
  std::string_view Key;  ///< "Ctrl+S"; "" for none
  std::optional<Command> Does;
  SubMenu Opens = SubMenu::None;
};

/// A menu of the menu bar. The menu with no rows of its own shows the tools, in screen order.
struct MenuColumn {
  std::string_view Caption;
  std::span<const MenuRow> Rows;
  bool ShowsTools = false;
};

/// A button of `BtnMenu`, by its index.
struct ToolbarButton {
  std::string_view Tip;
  Command Does;
  bool SeparatorAfter = false;
};

/// The menu bar of the main window, left to right.
[[nodiscard]] std::span<const MenuColumn> MenuBar() noexcept;
/// The rows of a menu that opens from a row; none for a menu that the program fills.
[[nodiscard]] std::span<const MenuRow> RowsOf(SubMenu menu) noexcept;
/// `BtnMenu` of the main window.
[[nodiscard]] std::span<const ToolbarButton> MainToolbar() noexcept;
/// `BtnBarMenu`, the small bar above the form list.
[[nodiscard]] std::span<const ToolbarButton> FormListBar() noexcept;
/// The pop-up menu of a design form and its objects. Its keys are only shown.
[[nodiscard]] std::span<const MenuRow> ObjectPopUpRows() noexcept;
/// The row of the menu bar that runs a command; null for none.
[[nodiscard]] const MenuRow* MenuRowOf(Command command) noexcept;

}  // namespace tarnwick
