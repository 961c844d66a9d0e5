#include "text/strings.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace tarnwick {

std::string_view TrimLeft(std::string_view text) noexcept {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? text.substr(text.size()) : text.substr(first);
}

std::string_view TrimRight(std::string_view text) noexcept {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? text.substr(0, 0) : text.substr(0, last + 1);
}

std::string_view Trim(std::string_view text) noexcept {
  return TrimLeft(TrimRight(text));
}

bool IsBlank(std::string_view text) noexcept {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

std::vector<std::string_view> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string_view> pieces;
  // A separator of no bytes separates nothing.
  if (separator.empty()) {
    pieces.push_back(text);
    return pieces;
  }
  std::size_t start = 0;
  for (std::size_t at = text.find(separator); at != std::string_view::npos;
       at = text.find(separator, start)) {
    pieces.push_back(text.substr(start, at - start));
    start = at + separator.size();
  }
  pieces.push_back(text.substr(start));
  return pieces;
}

std::string Join(const std::vector<std::string>& pieces, std::string_view separator) {
  std::size_t size = 0;
  for (const std::string& piece : pieces) size += piece.size() + separator.size();
  std::string joined;
  joined.reserve(size);
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (i != 0) joined += separator;
    joined += pieces[i];
  }
  return joined;
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string replaced;
  if (from.empty()) return replaced.assign(text);
  replaced.reserve(text.size());
  std::size_t start = 0;
  for (std::size_t at = text.find(from); at != std::string_view::npos;
       at = text.find(from, start)) {
    replaced.append(text, start, at - start);
    replaced += to;
    start = at + from.size();
  }
  replaced.append(text, start);
  return replaced;
}

void ReplaceByte(std::span<char> text, char from, char to) noexcept {
  std::replace(text.begin(), text.end(), from, to);
}

bool Contains(std::string_view text, std::string_view part) noexcept {
  return text.find(part) != std::string_view::npos;
}

bool IsArrayForm(std::string_view name) noexcept {
  return name.find('(') != std::string_view::npos;
}

std::string_view ArrayStem(std::string_view name) noexcept {
  return name.substr(0, name.find('('));
}

std::string WithoutDigits(std::string_view text) {
  std::string kept;
  kept.reserve(text.size());
  std::copy_if(text.begin(), text.end(), std::back_inserter(kept),
               [](char c) { return c < '0' || c > '9'; });
  return kept;
}

}  // namespace tarnwick
