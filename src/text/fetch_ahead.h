// Bytes that will be wanted soon.
#pragma once

#include <cstddef>

namespace tarnwick {

/// Has the processor fetch the bytes from `at` on while other work goes on. They need not be there.
inline void FetchAhead(const void* at, std::size_t size) noexcept {
#ifdef __GNUC__
  constexpr std::size_t kLine = 64;
  for (std::size_t line = 0; line < size; line += kLine) {
    __builtin_prefetch(static_cast<const char*>(at) + line);
  }
#else
  static_cast<void>(at);
  static_cast<void>(size);
#endif
}

}  // namespace tarnwick
