// TYPE ... END TYPE: fields, and the members of a TYPE that extends a class.
#include "basic/check/checker_core.h"

namespace tarnwick::basic {

void Checker::FillType(RecordId id) {
  const auto index = static_cast<std::size_t>(id);
  const tree::TypeBlock& source = *types_[index].Source;
  std::vector<Field> fields;
  if (program_.Records[index].Base) {
    fields.push_back(
        {{}, {Storage::Object, 0, static_cast<std::uint32_t>(*program_.Records[index].Base)}, {}});
  }
  for (const tree::Declarator& declarator : source.Fields) {
    Field field;
    field.Name = Keep(declarator.Name);
    field.Kind = declarator.EventTemplate.empty()
                     ? TypeOf(declarator.As, declarator.Name, declarator.IsArray)
                     : Type{Storage::Integer, 0, 0};
    // Making a record makes its fields; only an array that starts empty may hold its own type.
    const bool starts_empty = declarator.IsArray && declarator.Dimensions.empty();
    if (field.Kind.Kind == Storage::Record && field.Kind.RecordType() >= id && !starts_empty) {
      Error(declarator.At, "A type must not hold itself or a type that is declared behind it");
      field.Kind = kWholeType;
    }
    for (const tree::Dimension& dimension : declarator.Dimensions) {
      const Expr low =
          dimension.Low == nullptr ? Whole(kLowestIndex, declarator.At) : WholeValue(dimension.Low);
      const Expr high = WholeValue(dimension.High);
      const auto* first = low->As<WholeConstant>();
      const auto* last = high->As<WholeConstant>();
      if (first == nullptr || last == nullptr) {
        Error(declarator.At, "The bounds of an array inside a TYPE must be constants");
        break;
      }
      field.Dimensions.emplace_back(first->Value, last->Value);
    }
    if (!field.Dimensions.empty()) {
      field.Kind.Dimensions = static_cast<std::uint8_t>(field.Dimensions.size());
    }
    TypeFacts& facts = types_[index];
    facts.DottedNames = facts.DottedNames || field.Name.find('.') != std::string_view::npos;
    if (declarator.Private) facts.Private[field.Name] = true;
    const auto number = static_cast<std::uint32_t>(fields.size());
    if (!facts.Fields.emplace(field.Name, number).second) {
      Error(declarator.At, "The field \"" + std::string(field.Name) + "\" is declared twice");
      continue;
    }
    fields.push_back(std::move(field));
  }
  program_.Records[index].Fields = std::move(fields);
}

void Checker::CollectMembers(RecordId id) {
  const auto index = static_cast<std::size_t>(id);
  const tree::TypeBlock& source = *types_[index].Source;
  const std::string type_name(program_.Records[index].Name);
  bool needs_constructor = false;
  FoldedMap<ProcedureId> setters;
  for (const tree::StatementNode* statement : source.Members) {
    const auto* routine = statement->As<tree::Routine>();
    if (routine == nullptr) continue;
    const ProcedureId procedure =
        NewProcedure(*routine, type_name + '.' + std::string(routine->Name), statement->At, id);
    const std::string_view name = Keep(routine->Name);
    if (routine->Private) types_[index].Private[name] = true;
    switch (routine->Kind) {
      case tree::RoutineKind::Sub:
      case tree::RoutineKind::Function:
        types_[index].Members[name] = procedure;
        break;
      case tree::RoutineKind::PropertySet:
        setters[name] = procedure;
        break;
      case tree::RoutineKind::Event:
        needs_constructor = true;
        if (routine->EventObject.empty()) types_[index].Events[name] = procedure;
        break;
      case tree::RoutineKind::Constructor:
        program_.Records[index].Constructor = procedure;
        break;
    }
  }
  for (const tree::Declarator& field : source.Fields) {
    if (field.PropertySet.empty()) continue;
    const auto setter = setters.find(field.PropertySet);
    if (setter == setters.end()) {
      Error(field.At,
            "There is no PROPERTY SET " + std::string(field.PropertySet) + " in this type");
    } else {
      types_[index].Setters[Keep(field.Name)] = setter->second;
    }
  }
  if (needs_constructor && program_.Records[index].Constructor == kNoProcedure) {
    Procedure constructor;
    constructor.Name = Keep(type_name + ".Constructor");
    constructor.Kind = ProcedureKind::Constructor;
    constructor.At = program_.Records[index].At;
    constructor.Locals.push_back({Keep("This"),
                                  {Storage::Record, 0, static_cast<std::uint32_t>(id)},
                                  constructor.At,
                                  false});
    constructor.ParameterCount = 1;
    program_.Records[index].Constructor = static_cast<ProcedureId>(program_.Procedures.size());
    program_.Procedures.push_back(std::move(constructor));
  }
}

/// The hooks of the EVENT routines, in front of the constructor's own statements.
void Checker::ConstructorStart(RecordId id, Statements& out) {
  const tree::TypeBlock& source = *types_[static_cast<std::size_t>(id)].Source;
  for (const tree::StatementNode* statement : source.Members) {
    const auto* routine = statement->As<tree::Routine>();
    if (routine == nullptr || routine->Kind != tree::RoutineKind::Event) continue;
    const SourcePlace at = routine->NameAt;
    const Expr record = This(at);
    Expr object = ObjectOf(record);
    if (!routine->EventObject.empty()) {
      const MemberUse field = MemberOfRecord(record, routine->EventObject, at);
      object = field.Field == nullptr ? nullptr : ObjectOf(field.Field);
    }
    if (object == nullptr) {
      Error(at, "There is no object for this event",
            "EVENT belongs into a TYPE that extends a class, or names a field that is an object");
      continue;
    }
    const MemberUse use = MemberOfObject(object, routine->Name);
    if (use.Facts == nullptr || use.Facts->Kind != MemberKind::Event) {
      LacksMember(use, routine->Name, at);
      continue;
    }
    Add(out, at, HookEvent{object, use.Facts->Id, routines_.at(routine), record});
  }
}

void Checker::CheckMembers(RecordId id) {
  const auto index = static_cast<std::size_t>(id);
  const ProcedureId constructor = program_.Records[index].Constructor;
  bool written = false;
  for (const tree::StatementNode* statement : types_[index].Source->Members) {
    const auto* routine = statement->As<tree::Routine>();
    if (routine == nullptr) continue;
    const ProcedureId procedure = routines_.at(routine);
    written = written || procedure == constructor;
    CheckBody(*routine, procedure, id);
  }
  if (constructor != kNoProcedure && !written) {
    tree::Routine empty{};
    empty.Kind = tree::RoutineKind::Constructor;
    CheckBody(empty, constructor, id);
  }
}

}  // namespace tarnwick::basic
