// The frame of the parser: tokens, faults, the order of statements.
#include "basic/syntax/parser.h"

#include <array>
#include <optional>

#include "basic/syntax/parser_core.h"
#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

/// How the closing of a block is written, for messages.
std::string_view ClosingText(BlockKind kind) {
  static constexpr std::array<std::string_view, 13> kTexts = {
      "END IF",          "END SELECT", "NEXT",        "WEND",    "LOOP",
      "END WITH",        "END CREATE", "END TYPE",    "END SUB", "END FUNCTION",
      "END CONSTRUCTOR", "END EVENT",  "END PROPERTY"};
  return kTexts[static_cast<std::size_t>(kind)];
}

/// The block that "END word" closes.
std::optional<BlockKind> ClosedByEnd(Word word) {
  switch (word) {
    case Word::If:
      return BlockKind::If;
    case Word::Select:
      return BlockKind::Select;
    case Word::With:
      return BlockKind::With;
    case Word::Create:
      return BlockKind::Create;
    case Word::Type:
    case Word::Struct:
      return BlockKind::Type;
    case Word::Sub:
    case Word::SubI:
      return BlockKind::Sub;
    case Word::Function:
    case Word::FunctionI:
      return BlockKind::Function;
    case Word::Constructor:
      return BlockKind::Constructor;
    case Word::Event:
      return BlockKind::Event;
    case Word::Property:
      return BlockKind::Property;
    default:
      return std::nullopt;
  }
}

bool IsRoutine(BlockKind kind) {
  return kind >= BlockKind::Sub;
}

}  // namespace

tree::SyntaxTree Parse(TokenLines& lines, bool strict, Messages& messages) {
  tree::SyntaxTree tree;
  Parser(lines, strict, tree, messages).Run();
  return tree;
}

void Parser::NextLine() {
  line_before_.swap(line_);
  lines_.Next(line_);
  facts_.resize(line_.size());
  std::transform(line_.begin(), line_.end(), facts_.begin(),
                 [this](const SourceToken& token) { return FactsOf(token); });
  ++line_number_;
  at_ = 0;
  last_ = line_.size() - 1;
}

Parser::TokenFacts Parser::FactsOf(const SourceToken& token) const {
  TokenFacts facts;
  if (token.Kind == SourceTokenKind::Name) {
    facts.Name = out_.Names->Of(token.Text);
    const Word word = WordOf(facts.Name);
    if (word != Word::None) facts.Binary = OperatorOf(TextOf(word));
    if (!token.Plain) facts.Keyword = word;
  } else if (token.Kind == SourceTokenKind::Sign) {
    facts.Sign = SignCode(token.Text);
    facts.Binary = OperatorOf(token.Text);
  }
  return facts;
}

void Parser::Run() {
  while (Peek().Kind != SourceTokenKind::End && !messages_.Full()) {
    // What closes nothing is reported where it stands, and the rest is read on.
    const auto before = Position();
    const tree::StatementList statements = Body(BlockKind::If, {});
    out_.Pieces.back().Statements = statements;
    if (Position() == before) Take();
    NewPiece();
  }
}

bool Parser::BeginsGenerated() const {
  return Peek(4).Kind == SourceTokenKind::LineEnd && WordAhead(0) == Word::Dim &&
         EqualsFolded(Peek(1).Text, "Font") && WordAhead(2) == Word::As &&
         EqualsFolded(Peek(3).Text, "QFont");
}

std::uint16_t Parser::LengthFrom(const SourcePlace& from) const {
  const SourceToken* const token = Last();
  if (token == nullptr) return from.Length;
  const SourcePlace& last = token->At;
  if (last.File != from.File || last.Line != from.Line || last.Column < from.Column) {
    return from.Length;
  }
  const int length = static_cast<int>(last.Column) + last.Length - from.Column;
  return static_cast<std::uint16_t>(std::min(length, 65535));
}

void Parser::Expected(std::string_view what) {
  const SourceToken& token = Peek();
  std::string text(what);
  switch (token.Kind) {
    case SourceTokenKind::LineEnd:
    case SourceTokenKind::End:
      text += " is missing at the end of the line";
      break;
    case SourceTokenKind::Text:
      text += " is expected in front of this text";
      break;
    default:
      text.append(" is expected in front of \"").append(token.Text).append("\"");
  }
  Error(token.At, std::move(text));
}

bool Parser::ExpectSign(std::string_view sign) {
  if (TakeSign(sign)) return true;
  if (!failed_) Expected('"' + std::string(sign) + '"');
  return false;
}

bool Parser::ExpectWord(Word word) {
  if (TakeWord(word)) return true;
  if (!failed_) Expected(TextOf(word));
  return false;
}

std::string_view Parser::ExpectName(std::string_view what) {
  if (IsName()) return Take().Text;
  if (!failed_) Expected(what);
  return {};
}

void Parser::Tolerate(Tolerance which, SourcePlace at) {
  const ToleranceRow& row = RowOf(which);
  if (!row.Note.empty()) messages_.Note(at, std::string(row.Note), std::string(row.Remedy));
}

