// From the checked program to bytecode.
#pragma once

#include <string>

#include "basic/check/program.h"
#include "basic/code/code.h"

namespace tarnwick::basic {

struct EmitResult {
  Code Made;
  /// "" when all went well. Else what is too large for the machine, and where; `Made` is of no use.
  std::string Error;
  SourcePlace At;
};

/// The code of a checked program. It does not point into the program, which may go afterwards.
///
///   const EmitResult emitted = Emit(program);
///   if (emitted.Error.empty()) Machine(emitted.Made, hosts, options).Run();
[[nodiscard]] EmitResult Emit(const Program& program);

}  // namespace tarnwick::basic
