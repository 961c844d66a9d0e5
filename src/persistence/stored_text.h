// How values are put into records and taken out of them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text/code_page.h"

namespace tarnwick {

/// A text whose commas stand under another byte, as a part of a page.
struct StoredText {
  std::string_view Text;
  char Comma = kStoredComma;
};
/// An item list.
[[nodiscard]] inline StoredText StoredItems(std::string_view items) noexcept {
  return {items, kStoredListComma};
}
[[nodiscard]] inline std::size_t MostBytesOf(const StoredText& stored) noexcept {
  return stored.Text.size();
}
char* SetPart(char* at, const StoredText& stored) noexcept;

/// Appends a caption, text, tip or hint: commas become their stored byte.
void AppendStoredText(std::string& out, std::string_view text);
/// Appends event code: trimmed, commas and line ends as their stored bytes.
void AppendStoredCode(std::string& out, std::string_view code);
/// Appends public declarations: as code, but not trimmed.
void AppendStoredLines(std::string& out, std::string_view text);
/// Appends an item list: commas become the list comma.
void AppendStoredItems(std::string& out, std::string_view items);

/// Rows of an item list: each ends in the stored line break; a list without one is
/// comma-separated.
[[nodiscard]] std::vector<std::string> ItemRows(std::string_view items);

/// A text with its stored bytes turned back: the text itself where it has none of them, as most,
/// otherwise the buffer, which then holds the result.
[[nodiscard]] std::string_view RestoredCommas(std::string_view text, std::string& buffer);
[[nodiscard]] std::string_view RestoredListCommas(std::string_view text, std::string& buffer);
/// Commas and line ends; a line end is CR LF in memory.
[[nodiscard]] std::string_view RestoredLines(std::string_view text, std::string& buffer);

}  // namespace tarnwick
