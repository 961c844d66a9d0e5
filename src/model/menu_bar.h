// The menu bar in the tables and on a form: titles and items, added one by one.
#pragma once

#include <string_view>

#include "model/menu_row.h"
#include "model/project_records.h"

namespace tarnwick {

/// Adds a title to the menu arrays.
void AddMenuTitle(ProjectTables& tables, std::string_view caption, std::string_view name);
/// Adds an item under the last title; under none its `Parent` is 0.
void AddMenuItem(ProjectTables& tables, std::string_view caption, std::string_view name);
/// Adds a visible title control to a form's own menu bar.
void AddTitleControl(DesignForm& window, std::string_view caption, std::string_view name);
/// Adds an item control under the form's last title control.
void AddItemControl(DesignForm& window, std::string_view caption, std::string_view name);
/// Rebuilds a form's menu controls from the menu arrays, in the order of titles and items.
void BuildMenuControls(const ProjectTables& tables, DesignForm& window);
/// Unloads all menu controls of a form.
void ClearMenuControls(DesignForm& window);

}  // namespace tarnwick
