#include "editor/code_target.h"

#include <algorithm>

#include "text/code_page.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick::editor {

namespace {

constexpr std::string_view kFormWord = "Form";
constexpr std::string_view kFileWordOfForm = "form";

/// True when the form's own menu bar is shown and has an item or title of that name.
bool IsMenuName(const DesignForm& window, std::string_view name) {
  if (name.empty() || !window.MenuBarVisible()) return false;
  const std::vector<ControlRef>& controls = window.Controls();
  return std::any_of(controls.begin(), controls.end(), [name](const ControlRef& control) {
    return (control->Id == Kind::Menu || control->Id == Kind::MenuItem) && control->Visible &&
           EqualsFolded(control->Tag, name);
  });
}

std::string WithoutBrackets(std::string_view text) {
  std::string out;
  std::copy_if(text.begin(), text.end(), std::back_inserter(out),
               [](char c) { return c != '(' && c != ')'; });
  return out;
}

}  // namespace

CodeTarget TargetOfSelection(const DesignForm& window) {
  CodeTarget target;
  target.Form = window.Number();
  target.NameObjet = window.NameObjet;
  target.IndexObjet = window.IndexObjet;
  if (IsMenuName(window, window.NameObjet)) {
    target.What = CodeTarget::Sort::MenuItem;
  } else if (window.NameObjet == kFormWord) {
    target.What = CodeTarget::Sort::Form;
  } else {
    target.What = CodeTarget::Sort::Object;
    target.KindWord = WithoutDigits(window.NameObjet);
  }
  return target;
}

CodeTarget TargetOfKey(std::string_view key, int form) {
  CodeTarget target;
  target.What = CodeTarget::Sort::NamedItem;
  const std::size_t dot = std::min(key.find('.'), key.size());
  std::string_view owner = key.substr(0, dot);
  if (StartsWithFolded(owner, kFormWord)) {
    owner.remove_prefix(kFormWord.size());
    if (const auto number = ToInt16(Val(owner)); number && *number > 0) form = *number;
  }
  target.Form = form;
  target.NameObjet = key.substr(std::min(dot + 1, key.size()));
  return target;
}

EventKey EventKeyOf(std::string_view key) noexcept {
  const std::size_t last = key.rfind('.');
  // The second part is a name, also where it reads like an event.
  if (last == std::string_view::npos || key.find('.') == last) return {key};
  const std::optional<Event> event = EventOfName(key.substr(last + 1));
  return event ? EventKey{key.substr(0, last), *event, true} : EventKey{key};
}

std::string KeyPrefixOf(const CodeTarget& target) {
  std::string prefix = std::string(kFormWord) + NumberText(static_cast<std::int64_t>(target.Form));
  if (target.What == CodeTarget::Sort::Form) return prefix;
  prefix += '.';
  if (target.What != CodeTarget::Sort::Object) return prefix + target.NameObjet;
  const std::optional<Kind> kind = KindOfTag(Lower(target.KindWord));
  const std::string_view array = kind ? InfoOf(*kind).Array : std::string_view(target.KindWord);
  return prefix.append(array) + NumberText(static_cast<std::int64_t>(target.IndexObjet));
}

std::string BarNameOf(const CodeTarget& target) {
  if (target.What == CodeTarget::Sort::Form) return std::string(kFormWord);
  if (target.What != CodeTarget::Sort::Object) return target.NameObjet;
  const std::string prefix = KeyPrefixOf(target);
  return prefix.substr(prefix.find('.') + 1);
}

std::vector<EventRow> EventRowsOf(std::string_view kind_word, std::string_view caption) {
  const std::string name = WithoutBrackets(caption);
  std::vector<EventRow> rows;
  for (const Event event : EventListOfTag(Lower(kind_word)).Events) {
    rows.push_back({"Sub " + name + "_" + std::string(InfoOf(event).Signature), event});
  }
  return rows;
}

int DefaultRowOf(std::string_view kind_word, const std::vector<EventRow>& rows) {
  if (rows.empty()) return -1;
  if (!EqualsFolded(kind_word, kFileWordOfForm)) return 0;
  const auto show = std::find_if(rows.begin(), rows.end(),
                                 [](const EventRow& row) { return row.Id == Event::OnShow; });
  return show == rows.end() ? 0 : static_cast<int>(show - rows.begin());
}

}  // namespace tarnwick::editor
