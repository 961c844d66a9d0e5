#include "basic/conformance_table.h"

#include <array>
#include <fstream>

#include "fakes/build_paths.h"

namespace tarnwick::basic {
namespace {

std::string WithLineEnds(std::string text) {
  for (std::size_t at = text.find("\\n"); at != std::string::npos; at = text.find("\\n", at)) {
    text.replace(at, 2, "\n");
  }
  return text;
}

}  // namespace

std::vector<ConformanceRow> ReadConformanceRows(std::string_view name) {
  std::ifstream file(test::SourceFolder() + "/tests/basic/" + std::string(name), std::ios::binary);
  std::vector<ConformanceRow> rows;
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    if (++number == 1) continue;  // names of the columns
    std::array<std::string, 4> fields;
    std::size_t field = 0;
    for (const char c : line) {
      if (c == '\t') {
        ++field;
      } else {
        fields.at(field) += c;
      }
    }
    rows.push_back({fields[0], WithLineEnds(fields[1]), fields[2], fields[3],
                    std::string(name) + ":" + std::to_string(number)});
  }
  return rows;
}

std::string OutputField(std::string printed, std::string_view error, std::string_view notes) {
  if ((!error.empty() || !notes.empty()) && !printed.empty() && !printed.ends_with('\n')) {
    printed += '\n';
  }
  if (!error.empty()) printed.append("error: ").append(error).append("\n");
  printed += notes;
  if (printed.ends_with('\n')) printed.pop_back();
  std::string line;
  for (const char c : printed) line += c == '\n' ? "\\n" : std::string(1, c);
  return line;
}

bool Fits(const ConformanceRow& row, std::string_view output) {
  if (!row.Output.ends_with('*')) return output == row.Output;
  return output.starts_with(std::string_view(row.Output).substr(0, row.Output.size() - 1));
}

}  // namespace tarnwick::basic
