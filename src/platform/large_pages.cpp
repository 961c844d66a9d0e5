#include "platform/large_pages.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace tarnwick {

#ifdef __GLIBC__

void PreferLargePages() noexcept {
  constexpr std::uintptr_t kLargePage = std::uintptr_t{2} << 20U;
  constexpr std::uintptr_t kFirstHeap = std::uintptr_t{256} << 10U;  ///< more than it starts with
  constexpr std::uintptr_t kHeader = 64;
  constexpr int kReserved = 256 << 20;  // bytes; untouched, they cost nothing
  constexpr int kUsualStep = 128 << 10;
  constexpr int kUsualMaps = 65536;
  static void* volatile below = nullptr;
  if (below != nullptr) return;
  void* const probe = std::malloc(kHeader * kHeader);
  const auto here = reinterpret_cast<std::uintptr_t>(probe);
  std::free(probe);
  // The heap grows by a block that ends right below a large page. The block is left as it is; what
  // follows it must not be touched before the system knows.
  const std::uintptr_t start = ((here + kFirstHeap) / kLargePage + 1) * kLargePage;
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TOP_PAD, kReserved);
  below = std::malloc(start - kHeader - here);
  mallopt(M_TOP_PAD, kUsualStep);
  char* const end = static_cast<char*>(sbrk(0));
  const auto end_place = reinterpret_cast<std::uintptr_t>(end);
  if (below == nullptr || end_place <= start) {
    // So much may not be had: memory comes as it always does.
    mallopt(M_MMAP_MAX, kUsualMaps);
    return;
  }
  const std::size_t size = end_place - start;
  madvise(end - size, size, MADV_HUGEPAGE);
  mallopt(M_TRIM_THRESHOLD, 2 * kReserved);
}

#else

void PreferLargePages() noexcept {}

#endif

}  // namespace tarnwick
