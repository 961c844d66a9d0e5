#include "platform/large_pages.h"

#include <new>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace tarnwick {
namespace {

constexpr std::align_val_t kLargePage{std::size_t{1} << 21U};
constexpr std::size_t kFirstRegion = std::size_t{1} << 20U;
constexpr std::size_t kRegion = std::size_t{1} << 22U;

/// True for what lies in a region.
bool IsBlock(std::size_t bytes, std::size_t alignment) {
  return bytes == LargePages::kBlock && alignment <= LargePages::kBlock;
}

}  // namespace

LargePages::~LargePages() {
  for (void* const region : regions_) ::operator delete(region, kLargePage);
}

void* LargePages::do_allocate(std::size_t bytes, std::size_t alignment) {
  if (!IsBlock(bytes, alignment)) {
    return std::pmr::new_delete_resource()->allocate(bytes, alignment);
  }
  const std::lock_guard lock(guard_);
  if (!free_.empty()) {
    void* const block = free_.back();
    free_.pop_back();
    return block;
  }
  if (blocks_left_ == 0) AddRegion();
  void* const block = next_;
  next_ += kBlock;
  --blocks_left_;
  return block;
}

void LargePages::do_deallocate(void* memory, std::size_t bytes, std::size_t alignment) {
  if (!IsBlock(bytes, alignment)) {
    return std::pmr::new_delete_resource()->deallocate(memory, bytes, alignment);
  }
  const std::lock_guard lock(guard_);
  free_.push_back(memory);
}

void LargePages::AddRegion() {
  // A short program does not fill a large page.
  const bool first = regions_.empty();
  const std::size_t bytes = first ? kFirstRegion : kRegion;
  regions_.reserve(regions_.size() + 1);
  next_ = static_cast<std::byte*>(::operator new(bytes, kLargePage));
  regions_.push_back(next_);
  blocks_left_ = bytes / kBlock;
#ifdef __linux__
  // Without large pages the memory is as good, and slower.
  if (!first) static_cast<void>(::madvise(next_, bytes, MADV_HUGEPAGE));
#endif
}

}  // namespace tarnwick
