// The menu that a designer's rows make, as it is shown beside them.
#pragma once

#include <string>
#include <vector>

#include "menus/menu_design.h"
#include "menus/menu_rows.h"

namespace tarnwick::menus {

struct PreviewItem {
  int Row = 0;  ///< of the designer
  std::string Caption;
  [[nodiscard]] bool IsSeparator() const noexcept { return Caption == kMenuSeparator; }
  friend bool operator==(const PreviewItem&, const PreviewItem&) = default;
};

/// A title of the bar with its items, or an entry of a popup menu with its sub-items.
struct PreviewMenu {
  PreviewItem Head;
  std::vector<PreviewItem> Items;
  friend bool operator==(const PreviewMenu&, const PreviewMenu&) = default;
};

/// The menu of the rows: a menu bar with the captions that the design form shows, a popup menu with
/// those of the program. Empty rows, and nested ones ahead of the first top-level row, are not
/// in it.
[[nodiscard]] std::vector<PreviewMenu> PreviewOf(const MenuDesign& design, const Rows& rows);
/// The index of the menu that a row belongs to, as head or as item; -1 for none.
[[nodiscard]] int PreviewMenuOf(const std::vector<PreviewMenu>& menus, int row) noexcept;

}  // namespace tarnwick::menus
