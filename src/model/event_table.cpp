#include "model/event_table.h"

#include <algorithm>
#include <charconv>

#include "text/code_page.h"
#include "text/numbers.h"
#include "text/short_bytes.h"

namespace tarnwick {

namespace {

/// What an entry without code holds.
const std::string kNoCode;

/// Room for the longest key of an object: the words and two numbers.
using KeyBuffer = std::array<char, 64>;

/// The key of an object, spelled into the buffer.
std::string_view SpellKey(const ObjectPlace& object, KeyBuffer& buffer) noexcept {
  char* const end = buffer.data() + buffer.size();
  char* at = CopyBytes(buffer.data(), InfoOf(Kind::Form).Name);
  at = std::to_chars(at, end, object.Form).ptr;
  *at++ = '.';
  at = CopyBytes(at, InfoOf(object.Id).Array);
  at = std::to_chars(at, end, object.Number).ptr;
  return {buffer.data(), static_cast<std::size_t>(at - buffer.data())};
}

/// Takes the number off the end of a text: digits as a number prints.
std::optional<int> TakeNumber(std::string_view& text) noexcept {
  std::size_t start = text.size();
  while (start > 0 && text[start - 1] >= '0' && text[start - 1] <= '9') --start;
  const std::string_view digits = text.substr(start);
  if (digits.size() > 1 && digits.front() == '0') return std::nullopt;
  text.remove_suffix(digits.size());
  return PlainDigits<int>(digits);
}

/// The object that a key names, if it is the key of one: "Form1.Button2".
std::optional<ObjectPlace> ObjectUnder(std::string_view key) noexcept {
  const std::size_t dot = key.find('.');
  if (dot == std::string_view::npos) return std::nullopt;
  std::string_view form_word = key.substr(0, dot);
  std::string_view word = key.substr(dot + 1);
  const std::optional<int> form = TakeNumber(form_word);
  if (!form || !EqualsFolded(form_word, InfoOf(Kind::Form).Name)) return std::nullopt;
  const std::optional<int> number = TakeNumber(word);
  if (!number) return std::nullopt;
  for (const KindInfo& kind : kKinds) {
    if (EqualsFolded(kind.Array, word)) return ObjectPlace{*form, kind.Id, *number};
  }
  return std::nullopt;
}

}  // namespace

const std::string* EventCodeTable::Owner::Find(Event event) const noexcept {
  return FindSlot(static_cast<std::size_t>(event));
}

EventCodeTable::Code* EventCodeTable::Owner::CodeOf(std::size_t slot) const noexcept {
  Code* code = last_code_;
  while (code != nullptr && code->Slot != slot) code = code->Before;
  return code;
}

const std::string* EventCodeTable::Owner::FindSlot(std::size_t slot) const noexcept {
  if (!present_[slot]) return nullptr;
  return filled_[slot] ? &CodeOf(slot)->Text : &kNoCode;
}

EventCodeTable::Place EventCodeTable::PositionOf(std::string_view key) noexcept {
  const std::size_t dot = key.rfind('.');
  if (dot != std::string_view::npos) {
    if (const std::optional<Event> event = EventOfName(key.substr(dot + 1))) {
      return {key.substr(0, dot), static_cast<std::uint8_t>(*event)};
    }
  }
  return {key, kNoEvent};
}

std::string EventCodeTable::SuffixOf(std::uint8_t slot) {
  return slot < kEventCount ? std::string(AllEvents()[slot].Suffix) : std::string();
}

std::string EventCodeTable::KeyOf(const Owner& owner) {
  if (owner.name_ != nullptr) return *owner.name_;
  KeyBuffer buffer;
  return std::string(SpellKey(owner.place_, buffer));
}

EventCodeTable::Number EventCodeTable::NumberOfName(std::string_view key) const noexcept {
  const auto found = named_.find(key);
  return found == named_.end() ? 0 : found->second;
}

EventCodeTable::Number EventCodeTable::NumberOf(const ObjectPlace& object) const noexcept {
  const auto form = static_cast<std::size_t>(object.Form);
  const auto place = static_cast<std::size_t>(object.Number);
  if (form < places_.size()) {
    const auto& numbers = places_[form][static_cast<std::size_t>(object.Id)];
    if (place < numbers.size() && numbers[place] != 0) return numbers[place];
  }
  if (!objects_named_) return 0;
  KeyBuffer buffer;
  return NumberOfName(SpellKey(object, buffer));
}

EventCodeTable::Number EventCodeTable::NumberOf(std::string_view key) const noexcept {
  const std::optional<ObjectPlace> object = ObjectUnder(key);
  return object ? NumberOf(*object) : NumberOfName(key);
}

EventCodeTable::Number* EventCodeTable::SpotFor(const ObjectPlace& object) {
  // The empty places before a number far ahead of the others would not be worth it.
  constexpr std::size_t kGap = 16;
  const auto form = static_cast<std::size_t>(object.Form);
  const auto place = static_cast<std::size_t>(object.Number);
  if (form >= places_.size()) {
    if (form > places_.size() + kGap) return nullptr;
    places_.resize(form + 1);
  }
  auto& numbers = places_[form][static_cast<std::size_t>(object.Id)];
  if (place >= numbers.size()) {
    if (place > numbers.size() + kGap) return nullptr;
    numbers.resize(place + 1);
  }
  return &numbers[place];
}

EventCodeTable::Owner& EventCodeTable::MakeOwner(Number& number) {
  Owner& made = owners_.emplace_back();
  number = static_cast<Number>(owners_.size());
  return made;
}

EventCodeTable::Owner& EventCodeTable::OwnerNamed(std::string_view key) {
  if (const Number number = NumberOfName(key); number != 0) return owners_[number - 1];
  auto& entry = *named_.emplace(key, 0).first;
  Owner& made = MakeOwner(entry.second);
  made.name_ = &entry.first;
  return made;
}

EventCodeTable::Owner& EventCodeTable::OwnerFor(const ObjectPlace& object) {
  if (objects_named_) {
    if (const Number number = NumberOf(object); number != 0) return owners_[number - 1];
  }
  if (Number* const spot = SpotFor(object)) {
    if (*spot != 0) return owners_[*spot - 1];
    Owner& made = MakeOwner(*spot);
    made.place_ = object;
    return made;
  }
  objects_named_ = true;
  KeyBuffer buffer;
  return OwnerNamed(SpellKey(object, buffer));
}

EventCodeTable::Owner& EventCodeTable::OwnerFor(std::string_view key) {
  const std::optional<ObjectPlace> object = ObjectUnder(key);
  if (!object) return OwnerNamed(key);
  KeyBuffer buffer;
  if (SpellKey(*object, buffer) == key) return OwnerFor(*object);
  // A key in other letters is told as it was written.
  if (const Number number = NumberOf(*object); number != 0) return owners_[number - 1];
  objects_named_ = true;
  return OwnerNamed(key);
}

const std::string* EventCodeTable::Find(std::string_view key) const noexcept {
  const Place place = PositionOf(key);
  const Owner* const owner = OwnerOf(place.Owner);
  return owner == nullptr ? nullptr : owner->FindSlot(place.Slot);
}

void EventCodeTable::Set(Owner& owner, std::uint8_t slot, std::string_view value) {
  owner.filled_.set(slot, !value.empty());
  if (Code* const code = owner.CodeOf(slot)) {
    code->Text = value;
  } else if (!value.empty()) {
    owner.last_code_ = &codes_.emplace_back(Code{std::string(value), owner.last_code_, slot});
  }
}

bool EventCodeTable::Add(Owner& owner, std::uint8_t slot, std::string_view value) {
  if (owner.present_[slot]) return false;
  owner.present_.set(slot);
  Set(owner, slot, value);
  return true;
}

void EventCodeTable::AddEmpty(Owner& owner, EventSet events) {
  owner.present_ |= SlotSet(events.to_ulong());
}

bool EventCodeTable::Add(std::string_view key, std::string_view value) {
  const Place place = PositionOf(key);
  return Add(OwnerFor(place.Owner), place.Slot, value);
}

bool EventCodeTable::Add(std::string_view owner, Event event, std::string_view value) {
  return Add(OwnerFor(owner), event, value);
}

void EventCodeTable::Replace(Owner& owner, std::uint8_t slot, std::string_view value) {
  if (!Add(owner, slot, value)) Set(owner, slot, value);
}

void EventCodeTable::Replace(std::string_view key, std::string_view value) {
  const Place place = PositionOf(key);
  Replace(OwnerFor(place.Owner), place.Slot, value);
}

void EventCodeTable::Replace(std::string_view owner, Event event, std::string_view value) {
  Replace(OwnerFor(owner), static_cast<std::uint8_t>(event), value);
}

bool EventCodeTable::Remove(std::string_view key) noexcept {
  const Place place = PositionOf(key);
  const Number number = NumberOf(place.Owner);
  if (number == 0) return false;
  Owner& owner = owners_[number - 1];
  if (!owner.present_[place.Slot]) return false;
  Set(owner, place.Slot, "");
  owner.present_.reset(place.Slot);
  return true;
}

std::size_t EventCodeTable::Size() const noexcept {
  std::size_t size = 0;
  for (const Owner& owner : owners_) size += owner.present_.count();
  return size;
}

void EventCodeTable::Clear() noexcept {
  named_.clear();
  objects_named_ = false;
  places_.clear();
  owners_.clear();
  codes_.clear();
}

}  // namespace tarnwick
