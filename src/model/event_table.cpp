#include "model/event_table.h"

#include <algorithm>

namespace tarnwick {

namespace {

/// Room for the events of most kinds.
constexpr std::size_t kUsualEntries = 4;

}  // namespace

const std::string* EventCodeTable::Owner::Find(Event event) const noexcept {
  for (const auto& [slot, value] : entries_) {
    if (slot == static_cast<std::uint8_t>(event)) return &value;
  }
  return nullptr;
}

std::array<const std::string*, kEventCount> EventCodeTable::Owner::Codes() const noexcept {
  std::array<const std::string*, kEventCount> codes{};
  for (const auto& [slot, value] : entries_) {
    if (slot < kEventCount) codes[slot] = &value;
  }
  return codes;
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

const EventCodeTable::Owner* EventCodeTable::FindOwner(std::string_view key) const noexcept {
  if (index_.empty()) return nullptr;
  const std::uint32_t number = index_[SlotOf(HashOf(key), key)].Number;
  return number == 0 ? nullptr : &owners_[number - 1];
}

EventCodeTable::Owner& EventCodeTable::OwnerFor(std::string_view key) {
  if (2 * (owners_.size() + 1) > index_.size()) GrowIndex();
  const std::uint32_t hash = HashOf(key);
  Slot& slot = index_[SlotOf(hash, key)];
  if (slot.Number == 0) {
    Owner& made = owners_.emplace_back();
    made.key_ = key;
    made.entries_.reserve(kUsualEntries);
    slot = {hash, static_cast<std::uint32_t>(owners_.size())};
  }
  return owners_[slot.Number - 1];
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
  return FindOwner(owner);
}

const std::string* EventCodeTable::Find(std::string_view key) const noexcept {
  const Place place = PositionOf(key);
  const Owner* owner = OwnerOf(place.Owner);
  return owner == nullptr ? nullptr : owner->Find(static_cast<Event>(place.Slot));
}

bool EventCodeTable::Put(Owner& owner, std::uint8_t slot, std::string&& value, bool replace) {
  for (auto& [held, text] : owner.entries_) {
    if (held != slot) continue;
    if (replace) text = std::move(value);
    return replace;
  }
  owner.entries_.emplace_back(slot, std::move(value));
  ++size_;
  return true;
}

bool EventCodeTable::Add(Owner& owner, Event event, std::string value) {
  return Put(owner, static_cast<std::uint8_t>(event), std::move(value), false);
}

bool EventCodeTable::Add(std::string_view key, std::string value) {
  const Place place = PositionOf(key);
  return Put(OwnerFor(place.Owner), place.Slot, std::move(value), false);
}

bool EventCodeTable::Add(std::string_view owner, Event event, std::string value) {
  return Add(OwnerFor(owner), event, std::move(value));
}

void EventCodeTable::Replace(std::string_view key, std::string value) {
  const Place place = PositionOf(key);
  Put(OwnerFor(place.Owner), place.Slot, std::move(value), true);
}

void EventCodeTable::Replace(std::string_view owner, Event event, std::string value) {
  Put(OwnerFor(owner), static_cast<std::uint8_t>(event), std::move(value), true);
}

bool EventCodeTable::Remove(std::string_view key) noexcept {
  const Place place = PositionOf(key);
  if (index_.empty()) return false;
  const std::uint32_t number = index_[SlotOf(HashOf(place.Owner), place.Owner)].Number;
  if (number == 0) return false;
  auto& entries = owners_[number - 1].entries_;
  const auto entry = std::find_if(entries.begin(), entries.end(),
                                  [&](const auto& e) { return e.first == place.Slot; });
  if (entry == entries.end()) return false;
  entries.erase(entry);
  --size_;
  return true;
}

void EventCodeTable::Clear() noexcept {
  index_.clear();
  owners_.clear();
  size_ = 0;
}

}  // namespace tarnwick
