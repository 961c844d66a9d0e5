// Statements that hold others, and jumps.
#include <algorithm>

#include "basic/check/checker_core.h"

namespace tarnwick::basic {

void Checker::CheckIf(const tree::IfBlock& block, SourcePlace at, Statements& out) {
  std::vector<IfArm> arms;
  for (const tree::Arm& arm : block.Arms) {
    const Expr condition = arm.Condition == nullptr ? nullptr : Condition(arm.Condition);
    arms.push_back({condition, CheckBlock(arm.Body)});
  }
  Add(out, at, If{List(arms)});
}

void Checker::CheckSelect(const tree::SelectBlock& block, SourcePlace at, Statements& out) {
  Expr selector = Value(block.Selector);
  std::vector<std::vector<CaseTest>> tests(block.Cases.size());
  bool whole = selector->Gives() == ValueKind::Whole;
  const auto check = [&](const tree::Node* node) {
    const Expr value = node == nullptr ? nullptr : Value(node);
    whole = whole && (value == nullptr || value->Gives() == ValueKind::Whole);
    return value;
  };
  for (std::size_t i = 0; i < block.Cases.size(); ++i) {
    for (const tree::CaseValue& value : block.Cases[i].Values) {
      static constexpr BinaryOperator kOf[] = {
          BinaryOperator::Equal,     BinaryOperator::NotEqual, BinaryOperator::Less,
          BinaryOperator::LessEqual, BinaryOperator::Greater,  BinaryOperator::GreaterEqual};
      const auto op =
          static_cast<std::size_t>(value.Op) - static_cast<std::size_t>(tree::Operator::Equal);
      const Expr low = check(value.Value);
      tests[i].push_back({kOf[op], low, check(value.High)});
    }
  }
  // All values are compared as one kind.
  ValueKind kind = selector->Gives();
  if (kind == ValueKind::Whole && !whole) kind = ValueKind::Real;
  if (kind == ValueKind::Object || kind == ValueKind::Record) kind = ValueKind::Text;
  selector = As(selector, kind);
  std::vector<CaseArm> arms;
  for (std::size_t i = 0; i < block.Cases.size(); ++i) {
    for (CaseTest& test : tests[i]) {
      if ((test.Value->Gives() == ValueKind::Text) != (kind == ValueKind::Text) &&
          kind != ValueKind::Variant && kind != ValueKind::None && !IsFaulty(test.Value)) {
        Error(test.Value->At, "A text is compared with a number",
              "Use STR$ for the number or VAL for the text");
      }
      test.Value = As(test.Value, kind);
      if (test.High != nullptr) test.High = As(test.High, kind);
    }
    arms.push_back({List(tests[i]), CheckBlock(block.Cases[i].Body)});
  }
  Add(out, at, SelectCase{selector, List(arms)});
}

void Checker::CheckFor(const tree::ForBlock& block, SourcePlace at, Statements& out) {
  const Expr variable = Location(block.Variable);
  const bool slot = variable != nullptr && !variable->Kind.IsArray() &&
                    (variable->Is<GlobalSlot>() || variable->Is<LocalSlot>());
  const ValueKind kind = slot ? variable->Gives() : ValueKind::None;
  if (variable != nullptr && kind != ValueKind::Whole && kind != ValueKind::Real) {
    Error(block.Variable->At, "The variable of FOR must be a plain variable that holds a number");
  }
  const ValueKind used = kind == ValueKind::Whole ? kind : ValueKind::Real;
  const Expr from = As(Value(block.From), used);
  const Expr to = As(Value(block.To), used);
  const Expr step = block.Step == nullptr ? nullptr : As(Value(block.Step), used);
  frame_->Loops.push_back(tree::ExitKind::For);
  const Block body = CheckBlock(block.Body);
  frame_->Loops.pop_back();
  if (variable != nullptr) Add(out, at, ForLoop{variable, from, to, step, body});
}

void Checker::CheckLoop(const tree::LoopBlock& block, SourcePlace at, Statements& out) {
  const bool is_while = block.Kind == tree::LoopBlock::Word::While;
  Loop loop{};
  loop.UntilBefore = block.UntilBefore;
  loop.UntilAfter = block.UntilAfter;
  if (block.Before != nullptr) loop.Before = Condition(block.Before);
  frame_->Loops.push_back(is_while ? tree::ExitKind::While : tree::ExitKind::Do);
  loop.Body = CheckBlock(block.Body);
  frame_->Loops.pop_back();
  if (block.After != nullptr) loop.After = Condition(block.After);
  Add(out, at, loop);
}

void Checker::CheckExit(const tree::ExitLine& line, SourcePlace at, Statements& out) {
  if (line.Kind == tree::ExitKind::Sub || line.Kind == tree::ExitKind::Function) {
    if (frame_->Id == kMainProcedure) {
      Error(at, "There is no SUB or FUNCTION to leave here");
    } else {
      Add(out, at, ExitProcedure{});
    }
    return;
  }
  const auto& loops = frame_->Loops;
  const auto loop = std::find(loops.rbegin(), loops.rend(), line.Kind);
  if (loop == loops.rend()) {
    Error(at, "There is no loop of this kind to leave here");
    return;
  }
  Add(out, at, ExitLoop{static_cast<std::uint32_t>(loop - loops.rbegin())});
}

void Checker::CheckWith(const tree::WithBlock& block, SourcePlace at, Statements& out) {
  Expr object = OwnerOf(block.Object, block.Object->At);
  if (object == nullptr) return;
  const bool usable = !object->Kind.IsArray() && (object->Gives() == ValueKind::Object ||
                                                  object->Gives() == ValueKind::Record);
  if (!usable) {
    Error(object->At, "WITH needs an object");
    return;
  }
  const bool fixed =
      object->Is<GlobalSlot>() || object->Is<LocalSlot>() || object->Is<BuiltInObject>();
  if (!fixed && object->Gives() == ValueKind::Object) {
    // Worked out once, whatever the statements inside change.
    const Expr kept = Temporary(object->Kind, at);
    Add(out, at, Assign{kept, object});
    object = kept;
  }
  around_.push_back({object, false});
  const Block body = CheckBlock(block.Body);
  around_.pop_back();
  out.insert(out.end(), body.begin(), body.end());
}

void Checker::CheckCreate(const tree::CreateBlock& block, SourcePlace at, Statements& out) {
  const Symbol* symbol = frame_->Id == kMainProcedure ? Find(IdOf(block.Object.Name))
                                                      : DeclareLocal(block.Object, false);
  const bool variable = symbol != nullptr && (symbol->Kind == Symbol::Sort::Global ||
                                              symbol->Kind == Symbol::Sort::Local);
  if (!variable) return;
  const Expr slot = SlotOf(*symbol, block.Object.At);
  const Expr object = ObjectOf(slot);
  if (object == nullptr) {
    Error(block.Object.At, "CREATE makes objects: name a class behind AS");
    return;
  }
  MakeValue(slot, block.Object, false, false, out);
  Expr outer = nullptr;
  for (const Surrounding& around : around_) {
    if (around.Create) outer = ObjectOf(around.Object);
  }
  const MemberFacts* add_items = nullptr;
  if (outer != nullptr) {
    const MemberFacts* parent = classes_.FindMember(object->Kind.Class(), "Parent");
    if (parent != nullptr && classes_.IsParent(outer->Kind.Class())) {
      Add(out, at, SetProperty{object, parent->Id, {}, outer});
    } else if (parent == nullptr) {
      add_items = classes_.FindMember(outer->Kind.Class(), "AddItems");
    }
  }
  around_.push_back({slot, true});
  const Block body = CheckBlock(block.Body);
  around_.pop_back();
  out.insert(out.end(), body.begin(), body.end());
  // A menu item is added to the menu or item around it.
  if (add_items != nullptr && add_items->Kind == MemberKind::Method) {
    const std::vector<Argument> items = {{object, PassBy::Value}};
    Add(out, at, Evaluate{Make(kNoType, at, MethodCall{outer, add_items->Id, List(items)})});
  }
}

LabelId Checker::LabelOf(std::string_view name, SourcePlace at) {
  const auto found = frame_->Labels.find(name);
  if (found != frame_->Labels.end()) return found->second;
  SimilarName similar(name);
  for (const auto& [known, id] : frame_->Labels) similar.Offer(known);
  Error(at, "There is no label \"" + std::string(name) + "\" in this part of the program",
        similar.Question());
  return LabelId{0};
}

void Checker::CheckLabel(const tree::Label& line, SourcePlace at, Statements& out) {
  const auto found = frame_->Labels.find(line.Name);
  if (found != frame_->Labels.end()) return Add(out, at, LabelMark{found->second});
  // "Name:" is a call where the name is a SUB.
  const Expr call = CallOf({line.Name, IdOf(line.Name)}, {}, at, true);
  if (call != nullptr) Add(out, at, Evaluate{call});
}

}  // namespace tarnwick::basic
