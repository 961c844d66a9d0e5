// The conformance table functions.tsv: for each word of the language, lines of a program and what
// they print. "\n" in a field is a line end; calls of the hosts stand in angle brackets; the last
// lines of the output are "error: ..." and "note: ...". The mark tells where a row comes from:
// M the language's manual, G generated programs, K general knowledge, ? a choice of ours.
#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "basic/lib/function_table.h"
#include "basic/native_lines.h"
#include "fakes/build_paths.h"

namespace tarnwick::basic {
namespace {

struct Row {
  std::string Function;
  std::string Program;
  std::string Output;
  std::string Mark;
  int LineNumber = 0;
};

std::string WithLineEnds(std::string text) {
  for (std::size_t at = text.find("\\n"); at != std::string::npos; at = text.find("\\n", at)) {
    text.replace(at, 2, "\n");
  }
  return text;
}

std::vector<Row> ReadRows() {
  std::ifstream file(test::SourceFolder() + "/tests/basic/functions.tsv", std::ios::binary);
  std::vector<Row> rows;
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    if (++number == 1) continue;
    std::array<std::string, 4> fields;
    std::size_t field = 0;
    for (const char c : line) {
      if (c == '\t') {
        ++field;
      } else {
        fields.at(field) += c;
      }
    }
    rows.push_back({fields[0], WithLineEnds(fields[1]), fields[2], fields[3], number});
  }
  return rows;
}

/// The table's form of a result: one line, without the line end behind the last line.
std::string OutputOf(const LineResult& result) {
  std::string text = result.Output;
  const bool more = !result.Error.empty() || !result.Notes.empty();
  if (more && !text.empty() && !text.ends_with('\n')) text += '\n';
  if (!result.Error.empty()) text += "error: " + result.Error + "\n";
  text += result.Notes;
  if (text.ends_with('\n')) text.pop_back();
  std::string line;
  for (const char c : text) line += c == '\n' ? "\\n" : std::string(1, c);
  return line;
}

TEST(FunctionRows, NativeFunctionsGiveWhatTheirRowsSay) {
  int count = 0;
  for (const Row& row : ReadRows()) {
    const std::optional<LineResult> result = RunNativeLine(row.Program);
    if (!result) continue;  // needs more of the language than the function library
    ++count;
    EXPECT_EQ(OutputOf(*result), row.Output)
        << "functions.tsv:" << row.LineNumber << ": " << row.Program;
  }
  EXPECT_GT(count, 500);
}

TEST(FunctionRows, EveryNativeFunctionHasFiveRowsThatRun) {
  std::map<std::string, int, std::less<>> count;
  for (const Row& row : ReadRows()) {
    if (RunNativeLine(row.Program)) ++count[row.Function];
  }
  for (const FunctionInfo& function : Functions()) {
    if (!function.IsNative() || FindLeftOut(function.Name) != nullptr) continue;
    if (function.Name.starts_with("MEM") || function.Name == "VARPTR$") continue;
    EXPECT_GE(count[std::string(function.Name)], 5) << function.Name;
  }
}

TEST(FunctionRows, EveryRowNamesAWordAndItsMark) {
  for (const Row& row : ReadRows()) {
    EXPECT_FALSE(FindFunctions(row.Function).empty()) << row.LineNumber;
    EXPECT_EQ(row.Mark.size(), 1U) << row.LineNumber;
    EXPECT_NE(std::string("MGK?").find(row.Mark), std::string::npos) << row.LineNumber;
  }
}

}  // namespace
}  // namespace tarnwick::basic
