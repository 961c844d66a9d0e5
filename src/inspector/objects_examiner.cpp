#include "inspector/objects_examiner.h"

#include <cstddef>
#include <utility>

#include "text/code_page.h"

namespace tarnwick {

void FormViewObjects::Open() {
  kinds_ = tables_.ListaObjetos;
  members_.clear();
  text_.clear();
  kind_row_ = -1;
  member_row_ = -1;
  SelectKind(std::exchange(WantedRow, 0));
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
