#include "model/event_table.h"

#include <utility>

#include "text/numbers.h"

namespace tarnwick {

std::string ObjectKey(int form, Kind kind, int number) {
  std::string key;
  AppendObjectKey(key, form, kind, number);
  return key;
}

void AppendObjectKey(std::string& out, int form, Kind kind, int number) {
  out += InfoOf(Kind::Form).Name;
  AppendNumber(out, std::int64_t{form});
  out += '.';
  out += InfoOf(kind).Array;
  AppendNumber(out, std::int64_t{number});
}

const std::string* EventCodeTable::Owner::FindSlot(std::size_t slot) const noexcept {
  static const std::string kNoCode;
  if (!present_[slot]) return nullptr;
  const auto code = codes_.find(slot);
  return code == codes_.end() ? &kNoCode : &code->second;
}

bool EventCodeTable::Owner::AddSlot(std::size_t slot, std::string_view code) {
  if (present_[slot]) return false;
  present_.set(slot);
  if (!code.empty()) codes_.emplace(slot, code);
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
  const auto [wanted, made] = owners_.try_emplace(std::string(owner));
  if (made) order_.push_back(&*wanted);
  // Whoever asks for it is about to change it.
  Note(wanted->first, wanted->second);
  return wanted->second;
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

bool EventCodeTable::Remove(std::string_view key) {
  const KeyParts parts = PartsOf(key);
  const auto found = owners_.find(parts.Owner);
  if (found == owners_.end() || !found->second.present_[parts.Slot]) return false;
  Note(found->first, found->second);
  found->second.present_.reset(parts.Slot);
  found->second.codes_.erase(parts.Slot);
  return true;
}

void EventCodeTable::Clear() noexcept {
  order_.clear();
  owners_.clear();
  noted_.clear();
  removed_.clear();
}

EventCodeTable::Entries EventCodeTable::EntriesOf(const Owner& owner) {
  Entries entries;
  for (std::size_t slot = 0; slot <= kEventCount; ++slot) {
    if (const std::string* const code = owner.FindSlot(slot)) entries.emplace_back(slot, *code);
  }
  return entries;
}

EventCodeTable::Entries EventCodeTable::EntriesOf(std::string_view owner) const {
  const Owner* const found = OwnerOf(owner);
  return found == nullptr ? Entries() : EntriesOf(*found);
}

void EventCodeTable::SetEntries(std::string_view owner, const Entries& entries) {
  if (entries.empty() && OwnerOf(owner) == nullptr) return;
  Owner& changed = OwnerFor(owner);
  changed = {};
  for (const auto& [slot, code] : entries) changed.SetSlot(slot, code);
}

void EventCodeTable::Note(const std::string& key, const Owner& owner) {
  if (!watched_ || noted_.contains(key)) return;
  noted_.emplace(key, EntriesOf(owner));
}

void EventCodeTable::MoveNote(const std::string& from, const std::string& to) {
  auto note = noted_.extract(from);
  if (note.empty()) return;
  note.key() = to;
  noted_.insert(std::move(note));
}

void EventCodeTable::RemoveNumber(const ObjectPlace& object, int last) {
  std::string to = ObjectKey(object.Form, object.Id, object.Number);
  Changes::Removed removed{object, last, EntriesOf(to)};
  if (const auto noted = noted_.find(to); noted != noted_.end()) {
    removed.Entries = std::move(noted->second);
    noted_.erase(noted);
  }
  // Moving is no change of an owner: the removal itself is kept.
  const bool watched = std::exchange(watched_, false);
  for (int number = object.Number + 1; number <= last; ++number) {
    std::string from = ObjectKey(object.Form, object.Id, number);
    const auto source = owners_.find(from);
    if (source == owners_.end()) {
      SetEntries(to, {});
    } else {
      Owner moved = std::exchange(source->second, {});
      OwnerFor(to) = std::move(moved);
    }
    MoveNote(from, to);
    to = std::move(from);
  }
  SetEntries(to, {});
  watched_ = watched;
  if (watched_) removed_.push_back(std::move(removed));
}

void EventCodeTable::InsertNumber(const Changes::Removed& removed) {
  const ObjectPlace& object = removed.Object;
  for (int number = removed.Last; number > object.Number; --number) {
    const std::string from = ObjectKey(object.Form, object.Id, number - 1);
    SetEntries(ObjectKey(object.Form, object.Id, number), EntriesOf(from));
  }
  SetEntries(ObjectKey(object.Form, object.Id, object.Number), removed.Entries);
}

EventCodeTable::Changes EventCodeTable::TakeChanges() {
  Changes changes;
  changes.Owners.reserve(noted_.size());
  for (auto& [key, before] : noted_) changes.Owners.push_back({key, std::move(before)});
  noted_.clear();
  changes.Numbers = std::exchange(removed_, {});
  return changes;
}

std::size_t EventCodeTable::Size() const noexcept {
  std::size_t size = 0;
  ForEach([&](const std::string&, const std::string&) { ++size; });
  return size;
}

}  // namespace tarnwick
