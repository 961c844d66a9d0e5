// Tables of programs and what they print: functions.tsv and operators.tsv.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick::basic {

/// A row: the word it is about, the lines of a program, what they print, where that is known from
/// (M the language's manual, G generated programs, K general knowledge, ? a choice of ours).
///
/// In the file "\n" stands for a line end. The output has no line end behind its last line; calls
/// of the hosts stand in it in angle brackets, errors and notes as last lines "error: ..." and
/// "note: ...". A "*" at the end of the expected output stands for any rest.
struct ConformanceRow {
  std::string Word;
  std::string Program;
  std::string Output;
  std::string Mark;
  std::string Where;  ///< file and line, for a failure's message
};

/// The rows of a file of tests/basic.
[[nodiscard]] std::vector<ConformanceRow> ReadConformanceRows(std::string_view file);
/// A program's printed text, error and notes as a row has them.
[[nodiscard]] std::string OutputField(std::string printed, std::string_view error,
                                      std::string_view notes);
/// True when an output is what the row expects.
[[nodiscard]] bool Fits(const ConformanceRow& row, std::string_view output);

}  // namespace tarnwick::basic
