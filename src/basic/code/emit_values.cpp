// Values: constants, conversions, and where they stand while they are used.
#include <utility>

#include "basic/code/procedure_emitter.h"
#include "basic/lib/function_table.h"

namespace tarnwick::basic {
namespace {

bool AnyRunsCode(ExpressionList expressions) {
  for (const Expression* const expression : expressions) {
    if (expression != nullptr && RunsCode(*expression)) return true;
  }
  return false;
}

/// Library functions during which the program's handlers may run.
bool WaitsForEvents(FunctionId function) {
  switch (function) {
    case FunctionId::MessageBox:
    case FunctionId::MessageDlg:
    case FunctionId::ShowMessage:
    case FunctionId::DoEvents:
    case FunctionId::Sleep:
    case FunctionId::InputOf:
    case FunctionId::Inkey:
      return true;
    default:
      return false;
  }
}

struct CodeFinder {
  bool operator()(const ArrayElement& node) const {
    return RunsCode(*node.Array) || AnyRunsCode(node.Indexes);
  }
  bool operator()(const RecordField& node) const { return RunsCode(*node.Record); }
  bool operator()(const PropertyValue& /*node*/) const { return true; }
  bool operator()(const MethodCall& /*node*/) const { return true; }
  bool operator()(const ProcedureCall& /*node*/) const { return true; }
  bool operator()(const PointerCall& /*node*/) const { return true; }
  bool operator()(const DllCall& /*node*/) const { return true; }
  bool operator()(const BinaryOperation& node) const {
    return RunsCode(*node.Left) || RunsCode(*node.Right);
  }
  bool operator()(const UnaryOperation& node) const { return RunsCode(*node.Operand); }
  bool operator()(const Conversion& node) const { return RunsCode(*node.Operand); }
  bool operator()(const CharacterAt& node) const {
    return RunsCode(*node.Text) || RunsCode(*node.Index);
  }
  bool operator()(const Choice& node) const {
    return RunsCode(*node.Condition) || RunsCode(*node.IfTrue) || RunsCode(*node.IfFalse);
  }
  bool operator()(const BuiltInCall& node) const {
    return WaitsForEvents(node.Function) || AnyRunsCode(node.Arguments);
  }
  bool operator()(const ArrayBound& node) const {
    return RunsCode(*node.Array) || RunsCode(*node.Dimension);
  }
  bool operator()(const AddressOf& node) const { return RunsCode(*node.Location); }
  bool operator()(const SizeOf& node) const { return RunsCode(*node.Location); }
  bool operator()(const VariableParameter& node) const {
    return node.Index != nullptr && RunsCode(*node.Index);
  }
  // Constants, variables and the objects that are always there.
  bool operator()(const auto& /*node*/) const { return false; }
};

}  // namespace

bool RunsCode(const Expression& expression) {
  return expression.Visit(CodeFinder());
}

Operand ProcedureEmitter::ConstantOperand(Slot value) {
  Operand operand;
  if (registers_.Constant(value, operand.Register)) return operand;
  operand = Temporary(false);
  const std::size_t number = code_.ConstantNumber(value);
  code_.Add(Op::CONSTANT, operand.Register, number & 0xFFFFU, number >> 16U);
  return operand;
}

Operand ProcedureEmitter::Number(std::int64_t value) {
  return ConstantOperand(IntegerSlot(value));
}

void ProcedureEmitter::Free(const Operand& operand) {
  switch (operand.Hold) {
    case Operand::Kind::Constant:
    case Operand::Kind::Fixed:
      break;
    case Operand::Kind::Plain:
      registers_.Return(operand.Register, false);
      break;
    case Operand::Kind::Shared:
      code_.Add(Op::CLEAR_C, operand.Register);
      [[fallthrough]];
    case Operand::Kind::Counted:
      registers_.Return(operand.Register, true);
      break;
  }
}

Operand ProcedureEmitter::Read(const Expression& expression, Until until) {
  if (const auto* const whole = expression.As<WholeConstant>()) {
    return Number(whole->Value);
  }
  if (const auto* const real = expression.As<RealConstant>()) {
    return ConstantOperand(NumberSlot(real->Value));
  }
  if (const auto* const text = expression.As<TextConstant>()) {
    return ConstantOperand(code_.TextConstant(text->Value));
  }
  if (const auto* const join = expression.As<BinaryOperation>();
      join != nullptr && join->Operator == BinaryOperator::Join &&
      KindOf(expression.Kind) == ValueKind::Text) {
    return ReadJoin(*join);
  }
  const bool counted = IsCounted(expression.Kind);
  if (!expression.IsLocation()) {
    const Operand operand = Temporary(counted);
    Into(expression, operand.Register);
    return operand;
  }
  if (const auto direct = DirectRegister(expression); direct && until == Until::Now) {
    return {*direct, Operand::Kind::Fixed};
  }
  // A text that is used at once is borrowed: it stays uncounted, in a plain register.
  const bool borrowed = KindOf(expression.Kind) == ValueKind::Text && !expression.Kind.IsArray() &&
                        until == Until::Now;
  Operand operand = Temporary(counted && !borrowed);
  if (counted && !borrowed) operand.Hold = Operand::Kind::Shared;
  Location location = Find(expression, Until::Now);
  Type type = expression.Kind;
  if (borrowed) type = kWholeType;
  ReadLocation(location, type, operand.Register);
  Release(location);
  return operand;
}

void ProcedureEmitter::ReadAll(std::span<const Expression* const> expressions,
                               std::vector<Operand>& operands) {
  // In front of the last one that runs code, values are kept apart.
  std::size_t last = expressions.size();
  while (last > 0 && !RunsCode(*expressions[last - 1])) --last;
  for (std::size_t i = 0; i < expressions.size(); ++i) {
    operands.push_back(Read(*expressions[i], i + 1 < last ? Until::Later : Until::Now));
  }
}

std::vector<Operand> ProcedureEmitter::ReadAll(std::span<const Expression* const> expressions) {
  std::vector<Operand> operands;
  operands.reserve(expressions.size());
  ReadAll(expressions, operands);
  return operands;
}

std::array<Operand, 2> ProcedureEmitter::ReadBoth(const Expression& left, const Expression& right) {
  const Operand first = Read(left, RunsCode(right) ? Until::Later : Until::Now);
  return {first, Read(right, Until::Now)};
}

void ProcedureEmitter::Into(const Expression& expression, std::uint16_t target) {
  expression.Visit([&](const auto& node) { Store(node, expression, target); });
}

void ProcedureEmitter::Store(const WholeConstant& node, const Expression& /*whole*/,
                             std::uint16_t target) {
  const Operand value = Number(node.Value);
  code_.Add(Op::MOVE, target, value.Register);
  Free(value);
}

void ProcedureEmitter::Store(const RealConstant& node, const Expression& /*whole*/,
                             std::uint16_t target) {
  const Operand value = ConstantOperand(NumberSlot(node.Value));
  code_.Add(Op::MOVE, target, value.Register);
  Free(value);
}

void ProcedureEmitter::Store(const TextConstant& node, const Expression& /*whole*/,
                             std::uint16_t target) {
  if (node.Value.empty()) {
    code_.Add(Op::CLEAR_C, target);
    return;
  }
  const Operand value = ConstantOperand(code_.TextConstant(node.Value));
  code_.Add(Op::MOVE_C, target, value.Register);
  Free(value);
}

void ProcedureEmitter::Store(const NothingConstant& /*node*/, const Expression& whole,
                             std::uint16_t target) {
  if (IsCounted(whole.Kind)) {
    code_.Add(Op::CLEAR_C, target);
    return;
  }
  const Operand value = Number(0);
  code_.Add(Op::MOVE, target, value.Register);
  Free(value);
}

void ProcedureEmitter::Store(const BuiltInObject& node, const Expression& /*whole*/,
                             std::uint16_t target) {
  code_.Add(Op::BUILT_IN, target, static_cast<std::size_t>(node.Class));
}

void ProcedureEmitter::Store(const FoundFile& node, const Expression& /*whole*/,
                             std::uint16_t target) {
  code_.Add(Op::FOUND_FILE, target, static_cast<std::size_t>(node.Part));
}

void ProcedureEmitter::Store(const CharacterAt& node, const Expression& /*whole*/,
                             std::uint16_t target) {
  const std::array<Operand, 2> operands = ReadBoth(*node.Text, *node.Index);
  code_.Add(Op::CHARACTER, target, operands[0].Register, operands[1].Register);
  Free(operands);
}

void ProcedureEmitter::Store(const ArrayBound& node, const Expression& /*whole*/,
                             std::uint16_t target) {
  const Operand dimension = Read(*node.Dimension, Until::Now);
  const Operand array = ArrayOperand(*node.Array);
  code_.Add(Op::BOUND, target, array.Register, dimension.Register);
  code_.Add(Op::WORD, node.Upper ? 1 : 0);
  Free(array);
  Free(dimension);
}

void ProcedureEmitter::Store(const AddressOf& node, const Expression& /*whole*/,
                             std::uint16_t target) {
  Location location = Find(*node.Location, Until::Now);
  const Operand address = AddressOfLocation(location);
  code_.Add(Op::ADDRESS, target, address.Register, code_.LayoutNumber("", node.Location->Kind));
  const bool field = location.Form == Location::Kind::Field;
  const bool kept = location.Keeper.Hold == Operand::Kind::Counted;
  code_.Add(Op::WORD,
            kept    ? location.Keeper.Register
            : field ? location.Base.Register
                    : kNoRegister,
            location.Form == Location::Kind::Register && !IsMain() ? 1 : 0);
  Free(address);
  Release(location);
}

void ProcedureEmitter::Store(const SizeOf& node, const Expression& /*whole*/,
                             std::uint16_t target) {
  const Operand array = ArrayOperand(*node.Location);
  code_.Add(Op::SIZE_OF_ARRAY, target, array.Register, 1);
  Free(array);
  const Operand bytes = ConstantOperand(IntegerSlot(node.ElementBytes));
  code_.Add(Op::MUL_I, target, target, bytes.Register);
  Free(bytes);
}

void ProcedureEmitter::Store(const VariableParameter& node, const Expression& /*whole*/,
                             std::uint16_t target) {
  if (node.Index == nullptr) {
    code_.Add(Op::PARAM_COUNT, target, node.Text ? 1 : 0);
    return;
  }
  const Operand index = Read(*node.Index, Until::Now);
  code_.Add(node.Text ? Op::PARAM_TEXT : Op::PARAM_VALUE, target, index.Register);
  Free(index);
}

}  // namespace tarnwick::basic
