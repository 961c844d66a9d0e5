// The whole generated program.
#pragma once

#include <string>

#include "codegen/generator_state.h"
#include "model/project_records.h"

namespace tarnwick {

/// The generated program as one text, its calls of Show rewritten, as the source file holds it.
/// Reads the tables; only missing design windows are added to them on first
/// access. `state` goes on from one compilation to the next.
[[nodiscard]] std::string GenerateSource(ProjectTables& tables, GeneratorState& state);

}  // namespace tarnwick
