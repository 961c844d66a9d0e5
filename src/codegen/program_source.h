// The whole generated program.
#pragma once

#include <string>
#include <string_view>

#include "codegen/generator_state.h"
#include "codegen/source_map.h"
#include "codegen/source_text.h"
#include "model/project_records.h"

namespace tarnwick {

/// The generated program as one text, its calls of Show rewritten, as the source file holds it.
/// Reads the tables; only missing design windows are added to them on first
/// access. `state` goes on from one compilation to the next. An empty `map` is filled with what the
/// lines come from, its lines not counted yet; null for a caller who does not care.
[[nodiscard]] std::string GenerateSource(ProjectTables& tables, GeneratorState& state,
                                         SourceMap* map = nullptr);

/// The same program handed to `sink` in pieces, so that it is never in memory as a whole, unless a
/// form has a transparent frame: calls of its Show are looked for in the whole text.
void WriteSource(ProjectTables& tables, GeneratorState& state, const TextSink& sink);

/// The name of the form that the program begins with: the main form, or form 1 when that has a
/// transparent frame.
[[nodiscard]] std::string_view FirstShownForm(const ProjectTables& tables);

}  // namespace tarnwick
