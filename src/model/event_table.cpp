#include "model/event_table.h"

#include <algorithm>
#include <charconv>

#include "text/short_bytes.h"

namespace tarnwick {

namespace {

/// What an entry without code holds.
const std::string kNoCode;

/// Room for the longest key of an object: the words and two numbers.
using KeyBuffer = std::array<char, 64>;

std::string_view KeyOf(const ObjectPlace& object, KeyBuffer& buffer) noexcept {
  char* const end = buffer.data() + buffer.size();
  char* at = CopyBytes(buffer.data(), InfoOf(Kind::Form).Name);
  at = std::to_chars(at, end, object.Form).ptr;
  *at++ = '.';
  at = CopyBytes(at, InfoOf(object.Id).Array);
  at = std::to_chars(at, end, object.Number).ptr;
  return {buffer.data(), static_cast<std::size_t>(at - buffer.data())};
}

}  // namespace

const std::string* EventCodeTable::Owner::Find(Event event) const noexcept {
  return FindSlot(static_cast<std::size_t>(event));
}

const std::string* EventCodeTable::Owner::FindSlot(std::size_t slot) const noexcept {
  if (!present_[slot]) return nullptr;
  for (const auto& [held, code] : codes_) {
    if (held == slot) return &code;
  }
  return &kNoCode;
}

std::vector<EventCodeTable::Owner::Code>::iterator EventCodeTable::Owner::SpotOf(
    std::size_t slot) noexcept {
  return std::find_if(codes_.begin(), codes_.end(), [&](const Code& c) { return c.first == slot; });
}

EventSet EventCodeTable::Owner::FilledEvents() const noexcept {
  EventSet events;
  for (const auto& [slot, code] : codes_) {
    if (slot < kEventCount) events.set(slot);
  }
  return events;
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

std::uint32_t EventCodeTable::HashOf(std::string_view key) noexcept {
  return static_cast<std::uint32_t>(FoldedHash{}(key));
}

std::size_t EventCodeTable::SlotOf(std::uint32_t hash, std::string_view key) const noexcept {
  const std::size_t mask = index_.size() - 1;
  std::size_t slot = hash & mask;
  while (index_[slot].Number != 0 &&
         (index_[slot].Hash != hash || !EqualsFolded(owners_[index_[slot].Number - 1].key_, key))) {
    slot = (slot + 1) & mask;
  }
  return slot;
}

std::uint32_t EventCodeTable::NumberOf(std::string_view key) const noexcept {
  return index_.empty() ? 0 : index_[SlotOf(HashOf(key), key)].Number;
}

std::uint32_t EventCodeTable::NumberFor(std::string_view key) {
  if (2 * (owners_.size() + 1) > index_.size()) GrowIndex();
  const std::uint32_t hash = HashOf(key);
  Slot& slot = index_[SlotOf(hash, key)];
  if (slot.Number == 0) {
    Owner& made = owners_.emplace_back();
    made.key_ = key;
    slot = {hash, static_cast<std::uint32_t>(owners_.size())};
  }
  return slot.Number;
}

void EventCodeTable::GrowIndex() {
  constexpr std::size_t kLeast = 64;
  std::vector<Slot> old(std::max(kLeast, 2 * index_.size()));
  old.swap(index_);
  const std::size_t mask = index_.size() - 1;
  for (const Slot& entry : old) {
    if (entry.Number == 0) continue;
    std::size_t slot = entry.Hash & mask;
    while (index_[slot].Number != 0) slot = (slot + 1) & mask;
    index_[slot] = entry;
  }
}

const EventCodeTable::Owner* EventCodeTable::OwnerOf(std::string_view owner) const noexcept {
  const std::uint32_t number = NumberOf(owner);
  return number == 0 ? nullptr : &owners_[number - 1];
}

EventCodeTable::Owner& EventCodeTable::OwnerFor(std::string_view key) {
  return owners_[NumberFor(key) - 1];
}

const EventCodeTable::Owner* EventCodeTable::OwnerOf(const ObjectPlace& object) const noexcept {
  const auto form = static_cast<std::size_t>(object.Form);
  if (form < places_.size()) {
    const auto& numbers = places_[form][static_cast<std::size_t>(object.Id)];
    const auto place = static_cast<std::size_t>(object.Number) - 1;
    if (place < numbers.size()) return &owners_[numbers[place] - 1];
  }
  KeyBuffer buffer;
  return OwnerOf(KeyOf(object, buffer));
}

EventCodeTable::Owner& EventCodeTable::OwnerFor(const ObjectPlace& object) {
  KeyBuffer buffer;
  const std::uint32_t number = NumberFor(KeyOf(object, buffer));
  const auto form = static_cast<std::size_t>(object.Form);
  // A form or an object far ahead of the others is not worth the empty places before it.
  if (form <= places_.size() + 1) {
    if (form >= places_.size()) places_.resize(form + 1);
    auto& numbers = places_[form][static_cast<std::size_t>(object.Id)];
    if (object.Number >= 1 && static_cast<std::size_t>(object.Number) == numbers.size() + 1) {
      numbers.push_back(number);
    }
  }
  return owners_[number - 1];
}

const std::string* EventCodeTable::Find(std::string_view key) const noexcept {
  const Place place = PositionOf(key);
  const Owner* owner = OwnerOf(place.Owner);
  return owner == nullptr ? nullptr : owner->Find(static_cast<Event>(place.Slot));
}

bool EventCodeTable::Add(std::string_view key, std::string_view value) {
  const Place place = PositionOf(key);
  return Add(OwnerFor(place.Owner), place.Slot, value);
}

bool EventCodeTable::Add(std::string_view owner, Event event, std::string_view value) {
  return Add(OwnerFor(owner), event, value);
}

void EventCodeTable::Replace(Owner& owner, std::uint8_t slot, std::string&& value) {
  if (Add(owner, slot, value)) return;
  const auto spot = owner.SpotOf(slot);
  if (spot == owner.codes_.end()) {
    if (!value.empty()) owner.codes_.emplace_back(slot, std::move(value));
  } else if (value.empty()) {
    owner.codes_.erase(spot);
  } else {
    spot->second = std::move(value);
  }
}

void EventCodeTable::Replace(std::string_view key, std::string value) {
  const Place place = PositionOf(key);
  Replace(OwnerFor(place.Owner), place.Slot, std::move(value));
}

void EventCodeTable::Replace(std::string_view owner, Event event, std::string value) {
  Replace(OwnerFor(owner), static_cast<std::uint8_t>(event), std::move(value));
}

bool EventCodeTable::Remove(std::string_view key) noexcept {
  const Place place = PositionOf(key);
  const std::uint32_t number = NumberOf(place.Owner);
  if (number == 0) return false;
  Owner& owner = owners_[number - 1];
  if (!owner.present_[place.Slot]) return false;
  owner.present_.reset(place.Slot);
  const auto spot = owner.SpotOf(place.Slot);
  if (spot != owner.codes_.end()) owner.codes_.erase(spot);
  --size_;
  return true;
}

void EventCodeTable::Clear() noexcept {
  index_.clear();
  places_.clear();
  owners_.clear();
  size_ = 0;
}

}  // namespace tarnwick
