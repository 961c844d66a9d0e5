#include "menus/menu_rows.h"

#include <cstdint>

#include "model/menu_bar.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kGap = "    (";

std::string_view NameOf(std::string_view row) {
  const std::size_t open = row.find('(');
  const std::size_t close = row.find(')');
  if (open == std::string_view::npos || close == std::string_view::npos || close < open) return {};
  return row.substr(open + 1, close - open - 1);
}

/// The pieces as the parse at confirmation takes them: the gap of four blanks ends the caption,
/// and blanks at its start stay.
struct ParsedRow {
  bool Nested;
  std::string_view WithPrefix;
  std::string_view Caption;
  std::string_view Name;
};

ParsedRow ParseRow(std::string_view row) {
  ParsedRow parsed{row.starts_with(kMenuDepth), row.substr(0, row.find(kGap)), {}, NameOf(row)};
  parsed.Caption = parsed.WithPrefix;
  if (parsed.Nested) parsed.Caption.remove_prefix(kMenuDepth.size());
  parsed.Caption = TrimRight(parsed.Caption);
  return parsed;
}

}  // namespace

std::string MenuRowText(bool nested, std::string_view caption, std::string_view name) {
  std::string row(nested ? kMenuDepth : std::string_view());
  return row.append(caption).append(kGap).append(name).append(")");
}

MenuRowParts SplitMenuRow(std::string_view row) {
  MenuRowParts parts;
  parts.Nested = row.starts_with(kMenuDepth);
  std::string_view caption = Trim(row.substr(0, row.find('(')));
  if (caption.starts_with(kMenuDepth)) caption.remove_prefix(kMenuDepth.size());
  parts.Caption = caption;
  parts.Name = NameOf(row);
  return parts;
}

bool IsEmptyMenuRow(std::string_view row) noexcept {
  while (row.starts_with(kMenuDepth)) row.remove_prefix(kMenuDepth.size());
  return row.empty();
}

void ParseMenuRows(ProjectTables& tables, const std::vector<std::string>& rows) {
  tables.ClearMenuArrays();
  for (const std::string& row : rows) {
    if (IsEmptyMenuRow(row)) continue;
    const ParsedRow parsed = ParseRow(row);
    tables.MenuRows.emplace_back(parsed.WithPrefix);
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

std::vector<std::string> RowsOfFormMenu(const DesignForm& window) {
  std::vector<std::vector<std::string>> items(static_cast<std::size_t>(window.UBound(Kind::Menu)) +
                                              1);
  for (const ControlRef& control : window.Controls()) {
    const auto title = static_cast<std::size_t>(control->MenuParent);
    if (control->Id != Kind::MenuItem || control->Index == 0 || title >= items.size()) continue;
    items[title].push_back(MenuRowText(true, control->Caption, control->Tag));
  }
  std::vector<std::string> rows;
  for (int index = 1; index <= window.UBound(Kind::Menu); ++index) {
    const ControlRef title = window.Element(Kind::Menu, index);
    if (!title) continue;
    rows.push_back(MenuRowText(false, title->Caption, title->Tag));
    for (std::string& item : items[static_cast<std::size_t>(index)]) {
      rows.push_back(std::move(item));
    }
  }
  return rows;
}

void ParsePopUpRows(PopUpFormRec& popup, const std::vector<std::string>& rows) {
  popup.Items.assign(1, {});
  for (const std::string& row : rows) {
    if (IsEmptyMenuRow(row)) continue;
    const ParsedRow parsed = ParseRow(row);
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

std::vector<std::string> RowsOfPopUp(const PopUpFormRec& popup) {
  std::vector<std::string> rows;
  for (std::size_t row = 1; row < popup.Items.size(); ++row) {
    const PopUpMenuRec& top = popup.Items[row];
    rows.push_back(MenuRowText(false, top.Caption, top.Name));
    for (std::size_t entry = 1; entry < top.Entries.size(); ++entry) {
      rows.push_back(MenuRowText(true, top.Entries[entry].Text, top.Entries[entry].Name));
    }
  }
  return rows;
}

}  // namespace tarnwick
