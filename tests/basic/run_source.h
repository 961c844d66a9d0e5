// Runs source text through all phases.
#pragma once

#include <string>

#include "basic/native_lines.h"
#include "basic/vm/run_result.h"
#include "fakes/program_world.h"

namespace tarnwick::basic {

/// Checks, translates and runs a program in a world. The error is that of the check ("line:column:
/// text", first one) or of the run (its text).
[[nodiscard]] LineResult RunSource(const std::string& text, ProgramWorld& world,
                                   const RunOptions& options);
/// The same in a world of its own, with the limits of the tables.
[[nodiscard]] LineResult RunTableProgram(const std::string& text,
                                         Dispatch how = Dispatch::Threaded);

}  // namespace tarnwick::basic
