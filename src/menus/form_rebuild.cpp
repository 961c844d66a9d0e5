#include "menus/form_rebuild.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/menu_bar.h"
#include "persistence/form_writer.h"
#include "project/open_project.h"
#include "text/code_page.h"

namespace tarnwick::menus {

namespace {

constexpr std::string_view kTemporaryText = "\\~1.txt";

bool IsDigit(char c) noexcept {
  return c >= '0' && c <= '9';
}

/// True for what stands behind a form's key in the keys of its own events and its objects' ones:
/// ".OnShow", ".Button2.OnClick". Items of menus go by their names.
bool BelongsToObjects(std::string_view rest) {
  if (rest.empty() || rest.front() != '.') return false;
  rest.remove_prefix(1);
  const std::size_t dot = rest.find('.');
  if (dot == std::string_view::npos) return true;
  std::string_view word = rest.substr(0, dot);
  const std::size_t whole = word.size();
  while (!word.empty() && IsDigit(word.back())) word.remove_suffix(1);
  if (word.size() == whole) return false;
  for (const KindInfo& kind : ObjectKinds()) {
    if (EqualsFolded(kind.Array, word)) return true;
  }
  return false;
}

using Codes = std::vector<std::pair<std::string, std::string>>;

/// Takes the events of a form and of its objects out of the table.
Codes TakeFormCodes(EventCodeTable& table, std::string_view form_key) {
  Codes codes;
  table.ForEach([&](const std::string& key, const std::string& code) {
    if (!StartsWithFolded(key, form_key)) return;
    if (BelongsToObjects(std::string_view(key).substr(form_key.size()))) {
      codes.emplace_back(key, code);
    }
  });
  for (const auto& [key, code] : codes) table.Remove(key);
  return codes;
}

/// Writes the text and reads it back. The file is what a crash leaves of the form; when it cannot
/// be read, or another instance of the program has replaced it, the text itself is used.
std::string ThroughFile(FilePort& files, const std::string& path, std::string text) {
  if (!files.Replace(path, text)) return text;
  std::optional<std::string> back = files.Read(path);
  return back == text ? *std::move(back) : text;
}

}  // namespace

bool RebuildFormWithMenu(project::ProjectContext& context, int form, const Rows& rows) {
  ProjectTables& tables = context.Tables;
  if (!tables.IsLive(form)) return false;
  const bool unlocked = tables.User(form)->m_bDesignMode;
  const auto arrays = std::tuple(tables.MenuRows, tables.MenuTitles, tables.MenuItems);

  DesignForm menu;
  menu.SetNumber(form);
  ParseMenuRows(tables, rows);
  BuildFormMenu(tables, menu);
  const std::string text =
      ThroughFile(context.Files, tables.ProgramFolder + std::string(kTemporaryText),
                  FormFileTextWithMenu(tables, form, menu));

  const Codes codes = TakeFormCodes(tables.EventTable, menu.KeyPrefix());
  if (project::ReadFormTextInto(context, text, form) != FormReadResult::Read) {
    std::tie(tables.MenuRows, tables.MenuTitles, tables.MenuItems) = arrays;
    for (const auto& [key, code] : codes) tables.EventTable.Replace(key, code);
    return false;
  }
  for (std::string& row : tables.MenuRows) row.clear();
  tables.User(form)->m_bDesignMode = unlocked;
  context.Container.ActivateForm(form);
  context.Observer.MenuBarChanged(form);
  return true;
}

}  // namespace tarnwick::menus
