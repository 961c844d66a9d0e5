// Growable array of records, indexed as the project text numbers them.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <vector>

namespace tarnwick {

/// An array with slots 0 to UBound(), slot 0 normally left empty. Project files may name any
/// number of the 16-bit range, so storage is made in small chunks on first write, and only the
/// chunks that are there are listed: one record at 32767 costs one chunk.
template <class T>
class RecordArray {
 public:
  RecordArray() = default;
  RecordArray(RecordArray&&) noexcept = default;
  RecordArray& operator=(RecordArray&&) noexcept = default;
  RecordArray(const RecordArray& other) { *this = other; }
  RecordArray& operator=(const RecordArray& other) {
    if (this == &other) return *this;
    chunks_.clear();
    chunks_.reserve(other.chunks_.size());
    for (const Entry& entry : other.chunks_) {
      chunks_.push_back({entry.Number, std::make_unique<Chunk>(*entry.Records)});
    }
    ubound_ = other.ubound_;
    return *this;
  }
  ~RecordArray() = default;

  /// The highest index; 0 for an array that was never grown.
  [[nodiscard]] int UBound() const noexcept { return ubound_; }

  /// The record at an index, or null outside the array and where nothing was ever written: such
  /// a slot reads as an empty record.
  [[nodiscard]] const T* At(int index) const noexcept {
    if (index < 0 || index > ubound_) return nullptr;
    const std::size_t number = static_cast<std::size_t>(index) / kChunk;
    const std::size_t place = PositionOf(number);
    if (place == chunks_.size() || chunks_[place].Number != number) return nullptr;
    return &(*chunks_[place].Records)[static_cast<std::size_t>(index) % kChunk];
  }

  /// The record at an index for writing, or null outside the array. Never grows the array.
  [[nodiscard]] T* At(int index) {
    if (index < 0 || index > ubound_) return nullptr;
    const std::size_t number = static_cast<std::size_t>(index) / kChunk;
    const std::size_t place = PositionOf(number);
    if (place == chunks_.size() || chunks_[place].Number != number) {
      chunks_.insert(chunks_.begin() + static_cast<std::ptrdiff_t>(place),
                     Entry{number, std::make_unique<Chunk>()});
    }
    return &(*chunks_[place].Records)[static_cast<std::size_t>(index) % kChunk];
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
    chunks_.clear();
    ubound_ = 0;
  }

 private:
  static constexpr std::size_t kChunk = 4;
  using Chunk = std::array<T, kChunk>;
  struct Entry {
    std::size_t Number;  ///< index of its first record / kChunk
    std::unique_ptr<Chunk> Records;
  };

  /// Place of the first chunk whose number is not below this one. An array without gaps, as most
  /// are, needs no search.
  [[nodiscard]] std::size_t PositionOf(std::size_t number) const noexcept {
    if (number < chunks_.size() && chunks_[number].Number == number) return number;
    const auto place =
        std::lower_bound(chunks_.begin(), chunks_.end(), number,
                         [](const Entry& entry, std::size_t n) { return entry.Number < n; });
    return static_cast<std::size_t>(place - chunks_.begin());
  }

  std::vector<Entry> chunks_;  ///< by rising number
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
