// Calls of procedures, library functions, methods, and properties, which are called likewise.
#include <utility>

#include "basic/code/procedure_emitter.h"

namespace tarnwick::basic {
namespace {

bool ArgumentRunsCode(const Argument& argument) {
  return argument.Value != nullptr && RunsCode(*argument.Value);
}

}  // namespace

Operand ProcedureEmitter::ReadArgument(const Argument& argument, Until until, CallArguments& call,
                                       const Variable* parameter) {
  const Expression& value = *argument.Value;
  switch (argument.How) {
    case PassBy::Reference: {
      Location location = Find(value, until);
      const Operand address = AddressOfLocation(location);
      // What the reference points into lives until the call is over.
      call.Held.push_back(location.Base);
      call.Held.push_back(location.First);
      call.Held.push_back(location.Second);
      if (location.Keeper.Hold == Operand::Kind::Counted) {
        location.Keeper.Hold = Operand::Kind::Shared;
        call.Held.push_back(location.Keeper);
      }
      call.Shape.Arguments.push_back({SlotKindOf(value.Kind), value.Kind.Kind, true});
      return address;
    }
    case PassBy::Array: {
      Location location = Find(value, until);
      const Operand address = AddressOfLocation(location);
      Operand array = Temporary(true);
      array.Hold = Operand::Kind::Shared;
      code_.Add(Op::NEED_ARRAY, array.Register, address.Register,
                code_.LayoutNumber("", value.Kind));
      Free(address);
      Release(location);
      call.Shape.Arguments.push_back({SlotKind::Array, value.Kind.Kind, false});
      return array;
    }
    case PassBy::Value:
      break;
  }
  call.Shape.Arguments.push_back({SlotKindOf(value.Kind), value.Kind.Kind, false});
  const bool same_kind = parameter != nullptr && !parameter->Kind.IsArray() &&
                         KindOf(parameter->Kind) == KindOf(value.Kind);
  if (!same_kind || (!parameter->ByReference && !NeedsFit(parameter->Kind, value))) {
    return Read(value, until);
  }
  Operand own = Temporary(IsCounted(value.Kind));
  StoreInto(own.Register, parameter->Kind, value);
  if (!parameter->ByReference) return own;
  // A value for a reference: the procedure gets a variable of its own.
  const Operand address = Temporary(false);
  code_.Add(Op::REF_LOCAL, address.Register, own.Register);
  if (own.Hold == Operand::Kind::Counted) own.Hold = Operand::Kind::Shared;
  call.Held.push_back(own);
  call.Shape.Arguments.back().Reference = true;
  return address;
}

ProcedureEmitter::CallArguments ProcedureEmitter::NewCall() {
  if (spare_calls_.empty()) return {};
  CallArguments call = std::move(spare_calls_.back());
  spare_calls_.pop_back();
  return call;
}

ProcedureEmitter::CallArguments ProcedureEmitter::ReadArguments(ArgumentList arguments,
                                                                const Procedure* target) {
  CallArguments call = NewCall();
  // In front of the last one that runs code, values are kept apart.
  std::size_t last = arguments.size();
  while (last > 0 && !ArgumentRunsCode(arguments[last - 1])) --last;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const bool known = target != nullptr && !target->Variadic && i < target->ParameterCount;
    AddArgument(arguments[i], i + 1 < last ? Until::Later : Until::Now, call,
                known ? &target->Locals[i] : nullptr);
  }
  return call;
}

void ProcedureEmitter::AddArgument(const Argument& argument, Until until, CallArguments& call,
                                   const Variable* parameter) {
  if (argument.Value == nullptr || argument.Value->Kind.Kind == Storage::None) {
    call.Shape.Arguments.push_back({SlotKind::Empty, Storage::None, false});
    call.Registers.push_back(0);
    return;
  }
  const Operand operand = ReadArgument(argument, until, call, parameter);
  call.Registers.push_back(operand.Register);
  call.Held.push_back(operand);
}

void ProcedureEmitter::FinishCall(CallArguments& call, SlotKind result) {
  call.Shape.Result = result;
  code_.Arguments(call.Shape, call.Registers);
  Free(call.Held);
  // The next call takes over the memory of the lists.
  call.Shape.Arguments.clear();
  call.Registers.clear();
  call.Held.clear();
  call.Parts.clear();
  spare_calls_.push_back(std::move(call));
}