bool Parser::Closes(BlockKind& kind) const {
  switch (WordAhead()) {
    case Word::Next:
      kind = BlockKind::For;
      break;
    case Word::Wend:
      kind = BlockKind::While;
      break;
    case Word::Loop:
      kind = BlockKind::Do;
      break;
    case Word::EndIf:
    case Word::ElseIf:
    case Word::Else:
      kind = BlockKind::If;
      break;
    case Word::Case:
      kind = BlockKind::Select;
      break;
    case Word::End: {
      const std::optional<BlockKind> closed = ClosedByEnd(WordAhead(1));
      if (!closed) return false;
      kind = *closed;
      return true;
    }
    default:
      return false;
  }
  // A variable may have such a name.
  return !IsSign("=", 1) && !(IsSign(".", 1) && Peek(1).Touches);
}

bool Parser::IsOpen(BlockKind kind) const {
  return std::find(open_.begin(), open_.end(), kind) != open_.end();
}

bool Parser::TakeEnd(BlockKind kind) {
  BlockKind here{};
  if (!Closes(here) || here != kind) return false;
  if (WordAhead() == Word::End) Take();
  Take();
  if (kind == BlockKind::Property) TakeWord(Word::Set);
  return true;
}

void Parser::MissingEnd(BlockKind kind, SourcePlace opened) {
  Error(opened, std::string(ClosingText(kind)) + " of this block is missing");
  unclosed_ = true;
}

tree::StatementList Parser::Body(BlockKind kind, SourcePlace opened) {
  const bool outermost = opened.Line == 0;
  if (open_.size() >= static_cast<std::size_t>(kMaxBlockDepth)) {
    Error(Here(), "Blocks are nested too deeply", "Move the inner ones into a SUB");
    SkipLine();
    return {};
  }
  if (!outermost) open_.push_back(kind);
  Statements out;
  bool first_on_line = Last() == nullptr || Last()->Kind == SourceTokenKind::LineEnd;
  while (!messages_.Full()) {
    if (Peek().Kind == SourceTokenKind::LineEnd || IsSign(":")) {
      first_on_line = Take().Kind == SourceTokenKind::LineEnd;
      continue;
    }
    if (Peek().Kind == SourceTokenKind::End) {
      if (!outermost) MissingEnd(kind, opened);
      break;
    }
    BlockKind closed{};
    if (Closes(closed)) {
      if (closed == kind && !outermost) break;
      if (IsOpen(closed) && !(IsRoutine(kind) && !IsRoutine(closed))) {
        MissingEnd(kind, opened);
        break;
      }
      Error(Here(), "This closes no block: the line that opens it is missing");
      SkipLine();
      continue;
    }
    const bool head =
        WordAhead() == Word::Sub || WordAhead() == Word::SubI ||
        ((WordAhead() == Word::Function || WordAhead() == Word::FunctionI) && IsName(1));
    if (head && IsRoutine(kind) && !outermost) {
      MissingEnd(kind, opened);
      break;
    }
    failed_ = false;
    Statement(out, first_on_line);
    first_on_line = false;
    if (outermost && memory_->Bytes() >= tree::kPieceBytes) break;
  }
  if (!outermost) open_.pop_back();
  failed_ = false;
  return memory_->List(out);
}

void Parser::Statement(Statements& out, bool first_on_line) {
  const auto before = Position();
  if (Peek().Kind == SourceTokenKind::Directive) {
    DirectiveLine(out);
  } else if (first_on_line && LabelHere(out)) {
    return;
  } else if (const Word word = WordAhead(); WordBeginsStatement(word)) {
    StatementOfWord(word, out);
  } else if (IsSign("?")) {
    PrintStatement(out);
  } else {
    AssignmentOrCall(out);
  }
  EndOfStatement();
  if (Position() == before && !AtLineEnd()) Take();
}

void Parser::EndOfStatement() {
  if (std::exchange(unclosed_, false)) return;
  if (failed_) {
    SkipLine();
    return;
  }
  if (AtStatementEnd()) return;
  const SourceToken& token = Peek();
  const bool quote = Last() != nullptr && Last()->Kind == SourceTokenKind::Text;
  if (quote) {
    Error(token.At, "The text in front of this ends at a quote inside it",
          "Take the quote out of the text, or write CHR$(34) for it");
  } else if (token.Kind == SourceTokenKind::Text) {
    Error(token.At, "A text is not expected here");
  } else {
    Error(token.At, std::string("\"").append(token.Text).append("\" is not expected here"));
  }
  SkipLine();
}

bool Parser::LabelHere(Statements& out) {
  const SourceToken& token = Peek();
  if (token.Kind == SourceTokenKind::Number) {
    Take();
    Add(out, token.At, tree::Label{token.Text});
    out_.HasLabels = true;
    return true;
  }
  if (!IsName() || !IsSign(":", 1) || WordAhead() != Word::None) return false;
  Take();
  Add(out, token.At, tree::Label{token.Text});
  out_.HasLabels = true;
  return true;
}

}  // namespace tarnwick::basic
