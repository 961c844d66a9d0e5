#include "basic/syntax/name_table.h"

namespace tarnwick::basic {

NameTable::NameTable() {
  constexpr auto kLast = static_cast<std::uint8_t>(Word::Xor);
  for (std::uint8_t word = 1; word <= kLast; ++word) Of(TextOf(static_cast<Word>(word)));
}

NameId NameTable::Of(std::string_view name) {
  if (name.empty()) return NameId::None;
  return numbers_.try_emplace(name, static_cast<NameId>(numbers_.size() + 1)).first->second;
}

}  // namespace tarnwick::basic
