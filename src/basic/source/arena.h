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
class Arena {
 public:
  /// Makes one node.
  template <class T, class... Args>
  T* Make(Args&&... args) {
    static_assert(std::is_trivially_destructible_v<T>);
    return ::new (memory_->allocate(sizeof(T), alignof(T))) T{std::forward<Args>(args)...};
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
    T* copy = static_cast<T*>(memory_->allocate(items.size() * sizeof(T), alignof(T)));
    std::uninitialized_copy(items.begin(), items.end(), copy);
    return {copy, items.size()};
  }
  /// A copy of a text.
  std::string_view Text(std::string_view text) {
    if (text.empty()) return {};
    char* copy = static_cast<char*>(memory_->allocate(text.size(), 1));
    std::copy(text.begin(), text.end(), copy);
    return {copy, text.size()};
  }

 private:
  std::unique_ptr<std::pmr::monotonic_buffer_resource> memory_ =
      std::make_unique<std::pmr::monotonic_buffer_resource>();
};

}  // namespace tarnwick::basic
