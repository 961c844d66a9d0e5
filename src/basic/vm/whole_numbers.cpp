#include "basic/vm/whole_numbers.h"

namespace tarnwick::basic {

std::int64_t ModularInverse(std::int64_t a, std::int64_t m) {
  if (m == 0 || m == std::numeric_limits<std::int64_t>::min()) return 0;
  const std::int64_t modulus = m < 0 ? -m : m;
  std::int64_t old_rest = a % modulus;
  if (old_rest < 0) old_rest += modulus;
  std::int64_t rest = modulus;
  std::int64_t old_factor = 1;
  std::int64_t factor = 0;
  while (rest != 0) {
    const std::int64_t quotient = old_rest / rest;
    const std::int64_t next_rest = old_rest - quotient * rest;
    old_rest = rest;
    rest = next_rest;
    const std::int64_t next_factor = old_factor - quotient * factor;
    old_factor = factor;
    factor = next_factor;
  }
  if (old_rest != 1 || modulus == 1) return 0;
  return old_factor < 0 ? old_factor + modulus : old_factor;
}

}  // namespace tarnwick::basic
