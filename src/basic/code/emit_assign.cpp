// Assignments: stores fitted to the width of the variable, and texts that grow in place.
#include <algorithm>
#include <limits>

#include "basic/code/procedure_emitter.h"

namespace tarnwick::basic {
namespace {

struct Range {
  std::int64_t Low;
  std::int64_t High;
};

/// The numbers that a storage for whole numbers holds.
Range RangeOf(Storage storage) {
  switch (storage) {
    case Storage::Byte:
      return {0, 255};
    case Storage::Word:
      return {0, 65535};
    case Storage::DWord:
      return {0, 4294967295};
    case Storage::Short:
      return {-32768, 32767};
    case Storage::Integer:
      return {-2147483648LL, 2147483647};
    default:
      return {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()};
  }
}

/// True when the value is sure to be one that the storage holds.
bool FitsAlready(Storage storage, const Expression& value) {
  const Range range = RangeOf(storage);
  if (const auto* const constant = value.As<WholeConstant>()) {
    return constant->Value >= range.Low && constant->Value <= range.High;
  }
  if (value.IsLocation()) {
    if (value.Kind.Kind == storage) return true;
    if (value.Gives() != ValueKind::Whole) return false;
    const Range source = RangeOf(value.Kind.Kind);
    return source.Low >= range.Low && source.High <= range.High;
  }
  const auto* const operation = value.As<BinaryOperation>();
  return operation != nullptr && operation->Operator >= BinaryOperator::Equal && range.Low < 0;
}

}  // namespace

bool NeedsFit(const Type& type, const Expression& value) {
  switch (type.Kind) {
    case Storage::Byte:
    case Storage::Word:
    case Storage::DWord:
    case Storage::Short:
    case Storage::Integer:
      return !FitsAlready(type.Kind, value);
    case Storage::Single:
      return !(value.IsLocation() && value.Kind.Kind == Storage::Single);
    case Storage::FixedString:
      return !(value.IsLocation() && value.Kind == type);
    default:
      return false;
  }
}

namespace {

/// The instruction that also keeps the result to 32 bits.
Op IntegerOp(const Expression& value) {
  const auto* const operation = value.As<BinaryOperation>();
  if (operation == nullptr || value.Gives() != ValueKind::Whole) return Op::WORD;
  switch (operation->Operator) {
    case BinaryOperator::Add:
      return Op::ADD_INTEGER;
    case BinaryOperator::Subtract:
      return Op::SUB_INTEGER;
    case BinaryOperator::Multiply:
      return Op::MUL_INTEGER;
    default:
      return Op::WORD;
  }
}

bool IsVariable(const Expression& expression) {
  return expression.Is<GlobalSlot>() || expression.Is<LocalSlot>();
}

/// True when both are surely the same location, and finding it runs no code.
bool SameLocation(const Expression& a, const Expression& b) {
  if (a.Sort != b.Sort) return false;
  if (const auto* const global = a.As<GlobalSlot>()) {
    return global->Index == b.As<GlobalSlot>()->Index;
  }
  if (const auto* const local = a.As<LocalSlot>()) {
    return local->Index == b.As<LocalSlot>()->Index;
  }
  if (const auto* const constant = a.As<WholeConstant>()) {
    return constant->Value == b.As<WholeConstant>()->Value;
  }
  if (const auto* const field = a.As<RecordField>()) {
    const auto& other = *b.As<RecordField>();
    return field->Field == other.Field && SameLocation(*field->Record, *other.Record);
  }
  if (const auto* const element = a.As<ArrayElement>()) {
    const auto& other = *b.As<ArrayElement>();
    if (element->Indexes.size() != other.Indexes.size()) return false;
    for (std::size_t i = 0; i < element->Indexes.size(); ++i) {
      if (!SameLocation(*element->Indexes[i], *other.Indexes[i])) return false;
    }
    return SameLocation(*element->Array, *other.Array);
  }
  return false;
}

/// The operation when the value is a text joined of two; else null.
const BinaryOperation* JoinOf(const Expression& value) {
  const auto* const join = value.As<BinaryOperation>();
  const bool joins =
      join != nullptr && join->Operator == BinaryOperator::Join && value.Gives() == ValueKind::Text;
  return joins ? join : nullptr;
}

/// The first part of `a + b + c`.
const Expression& FirstPart(const Expression& value) {
  const Expression* first = &value;
  while (const BinaryOperation* const join = JoinOf(*first)) first = join->Left;
  return *first;
}

/// The parts behind the first one, left to right.
std::vector<const Expression*> FurtherParts(const Expression& value) {
  std::vector<const Expression*> parts;
  const Expression* rest = &value;
  while (const BinaryOperation* const join = JoinOf(*rest)) {
    parts.push_back(join->Right);
    rest = join->Left;
  }
  std::reverse(parts.begin(), parts.end());
  return parts;
}

}  // namespace

void ProcedureEmitter::Fit(Storage storage, std::uint32_t length, std::uint16_t target,
                           std::uint16_t source) {
  switch (storage) {
    case Storage::Byte:
      code_.Add(Op::FIT_BYTE, target, source);
      break;
    case Storage::Word:
      code_.Add(Op::FIT_WORD, target, source);
      break;
    case Storage::DWord:
      code_.Add(Op::FIT_DWORD, target, source);
      break;
    case Storage::Short:
      code_.Add(Op::FIT_SHORT, target, source);
      break;
    case Storage::Integer:
      code_.Add(Op::FIT_INTEGER, target, source);
      break;
    case Storage::Single:
      code_.Add(Op::FIT_SINGLE, target, source);
      break;
    case Storage::FixedString: {
      const Operand bytes = Number(length);
      code_.Add(Op::FIT_TEXT, target, source, bytes.Register);
      Free(bytes);
      break;
    }
    default:
      code_.Add(Op::MOVE, target, source);
      break;
  }
}

void ProcedureEmitter::StoreInto(std::uint16_t variable, const Type& type,
                                 const Expression& value) {
  const bool fit = NeedsFit(type, value);
  const Op op = fit && type.Kind == Storage::Integer ? IntegerOp(value) : Op::WORD;
  if (op != Op::WORD) {
    const auto& operation = *value.As<BinaryOperation>();
    const std::array<Operand, 2> operands = ReadBoth(*operation.Left, *operation.Right);
    code_.Add(op, variable, operands[0].Register, operands[1].Register);
    Free(operands);
    return;
  }
  Into(value, variable);
  if (fit) Fit(type.Kind, type.Detail, variable, variable);
}

bool ProcedureEmitter::AppendInPlace(const Assign& node) {
  if (node.Target->Kind.Kind != Storage::String) return false;
  if (JoinOf(*node.Value) == nullptr) return false;
  if (!SameLocation(FirstPart(*node.Value), *node.Target)) return false;
  if (RunsCode(*node.Value) || RunsCode(*node.Target)) return false;
  const auto direct = DirectRegister(*node.Target);
  const std::vector<const Expression*> parts = FurtherParts(*node.Value);
  std::vector<Operand> operands;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    // A part behind the first could be the very text that grows: it is kept apart, unless it
    // is another variable or a constant.
    const bool other = direct && IsVariable(*parts[i]) && DirectRegister(*parts[i]) != direct &&
                       DirectRegister(*parts[i]).has_value();
    operands.push_back(Read(*parts[i], i == 0 || other ? Until::Now : Until::Later));
  }
  if (direct) {
    for (const Operand& operand : operands) {
      code_.Add(Op::JOIN, *direct, *direct, operand.Register);
    }
  } else {
    Location location = Find(*node.Target, Until::Now);
    const Operand address = AddressOfLocation(location);
    for (const Operand& operand : operands) {
      code_.Add(Op::APPEND_REF, address.Register, operand.Register);
    }
    Free(address);
    Release(location);
  }
  Free(operands);
  return true;
}