void ProcedureEmitter::Store(const ProcedureCall& node, const Expression& whole,
                             std::uint16_t target) {
  const Procedure& procedure = code_.Source().At(node.Procedure);
  CallArguments call = ReadArguments(node.Arguments, &procedure);
  code_.Add(Op::CALL, target, static_cast<std::size_t>(node.Procedure));
  FinishCall(call, SlotKindOf(whole.Kind));
}

void ProcedureEmitter::Store(const PointerCall& node, const Expression& whole,
                             std::uint16_t target) {
  bool runs = false;
  for (const Argument& argument : node.Arguments) runs = runs || ArgumentRunsCode(argument);
  const Operand address = Read(*node.Address, runs ? Until::Later : Until::Now);
  CallArguments call = ReadArguments(node.Arguments, nullptr);
  code_.Add(Op::CALL_POINTER, target, address.Register);
  FinishCall(call, SlotKindOf(whole.Kind));
  Free(address);
}

void ProcedureEmitter::Store(const DllCall& node, const Expression& whole, std::uint16_t target) {
  CallArguments call = ReadArguments(node.Arguments, nullptr);
  code_.Add(Op::CALL_NATIVE, target, node.Entry);
  FinishCall(call, SlotKindOf(whole.Kind));
}

void ProcedureEmitter::Store(const BuiltInCall& node, const Expression& whole,
                             std::uint16_t target) {
  const ExpressionList values = node.Arguments;
  CallArguments call = NewCall();
  std::size_t last = values.size();
  while (last > 0 && !ArgumentRunsCode({values[last - 1]})) --last;
  for (std::size_t i = 0; i < values.size(); ++i) {
    AddArgument({values[i]}, i + 1 < last ? Until::Later : Until::Now, call, nullptr);
  }
  code_.Add(Op::CALL_LIBRARY, target, static_cast<std::size_t>(node.Function));
  FinishCall(call, SlotKindOf(whole.Kind));
}

void ProcedureEmitter::Store(const MethodCall& node, const Expression& whole,
                             std::uint16_t target) {
  bool runs = false;
  for (const Argument& argument : node.Arguments) runs = runs || ArgumentRunsCode(argument);
  const Operand object = Read(*node.Object, runs ? Until::Later : Until::Now);
  CallArguments call = ReadArguments(node.Arguments, nullptr);
  code_.Add(Op::CALL_METHOD, target, object.Register, static_cast<std::size_t>(node.Member));
  FinishCall(call, SlotKindOf(whole.Kind));
  Free(object);
}

Operand ProcedureEmitter::ReadParts(CallArguments& call) {
  ReadAll(call.Parts, call.Held);
  for (std::size_t i = 1; i < call.Parts.size(); ++i) {
    const Type& type = call.Parts[i]->Kind;
    call.Shape.Arguments.push_back({SlotKindOf(type), type.Kind, false});
    call.Registers.push_back(call.Held[i].Register);
  }
  return call.Held[0];
}

void ProcedureEmitter::Store(const PropertyValue& node, const Expression& whole,
                             std::uint16_t target) {
  CallArguments call = NewCall();
  call.Parts.push_back(node.Object);
  call.Parts.insert(call.Parts.end(), node.Indexes.begin(), node.Indexes.end());
  const Operand object = ReadParts(call);
  code_.Add(Op::GET_PROPERTY, target, object.Register, static_cast<std::size_t>(node.Member));
  FinishCall(call, SlotKindOf(whole.Kind));
}

void ProcedureEmitter::Make(const SetProperty& node) {
  CallArguments call = NewCall();
  call.Parts.push_back(node.Object);
  call.Parts.push_back(node.Value);
  call.Parts.insert(call.Parts.end(), node.Indexes.begin(), node.Indexes.end());
  const Operand object = ReadParts(call);
  code_.Add(Op::SET_PROPERTY, static_cast<std::size_t>(node.Member), object.Register);
  FinishCall(call, SlotKind::Empty);
}

}  // namespace tarnwick::basic
