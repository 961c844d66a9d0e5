// Helpers for reading generated text in tests.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "codegen/program_source.h"
#include "fakes/project_builder.h"
#include "text/strings.h"

namespace tarnwick::test {

using Lines = std::vector<std::string>;

/// The lines of a text whose every line ends in CR LF.
Lines LinesOf(std::string_view text);

/// The generated lines of a project, from a generator that has just been started.
Lines Generate(ProjectBuilder& project);

std::ptrdiff_t CountOf(const Lines& lines, std::string_view line);
bool Has(const Lines& lines, std::string_view line);

/// Place of the first such line, or the number of lines when there is none.
std::size_t PositionOf(const Lines& lines, std::string_view line);

/// The lines that begin with a text, in order.
Lines Starting(const Lines& lines, std::string_view start);

/// The lines from the first that equals `from` up to and including the next that equals `to`.
Lines Between(const Lines& lines, std::string_view from, std::string_view to);

}  // namespace tarnwick::test
