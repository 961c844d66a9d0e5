#include "basic/vm/variants.h"

#include <cmath>

namespace tarnwick::basic {
namespace {

bool IsNumber(SlotKind kind) {
  return kind == SlotKind::Integer || kind == SlotKind::Number;
}

bool IsPlainValue(SlotKind kind) {
  return IsNumber(kind) || kind == SlotKind::Text || kind == SlotKind::Empty;
}

}  // namespace

bool CanBecome(SlotKind from, SlotKind to) {
  if (from == to || from == SlotKind::Empty) return true;
  if (to == SlotKind::Variant) return IsPlainValue(from) || from == SlotKind::Object;
  if (from == SlotKind::Variant) return IsPlainValue(to) || to == SlotKind::Object;
  return IsPlainValue(from) && IsPlainValue(to);
}

Value Content(const Body* variant) {
  const auto* const box = static_cast<const VariantBody*>(variant);
  return box == nullptr ? Value() : Value::OfSlot(box->Held, box->Content);
}

Value Boxed(const Value& value) {
  auto* const box = new VariantBody();
  Value content = value.Kind() == SlotKind::Variant ? Content(value.Raw().B) : value;
  box->Held = content.Kind();
  box->Content = content.Give();
  return Value::TakeSlot(SlotKind::Variant, Slot{.B = box});
}

void SetVariant(Slot& variable, Value value) {
  if (variable.B == nullptr) variable.B = new VariantBody();
  auto& box = *static_cast<VariantBody*>(variable.B);
  const SlotKind kind = value.Kind();
  const Slot content = value.Give();
  if (IsCounted(box.Held)) Release(box.Content.B);
  box.Held = kind;
  box.Content = content;
}

Value Converted(Value value, SlotKind kind) {
  if (value.Kind() == kind) return value;
  switch (kind) {
    case SlotKind::Integer:
      return Value::Integer(value.AsInteger());
    case SlotKind::Number:
      return Value::Number(value.AsNumber());
    case SlotKind::Text:
      return Value::Text(value.AsText());
    case SlotKind::Variant:
      return Boxed(value);
    case SlotKind::Object:
      if (value.Kind() == SlotKind::Variant) value = Content(value.Raw().B);
      return Value::Object(value.AsObject());
    default:
      return Value::TakeSlot(kind, Slot{0});
  }
}

Value VariantOperation(BinaryOperator op, const Value& left, const Value& right,
                       std::string& error) {
  const bool text = left.Kind() == SlotKind::Text || right.Kind() == SlotKind::Text;
  if (op == BinaryOperator::Join || (op == BinaryOperator::Add && text)) {
    return Value::Text(left.AsText() + right.AsText());
  }
  const bool whole = left.Kind() != SlotKind::Number && right.Kind() != SlotKind::Number && !text;
  const auto a = static_cast<std::uint64_t>(left.AsInteger());
  const auto b = static_cast<std::uint64_t>(right.AsInteger());
  switch (op) {
    case BinaryOperator::Add:
      if (whole) return Value::Integer(static_cast<std::int64_t>(a + b));
      return Value::Number(left.AsNumber() + right.AsNumber());
    case BinaryOperator::Subtract:
      if (whole) return Value::Integer(static_cast<std::int64_t>(a - b));
      return Value::Number(left.AsNumber() - right.AsNumber());
    case BinaryOperator::Multiply:
      if (whole) return Value::Integer(static_cast<std::int64_t>(a * b));
      return Value::Number(left.AsNumber() * right.AsNumber());
    case BinaryOperator::Divide:
      if (right.AsNumber() == 0) {
        error = "Division by zero";
        return {};
      }
      return Value::Number(left.AsNumber() / right.AsNumber());
    case BinaryOperator::Power: {
      const double power = std::pow(left.AsNumber(), right.AsNumber());
      if (std::isnan(power)) error = "The power is no number";
      return Value::Number(power);
    }
    default:
      error = "This operator does not work on a VARIANT";
      return {};
  }
}

void NegateVariant(Slot& target, Slot operand) {
  const Value content = Content(operand.B);
  const auto whole = static_cast<std::uint64_t>(content.AsInteger());
  const Value negative = content.Kind() == SlotKind::Integer
                             ? Value::Integer(static_cast<std::int64_t>(0 - whole))
                             : Value::Number(-content.AsNumber());
  const Slot box = Boxed(negative).Give();
  Release(target.B);
  target = box;
}

bool VariantComparison(BinaryOperator op, const Value& left, const Value& right) {
  int order = 0;
  if (left.Kind() == SlotKind::Text && right.Kind() == SlotKind::Text) {
    order = left.View().compare(right.View());
  } else if (left.Kind() == SlotKind::Object && right.Kind() == SlotKind::Object) {
    order = left.AsObject() == right.AsObject() ? 0 : 1;
  } else {
    const double a = left.AsNumber();
    const double b = right.AsNumber();
    order = a < b ? -1 : a > b ? 1 : 0;
  }
  switch (op) {
    case BinaryOperator::Equal:
      return order == 0;
    case BinaryOperator::NotEqual:
      return order != 0;
    case BinaryOperator::Less:
      return order < 0;
    case BinaryOperator::LessEqual:
      return order <= 0;
    case BinaryOperator::Greater:
      return order > 0;
    default:
      return order >= 0;
  }
}

}  // namespace tarnwick::basic
