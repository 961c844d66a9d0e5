// Frames: calls, returns, and procedures started by the outside.
#include <algorithm>

#include "basic/vm/machine_state.h"
#include "basic/vm/variants.h"

namespace tarnwick::basic {

bool MachineState::Push(const ProcedureCode& procedure, std::uint16_t result, bool activation) {
  Slot* const base = Frames.empty() ? Stack.get() : Frames.back().End;
  const std::size_t size = procedure.Start.size();
  if (Frames.size() >= kMostCalls || size > static_cast<std::size_t>(StackEnd - base)) {
    return Fail("More than " + std::to_string(std::min(Frames.size(), kMostCalls)) +
                " calls inside each other");
  }
  std::copy_n(procedure.Start.data(), size, base);
  OpenFrame(procedure, base, result).Activation = activation;
  return true;
}

bool MachineState::Enter(const Instruction* call) {
  const ProcedureCode& procedure = Program.Procedures[call->B];
  if (!procedure.Variadic) return Push(procedure, call->A, false);  // which has no room
  std::vector<Value> values;
  ReadArguments(call + 1, values);
  return PushVariadic(procedure, std::move(values), call->A, false);
}

bool MachineState::EnterPointer(const Instruction* call) {
  const std::int64_t number = Base()[call->B].I;
  if (number <= 0 || number >= static_cast<std::int64_t>(Program.Procedures.size())) {
    return Fail("CALLFUNC: the variable holds no routine");
  }
  const ProcedureCode& procedure = Program.Procedures[static_cast<std::size_t>(number)];
  const CallShape& shape = Program.Shapes[call[1].A];
  std::vector<Value> values;
  ReadArguments(call + 1, values);
  if (!procedure.Variadic && values.size() != procedure.ParameterCount) {
    return Fail("CALLFUNC: " + procedure.Name + " takes " +
                std::to_string(procedure.ParameterCount) + " arguments, not " +
                std::to_string(values.size()));
  }
  for (std::size_t i = 0; i < values.size() && !procedure.Variadic; ++i) {
    const ParameterCode& parameter = procedure.Parameters[i];
    if (parameter.ByReference) return Fail("CALLFUNC cannot pass a variable by reference");
    if (!CanBecome(values[i].Kind(), parameter.Kind)) {
      return Fail("CALLFUNC: argument " + std::to_string(i + 1) + " of " + procedure.Name +
                  " is of another kind");
    }
  }
  // A result of another kind is brought to the wanted one once the procedure is over, in a loop of
  // its own.
  const bool wanted = shape.Result != SlotKind::Empty && call->A != kNoRegister;
  const bool converts = wanted && shape.Result != procedure.Result;
  if (converts && Activations >= kMostActivations) return TooManyActivations();
  const std::uint16_t result = wanted && !converts ? call->A : kNoRegister;
  if (procedure.Variadic) {
    if (!PushVariadic(procedure, std::move(values), result, converts)) return false;
  } else {
    if (!Push(procedure, result, converts)) return false;
    for (std::size_t i = 0; i < values.size(); ++i) {
      const ParameterCode& parameter = procedure.Parameters[i];
      Base()[i] = FitTo(parameter.Stored, Converted(std::move(values[i]), parameter.Kind).Give());
    }
  }
  if (!converts) return true;
  CallResult = Value();
  ++Activations;
  RunLoop();
  --Activations;
  if (Ending) return false;
  StoreResult(call->A, shape.Result, std::move(CallResult));
  return true;
}

bool MachineState::PushVariadic(const ProcedureCode& procedure, std::vector<Value> values,
                                std::uint16_t result, bool activation) {
  if (!Push(procedure, result, activation)) return false;
  VariadicArguments& rows = Variadics.emplace_back();
  for (Value& value : values) {
    (value.Kind() == SlotKind::Text ? rows.Texts : rows.Numbers).push_back(std::move(value));
  }
  Frames.back().Variadic = true;
  return true;
}

bool MachineState::TooManyActivations() {
  return Fail("More than " + std::to_string(kMostActivations) +
              " events or pointer calls inside each other");
}

bool MachineState::Leave() {
  const Frame frame = Frames.back();
  const ProcedureCode& procedure = *frame.Procedure;
  Slot result{0};
  const bool gives = procedure.Result != SlotKind::Empty;
  if (gives) {
    result = frame.Base[procedure.ResultRegister];
    if (IsCounted(procedure.Result)) frame.Base[procedure.ResultRegister].B = nullptr;
  }
  if (frame.Out != nullptr) {
    for (std::size_t i = 0; i < frame.Out->size(); ++i) {
      const ParameterCode& parameter = procedure.Parameters[i];
      if (parameter.ByReference) continue;
      (*frame.Out)[i] = Value::OfSlot(parameter.Kind, frame.Base[i]);
    }
  }
  Unwind(Frames.size() - 1);
  if (!gives) return frame.Activation;
  if (frame.Activation) {
    CallResult = Value::TakeSlot(procedure.Result, result);
  } else if (frame.Result == kNoRegister) {
    if (IsCounted(procedure.Result)) Release(result.B);
  } else {
    Slot& target = Base()[frame.Result];
    if (IsCounted(procedure.Result)) Release(target.B);
    target = result;
  }
  return frame.Activation;
}

void MachineState::Unwind(std::size_t count) {
  while (Frames.size() > count) {
    const Frame& frame = Frames.back();
    for (const std::uint16_t number : frame.Procedure->Counted) Release(frame.Base[number].B);
    Gosubs.resize(frame.Gosubs);
    if (frame.Variadic) Variadics.pop_back();
    if (Addresses.DeepestCall() >= Frames.size()) Addresses.EndCalls(Frames.size());
    const std::size_t objects = frame.Objects;
    Frames.pop_back();
    while (LocalObjects.size() > objects) {
      const ObjectId object = LocalObjects.back();
      LocalObjects.pop_back();
      const auto record = RecordOfObject.find(object);
      if (record != RecordOfObject.end()) {
        Release(record->second);
        RecordOfObject.erase(record);
      }
      if (!Ending && Host.Objects != nullptr) Host.Objects->EndOfLocal(object);
    }
  }
}

bool MachineState::Invoke(ProcedureId id, std::vector<Value>& arguments) {
  if (Ending) return false;
  const ProcedureCode& procedure = Program.Procedures[static_cast<std::size_t>(id)];
  if (Activations >= kMostActivations) return TooManyActivations();
  arguments.resize(procedure.ParameterCount);
  // Parameters by reference point here.
  std::vector<Slot> cells(procedure.ParameterCount, Slot{0});
  std::vector<SlotKind> kinds(procedure.ParameterCount);
  if (!(procedure.Variadic ? PushVariadic(procedure, {}, kNoRegister, true)
                           : Push(procedure, kNoRegister, true))) {
    return false;
  }
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const ParameterCode& parameter = procedure.Parameters[i];
    kinds[i] = parameter.ByReference ? SlotKindOf(KindOf(parameter.Stored)) : parameter.Kind;
    Slot slot{0};
    if (CanBecome(arguments[i].Kind(), kinds[i])) {
      slot = FitTo(parameter.Stored, Converted(arguments[i], kinds[i]).Give());
    }
    (parameter.ByReference ? cells[i] : Base()[i]) = slot;
    if (parameter.ByReference) Base()[i].R = &cells[i];
  }
  Frames.back().Out = &arguments;
  ++Activations;
  RunLoop();
  --Activations;
  // After an error the frames are still there: nothing may point to what ends here.
  for (Frame& frame : Frames) {
    if (frame.Out == &arguments) frame.Out = nullptr;
  }
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (procedure.Parameters[i].ByReference) arguments[i] = Value::TakeSlot(kinds[i], cells[i]);
  }
  return !Ending;
}

void MachineState::RunLoop() {
  const bool counting = StepLimit != 0;
  if (Options.How == Dispatch::Threaded) {
    counting ? RunThreadedCounting(*this) : RunThreaded(*this);
  } else {
    counting ? RunSwitchCounting(*this) : RunSwitch(*this);
  }
}

}  // namespace tarnwick::basic
