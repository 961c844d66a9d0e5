// Values of one kind brought to another, and operations on variants.
#pragma once

#include <string>

#include "basic/check/checked_expression.h"
#include "basic/vm/value.h"

namespace tarnwick::basic {

/// True when a value of a kind can be handed over as another: numbers, texts and variants can
/// become each other; objects, records and arrays only their own kind or a variant.
[[nodiscard]] bool CanBecome(SlotKind from, SlotKind to);
/// The value as another kind; the start value of that kind when it cannot become it.
[[nodiscard]] Value Converted(Value value, SlotKind kind);
/// A new variant with that value.
[[nodiscard]] Value Boxed(const Value& value);
/// What a variant holds; Empty for none.
[[nodiscard]] Value Content(const Body* variant);

/// Puts a value into a variant variable, which keeps its box.
void SetVariant(Slot& variable, Value value);

/// The result of an operator on two variants: texts are joined and compared as texts when either
/// is one, all else is done with numbers. `error` is set when it has no result.
[[nodiscard]] Value VariantOperation(BinaryOperator op, const Value& left, const Value& right,
                                     std::string& error);
/// target = a new variant with -operand.
void NegateVariant(Slot& target, Slot operand);
[[nodiscard]] bool VariantComparison(BinaryOperator op, const Value& left, const Value& right);

}  // namespace tarnwick::basic
