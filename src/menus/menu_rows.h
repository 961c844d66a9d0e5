// Rows of a designer to and from menus: the menu arrays, a form's menu bar, a popup menu.
#pragma once

#include <string>
#include <vector>

#include "model/menu_row.h"
#include "model/project_records.h"

namespace tarnwick::menus {

using Rows = std::vector<std::string>;

/// Refills the menu arrays from the rows of a designer; empty rows are passed over.
void ParseMenuRows(ProjectTables& tables, const Rows& rows);
/// Builds the visible menu of a form from the menu arrays; the entries of `MenuRows` that have
/// been used are emptied.
void BuildFormMenu(ProjectTables& tables, DesignForm& window);
/// Takes the menu of a form away and empties the menu arrays.
void ClearFormMenu(ProjectTables& tables, DesignForm& window);
/// The rows of a form's own menu bar: each title, followed by its items.
[[nodiscard]] Rows RowsOfFormMenu(const DesignForm& window);

/// Refills a popup menu from rows: top-level rows with the sub-items under them. A nested row
/// ahead of the first top-level row hangs under nothing and is dropped.
void ParsePopUpRows(PopUpFormRec& popup, const Rows& rows);
[[nodiscard]] Rows RowsOfPopUp(const PopUpFormRec& popup);

}  // namespace tarnwick::menus
