// In what the two menu designers differ.
#pragma once

#include <span>
#include <string_view>

namespace tarnwick::menus {

/// A row of an example; its name follows the name of the form.
struct ExampleRow {
  int Depth;
  std::string_view Caption;
  std::string_view Name;
};

/// One of the two designers.
struct MenuDesign {
  std::string_view ObjectName;  ///< of the window
  std::string_view Title;
  std::string_view Step;  ///< what its Ok is called in the history
  std::span<const ExampleRow> Example;
  bool HasBar;       ///< top-level rows are titles of a bar; otherwise entries of the menu itself
  bool Subroutines;  ///< it has a button that opens the code of an item
};

/// `FormMenu`, the designer of menu bars.
[[nodiscard]] const MenuDesign& MenuBarDesign() noexcept;
/// `FormPopUp`, the designer of popup menus.
[[nodiscard]] const MenuDesign& PopUpDesign() noexcept;

}  // namespace tarnwick::menus
