// The names of a program as numbers.
#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>

#include "basic/syntax/words.h"
#include "text/code_page.h"

namespace tarnwick::basic {

/// Number of a name in a `NameTable`.
enum class NameId : std::uint32_t { None = 0 };

/// Gives each name a number, the same for every way of writing it: names compare without case. The
/// names themselves must live as long as the table.
class NameTable {
 public:
  NameTable();

  /// The number of a name, which is taken in when it is new. None for "".
  NameId Of(std::string_view name);

 private:
  std::unordered_map<std::string_view, NameId, FoldedHash, FoldedEqual> numbers_;
};

/// The word that a name is; None for any other name. The words have the first numbers.
[[nodiscard]] constexpr Word WordOf(NameId name) noexcept {
  return name <= static_cast<NameId>(Word::Xor) ? static_cast<Word>(name) : Word::None;
}

}  // namespace tarnwick::basic
