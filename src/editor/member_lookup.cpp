#include "editor/member_lookup.h"

#include <algorithm>

#include "text/code_page.h"

namespace tarnwick::editor {

namespace {

constexpr std::string_view kFormKey = "form";
constexpr std::string_view kTitleKey = "menu";
constexpr std::string_view kItemKey = "item(menu)";

bool IsMenuControl(const DesignControl& control) {
  return control.Id == Kind::Menu || control.Id == Kind::MenuItem;
}

/// The rows of a menu array from 1 on.
template <class Record>
bool HoldsName(const std::vector<Record>& rows, std::string_view name) {
  if (rows.size() < 2) return false;
  return std::any_of(rows.begin() + 1, rows.end(),
                     [name](const Record& row) { return EqualsFolded(row.Name, name); });
}

}  // namespace

std::vector<std::string> MemberLookup::MemberNames(std::string_view key) const {
  std::vector<std::string> names;
  if (const std::vector<language::KindMember>* members = language_.MemberLists.Find(key)) {
    names.reserve(members->size());
    for (const language::KindMember& member : *members) names.push_back(member.Name);
  }
  return names;
}

std::vector<std::string> MemberLookup::TypeNames() const {
  return MemberNames(language::kTypeWord);
}

std::vector<std::string> MemberLookup::MembersOf(std::string_view word) const {
  if (word.empty()) return {};
  const auto fixed =
      std::find_if(fixed_words_.begin(), fixed_words_.end(),
                   [word](std::string_view known) { return EqualsFolded(known, word); });
  if (fixed != fixed_words_.end()) return MemberNames(*fixed);
  const std::string key = KeyOf(word, ListSort::Members);
  return key.empty() ? std::vector<std::string>{} : MemberNames(key);
}

std::vector<std::string> MemberLookup::EventsOf(std::string_view word) const {
  const std::string key = word.empty() ? std::string() : KeyOf(word, ListSort::Events);
  const std::vector<std::string>* events = key.empty() ? nullptr : language_.EventLists.Find(key);
  return events == nullptr ? std::vector<std::string>{} : *events;
}

std::string MemberLookup::KeyOf(std::string_view word, ListSort sort) const {
  for (int form = 1; form <= project_.FormsCount; ++form) {
    if (project_.IsLive(form) && EqualsFolded(project_.Form(form)->Name, word)) {
      return std::string(kFormKey);
    }
  }
  bool menus_searched = false;
  for (int form = 1; form <= project_.FormsCount; ++form) {
    const DesignForm* window = project_.IsLive(form) ? project_.UserIfAny(form) : nullptr;
    if (window == nullptr) continue;
    if (std::string key = KeyOnForm(*window, word, sort, menus_searched); !key.empty()) return key;
  }
  return {};
}

std::string MemberLookup::KeyOnForm(const DesignForm& window, std::string_view word, ListSort sort,
                                    bool& menus_searched) const {
  const bool has_menu = window.MenuBarVisible();
  for (const ControlRef& control : window.Controls()) {
    if (IsMenuControl(*control)) {
      if (!has_menu || !control->Visible) continue;
      // The arrays are those of the whole project: what they lack once they lack for every form.
      if (!menus_searched) {
        menus_searched = true;
        if (HoldsName(project_.MenuTitles, word)) return std::string(kTitleKey);
        if (HoldsName(project_.MenuItems, word)) return std::string(kItemKey);
      }
      if (EqualsFolded(control->Tag, word)) {
        return std::string(control->Id == Kind::Menu ? kTitleKey : kItemKey);
      }
      continue;
    }
    if (!control->Visible || control->Tag.empty() || !EqualsFolded(control->Tag, word)) continue;
    // The member list of pictures stands under another word than their array.
    if (sort == ListSort::Members && control->Id == Kind::Image) return "image";
    return std::string(InfoOf(control->Id).Tag);
  }
  return {};
}

}  // namespace tarnwick::editor
