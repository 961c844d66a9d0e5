#include "build/source_reader.h"

#include <algorithm>

namespace tarnwick::support {

namespace {

std::vector<std::string> SplitAt(std::string_view text, char separator) {
  std::vector<std::string> pieces;
  std::size_t from = 0;
  for (;;) {
    const std::size_t at = text.find(separator, from);
    pieces.emplace_back(text.substr(from, at == std::string_view::npos ? at : at - from));
    if (at == std::string_view::npos) return pieces;
    from = at + 1;
  }
}

/// The lines without the empty piece behind the last line end.
std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines = SplitAt(text, '\n');
  if (lines.back().empty()) lines.pop_back();
  return lines;
}

void DropEmptyEnd(std::vector<std::string>& lines) {
  while (!lines.empty() && lines.back().empty()) lines.pop_back();
}

/// Reads one file of blocks line by line; `part` is what the next line may be.
class BlockReader {
 public:
  BlockReader(const std::vector<std::string>& fields, Faults& faults)
      : fields_(fields), faults_(faults) {}

  void Take(const std::string& line, const Place& where) {
    if (line.starts_with('#')) return;
    if (line.starts_with('[')) {
      Open(line, where);
    } else if (blocks_.empty()) {
      if (!line.empty()) faults_.Add(where, "text ahead of the first \"[name]\"");
    } else if (part_ == Part::Example) {
      TakeExample(line, where);
    } else if (line == "example:") {
      part_ = Part::Example;
    } else if (part_ != Part::Fields || !TakeField(line, where)) {
      part_ = Part::Text;
      blocks_.back().Text.push_back(line);
    }
  }

  std::vector<Block> Finish() {
    for (Block& block : blocks_) {
      DropEmptyEnd(block.Text);
      DropEmptyEnd(block.Example);
    }
    return std::move(blocks_);
  }

 private:
  enum class Part { Fields, Text, Example };

  void Open(const std::string& line, const Place& where) {
    part_ = Part::Fields;
    blocks_.emplace_back();
    blocks_.back().Where = where;
    if (line.size() < 3 || line.back() != ']') {
      faults_.Add(where, "a head is \"[name]\" and nothing else");
      return;
    }
    blocks_.back().Name = line.substr(1, line.size() - 2);
  }

  bool TakeField(const std::string& line, const Place& where) {
    const std::size_t colon = line.find(':');
    if (colon == std::string::npos) return false;
    const std::string field = line.substr(0, colon);
    if (std::find(fields_.begin(), fields_.end(), field) == fields_.end()) return false;
    const std::size_t value = line.find_first_not_of(' ', colon + 1);
    if (!blocks_.back()
             .Fields.emplace(field, value == std::string::npos ? "" : line.substr(value))
             .second) {
      faults_.Add(where, "the field " + Quoted(field) + " stands twice");
    }
    return true;
  }

  void TakeExample(const std::string& line, const Place& where) {
    if (line.empty()) {
      blocks_.back().Example.emplace_back();
    } else if (line.starts_with("  ")) {
      blocks_.back().Example.push_back(line.substr(2));
    } else {
      faults_.Add(where, "a line of an example begins with two blanks");
    }
  }

  const std::vector<std::string>& fields_;
  Faults& faults_;
  std::vector<Block> blocks_;
  Part part_ = Part::Fields;
};

}  // namespace

std::vector<TableRow> ParseTable(std::string_view text, const std::string& file,
                                 const std::vector<std::string>& columns, Faults& faults) {
  std::vector<TableRow> rows;
  const std::vector<std::string> lines = LinesOf(text);
  if (lines.empty() || SplitAt(lines.front(), '\t') != columns) {
    faults.Add({file, 1}, "the first line does not name the columns of this table");
    return rows;
  }
  for (std::size_t n = 1; n < lines.size(); ++n) {
    TableRow row{SplitAt(lines[n], '\t'), {file, n + 1}};
    if (row.Cells.size() == columns.size()) {
      rows.push_back(std::move(row));
    } else {
      faults.Add(row.Where, "the row has " + std::to_string(row.Cells.size()) + " cells, not " +
                                std::to_string(columns.size()));
    }
  }
  return rows;
}

std::vector<Block> ParseBlocks(std::string_view text, const std::string& file,
                               const std::vector<std::string>& fields, Faults& faults) {
  BlockReader reader(fields, faults);
  std::size_t number = 0;
  for (const std::string& line : LinesOf(text)) reader.Take(line, {file, ++number});
  return reader.Finish();
}

std::vector<Word> ParseWords(std::string_view text, const std::string& file) {
  std::vector<Word> words;
  std::size_t number = 0;
  for (std::string& line : LinesOf(text)) {
    ++number;
    if (!line.empty()) words.push_back({std::move(line), {file, number}});
  }
  return words;
}

std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words = SplitAt(text, ' ');
  std::erase(words, "");
  return words;
}

}  // namespace tarnwick::support
