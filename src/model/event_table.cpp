#include "model/event_table.h"

#include "text/numbers.h"

namespace tarnwick {

std::string ObjectKey(int form, Kind kind, int number) {
  std::string key(InfoOf(Kind::Form).Name);
  AppendNumber(key, std::int64_t{form});
  key += '.';
  key += InfoOf(kind).Array;
  AppendNumber(key, std::int64_t{number});
  return key;
}

bool EventCodeTable::Owner::AddSlot(std::size_t slot, std::string_view code) {
  if (entries_[slot]) return false;
  entries_[slot].emplace(code);
  return true;
}

EventCodeTable::KeyParts EventCodeTable::PartsOf(std::string_view key) noexcept {
  const std::size_t dot = key.rfind('.');
  if (dot != std::string_view::npos) {
    if (const std::optional<Event> event = EventOfName(key.substr(dot + 1))) {
      return {key.substr(0, dot), static_cast<std::size_t>(*event)};
    }
  }
  return {key, kEventCount};
}

std::string EventCodeTable::SuffixOf(std::size_t slot) {
  return slot < kEventCount ? std::string(AllEvents()[slot].Suffix) : std::string();
}

const EventCodeTable::Owner* EventCodeTable::OwnerOf(std::string_view owner) const noexcept {
  const auto found = index_.find(owner);
  return found == index_.end() ? nullptr : &owners_[found->second];
}

EventCodeTable::Owner& EventCodeTable::OwnerFor(std::string_view owner) {
  const auto found = index_.find(owner);
  if (found != index_.end()) return owners_[found->second];
  index_.emplace(owner, owners_.size());
  return owners_.emplace_back(owner);
}

const std::string* EventCodeTable::Find(std::string_view key) const noexcept {
  const KeyParts parts = PartsOf(key);
  const Owner* const owner = OwnerOf(parts.Owner);
  return owner == nullptr ? nullptr : owner->FindSlot(parts.Slot);
}

bool EventCodeTable::Add(std::string_view key, std::string_view value) {
  const KeyParts parts = PartsOf(key);
  return OwnerFor(parts.Owner).AddSlot(parts.Slot, value);
}

bool EventCodeTable::Add(std::string_view owner, Event event, std::string_view value) {
  return OwnerFor(owner).Add(event, value);
}

void EventCodeTable::Replace(std::string_view key, std::string_view value) {
  const KeyParts parts = PartsOf(key);
  OwnerFor(parts.Owner).entries_[parts.Slot] = value;
}

void EventCodeTable::Replace(std::string_view owner, Event event, std::string_view value) {
  OwnerFor(owner).entries_[static_cast<std::size_t>(event)] = value;
}

bool EventCodeTable::Remove(std::string_view key) noexcept {
  const KeyParts parts = PartsOf(key);
  const auto found = index_.find(parts.Owner);
  if (found == index_.end()) return false;
  std::optional<std::string>& entry = owners_[found->second].entries_[parts.Slot];
  const bool there = entry.has_value();
  entry.reset();
  return there;
}

void EventCodeTable::Clear() noexcept {
  index_.clear();
  owners_.clear();
}

std::size_t EventCodeTable::Size() const noexcept {
  std::size_t size = 0;
  ForEach([&](const std::string&, const std::string&) { ++size; });
  return size;
}

}  // namespace tarnwick
