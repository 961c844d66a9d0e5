// Rows of a menu as the designers list them: "...&New    (mnuNew)".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/project_records.h"

namespace tarnwick {

/// The pieces of a row.
struct MenuRowParts {
  bool Nested = false;  ///< the row begins with the depth prefix
  std::string Caption;
  std::string Name;
};

/// A row from its pieces: prefix, caption, four blanks and the name in brackets.
[[nodiscard]] std::string MenuRowText(bool nested, std::string_view caption, std::string_view name);
/// The pieces as the designers show them: the caption is what stands before the first "(",
/// trimmed, without its prefix; the name stands between the first "(" and the first ")". A row
/// that breaks the grammar gives empty parts.
[[nodiscard]] MenuRowParts SplitMenuRow(std::string_view row);
/// True for a row that is not filled yet: nothing in it but depth prefixes.
[[nodiscard]] bool IsEmptyMenuRow(std::string_view row) noexcept;

/// Fills the menu arrays anew from the rows of a designer; empty rows are passed over.
void ParseMenuRows(ProjectTables& tables, const std::vector<std::string>& rows);
/// Builds the visible menu of a form from the menu arrays; the entries of `MenuRows` that have
/// been used are emptied.
void BuildFormMenu(ProjectTables& tables, DesignForm& window);
/// Takes the menu of a form away and empties the menu arrays.
void ClearFormMenu(ProjectTables& tables, DesignForm& window);
/// The rows of a form's own menu bar: each title, followed by its items.
[[nodiscard]] std::vector<std::string> RowsOfFormMenu(const DesignForm& window);

/// Fills a popup menu anew from rows: top-level rows with the sub-items under them. A nested row
/// ahead of the first top-level row hangs under nothing and is dropped.
void ParsePopUpRows(PopUpFormRec& popup, const std::vector<std::string>& rows);
[[nodiscard]] std::vector<std::string> RowsOfPopUp(const PopUpFormRec& popup);

}  // namespace tarnwick
