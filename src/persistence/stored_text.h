// The stored form of texts in record lines: commas and line ends are replaced by bytes of their
// own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "persistence/record_tags.h"

namespace tarnwick {

/// Appends a caption, text, tip or hint: commas become their stored byte.
void AppendStoredText(std::string& out, std::string_view text);
/// Appends event code: trimmed, commas and line ends as their stored bytes.
void AppendStoredCode(std::string& out, std::string_view code);
/// Appends public declarations: as code, but not trimmed.
void AppendStoredLines(std::string& out, std::string_view text);
/// Appends an item list: commas become the list comma.
void AppendStoredItems(std::string& out, std::string_view items);

/// A stored value as it is in memory. Line ends are CR LF there.
[[nodiscard]] std::string RestoredValue(std::string_view stored, Restore how);

/// Rows of an item list: each ends in the stored line break; a list without one is
/// comma-separated.
[[nodiscard]] std::vector<std::string> ItemRows(std::string_view items);

}  // namespace tarnwick
