// Bytecode as text, for people and for golden tests.
#pragma once

#include <string>

#include "basic/code/code.h"

namespace tarnwick::basic {

/// All procedures of the program: a head line, the registers that hold constants, then a line per
/// instruction: index, line of the text (when it changes), name, operands. A register is written
/// r3, a global g3, a jump's target as -> and an index; `none` is a result that is dropped.
///
///   procedure 0 main: 4 registers, 1 counted
///     r2 = 10
///       0  1  MOVE          r0 r2
[[nodiscard]] std::string DumpCode(const Code& code);

}  // namespace tarnwick::basic
