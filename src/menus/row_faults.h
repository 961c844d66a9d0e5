// What is wrong with the rows of a menu. All of them are taken all the same.
#pragma once

#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

#include "menus/menu_design.h"
#include "menus/menu_rows.h"
#include "text/code_page.h"

namespace tarnwick::menus {

/// Names as the language compares them, without regard to case.
using NameSet = std::unordered_set<std::string, FoldedHash, FoldedEqual>;

/// The names of the whole project but for those of a form's own menu bar: forms, objects, items of
/// the other menus.
[[nodiscard]] NameSet NamesBesideMenuBar(const ProjectTables& tables, int form);
/// The same but for the items of popup menus with that number, which share their rows.
[[nodiscard]] NameSet NamesBesidePopUp(const ProjectTables& tables, int index);

/// For each row what is wrong with it, a sentence; "" for a good row and for an empty one. `others`
/// are the names that the menu's items must not have.
[[nodiscard]] std::vector<std::string> FaultsOfRows(const MenuDesign& design, const Rows& rows,
                                                    const NameSet& others);

}  // namespace tarnwick::menus
