#include "inspector/objects_examiner.h"

#include <array>
#include <cstddef>
#include <utility>

#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kRowSeparator{"\x95"};

/// Members whose help has a key of its own. An empty member stands for any; the key is the member
/// followed by `Suffix`, or `Key` as a whole.
struct KeyRule {
  std::string_view Kind;
  std::string_view Member;
  std::string_view Suffix;
  std::string_view Key;
};

constexpr std::array kKeyRules{
    KeyRule{"winsock", "", "winsock", ""},         KeyRule{"popupmenu", "alignment", "pop", ""},
    KeyRule{"clipboard", "close", "clip", ""},     KeyRule{"filestream", "close", "file", ""},
    KeyRule{"clipboard", "clear", "clip", ""},     KeyRule{"clipboard", "open", "clip", ""},
    KeyRule{"filestream", "open", "", "openfile"}, KeyRule{"filestream", "size", "", "sizefile"},
    KeyRule{"font", "color", "", "colorfont"},     KeyRule{"richtextbox", "line", "", "linerich"},
    KeyRule{"clipboard", "text", "", "textclip"},
};

}  // namespace

std::string MemberHelpKey(std::string_view kind, std::string_view member) {
  std::string key = Lower(member);
  for (const KeyRule& rule : kKeyRules) {
    if (!EqualsFolded(rule.Kind, kind)) continue;
    if (!rule.Member.empty() && rule.Member != key) continue;
    return rule.Key.empty() ? key.append(rule.Suffix) : std::string{rule.Key};
  }
  return key;
}

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
  const std::string kind = Lower(kinds_[static_cast<std::size_t>(row)]);
  const std::string* list = tables_.MemberLists.Find(kind);
  if (list != nullptr && !list->empty()) {
    for (const std::string_view member : Split(*list, kRowSeparator)) {
      members_.emplace_back(member);
    }
  }
  ShowHelp(kind + "%");
}

void FormViewObjects::SelectMember(int row) {
  if (kind_row_ < 0 || row < 0 || static_cast<std::size_t>(row) >= members_.size()) return;
  member_row_ = row;
  ShowHelp(MemberHelpKey(kinds_[static_cast<std::size_t>(kind_row_)],
                         members_[static_cast<std::size_t>(row)]));
}

void FormViewObjects::Find(std::string_view text) {
  for (std::size_t i = 0; i < kinds_.size(); ++i) {
    if (!StartsWithFolded(kinds_[i], text)) continue;
    SelectKind(static_cast<int>(i));
    return;
  }
}

void FormViewObjects::ShowHelp(const std::string& key) {
  if (const std::string* help = tables_.MemberHelp.Find(key)) text_ = *help;
}

}  // namespace tarnwick
