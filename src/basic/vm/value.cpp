#include "basic/vm/value.h"

#include "basic/vm/number_text.h"

namespace tarnwick::basic {
namespace {

/// The value inside a VARIANT, any other value as it is.
Value Unboxed(const Value& value) {
  if (value.Kind() != SlotKind::Variant) return value;
  const auto* const box = static_cast<const VariantBody*>(value.Raw().B);
  return box == nullptr ? Value() : Value::OfSlot(box->Held, box->Content);
}

}  // namespace

Value Value::Text(std::string bytes) {
  Slot slot{0};
  if (!bytes.empty()) slot.B = new TextBody(std::move(bytes));
  return {SlotKind::Text, slot};
}

std::int64_t Value::AsInteger() const {
  switch (kind_) {
    case SlotKind::Integer:
      return slot_.I;
    case SlotKind::Number:
      return Rounded(slot_.D);
    case SlotKind::Text:
      return Rounded(NumberIn(View()));
    case SlotKind::Variant:
      return Unboxed(*this).AsInteger();
    default:
      return 0;
  }
}

double Value::AsNumber() const {
  switch (kind_) {
    case SlotKind::Integer:
      return static_cast<double>(slot_.I);
    case SlotKind::Number:
      return slot_.D;
    case SlotKind::Text:
      return NumberIn(View());
    case SlotKind::Variant:
      return Unboxed(*this).AsNumber();
    default:
      return 0;
  }
}

std::string Value::AsText() const {
  switch (kind_) {
    case SlotKind::Integer:
      return IntegerText(slot_.I);
    case SlotKind::Number:
      return NumberText(slot_.D);
    case SlotKind::Text:
      return std::string(View());
    case SlotKind::Variant:
      return Unboxed(*this).AsText();
    default:
      return {};
  }
}

bool Value::AsTruth() const {
  if (kind_ == SlotKind::Variant) return Unboxed(*this).AsTruth();
  return kind_ == SlotKind::Object ? slot_.I != 0 : AsNumber() != 0;
}

}  // namespace tarnwick::basic
