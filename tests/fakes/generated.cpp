#include "fakes/generated.h"

namespace tarnwick::test {

Lines LinesOf(std::string_view text) {
  Lines lines;
  for (const std::string_view line : Split(text, "\r\n")) lines.emplace_back(line);
  // What stands behind the last line end is no line.
  if (!lines.empty() && lines.back().empty()) lines.pop_back();
  return lines;
}

Lines Generate(ProjectBuilder& project) {
  GeneratorState state;
  return LinesOf(GenerateSource(project.Tables, state));
}

std::ptrdiff_t CountOf(const Lines& lines, std::string_view line) {
  return std::count(lines.begin(), lines.end(), line);
}

bool Has(const Lines& lines, std::string_view line) {
  return CountOf(lines, line) > 0;
}

std::size_t PositionOf(const Lines& lines, std::string_view line) {
  return static_cast<std::size_t>(std::find(lines.begin(), lines.end(), line) - lines.begin());
}

Lines Starting(const Lines& lines, std::string_view start) {
  Lines found;
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(found),
               [&](const std::string& line) { return line.compare(0, start.size(), start) == 0; });
  return found;
}

Lines Between(const Lines& lines, std::string_view from, std::string_view to) {
  const auto first = std::find(lines.begin(), lines.end(), from);
  if (first == lines.end()) return {};
  const auto last = std::find(first + 1, lines.end(), to);
  return Lines(first, last == lines.end() ? last : last + 1);
}

}  // namespace tarnwick::test
