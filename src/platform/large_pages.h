// Memory for large trees in few, large pages.
#pragma once

#include <cstddef>
#include <memory_resource>
#include <mutex>
#include <vector>

namespace tarnwick {

/// A source of memory for programs that read large inputs. The system hands memory out page by page
/// as it is touched, which takes a third of the time of reading a long program; here blocks of
/// `kBlock` bytes, which trees take, lie in regions for which it is asked to use large pages. Where
/// it has none the regions are plain memory. All other sizes come from the heap.
///
/// Blocks that are given back are handed out again; the regions live as long as this.
class LargePages final : public std::pmr::memory_resource {
 public:
  static constexpr std::size_t kBlock = 65536;

  LargePages() = default;
  LargePages(const LargePages&) = delete;
  LargePages& operator=(const LargePages&) = delete;
  ~LargePages() override;

 private:
  void* do_allocate(std::size_t bytes, std::size_t alignment) override;
  void do_deallocate(void* memory, std::size_t bytes, std::size_t alignment) override;
  [[nodiscard]] bool do_is_equal(const memory_resource& other) const noexcept override {
    return this == &other;
  }
  void AddRegion();

  std::mutex guard_;
  std::vector<void*> regions_;
  std::vector<void*> free_;
  std::byte* next_ = nullptr;  ///< what is left of the last region
  std::size_t blocks_left_ = 0;
};

}  // namespace tarnwick
