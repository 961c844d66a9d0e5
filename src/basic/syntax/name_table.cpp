#include "basic/syntax/name_table.h"

namespace tarnwick::basic {

NameTable::NameTable() : texts_(1) {
  for (auto word = static_cast<std::uint8_t>(Word::None);
       word < static_cast<std::uint8_t>(Word::Xor);) {
    Of(basic::TextOf(static_cast<Word>(++word)));
  }
}

NameId NameTable::Of(std::string_view name) {
  if (name.empty()) return NameId::None;
  const auto [row, fresh] = numbers_.try_emplace(name, static_cast<NameId>(texts_.size()));
  if (fresh) texts_.push_back(name);
  return row->second;
}

NameId NameTable::Find(std::string_view name) const {
  const auto found = numbers_.find(name);
  return found == numbers_.end() ? NameId::None : found->second;
}

}  // namespace tarnwick::basic
