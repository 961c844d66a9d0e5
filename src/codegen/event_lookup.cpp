#include "codegen/event_lookup.h"

#include <algorithm>
#include <string>

#include "text/numbers.h"

namespace tarnwick {

namespace {

std::string FormKey(int form) {
  return std::string(InfoOf(Kind::Form).Name) + NumberText(std::int64_t{form});
}

constexpr std::uint64_t Packed(int form, int number) {
  return std::uint64_t{static_cast<std::uint32_t>(form)} << 32U |
         static_cast<std::uint32_t>(number);
}

}  // namespace

EventLookup::EventLookup(const EventCodeTable& table) : table_(table) {
  table.ForEachObject([&](const ObjectPlace& object, const EventCodeTable::Owner& owner) {
    if (!owner.HasCode()) return;
    owners_[static_cast<std::size_t>(object.Id)].Rows.push_back(
        {Packed(object.Form, object.Number), &owner});
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
  if (ordinal < 1) return OwnerCode(table_.OwnerOf(ObjectPlace{form_, kind, ordinal}));
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
