// Members of objects and records.
#include "basic/check/checker_core.h"

namespace tarnwick::basic {
const Expression* Checker::This(SourcePlace at) {
  return Make({Storage::Record, 0, static_cast<std::uint32_t>(*frame_->This)}, at, LocalSlot{0});
}

const Expression* Checker::ObjectOf(Expr value) {
  if (value->Kind.IsArray()) return nullptr;
  if (value->Gives() == ValueKind::Object) return value;
  if (value->Gives() != ValueKind::Record) return nullptr;
  const RecordType& record = program_.At(value->Kind.RecordType());
  if (!record.Base) return nullptr;
  return Make({Storage::Object, 0, static_cast<std::uint32_t>(*record.Base)}, value->At,
              RecordField{value, 0});
}

const Expression* Checker::OwnerOf(const tree::Node* target, SourcePlace at) {
  const auto* name = target->As<tree::Name>();
  if (name == nullptr) return Value(target);
  if (Find(*name) != nullptr) return Value(target);
  if (frame_->This) {
    const bool own = EqualsFolded(name->Text(), "This") ||
                     EqualsFolded(name->Text(), program_.At(*frame_->This).Name);
    if (own) return This(at);
  }
  if (Implied(name->Text(), at)) return Value(target);
  const std::optional<ClassId> object = classes_.FindBuiltInObject(name->Text());
  if (object) {
    return Make({Storage::Object, 0, static_cast<std::uint32_t>(*object)}, at,
                BuiltInObject{*object});
  }
  std::string remedy = SimilarTo(name->Text());
  if (remedy.empty() && tolerant_) {
    remedy = "Rename the object, or put an object of its kind on the main form";
  }
  Error(target->At, '"' + std::string(name->Text()) + "\" is not declared", std::move(remedy));
  return nullptr;
}

Checker::MemberUse Checker::MemberOf(const tree::MemberAccess& access, SourcePlace at) {
  MemberUse use;
  if (access.Target == nullptr) {
    if (!around_.empty()) return MemberOfValue(around_.back().Object, access.Name, at);
    if (frame_->This) return MemberOfValue(This(at), access.Name, at);
    Error(at, "A leading dot needs WITH or CREATE around it");
    use.Failed = true;
    return use;
  }
  const auto* name = access.Target->As<tree::Name>();
  if (name != nullptr && name->Id == found_file_ && Find(*name) == nullptr) {
    use.Field = FoundFileOf(access.Name, at);
    return use;
  }
  if (name != nullptr && frame_->This && EqualsFolded(name->Text(), "SUPER")) {
    const Expr object = ObjectOf(This(at));
    if (object != nullptr) return MemberOfObject(object, access.Name);
  }
  // A field's name may hold dots: "a.b.c" is field "b.c" of "a".
  const auto* inner = access.Target->As<tree::MemberAccess>();
  const auto* first =
      inner == nullptr || inner->Target == nullptr ? nullptr : inner->Target->As<tree::Name>();
  if (first != nullptr && Find(*first) != nullptr) {
    const Expr owner = Value(inner->Target);
    if (owner->Kind.Kind == Storage::Record && !owner->Kind.IsArray()) {
      const TypeFacts& facts = types_[owner->Kind.Detail];
      const std::string joined = std::string(inner->Name) + '.' + std::string(access.Name);
      if (facts.DottedNames && facts.Fields.contains(joined)) {
        return MemberOfRecord(owner, joined, at);
      }
    }
  }
  const Expr owner = OwnerOf(access.Target, at);
  if (owner == nullptr) {
    use.Failed = true;
    return use;
  }
  return MemberOfValue(owner, access.Name, at);
}

Checker::MemberUse Checker::MemberOfValue(Expr owner, std::string_view name, SourcePlace at) {
  if (!owner->Kind.IsArray()) {
    if (owner->Gives() == ValueKind::Record) return MemberOfRecord(owner, name, at);
    if (owner->Gives() == ValueKind::Object) return MemberOfObject(owner, name);
  }
  MemberUse use;
  use.Failed = true;
  if (IsFaulty(owner)) return use;
  Error(owner->At, owner->Kind.IsArray() ? "An element of the array must be named in brackets"
                                         : "This is not an object");
  return use;
}

Checker::MemberUse Checker::MemberOfRecord(Expr record, std::string_view name, SourcePlace at) {
  MemberUse use;
  use.Record = record;
  const TypeFacts& facts = types_[record->Kind.Detail];
  if (facts.Private.contains(name) && frame_->This != record->Kind.RecordType()) {
    Error(at, '"' + std::string(name) + "\" is private in " +
                  std::string(program_.At(record->Kind.RecordType()).Name));
    use.Failed = true;
    return use;
  }
  const auto field = facts.Fields.find(name);
  if (field != facts.Fields.end()) {
    const Type type = program_.At(record->Kind.RecordType()).Fields[field->second].Kind;
    use.Field = Make(type, at, RecordField{record, field->second});
    const auto setter = facts.Setters.find(name);
    if (setter != facts.Setters.end()) use.Setter = setter->second;
    return use;
  }
  const auto member = facts.Members.find(name);
  if (member != facts.Members.end()) {
    use.Routine = member->second;
    return use;
  }
  const Expr object = ObjectOf(record);
  if (object == nullptr) {
    use.LacksMember = true;
    return use;
  }
  MemberUse inherited = MemberOfObject(object, name);
  inherited.Record = record;
  return inherited;
}

Checker::MemberUse Checker::MemberOfObject(Expr object, std::string_view name) {
  MemberUse use;
  use.Object = object;
  if (object->Kind.Detail == kAnyClass) {
    use.LacksMember = true;
    return use;
  }
  use.Class = object->Kind.Class();
  use.Facts = classes_.FindMember(use.Class, name);
  use.LacksMember = use.Facts == nullptr;
  return use;
}

std::string Checker::WrittenAs(const MemberUse& use) const {
  return std::string(classes_.ClassName(use.Class)) + '.' + std::string(use.Facts->Name);
}

void Checker::LacksMember(const MemberUse& use, std::string_view name, SourcePlace at) {
  if (use.Failed) return;
  SimilarName similar(name);
  std::string owner;
  if (use.Object != nullptr && use.Object->Kind.Detail != kAnyClass) {
    owner = classes_.ClassName(use.Class);
    for (const std::string_view known : classes_.MemberNames(use.Class)) similar.Offer(known);
  }
  if (use.Record != nullptr) {
    owner = program_.At(use.Record->Kind.RecordType()).Name;
    const TypeFacts& facts = types_[use.Record->Kind.Detail];
    for (const auto& [known, field] : facts.Fields) similar.Offer(known);
    for (const auto& [known, routine] : facts.Members) similar.Offer(known);
  }
  if (owner.empty()) {
    Error(at, "The class of this object is not known", "Declare it AS its class");
    return;
  }
  Error(at, owner + " has no member \"" + std::string(name) + '"', similar.Question());
}

const Expression* Checker::UseValue(const MemberUse& use, tree::NodeList arguments, bool brackets,
                                    std::string_view name, SourcePlace at, bool as_statement) {
  if (use.Failed) return Faulty(at);
  if (use.Routine) return CallProcedure(*use.Routine, arguments, at, use.Record);
  if (use.Field != nullptr) return brackets ? Element(use.Field, arguments, at) : use.Field;
  if (use.LacksMember || use.Facts == nullptr) {
    LacksMember(use, name, at);
    return Faulty(at);
  }
  const MemberFacts& facts = *use.Facts;
  if (facts.Level == SupportLevel::None) {
    if (as_statement) {
      Note(at, WrittenAs(use) + std::string(kNotSupported) + ": the line is passed over",
           std::string(facts.Note));
      return nullptr;
    }
    return Fail(at, WrittenAs(use) + std::string(kNotSupported), std::string(facts.Note));
  }
  switch (facts.Kind) {
    case MemberKind::Event:
      return Fail(at, WrittenAs(use) + " is an event and has no value");
    case MemberKind::Method:
      return CallMethod(use, arguments, at);
    default:
      break;
  }
  if (!facts.Readable) return Fail(at, WrittenAs(use) + " can be set, not read");
  const std::size_t wanted = facts.Parameters.size();
  if (arguments.size() != wanted) {
    return Fail(at, WrittenAs(use) + " takes " + std::to_string(wanted) + " index(es)");
  }
  std::vector<Expr> indexes;
  for (const tree::Node* index : arguments) {
    indexes.push_back(As(Value(index), KindOf(facts.Parameters[indexes.size()].Kind)));
  }
  return Make(ValueTypeOf(facts.Value), at, PropertyValue{use.Object, facts.Id, List(indexes)});
}

const Expression* Checker::CallMethod(const MemberUse& use, tree::NodeList arguments,
                                      SourcePlace at) {
  const std::vector<Argument> values = MemberArguments(*use.Facts, arguments, at);
  return Make(ValueTypeOf(use.Facts->Value), at,
              MethodCall{use.Object, use.Facts->Id, List(values)});
}

std::vector<Argument> Checker::MemberArguments(const MemberFacts& facts, tree::NodeList arguments,
                                               SourcePlace at) {
  std::vector<Argument> values;
  while (!facts.Repeats && arguments.size() > facts.Parameters.size() &&
         arguments.back() == nullptr) {
    arguments = arguments.first(arguments.size() - 1);
  }
  const bool too_many = !facts.Repeats && arguments.size() > facts.Parameters.size();
  if (too_many || arguments.size() < static_cast<std::size_t>(facts.Required)) {
    const std::size_t wanted =
        too_many ? facts.Parameters.size() : static_cast<std::size_t>(facts.Required);
    Error(at, std::string(facts.Name) + " takes " + (too_many ? "at most " : "at least ") +
                  std::to_string(wanted) + " argument(s)");
    return values;
  }
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (facts.Parameters.empty()) break;
    const MemberParameter& parameter = facts.Parameters[std::min(i, facts.Parameters.size() - 1)];
    const ValueKind kind = KindOf(parameter.Kind);
    if (arguments[i] == nullptr) {
      // A menu title without a name leaves an empty place.
      if (facts.Repeats && Tolerate(Tolerance::EmptyMenuTitle, at)) continue;
      const Expr empty = kind == ValueKind::Text ? Text({}, at) : Whole(0, at);
      values.push_back({As(empty, kind == ValueKind::Variant ? ValueKind::Whole : kind)});
      continue;
    }
    if (parameter.Reference) {
      const Expr location = Location(arguments[i]);
      if (location != nullptr) values.push_back({location, PassBy::Reference});
      continue;
    }
    const Expr value = Value(arguments[i]);
    if (kind != ValueKind::Variant) {
      values.push_back({As(value, kind)});
      continue;
    }
    const Expr object = ObjectOf(value);
    if (object == nullptr && (value->Kind.IsArray() || value->Gives() == ValueKind::Record)) {
      Error(value->At, "This cannot be handed over here");
      continue;
    }
    values.push_back({object != nullptr ? object : value});
  }
  return values;
}

std::optional<Checker::MemberUse> Checker::Implied(std::string_view name, SourcePlace at) {
  if (!around_.empty() && around_.back().Create) {
    MemberUse use = MemberOfValue(around_.back().Object, name, at);
    if (!use.LacksMember && !use.Failed) return use;
  }
  if (frame_->This) {
    MemberUse use = MemberOfRecord(This(at), name, at);
    if (!use.LacksMember) return use;
  }
  return std::nullopt;
}

}  // namespace tarnwick::basic
