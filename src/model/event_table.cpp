#include "model/event_table.h"

#include <optional>
#include <utility>

#include "text/numbers.h"

namespace tarnwick {

namespace {

/// The highest number that is taken for that of an object.
constexpr int kMostNumber = 999'999'999;

/// The number that a text is, written without sign and leading zeros; 0 for any other text.
int PlainNumber(std::string_view text) {
  constexpr std::size_t kMostDigits = 9;
  if (text.empty() || text.size() > kMostDigits || text.front() == '0') return 0;
  int number = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return 0;
    number = number * 10 + (c - '0');
  }
  return number;
}

/// True for an object whose key EventCodeTable finds by its numbers.
bool IsPlain(const ObjectPlace& object) {
  return object.Form >= 1 && object.Number >= 1 && object.Form <= kMostNumber &&
         object.Number <= kMostNumber;
}

/// The kind whose array has a name, in any case.
std::optional<Kind> KindOfArray(std::string_view name) {
  using Kinds = std::unordered_map<std::string_view, Kind, FoldedHash, FoldedEqual>;
  static const Kinds kKindsByArray = [] {
    Kinds kinds;
    for (const KindInfo& kind : AllKinds()) kinds.emplace(kind.Array, kind.Id);
    return kinds;
  }();
  const auto found = kKindsByArray.find(name);
  return found == kKindsByArray.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace

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

EventCodeTable::EventCodeTable() = default;
EventCodeTable::EventCodeTable(EventCodeTable&& other) noexcept = default;
EventCodeTable& EventCodeTable::operator=(EventCodeTable&& other) noexcept = default;
EventCodeTable::~EventCodeTable() = default;

const std::string* EventCodeTable::Owner::FindSlot(std::size_t slot) const noexcept {
  static const std::string kNoCode;
  if (!present_[slot]) return nullptr;
  for (const Code& code : codes_) {
    if (code.Slot == slot) return &code.Text;
  }
  return &kNoCode;
}

bool EventCodeTable::Owner::AddSlot(std::size_t slot, std::string_view code) {
  if (present_[slot]) return false;
  present_.set(slot);
  if (!code.empty()) codes_.push_front({slot, std::string(code)});
  return true;
}

void EventCodeTable::Owner::SetSlot(std::size_t slot, std::string_view code) {
  present_.set(slot);
  if (code.empty()) return DropCode(slot);
  for (Code& present : codes_) {
    if (present.Slot == slot) {
      present.Text = code;
      return;
    }
  }
  codes_.push_front({slot, std::string(code)});
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

ObjectPlace EventCodeTable::PlaceOf(std::string_view key) {
  const std::string_view head = InfoOf(Kind::Form).Name;
  const std::size_t dot = key.find('.');
  if (dot == std::string_view::npos || dot < head.size() || !StartsWithFolded(key, head)) {
    return kNoObject;
  }
  const int form = PlainNumber(key.substr(head.size(), dot - head.size()));
  const std::string_view object = key.substr(dot + 1);
  const std::size_t letters = object.find_last_not_of("0123456789") + 1;
  const int number = PlainNumber(object.substr(letters));
  const std::optional<Kind> kind = KindOfArray(object.substr(0, letters));
  if (form == 0 || number == 0 || !kind) return kNoObject;
  return {form, *kind, number};
}

std::uint64_t EventCodeTable::BlockOf(const ObjectPlace& object) noexcept {
  constexpr unsigned kFormShift = 32;
  constexpr unsigned kKindShift = 27;
  static_assert(kMostNumber / kBlock < 1 << kKindShift);
  static_assert(kKindCount <= std::size_t{1} << (kFormShift - kKindShift));
  return static_cast<std::uint64_t>(object.Form) << kFormShift |
         static_cast<std::uint64_t>(object.Id) << kKindShift |
         static_cast<std::uint64_t>(object.Number / kBlock);
}

std::string EventCodeTable::KeyOf(const Row& row) {
  const bool as_object = row.Key.empty() && row.Object != kNoObject;
  return as_object ? ObjectKey(row.Object.Form, row.Object.Id, row.Object.Number) : row.Key;
}

EventCodeTable::Row* EventCodeTable::FindRow(const ObjectPlace& object) const {
  const auto block = objects_.find(BlockOf(object));
  if (block == objects_.end()) return nullptr;
  return block->second[static_cast<std::size_t>(object.Number % kBlock)];
}

EventCodeTable::Row* EventCodeTable::FindRow(std::string_view key) const {
  const ObjectPlace object = PlaceOf(key);
  if (object != kNoObject) return FindRow(object);
  const auto found = others_.find(key);
  return found == others_.end() ? nullptr : found->second;
}

EventCodeTable::Row& EventCodeTable::AddRow(const ObjectPlace& object) {
  Row& row = rows_.emplace_back();
  row.Object = object;
  Block& block = objects_[BlockOf(object)];
  block[static_cast<std::size_t>(object.Number % kBlock)] = &row;
  return row;
}

const EventCodeTable::Owner* EventCodeTable::OwnerOf(std::string_view owner) const {
  const Row* const row = FindRow(owner);
  return row == nullptr ? nullptr : &row->Entries;
}

const EventCodeTable::Owner* EventCodeTable::OwnerOf(const ObjectPlace& object) const {
  if (!IsPlain(object)) return OwnerOf(ObjectKey(object.Form, object.Id, object.Number));
  const Row* const row = FindRow(object);
  return row == nullptr ? nullptr : &row->Entries;
}

EventCodeTable::Owner& EventCodeTable::OwnerFor(std::string_view owner) {
  if (Row* const row = FindRow(owner)) return Noted(*row);
  const ObjectPlace object = PlaceOf(owner);
  if (object != kNoObject) {
    Row& row = AddRow(object);
    if (KeyOf(row) != owner) row.Key = owner;
    return Noted(row);
  }
  Row& row = rows_.emplace_back();
  row.Key = owner;
  others_.emplace(row.Key, &row);
  return Noted(row);
}

EventCodeTable::Owner& EventCodeTable::OwnerFor(const ObjectPlace& object) {
  if (!IsPlain(object)) return OwnerFor(ObjectKey(object.Form, object.Id, object.Number));
  Row* const row = FindRow(object);
  return Noted(row != nullptr ? *row : AddRow(object));
}

const std::string* EventCodeTable::Find(std::string_view key) const {
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
  Row* const row = FindRow(parts.Owner);
  if (row == nullptr || !row->Entries.present_[parts.Slot]) return false;
  Owner& owner = Noted(*row);
  owner.present_.reset(parts.Slot);
  owner.DropCode(parts.Slot);
  return true;
}

void EventCodeTable::Clear() noexcept {
  rows_.clear();
  objects_.clear();
  others_.clear();
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

EventCodeTable::Owner& EventCodeTable::Noted(Row& row) {
  if (watched_) {
    std::string key = KeyOf(row);
    if (!noted_.contains(key)) noted_.emplace(std::move(key), EntriesOf(row.Entries));
  }
  return row.Entries;
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
    Row* const source = FindRow(from);
    if (source == nullptr) {
      SetEntries(to, {});
    } else {
      Owner moved = std::exchange(source->Entries, {});
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
