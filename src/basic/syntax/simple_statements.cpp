// Statements of one line.
#include <string>

#include "basic/syntax/parser_core.h"
#include "text/code_page.h"

namespace tarnwick::basic {

using tree::Operator;

void Parser::AssignmentOrCall(Statements& out) {
  const SourcePlace at = Here();
  // A leading dot, or a name.
  const std::size_t begin = at_;
  const Node* target = Postfix();
  if (failed_) return;
  if (IsSign("=") || IsSign("+=") || IsSign("-=")) return AssignmentTo(target, at, out);
  if (IsSign("++") || IsSign("--")) {
    const bool up = IsSign("++");
    Take();
    if (AtStatementEnd()) return Add(out, at, tree::Step{target, up});
    at_ = begin;
    Postfix();
  }
  const auto* apply = target->As<tree::Apply>();
  if (AtStatementEnd()) {
    if (apply == nullptr) return Add(out, at, tree::CallLine{target, {}});
    return Add(out, at, tree::CallLine{apply->Target, apply->Arguments});
  }
  if (apply != nullptr) {
    // The bracket does not close at the end of the statement, so it belongs to the first argument.
    at_ = last_bracket_;
    target = apply->Target;
  }
  Add(out, at, tree::CallLine{target, ArgumentsUntil(target, "")});
}

void Parser::AssignmentTo(const Node* target, SourcePlace at, Statements& out) {
  Operator op = Operator::Equal;
  const SourceToken& sign = Take();
  if (sign.Text == "+=") op = Operator::Add;
  if (sign.Text == "-=") op = Operator::Subtract;
  const auto* member = target->As<tree::MemberAccess>();
  if (AtStatementEnd()) {
    if (!tolerant_ || member == nullptr) return Expected("A value");
    return Add(out, at, tree::Assignment{target, nullptr, op});
  }
  const bool property_of_text = out_.Generated && open_.empty() && member != nullptr;
  if (property_of_text && Peek().Kind == SourceTokenKind::Text && Peek().Unclosed) {
    return Error(Peek().At, "The text of this property holds a line break or a quote",
                 "Take it out of the text in the list of properties");
  }
  const Node* value = Expression();
  Add(out, at, tree::Assignment{target, value, op});
}

void Parser::CallStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  const Node* target = Postfix();
  if (failed_) return;
  if (const auto* apply = target->As<tree::Apply>()) {
    return Add(out, at, tree::CallLine{apply->Target, apply->Arguments});
  }
  Add(out, at, tree::CallLine{target, ArgumentsUntil(target, "")});
}

void Parser::PrintStatement(Statements& out) {
  const SourcePlace at = Here();
  const bool printer = WordAhead() == Word::LPrint;
  Take();
  tree::PrintLine print{};
  print.Printer = printer;
  if (TakeSign("#")) {
    print.Page = Expression();
    if (!AtStatementEnd() && !ExpectSign(",")) return;
  }
  std::vector<tree::PrintPart> parts;
  while (!failed_ && !AtStatementEnd()) {
    tree::PrintPart part{nullptr, tree::PrintMark::LineEnd};
    if (!IsSign(";") && !IsSign(",")) part.Value = Expression();
    if (TakeSign(";")) {
      part.Mark = tree::PrintMark::Semicolon;
    } else if (TakeSign(",")) {
      part.Mark = tree::PrintMark::Comma;
    }
    parts.push_back(part);
    if (part.Mark == tree::PrintMark::LineEnd) break;
  }
  print.Parts = memory_->List(parts);
  Add(out, at, print);
}

void Parser::InputStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  tree::InputLine input{};
  if (Peek().Kind == SourceTokenKind::Text) {
    input.Prompt = Expression();
    if (!TakeSign(";") && !ExpectSign(",")) return;
  }
  std::vector<const Node*> targets;
  do {
    targets.push_back(Postfix());
  } while (!failed_ && TakeSign(","));
  input.Targets = memory_->List(targets);
  Add(out, at, input);
}

std::string_view Parser::LabelName() {
  if (Peek().Kind == SourceTokenKind::Number) return Take().Text;
  return ExpectName("The name of a label");
}

