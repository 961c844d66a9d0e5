#include "persistence/record_layouts.h"

#include <algorithm>

namespace tarnwick::layouts {

namespace {

/// True when the literal behind a value ends it, ">" and the tag's own word, and starts one other
/// at most.
constexpr bool Closes(std::string_view literal, Tag tag) {
  const std::size_t size = InfoOf(tag).Word.size();
  return literal.starts_with('>') && TagOfWord(literal.substr(1, size)) == tag &&
         literal.find('>', 1) == std::string_view::npos && literal.find('<') == literal.rfind('<');
}

constexpr bool ReadsByPlace(const RecordLayout& layout) {
  for (std::size_t i = 0; i < layout.Fields.size(); ++i) {
    const Tag tag = layout.Fields[i].In;
    if (tag == Tag::None) continue;
    const bool last = i + 1 == layout.Fields.size();
    if (!Closes(last ? layout.End : layout.Fields[i + 1].Before, tag)) return false;
    for (const LayoutField& before : layout.Fields.first(i)) {
      if (before.In == Tag::None) continue;
      if (InfoOf(before.In).Word.ends_with(InfoOf(tag).Word)) return false;
    }
  }
  return true;
}
static_assert(std::all_of(kLayouts.begin(), kLayouts.end(), ReadsByPlace));

}  // namespace

}  // namespace tarnwick::layouts
