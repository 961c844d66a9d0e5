// What names stand for.
#include <algorithm>

#include "basic/check/checker_core.h"

namespace tarnwick::basic {

bool Checker::Tolerate(Tolerance which, SourcePlace at) {
  if (!tolerant_) return false;
  const ToleranceRow& row = RowOf(which);
  if (!row.Note.empty()) Note(at, std::string(row.Note), std::string(row.Remedy));
  return true;
}

std::string Checker::SimilarTo(std::string_view name) const {
  SimilarName similar(name);
  for (const auto& [id, symbol] : frame_->Names) similar.Offer(symbol.Name);
  for (const Symbol& symbol : globals_.All()) {
    // Names that were never declared are no better than this one.
    const bool declared = symbol.Kind != Symbol::Sort::Global || symbol.At.Line > 0;
    if (declared) similar.Offer(symbol.Name);
  }
  for (const FunctionInfo& function : Functions()) {
    if (function.Form != FunctionForm::Directive) similar.Offer(function.Name);
  }
  return similar.Question();
}

std::optional<ProcedureId> Checker::FindProcedure(NameId name) const {
  const Symbol* const found = globals_.Find(name);
  if (found == nullptr || found->Kind != Symbol::Sort::Procedure) return std::nullopt;
  return static_cast<ProcedureId>(found->Index);
}

const Expression* Checker::SlotOf(const Symbol& symbol, SourcePlace at) {
  if (symbol.Kind == Symbol::Sort::Global) {
    return Make(program_.Globals[symbol.Index].Kind, at, GlobalSlot{symbol.Index});
  }
  return Make(Current().Locals[symbol.Index].Kind, at, LocalSlot{symbol.Index});
}

const Expression* Checker::OfSymbol(const Symbol& symbol, SourcePlace at) {
  switch (symbol.Kind) {
    case Symbol::Sort::Global:
    case Symbol::Sort::Local:
      return SlotOf(symbol, at);
    case Symbol::Sort::Constant: {
      return symbol.Constant->Visit(
          [&](const auto& value) { return Make(symbol.Constant->Kind, at, value); });
    }
    case Symbol::Sort::Resource:
      return Whole(kFirstResource + symbol.Index, at);
    case Symbol::Sort::Procedure:
      return CallProcedure(static_cast<ProcedureId>(symbol.Index), {}, at, nullptr);
    case Symbol::Sort::Dll:
      return CallDll(symbol.Index, {}, at);
  }
  return Faulty(at);
}

const Expression* Checker::Undeclared(std::string_view name, SourcePlace at) {
  const bool loop_name = EqualsFolded(name, "i") && Tolerate(Tolerance::LoopName, at);
  if (must_declare_ && !loop_name) {
    return Fail(at, '"' + std::string(name) + "\" is not declared", SimilarTo(name));
  }
  const Storage storage = StorageOfSuffix(name).value_or(default_storage_);
  const std::uint32_t index = NewGlobal(name, {storage, 0, 0}, {});
  return Make(program_.Globals[index].Kind, at, GlobalSlot{index});
}

std::uint32_t Checker::NewGlobal(std::string_view name, Type type, SourcePlace at) {
  const auto index = static_cast<std::uint32_t>(program_.Globals.size());
  const std::string_view kept = Keep(name);
  program_.Globals.push_back({kept, type, at, false});
  if (!name.empty()) {
    globals_.Set(IdOf(kept), {Symbol::Sort::Global, index, nullptr, at, kept});
  }
  return index;
}

std::uint32_t Checker::NewLocal(std::string_view name, Type type, SourcePlace at) {
  const auto index = static_cast<std::uint32_t>(Current().Locals.size());
  const std::string_view kept = Keep(name);
  Current().Locals.push_back({kept, type, at, false});
  if (!name.empty()) frame_->Names[IdOf(kept)] = {Symbol::Sort::Local, index, nullptr, at, kept};
  return index;
}

const Expression* Checker::Temporary(Type type, SourcePlace at) {
  return Make(type, at, LocalSlot{NewLocal({}, type, at)});
}

bool Checker::IsCallable(std::string_view name) const {
  const Symbol* symbol = Find(IdOf(name));
  if (symbol != nullptr) {
    return symbol->Kind == Symbol::Sort::Procedure || symbol->Kind == Symbol::Sort::Dll;
  }
  const FunctionInfo* function = FindFunction(name, 0);
  return function != nullptr && function->IsNative();
}

std::optional<Storage> Checker::StorageOfSuffix(std::string_view name) {
  if (name.empty()) return std::nullopt;
  switch (name.back()) {
    case '$':
      return Storage::String;
    case '%':
      return Storage::Short;
    case '&':
      return Storage::Integer;
    case '!':
      return Storage::Single;
    case '#':
      return Storage::Double;
    case '?': {
      const std::size_t marks = name.size() - (name.find_last_not_of('?') + 1);
      return marks == 1 ? Storage::Byte : marks == 2 ? Storage::Word : Storage::DWord;
    }
    default:
      return std::nullopt;
  }
}

std::optional<Type> Checker::TypeNamed(std::string_view name) const {
  static constexpr std::pair<std::string_view, Storage> kPlain[] = {
      {"BYTE", Storage::Byte},       {"WORD", Storage::Word},       {"DWORD", Storage::DWord},
      {"SHORT", Storage::Short},     {"INTEGER", Storage::Integer}, {"LONG", Storage::Integer},
      {"SINGLE", Storage::Single},   {"DOUBLE", Storage::Double},   {"STRING", Storage::String},
      {"VARIANT", Storage::Variant},
  };
  for (const auto& [known, storage] : kPlain) {
    if (EqualsFolded(known, name)) return Type{storage, 0, 0};
  }
  const auto record = type_names_.find(name);
  if (record != type_names_.end()) {
    return Type{Storage::Record, 0, static_cast<std::uint32_t>(record->second)};
  }
  if (EqualsFolded(name, "QOBJECT")) return kAnyObjectType;
  const std::optional<ClassId> kind = classes_.FindClass(name);
  if (kind) return Type{Storage::Object, 0, static_cast<std::uint32_t>(*kind)};
  return std::nullopt;
}

Type Checker::TypeOf(const tree::TypeName& as, std::string_view name, bool is_array) {
  Type type{StorageOfSuffix(name).value_or(default_storage_), 0, 0};
  if (!as.Text.empty()) {
    const std::optional<Type> named = TypeNamed(as.Text);
    if (named) {
      type = *named;
    } else {
      SimilarName similar(as.Text);
      for (const std::string_view known : classes_.ClassNames()) similar.Offer(known);
      for (const auto& [known, id] : type_names_) similar.Offer(known);
      for (const std::string_view known : {"INTEGER", "STRING", "DOUBLE", "SINGLE", "LONG"}) {
        similar.Offer(known);
      }
      if (const LeftOut* const left_out = FindLeftOut(as.Text)) {
        Error(as.At, TextOf(*left_out), RemedyOf(*left_out));
      } else {
        Error(as.At, "There is no type \"" + std::string(as.Text) + '"', similar.Question());
      }
    }
  }
  if (as.Length != nullptr) {
    const Expr length = WholeValue(as.Length);
    const auto* number = length->As<WholeConstant>();
    constexpr std::int64_t kLongest = 1 << 24;
    if (number == nullptr || number->Value < 1 || number->Value > kLongest) {
      Error(as.At, "The length of a text must be a constant from 1 to 16777216");
    } else {
      type = {Storage::FixedString, 0, static_cast<std::uint32_t>(number->Value)};
    }
  }
  if (is_array) type.Dimensions = 1;
  return type;
}

}  // namespace tarnwick::basic
