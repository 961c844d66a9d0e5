// Words that look like calls, for which the checker makes nodes of their own.
#include <array>

#include "basic/check/checker_core.h"

namespace tarnwick::basic {

const Expression* Checker::CallIntrinsic(FunctionId id, tree::NodeList arguments, SourcePlace at) {
  const bool none = arguments.empty() || arguments[0] == nullptr;
  switch (id) {
    case FunctionId::Iif:
      return ChoiceOf(arguments, at);
    case FunctionId::LBound:
    case FunctionId::UBound:
      return BoundOf(id == FunctionId::UBound, arguments, at);
    case FunctionId::CallFunc:
      return CallPointer(arguments, at);
    case FunctionId::ParamStrCount:
    case FunctionId::ParamValCount:
      return Make(kWholeType, at, VariableParameter{id == FunctionId::ParamStrCount, nullptr});
    case FunctionId::ParamStr:
    case FunctionId::ParamVal:
      if (none) return Fail(at, "The number of the argument is missing");
      return Make(id == FunctionId::ParamStr ? kTextType : kRealType, at,
                  VariableParameter{id == FunctionId::ParamStr, WholeValue(arguments[0])});
    case FunctionId::SizeOf:
      return none ? Fail(at, "A variable or type is missing") : SizeOfNode(arguments[0], at);
    case FunctionId::VarPtr: {
      if (none) return Fail(at, "A variable is missing");
      const Expr location = Location(arguments[0]);
      return location == nullptr ? Faulty(at) : Make(kWholeType, at, AddressOf{location});
    }
    case FunctionId::CodePtr: {
      const auto* name = none ? nullptr : arguments[0]->As<tree::Name>();
      const std::optional<ProcedureId> procedure =
          name == nullptr ? std::nullopt : FindProcedure(name->Id);
      if (!procedure) {
        return Fail(at, "The name of a SUB or FUNCTION is expected here",
                    name == nullptr ? "" : SimilarTo(name->Text()));
      }
      return Whole(static_cast<std::int64_t>(*procedure), at);
    }
    default:
      return Fail(at, std::string(FunctionOf(id).Name) + " gives no value");
  }
}

const Expression* Checker::ChoiceOf(tree::NodeList arguments, SourcePlace at) {
  if (arguments.size() != 3) return Fail(at, "IIF takes 3 arguments");
  const Expr condition = Condition(arguments[0]);
  Expr yes = Value(arguments[1]);
  Expr no = Value(arguments[2]);
  if (IsFaulty(yes) || IsFaulty(no)) return Faulty(at);
  if (yes->Gives() != no->Gives()) {
    const bool text = yes->Gives() == ValueKind::Text || no->Gives() == ValueKind::Text;
    if (text) return Fail(at, "Both values of IIF must be texts, or both numbers");
    yes = As(yes, ValueKind::Real);
    no = As(no, ValueKind::Real);
  }
  const Type type = ValueTypeOf(yes->Kind);
  if (yes->Kind.IsArray() || no->Kind.IsArray()) return Fail(at, "An array is not a value");
  return Make(type, at, Choice{condition, yes, no});
}

const Expression* Checker::BoundOf(bool upper, tree::NodeList arguments, SourcePlace at) {
  const Expr array = arguments.empty() || arguments[0] == nullptr ? nullptr : Value(arguments[0]);
  if (array == nullptr || !array->Kind.IsArray() || arguments.size() > 2) {
    return Fail(at, "The name of an array is expected here");
  }
  const Expr dimension = arguments.size() == 2 ? WholeValue(arguments[1]) : Whole(1, at);
  return Make(kWholeType, at, ArrayBound{array, dimension, upper});
}

const Expression* Checker::SizeOfNode(const tree::Node* node, SourcePlace at) {
  const auto bytes_of = [this](const auto& self, Type type, int depth) -> std::int64_t {
    if (type.Kind == Storage::FixedString) return type.Detail;
    if (type.Kind != Storage::Record || depth > 16) return BytesOf(type.Kind);
    std::int64_t bytes = 0;
    for (const Field& field : program_.At(type.RecordType()).Fields) {
      std::int64_t count = 1;
      for (const auto& [low, high] : field.Dimensions) {
        constexpr std::int64_t kMost = 1 << 28;
        count = high < low || count > kMost ? count : count * std::min(high - low + 1, kMost);
      }
      bytes += count * self(self, field.Kind.Element(), depth + 1);
    }
    return bytes;
  };
  if (const auto* name = node->As<tree::Name>(); name != nullptr && Find(*name) == nullptr) {
    if (const std::optional<Type> type = TypeNamed(name->Text())) {
      return Whole(bytes_of(bytes_of, *type, 0), at);
    }
  }
  const Expr location = Location(node);
  if (location == nullptr) return Faulty(at);
  if (!location->Kind.IsArray() && location->Kind.Kind == Storage::String) {
    const std::vector<Expr> text = {location};
    return Make(kWholeType, at, BuiltInCall{FindFunction("LEN", 1)->Id, List(text)});
  }
  if (location->Kind.IsArray()) {
    const std::int64_t bytes = bytes_of(bytes_of, location->Kind.Element(), 0);
    return Make(kWholeType, at, SizeOf{location, bytes});
  }
  return Whole(bytes_of(bytes_of, location->Kind, 0), at);
}

const Expression* Checker::FoundFileOf(std::string_view member, SourcePlace at) {
  static constexpr std::array<std::pair<std::string_view, FoundFilePart>, 5> kParts = {{
      {"Filename", FoundFilePart::Filename},
      {"Size", FoundFilePart::Size},
      {"Date", FoundFilePart::Date},
      {"Time", FoundFilePart::Time},
      {"Attributes", FoundFilePart::Attributes},
  }};
  SimilarName similar(member);
  for (const auto& [name, part] : kParts) {
    if (EqualsFolded(name, member)) {
      const bool number = part == FoundFilePart::Size || part == FoundFilePart::Attributes;
      return Make(number ? kWholeType : kTextType, at, FoundFile{part});
    }
    similar.Offer(name);
  }
  return Fail(at, "FILEREC has no member \"" + std::string(member) + '"', similar.Question());
}

bool Checker::IntrinsicStatement(FunctionId id, tree::NodeList arguments, SourcePlace at,
                                 Statements& out) {
  const auto missing = [&](std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      if (i < arguments.size() && arguments[i] != nullptr) continue;
      Error(at,
            std::string(FunctionOf(id).Name) + " needs " + std::to_string(count) + " argument(s)");
      return true;
    }
    return false;
  };
  switch (id) {
    case FunctionId::Inc:
    case FunctionId::Dec: {
      if (missing(1)) return true;
      const bool given = arguments.size() > 1 && arguments[1] != nullptr;
      StepOf(arguments[0], given ? arguments[1] : nullptr, id == FunctionId::Inc, at, out);
      return true;
    }
    case FunctionId::Swap: {
      if (missing(2)) return true;
      const Expr left = Location(arguments[0]);
      const Expr right = Location(arguments[1]);
      if (left == nullptr || right == nullptr) return true;
      if (left->Kind != right->Kind) {
        Error(at, "Only variables of one type can be exchanged");
      } else {
        Add(out, at, Swap{left, right});
      }
      return true;
    }
    case FunctionId::InitArray: {
      if (missing(1)) return true;
      const Expr array = Value(arguments[0]);
      if (!array->Kind.IsArray()) {
        Error(array->At, "The name of an array is expected here");
        return true;
      }
      std::vector<Expr> values;
      for (const tree::Node* value : arguments.subspan(1)) {
        values.push_back(Fit(Value(value), array->Kind.Element(), true));
      }
      Add(out, at, InitArray{array, List(values)});
      return true;
    }
    case FunctionId::QuickSort: {
      if (missing(2)) return true;
      const Expr first = Location(arguments[0]);
      const Expr last = Location(arguments[1]);
      if (first == nullptr || last == nullptr) return true;
      if (!first->Is<ArrayElement>() || !last->Is<ArrayElement>()) {
        Error(at, "QUICKSORT needs the first and the last element of an array");
        return true;
      }
      const auto* order = arguments.size() > 2 && arguments[2] != nullptr
                              ? arguments[2]->As<tree::Name>()
                              : nullptr;
      Add(out, at,
          QuickSort{first, last, order != nullptr && EqualsFolded(order->Text(), "DESCEND")});
      return true;
    }
    default:
      return false;
  }
}

}  // namespace tarnwick::basic
