#include "inspector/objects_examiner.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "inspector/property_sheet.h"
#include "text/code_page.h"

namespace tarnwick {

namespace {

/// Rows that are called otherwise than the member behind them.
std::string_view MemberOfRow(std::string_view row) noexcept {
  if (EqualsFolded(row, "FontColor")) return "Font";
  if (EqualsFolded(row, "TranspColor")) return "TransparentColor";
  return row;
}

}  // namespace

void FormViewObjects::Open() {
  kinds_ = tables_.ListaObjetos;
  members_.clear();
  text_.clear();
  kind_row_ = -1;
  member_row_ = -1;
  const int wanted = std::exchange(WantedRow, 0);
  SelectKind(wanted);
  if (wanted == 0) SelectPresent();
}

/// The kind of the selection, where the language has it, and the member behind the selected row.
void FormViewObjects::SelectPresent() {
  const std::string_view kind = sheet_.SelectedKind();
  const auto found = std::find_if(kinds_.begin(), kinds_.end(), [kind](const std::string& name) {
    return EqualsFolded(name, kind);
  });
  if (found == kinds_.end()) return;
  SelectKind(static_cast<int>(found - kinds_.begin()));
  if (!sheet_.HasSelectedRow()) return;
  const std::string_view member = MemberOfRow(sheet_.Label(sheet_.RowIndex()));
  for (std::size_t i = 0; i < members_.size(); ++i) {
    if (EqualsFolded(members_[i], member)) return SelectMember(static_cast<int>(i));
  }
}

void FormViewObjects::SelectKind(int row) {
  if (row < 0 || static_cast<std::size_t>(row) >= kinds_.size()) return;
  kind_row_ = row;
  member_row_ = -1;
  members_.clear();
  const std::string& kind = kinds_[static_cast<std::size_t>(row)];
  if (const auto* members = tables_.MemberLists.Find(kind)) {
    for (const language::KindMember& member : *members) members_.push_back(member.Name);
  }
  ShowHelp(tables_.HelpOfKind(kind));
}

void FormViewObjects::SelectMember(int row) {
  if (kind_row_ < 0 || row < 0 || static_cast<std::size_t>(row) >= members_.size()) return;
  member_row_ = row;
  ShowHelp(tables_.HelpOfMember(kinds_[static_cast<std::size_t>(kind_row_)],
                                members_[static_cast<std::size_t>(row)]));
}

void FormViewObjects::Find(std::string_view text) {
  for (std::size_t i = 0; i < kinds_.size(); ++i) {
    if (!StartsWithFolded(kinds_[i], text)) continue;
    SelectKind(static_cast<int>(i));
    return;
  }
}

void FormViewObjects::ShowHelp(const std::string* help) {
  if (help != nullptr) text_ = *help;
}

}  // namespace tarnwick
