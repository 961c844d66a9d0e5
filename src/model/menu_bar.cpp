#include "model/menu_bar.h"

#include <string>

#include "text/numbers.h"

namespace tarnwick {

void AddMenuTitle(ProjectTables& tables, std::string_view caption, std::string_view name) {
  MenuBarRec title;
  title.Caption = caption;
  title.Tag = "Menu" + NumberText(static_cast<std::int64_t>(tables.MenuTitles.size()));
  title.Name = name;
  tables.MenuTitles.push_back(std::move(title));
}

void AddMenuItem(ProjectTables& tables, std::string_view caption, std::string_view name) {
  MenuItemRec item;
  const std::size_t titles = tables.MenuTitles.size() - 1;
  item.Caption = caption;
  item.Parent = ToInt16(static_cast<double>(titles)).value_or(0);
  item.Tag = "Item" + NumberText(static_cast<std::int64_t>(tables.MenuItems.size()));
  item.Name = name;
  if (titles > 0) {
    tables.MenuTitles.back().LastItem = static_cast<std::int32_t>(tables.MenuItems.size());
  }
  tables.MenuItems.push_back(std::move(item));
}

void AddTitleControl(DesignForm& window, std::string_view caption, std::string_view name) {
  const ControlRef& control = window.Load(Kind::Menu);
  control->Caption = caption;
  control->Tag = name;
  control->Visible = true;
}

void AddItemControl(DesignForm& window, std::string_view caption, std::string_view name) {
  const auto parent = ToInt16(window.UBound(Kind::Menu)).value_or(0);
  const ControlRef& control = window.Load(Kind::MenuItem);
  control->Caption = caption;
  control->Tag = name;
  control->MenuParent = parent;
  control->Visible = true;
}

void BuildMenuControls(const ProjectTables& tables, DesignForm& window) {
  ClearMenuControls(window);
  std::size_t item = 1;
  for (std::size_t title = 1; title < tables.MenuTitles.size(); ++title) {
    const MenuBarRec& rec = tables.MenuTitles[title];
    AddTitleControl(window, rec.Caption, rec.Name);
    for (;
         item < tables.MenuItems.size() && tables.MenuItems[item].Parent <= static_cast<int>(title);
         ++item) {
      // An item before the first title belongs to no title and is left out.
      if (tables.MenuItems[item].Parent == static_cast<int>(title)) {
        AddItemControl(window, tables.MenuItems[item].Caption, tables.MenuItems[item].Name);
      }
    }
  }
}

void ClearMenuControls(DesignForm& window) {
  window.UnloadAll(Kind::MenuItem);
  window.UnloadAll(Kind::Menu);
}

}  // namespace tarnwick
