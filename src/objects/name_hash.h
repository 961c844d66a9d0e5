// The hash by which names of members are found; the build makes the tables with it.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarnwick::objects {

/// Hash of a name without regard to the case of the letters A to Z, which are all that names of
/// members have.
[[nodiscard]] constexpr std::uint32_t NameHash(std::string_view name, std::uint32_t seed) noexcept {
  std::uint32_t hash = 2166136261U ^ (seed * 2654435761U);
  for (const char c : name) {
    const bool small = c >= 'a' && c <= 'z';
    hash ^= static_cast<unsigned char>(small ? c - 'a' + 'A' : c);
    hash *= 16777619U;
  }
  return hash ^ (hash >> 15U);
}

}  // namespace tarnwick::objects
