// Calls of the program's own procedures, of DLL entries and through addresses.
#include "basic/check/checker_core.h"

namespace tarnwick::basic {
namespace {

std::string CountText(std::string_view name, std::size_t takes, std::size_t given) {
  return '"' + std::string(name) + "\" takes " + std::to_string(takes) + " argument(s), not " +
         std::to_string(given);
}

/// A trailing comma counts as an argument only where there is a parameter for it.
tree::NodeList WithoutTrailing(tree::NodeList arguments, std::size_t wanted) {
  while (arguments.size() > wanted && arguments.back() == nullptr) {
    arguments = arguments.first(arguments.size() - 1);
  }
  return arguments;
}

}  // namespace

const Expression* Checker::CallOf(const tree::Name& name, tree::NodeList arguments, SourcePlace at,
                                  bool as_statement) {
  const Symbol* symbol = Find(name);
  if (symbol != nullptr && symbol->Kind == Symbol::Sort::Procedure) {
    return CallProcedure(static_cast<ProcedureId>(symbol->Index), arguments, at, nullptr);
  }
  if (symbol != nullptr && symbol->Kind == Symbol::Sort::Dll) {
    return CallDll(symbol->Index, arguments, at);
  }
  if (symbol != nullptr) return nullptr;
  const bool object = arguments.empty() && !as_statement && classes_.FindBuiltInObject(name.Text());
  return object ? nullptr : CallBuiltIn(name.Text(), arguments, at);
}

const Expression* Checker::CallProcedure(ProcedureId id, tree::NodeList arguments, SourcePlace at,
                                         Expr record) {
  const auto index = static_cast<std::size_t>(id);
  const bool variadic = program_.Procedures[index].Variadic;
  std::vector<Argument> values;
  if (record != nullptr) values.push_back({record, PassBy::Value});
  const std::size_t wanted = program_.Procedures[index].ParameterCount - values.size();
  if (!variadic) arguments = WithoutTrailing(arguments, wanted);
  if (!variadic && arguments.size() != wanted) {
    Error(at, CountText(program_.Procedures[index].Name, wanted, arguments.size()));
    arguments = arguments.first(std::min(arguments.size(), wanted));
  }
  for (const tree::Node* argument : arguments) {
    if (variadic) {
      values.push_back(PlainArgument(argument, at));
    } else {
      // A copy: the list of procedures may grow while the argument is checked.
      const Variable parameter = program_.Procedures[index].Locals[values.size()];
      values.push_back(ArgumentFor(parameter, argument, at));
    }
  }
  const Type type = ValueTypeOf(program_.Procedures[index].Result);
  return Make(type, at, ProcedureCall{id, List(values)});
}

Argument Checker::ArgumentFor(const Variable& parameter, const tree::Node* node, SourcePlace at) {
  if (node == nullptr) {
    const ValueKind kind = KindOf(parameter.Kind);
    if (parameter.Kind.IsArray() || kind == ValueKind::Record) {
      return {Fail(at, "An argument is missing"), PassBy::Value};
    }
    if (kind == ValueKind::Text) return {Text({}, at), PassBy::Value};
    return {As(Whole(0, at), kind), PassBy::Value};
  }
  const Expr value = Value(node);
  if (parameter.Kind.IsArray()) {
    if (!value->Kind.IsArray() || value->Kind.Element() != parameter.Kind.Element()) {
      return {Fail(value->At, "An array of the same type is expected here"), PassBy::Value};
    }
    return {value, PassBy::Array};
  }
  const bool reference =
      parameter.OnlyWithAt ? node->Is<tree::ByReference>() : parameter.ByReference;
  if (reference && value->IsLocation() && value->Kind == parameter.Kind) {
    return {value, PassBy::Reference};
  }
  return {Fit(value, parameter.Kind, false), PassBy::Value};
}

Argument Checker::PlainArgument(const tree::Node* node, SourcePlace at) {
  if (node == nullptr) return {Whole(0, at), PassBy::Value};
  const Expr value = Value(node);
  if (value->Kind.IsArray()) {
    return {Fail(value->At, "An array cannot be handed over here"), PassBy::Value};
  }
  return {value, PassBy::Value};
}

const Expression* Checker::CallDll(std::uint32_t entry, tree::NodeList arguments, SourcePlace at) {
  const std::size_t wanted = program_.DllEntries[entry].Parameters.size();
  arguments = WithoutTrailing(arguments, wanted);
  if (arguments.size() != wanted) {
    return Fail(at, CountText(program_.DllEntries[entry].Name, wanted, arguments.size()));
  }
  std::vector<Argument> values;
  for (const tree::Node* argument : arguments) {
    const Variable parameter = program_.DllEntries[entry].Parameters[values.size()];
    values.push_back(ArgumentFor(parameter, argument, at));
  }
  const Type type = ValueTypeOf(program_.DllEntries[entry].Result);
  return Make(type, at, DllCall{entry, List(values)});
}

const Expression* Checker::CallPointer(tree::NodeList arguments, SourcePlace at) {
  if (arguments.empty() || arguments[0] == nullptr) {
    return Fail(at, "The variable that holds the address of the routine is missing");
  }
  const Expr address = WholeValue(arguments[0]);
  std::vector<Argument> values;
  for (const tree::Node* argument : arguments.subspan(1)) {
    values.push_back(PlainArgument(argument, at));
  }
  return Make(kVariantType, at, PointerCall{address, List(values)});
}

const Expression* Checker::CallBuiltIn(std::string_view name, tree::NodeList arguments,
                                       SourcePlace at) {
  const std::span<const FunctionInfo> rows = FindFunctions(name);
  if (rows.empty()) return nullptr;
  if (const LeftOut* left_out = FindLeftOut(name)) {
    return Fail(at, TextOf(*left_out), RemedyOf(*left_out));
  }
  if (rows[0].Form == FunctionForm::Intrinsic) return CallIntrinsic(rows[0].Id, arguments, at);
  if (!rows[0].IsNative()) return nullptr;
  const FunctionInfo* row = FindFunction(rows, arguments.size());
  while (row == nullptr && !arguments.empty() && arguments.back() == nullptr) {
    arguments = arguments.first(arguments.size() - 1);
    row = FindFunction(rows, arguments.size());
  }
  if (row != nullptr) return CallNative(*row, arguments, at);
  std::string takes = std::to_string(rows[0].MinArguments);
  if (rows[0].MaxArguments == kAnyNumber) {
    takes += " or more";
  } else if (rows.back().MaxArguments > rows[0].MinArguments) {
    takes += " to " + std::to_string(rows.back().MaxArguments);
  }
  return Fail(at, std::string(rows[0].Name) + " takes " + takes + " argument(s), not " +
                      std::to_string(arguments.size()));
}

const Expression* Checker::CallNative(const FunctionInfo& info, tree::NodeList arguments,
                                      SourcePlace at) {
  const std::size_t first = values_.size();
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const basic::Parameter& parameter = info.ParameterOf(i);
    const bool text = parameter.Kind == ParameterKind::String;
    if (arguments[i] == nullptr) {
      values_.push_back(parameter.Optional ? Make(kNoType, at, NothingConstant{})
                        : text             ? Text({}, at)
                                           : Whole(0, at));
      continue;
    }
    const Expr value = Value(arguments[i]);
    switch (parameter.Kind) {
      case ParameterKind::String:
        values_.push_back(As(value, ValueKind::Text));
        break;
      case ParameterKind::Whole:
        values_.push_back(As(value, ValueKind::Whole));
        break;
      case ParameterKind::Number:
        values_.push_back(As(value, ValueKind::Real));
        break;
      default:
        // Any value goes as it is; an array or an object is none.
        values_.push_back(value->Kind.IsArray() || value->Gives() == ValueKind::Object ||
                                  value->Gives() == ValueKind::Record
                              ? As(value, ValueKind::Text)
                              : value);
        break;
    }
  }
  Type type = kNoType;
  if (info.Result == FunctionType::Whole) type = kWholeType;
  if (info.Result == FunctionType::Number) type = kRealType;
  if (info.Result == FunctionType::String) type = kTextType;
  if (info.Result == FunctionType::Any) type = kVariantType;
  program_.UsesConsole = program_.UsesConsole || info.Id == FunctionId::Inkey ||
                         info.Id == FunctionId::InputOf || info.Id == FunctionId::Cls ||
                         info.Id == FunctionId::Locate || info.Id == FunctionId::Color;
  return Make(type, at, BuiltInCall{info.Id, TakeValues(first)});
}

}  // namespace tarnwick::basic
