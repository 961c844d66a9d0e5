// Values and locations.
#include <cmath>

#include "basic/check/checker_core.h"

namespace tarnwick::basic {

const Expression* Checker::Value(const tree::Node* node) {
  if (node == nullptr) return Whole(0, {});
  const SourcePlace at = node->At;
  struct Visitor {
    Checker& C;
    SourcePlace At;
    Expr operator()(const tree::WholeNumber& n) const { return C.Whole(n.Value, At); }
    Expr operator()(const tree::RealNumber& n) const { return C.Real(n.Value, At); }
    Expr operator()(const tree::TextLiteral& n) const { return C.Text(C.Keep(n.Value), At); }
    Expr operator()(const tree::Name& n) const { return C.NameValue(n, At); }
    Expr operator()(const tree::Apply& n) const { return C.ApplyValue(n, At); }
    Expr operator()(const tree::Subscript& n) const { return C.SubscriptValue(n, At); }
    Expr operator()(const tree::MemberAccess& n) const {
      return C.UseValue(C.MemberOf(n, At), {}, false, n.Name, At, false);
    }
    Expr operator()(const tree::ByReference& n) const { return C.Value(n.Operand); }
    Expr operator()(const tree::Unary& n) const { return C.UnaryValue(n, At); }
    Expr operator()(const tree::Binary& n) const { return C.BinaryValue(n, At); }
    Expr operator()(const tree::Checked& n) const { return n.Value; }
  };
  const Expr value = node->Visit(Visitor{*this, at});
  if (value->Kind == kNoType && !IsFaulty(value)) {
    return Fail(at, "This gives no value");
  }
  return value;
}

const Expression* Checker::NameValue(const tree::Name& name, SourcePlace at) {
  const Symbol* const local = FindLocal(name.Id);
  if (local != nullptr) return OfSymbol(*local, at);
  // Inside a function its own name without brackets is the result so far.
  if (IsOwnResult(local, name.Id)) {
    return Make(Current().Result, at, LocalSlot{Current().ResultSlot});
  }
  if (frame_->This && EqualsFolded(name.Text(), "This")) return This(at);
  const std::optional<MemberUse> implied = Implied(name.Text(), at);
  if (implied && (implied->Field != nullptr || implied->Routine)) {
    return UseValue(*implied, {}, false, name.Text(), at, false);
  }
  if (const Symbol* const global = globals_.Find(name.Id)) return OfSymbol(*global, at);
  if (EqualsFolded(name.Text(), "TRUE")) return Whole(kTrueConstant, at);
  if (EqualsFolded(name.Text(), "FALSE")) return Whole(kFalseConstant, at);
  if (implied) return UseValue(*implied, {}, false, name.Text(), at, false);
  const Expr call = CallOf(name, {}, at, false);
  if (call != nullptr) return call;
  const std::optional<ClassId> object = classes_.FindBuiltInObject(name.Text());
  if (object) {
    return Make({Storage::Object, 0, static_cast<std::uint32_t>(*object)}, at,
                BuiltInObject{*object});
  }
  return Undeclared(name.Text(), at);
}

const Expression* Checker::ApplyValue(const tree::Apply& apply, SourcePlace at) {
  if (const auto* access = apply.Target->As<tree::MemberAccess>()) {
    return UseValue(MemberOf(*access, apply.Target->At), apply.Arguments, true, access->Name, at,
                    false);
  }
  if (const auto* name = apply.Target->As<tree::Name>()) {
    const Symbol* const local = FindLocal(name->Id);
    const Symbol* symbol = IsOwnResult(local, name->Id) ? nullptr : Find(*name);
    const bool variable = symbol != nullptr && (symbol->Kind == Symbol::Sort::Global ||
                                                symbol->Kind == Symbol::Sort::Local);
    if (!variable) {
      const std::optional<MemberUse> implied =
          local == nullptr ? Implied(name->Text(), at) : std::nullopt;
      const bool member = implied && (symbol == nullptr || implied->Field != nullptr ||
                                      implied->Routine.has_value());
      if (member) return UseValue(*implied, apply.Arguments, true, name->Text(), at, false);
      const Expr call = CallOf(*name, apply.Arguments, at, false);
      if (call != nullptr) return call;
      if (symbol == nullptr) {
        return Fail(apply.Target->At,
                    '"' + std::string(name->Text()) + "\" is neither an array nor a function",
                    SimilarTo(name->Text()));
      }
    }
  }
  return Element(Value(apply.Target), apply.Arguments, at);
}

const Expression* Checker::Element(Expr array, tree::NodeList indexes, SourcePlace at) {
  if (IsFaulty(array)) return array;
  if (!array->Kind.IsArray()) return Fail(array->At, "This is not an array");
  // The number of dimensions of an array parameter is known by its use alone.
  const bool parameter =
      array->Is<LocalSlot>() && array->As<LocalSlot>()->Index < Current().ParameterCount;
  if (indexes.size() != array->Kind.Dimensions && !parameter) {
    return Fail(at, "The array has " + std::to_string(array->Kind.Dimensions) +
                        " dimension(s), not " + std::to_string(indexes.size()));
  }
  const std::size_t first = values_.size();
  for (const tree::Node* index : indexes) {
    const Expr value = WholeValue(index);
    values_.push_back(value);
  }
  return Make(array->Kind.Element(), at, ArrayElement{array, TakeValues(first)});
}

const Expression* Checker::SubscriptValue(const tree::Subscript& subscript, SourcePlace at) {
  const Expr text = As(Value(subscript.Target), ValueKind::Text);
  return Make(kTextType, at, CharacterAt{text, WholeValue(subscript.Index)});
}

const Expression* Checker::Location(const tree::Node* node) {
  if (const auto* reference = node->As<tree::ByReference>()) {
    return Location(reference->Operand);
  }
  const Expr value = Value(node);
  if (value->IsLocation()) return value;
  if (IsFaulty(value)) return nullptr;
  Error(node->At, "A variable is expected here");
  return nullptr;
}

const Expression* Checker::As(Expr value, ValueKind kind) {
  const ValueKind from = value->Gives();
  if (value->Kind.IsArray())
    return Fail(value->At, "An array is not a value", "Name an element of it");
  if (from == kind || from == ValueKind::None) return value;
  const SourcePlace at = value->At;
  if (from == ValueKind::Object || from == ValueKind::Record) {
    if (kind == ValueKind::Object) {
      const Expr object = ObjectOf(value);
      if (object != nullptr) return object;
    }
    return Fail(at, "An object is not a value", "Name a property of it");
  }
  switch (kind) {
    case ValueKind::Whole:
      if (const auto* real = value->As<RealConstant>()) {
        constexpr double kLimit = 9.2e18;
        const double rounded = std::nearbyint(real->Value);
        if (rounded > -kLimit && rounded < kLimit) {
          return Whole(static_cast<std::int64_t>(rounded), at);
        }
      }
      return Make(kWholeType, at, Conversion{value});
    case ValueKind::Real:
      if (const auto* whole = value->As<WholeConstant>()) {
        return Real(static_cast<double>(whole->Value), at);
      }
      return Make(kRealType, at, Conversion{value});
    case ValueKind::Text:
      return Make(kTextType, at, Conversion{value});
    case ValueKind::Variant:
      return Make(kVariantType, at, Conversion{value});
    case ValueKind::Object:
      if (const auto* zero = value->As<WholeConstant>(); zero != nullptr && zero->Value == 0) {
        return Make(kAnyObjectType, at, NothingConstant{});
      }
      return Fail(at, "An object is expected here");
    default:
      return Fail(at, "A value of another type is expected here");
  }
}

const Expression* Checker::Condition(const tree::Node* node) {
  const Expr value = Value(node);
  if (value->Gives() == ValueKind::Whole || value->Gives() == ValueKind::Real) return value;
  return As(value, ValueKind::Real);
}

const Expression* Checker::Fit(Expr value, Type type, bool quiet) {
  const ValueKind to = KindOf(type);
  if (IsFaulty(value)) return value;
  if (type.IsArray() || value->Kind.IsArray()) {
    if (type == value->Kind) return value;
    return Fail(value->At, "An array cannot be stored here");
  }
  if (to == ValueKind::Record) {
    if (value->Kind == type || value->Gives() == ValueKind::None) return value;
    return Fail(value->At, "A value of the type " +
                               std::string(program_.At(type.RecordType()).Name) +
                               " is expected here");
  }
  if (to == ValueKind::Object) {
    const Expr object = As(value, ValueKind::Object);
    return object;
  }
  const bool number = value->Gives() == ValueKind::Whole || value->Gives() == ValueKind::Real;
  if (!quiet && to == ValueKind::Text && number) {
    Note(value->At, "A number is stored as text", "Write STR$( ) around it");
  }
  if (!quiet && (to == ValueKind::Whole || to == ValueKind::Real) &&
      value->Gives() == ValueKind::Text) {
    Note(value->At, "A text is stored as a number", "Write VAL( ) around it");
  }
  return As(value, to);
}

}  // namespace tarnwick::basic
