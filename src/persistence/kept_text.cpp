#include "persistence/kept_text.h"

#include <cstddef>

#include "persistence/record_layouts.h"
#include "persistence/stored_text.h"
#include "persistence/tag_scanner.h"

namespace tarnwick {

namespace {

/// A record of a kind that holds a text under a tag, and "0" in all other places.
std::string RecordWith(Kind kind, Tag tag, std::string_view text) {
  const RecordLayout& layout = LayoutOf(kind);
  std::string line;
  for (const LayoutField& field : layout.Fields) {
    line += field.Before;
    line += field.In == tag ? text : std::string_view("0");
  }
  return line.append(layout.End);
}

}  // namespace

std::string KeptBytes(std::string_view text, Tag tag) {
  if (tag == Tag::None) return std::string(text);
  const Restore how = InfoOf(tag).How;
  std::string kept(text);
  for (char& c : kept) {
    const std::string_view byte(&c, 1);
    if (byte != " " && RestoredValue(byte, how) != byte) c = '?';
  }
  return kept;
}

bool RecordKeeps(Kind kind, Tag tag, std::string_view text) {
  // Tags, and the brackets of the head, which some kinds leave to the line before.
  if (tag == Tag::None || text.find_first_of("<>()") == std::string_view::npos) return true;
  const std::string line = RecordWith(kind, tag, text);
  const std::string plain = RecordWith(kind, tag, "");
  TagScanner with;
  with.Scan(line);
  TagScanner without;
  without.Scan(plain);
  if (with.Number() != without.Number() || with.Stored(tag) != text) return false;
  for (std::size_t other = 0; other < kTagCount; ++other) {
    const auto each = static_cast<Tag>(other);
    if (each != tag && with.Stored(each) != without.Stored(each)) return false;
  }
  return true;
}

}  // namespace tarnwick
