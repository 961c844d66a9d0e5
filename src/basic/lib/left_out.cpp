#include <unordered_map>
#include <vector>

#include "basic/lib/function_table.h"
#include "basic/lib/left_out_text.h"
#include "basic/source/messages.h"
#include "basic/table_text.h"
#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

std::vector<LeftOut> ReadTable() {
  std::vector<LeftOut> words;
  std::string_view rest = kLeftOutText;
  rest.remove_prefix(rest.find('\n') + 1);
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
