// Calls of library functions, DLL entries, methods and properties.
#include <cmath>
#include <optional>

#include "basic/hosts/native_calls.h"
#include "basic/lib/native_table.h"
#include "basic/vm/machine_state.h"
#include "basic/vm/variants.h"

namespace tarnwick::basic {

Slot FitTo(Storage storage, Slot value) {
  switch (storage) {
    case Storage::Byte:
      return IntegerSlot(static_cast<std::uint8_t>(value.I));
    case Storage::Word:
      return IntegerSlot(static_cast<std::uint16_t>(value.I));
    case Storage::DWord:
      return IntegerSlot(static_cast<std::uint32_t>(value.I));
    case Storage::Short:
      return IntegerSlot(static_cast<std::int16_t>(value.I));
    case Storage::Integer:
      return IntegerSlot(static_cast<std::int32_t>(value.I));
    case Storage::Single:
      return NumberSlot(static_cast<double>(static_cast<float>(value.D)));
    default:
      return value;
  }
}

void MachineState::ReadArguments(const Instruction* words, std::vector<Value>& arguments) const {
  const CallShape& shape = Program.Shapes[words->A];
  const Slot* const base = Frames.back().Base;
  arguments.reserve(shape.Arguments.size());
  for (std::size_t i = 0; i < shape.Arguments.size(); ++i) {
    const ArgumentShape& argument = shape.Arguments[i];
    Slot slot = base[ArgumentRegister(words + 1, i)];
    if (argument.Reference) slot = *slot.R;
    if (argument.Kind == SlotKind::Empty) {
      arguments.emplace_back();
    } else if (argument.Kind == SlotKind::Variant) {
      arguments.push_back(Content(slot.B));
    } else {
      arguments.push_back(Value::OfSlot(argument.Kind, slot));
    }
    if (argument.Reference) arguments.back().SetStored(argument.Stored);
  }
}

void MachineState::WriteArguments(const Instruction* words, std::vector<Value>& arguments) {
  const CallShape& shape = Program.Shapes[words->A];
  const Slot* const base = Frames.back().Base;
  for (std::size_t i = 0; i < shape.Arguments.size(); ++i) {
    const ArgumentShape& argument = shape.Arguments[i];
    // Arrays and records are references by themselves: what was written to them is there.
    const bool whole = argument.Kind == SlotKind::Array || argument.Kind == SlotKind::Record;
    if (!argument.Reference || whole || !CanBecome(arguments[i].Kind(), argument.Kind)) continue;
    Slot& variable = *base[ArgumentRegister(words + 1, i)].R;
    const Slot fitted =
        FitTo(argument.Stored, Converted(std::move(arguments[i]), argument.Kind).Give());
    if (IsCounted(argument.Kind)) Release(variable.B);
    variable = fitted;
  }
}

void MachineState::StoreResult(std::uint16_t target, SlotKind kind, Value value) {
  if (target == kNoRegister || kind == SlotKind::Empty) return;
  const Slot slot = Converted(std::move(value), kind).Give();
  Slot& variable = Base()[target];
  if (IsCounted(kind)) Release(variable.B);
  variable = slot;
}

void MachineState::TakeNotes() {
  if (Library.Notes.empty()) return;
  // Behind the last line of the program a note has no place.
  SourcePlace place{};
  if (!Frames.empty()) {
    place =
        Program.PlaceOf(static_cast<std::size_t>(Frames.back().Pc - Program.Instructions.data()));
  }
  for (std::string& note : Library.Notes) {
    Result.Notes.push_back({place, std::move(note)});
  }
  Library.Notes.clear();
}

bool MachineState::CallLibrary(const Instruction* call) {
  const NativeFunction function = Natives[call->B];
  if (function == nullptr) {
    const std::string name(FunctionOf(static_cast<FunctionId>(call->B)).Name);
    return Fail(name + " is not supported by the runner");
  }
  // Most calls have few arguments: those need no memory of their own.
  const CallShape& shape = Program.Shapes[call[1].A];
  const std::size_t count = shape.Arguments.size();
  constexpr std::size_t kFew = 4;
  Value few[kFew];
  std::vector<Value> many;
  bool plain = count <= kFew;
  const Slot* const base = Base();
  for (std::size_t i = 0; i < count && plain; ++i) {
    const SlotKind kind = shape.Arguments[i].Kind;
    plain = kind == SlotKind::Integer || kind == SlotKind::Number || kind == SlotKind::Text;
    if (plain) few[i] = Value::OfSlot(kind, base[ArgumentRegister(call + 2, i)]);
  }
  if (!plain) ReadArguments(call + 1, many);
  LibraryCall library{plain ? std::span<const Value>(few, count) : std::span<const Value>(many),
                      Host,
                      Library,
                      Options.TextLimit,
                      Value(),
                      std::string()};
  function(library);
  TakeNotes();
  if (EndsBehindWaiting()) return false;
  if (!library.Error.empty()) return Fail(std::move(library.Error));
  StoreResult(call->A, shape.Result, std::move(library.Result));
  return true;
}

bool MachineState::CallDll(const Instruction* call) {
  const NativeEntry& entry = Program.Natives[call->B];
  if (Host.Natives != nullptr && !DllFound[call->B]) {
    DllEntries[call->B] = Host.Natives->Find(entry.Library, entry.Entry);
    DllFound[call->B] = true;
  }
  if (!DllEntries[call->B]) {
    return Fail(entry.Name + ": the entry " + entry.Entry + " of " + entry.Library +
                " is not supported by the runner");
  }
  std::vector<Value> arguments;
  ReadArguments(call + 1, arguments);
  Value result;
  const bool done = Host.Natives->Call(*DllEntries[call->B], arguments, Library.Memory, result);
  if (Ending) return false;
  if (!done) return Fail(entry.Name + ": " + std::string(Host.Natives->Reason()));
  WriteArguments(call + 1, arguments);
  StoreResult(call->A, Program.Shapes[call[1].A].Result, std::move(result));
  return true;
}

bool MachineState::NeedObjects() {
  return Host.Objects != nullptr || Fail("There are no objects in this run");
}

bool MachineState::CallMethod(const Instruction* call) {
  if (!NeedObjects()) return false;
  std::vector<Value> arguments;
  ReadArguments(call + 1, arguments);
  Value result;
  const auto object = static_cast<ObjectId>(Base()[call->B].I);
  const bool done = Host.Objects->Call(object, static_cast<MemberId>(call->C), arguments, result);
  if (EndsBehindWaiting()) return false;
  if (!done) return Fail(std::string(Host.Objects->Reason()));
  WriteArguments(call + 1, arguments);
  StoreResult(call->A, Program.Shapes[call[1].A].Result, std::move(result));
  return true;
}

bool MachineState::GetProperty(const Instruction* call) {
  if (!NeedObjects()) return false;
  std::vector<Value> indexes;
  ReadArguments(call + 1, indexes);
  Value result;
  const auto object = static_cast<ObjectId>(Base()[call->B].I);
  const bool done = Host.Objects->Get(object, static_cast<MemberId>(call->C), indexes, result);
  if (Ending) return false;
  if (!done) return Fail(std::string(Host.Objects->Reason()));
  StoreResult(call->A, Program.Shapes[call[1].A].Result, std::move(result));
  return true;
}

bool MachineState::SetProperty(const Instruction* call) {
  if (!NeedObjects()) return false;
  const auto object = static_cast<ObjectId>(Base()[call->B].I);
  const auto member = static_cast<MemberId>(call->A);
  const CallShape& shape = Program.Shapes[call[1].A];
  bool done = false;
  if (shape.Arguments.size() == 1 && shape.Arguments[0].Kind != SlotKind::Variant) {
    const Value value =
        Value::OfSlot(shape.Arguments[0].Kind, Base()[ArgumentRegister(call + 2, 0)]);
    done = Host.Objects->Set(object, member, {}, value);
  } else {
    std::vector<Value> values;
    ReadArguments(call + 1, values);
    done = Host.Objects->Set(object, member, std::span<const Value>(values).subspan(1), values[0]);
  }
  if (Ending) return false;
  return done || Fail(std::string(Host.Objects->Reason()));
}

bool MachineState::CopyObject(ObjectId to, ObjectId from) {
  if (!NeedObjects()) return false;
  const bool done = Host.Objects->Assign(to, from);
  if (Ending) return false;
  return done || Fail(std::string(Host.Objects->Reason()));
}

bool MachineState::HookEvent(const Instruction* hook) {
  if (!NeedObjects()) return false;
  EventHook row{static_cast<ProcedureId>(hook->C), Value()};
  if (hook[1].A != kNoRegister) row.Bound = Value::OfSlot(SlotKind::Record, Base()[hook[1].A]);
  const auto object = static_cast<ObjectId>(Base()[hook->A].I);
  return Host.Objects->Hook(object, static_cast<MemberId>(hook->B), row) ||
         Fail(std::string(Host.Objects->Reason()));
}

bool MachineState::BuiltIn(std::uint16_t target, ClassId kind) {
  if (!NeedObjects()) return false;
  const ObjectId object = Host.Objects->BuiltIn(kind);
  if (object == ObjectId::None) return Fail(std::string(Host.Objects->Reason()));
  Base()[target] = ObjectSlot(object);
  return true;
}

}  // namespace tarnwick::basic
