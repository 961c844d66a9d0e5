#include "editor/function_panel.h"

#include <algorithm>

#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick::editor {

namespace {

/// True when the text holds the part, in any letters.
bool HoldsFolded(std::string_view text, std::string_view part) {
  return FindFolded(text, part) != std::string_view::npos;
}

}  // namespace

const std::string* FunctionPanel::RowText(FunctionListId list, int row) const noexcept {
  const std::vector<std::string>& rows = ListFunc(list);
  const bool there = row >= 0 && row < static_cast<int>(rows.size());
  return there ? &rows[static_cast<std::size_t>(row)] : nullptr;
}

void FunctionPanel::Fill() {
  At(FunctionListId::Main) = {language_.ListFunc1, language_.ListFunc1.empty() ? -1 : 0};
  At(FunctionListId::Further) = {language_.ListFunc0, language_.ListFunc0.empty() ? -1 : 0};
  At(FunctionListId::Found) = {};
}

void FunctionPanel::EditSearchChanged(FunctionListId list, std::string_view text) {
  if (list == FunctionListId::Found) return;
  List& shown = At(list);
  const auto match =
      std::find_if(shown.Rows.begin(), shown.Rows.end(),
                   [text](const std::string& row) { return StartsWithFolded(row, text); });
  if (match == shown.Rows.end()) return;
  shown.Row = static_cast<int>(match - shown.Rows.begin());
  if (!text.empty()) ShowHelpOf(*match);
}

void FunctionPanel::AddFound(const std::string& name) {
  if (found_.Add(name, true)) At(FunctionListId::Found).Rows.push_back(name);
}

void FunctionPanel::FindNames(FunctionListId list, std::string_view text) {
  for (const std::string& row : ListFunc(list)) {
    if (HoldsFolded(row, text)) AddFound(row);
  }
}

void FunctionPanel::FindDescriptions(std::string_view text) {
  for (const language::FunctionHelp& function : language_.Functions.Rows()) {
    if (HoldsFolded(function.Help, text)) AddFound(function.Name);
  }
}

void FunctionPanel::Search(std::string_view text, SearchIn where) {
  if (text.empty()) return;
  found_ = {};
  At(FunctionListId::Found) = {};
  if (where != SearchIn::Descriptions) {
    FindNames(FunctionListId::Main, text);
    FindNames(FunctionListId::Further, text);
  }
  if (where != SearchIn::Names) FindDescriptions(text);
  List& found = At(FunctionListId::Found);
  if (found.Rows.empty()) found.Rows.emplace_back(kNotFound);
}

bool FunctionPanel::ShowHelpOf(std::string_view word) {
  const language::FunctionHelp* function = language_.Functions.Find(word);
  if (function == nullptr) return false;
  help_ = Upper(function->Name).append(kLineEnd).append(function->Help);
  return true;
}

void FunctionPanel::Click(FunctionListId list, int row) {
  const std::string* name = RowText(list, row);
  if (name == nullptr) return;
  At(list).Row = row;
  ShowHelpOf(*name);
}

void FunctionPanel::Insert(const std::string& text) {
  const EditRange place = editor_.GetSel();
  editor_.SetSelText(text);
  editor_.SetCaretPos(place.StartLineNo, place.StartColNo + static_cast<int>(text.size()));
  editor_.SetFocus();
}

void FunctionPanel::DoubleClick(FunctionListId list, int row) {
  const std::string* name = RowText(list, row);
  // The row that says that nothing was found is no function.
  if (name == nullptr || (list == FunctionListId::Found && *name == kNotFound)) return;
  Insert(*name + ' ');
}

void FunctionPanel::InsertSelected(FunctionListId list) {
  if (list == FunctionListId::Found) return;
  if (const std::string* name = RowText(list, RowOf(list))) Insert(*name);
}

}  // namespace tarnwick::editor
