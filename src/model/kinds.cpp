#include "model/kinds.h"

#include <algorithm>

#include "text/code_page.h"

namespace tarnwick {

std::optional<Kind> KindOfTag(std::string_view tag) noexcept {
  if (tag.empty()) return std::nullopt;
  const auto is_lower = [](char letter, char lower) { return LowerByte(letter) == lower; };
  for (const KindInfo& kind : kKinds) {
    const bool of_file = IsObjectKind(kind.Id) && std::equal(kind.Name.begin(), kind.Name.end(),
                                                             tag.begin(), tag.end(), is_lower);
    if (kind.Tag == tag || of_file) return kind.Id;
  }
  return std::nullopt;
}

std::optional<Kind> KindOfFileWord(std::string_view word) noexcept {
  for (const KindInfo& kind : ObjectKinds()) {
    if (EqualsFolded(kind.Name, word)) return kind.Id;
  }
  return std::nullopt;
}

std::optional<Kind> KindOfNameObjet(std::string_view name_objet) noexcept {
  const std::string_view word = name_objet.substr(0, name_objet.find_last_not_of("0123456789") + 1);
  for (const KindInfo& kind : kKinds) {
    if (!kind.NameWord.empty() && EqualsFolded(kind.NameWord, word)) return kind.Id;
  }
  return std::nullopt;
}

const EventList& EventListOfTag(std::string_view tag) noexcept {
  const std::optional<Kind> kind = KindOfTag(tag);
  return ListOf(kind ? InfoOf(*kind).Events : EventListId::None);
}

}  // namespace tarnwick