void Parser::OnStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  const Node* selector = Expression();
  const bool returns = WordAhead() == Word::Gosub;
  if (!returns && WordAhead() != Word::Goto) {
    if (!failed_) Expected("GOTO or GOSUB");
    return;
  }
  Take();
  std::vector<std::string_view> labels;
  do {
    labels.push_back(LabelName());
  } while (!failed_ && TakeSign(","));
  Add(out, at, tree::OnJumpLine{selector, memory_->List(labels), returns});
}

void Parser::JumpStatement(Statements& out, bool returns) {
  const SourcePlace at = Here();
  Add(out, at, tree::Jump{LabelName(), returns});
}

void Parser::ExitStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  tree::ExitKind kind{};
  switch (WordAhead()) {
    case Word::Sub:
    case Word::SubI:
    case Word::Event:
    case Word::Constructor:
    case Word::Property:
      kind = tree::ExitKind::Sub;
      break;
    case Word::Function:
    case Word::FunctionI:
      kind = tree::ExitKind::Function;
      break;
    case Word::For:
      kind = tree::ExitKind::For;
      break;
    case Word::Do:
      kind = tree::ExitKind::Do;
      break;
    case Word::While:
      kind = tree::ExitKind::While;
      break;
    default:
      return Expected("SUB, FUNCTION, FOR, DO or WHILE");
  }
  Take();
  Add(out, at, tree::ExitLine{kind});
}

void Parser::DataStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  std::vector<tree::DataItem> items;
  do {
    std::string text;
    bool quoted = false;
    while (!AtLineEnd() && !IsSign(",") && !IsSign(":")) {
      const SourceToken& token = Take();
      quoted = quoted || token.Kind == SourceTokenKind::Text;
      if (!text.empty() && !token.Touches) text += ' ';
      text += token.Text;
    }
    items.push_back({memory_->Text(text), quoted});
  } while (TakeSign(","));
  Add(out, at, tree::DataLine{memory_->List(items)});
}

void Parser::ReadStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  std::vector<const Node*> targets;
  do {
    targets.push_back(Postfix());
  } while (!failed_ && TakeSign(","));
  Add(out, at, tree::ReadLine{memory_->List(targets)});
}

void Parser::RestoreStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  Add(out, at, tree::RestoreLine{AtStatementEnd() ? std::string_view() : LabelName()});
}

void Parser::BindStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  const Node* target = Postfix();
  if (failed_ || !ExpectWord(Word::To)) return;
  const SourcePlace name_at = Here();
  const std::string_view name = ExpectName("The name of a SUB or FUNCTION");
  Add(out, at, tree::BindLine{target, name, name_at});
}

void Parser::DirectiveLine(Statements& out) {
  const SourceToken& directive = Take();
  const SourcePlace at = directive.At;
  const std::string_view name = directive.Text;
  const std::string_view word = AtLineEnd() ? std::string_view() : Peek().Text;
  if (EqualsFolded(name, "$TYPECHECK")) {
    if (!EqualsFolded(word, "ON") && !EqualsFolded(word, "OFF")) return Expected("ON or OFF");
    Take();
    return Add(out, at, tree::TypeCheckLine{EqualsFolded(word, "ON")});
  }
  if (EqualsFolded(name, "$RESOURCE")) {
    const std::string_view handle = ExpectName("The name of the resource");
    if (failed_ || !ExpectWord(Word::As)) return;
    if (Peek().Kind != SourceTokenKind::Text) return Expected("The name of a file in quotes");
    const std::string_view file = Take().Text;
    return Add(out, at, tree::ResourceLine{handle, file});
  }
  if (EqualsFolded(name, "$APPTYPE")) {
    if (EqualsFolded(word, "CGI")) {
      return Error(at,
                   "Programs for web servers are not supported by the runner; they need Rc.exe");
    }
    if (!EqualsFolded(word, "GUI") && !EqualsFolded(word, "CONSOLE")) {
      return Expected("GUI or CONSOLE");
    }
    out_.ApplicationTypeGiven = true;
    out_.Console = EqualsFolded(word, "CONSOLE");
    return SkipLine();
  }
  // $OPTION
  Take();
  if (EqualsFolded(word, "EXPLICIT")) return Add(out, at, tree::TypeCheckLine{true});
  if (EqualsFolded(word, "DIM")) return Add(out, at, tree::DefaultTypeLine{TypeHere()});
  // What $OPTION else sets, such as the icon, has no effect on a program that is being run.
  SkipLine();
}

}  // namespace tarnwick::basic
