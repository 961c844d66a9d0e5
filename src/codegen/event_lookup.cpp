#include "codegen/event_lookup.h"

#include "text/numbers.h"

namespace tarnwick {

namespace {

constexpr int kNoNumber = -1;

}  // namespace

void EventLookup::SetForm(int form) {
  key_ = "Form";
  AppendNumber(key_, std::int64_t{form});
  form_size_ = key_.size();
  for (auto& codes : known_) codes.clear();
}

const EventCodeTable::Owner* EventLookup::OwnerBehindDot(std::string_view name, int number) {
  key_.resize(form_size_);
  key_ += '.';
  key_ += name;
  if (number != kNoNumber) AppendNumber(key_, std::int64_t{number});
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
  auto& codes = known_[static_cast<std::size_t>(kind)];
  const auto place = static_cast<std::size_t>(ordinal) - 1;
  if (ordinal >= 1 && place < codes.size()) return codes[place];
  const OwnerCode code(OwnerBehindDot(InfoOf(kind).Array, ordinal));
  if (ordinal >= 1 && place == codes.size()) codes.push_back(code);
  return code;
}

std::string_view EventLookup::OnClickOf(std::string_view item) {
  return CodeOf(OwnerBehindDot(item, kNoNumber), Event::OnClick);
}

std::string_view EventLookup::OnPopUpOf(std::string_view name, int number) {
  const std::string_view code = CodeOf(OwnerBehindDot(name, kNoNumber), Event::OnPopUp);
  if (!code.empty()) return code;
  return CodeOf(OwnerBehindDot(InfoOf(Kind::PopUpMenu).Array, number), Event::OnPopUp);
}

}  // namespace tarnwick
