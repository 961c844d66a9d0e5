#include "model/event_table.h"

#include <algorithm>

namespace tarnwick {

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

EventCodeTable::Place EventCodeTable::PlaceOf(std::string_view key) noexcept {
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

const EventCodeTable::Owner* EventCodeTable::OwnerOf(std::string_view owner) const noexcept {
  const auto found = index_.find(owner);
  return found == index_.end() ? nullptr : found->second;
}

const std::string* EventCodeTable::Find(std::string_view key) const noexcept {
  const Place place = PlaceOf(key);
  const Owner* owner = OwnerOf(place.Owner);
  return owner == nullptr ? nullptr : owner->Find(static_cast<Event>(place.Slot));
}

bool EventCodeTable::Put(Place place, std::string&& value, bool replace) {
  Owner* owner = nullptr;
  if (const auto found = index_.find(place.Owner); found != index_.end()) {
    owner = found->second;
  } else {
    owner = &owners_.emplace_back();
    owner->key_ = place.Owner;
    index_.emplace(owner->key_, owner);
  }
  for (auto& [slot, text] : owner->entries_) {
    if (slot != place.Slot) continue;
    if (replace) text = std::move(value);
    return replace;
  }
  owner->entries_.emplace_back(place.Slot, std::move(value));
  ++size_;
  return true;
}

bool EventCodeTable::Add(std::string_view key, std::string value) {
  return Put(PlaceOf(key), std::move(value), false);
}

bool EventCodeTable::Add(std::string_view owner, Event event, std::string value) {
  return Put({owner, static_cast<std::uint8_t>(event)}, std::move(value), false);
}

void EventCodeTable::Replace(std::string_view key, std::string value) {
  Put(PlaceOf(key), std::move(value), true);
}

void EventCodeTable::Replace(std::string_view owner, Event event, std::string value) {
  Put({owner, static_cast<std::uint8_t>(event)}, std::move(value), true);
}

bool EventCodeTable::Remove(std::string_view key) noexcept {
  const Place place = PlaceOf(key);
  const auto found = index_.find(place.Owner);
  if (found == index_.end()) return false;
  auto& entries = found->second->entries_;
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
