// The order of the check, bodies, and the statements of one line.
#include "basic/check/checker.h"

#include "basic/check/checker_core.h"

namespace tarnwick::basic {

Program Check(tree::SyntaxTree tree, const ClassCatalog& classes, bool strict, Messages& messages) {
  return Checker(std::move(tree), classes, strict, messages).Run();
}

Program Checker::Run() {
  program_.Procedures.reserve(tree_.Routines + 1);
  Procedure main;
  main.Kind = ProcedureKind::Main;
  program_.Procedures.push_back(std::move(main));
  if (tree_.ApplicationTypeGiven) {
    program_.Application = tree_.Console ? ApplicationKind::Console : ApplicationKind::Gui;
  }
  if (tree_.HasTypes) {
    for (const tree::Piece& piece : tree_.Pieces) CollectTypes(piece.Statements);
  }
  for (const tree::Piece& piece : tree_.Pieces) {
    if (piece.HasHeads) CollectHeads(piece.Statements, false);
  }
  for (std::size_t i = 0; i < types_.size(); ++i) FillType(static_cast<RecordId>(i));
  for (std::size_t i = 0; i < types_.size(); ++i) CollectMembers(static_cast<RecordId>(i));
  MarkReferences();
  default_storage_ = kUndeclaredStorage;
  for (const tree::Piece& piece : tree_.Pieces) CollectLabels(piece.Statements);
  std::size_t count = 0;
  for (const tree::Piece& piece : tree_.Pieces) count += piece.Statements.size();
  Statements body;
  body.reserve(count);
  for (tree::Piece& piece : tree_.Pieces) {
    CheckAll(piece.Statements, body);
    piece = {};
  }
  program_.Procedures[0].Body = List(body);
  program_.Procedures[0].LabelCount = static_cast<std::uint32_t>(main_.Labels.size());
  return std::move(program_);
}

void Checker::CollectLabels(tree::StatementList statements) {
  if (!tree_.HasLabels) return;
  for (const tree::StatementNode* statement : statements) {
    if (const auto* label = statement->As<tree::Label>()) {
      if (IsCallable(label->Name)) continue;
      const auto id = static_cast<LabelId>(frame_->Labels.size());
      if (!frame_->Labels.emplace(Keep(label->Name), id).second) {
        Error(statement->At, "The label \"" + std::string(label->Name) + "\" stands here twice");
      }
    } else if (const auto* block = statement->As<tree::IfBlock>()) {
      for (const tree::Arm& arm : block->Arms) CollectLabels(arm.Body);
    } else if (const auto* select = statement->As<tree::SelectBlock>()) {
      for (const tree::CaseBlock& arm : select->Cases) CollectLabels(arm.Body);
    } else if (const auto* count = statement->As<tree::ForBlock>()) {
      CollectLabels(count->Body);
    } else if (const auto* loop = statement->As<tree::LoopBlock>()) {
      CollectLabels(loop->Body);
    } else if (const auto* with = statement->As<tree::WithBlock>()) {
      CollectLabels(with->Body);
    }
  }
}

Block Checker::CheckBlock(tree::StatementList statements) {
  Statements out;
  CheckAll(statements, out);
  return List(out);
}

void Checker::CheckAll(tree::StatementList statements, Statements& out) {
  for (const tree::StatementNode* statement : statements) {
    if (messages_.Full()) break;
    CheckStatement(*statement, out);
  }
}

/// Hands each sort of statement to its function.
struct Checker::Dispatch {
  Checker& C;
  SourcePlace At;
  Statements& Out;

