// Assignments, hooks and calls as statements.
#include <algorithm>

#include "basic/check/checker_core.h"

namespace tarnwick::basic {
namespace {

constexpr std::string_view kFrameSub = "TrnspAbrFrm";

/// The digits behind "TrnspAbrFrm" in front of `rest`; "" when the name is not of that form.
std::string_view FrameNumber(std::string_view name, std::string_view rest) {
  if (!StartsWithFolded(name, kFrameSub) || name.size() <= kFrameSub.size() + rest.size())
    return {};
  if (!EqualsFolded(name.substr(name.size() - rest.size()), rest)) return {};
  const std::string_view digits =
      name.substr(kFrameSub.size(), name.size() - kFrameSub.size() - rest.size());
  const bool all = digits.find_first_not_of("0123456789") == std::string_view::npos;
  return all ? digits : std::string_view();
}

bool IsCall(const Expression& value) {
  return value.Is<ProcedureCall>() || value.Is<PointerCall>() || value.Is<DllCall>() ||
         value.Is<BuiltInCall>() || value.Is<MethodCall>();
}

}  // namespace

/// What is left of "Form.ShowHint" and "Form.ShowModal" where "Form.Show" was replaced.
bool Checker::FrameRest(std::string_view name, bool assigned, SourcePlace at, Statements& out) {
  if (!tolerant_) return false;
  if (assigned) {
    return !FrameNumber(name, "int").empty() && Tolerate(Tolerance::FrameHintRest, at);
  }
  const std::string_view number = FrameNumber(name, "odal");
  if (number.empty()) return false;
  const auto frame = FindProcedure(name.substr(0, kFrameSub.size() + number.size()));
  if (!frame || !Tolerate(Tolerance::FrameModalRest, at)) return false;
  Add(out, at, Evaluate{CallProcedure(*frame, {}, at, nullptr)});
  return true;
}

const tree::Node* Checker::Settled(const tree::Node* node, Statements& out) {
  if (const auto* access = node->As<tree::MemberAccess>()) {
    if (access->Target == nullptr) return node;
    return tree::MakeNode(program_.Memory, node->At, node->Height,
                          tree::MemberAccess{Settled(access->Target, out), access->Name});
  }
  const auto* apply = node->As<tree::Apply>();
  if (apply == nullptr) return node;
  std::vector<const tree::Node*> arguments(apply->Arguments.begin(), apply->Arguments.end());
  for (const tree::Node*& argument : arguments) {
    if (argument == nullptr || argument->Is<tree::WholeNumber>()) continue;
    const Expr value = Value(argument);
    if (IsFaulty(value) || value->Kind.IsArray() || value->Gives() == ValueKind::Record) continue;
    const Expr kept = Temporary(ValueTypeOf(value->Kind), argument->At);
    Add(out, argument->At, Assign{kept, value});
    argument = tree::MakeNode(program_.Memory, argument->At, 1, tree::Checked{kept});
  }
  return tree::MakeNode(program_.Memory, node->At, node->Height,
                        tree::Apply{Settled(apply->Target, out), program_.Memory.List(arguments)});
}

void Checker::CheckAssignment(const tree::Assignment& line, SourcePlace at, Statements& out) {
  const tree::Node* value = line.Value;
  const tree::Node* target = line.Op == tree::Operator::Equal || line.Value == nullptr
                                 ? line.Target
                                 : Settled(line.Target, out);
  const auto* apply = target->As<tree::Apply>();
  const tree::NodeList indexes = apply == nullptr ? tree::NodeList() : apply->Arguments;
  const tree::Node* base = apply == nullptr ? target : apply->Target;
  const auto* access = base->As<tree::MemberAccess>();
  const auto* name = base->As<tree::Name>();
  if (access != nullptr && access->Target == nullptr && around_.empty() && !frame_->This &&
      EqualsFolded(access->Name, "PopupMenu") && Tolerate(Tolerance::LostPopup, at)) {
    return;
  }
  if (value == nullptr) {
    Tolerate(Tolerance::EmptyValue, at);
    return;
  }
  if (line.Op != tree::Operator::Equal) {
    const int height = std::max(target->Height, value->Height) + 1;
    value = tree::MakeNode(program_.Memory, at, height, tree::Binary{line.Op, target, value});
  }
  if (access != nullptr) {
    const MemberUse use = MemberOf(*access, base->At);
    return AssignMember(use, indexes, value, access->Name, at, out);
  }
  if (name == nullptr) {
    const bool character = target->Is<tree::Subscript>();
    Error(at,
          character ? "A single character of a text cannot be set"
                    : "Nothing can be assigned to this",
          character ? "Use REPLACE$" : "");
    return;
  }
  if (apply == nullptr && FrameRest(name->Text(), true, at, out)) return;
  const Symbol* const local = FindLocal(name->Id);
  const bool create = !around_.empty() && around_.back().Create;
  if (local == nullptr || create) {
    const std::optional<MemberUse> implied = Implied(name->Text(), at);
    const bool known = local != nullptr || globals_.Find(name->Id) != nullptr;
    if (implied && (create || implied->Field != nullptr || !known)) {
      return AssignMember(*implied, indexes, value, name->Text(), at, out);
    }
  }
  const Symbol* symbol = Find(*name);
  const bool own_result = IsOwnResult(local, name->Id);
  if (symbol != nullptr && !own_result && symbol->Kind != Symbol::Sort::Global &&
      symbol->Kind != Symbol::Sort::Local) {
    Error(base->At, '"' + std::string(name->Text()) + "\" is not a variable");
    return;
  }
  Expr variable = nullptr;
  if (own_result) {
    variable = Make(Current().Result, at, LocalSlot{Current().ResultSlot});
  } else if (symbol != nullptr) {
    variable = SlotOf(*symbol, base->At);
  } else if (apply != nullptr) {
    Error(base->At, '"' + std::string(name->Text()) + "\" is not declared",
          SimilarTo(name->Text()));
    return;
  } else {
    // The value first: its names are looked up before this one exists. `n = n + 1` makes it.
    const Expr checked = Value(value);
    const Symbol* const made = Find(*name);
    return Store(made != nullptr ? SlotOf(*made, base->At) : Undeclared(name->Text(), base->At),
                 checked, at, out);
  }
  if (apply != nullptr) variable = Element(variable, indexes, target->At);
  Store(variable, Value(value), at, out);
}

void Checker::Store(Expr target, Expr value, SourcePlace at, Statements& out) {
  if (!target->IsLocation()) {
    // What stands for a faulty target has been reported.
    if (!IsFaulty(target)) {
      Error(at, "Nothing can be assigned to this");
    }
    return;
  }
  if (target->Kind.IsArray()) {
    Error(target->At, "An element of the array must be named in brackets");
    return;
  }
  const Expr fitted = Fit(value, target->Kind, false);
  const bool copies = target->Gives() == ValueKind::Object && target->Kind.Detail != kAnyClass &&
                      !fitted->Is<NothingConstant>() && classes_.CopiesValues(target->Kind.Class());
  if (copies) {
    Add(out, at, CopyObject{target, fitted});
  } else {
    Add(out, at, Assign{target, fitted});
  }
}

void Checker::AssignMember(const MemberUse& use, tree::NodeList indexes, const tree::Node* value,
                           std::string_view name, SourcePlace at, Statements& out) {
  if (use.Failed) return;
  if (use.Setter && frame_->Id != *use.Setter) {
    const std::vector<const tree::Node*> argument = {value};
    Add(out, at, Evaluate{CallProcedure(*use.Setter, argument, at, use.Record)});
    return;
  }
  if (use.Field != nullptr) {
    const Expr target = indexes.empty() ? use.Field : Element(use.Field, indexes, at);
    const auto* routine = value->As<tree::Name>();
    const std::optional<ProcedureId> id =
        routine == nullptr || target->Kind.Kind != Storage::Integer || Find(*routine) == nullptr
            ? std::nullopt
            : FindProcedure(routine->Id);
    // The field of an event of one's own takes the number of a SUB.
    const bool hook = id && program_.At(*id).Kind == ProcedureKind::Sub;
    return Store(target, hook ? Whole(static_cast<std::int64_t>(*id), at) : Value(value), at, out);
  }
  if (use.Routine) {
    Error(at, '"' + std::string(name) + "\" is a SUB or FUNCTION, not a variable");
    return;
  }
  if (use.LacksMember) {
    const bool event = StartsWithFolded(name, "On");
    if (event && Tolerate(Tolerance::EventWithoutSub, at)) return;
    return LacksMember(use, name, at);
  }
  const MemberFacts& facts = *use.Facts;
  if (facts.Level == SupportLevel::None) {
    Note(at, WrittenAs(use) + std::string(kNotSupported) + ": the line is passed over",
         std::string(facts.Note));
    return;
  }
  switch (facts.Kind) {
    case MemberKind::Event:
      return Hook(use, value, at, out);
    case MemberKind::Method: {
      const std::vector<const tree::Node*> argument = {value};
      Add(out, at, Evaluate{CallMethod(use, argument, at)});
      return;
    }
    default:
      break;
  }
  if (!facts.Writable) {
    Error(at, WrittenAs(use) + " can be read, not set");
    return;
  }
  SetPropertyOf(use, indexes, value, at, out);
}

void Checker::SetPropertyOf(const MemberUse& use, tree::NodeList indexes, const tree::Node* value,
                            SourcePlace at, Statements& out) {
  const MemberFacts& facts = *use.Facts;
  if (indexes.size() != facts.Parameters.size()) {
    Error(at, std::string(facts.Name) + " takes " + std::to_string(facts.Parameters.size()) +
                  " index(es)");
    return;
  }
  if (UnboundPicture(facts, value)) return;
  std::vector<Expr> places;
  for (const tree::Node* index : indexes) {
    places.push_back(As(Value(index), KindOf(facts.Parameters[places.size()].Kind)));
  }
  const ValueKind kind = KindOf(facts.Value);
  Expr checked = Value(value);
  if (kind != ValueKind::Variant && kind != ValueKind::None) checked = As(checked, kind);
  Add(out, at, SetProperty{use.Object, facts.Id, List(places), checked});
}

bool Checker::UnboundPicture(const MemberFacts& facts, const tree::Node* value) {
  const auto* name = value->As<tree::Name>();
  if (name == nullptr || Find(*name) != nullptr) return false;
  const bool handle =
      EqualsFolded(facts.Name, "BmpHandle") || EqualsFolded(facts.Name, "IcoHandle");
  return handle && Tolerate(Tolerance::UnboundPicture, value->At);
}

void Checker::Hook(const MemberUse& use, const tree::Node* value, SourcePlace at, Statements& out) {
  if (use.Record != nullptr && types_[use.Record->Kind.Detail].Events.contains(use.Facts->Name)) {
    Note(at, "The type of this object handles the event itself: the line has no effect");
    return;
  }
  HookEvent hook{use.Object, use.Facts->Id, kNoProcedure, nullptr};
  const auto* number = value->As<tree::WholeNumber>();
  if (number != nullptr && number->Value == 0) return Add(out, at, hook);
  if (const auto* name = value->As<tree::Name>()) {
    std::optional<ProcedureId> id = FindProcedure(name->Id);
    if (frame_->This) {
      const auto& members = types_[static_cast<std::size_t>(*frame_->This)].Members;
      const auto member = members.find(name->Text());
      if (member != members.end()) {
        id = member->second;
        hook.Bound = This(at);
      }
    }
    if (id) {
      hook.Procedure = *id;
      return Add(out, at, hook);
    }
    if (Tolerate(Tolerance::EventWithoutSub, at)) return;
    Error(value->At, "There is no SUB \"" + std::string(name->Text()) + '"',
          SimilarTo(name->Text()));
    return;
  }
  if (const auto* access = value->As<tree::MemberAccess>()) {
    const MemberUse routine = MemberOf(*access, value->At);
    if (routine.Routine) {
      hook.Procedure = *routine.Routine;
      hook.Bound = routine.Record;
      return Add(out, at, hook);
    }
    if (routine.Failed) return;
  }
  Error(value->At, "The name of a SUB is expected here");
}

/// INC, DEC, ++ and --; a null amount is 1.
void Checker::StepOf(const tree::Node* target, const tree::Node* amount, bool up, SourcePlace at,
                     Statements& out) {
  if (amount == nullptr) {
    amount = tree::MakeNode(program_.Memory, at, 1, tree::WholeNumber{1});
  }
  const tree::Operator op = up ? tree::Operator::Add : tree::Operator::Subtract;
  CheckAssignment({target, amount, op}, at, out);
}

void Checker::CheckCall(const tree::CallLine& line, SourcePlace at, Statements& out) {
  const tree::Node* target = line.Target;
  Expr call = nullptr;
  if (const auto* access = target->As<tree::MemberAccess>()) {
    call = UseValue(MemberOf(*access, target->At), line.Arguments, !line.Arguments.empty(),
                    access->Name, at, true);
    if (call == nullptr) return;
  } else if (const auto* name = target->As<tree::Name>()) {
    const Symbol* symbol = Find(*name);
    if (symbol == nullptr) {
      if (line.Arguments.empty() && FrameRest(name->Text(), false, at, out)) return;
      const auto rows = FindFunctions(name->Text());
      if (!rows.empty() && rows[0].Form == FunctionForm::Intrinsic &&
          IntrinsicStatement(rows[0].Id, line.Arguments, at, out)) {
        return;
      }
    }
    const bool create = !around_.empty() && around_.back().Create;
    if (symbol == nullptr || create) {
      const std::optional<MemberUse> implied = Implied(name->Text(), at);
      if (implied) {
        call = UseValue(*implied, line.Arguments, !line.Arguments.empty(), name->Text(), at, true);
        if (call == nullptr) return;
      }
    }
    if (call == nullptr) call = CallOf(*name, line.Arguments, at, true);
    if (call == nullptr && symbol == nullptr) {
      Error(target->At, "There is no SUB \"" + std::string(name->Text()) + '"',
            SimilarTo(name->Text()));
      return;
    }
  }
  if (call != nullptr && IsCall(*call)) return Add(out, at, Evaluate{call});
  if (call != nullptr && IsFaulty(call)) return;
  Error(target->At, "This is no statement: a call or an assignment is expected");
}

}  // namespace tarnwick::basic
