#include "language/property_row.h"

#include <algorithm>

#include "text/strings.h"

namespace tarnwick::language {

namespace {

constexpr std::string_view kValueSeparator{"\x8B"};
constexpr int kFirstMark = 0x80;

bool IsMark(char c) noexcept {
  return static_cast<unsigned char>(c) >= kFirstMark;
}

}  // namespace

std::size_t NameLengthOf(std::string_view row) noexcept {
  return static_cast<std::size_t>(std::find_if(row.begin(), row.end(), IsMark) - row.begin());
}

PropertyRow ParsePropertyRow(std::string_view text) {
  const std::size_t length = NameLengthOf(text);
  PropertyRow row{std::string{text.substr(0, length)}, row_mark::kText, {}};
  if (length == text.size()) return row;
  row.Mark = static_cast<unsigned char>(text[length]);
  const std::string_view rest = text.substr(length + 1);
  if (row.Mark == row_mark::kYesNo) {
    row.Values = {"False", "True"};
  } else if (row.Mark == row_mark::kList && !rest.empty()) {
    for (const std::string_view value : Split(rest, kValueSeparator)) {
      row.Values.emplace_back(value);
    }
  }
  return row;
}

}  // namespace tarnwick::language
