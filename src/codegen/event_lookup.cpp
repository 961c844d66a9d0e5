#include "codegen/event_lookup.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "text/code_page.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

std::string FormKey(int form) {
  return std::string(InfoOf(Kind::Form).Name) + NumberText(std::int64_t{form});
}

/// The number that a text is, printed without sign and leading zeros; 0 for any other text.
int PlainNumber(std::string_view text) {
  constexpr std::size_t kMostDigits = 9;
  if (text.empty() || text.size() > kMostDigits || text.front() == '0') return 0;
  int number = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return 0;
    number = number * 10 + (c - '0');
  }
  return number;
}

/// The kinds by the words of their arrays.
using KindsByWord = std::unordered_map<std::string_view, Kind, FoldedHash, FoldedEqual>;
KindsByWord FindKindsByWord() {
  KindsByWord kinds;
  for (std::size_t kind = 0; kind < kKindCount; ++kind) {
    kinds.emplace(InfoOf(static_cast<Kind>(kind)).Array, static_cast<Kind>(kind));
  }
  return kinds;
}

/// The object that an owner's key names; its form is 0 when it is no object's key.
ObjectPlace PlaceOfKey(std::string_view key, const KindsByWord& kinds) {
  const std::string_view head = InfoOf(Kind::Form).Name;
  const std::size_t dot = key.find('.');
  if (dot == std::string_view::npos || !StartsWithFolded(key, head)) return {};
  const std::string_view object = key.substr(dot + 1);
  const std::size_t letters = object.find_last_not_of("0123456789") + 1;
  const auto kind = kinds.find(object.substr(0, letters));
  const int number = PlainNumber(object.substr(letters));
  if (kind == kinds.end() || number == 0 || dot < head.size()) return {};
  return {PlainNumber(key.substr(head.size(), dot - head.size())), kind->second, number};
}

constexpr std::uint64_t Packed(int form, int number) {
  return std::uint64_t{static_cast<std::uint32_t>(form)} << 32U |
         static_cast<std::uint32_t>(number);
}

}  // namespace

EventLookup::EventLookup(const EventCodeTable& table) : table_(table) {
  const KindsByWord kinds = FindKindsByWord();
  table.ForEachOwner([&](std::string_view key, const EventCodeTable::Owner& owner) {
    if (!owner.HasCode()) return;
    const ObjectPlace place = PlaceOfKey(key, kinds);
    if (place.Form == 0) return;
    owners_[static_cast<std::size_t>(place.Id)].Rows.push_back(
        {Packed(place.Form, place.Number), &owner});
  });
  const auto before = [](const OwnersOfKind::Row& a, const OwnersOfKind::Row& b) {
    return a.Place < b.Place;
  };
  for (OwnersOfKind& owners : owners_) {
    // Mostly they are sorted already: a file has its objects in their order.
    if (!std::ranges::is_sorted(owners.Rows, before)) std::ranges::sort(owners.Rows, before);
  }
}

OwnerCode EventLookup::OfForm() const {
  return OwnerCode(table_.OwnerOf(FormKey(form_)));
}

OwnerCode EventLookup::OfObject(Kind kind, int ordinal) {
  // Past 32,767 the counters turn negative; code can stand under such a key all the same.
  if (ordinal < 1) return OwnerCode(table_.OwnerOf(ObjectKey(form_, kind, ordinal)));
  OwnersOfKind& owners = owners_[static_cast<std::size_t>(kind)];
  const std::uint64_t place = Packed(form_, ordinal);
  const bool is_next = owners.Next < owners.Rows.size() && owners.Rows[owners.Next].Place == place;
  if (!is_next) {
    const auto found = std::ranges::lower_bound(owners.Rows, place, {}, &OwnersOfKind::Row::Place);
    if (found == owners.Rows.end() || found->Place != place) return {};
    owners.Next = static_cast<std::size_t>(found - owners.Rows.begin());
  }
  return OwnerCode(owners.Rows[owners.Next++].Owner);
}

OwnerCode EventLookup::OfName(std::string_view name) const {
  return OwnerCode(table_.OwnerOf(FormKey(form_).append(".").append(name)));
}

std::string_view EventLookup::OnClickOf(std::string_view item) const {
  return OfName(item).Of(Event::OnClick);
}

std::string_view EventLookup::OnPopUpOf(std::string_view name, int number) {
  const std::string_view code = OfName(name).Of(Event::OnPopUp);
  if (!code.empty()) return code;
  return OfObject(Kind::PopUpMenu, number).Of(Event::OnPopUp);
}

}  // namespace tarnwick
