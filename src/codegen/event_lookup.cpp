#include "codegen/event_lookup.h"

#include "text/numbers.h"

namespace tarnwick {

namespace {

std::string FormKey(int form) {
  return std::string(InfoOf(Kind::Form).Name) + NumberText(std::int64_t{form});
}

}  // namespace

OwnerCode EventLookup::OfForm() const {
  return OwnerCode(table_.OwnerOf(FormKey(form_)));
}

OwnerCode EventLookup::OfObject(Kind kind, int ordinal) {
  auto& found = found_[static_cast<std::size_t>(kind)];
  const auto row = static_cast<std::size_t>(ordinal) - 1;  // number 0 is past the end
  if (row < found.size()) return OwnerCode(found[row]);
  key_.clear();
  AppendObjectKey(key_, form_, kind, ordinal);
  const EventCodeTable::Owner* const owner = table_.OwnerOf(key_);
  if (row == found.size()) found.push_back(owner);
  return OwnerCode(owner);
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
