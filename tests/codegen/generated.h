// Helpers for reading generated text in tests.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "codegen/program_source.h"
#include "support/project_builder.h"
#include "text/strings.h"

namespace tarnwick::test {

using Lines = std::vector<std::string>;

/// The lines of a text whose every line ends in CR LF.
inline Lines LinesOf(std::string_view text) {
  Lines lines;
  for (const std::string_view line : Split(text, "\r\n")) lines.emplace_back(line);
  // What stands behind the last line end is no line.
  if (!lines.empty() && lines.back().empty()) lines.pop_back();
  return lines;
}

/// The generated lines of a project, from a generator that has just been started.
inline Lines Generate(ProjectBuilder& project) {
  GeneratorState state;
  return LinesOf(GenerateSource(project.Tables, state));
}

inline std::ptrdiff_t CountOf(const Lines& lines, std::string_view line) {
  return std::count(lines.begin(), lines.end(), line);
}
inline bool Has(const Lines& lines, std::string_view line) {
  return CountOf(lines, line) > 0;
}

/// Place of the first such line, or the number of lines when there is none.
inline std::size_t PositionOf(const Lines& lines, std::string_view line) {
  return static_cast<std::size_t>(std::find(lines.begin(), lines.end(), line) - lines.begin());
}

/// The lines that begin with a text, in order.
inline Lines Starting(const Lines& lines, std::string_view start) {
  Lines found;
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(found),
               [&](const std::string& line) { return line.compare(0, start.size(), start) == 0; });
  return found;
}

/// The lines from the first that equals `from` up to and including the next that equals `to`.
inline Lines Between(const Lines& lines, std::string_view from, std::string_view to) {
  const auto first = std::find(lines.begin(), lines.end(), from);
  if (first == lines.end()) return {};
  const auto last = std::find(first + 1, lines.end(), to);
  return Lines(first, last == lines.end() ? last : last + 1);
}

}  // namespace tarnwick::test
