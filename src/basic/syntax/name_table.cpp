#include "basic/syntax/name_table.h"

#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

constexpr std::size_t kFirstRows = 256;

}  // namespace

NameTable::NameTable() : names_(1), rows_(kFirstRows) {
  constexpr auto kLast = static_cast<std::uint8_t>(Word::Xor);
  for (std::uint8_t word = 1; word <= kLast; ++word) Of(TextOf(static_cast<Word>(word)));
}

NameId NameTable::Of(std::string_view name) {
  if (name.empty()) return NameId::None;
  const auto hash = static_cast<std::uint32_t>(FoldedHash()(name));
  const std::size_t mask = rows_.size() - 1;
  std::size_t at = hash & mask;
  for (; rows_[at].Id != NameId::None; at = (at + 1) & mask) {
    const Row& row = rows_[at];
    if (row.Hash != hash) continue;
    const std::string_view known = names_[static_cast<std::size_t>(row.Id)];
    if (known == name || EqualsFolded(known, name)) return row.Id;
  }
  const auto id = static_cast<NameId>(names_.size());
  rows_[at] = {hash, id};
  names_.push_back(texts_.Text(name));
  if (names_.size() * 2 > rows_.size()) Grow();
  return id;
}

void NameTable::Grow() {
  std::vector<Row> grown(rows_.size() * 2);
  const std::size_t mask = grown.size() - 1;
  for (const Row& row : rows_) {
    if (row.Id == NameId::None) continue;
    std::size_t at = row.Hash & mask;
    while (grown[at].Id != NameId::None) at = (at + 1) & mask;
    grown[at] = row;
  }
  rows_ = std::move(grown);
}

}  // namespace tarnwick::basic
