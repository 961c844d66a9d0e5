// Memory of trees: nodes are made one by one and freed all together.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <memory_resource>
#include <new>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace tarnwick::basic {

/// Owns the nodes, lists and texts of a tree. Pointers and views stay valid for the arena's life,
/// also when the arena is moved. Only types without a destructor may be made in it.
///
/// The memory is taken from the program's default resource in blocks of at most 64 kB, which the
/// next arena gets when they are freed.
class Arena {
 public:
  Arena() = default;
  Arena(Arena&& other) noexcept { *this = std::move(other); }
  Arena& operator=(Arena&& other) noexcept {
    Free();
    source_ = other.source_;
    blocks_ = std::exchange(other.blocks_, {});
    next_ = std::exchange(other.next_, nullptr);
    room_ = std::exchange(other.room_, 0);
    bytes_ = std::exchange(other.bytes_, 0);
    return *this;
  }
  ~Arena() { Free(); }

  /// Makes one node.
  template <class T, class... Args>
  T* Make(Args&&... args) {
    static_assert(std::is_trivially_destructible_v<T>);
    return ::new (Take(sizeof(T), alignof(T))) T{std::forward<Args>(args)...};
  }
  /// A copy of a list.
  template <class T>
  std::span<const T> List(const std::vector<T>& items) {
    return List(std::span<const T>(items));
  }
  template <class T>
  std::span<const T> List(std::span<const T> items) {
    static_assert(std::is_trivially_copyable_v<T>);
    if (items.empty()) return {};
    // NOLINTNEXTLINE(bugprone-sizeof-expression): lists of pointers are meant
    T* copy = static_cast<T*>(Take(items.size() * sizeof(T), alignof(T)));
    std::uninitialized_copy(items.begin(), items.end(), copy);
    return {copy, items.size()};
  }
  /// A copy of a text.
  std::string_view Text(std::string_view text) {
    if (text.empty()) return {};
    char* copy = static_cast<char*>(Take(text.size(), 1));
    std::copy(text.begin(), text.end(), copy);
    return {copy, text.size()};
  }

  /// Bytes of all blocks.
  [[nodiscard]] std::size_t Bytes() const noexcept { return bytes_; }

 private:
  void* Take(std::size_t bytes, std::size_t alignment) {
    if (std::align(alignment, bytes, next_, room_) == nullptr) AddBlock(bytes);
    void* const taken = next_;
    next_ = static_cast<std::byte*>(next_) + bytes;
    room_ -= bytes;
    return taken;
  }
  /// A block with room for so many bytes. A small tree has small blocks.
  void AddBlock(std::size_t bytes) {
    constexpr std::size_t kFirst = 4096;
    constexpr std::size_t kMost = 65536;
    room_ = std::max(bytes, std::clamp(bytes_, kFirst, kMost));
    next_ = source_->allocate(room_);
    blocks_.push_back({next_, room_});
    bytes_ += room_;
  }
  void Free() noexcept {
    for (const Block& block : blocks_) source_->deallocate(block.Begin, block.Bytes);
  }

  struct Block {
    void* Begin;
    std::size_t Bytes;
  };
  std::pmr::memory_resource* source_ = std::pmr::get_default_resource();
  std::vector<Block> blocks_;
  void* next_ = nullptr;
  std::size_t room_ = 0;  ///< bytes behind `next_`
  std::size_t bytes_ = 0;
};

}  // namespace tarnwick::basic
