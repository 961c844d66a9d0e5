// The three shapes of a support source: a table, a file of blocks, a list of words. All are UTF-8
// with LF line ends; docs/support-files.md describes them.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "build/faults.h"

namespace tarnwick::support {

/// A line of a table with its cells in the order of the columns.
struct TableRow {
  std::vector<std::string> Cells;
  Place Where;
};

/// An entry of a file of blocks: "[Name]", lines "field: value", text, and behind "example:" the
/// lines of an example without their two leading blanks.
struct Block {
  std::string Name;
  std::map<std::string, std::string> Fields;
  std::vector<std::string> Text;
  std::vector<std::string> Example;
  Place Where;
};

struct Word {
  std::string Text;
  Place Where;
};

/// The rows of a tab-separated table whose first line must name exactly `columns`. A row with
/// another number of cells is a fault and is left out. `file` names the table in faults.
[[nodiscard]] std::vector<TableRow> ParseTable(std::string_view text, const std::string& file,
                                               const std::vector<std::string>& columns,
                                               Faults& faults);
/// The blocks of a file. A line "word: rest" straight behind the head is a field when `fields` has
/// the word; lines that begin with "#" are comments.
[[nodiscard]] std::vector<Block> ParseBlocks(std::string_view text, const std::string& file,
                                             const std::vector<std::string>& fields,
                                             Faults& faults);
/// One word a line; empty lines are passed over.
[[nodiscard]] std::vector<Word> ParseWords(std::string_view text, const std::string& file);
/// The words of a text set apart by blanks.
[[nodiscard]] std::vector<std::string> WordsOf(std::string_view text);

}  // namespace tarnwick::support
