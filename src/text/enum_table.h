// Tables that have one row for each enumerator of an enumeration.
#pragma once

#include <cstddef>

namespace tarnwick {

/// True when a table has `count` rows and each stands at the value of its enumerator, its member
/// `Id`. A row that was left out leaves an empty one at the end or a gap, and a static_assert over
/// this does not compile:
///
///   static_assert(HasRowOfEach(kColors, kColorCount));
template <class Table>
consteval bool HasRowOfEach(const Table& table, std::size_t count) {
  if (table.size() != count) return false;
  for (std::size_t row = 0; row < count; ++row) {
    if (static_cast<std::size_t>(table[row].Id) != row) return false;
  }
  return true;
}

}  // namespace tarnwick
