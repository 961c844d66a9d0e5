// The projects that a benchmark works on.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace tarnwick {

/// Projects of one size, used in turn: so many that all sizes have the same number of objects in
/// memory. Otherwise a small project would be measured out of the processor's caches, a large one
/// out of memory, and what shows as growth would be theirs.
template <class Project>
class WorkingSet {
 public:
  /// Makes the projects by `make(size)` when the size is another one than before.
  template <class Make>
  void SetSize(std::int64_t size, Make make) {
    if (size == size_) return;
    constexpr std::int64_t kObjects = 100000;
    size_ = size;
    projects_.clear();
    for (std::int64_t n = std::max<std::int64_t>(kObjects / size, 1); n > 0; --n) {
      projects_.push_back(make(size));
    }
  }

  Project& Next() {
    next_ = (next_ + 1) % projects_.size();
    return *projects_[next_];
  }

 private:
  std::vector<std::unique_ptr<Project>> projects_;
  std::size_t next_ = 0;
  std::int64_t size_ = 0;
};

}  // namespace tarnwick
