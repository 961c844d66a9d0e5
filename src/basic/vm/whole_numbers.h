// Operations on 64-bit whole numbers that C++ leaves undefined for some operands.
#pragma once

#include <cstdint>
#include <limits>

namespace tarnwick::basic {

/// a \ b, cut towards 0; the one quotient that does not fit wraps. b is not 0.
constexpr std::int64_t Quotient(std::int64_t a, std::int64_t b) {
  if (b == -1) return static_cast<std::int64_t>(0 - static_cast<std::uint64_t>(a));
  return a / b;
}

/// a MOD b with the sign of a. b is not 0.
constexpr std::int64_t Remainder(std::int64_t a, std::int64_t b) {
  return b == -1 ? 0 : a % b;
}

/// x from 1 to |m| - 1 with a * x = 1 (mod m); 0 when there is none.
std::int64_t ModularInverse(std::int64_t a, std::int64_t m);

/// a SHL n; 0 when n is no number from 0 to 63.
constexpr std::int64_t ShiftedLeft(std::int64_t a, std::int64_t n) {
  if (n < 0 || n > 63) return 0;
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) << static_cast<unsigned>(n));
}

/// a SHR n: zeros come in from the left. A negative number of 32 bits is shifted as its 32 bits.
constexpr std::int64_t ShiftedRight(std::int64_t a, std::int64_t n) {
  if (n < 0 || n > 63) return 0;
  auto bits = static_cast<std::uint64_t>(a);
  if (a < 0 && a >= std::numeric_limits<std::int32_t>::min()) bits &= 0xFFFFFFFFU;
  return static_cast<std::int64_t>(bits >> static_cast<unsigned>(n));
}

}  // namespace tarnwick::basic
