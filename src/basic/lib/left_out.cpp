#include <unordered_map>
#include <vector>

#include "basic/lib/function_table.h"
#include "basic/lib/left_out_text.h"
#include "basic/source/messages.h"
#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

/// The text in front of the first `separator`, which is taken off `rest` with it.
std::string_view TakeUntil(std::string_view& rest, char separator) {
  const std::size_t end = rest.find(separator);
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return part;
}

std::vector<LeftOut> ReadTable() {
  std::vector<LeftOut> words;
  std::string_view rest = kLeftOutText;
  TakeUntil(rest, '\n');
  while (!rest.empty()) {
    std::string_view line = TakeUntil(rest, '\n');
    LeftOut& word = words.emplace_back();
    word.Name = TakeUntil(line, '\t');
    word.Reason = TakeUntil(line, '\t');
    word.Instead = line;
  }
  return words;
}

const std::vector<LeftOut>& Table() {
  static const std::vector<LeftOut> kTable = ReadTable();
  return kTable;
}

}  // namespace

std::span<const LeftOut> LeftOutWords() {
  return Table();
}

const LeftOut* FindLeftOut(std::string_view name) {
  static const auto kByName = [] {
    std::unordered_map<std::string_view, const LeftOut*, FoldedHash, FoldedEqual> rows;
    for (const LeftOut& word : Table()) rows.emplace(word.Name, &word);
    return rows;
  }();
  const auto found = kByName.find(name);
  return found == kByName.end() ? nullptr : found->second;
}

std::string TextOf(const LeftOut& word) {
  return std::string(word.Name) + std::string(kNotSupported) + ": " + std::string(word.Reason);
}

std::string RemedyOf(const LeftOut& word) {
  return word.Instead.empty() ? std::string() : "Use " + std::string(word.Instead);
}

}  // namespace tarnwick::basic
