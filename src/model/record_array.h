// Arrays of records as project files number them.
#pragma once

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace tarnwick {

/// An array with slots 0 to UBound(), slot 0 normally left empty. Project files may name any
/// number of the 16-bit range, so only the records that were written are held. A record stays where
/// it is until Clear() or Splice().
template <class T>
class RecordArray {
 public:
  /// The highest index; 0 for an array that was never grown.
  [[nodiscard]] int UBound() const noexcept { return ubound_; }

  /// The record at an index; null outside the array and where nothing was ever written: such a slot
  /// reads as an empty record.
  [[nodiscard]] const T* At(int index) const noexcept {
    const auto found = records_.find(index);
    return found == records_.end() ? nullptr : &found->second;
  }

  /// The record at an index for writing, made where it is missing; null outside the array. Never
  /// grows the array.
  [[nodiscard]] T* At(int index) {
    if (index < 0 || index > ubound_) return nullptr;
    return &records_[index];
  }

  /// Puts `insert` empty records in the place of `remove` records from index `first` on; the
  /// records behind them move, and so does the highest index.
  void Splice(int first, int remove, int insert) {
    const int behind = first + remove;
    const int shift = insert - remove;
    const int last = ubound_;
    for (int i = first; i < behind; ++i) records_.erase(i);
    const auto move = [&](int i) {
      auto record = records_.extract(i);
      if (record.empty()) return;
      record.key() = i + shift;
      records_.insert(std::move(record));
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
    records_.clear();
    ubound_ = 0;
  }

 private:
  std::unordered_map<int, T> records_;
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
