#include "persistence/stored_text.h"

#include "text/short_bytes.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

void Append(std::string& out, const StoredText& stored) {
  const std::size_t start = out.size();
  out.resize(start + stored.Text.size());
  SetPart(out.data() + start, stored);
}

std::string_view RestoredByte(std::string_view text, char stored, std::string& buffer) {
  if (text.find(stored) == std::string_view::npos) return text;
  buffer = text;
  ReplaceByte(buffer, stored, ',');
  return buffer;
}

}  // namespace

char* SetPart(char* at, const StoredText& stored) noexcept {
  char* const end = CopyBytes(at, stored.Text);
  ReplaceByte({at, end}, ',', stored.Comma);
  return end;
}

void AppendStoredText(std::string& out, std::string_view text) {
  Append(out, {text});
}

void AppendStoredItems(std::string& out, std::string_view items) {
  Append(out, StoredItems(items));
}

void AppendStoredLines(std::string& out, std::string_view text) {
  std::size_t at = 0;
  for (std::size_t end = text.find("\r\n"); end != std::string_view::npos;
       end = text.find("\r\n", at)) {
    AppendStoredText(out, text.substr(at, end - at));
    out += kStoredLineBreak;
    at = end + 2;
  }
  AppendStoredText(out, text.substr(at));
}

void AppendStoredCode(std::string& out, std::string_view code) {
  AppendStoredLines(out, Trim(code));
}

std::vector<std::string> ItemRows(std::string_view items) {
  if (items.empty()) return {};
  const bool marked = Contains(items, std::string_view(&kStoredLineBreak, 1));
  const std::string_view separator =
      marked ? std::string_view(&kStoredLineBreak, 1) : std::string_view(",");
  const std::vector<std::string_view> pieces = Split(items, separator);
  std::vector<std::string> rows(pieces.begin(), pieces.end());
  if (marked && rows.back().empty()) rows.pop_back();
  return rows;
}

std::string_view RestoredCommas(std::string_view text, std::string& buffer) {
  return RestoredByte(text, kStoredComma, buffer);
}

std::string_view RestoredListCommas(std::string_view text, std::string& buffer) {
  return RestoredByte(text, kStoredListComma, buffer);
}

std::string_view RestoredLines(std::string_view text, std::string& buffer) {
  const std::string_view restored = RestoredByte(text, kStoredComma, buffer);
  if (restored.find(kStoredLineBreak) == std::string_view::npos) return restored;
  buffer = ReplaceAll(restored, std::string_view(&kStoredLineBreak, 1), "\r\n");
  return buffer;
}

}  // namespace tarnwick