  void operator()(const tree::Declaration& n) const { C.Declare(n, At, Out); }
  void operator()(const tree::ConstDeclaration& n) const { C.CheckConst(n, At, Out); }
  void operator()(const tree::Assignment& n) const { C.CheckAssignment(n, At, Out); }
  void operator()(const tree::Step& n) const { C.StepOf(n.Target, nullptr, n.Up, At, Out); }
  void operator()(const tree::CallLine& n) const { C.CheckCall(n, At, Out); }
  void operator()(const tree::IfBlock& n) const { C.CheckIf(n, At, Out); }
  void operator()(const tree::SelectBlock& n) const { C.CheckSelect(n, At, Out); }
  void operator()(const tree::ForBlock& n) const { C.CheckFor(n, At, Out); }
  void operator()(const tree::LoopBlock& n) const { C.CheckLoop(n, At, Out); }
  void operator()(const tree::ExitLine& n) const { C.CheckExit(n, At, Out); }
  void operator()(const tree::Label& n) const { C.CheckLabel(n, At, Out); }
  void operator()(const tree::Jump& n) const {
    const LabelId label = C.LabelOf(n.Label, At);
    if (n.Returns) {
      C.Add(Out, At, Gosub{label});
    } else {
      C.Add(Out, At, Goto{label});
    }
  }
  void operator()(const tree::OnJumpLine& n) const {
    const Expr selector = C.WholeValue(n.Selector);
    std::vector<LabelId> labels;
    for (const std::string_view name : n.Labels) labels.push_back(C.LabelOf(name, At));
    C.Add(Out, At, OnJump{selector, C.List(labels), n.Returns});
  }
  void operator()(const tree::ReturnLine& /*n*/) const { C.Add(Out, At, Return{}); }
  void operator()(const tree::EndLine& /*n*/) const { C.Add(Out, At, EndProgram{}); }
  void operator()(const tree::PrintLine& n) const { C.CheckPrint(n, At, Out); }
  void operator()(const tree::InputLine& n) const { C.CheckInput(n, At, Out); }
  void operator()(const tree::DataLine& /*n*/) const {}  // collected before
  void operator()(const tree::ReadLine& n) const { C.Add(Out, At, Read{C.Targets(n.Targets)}); }
  void operator()(const tree::RestoreLine& n) const {
    if (n.Label.empty()) return C.Add(Out, At, Restore{0});
    const auto label = C.data_labels_.find(n.Label);
    if (label != C.data_labels_.end()) return C.Add(Out, At, Restore{label->second});
    C.Error(At, "There is no label \"" + std::string(n.Label) + '"');
  }
  void operator()(const tree::BindLine& n) const {
    const std::optional<ProcedureId> id = C.FindProcedure(n.Procedure);
    const Expr target = C.Location(n.Target);
    if (!id) {
      C.Error(n.ProcedureAt, "There is no SUB or FUNCTION \"" + std::string(n.Procedure) + '"',
              C.SimilarTo(n.Procedure));
    } else if (target != nullptr) {
      C.Store(target, C.Whole(static_cast<std::int64_t>(*id), At), At, Out);
    }
  }
  void operator()(const tree::WithBlock& n) const { C.CheckWith(n, At, Out); }
  void operator()(const tree::CreateBlock& n) const { C.CheckCreate(n, At, Out); }
  void operator()(const tree::Routine& n) const { C.CheckRoutine(n, At); }
  void operator()(const tree::DeclareLine& /*n*/) const {}  // collected before
  void operator()(const tree::TypeBlock& n) const {
    const auto id = C.type_names_.find(n.Name);
    if (id != C.type_names_.end() && C.types_[static_cast<std::size_t>(id->second)].Source == &n) {
      C.CheckMembers(id->second);
    } else if (id == C.type_names_.end()) {
      C.Error(At, "A TYPE must not stand inside another block");
    }
  }
  void operator()(const tree::ResourceLine& /*n*/) const {}  // collected before
  void operator()(const tree::TypeCheckLine& n) const { C.must_declare_ = n.On; }
  void operator()(const tree::DefaultTypeLine& n) const {
    C.default_storage_ = C.TypeOf(n.As, {}, false).Kind;
  }
};

void Checker::CheckStatement(const tree::StatementNode& statement, Statements& out) {
  statement.Visit(Dispatch{*this, statement.At, out});
}

void Checker::CheckRoutine(const tree::Routine& routine, SourcePlace /*at*/) {
  const auto id = routines_.find(&routine);
  if (id != routines_.end()) CheckBody(routine, id->second, std::nullopt);
}

void Checker::CheckBody(const tree::Routine& routine, ProcedureId id,
                        std::optional<RecordId> owner) {
  RoutineScope frame;
  frame.Id = id;
  frame.This = owner;
  frame.InConstructor = routine.Kind == tree::RoutineKind::Constructor;
  RoutineScope* const outer = std::exchange(frame_, &frame);
  std::vector<Surrounding> around = std::exchange(around_, {});
  const Procedure& head = program_.At(id);
  for (std::uint32_t i = owner ? 1 : 0; i < head.ParameterCount; ++i) {
    const Variable& parameter = head.Locals[i];
    const Symbol symbol{Symbol::Sort::Local, i, nullptr, parameter.At, parameter.Name};
    if (!frame.Names.emplace(IdOf(parameter.Name), symbol).second) {
      Error(parameter.At,
            "The parameter \"" + std::string(parameter.Name) + "\" stands here twice");
    }
  }
  if (routine.Kind == tree::RoutineKind::Function) {
    frame.Function = IdOf(routine.Name);
    frame.Names.emplace(IdOf("Result"),
                        Symbol{Symbol::Sort::Local, head.ResultSlot, nullptr, head.At, "Result"});
  }
  CollectLabels(routine.Body);
  Statements start;
  if (frame.InConstructor && owner) ConstructorStart(*owner, start);
  const Block body = CheckBlock(routine.Body);
  start.insert(start.end(), body.begin(), body.end());
  Procedure& procedure = program_.Procedures[static_cast<std::size_t>(id)];
  procedure.Body = List(start);
  procedure.LabelCount = static_cast<std::uint32_t>(frame.Labels.size());
  frame_ = outer;
  around_ = std::move(around);
}

void Checker::CheckPrint(const tree::PrintLine& line, SourcePlace at, Statements& out) {
  if (!line.Printer) program_.UsesConsole = true;
  const bool paged = line.Page != nullptr && !line.Printer;
  const Expr page = paged ? WholeValue(line.Page) : nullptr;
  std::vector<PrintItem> items;
  for (const tree::PrintPart& part : line.Parts) {
    Expr value = part.Value == nullptr ? nullptr : Value(part.Value);
    const bool plain =
        value == nullptr || (!value->Kind.IsArray() && value->Gives() != ValueKind::Object &&
                             value->Gives() != ValueKind::Record);
    if (!plain) value = As(value, ValueKind::Text);
    const PrintSeparator separator =
        part.Mark == tree::PrintMark::Semicolon ? PrintSeparator::Nothing
        : part.Mark == tree::PrintMark::Comma   ? PrintSeparator::NextZone
                                                : PrintSeparator::LineEnd;
    items.push_back({value, separator});
  }
  Add(out, at, Print{page, List(items), line.Printer});
}

ExpressionList Checker::Targets(tree::NodeList nodes) {
  std::vector<Expr> targets;
  for (const tree::Node* node : nodes) {
    const Expr target = Location(node);
    if (target == nullptr) continue;
    const ValueKind kind = target->Gives();
    if (target->Kind.IsArray() || kind == ValueKind::Object || kind == ValueKind::Record) {
      Error(node->At, "A variable that holds a number or a text is expected here");
      continue;
    }
    targets.push_back(target);
  }
  return List(targets);
}

void Checker::CheckInput(const tree::InputLine& line, SourcePlace at, Statements& out) {
  program_.UsesConsole = true;
  const Expr prompt = line.Prompt == nullptr ? nullptr : As(Value(line.Prompt), ValueKind::Text);
  Add(out, at, Input{prompt, Targets(line.Targets)});
}

}  // namespace tarnwick::basic
