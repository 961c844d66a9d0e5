#include "persistence/stored_text.h"

#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kLineBreak(&kStoredLineBreak, 1);

std::string WithByte(std::string_view text, char from, char to) {
  std::string replaced(text);
  ReplaceByte(replaced, from, to);
  return replaced;
}

std::string RestoredLines(std::string_view stored) {
  std::string text;
  text.reserve(stored.size());
  for (const char c : stored) {
    if (c == kStoredLineBreak) {
      text += kLineEnd;
    } else {
      text += c == kStoredComma ? ',' : c;
    }
  }
  return text;
}

}  // namespace

void AppendStoredText(std::string& out, std::string_view text) {
  out += WithByte(text, ',', kStoredComma);
}

void AppendStoredItems(std::string& out, std::string_view items) {
  out += WithByte(items, ',', kStoredListComma);
}

void AppendStoredLines(std::string& out, std::string_view text) {
  AppendStoredText(out, ReplaceAll(text, kLineEnd, kLineBreak));
}

void AppendStoredCode(std::string& out, std::string_view code) {
  AppendStoredLines(out, Trim(code));
}

std::string RestoredValue(std::string_view stored, Restore how) {
  if (stored.empty()) return {};  // as most code is
  switch (how) {
    case Restore::Plain:
      return std::string(stored);
    case Restore::Lines:
      return RestoredLines(stored);
    case Restore::Commas:
      return WithByte(stored, kStoredComma, ',');
    case Restore::Items:
      return WithByte(stored, kStoredListComma, ',');
    case Restore::Code:
      return std::string(Trim(RestoredLines(stored)));
  }
  return std::string(stored);
}

std::vector<std::string> ItemRows(std::string_view items) {
  if (items.empty()) return {};
  const bool marked = Contains(items, kLineBreak);
  const std::vector<std::string_view> pieces =
      Split(items, marked ? kLineBreak : std::string_view(","));
  std::vector<std::string> rows(pieces.begin(), pieces.end());
  if (marked && rows.back().empty()) rows.pop_back();
  return rows;
}

}  // namespace tarnwick
