// DIM and its kin where they stand, and CONST.
#include <algorithm>

#include "basic/check/checker_core.h"

namespace tarnwick::basic {

void Checker::Declare(const tree::Declaration& line, SourcePlace /*at*/, Statements& out) {
  for (const tree::Declarator& name : line.Names) DeclareOne(line.Kind, name, out);
}

void Checker::DeclareOne(tree::DeclareKind kind, const tree::Declarator& name, Statements& out) {
  if (kind == tree::DeclareKind::Shared) {
    if (globals_.Find(IdOf(name.Name)) == nullptr) Undeclared(name.Name, name.At);
    return;
  }
  const bool main = frame_->Id == kMainProcedure;
  const Symbol* symbol = Find(IdOf(name.Name));
  const bool redim = kind == tree::DeclareKind::Redim;
  if (!main && !(redim && symbol != nullptr)) {
    symbol = DeclareLocal(name, kind == tree::DeclareKind::Static);
  }
  const bool variable = symbol != nullptr && (symbol->Kind == Symbol::Sort::Global ||
                                              symbol->Kind == Symbol::Sort::Local);
  if (!variable) {
    // In the program's own text the error was reported when the name was collected.
    if (redim) Error(name.At, '"' + std::string(name.Name) + "\" is not an array");
    return;
  }
  const Expr slot = SlotOf(*symbol, name.At);
  if (redim && (!slot->Kind.IsArray() || slot->Kind.Dimensions != name.Dimensions.size())) {
    Error(name.At, '"' + std::string(name.Name) + "\" is not an array of so many dimensions");
    return;
  }
  // An array of objects that is declared again with other bounds grows.
  const bool again = main && slot->Kind.IsArray() && symbol->At != name.At;
  MakeValue(slot, name, redim || again, kind == tree::DeclareKind::Static, out);
  StartValue(slot, name, out);
}

const Symbol* Checker::DeclareLocal(const tree::Declarator& name, bool is_static) {
  Type type = TypeOf(name.As, name.Name, name.IsArray);
  if (name.IsArray && !name.Dimensions.empty()) {
    type.Dimensions = static_cast<std::uint8_t>(std::min<std::size_t>(name.Dimensions.size(), 255));
  }
  const NameId id = IdOf(name.Name);
  if (const Symbol* const old = FindLocal(id)) {
    const Symbol& known = *old;
    const bool same = known.Kind == Symbol::Sort::Local &&
                      Current().Locals[known.Index].Kind == type &&
                      known.Index >= Current().ParameterCount;
    // A local called Result hides the one of the function.
    const bool result = known.Kind == Symbol::Sort::Local && frame_->Function != NameId::None &&
                        known.Index == Current().ResultSlot && EqualsFolded(name.Name, "Result");
    if (same && !result) return &known;
    if (!result) {
      Error(name.At, '"' + std::string(name.Name) + "\" is declared twice");
      return nullptr;
    }
  }
  if (!is_static) {
    NewLocal(name.Name, type, name.At);
    return FindLocal(id);
  }
  const auto index = static_cast<std::uint32_t>(program_.Globals.size());
  const std::string_view kept = Keep(name.Name);
  program_.Globals.push_back({kept, type, name.At, false});
  frame_->Names[id] = {Symbol::Sort::Global, index, nullptr, name.At, kept};
  return FindLocal(id);
}

void Checker::MakeValue(Expr variable, const tree::Declarator& name, bool keeps, bool once,
                        Statements& out) {
  const Type type = variable->Kind;
  if (!type.IsArray() && type.Kind != Storage::Object && type.Kind != Storage::Record) return;
  if (!type.IsArray() && type == kAnyObjectType) return;
  std::vector<DimensionBounds> bounds;
  for (const tree::Dimension& dimension : name.Dimensions) {
    const Expr low = dimension.Low == nullptr ? nullptr : WholeValue(dimension.Low);
    bounds.push_back({low, WholeValue(dimension.High)});
  }
  Add(out, name.At, MakeVariable{variable, List(bounds), keeps, once});
}

/// DEFINT i = 5 and DEFINT a(1 TO 3) = {1, 2, 3}.
void Checker::StartValue(Expr variable, const tree::Declarator& name, Statements& out) {
  if (!name.InitialList.empty()) {
    if (!variable->Kind.IsArray()) {
      Error(name.At, '"' + std::string(name.Name) + "\" is not an array");
      return;
    }
    std::vector<Expr> values;
    for (const tree::Node* value : name.InitialList) {
      values.push_back(value == nullptr ? As(Whole(0, name.At), KindOf(variable->Kind))
                                        : Fit(Value(value), variable->Kind.Element(), true));
    }
    Add(out, name.At, InitArray{variable, List(values)});
  } else if (name.Initial != nullptr) {
    Store(variable, Value(name.Initial), name.At, out);
  }
}

void Checker::CheckConst(const tree::ConstDeclaration& line, SourcePlace at, Statements& out) {
  const auto late = late_constants_.find(&line);
  if (late != late_constants_.end()) {
    Store(SlotOf(*globals_.Find(IdOf(line.Name)), at), late->second, at, out);
    return;
  }
  if (frame_->Id == kMainProcedure) return;
  Expr value = Value(line.Value);
  if (!line.As.Text.empty()) value = Fit(value, TypeOf(line.As, {}, false), true);
  const bool constant =
      value->Is<WholeConstant>() || value->Is<RealConstant>() || value->Is<TextConstant>();
  const std::string_view name = Keep(line.Name);
  if (constant) {
    frame_->Names[IdOf(name)] = {Symbol::Sort::Constant, 0, value, at, name};
    return;
  }
  NewLocal(name, {value->Kind.Kind, 0, value->Kind.Detail}, at);
  Store(SlotOf(frame_->Names.at(IdOf(name)), at), value, at, out);
}

}  // namespace tarnwick::basic
