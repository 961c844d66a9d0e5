// Statements that hold others.
#include "basic/syntax/parser_core.h"

namespace tarnwick::basic {

using tree::Operator;

void Parser::IfStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  std::vector<tree::Arm> arms;
  const Node* condition = Expression();
  const bool jumps = WordAhead() == Word::Goto;
  if (!jumps && !ExpectWord(Word::Then)) return;
  if (failed_) return;
  if (!AtLineEnd()) {
    arms.push_back({condition, LineBody()});
    if (TakeWord(Word::Else)) arms.push_back({nullptr, LineBody()});
    return Add(out, at, tree::IfBlock{memory_->List(arms)});
  }
  arms.push_back({condition, Body(BlockKind::If, at)});
  while (WordAhead() == Word::ElseIf || WordAhead() == Word::Else) {
    const bool more = Take().Text.size() > 4 || WordAhead() == Word::If;
    const Node* next = nullptr;
    if (more) {
      TakeWord(Word::If);
      next = Expression();
      TakeWord(Word::Then);
      if (failed_) SkipLine();
    }
    arms.push_back({next, Body(BlockKind::If, at)});
  }
  TakeEnd(BlockKind::If);
  Add(out, at, tree::IfBlock{memory_->List(arms)});
}

/// The statements behind THEN or ELSE on the same line.
tree::StatementList Parser::LineBody() {
  Statements body;
  if (in_line_if_ >= kMaxBlockDepth) {
    Error(Here(), "IFs are nested too deeply");
    return {};
  }
  ++in_line_if_;
  while (!failed_ && !AtLineEnd() && WordAhead() != Word::Else) {
    BlockKind closed{};
    if (TakeSign(":")) continue;
    if (Closes(closed)) {
      // "IF a THEN b: END IF" on one line; what else closes belongs to a block around the line.
      if (closed == BlockKind::If && WordAhead() != Word::ElseIf) TakeEnd(BlockKind::If);
      break;
    }
    if (Peek().Kind == SourceTokenKind::Number) {
      const SourceToken& number = Take();
      Add(body, number.At, tree::Jump{number.Text, false});
      continue;
    }
    Statement(body, false);
  }
  --in_line_if_;
  return memory_->List(body);
}

void Parser::SelectStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  if (!ExpectWord(Word::Case)) return;
  const Node* selector = Expression();
  if (failed_) return;
  std::vector<tree::CaseBlock> cases;
  const tree::StatementList before = Body(BlockKind::Select, at);
  if (!before.empty()) {
    Error(before.front()->At, "A statement stands in front of the first CASE");
    failed_ = false;
  }
  while (WordAhead() == Word::Case) {
    const SourcePlace case_at = Here();
    Take();
    std::vector<tree::CaseValue> values;
    const bool otherwise = TakeWord(Word::Else);
    if (!otherwise) {
      do {
        values.push_back(CaseValueHere());
      } while (!failed_ && TakeSign(","));
    }
    if (failed_ || !AtStatementEnd()) EndOfStatement();
    cases.push_back({memory_->List(values), otherwise, Body(BlockKind::Select, case_at)});
  }
  TakeEnd(BlockKind::Select);
  Add(out, at, tree::SelectBlock{selector, memory_->List(cases)});
}

tree::CaseValue Parser::CaseValueHere() {
  TakeWord(Word::Is);
  static constexpr std::pair<std::string_view, Operator> kSigns[] = {
      {"=", Operator::Equal},   {"<>", Operator::NotEqual},     {"><", Operator::NotEqual},
      {"<", Operator::Less},    {"<=", Operator::LessEqual},    {"=<", Operator::LessEqual},
      {">", Operator::Greater}, {">=", Operator::GreaterEqual}, {"=>", Operator::GreaterEqual},
  };
  for (const auto& [sign, op] : kSigns) {
    if (TakeSign(sign)) return {op, Expression(), nullptr};
  }
  const Node* value = Expression();
  if (!TakeWord(Word::To)) return {Operator::Equal, value, nullptr};
  return {Operator::GreaterEqual, value, Expression()};
}

void Parser::ForStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  tree::ForBlock loop{};
  loop.Variable = Postfix();
  if (failed_ || !ExpectSign("=")) return;
  loop.From = Expression();
  if (failed_ || !ExpectWord(Word::To)) return;
  loop.To = Expression();
  if (TakeWord(Word::Step)) loop.Step = Expression();
  TakeWord(Word::Do);
  if (failed_) return;
  if (!AtStatementEnd()) return EndOfStatement();
  loop.Body = Body(BlockKind::For, at);
  const bool closed = TakeEnd(BlockKind::For);
  // The name behind NEXT is for the reader alone.
  if (closed && IsName() && !AtStatementEnd()) Postfix();
  Add(out, at, loop);
}

void Parser::WhileStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  tree::LoopBlock loop{};
  loop.Kind = tree::LoopBlock::Word::While;
  loop.Before = Expression();
  TakeWord(Word::Do);
  if (failed_) return;
  loop.Body = Body(BlockKind::While, at);
  TakeEnd(BlockKind::While);
  Add(out, at, loop);
}

void Parser::DoStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  tree::LoopBlock loop{};
  loop.Kind = tree::LoopBlock::Word::Do;
  if (WordAhead() == Word::While || WordAhead() == Word::Until) {
    loop.UntilBefore = WordAhead() == Word::Until;
    Take();
    loop.Before = Expression();
  }
  if (failed_) return;
  loop.Body = Body(BlockKind::Do, at);
  const bool closed = TakeEnd(BlockKind::Do);
  if (closed && (WordAhead() == Word::While || WordAhead() == Word::Until)) {
    loop.UntilAfter = WordAhead() == Word::Until;
    Take();
    loop.After = Expression();
  }
  Add(out, at, loop);
}

void Parser::WithStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  const Node* object = Postfix();
  if (failed_) return;
  const tree::StatementList body = Body(BlockKind::With, at);
  TakeEnd(BlockKind::With);
  Add(out, at, tree::WithBlock{object, body});
}

void Parser::CreateStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  tree::Declarator object;
  if (!DeclaratorHere(object)) return;
  const tree::StatementList body = Body(BlockKind::Create, at);
  TakeEnd(BlockKind::Create);
  Add(out, at, tree::CreateBlock{object, body});
}

}  // namespace tarnwick::basic
