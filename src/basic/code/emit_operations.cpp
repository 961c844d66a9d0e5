// Operations and conversions.
#include "basic/code/procedure_emitter.h"

namespace tarnwick::basic {
namespace {

/// The instruction of an operator on two values of a kind, and whether its operands change places.
struct Chosen {
  Op Code = Op::WORD;
  bool Swapped = false;
};

Chosen WholeOp(BinaryOperator op) {
  switch (op) {
    case BinaryOperator::Add:
      return {Op::ADD_I};
    case BinaryOperator::Subtract:
      return {Op::SUB_I};
    case BinaryOperator::Multiply:
      return {Op::MUL_I};
    case BinaryOperator::WholeDivide:
      return {Op::DIV_I};
    case BinaryOperator::Modulo:
      return {Op::MOD_I};
    case BinaryOperator::Inverse:
      return {Op::INV_I};
    case BinaryOperator::ShiftLeft:
      return {Op::SHL_I};
    case BinaryOperator::ShiftRight:
      return {Op::SHR_I};
    case BinaryOperator::And:
      return {Op::AND_I};
    case BinaryOperator::Or:
      return {Op::OR_I};
    case BinaryOperator::Xor:
      return {Op::XOR_I};
    case BinaryOperator::Equal:
      return {Op::EQ_I};
    case BinaryOperator::NotEqual:
      return {Op::NE_I};
    case BinaryOperator::Less:
      return {Op::LT_I};
    case BinaryOperator::LessEqual:
      return {Op::LE_I};
    case BinaryOperator::Greater:
      return {Op::LT_I, true};
    case BinaryOperator::GreaterEqual:
      return {Op::LE_I, true};
    default:
      return {};
  }
}

Chosen RealOp(BinaryOperator op) {
  switch (op) {
    case BinaryOperator::Add:
      return {Op::ADD_D};
    case BinaryOperator::Subtract:
      return {Op::SUB_D};
    case BinaryOperator::Multiply:
      return {Op::MUL_D};
    case BinaryOperator::Divide:
      return {Op::DIV_D};
    case BinaryOperator::Power:
      return {Op::POW_D};
    case BinaryOperator::Equal:
      return {Op::EQ_D};
    case BinaryOperator::NotEqual:
      return {Op::NE_D};
    case BinaryOperator::Less:
      return {Op::LT_D};
    case BinaryOperator::LessEqual:
      return {Op::LE_D};
    case BinaryOperator::Greater:
      return {Op::LT_D, true};
    case BinaryOperator::GreaterEqual:
      return {Op::LE_D, true};
    default:
      return {};
  }
}

Chosen TextOp(BinaryOperator op) {
  switch (op) {
    case BinaryOperator::Join:
      return {Op::JOIN};
    case BinaryOperator::Remove:
      return {Op::REMOVE};
    case BinaryOperator::Equal:
      return {Op::EQ_T};
    case BinaryOperator::NotEqual:
      return {Op::NE_T};
    case BinaryOperator::Less:
      return {Op::LT_T};
    case BinaryOperator::LessEqual:
      return {Op::LE_T};
    case BinaryOperator::Greater:
      return {Op::LT_T, true};
    case BinaryOperator::GreaterEqual:
      return {Op::LE_T, true};
    default:
      return {};
  }
}

Chosen OpFor(BinaryOperator op, ValueKind kind) {
  switch (kind) {
    case ValueKind::Real:
      return RealOp(op);
    case ValueKind::Text:
      return TextOp(op);
    default:
      return WholeOp(op);
  }
}

/// The instruction of an operator on a real number and a whole one; WORD when there is none.
Op MixedOp(BinaryOperator op) {
  switch (op) {
    case BinaryOperator::Add:
      return Op::ADD_D_I;
    case BinaryOperator::Subtract:
      return Op::SUB_D_I;
    case BinaryOperator::Multiply:
      return Op::MUL_D_I;
    case BinaryOperator::Divide:
      return Op::DIV_D_I;
    default:
      return Op::WORD;
  }
}

/// The whole number that is made a real one; null for any other value.
const Expression* WholeOperand(const Expression& value) {
  const auto* const conversion = value.As<Conversion>();
  const bool whole = conversion != nullptr && conversion->Operand->Gives() == ValueKind::Whole;
  return whole ? conversion->Operand : nullptr;
}

/// The instruction that turns one kind into another; WORD when the slot is the same.
Op ConversionOp(ValueKind from, ValueKind to) {
  switch (to) {
    case ValueKind::Whole:
      if (from == ValueKind::Real) return Op::I_OF_D;
      if (from == ValueKind::Text) return Op::I_OF_T;
      if (from == ValueKind::Variant) return Op::I_OF_BOX;
      return Op::WORD;
    case ValueKind::Real:
      if (from == ValueKind::Whole) return Op::D_OF_I;
      if (from == ValueKind::Text) return Op::D_OF_T;
      if (from == ValueKind::Variant) return Op::D_OF_BOX;
      return Op::WORD;
    case ValueKind::Text:
      if (from == ValueKind::Whole) return Op::T_OF_I;
      if (from == ValueKind::Real) return Op::T_OF_D;
      if (from == ValueKind::Variant) return Op::T_OF_BOX;
      return Op::WORD;
    case ValueKind::Object:
      if (from == ValueKind::Variant) return Op::OBJECT_OF_BOX;
      if (from == ValueKind::Record) return Op::GET_FIELD;
      return Op::WORD;
    default:
      return Op::WORD;
  }
}

}  // namespace

bool ProcedureEmitter::StoreMixed(const BinaryOperation& node, std::uint16_t target) {
  const Op op = MixedOp(node.Operator);
  if (op == Op::WORD || node.Left->Gives() != ValueKind::Real) return false;
  const Expression* const left = WholeOperand(*node.Left);
  const Expression* const right = WholeOperand(*node.Right);
  const bool turns =
      node.Operator == BinaryOperator::Add || node.Operator == BinaryOperator::Multiply;
  if (right == nullptr && (left == nullptr || !turns)) return false;
  if (right != nullptr) {
    const std::array<Operand, 2> operands = ReadBoth(*node.Left, *right);
    code_.Add(op, target, operands[0].Register, operands[1].Register);
    Free(operands);
  } else {
    const std::array<Operand, 2> operands = ReadBoth(*left, *node.Right);
    code_.Add(op, target, operands[1].Register, operands[0].Register);
    Free(operands);
  }
  return true;
}

void ProcedureEmitter::Store(const BinaryOperation& node, const Expression& /*whole*/,
                             std::uint16_t target) {
  if (StoreMixed(node, target)) return;
  const ValueKind kind = node.Left->Gives();
  const Until until = RunsCode(*node.Right) ? Until::Later : Until::Now;
  const Operand left = Read(*node.Left, until);
  const Operand right = Read(*node.Right, Until::Now);
  if (kind == ValueKind::Variant) {
    StoreBoxed(node, target, left, right);
  } else {
    const Chosen chosen = OpFor(node.Operator, kind);
    if (chosen.Code == Op::JOIN && left.Hold == Operand::Kind::Counted) {
      code_.Add(Op::JOIN, left.Register, left.Register, right.Register);
      code_.Add(Op::TAKE_C, target, left.Register);
    } else if (chosen.Swapped) {
      code_.Add(chosen.Code, target, right.Register, left.Register);
    } else {
      code_.Add(chosen.Code, target, left.Register, right.Register);
    }
  }
  Free(right);
  Free(left);
}

Operand ProcedureEmitter::ReadJoin(const BinaryOperation& node) {
  const Operand left = Read(*node.Left, RunsCode(*node.Right) ? Until::Later : Until::Now);
  const Operand right = Read(*node.Right, Until::Now);
  Operand result = left;
  // A text in between belongs to no variable: it grows in place.
  if (left.Hold != Operand::Kind::Counted) result = Temporary(true);
  code_.Add(Op::JOIN, result.Register, left.Register, right.Register);
  Free(right);
  if (left.Hold != Operand::Kind::Counted) Free(left);
  return result;
}

void ProcedureEmitter::StoreBoxed(const BinaryOperation& node, std::uint16_t target,
                                  const Operand& left, const Operand& right) {
  const bool compares = node.Operator >= BinaryOperator::Equal;
  code_.Add(compares ? Op::COMPARE_BOX : Op::BINARY_BOX, target, left.Register, right.Register);
  code_.Add(Op::WORD, static_cast<std::size_t>(node.Operator));
}

void ProcedureEmitter::Store(const UnaryOperation& node, const Expression& /*whole*/,
                             std::uint16_t target) {
  const Operand operand = Read(*node.Operand, Until::Now);
  Op op = Op::NOT_I;
  if (node.Operator == UnaryOperator::Negate) {
    const ValueKind kind = node.Operand->Gives();
    op = kind == ValueKind::Real ? Op::NEG_D : kind == ValueKind::Variant ? Op::NEG_BOX : Op::NEG_I;
  }
  code_.Add(op, target, operand.Register);
  Free(operand);
}

void ProcedureEmitter::Store(const Conversion& node, const Expression& whole,
                             std::uint16_t target) {
  const ValueKind from = node.Operand->Gives();
  const ValueKind to = whole.Gives();
  if (from == to) {
    Into(*node.Operand, target);
    return;
  }
  const Operand operand =
      from == ValueKind::Record ? RecordOperand(*node.Operand) : Read(*node.Operand, Until::Now);
  if (to == ValueKind::Variant) {
    code_.Add(Op::BOX, target, operand.Register, static_cast<std::size_t>(SlotKindOf(from)));
  } else {
    const Op op = ConversionOp(from, to);
    code_.Add(op == Op::WORD ? Op::MOVE : op, target, operand.Register);
  }
  Free(operand);
}

void ProcedureEmitter::Store(const Choice& node, const Expression& whole, std::uint16_t target) {
  const Expression* const all[] = {node.Condition, node.IfTrue, node.IfFalse};
  const std::vector<Operand> operands = ReadAll(all);
  const Op move = IsCounted(whole.Kind) ? Op::MOVE_C : Op::MOVE;
  const bool real = node.Condition->Gives() == ValueKind::Real;
  CodeLabel otherwise;
  CodeLabel done;
  code_.Jump(real ? Op::JUMP_UNLESS_D : Op::JUMP_UNLESS_I, otherwise, operands[0].Register);
  code_.Add(move, target, operands[1].Register);
  code_.Jump(Op::JUMP, done);
  code_.Place(otherwise);
  code_.Add(move, target, operands[2].Register);
  code_.Place(done);
  Free(operands);
}

bool ProcedureEmitter::BranchOnComparison(const BinaryOperation& node, bool when,
                                          CodeLabel& target) {
  const ValueKind kind = node.Left->Gives();
  const bool real = kind == ValueKind::Real;
  if (node.Operator < BinaryOperator::Equal || (!real && kind != ValueKind::Whole)) return false;
  const bool swapped =
      node.Operator == BinaryOperator::Greater || node.Operator == BinaryOperator::GreaterEqual;
  const bool less =
      node.Operator == BinaryOperator::Less || node.Operator == BinaryOperator::Greater;
  Op op = Op::WORD;
  bool turned = false;  // operands change places once more
  if (node.Operator == BinaryOperator::Equal || node.Operator == BinaryOperator::NotEqual) {
    const bool equal = (node.Operator == BinaryOperator::Equal) == when;
    op = equal ? (real ? Op::JUMP_EQ_D : Op::JUMP_EQ_I) : (real ? Op::JUMP_NE_D : Op::JUMP_NE_I);
  } else if (real) {
    op = less ? (when ? Op::JUMP_LT_D : Op::JUMP_NOT_LT_D)
              : (when ? Op::JUMP_LE_D : Op::JUMP_NOT_LE_D);
  } else {
    // Of whole numbers, not (a < b) is b <= a.
    op = less == when ? Op::JUMP_LT_I : Op::JUMP_LE_I;
    turned = !when;
  }
  const std::array<Operand, 2> operands = ReadBoth(*node.Left, *node.Right);
  const bool change = swapped != turned;
  code_.Jump(op, target, operands[change ? 1 : 0].Register, operands[change ? 0 : 1].Register);
  Free(operands);
  return true;
}

void ProcedureEmitter::Branch(const Expression& condition, bool when, CodeLabel& target) {
  if (const auto* const operation = condition.As<BinaryOperation>()) {
    if (BranchOnComparison(*operation, when, target)) return;
  }
  const Operand value = Read(condition, Until::Now);
  Op op = when ? Op::JUMP_IF_I : Op::JUMP_UNLESS_I;
  if (condition.Gives() == ValueKind::Real) op = when ? Op::JUMP_IF_D : Op::JUMP_UNLESS_D;
  code_.Jump(op, target, value.Register);
  Free(value);
}

}  // namespace tarnwick::basic
