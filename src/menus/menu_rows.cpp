#include "menus/menu_rows.h"

#include <cstdint>

#include "model/menu_bar.h"

namespace tarnwick::menus {

void ParseMenuRows(ProjectTables& tables, const Rows& rows) {
  tables.ClearMenuArrays();
  for (const std::string& row : rows) {
    if (IsEmptyMenuRow(row)) continue;
    const ParsedMenuRow parsed = ParseMenuRow(row);
    tables.MenuRows.emplace_back(parsed.Text);
    if (parsed.Nested) {
      AddMenuItem(tables, parsed.Caption, parsed.Name);
    } else {
      AddMenuTitle(tables, parsed.Caption, parsed.Name);
    }
  }
}

void BuildFormMenu(ProjectTables& tables, DesignForm& window) {
  BuildMenuControls(tables, window);
  for (std::string& row : tables.MenuRows) row.clear();
}

void ClearFormMenu(ProjectTables& tables, DesignForm& window) {
  ClearMenuControls(window);
  tables.ClearMenuArrays();
}

Rows RowsOfFormMenu(const DesignForm& window) {
  std::vector<Rows> items(static_cast<std::size_t>(window.UBound(Kind::Menu)) + 1);
  for (const ControlRef& control : window.Controls()) {
    const auto title = static_cast<std::size_t>(control->MenuParent);
    if (control->Id != Kind::MenuItem || control->Index == 0 || title >= items.size()) continue;
    items[title].push_back(MenuRowText(1, control->Caption, control->Tag));
  }
  Rows rows;
  for (int index = 1; index <= window.UBound(Kind::Menu); ++index) {
    const ControlRef title = window.Element(Kind::Menu, index);
    if (!title) continue;
    rows.push_back(MenuRowText(0, title->Caption, title->Tag));
    for (std::string& item : items[static_cast<std::size_t>(index)]) {
      rows.push_back(std::move(item));
    }
  }
  return rows;
}

void ParsePopUpRows(PopUpFormRec& popup, const Rows& rows) {
  popup.Items.assign(1, {});
  popup.Items.front().Entries.resize(1);
  for (const std::string& row : rows) {
    if (IsEmptyMenuRow(row)) continue;
    const ParsedMenuRow parsed = ParseMenuRow(row);
    if (!parsed.Nested) {
      PopUpMenuRec& top = popup.Items.emplace_back();
      top.Caption = parsed.Caption;
      top.Name = parsed.Name;
      top.Entries.resize(1);
    } else if (popup.Items.size() > 1) {
      PopUpMenuRec& top = popup.Items.back();
      top.Entries.push_back({std::string(parsed.Name), std::string(parsed.Caption)});
      if (top.Level < INT16_MAX) ++top.Level;
    }
  }
}

Rows RowsOfPopUp(const PopUpFormRec& popup) {
  Rows rows;
  for (std::size_t row = 1; row < popup.Items.size(); ++row) {
    const PopUpMenuRec& top = popup.Items[row];
    rows.push_back(MenuRowText(0, top.Caption, top.Name));
    for (std::size_t entry = 1; entry < top.Entries.size(); ++entry) {
      rows.push_back(MenuRowText(1, top.Entries[entry].Text, top.Entries[entry].Name));
    }
  }
  return rows;
}

}  // namespace tarnwick::menus
