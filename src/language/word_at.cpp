#include "language/word_at.h"

#include <algorithm>

#include "language/characters.h"

namespace tarnwick::language {

std::string_view WordAt(std::string_view line, std::size_t caret) noexcept {
  caret = std::min(caret, line.size());
  const bool dot = caret > 0 && line[caret - 1] == '.';
  std::size_t begin = dot ? caret - 1 : caret;
  while (begin > 0 && IsNameByte(line[begin - 1])) --begin;
  std::size_t end = caret;
  while (!dot && end < line.size() && IsNameByte(line[end])) ++end;
  return line.substr(begin, end - begin);
}

}  // namespace tarnwick::language
