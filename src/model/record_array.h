// Arrays of records as project files number them.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <unordered_map>
#include <utility>

namespace tarnwick {

/// An array with slots 0 to UBound(), slot 0 normally left empty. Project files may name any
/// number of the 16-bit range, so only what was written is held, in blocks of neighbours. A record
/// stays where it is until Clear() or Splice().
template <class T>
class RecordArray {
 public:
  /// The highest index; 0 for an array that was never grown.
  [[nodiscard]] int UBound() const noexcept { return ubound_; }

  /// The record at an index; null outside the array and where nothing was ever written: such a slot
  /// reads as an empty record.
  [[nodiscard]] const T* At(int index) const noexcept {
    if (index < 0) return nullptr;
    const auto block = blocks_.find(index / kBlock);
    if (block == blocks_.end()) return nullptr;
    const std::optional<T>& record = block->second[Slot(index)];
    return record ? &*record : nullptr;
  }

  /// The record at an index for writing, made where it is missing; null outside the array. Never
  /// grows the array.
  [[nodiscard]] T* At(int index) {
    if (index < 0 || index > ubound_) return nullptr;
    std::optional<T>& record = blocks_[index / kBlock][Slot(index)];
    if (!record) record.emplace();
    return &*record;
  }

  /// Puts `insert` empty records in the place of `remove` records from index `first` on; the
  /// records behind them move, and so does the highest index.
  void Splice(int first, int remove, int insert) {
    const int behind = first + remove;
    const int shift = insert - remove;
    const int last = ubound_;
    for (int i = first; i < behind; ++i) Take(i);
    const auto move = [&](int i) {
      if (std::optional<T> record = Take(i)) {
        blocks_[(i + shift) / kBlock][Slot(i + shift)] = std::move(record);
      }
    };
    if (shift > 0) {
      for (int i = last; i >= behind; --i) move(i);
    } else if (shift < 0) {
      for (int i = behind; i <= last; ++i) move(i);
    }
    ubound_ = std::max(last + shift, 0);
  }

  /// Raises the highest index to at least `index`, keeping contents; never shrinks.
  void GrowTo(int index) noexcept {
    if (index > ubound_) ubound_ = index;
  }

  /// Grows to `index` and returns its record; null for a negative index.
  T* Ensure(int index) {
    GrowTo(index);
    return At(index);
  }

  void Clear() noexcept {
    blocks_.clear();
    ubound_ = 0;
  }

 private:
  static constexpr int kBlock = 8;
  using Block = std::array<std::optional<T>, kBlock>;

  static constexpr std::size_t Slot(int index) noexcept {
    return static_cast<std::size_t>(index % kBlock);
  }

  /// Takes a record out; null where none was written.
  std::optional<T> Take(int index) {
    const auto block = blocks_.find(index / kBlock);
    if (index < 0 || block == blocks_.end()) return std::nullopt;
    return std::exchange(block->second[Slot(index)], std::nullopt);
  }

  std::unordered_map<int, Block> blocks_;  ///< by number: index / kBlock
  int ubound_ = 0;
};

/// The record at `index`, or an empty one where none is there.
template <class T>
[[nodiscard]] const T& RecordOrEmpty(const RecordArray<T>& records, int index) noexcept {
  static const T empty{};
  const T* record = records.At(index);
  return record != nullptr ? *record : empty;
}

}  // namespace tarnwick
