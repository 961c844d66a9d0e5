// The calls that most programs make nearly all the time: as many arguments as parameters, and
// nothing left behind but a result. Part of the loop, so that they take a few instructions.
#pragma once

#include <algorithm>

#include "basic/vm/machine_state.h"

namespace tarnwick::basic {

/// CALL: opens the frame of a procedure with its arguments. False for one with a variable number of
/// parameters and when there is no room: nothing was done, and MachineState::Enter does the rest.
inline bool EnterPlain(MachineState& m, const Frame& caller, const Instruction* call) {
  const ProcedureCode& procedure = m.Program.Procedures[call->B];
  const std::size_t size = procedure.Start.size();
  Slot* const base = caller.End;
  const auto room = static_cast<std::size_t>(m.StackEnd - base);
  if (procedure.Variadic || size > room || m.Frames.size() >= kMostCalls) return false;
  const Slot* const arguments = caller.Base;
  std::copy_n(procedure.Start.data(), size, base);
  const std::size_t count = std::min<std::size_t>(call[1].B, procedure.ParameterCount);
  for (std::size_t i = 0; i < count; ++i) {
    base[i] = arguments[ArgumentRegister(call + 2, i)];
    if (IsCounted(procedure.Parameters[i].Kind)) Retain(base[i].B);
  }
  m.OpenFrame(procedure, base, call->A);
  return true;
}

/// RETURN: closes the running frame and hands its result over. False for an activation and for a
/// call that left something behind: nothing was done, and MachineState::Leave does the rest.
inline bool LeavePlain(MachineState& m, const Frame& frame) {
  if (frame.Activation || frame.Variadic || m.Gosubs.size() != frame.Gosubs ||
      m.LocalObjects.size() != frame.Objects || m.Addresses.DeepestCall() >= m.Frames.size()) {
    return false;
  }
  const ProcedureCode& procedure = *frame.Procedure;
  Slot* const base = frame.Base;
  const std::uint16_t result = frame.Result;
  const bool counted = IsCounted(procedure.Result);
  if (counted && result == kNoRegister) return false;
  Slot value{0};
  if (procedure.Result != SlotKind::Empty) {
    value = base[procedure.ResultRegister];
    if (counted) base[procedure.ResultRegister].B = nullptr;
  }
  for (const std::uint16_t number : procedure.Counted) Release(base[number].B);
  m.Frames.pop_back();
  if (procedure.Result == SlotKind::Empty || result == kNoRegister) return true;
  Slot& target = m.Frames.back().Base[result];
  if (counted) Release(target.B);
  target = value;
  return true;
}

}  // namespace tarnwick::basic
