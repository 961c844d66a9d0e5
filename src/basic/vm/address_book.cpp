#include "basic/vm/address_book.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace tarnwick::basic {
namespace {

/// The bytes of a variable as they would stand in memory: little end first.
std::string BytesOf(const Slot& slot, const FieldLayout& layout) {
  if (layout.Kind == SlotKind::Text) {
    return slot.B == nullptr ? std::string() : static_cast<const TextBody*>(slot.B)->Bytes;
  }
  std::string bytes(layout.ByteSize, '\0');
  if (layout.Stored == Storage::Single) {
    const auto single = static_cast<float>(slot.D);
    std::memcpy(bytes.data(), &single, std::min(bytes.size(), sizeof single));
  } else {
    std::memcpy(bytes.data(), &slot, std::min(bytes.size(), sizeof slot));
  }
  return bytes;
}

/// A whole number from its low bytes, with its sign where the storage has one.
std::int64_t WholeFrom(std::string_view bytes, Storage storage) {
  std::int64_t number = 0;
  std::memcpy(&number, bytes.data(), std::min(bytes.size(), sizeof number));
  if (storage == Storage::Short) return static_cast<std::int16_t>(number);
  if (storage == Storage::Integer) return static_cast<std::int32_t>(number);
  return number;
}

void SetBytes(Slot& slot, const FieldLayout& layout, std::string bytes) {
  if (layout.Kind == SlotKind::Text) {
    Release(slot.B);
    slot.B = new TextBody(std::move(bytes));
  } else if (layout.Stored == Storage::Single) {
    float single = 0;
    std::memcpy(&single, bytes.data(), std::min(bytes.size(), sizeof single));
    slot.D = static_cast<double>(single);
  } else if (layout.Kind == SlotKind::Number) {
    std::memcpy(&slot.D, bytes.data(), std::min(bytes.size(), sizeof slot.D));
  } else {
    slot.I = WholeFrom(bytes, layout.Stored);
  }
}

bool HasBytes(const FieldLayout& layout) {
  return layout.Kind == SlotKind::Text || layout.Kind == SlotKind::Integer ||
         layout.Kind == SlotKind::Number;
}

}  // namespace

AddressBook::~AddressBook() {
  for (const auto& [number, entry] : entries_) Release(entry.Owner);
}

std::int64_t AddressBook::NumberOf(Slot* variable, const FieldLayout& layout, Body* owner,
                                   std::size_t depth) {
  const std::size_t size = HasBytes(layout) ? BytesOf(*variable, layout).size() : 0;
  const auto known = numbers_.find(variable);
  if (known != numbers_.end()) {
    const Entry& entry = entries_[known->second];
    if (size <= entry.Reserved && entry.Layout->Stored == layout.Stored) return known->second;
    Release(entry.Owner);
    entries_.erase(known->second);
  }
  const std::int64_t number = next_;
  next_ += (static_cast<std::int64_t>(size) + 31) / 16 * 16;
  Retain(owner);
  entries_[number] = {variable, &layout, owner, depth, size};
  numbers_[variable] = number;
  deepest_ = std::max(deepest_, depth);
  return number;
}

void AddressBook::EndCalls(std::size_t depth) {
  deepest_ = 0;
  for (auto row = entries_.begin(); row != entries_.end();) {
    if (row->second.Depth >= depth) {
      numbers_.erase(row->second.Variable);
      Release(row->second.Owner);
      row = entries_.erase(row);
    } else {
      deepest_ = std::max(deepest_, row->second.Depth);
      ++row;
    }
  }
}

std::pair<AddressBook::Entry*, std::size_t> AddressBook::Find(std::int64_t address) {
  auto row = entries_.upper_bound(address);
  if (row == entries_.begin()) return {nullptr, 0};
  --row;
  const auto offset = static_cast<std::size_t>(address - row->first);
  if (offset > row->second.Reserved || !HasBytes(*row->second.Layout)) return {nullptr, 0};
  return {&row->second, offset};
}

std::optional<std::string> AddressBook::Read(std::int64_t address, std::size_t count) {
  const auto [entry, offset] = Find(address);
  if (entry == nullptr) return std::nullopt;
  const std::string bytes = BytesOf(*entry->Variable, *entry->Layout);
  if (offset > bytes.size() || count > bytes.size() - offset) return std::nullopt;
  return bytes.substr(offset, count);
}

bool AddressBook::Write(std::int64_t address, std::string_view bytes) {
  const auto [entry, offset] = Find(address);
  if (entry == nullptr) return false;
  std::string all = BytesOf(*entry->Variable, *entry->Layout);
  if (offset > all.size() || bytes.size() > all.size() - offset) return false;
  all.replace(offset, bytes.size(), bytes);
  SetBytes(*entry->Variable, *entry->Layout, std::move(all));
  return true;
}

std::optional<std::string> AddressBook::TextAt(std::int64_t address) {
  const auto [entry, offset] = Find(address);
  if (entry == nullptr) return std::nullopt;
  const std::string bytes = BytesOf(*entry->Variable, *entry->Layout);
  if (offset > bytes.size()) return std::nullopt;
  return bytes.substr(offset, bytes.find('\0', offset) - offset);
}

}  // namespace tarnwick::basic
