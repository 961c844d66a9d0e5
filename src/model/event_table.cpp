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

const std::string* EventCodeTable::Owner::FindSlot(std::size_t slot) const noexcept {
  static const std::string kNoCode;
  if (!present_[slot]) return nullptr;
  const auto code = codes_.find(slot);
  return code == codes_.end() ? &kNoCode : &code->second;
}

bool EventCodeTable::Owner::AddSlot(std::size_t slot, std::string_view code) {
  if (present_[slot]) return false;
  SetSlot(slot, code);
  return true;
}

void EventCodeTable::Owner::SetSlot(std::size_t slot, std::string_view code) {
  present_.set(slot);
  if (code.empty()) {
    codes_.erase(slot);
  } else {
    codes_[slot] = code;
  }
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
  const auto found = owners_.find(owner);
  return found == owners_.end() ? nullptr : &found->second;
}

EventCodeTable::Owner& EventCodeTable::OwnerFor(std::string_view owner) {
  const auto found = owners_.find(owner);
  if (found != owners_.end()) return found->second;
  KeyedOwner& made = *owners_.try_emplace(std::string(owner)).first;
  order_.push_back(&made);
  return made.second;
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
  OwnerFor(parts.Owner).SetSlot(parts.Slot, value);
}

void EventCodeTable::Replace(std::string_view owner, Event event, std::string_view value) {
  OwnerFor(owner).SetSlot(static_cast<std::size_t>(event), value);
}

bool EventCodeTable::Remove(std::string_view key) noexcept {
  const KeyParts parts = PartsOf(key);
  const auto found = owners_.find(parts.Owner);
  if (found == owners_.end() || !found->second.present_[parts.Slot]) return false;
  found->second.present_.reset(parts.Slot);
  found->second.codes_.erase(parts.Slot);
  return true;
}

void EventCodeTable::Clear() noexcept {
  order_.clear();
  owners_.clear();
}

std::size_t EventCodeTable::Size() const noexcept {
  std::size_t size = 0;
  ForEach([&](const std::string&, const std::string&) { ++size; });
  return size;
}

}  // namespace tarnwick
