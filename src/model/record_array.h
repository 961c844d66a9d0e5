// Growable array of records, indexed as the project text numbers them.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

namespace tarnwick {

/// An array with slots 0 to UBound(), slot 0 normally left empty. Project files may name any
/// number of the 16-bit range, so storage is made in small chunks on first write: an array with
/// one record at 32767 costs a table of pointers, not 32767 records.
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
    for (const auto& chunk : other.chunks_) {
      chunks_.push_back(chunk ? std::make_unique<Chunk>(*chunk) : nullptr);
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
    const auto chunk = static_cast<std::size_t>(index) / kChunk;
    if (chunk >= chunks_.size() || !chunks_[chunk]) return nullptr;
    return &(*chunks_[chunk])[static_cast<std::size_t>(index) % kChunk];
  }

  /// The record at an index for writing, or null outside the array. Never grows the array.
  [[nodiscard]] T* At(int index) {
    if (index < 0 || index > ubound_) return nullptr;
    const auto chunk = static_cast<std::size_t>(index) / kChunk;
    if (chunk >= chunks_.size()) chunks_.resize(chunk + 1);
    if (!chunks_[chunk]) chunks_[chunk] = std::make_unique<Chunk>();
    return &(*chunks_[chunk])[static_cast<std::size_t>(index) % kChunk];
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
  static constexpr std::size_t kChunk = 16;
  using Chunk = std::array<T, kChunk>;

  std::vector<std::unique_ptr<Chunk>> chunks_;
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
