// Bytecode put together by hand, for tests of the machine alone.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "basic/code/code.h"
#include "basic/vm/machine.h"
#include "basic/vm/number_text.h"

namespace tarnwick::basic {

/// A jump's target or a plain word behind an instruction.
Instruction Target(std::size_t index);

/// A program of one or more procedures.
class Assembled {
 public:
  /// A text constant as a slot.
  Slot Text(const std::string& bytes);
  /// Adds a procedure: what its registers hold at the start, which of them are counted, its code.
  /// Jump targets count from the procedure's first instruction.
  ProcedureCode& Procedure(std::string name, std::vector<Slot> start,
                           std::vector<std::uint16_t> counted,
                           const std::vector<Instruction>& code);
  std::uint16_t Shape(std::vector<ArgumentShape> arguments, SlotKind result);

  Code Made;
};

}  // namespace tarnwick::basic
