#include "codegen/event_lookup.h"

#include "text/numbers.h"

namespace tarnwick {

void EventLookup::SetForm(int form) {
  form_ = form;
  key_ = "Form";
  AppendNumber(key_, std::int64_t{form});
  form_size_ = key_.size();
}

const EventCodeTable::Owner* EventLookup::OwnerBehindDot(std::string_view name) {
  key_.resize(form_size_);
  key_ += '.';
  key_ += name;
  return table_.OwnerOf(key_);
}

std::string_view EventLookup::CodeOf(const EventCodeTable::Owner* owner, Event event) {
  const std::string* code = owner == nullptr ? nullptr : owner->Find(event);
  return code == nullptr ? std::string_view() : std::string_view(*code);
}

OwnerCode EventLookup::OfForm() {
  key_.resize(form_size_);
  return OwnerCode(table_.OwnerOf(key_));
}

OwnerCode EventLookup::OfObject(Kind kind, int ordinal) {
  return OwnerCode(table_.OwnerOf({form_, kind, ordinal}));
}

std::string_view EventLookup::OnClickOf(std::string_view item) {
  return CodeOf(OwnerBehindDot(item), Event::OnClick);
}

std::string_view EventLookup::OnPopUpOf(std::string_view name, int number) {
  const std::string_view code = CodeOf(OwnerBehindDot(name), Event::OnPopUp);
  if (!code.empty()) return code;
  return CodeOf(table_.OwnerOf({form_, Kind::PopUpMenu, number}), Event::OnPopUp);
}

}  // namespace tarnwick
