// The bytes of a line, many at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tarnwick {

/// Sixteen bytes at a time, or what a comparison makes of each: all bits, or none.
using Bytes = char __attribute__((vector_size(16)));

/// Those from `at` on; as many must be there.
inline Bytes BytesAt(const char* at) {
  Bytes bytes;
  std::memcpy(&bytes, at, sizeof bytes);
  return bytes;
}

/// The top bit of each byte, the first one lowest.
inline std::uint32_t TopBits(Bytes bytes) {
#ifdef __SSE2__
  return static_cast<std::uint32_t>(__builtin_ia32_pmovmskb128(bytes));
#else
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < sizeof bytes; ++i) {
    bits |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i]) >> 7U) << i;
  }
  return bits;
#endif
}

/// Which bytes are "<" or ">".
inline Bytes AreBrackets(Bytes bytes) {
  // The two differ in one bit, which is set first.
  constexpr char kDifference = '<' ^ '>';
  static_assert(('<' | kDifference) == '>');
  return (bytes | kDifference) == '>';
}

}  // namespace tarnwick
