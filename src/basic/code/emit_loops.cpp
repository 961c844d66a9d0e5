// Loops, branches and jumps.
#include "basic/code/procedure_emitter.h"

namespace tarnwick::basic {

void ProcedureEmitter::Make(const If& node) {
  CodeLabel done;
  for (std::size_t i = 0; i < node.Arms.size(); ++i) {
    const IfArm& arm = node.Arms[i];
    CodeLabel next;
    if (arm.Condition != nullptr) {
      code_.At(arm.Condition->At);
      Branch(*arm.Condition, false, next);
    }
    Make(arm.Body);
    if (i + 1 < node.Arms.size()) code_.Jump(Op::JUMP, done);
    code_.Place(next);
  }
  code_.Place(done);
}

void ProcedureEmitter::TestCase(const CaseTest& test, const Expression& selector,
                                const Operand& held, CodeLabel& hit) {
  const ValueKind kind = selector.Gives();
  const auto compare = [&](BinaryOperator op, const Expression& value, bool when,
                           CodeLabel& target) {
    const Operand other = Read(value, Until::Now);
    const Operand outcome = Temporary(false);
    const bool swapped = op == BinaryOperator::Greater || op == BinaryOperator::GreaterEqual;
    const auto first = swapped ? other.Register : held.Register;
    const auto second = swapped ? held.Register : other.Register;
    const auto pick = [&](Op whole, Op real, Op text) {
      return kind == ValueKind::Real ? real : kind == ValueKind::Text ? text : whole;
    };
    if (kind == ValueKind::Variant) {
      code_.Add(Op::COMPARE_BOX, outcome.Register, held.Register, other.Register);
      code_.Add(Op::WORD, static_cast<std::size_t>(op));
    } else if (op == BinaryOperator::Equal) {
      code_.Add(pick(Op::EQ_I, Op::EQ_D, Op::EQ_T), outcome.Register, first, second);
    } else if (op == BinaryOperator::NotEqual) {
      code_.Add(pick(Op::NE_I, Op::NE_D, Op::NE_T), outcome.Register, first, second);
    } else if (op == BinaryOperator::Less || op == BinaryOperator::Greater) {
      code_.Add(pick(Op::LT_I, Op::LT_D, Op::LT_T), outcome.Register, first, second);
    } else {
      code_.Add(pick(Op::LE_I, Op::LE_D, Op::LE_T), outcome.Register, first, second);
    }
    code_.Jump(when ? Op::JUMP_IF_I : Op::JUMP_UNLESS_I, target, outcome.Register);
    Free(outcome);
    Free(other);
  };
  if (test.High == nullptr) {
    compare(test.Operator, *test.Value, true, hit);
    return;
  }
  CodeLabel miss;
  compare(BinaryOperator::GreaterEqual, *test.Value, false, miss);
  compare(BinaryOperator::LessEqual, *test.High, true, hit);
  code_.Place(miss);
}

void ProcedureEmitter::Make(const SelectCase& node) {
  // The selector's value is kept: the arms may change the variable it came from.
  const Operand held = Temporary(IsCounted(node.Selector->Kind));
  Into(*node.Selector, held.Register);
  CodeLabel done;
  for (const CaseArm& arm : node.Arms) {
    CodeLabel hit;
    CodeLabel next;
    for (const CaseTest& test : arm.Tests) {
      code_.At(test.Value->At);
      TestCase(test, *node.Selector, held, hit);
    }
    if (!arm.Tests.empty()) code_.Jump(Op::JUMP, next);
    code_.Place(hit);
    Make(arm.Body);
    code_.Jump(Op::JUMP, done);
    code_.Place(next);
  }
  code_.Place(done);
  Free(held);
}

void ProcedureEmitter::Make(const ForLoop& node) {
  if (const auto direct = DirectRegister(*node.Variable)) {
    ForInRegister(node, *direct);
  } else {
    ForElsewhere(node);
  }
}

void ProcedureEmitter::ForInRegister(const ForLoop& node, std::uint16_t variable) {
  const Type& type = node.Variable->Kind;
  const bool real = node.Variable->Gives() == ValueKind::Real;
  StoreInto(variable, type, *node.From);
  const Operand limit = Read(*node.To, Until::Later);
  const Operand step = node.Step != nullptr ? Read(*node.Step, Until::Later)
                       : real               ? ConstantOperand(NumberSlot(1))
                                            : Number(1);
  CodeLabel top;
  CodeLabel end;
  const SourcePlace place = code_.Current();
  code_.Jump(real ? Op::FOR_D : Op::FOR_I, end, variable, limit.Register, step.Register);
  code_.Place(top);
  const bool narrow = type.Kind == Storage::Byte || type.Kind == Storage::Word ||
                      type.Kind == Storage::DWord || type.Kind == Storage::Short ||
                      type.Kind == Storage::Single;
  if (narrow) Fit(type.Kind, 0, variable, variable);
  loop_ends_.push_back(&end);
  Make(node.Body);
  loop_ends_.pop_back();
  code_.At(place);
  const Op next = real ? Op::NEXT_D : type.Kind == Storage::Integer ? Op::NEXT_INTEGER : Op::NEXT_I;
  code_.Jump(next, top, variable, limit.Register, step.Register);
  code_.Place(end);
  Free(step);
  Free(limit);
}

void ProcedureEmitter::ForElsewhere(const ForLoop& node) {
  const Type& type = node.Variable->Kind;
  const bool real = node.Variable->Gives() == ValueKind::Real;
  const auto copy_back = [&](const Operand& value) {
    Location variable = Find(*node.Variable, Until::Now);
    const Operand fitted = Temporary(false);
    Fit(type.Kind, type.Detail, fitted.Register, value.Register);
    WriteLocation(variable, type, fitted);
    Free(fitted);
    Release(variable);
  };
  const Operand value = Temporary(false);
  StoreInto(value.Register, type, *node.From);
  copy_back(value);
  const Operand limit = Read(*node.To, Until::Later);
  const Operand step = node.Step != nullptr ? Read(*node.Step, Until::Later)
                       : real               ? ConstantOperand(NumberSlot(1))
                                            : Number(1);
  CodeLabel top;
  CodeLabel again;
  CodeLabel end;
  const SourcePlace place = code_.Current();
  code_.Jump(real ? Op::FOR_D : Op::FOR_I, end, value.Register, limit.Register, step.Register);
  code_.Place(top);
  loop_ends_.push_back(&end);
  Make(node.Body);
  loop_ends_.pop_back();
  code_.At(place);
  Location variable = Find(*node.Variable, Until::Now);
  ReadLocation(variable, type, value.Register);
  Release(variable);
  code_.Jump(real ? Op::NEXT_D : Op::NEXT_I, again, value.Register, limit.Register, step.Register);
  copy_back(value);
  code_.Jump(Op::JUMP, end);
  code_.Place(again);
  copy_back(value);
  code_.Jump(Op::JUMP, top);
  code_.Place(end);
  Free(step);
  Free(limit);
  Free(value);
}

void ProcedureEmitter::Make(const Loop& node) {
  CodeLabel top;
  CodeLabel test;
  CodeLabel end;
  const SourcePlace place = code_.Current();
  // A condition in front is tested behind the body: one jump a turn.
  if (node.Before != nullptr) code_.Jump(Op::JUMP, test);
  code_.Place(top);
  loop_ends_.push_back(&end);
  Make(node.Body);
  loop_ends_.pop_back();
  code_.At(place);
  if (node.After != nullptr) code_.At(node.After->At);
  if (node.Before != nullptr) {
    if (node.After != nullptr) Branch(*node.After, node.UntilAfter, end);
    code_.At(node.Before->At);
    code_.Place(test);
    Branch(*node.Before, !node.UntilBefore, top);
  } else if (node.After != nullptr) {
    Branch(*node.After, !node.UntilAfter, top);
  } else {
    code_.Jump(Op::JUMP, top);
  }
  code_.Place(end);
}

void ProcedureEmitter::Make(const ExitLoop& node) {
  if (node.Levels >= loop_ends_.size()) return;
  code_.Jump(Op::JUMP, *loop_ends_[loop_ends_.size() - 1 - node.Levels]);
}

void ProcedureEmitter::Make(const LabelMark& node) {
  code_.Place(labels_[static_cast<std::size_t>(node.Label)]);
}

void ProcedureEmitter::Make(const Goto& node) {
  code_.Jump(Op::JUMP, labels_[static_cast<std::size_t>(node.Label)]);
}

void ProcedureEmitter::Make(const Gosub& node) {
  code_.Jump(Op::GOSUB, labels_[static_cast<std::size_t>(node.Label)]);
}

void ProcedureEmitter::Make(const OnJump& node) {
  const Operand selector = Temporary(false);
  Into(*node.Selector, selector.Register);
  CodeLabel done;
  for (std::size_t i = 0; i < node.Labels.size(); ++i) {
    CodeLabel next;
    const Operand number = Number(static_cast<std::int64_t>(i) + 1);
    code_.Jump(Op::JUMP_NE_I, next, selector.Register, number.Register);
    Free(number);
    CodeLabel& label = labels_[static_cast<std::size_t>(node.Labels[i])];
    code_.Jump(node.Returns ? Op::GOSUB : Op::JUMP, label);
    if (node.Returns) code_.Jump(Op::JUMP, done);
    code_.Place(next);
  }
  code_.Place(done);
  Free(selector);
}

void ProcedureEmitter::Make(const Return& /*node*/) {
  code_.Add(Op::RETURN_GOSUB);
}

void ProcedureEmitter::Make(const ExitProcedure& /*node*/) {
  code_.Jump(Op::JUMP, end_);
}

void ProcedureEmitter::Make(const EndProgram& /*node*/) {
  code_.Add(Op::END);
}

}  // namespace tarnwick::basic
