// Statements that make, copy or exchange values, and those that read and print.
#include "basic/code/procedure_emitter.h"

namespace tarnwick::basic {

ProcedureEmitter::ProcedureEmitter(CodeBuilder& builder, ProcedureId id)
    : code_(builder),
      id_(id),
      procedure_(builder.Source().At(id)),
      globals_(static_cast<std::uint32_t>(builder.Source().Globals.size())),
      registers_(id == kMainProcedure ? 8192 : 64),
      labels_(procedure_.LabelCount) {}

bool ProcedureEmitter::Make() {
  ProcedureCode made;
  made.Name = procedure_.Name;
  made.First = static_cast<std::uint32_t>(code_.Size());
  made.At = procedure_.At;
  made.ParameterCount = procedure_.ParameterCount;
  made.Variadic = procedure_.Variadic;
  if (IsMain()) {
    for (const Variable& global : code_.Source().Globals) {
      registers_.Variable(IsCounted(global.Kind));
    }
  }
  for (std::uint32_t i = 0; i < procedure_.Locals.size(); ++i) {
    const bool reference = IsReference(i);
    const Type& type = procedure_.Locals[i].Kind;
    registers_.Variable(!reference && IsCounted(type));
    if (i >= procedure_.ParameterCount) continue;
    made.Parameters.push_back({reference ? SlotKind::Integer : SlotKindOf(type), type.Kind,
                               reference, code_.TakesSender(type)});
  }
  code_.At(procedure_.At);
  Make(procedure_.Body);
  code_.Place(end_);
  code_.Add(Op::RETURN);
  made.Result = SlotKindOf(procedure_.Result);
  if (made.Result != SlotKind::Empty) {
    made.ResultRegister = LocalRegister(procedure_.ResultSlot);
  }
  made.Start = registers_.Start();
  made.Counted = registers_.Counted();
  code_.Made().Procedures.push_back(std::move(made));
  return !registers_.Overflow();
}

void ProcedureEmitter::Make(Block block) {
  for (const Statement* const statement : block) {
    code_.At(statement->At);
    statement->Visit([&](const auto& node) { Make(node); });
  }
}

void ProcedureEmitter::Make(const Evaluate& node) {
  Into(*node.Call, kNoRegister);
}

void ProcedureEmitter::Make(const CopyObject& node) {
  const Expression* const both[] = {node.Target, node.Source};
  const std::vector<Operand> operands = ReadAll(both);
  code_.Add(Op::COPY_OBJECT, operands[0].Register, operands[1].Register);
  Free(operands);
}

void ProcedureEmitter::Make(const HookEvent& node) {
  Operand object;
  Operand bound;
  bound.Register = kNoRegister;
  if (node.Bound == nullptr) {
    object = Read(*node.Object, Until::Now);
  } else {
    const std::array<Operand, 2> both = ReadBoth(*node.Object, *node.Bound);
    object = both[0];
    bound = both[1];
  }
  code_.Add(Op::HOOK, object.Register, static_cast<std::size_t>(node.Event),
            static_cast<std::size_t>(node.Procedure));
  code_.Add(Op::WORD, bound.Register);
  Free(object);
  Free(bound);
}

void ProcedureEmitter::Make(const MakeVariable& node) {
  const Type& type = node.Variable->Kind;
  std::string_view name;
  std::size_t flags = 0;
  if (const auto* const global = node.Variable->As<GlobalSlot>()) {
    name = code_.Source().Globals[global->Index].Name;
  } else if (const auto* const local = node.Variable->As<LocalSlot>()) {
    name = procedure_.Locals[local->Index].Name;
    flags |= IsMain() ? 0 : kLocalVariable;
  }
  if (node.Keeps) flags |= kArrayKeeps;
  if (node.OnlyOnce) flags |= kOnlyOnce;
  std::vector<const Expression*> bounds;
  const auto zero = ExpressionSorts::Made({{}, kWholeType, {}}, WholeConstant{0});
  for (const DimensionBounds& bound : node.Dimensions) {
    bounds.push_back(bound.Low != nullptr ? bound.Low : &zero);
    bounds.push_back(bound.High);
  }
  const std::vector<Operand> operands = ReadAll(bounds);
  Location location = Find(*node.Variable, Until::Now);
  const Operand address = AddressOfLocation(location);
  const std::size_t layout = code_.LayoutNumber(name, type);
  if (type.IsArray()) {
    if (bounds.empty()) flags |= kArrayGrows;
    code_.Add(Op::MAKE_ARRAY, address.Register, layout, flags);
    CallArguments call = NewCall();
    for (const Operand& operand : operands) {
      call.Shape.Arguments.push_back({SlotKind::Integer, Storage::Whole, false});
      call.Registers.push_back(operand.Register);
    }
    FinishCall(call, SlotKind::Empty);
  } else if (type.Kind == Storage::Object) {
    code_.Add(Op::MAKE_OBJECT, address.Register, layout, flags);
  } else if (type.Kind == Storage::Record) {
    code_.Add(Op::MAKE_RECORD, address.Register, layout, flags);
  }
  Free(address);
  Release(location);
  Free(operands);
}

void ProcedureEmitter::Make(const Swap& node) {
  Location left = Find(*node.Left, Until::Later);
  Location right = Find(*node.Right, Until::Later);
  const Operand first = AddressOfLocation(left);
  const Operand second = AddressOfLocation(right);
  code_.Add(Op::SWAP_REF, first.Register, second.Register);
  Free(second);
  Free(first);
  Release(right);
  Release(left);
}

void ProcedureEmitter::Make(const InitArray& node) {
  const std::vector<Operand> values = ReadAll(node.Values);
  const Operand array = ArrayOperand(*node.Array);
  code_.Add(Op::CLEAR_ARRAY, array.Register);
  const Type element = node.Array->Kind.Element();
  for (std::size_t i = 0; i < values.size(); ++i) {
    const Operand index = Number(static_cast<std::int64_t>(i));
    const Operand address = Temporary(false);
    code_.Add(Op::REF_FLAT, address.Register, array.Register, index.Register);
    if (element.Kind == Storage::Variant) {
      code_.Add(Op::SET_BOX, address.Register, values[i].Register);
    } else if (IsCounted(element)) {
      code_.Add(Op::SET_REF_C, address.Register, values[i].Register);
    } else {
      const Operand fitted = Temporary(false);
      Fit(element.Kind, element.Detail, fitted.Register, values[i].Register);
      code_.Add(Op::SET_REF, address.Register, fitted.Register);
      Free(fitted);
    }
    Free(address);
    Free(index);
  }
  Free(array);
  Free(values);
}

void ProcedureEmitter::Make(const QuickSort& node) {
  const auto* const element = node.First->As<ArrayElement>();
  if (element == nullptr) return;
  Location first = Find(*node.First, Until::Later);
  Location last = Find(*node.Last, Until::Later);
  const Operand from = AddressOfLocation(first);
  const Operand to = AddressOfLocation(last);
  const Operand array = ArrayOperand(*element->Array);
  code_.Add(Op::SORT, array.Register, from.Register, to.Register);
  code_.Add(Op::WORD, node.Descending ? 1 : 0);
  Free(array);
  Free(to);
  Free(from);
  Release(last);
  Release(first);
}

}  // namespace tarnwick::basic
