// What is known before any body is checked: types, procedures, variables of the program.
#include <charconv>

#include "basic/check/checker_core.h"
#include "basic/vm/number_text.h"

namespace tarnwick::basic {
namespace {

template <class... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

}  // namespace

void Checker::CollectTypes(tree::StatementList statements) {
  for (const tree::StatementNode* statement : statements) {
    const auto* type = statement->As<tree::TypeBlock>();
    if (type == nullptr || type->Name.empty()) continue;
    const auto id = static_cast<RecordId>(program_.Records.size());
    const std::string_view name = Keep(type->Name);
    if (!type_names_.emplace(name, id).second) {
      Error(type->NameAt, "The type \"" + std::string(name) + "\" is declared twice");
      continue;
    }
    RecordType record;
    record.Name = name;
    record.At = statement->At;
    if (!type->Extends.empty()) {
      record.Base = classes_.FindClass(type->Extends);
      if (!record.Base) {
        Error(type->ExtendsAt, "There is no class \"" + std::string(type->Extends) + '"',
              "A type extends one of the classes of the language");
      }
    }
    program_.Records.push_back(std::move(record));
    types_.emplace_back().Source = type;
  }
}

void Checker::CollectHeads(tree::StatementList statements, bool in_routine) {
  for (const tree::StatementNode* statement : statements) {
    CollectHead(*statement, in_routine);
    CollectBlocks(*statement, in_routine);
  }
}

void Checker::CollectHead(const tree::StatementNode& statement, bool in_routine) {
  const SourcePlace at = statement.At;
  statement.Visit(Overloaded{
      [&](const tree::DataLine& line) { CollectData(line); },
      [&](const tree::Label& line) {
        data_labels_.emplace(Keep(line.Name), static_cast<std::uint32_t>(program_.Data.size()));
      },
      [&](const tree::Routine& line) { CollectProcedure(line, at); },
      [&](const tree::DeclareLine& line) {
        if (!line.Library.empty()) CollectDll(line, at);
      },
      [&](const tree::ResourceLine& line) {
        const auto index = static_cast<std::uint32_t>(program_.Resources.size());
        const std::string_view name = Keep(line.Name);
        program_.Resources.push_back({name, Keep(line.File), at});
        globals_.Set(IdOf(name), {Symbol::Sort::Resource, index, nullptr, at, name});
      },
      [&](const tree::Declaration& line) {
        if (in_routine || line.Kind == tree::DeclareKind::Shared) return;
        for (const tree::Declarator& name : line.Names) CollectGlobal(name);
      },
      [&](const tree::CreateBlock& block) {
        if (!in_routine) CollectGlobal(block.Object);
      },
      [&](const tree::ConstDeclaration& line) {
        if (!in_routine) CollectConstant(line, at);
      },
      [&](const tree::DefaultTypeLine& line) {
        default_storage_ = TypeOf(line.As, {}, false).Kind;
      },
      [](const auto&) {},
  });
}

void Checker::CollectBlocks(const tree::StatementNode& statement, bool in_routine) {
  statement.Visit(Overloaded{
      [&](const tree::Routine& block) { CollectHeads(block.Body, true); },
      [&](const tree::IfBlock& block) {
        for (const tree::Arm& arm : block.Arms) CollectHeads(arm.Body, in_routine);
      },
      [&](const tree::SelectBlock& block) {
        for (const tree::CaseBlock& arm : block.Cases) CollectHeads(arm.Body, in_routine);
      },
      [&](const tree::ForBlock& block) { CollectHeads(block.Body, in_routine); },
      [&](const tree::LoopBlock& block) { CollectHeads(block.Body, in_routine); },
      [&](const tree::WithBlock& block) { CollectHeads(block.Body, in_routine); },
      [&](const tree::CreateBlock& block) { CollectHeads(block.Body, in_routine); },
      [](const auto&) {},
  });
}

void Checker::CollectData(const tree::DataLine& line) {
  for (const tree::DataItem& item : line.Items) {
    program_.Data.push_back({Keep(item.Text), NumberIn(item.Text)});
  }
}

ProcedureId Checker::NewProcedure(const tree::Routine& routine, std::string_view name,
                                  SourcePlace at, std::optional<RecordId> owner) {
  static constexpr ProcedureKind kKinds[] = {ProcedureKind::Sub, ProcedureKind::Function,
                                             ProcedureKind::Constructor, ProcedureKind::Event,
                                             ProcedureKind::PropertySet};
  const auto id = static_cast<ProcedureId>(program_.Procedures.size());
  Procedure procedure;
  procedure.Name = Keep(name);
  procedure.Kind = kKinds[static_cast<std::size_t>(routine.Kind)];
  procedure.At = at;
  procedure.Variadic = routine.Variadic;
  if (owner) {
    const Type type{Storage::Record, 0, static_cast<std::uint32_t>(*owner)};
    procedure.Locals.push_back({Keep("This"), type, at, false});
  }
  for (const tree::ParameterNode& parameter : routine.Parameters) {
    const Type type = TypeOf(parameter.As, parameter.Name, parameter.IsArray);
    const bool plain =
        !type.IsArray() && type.Kind != Storage::Object && type.Kind != Storage::Record;
    procedure.Locals.push_back({Keep(parameter.Name), type, parameter.At,
                                plain && (parameter.ByReference || type.Kind == Storage::Variant)});
  }
  procedure.ParameterCount = static_cast<std::uint32_t>(procedure.Locals.size());
  if (routine.Kind == tree::RoutineKind::Function) {
    procedure.Result = TypeOf(routine.Result, routine.Name, false);
    procedure.ResultSlot = procedure.ParameterCount;
    procedure.Locals.push_back({Keep("Result"), procedure.Result, at, false});
  }
  program_.Procedures.push_back(std::move(procedure));
  routines_[&routine] = id;
  return id;
}

void Checker::CollectProcedure(const tree::Routine& routine, SourcePlace at) {
  if (routine.Kind != tree::RoutineKind::Sub && routine.Kind != tree::RoutineKind::Function) {
    Error(at, "This belongs inside a TYPE");
    return;
  }
  const ProcedureId id = NewProcedure(routine, routine.Name, at, std::nullopt);
  const std::string_view name = program_.At(id).Name;
  const Symbol symbol{Symbol::Sort::Procedure, static_cast<std::uint32_t>(id), nullptr,
                      routine.NameAt, name};
  if (const Symbol* const known = globals_.Find(IdOf(name))) {
    Error(routine.NameAt, '"' + std::string(name) + "\" is declared twice",
          "The other one is in line " + std::to_string(known->At.Line));
  } else {
    globals_.Set(IdOf(name), symbol);
  }
}

void Checker::CollectDll(const tree::DeclareLine& line, SourcePlace at) {
  DllEntry entry;
  entry.Name = Keep(line.Name);
  entry.Library = Keep(line.Library);
  entry.Entry = Keep(line.Entry);
  entry.At = at;
  for (const tree::ParameterNode& parameter : line.Parameters) {
    entry.Parameters.push_back({Keep(parameter.Name),
                                TypeOf(parameter.As, parameter.Name, parameter.IsArray),
                                parameter.At, parameter.ByReference});
  }
  if (line.Function) entry.Result = TypeOf(line.Result, line.Name, false);
  const auto index = static_cast<std::uint32_t>(program_.DllEntries.size());
  globals_.Set(IdOf(entry.Name), {Symbol::Sort::Dll, index, nullptr, at, entry.Name});
  program_.DllEntries.push_back(std::move(entry));
}

void Checker::CollectGlobal(const tree::Declarator& name) {
  Type type = TypeOf(name.As, name.Name, name.IsArray);
  if (name.IsArray && !name.Dimensions.empty()) {
    type.Dimensions = static_cast<std::uint8_t>(std::min<std::size_t>(name.Dimensions.size(), 255));
  }
  const Symbol* const old = globals_.Find(IdOf(name.Name));
  if (old == nullptr) {
    NewGlobal(name.Name, type, name.At);
  } else if (!Redeclared(*old, type, name)) {
    Error(name.At, '"' + std::string(name.Name) + "\" is declared twice",
          "The other one is in line " + std::to_string(old->At.Line));
  }
}

/// True when a second declaration of a name means the same variable.
bool Checker::Redeclared(const Symbol& old, Type type, const tree::Declarator& name) {
  if (old.Kind != Symbol::Sort::Global) return false;
  const Type before = program_.Globals[old.Index].Kind;
  if (before != type) return false;
  if (EqualsFolded(name.Name, "xpFl") || EqualsFolded(name.Name, "axp$")) {
    return Tolerate(Tolerance::ViewerNames, name.At);
  }
  // A plain variable declared again, and REDIM, change nothing.
  if (type.Kind != Storage::Object) return true;
  if (type.IsArray()) return Tolerate(Tolerance::GrowingArray, name.At);
  return Tolerate(Tolerance::DeclaredTwice, name.At);
}

void Checker::CollectConstant(const tree::ConstDeclaration& line, SourcePlace at) {
  const std::string_view name = Keep(line.Name);
  if (const Symbol* const old = globals_.Find(IdOf(name))) {
    // The program's own constants hold, whatever the files that it includes call by their names.
    const bool elsewhere = old->Kind == Symbol::Sort::Constant && old->At.File != at.File;
    if (!elsewhere) Error(at, '"' + std::string(name) + "\" is declared twice");
    if (!elsewhere || old->At.File == 0) return;
  }
  Expr value = Value(line.Value);
  if (!line.As.Text.empty()) value = Fit(value, TypeOf(line.As, {}, false), true);
  const bool constant =
      value->Is<WholeConstant>() || value->Is<RealConstant>() || value->Is<TextConstant>();
  if (constant) {
    globals_.Set(IdOf(name), {Symbol::Sort::Constant, 0, value, at, name});
    return;
  }
  // A constant that only the running program can work out is a variable that is set in its place.
  NewGlobal(name, {value->Kind.Kind, 0, value->Kind.Detail}, at);
  late_constants_[&line] = value;
}

void Checker::MarkReferences() {
  for (const tree::ReferenceUse& use : tree_.References) {
    const std::optional<ProcedureId> id = FindProcedure(use.Callee);
    if (!id) continue;
    Procedure& procedure = program_.Procedures[static_cast<std::size_t>(*id)];
    if (use.Argument >= procedure.ParameterCount) continue;
    Variable& parameter = procedure.Locals[use.Argument];
    if (parameter.ByReference) continue;
    parameter.ByReference = !parameter.Kind.IsArray() && parameter.Kind.Kind != Storage::Object &&
                            parameter.Kind.Kind != Storage::Record;
    parameter.OnlyWithAt = parameter.ByReference;
  }
}

}  // namespace tarnwick::basic