void ProcedureEmitter::Make(const Assign& node) {
  const Type& type = node.Target->Kind;
  const ValueKind kind = node.Target->Gives();
  if (kind == ValueKind::Text && AppendInPlace(node)) return;
  if (kind == ValueKind::Record && !type.IsArray()) {
    const std::array<Operand, 2> operands = ReadBoth(*node.Target, *node.Value);
    code_.Add(Op::COPY_RECORD, operands[0].Register, operands[1].Register);
    Free(operands);
    return;
  }
  if (kind == ValueKind::Variant) {
    const Operand value = Read(*node.Value, Until::Now);
    Location location = Find(*node.Target, Until::Now);
    const Operand address = AddressOfLocation(location);
    code_.Add(Op::SET_BOX, address.Register, value.Register);
    Free(address);
    Release(location);
    Free(value);
    return;
  }
  if (const auto direct = DirectRegister(*node.Target)) {
    StoreInto(*direct, type, *node.Value);
    return;
  }
  Location location = Find(*node.Target, RunsCode(*node.Value) ? Until::Later : Until::Now);
  // A byte is fitted as it is stored into its array.
  const bool byte = location.Form == Location::Kind::Element && type.Kind == Storage::Byte;
  const bool fit = !byte && NeedsFit(type, *node.Value);
  Operand value;
  if (fit) {
    value = Temporary(IsCounted(type));
    StoreInto(value.Register, type, *node.Value);
  } else {
    value = Read(*node.Value, Until::Now);
  }
  WriteLocation(location, type, value);
  Free(value);
  Release(location);
}

}  // namespace tarnwick::basic
