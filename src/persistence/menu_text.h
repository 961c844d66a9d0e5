// Menus in a form file: item lists of menu bars and popup menus.
#pragma once

#include <string>
#include <string_view>

#include "model/project_records.h"

namespace tarnwick {

/// Appends the menu records of a form, from its own menu controls; none without a menu bar.
void AppendMenuRecords(std::string& out, const ProjectTables& tables, const DesignForm& window);
/// Appends the stored OnClick code of a menu or popup item, if it has any.
void AppendItemCode(std::string& out, const ProjectTables& tables, std::string_view form_key,
                    std::string_view name);
/// Appends the rows of a popup menu as one text.
void AppendPopUpRows(std::string& out, const PopUpFormRec& popup);

/// Adds a title with its items to the menu arrays and builds its controls on the form. `items` is
/// the item list as it is in memory: commas restored.
void ReadMenu(ProjectTables& tables, DesignForm& window, std::string_view caption,
              std::string_view name, std::string_view items);
/// Empties a popup menu and fills it from its rows' text.
void ReadPopUpRows(PopUpFormRec& popup, std::string_view rows);

}  // namespace tarnwick
