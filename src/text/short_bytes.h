// Copying and comparing runs of a few bytes in place, where a call would take longer than the work.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tarnwick {

// Two moves that may overlap cover any size between that of one and that of both.

/// Copies `text` to `at` and returns the place behind it; the two must not overlap.
inline char* CopyBytes(char* at, std::string_view text) noexcept {
  const std::size_t size = text.size();
  if (size > 16) {
    std::memcpy(at, text.data(), size);
  } else if (size >= 8) {
    std::memcpy(at, text.data(), 8);
    std::memcpy(at + size - 8, text.data() + size - 8, 8);
  } else if (size >= 4) {
    std::memcpy(at, text.data(), 4);
    std::memcpy(at + size - 4, text.data() + size - 4, 4);
  } else {
    for (std::size_t i = 0; i < size; ++i) at[i] = text[i];
  }
  return at + size;
}

/// True when the bytes from `at` on are those of `text`; as many must be there. For a literal the
/// size is settled where it is called.
[[gnu::always_inline]] inline bool SameBytes(const char* at, std::string_view text) noexcept {
  const auto difference = [&](std::size_t place) {
    std::uint64_t here = 0;
    std::uint64_t there = 0;
    std::memcpy(&here, at + place, sizeof here);
    std::memcpy(&there, text.data() + place, sizeof there);
    return here ^ there;
  };
  const std::size_t size = text.size();
  if (size < 8 || size > 32) return std::string_view(at, size) == text;
  const std::uint64_t outer = difference(0) | difference(size - 8);
  if (size <= 16) return outer == 0;
  return (outer | difference(8) | difference(size - 16)) == 0;
}

}  // namespace tarnwick
