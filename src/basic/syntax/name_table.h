// The names of a program as numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "basic/source/arena.h"
#include "basic/syntax/words.h"

namespace tarnwick::basic {

/// Number of a name in a `NameTable`.
enum class NameId : std::uint32_t { None = 0 };

/// Gives each name a number, the same for every way of writing it: names compare without case.
///
/// Every name of a program is looked up here each time it stands in the text. So the numbers stand
/// in one open table, with a part of the hash beside each: a look-up touches a row of it and the
/// name that it finds, no more.
class NameTable {
 public:
  NameTable();

  /// The number of a name, which is taken in when it is new. None for "".
  NameId Of(std::string_view name);

 private:
  struct Row {
    std::uint32_t Hash = 0;
    NameId Id = NameId::None;  ///< None: free
  };
  void Grow();

  Arena texts_;
  std::vector<std::string_view> names_;  ///< by number, from 1
  std::vector<Row> rows_;                ///< a power of two of them, half of them free at least
};

/// The word that a name is; None for any other name. The words have the first numbers.
[[nodiscard]] constexpr Word WordOf(NameId name) noexcept {
  return name <= static_cast<NameId>(Word::Xor) ? static_cast<Word>(name) : Word::None;
}

}  // namespace tarnwick::basic
