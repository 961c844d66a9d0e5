// Operators: the types of operands and results, and constants folded.
#include <cmath>

#include "basic/check/checker_core.h"

namespace tarnwick::basic {
namespace {

using tree::Operator;

bool IsComparison(Operator op) {
  return op >= Operator::Equal && op <= Operator::GreaterEqual;
}

BinaryOperator CheckedOf(Operator op) {
  static constexpr BinaryOperator kOf[] = {
      BinaryOperator::Add,        BinaryOperator::Subtract,    BinaryOperator::Multiply,
      BinaryOperator::Divide,     BinaryOperator::WholeDivide, BinaryOperator::Modulo,
      BinaryOperator::Inverse,    BinaryOperator::Power,       BinaryOperator::ShiftLeft,
      BinaryOperator::ShiftRight, BinaryOperator::And,         BinaryOperator::Or,
      BinaryOperator::Xor,        BinaryOperator::Join,        BinaryOperator::Equal,
      BinaryOperator::NotEqual,   BinaryOperator::Less,        BinaryOperator::LessEqual,
      BinaryOperator::Greater,    BinaryOperator::GreaterEqual};
  return kOf[static_cast<std::size_t>(op)];
}

bool IsTrueName(const tree::Node* node) {
  const auto* name = node->As<tree::Name>();
  return name != nullptr && EqualsFolded(name->Text(), "TRUE");
}
bool IsComparisonNode(const tree::Node* node) {
  const auto* binary = node->As<tree::Binary>();
  return binary != nullptr && IsComparison(binary->Op);
}

template <class T>
bool Holds(BinaryOperator op, const T& a, const T& b) {
  switch (op) {
    case BinaryOperator::Equal:
      return a == b;
    case BinaryOperator::NotEqual:
      return a != b;
    case BinaryOperator::Less:
      return a < b;
    case BinaryOperator::LessEqual:
      return a <= b;
    case BinaryOperator::Greater:
      return a > b;
    default:
      return a >= b;
  }
}

std::uint64_t Bits(std::int64_t value) {
  return static_cast<std::uint64_t>(value);
}

}  // namespace

const Expression* Checker::BinaryValue(const tree::Binary& binary, SourcePlace at) {
  const bool with_true = binary.Op == Operator::Equal &&
                         ((IsTrueName(binary.Right) && IsComparisonNode(binary.Left)) ||
                          (IsTrueName(binary.Left) && IsComparisonNode(binary.Right)));
  if (with_true) {
    Note(at, "A comparison that holds is -1, so it never equals TRUE, which is 1",
         "Leave out \"= TRUE\"");
  }
  const Expr left = Value(binary.Left);
  return Combine(binary.Op, left, Value(binary.Right), at);
}

const Expression* Checker::Combine(Operator op, Expr left, Expr right, SourcePlace at) {
  if (IsFaulty(left) || IsFaulty(right)) return Faulty(at);
  const BinaryOperator checked = CheckedOf(op);
  if (IsComparison(op)) return Compare(checked, left, right, at);
  const ValueKind a = left->Gives();
  const ValueKind b = right->Gives();
  const bool variant = a == ValueKind::Variant || b == ValueKind::Variant;
  const bool texts = a == ValueKind::Text && b == ValueKind::Text;
  switch (op) {
    case Operator::Join:
      return Operation(BinaryOperator::Join, kTextType, As(left, ValueKind::Text),
                       As(right, ValueKind::Text), at);
    case Operator::Add:
    case Operator::Subtract:
    case Operator::Multiply:
      if (texts && op == Operator::Add) {
        return Operation(BinaryOperator::Join, kTextType, left, right, at);
      }
      if (texts && op == Operator::Subtract) {
        return Operation(BinaryOperator::Remove, kTextType, left, right, at);
      }
      if (variant) {
        return Operation(checked, kVariantType, As(left, ValueKind::Variant),
                         As(right, ValueKind::Variant), at);
      }
      if (a == ValueKind::Text || b == ValueKind::Text) {
        return Fail(at, "A text and a number cannot be combined",
                    "Use STR$ for the number or VAL for the text");
      }
      if (a == ValueKind::Whole && b == ValueKind::Whole) {
        return Operation(checked, kWholeType, left, right, at);
      }
      return Operation(checked, kRealType, As(left, ValueKind::Real), As(right, ValueKind::Real),
                       at);
    case Operator::Divide:
    case Operator::Power:
      if (a == ValueKind::Text || b == ValueKind::Text) {
        return Fail(at, "A number is expected here, not a text", "Use VAL for the text");
      }
      if (variant) {
        return Operation(checked, kVariantType, As(left, ValueKind::Variant),
                         As(right, ValueKind::Variant), at);
      }
      return Operation(checked, kRealType, As(left, ValueKind::Real), As(right, ValueKind::Real),
                       at);
    default:
      if (a == ValueKind::Text || b == ValueKind::Text) {
        return Fail(at, "A number is expected here, not a text", "Use VAL for the text");
      }
      return Operation(checked, kWholeType, As(left, ValueKind::Whole), As(right, ValueKind::Whole),
                       at);
  }
}

const Expression* Checker::Compare(BinaryOperator op, Expr left, Expr right, SourcePlace at) {
  const ValueKind a = left->Gives();
  const ValueKind b = right->Gives();
  const auto is_object = [](ValueKind kind) {
    return kind == ValueKind::Object || kind == ValueKind::Record;
  };
  if (is_object(a) || is_object(b)) {
    if (op != BinaryOperator::Equal && op != BinaryOperator::NotEqual) {
      return Fail(at, "Objects are equal or not, nothing else");
    }
    return Operation(op, kWholeType, As(left, ValueKind::Object), As(right, ValueKind::Object), at);
  }
  if (a == ValueKind::Variant || b == ValueKind::Variant) {
    return Operation(op, kWholeType, As(left, ValueKind::Variant), As(right, ValueKind::Variant),
                     at);
  }
  if ((a == ValueKind::Text) != (b == ValueKind::Text)) {
    return Fail(at, "A text is compared with a number",
                "Use STR$ for the number or VAL for the text");
  }
  if (a == b) return Operation(op, kWholeType, left, right, at);
  return Operation(op, kWholeType, As(left, ValueKind::Real), As(right, ValueKind::Real), at);
}

const Expression* Checker::Operation(BinaryOperator op, Type type, Expr left, Expr right,
                                     SourcePlace at) {
  Expr folded = nullptr;
  const auto* whole_a = left->As<WholeConstant>();
  const auto* whole_b = right->As<WholeConstant>();
  const auto* real_a = left->As<RealConstant>();
  const auto* real_b = right->As<RealConstant>();
  const auto* text_a = left->As<TextConstant>();
  const auto* text_b = right->As<TextConstant>();
  if (whole_a != nullptr && whole_b != nullptr) {
    folded = FoldWhole(op, whole_a->Value, whole_b->Value, at);
  } else if (real_a != nullptr && real_b != nullptr) {
    folded = FoldReal(op, real_a->Value, real_b->Value, at);
  } else if (text_a != nullptr && text_b != nullptr) {
    constexpr std::size_t kLongestConstant = 4096;
    if (op >= BinaryOperator::Equal) {
      folded = Whole(Holds(op, text_a->Value, text_b->Value) ? kComparisonTrue : 0, at);
    } else if (op == BinaryOperator::Join &&
               text_a->Value.size() + text_b->Value.size() <= kLongestConstant) {
      folded = Text(Keep(std::string(text_a->Value).append(text_b->Value)), at);
    }
  }
  return folded != nullptr ? folded : Make(type, at, BinaryOperation{op, left, right});
}

const Expression* Checker::FoldWhole(BinaryOperator op, std::int64_t a, std::int64_t b,
                                     SourcePlace at) {
  const auto wrapped = [this, at](std::uint64_t bits) {
    return Whole(static_cast<std::int64_t>(bits), at);
  };
  // What cannot be worked out, or not without care, is left to the running program.
  switch (op) {
    case BinaryOperator::Add:
      return wrapped(Bits(a) + Bits(b));
    case BinaryOperator::Subtract:
      return wrapped(Bits(a) - Bits(b));
    case BinaryOperator::Multiply:
      return wrapped(Bits(a) * Bits(b));
    case BinaryOperator::WholeDivide:
      return b == 0 || b == -1 ? nullptr : Whole(a / b, at);
    case BinaryOperator::Modulo:
      return b == 0 || b == -1 ? nullptr : Whole(a % b, at);
    case BinaryOperator::And:
      return Whole(a & b, at);
    case BinaryOperator::Or:
      return Whole(a | b, at);
    case BinaryOperator::Xor:
      return Whole(a ^ b, at);
    default:
      if (op >= BinaryOperator::Equal) return Whole(Holds(op, a, b) ? kComparisonTrue : 0, at);
      return nullptr;
  }
}

const Expression* Checker::FoldReal(BinaryOperator op, double a, double b, SourcePlace at) {
  double value = 0;
  switch (op) {
    case BinaryOperator::Add:
      value = a + b;
      break;
    case BinaryOperator::Subtract:
      value = a - b;
      break;
    case BinaryOperator::Multiply:
      value = a * b;
      break;
    case BinaryOperator::Divide:
      if (b == 0) return nullptr;
      value = a / b;
      break;
    default:
      if (op >= BinaryOperator::Equal) return Whole(Holds(op, a, b) ? kComparisonTrue : 0, at);
      return nullptr;
  }
  return std::isfinite(value) ? Real(value, at) : nullptr;
}

const Expression* Checker::UnaryValue(const tree::Unary& unary, SourcePlace at) {
  const Expr operand = Value(unary.Operand);
  if (IsFaulty(operand)) return operand;
  if (operand->Gives() == ValueKind::Text) {
    return Fail(at, "A number is expected here, not a text", "Use VAL for the text");
  }
  if (unary.Op == Operator::Not) {
    const Expr whole = As(operand, ValueKind::Whole);
    if (const auto* constant = whole->As<WholeConstant>()) {
      return Whole(~constant->Value, at);
    }
    return Make(kWholeType, at, UnaryOperation{UnaryOperator::Not, whole});
  }
  if (const auto* whole = operand->As<WholeConstant>()) {
    return Whole(static_cast<std::int64_t>(0 - Bits(whole->Value)), at);
  }
  if (const auto* real = operand->As<RealConstant>()) return Real(-real->Value, at);
  const ValueKind kind = operand->Gives();
  if (kind != ValueKind::Whole && kind != ValueKind::Real && kind != ValueKind::Variant) {
    return As(operand, ValueKind::Real);
  }
  const Type type = kind == ValueKind::Whole  ? kWholeType
                    : kind == ValueKind::Real ? kRealType
                                              : kVariantType;
  return Make(type, at, UnaryOperation{UnaryOperator::Negate, operand});
}

}  // namespace tarnwick::basic
