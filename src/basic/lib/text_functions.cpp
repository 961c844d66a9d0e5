#include "basic/lib/text_functions.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

/// Offset of a position from 1; below 1 counts as 1.
std::size_t OffsetOf(std::int64_t position) {
  return position < 1 ? 0 : static_cast<std::size_t>(position - 1);
}

std::size_t LengthOf(std::int64_t count) {
  return count < 1 ? 0 : static_cast<std::size_t>(count);
}

/// Finds one part again and again. Short parts are found by the library's search; for long ones
/// that could take the product of both lengths, so they get a table of their own repetitions.
class Finder {
 public:
  explicit Finder(std::string_view part) : part_(part) {
    if (part.size() <= kShort) return;
    borders_.resize(part.size(), 0);
    for (std::size_t i = 1, length = 0; i < part.size(); ++i) {
      while (length > 0 && part[i] != part[length]) length = borders_[length - 1];
      if (part[i] == part[length]) ++length;
      borders_[i] = length;
    }
  }

  /// Offset of the first match at `from` or behind it; kNone when there is none.
  [[nodiscard]] std::size_t Next(std::string_view text, std::size_t from) const {
    if (part_.empty() || from > text.size()) return kNone;
    if (borders_.empty()) return text.find(part_, from);
    std::size_t length = 0;
    for (std::size_t i = from; i < text.size(); ++i) {
      while (length > 0 && text[i] != part_[length]) length = borders_[length - 1];
      if (text[i] == part_[length]) ++length;
      if (length == part_.size()) return i + 1 - length;
    }
    return kNone;
  }

  /// Offset of the last match in the text; kNone when there is none.
  [[nodiscard]] std::size_t Last(std::string_view text) const {
    if (part_.empty()) return kNone;
    if (borders_.empty()) return text.rfind(part_);
    std::size_t found = kNone;
    std::size_t length = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
      while (length > 0 && (length == part_.size() || text[i] != part_[length])) {
        length = borders_[length - 1];
      }
      if (text[i] == part_[length]) ++length;
      if (length == part_.size()) found = i + 1 - length;
    }
    return found;
  }

 private:
  static constexpr std::size_t kShort = 16;

  std::string_view part_;
  std::vector<std::size_t> borders_;  ///< empty for a short part
};

std::int64_t PositionOf(std::size_t offset) {
  return offset == kNone ? 0 : static_cast<std::int64_t>(offset) + 1;
}

}  // namespace

std::string_view LeftPart(std::string_view text, std::int64_t count) {
  return text.substr(0, LengthOf(count));
}

std::string_view RightPart(std::string_view text, std::int64_t count) {
  return text.substr(text.size() - std::min(text.size(), LengthOf(count)));
}

std::string_view MidPart(std::string_view text, std::int64_t start, std::int64_t count) {
  return text.substr(std::min(text.size(), OffsetOf(start)), LengthOf(count));
}

std::string_view TrimLeft(std::string_view text) {
  return text.substr(std::min(text.size(), text.find_first_not_of(' ')));
}

std::string_view TrimRight(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::int64_t FirstMatch(std::string_view text, std::string_view part, std::int64_t start) {
  return PositionOf(Finder(part).Next(text, OffsetOf(start)));
}

std::int64_t LastMatch(std::string_view text, std::string_view part, std::int64_t start) {
  if (start < 1 || part.empty()) return 0;
  // A match that begins at `start` ends so many bytes behind it.
  const std::size_t begin = OffsetOf(start);
  if (begin < text.size() && part.size() < text.size() - begin) {
    text = text.substr(0, begin + part.size());
  }
  return PositionOf(Finder(part).Last(text));
}

std::int64_t CountMatches(std::string_view text, std::string_view part) {
  const Finder finder(part);
  std::int64_t count = 0;
  for (std::size_t at = finder.Next(text, 0); at != kNone; at = finder.Next(text, at)) {
    ++count;
    at += part.size();
  }
  return count;
}

std::string InsertText(std::string_view part, std::string_view text, std::int64_t position) {
  const std::size_t at = std::min(text.size(), OffsetOf(position));
  std::string result;
  result.reserve(text.size() + part.size());
  result.append(text.substr(0, at)).append(part).append(text.substr(at));
  return result;
}

std::string DeleteText(std::string_view text, std::int64_t start, std::int64_t count) {
  const std::size_t at = std::min(text.size(), OffsetOf(start));
  const std::size_t length = std::min(text.size() - at, LengthOf(count));
  std::string result;
  result.reserve(text.size() - length);
  result.append(text.substr(0, at)).append(text.substr(at + length));
  return result;
}

std::string OverwriteText(std::string_view text, std::string_view part, std::int64_t position) {
  const std::size_t at = std::min(text.size(), OffsetOf(position));
  std::string result;
  result.reserve(std::max(text.size(), at + part.size()));
  result.append(text.substr(0, at)).append(part);
  if (at + part.size() < text.size()) result.append(text.substr(at + part.size()));
  return result;
}

std::size_t ReplacedLength(std::string_view text, std::string_view part, std::string_view with) {
  const auto count = static_cast<std::size_t>(CountMatches(text, part));
  return text.size() - count * part.size() + count * with.size();
}

std::string ReplaceMatches(std::string_view text, std::string_view part, std::string_view with) {
  const Finder finder(part);
  std::string result;
  result.reserve(text.size());
  std::size_t done = 0;
  for (std::size_t at = finder.Next(text, 0); at != kNone; at = finder.Next(text, done)) {
    result.append(text.substr(done, at - done)).append(with);
    done = at + part.size();
  }
  result.append(text.substr(done));
  return result;
}

std::string_view FieldOf(std::string_view text, std::string_view separator, std::int64_t number) {
  if (number < 1) return {};
  const Finder finder(separator);
  std::size_t begin = 0;
  for (;;) {
    const std::size_t end = finder.Next(text, begin);
    if (--number == 0) return text.substr(begin, end == kNone ? kNone : end - begin);
    if (end == kNone) return {};
    begin = end + separator.size();
  }
}

std::string WordCase(std::string_view text) {
  std::string result(text);
  bool first = true;
  for (char& c : result) {
    c = first ? UpperByte(c) : LowerByte(c);
    first = c == ' ';
  }
  return result;
}

std::string Reversed(std::string_view text) {
  return {text.rbegin(), text.rend()};
}

}  // namespace tarnwick::basic
