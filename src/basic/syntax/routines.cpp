// SUB, FUNCTION, DECLARE, TYPE.
#include <string>

#include "basic/syntax/parser_core.h"
#include "text/code_page.h"

namespace tarnwick::basic {

std::string_view Parser::RoutineName(SourcePlace& at) {
  at = Here();
  const std::string_view name = ExpectName("The name of the routine");
  const bool brackets = tolerant_ && IsSign("(") && Peek().Touches &&
                        Peek(1).Kind == SourceTokenKind::Number && IsSign(")", 2) && IsName(3) &&
                        Peek(3).Touches && Peek(3).Text.front() == '_';
  if (!brackets) return name;
  std::string joined(name);
  for (int i = 0; i < 4; ++i) joined += Take().Text;
  at.Length = LengthFrom(at);
  Tolerate(Tolerance::BracketName, at);
  return out_.Texts.Text(joined);
}

bool Parser::RoutineHead(tree::Routine& routine, BlockKind& kind) {
  const Word word = WordAhead();
  Take();
  switch (word) {
    case Word::Sub:
    case Word::SubI:
      routine.Kind = tree::RoutineKind::Sub;
      kind = BlockKind::Sub;
      break;
    case Word::Function:
    case Word::FunctionI:
      routine.Kind = tree::RoutineKind::Function;
      kind = BlockKind::Function;
      break;
    case Word::Constructor:
      routine.Kind = tree::RoutineKind::Constructor;
      kind = BlockKind::Constructor;
      routine.Name = "Constructor";
      routine.NameAt = Last()->At;
      return true;
    case Word::Event:
      routine.Kind = tree::RoutineKind::Event;
      kind = BlockKind::Event;
      break;
    default:
      routine.Kind = tree::RoutineKind::PropertySet;
      kind = BlockKind::Property;
      if (!ExpectWord(Word::Set)) return false;
      break;
  }
  routine.Name = RoutineName(routine.NameAt);
  if (!failed_ && kind == BlockKind::Event && TakeSign(".")) {
    routine.EventObject = routine.Name;
    routine.NameAt = Here();
    routine.Name = ExpectName("The name of an event");
  }
  routine.HasParameterList = IsSign("(");
  std::vector<tree::ParameterNode> parameters = ParametersHere(routine.Variadic);
  // SUBI: whatever stands in the brackets, the arguments are reached by number.
  routine.Variadic = word == Word::SubI || word == Word::FunctionI;
  if (routine.Variadic) parameters.clear();
  routine.Parameters = memory_->List(parameters);
  if (kind == BlockKind::Function) routine.Result = OptionalType();
  return !failed_;
}

std::vector<tree::ParameterNode> Parser::ParametersHere(bool& variadic) {
  std::vector<tree::ParameterNode> parameters;
  if (failed_ || !TakeSign("(")) return parameters;
  while (!failed_ && !IsSign(")")) {
    if (TakeSign("...")) {
      variadic = true;
      break;
    }
    tree::ParameterNode parameter;
    if ((WordAhead() == Word::ByRef || WordAhead() == Word::ByVal) && IsName(1)) {
      parameter.ByReference = WordAhead() == Word::ByRef;
      Take();
    }
    parameter.At = Here();
    parameter.Name = ExpectName("The name of a parameter");
    if (!failed_ && TakeSign("(")) {
      parameter.IsArray = true;
      // Bounds of a parameter say nothing: the array that is handed over has its own.
      while (!AtLineEnd() && !IsSign(")")) Take();
      ExpectSign(")");
    }
    if (!failed_) parameter.As = OptionalType();
    parameters.push_back(parameter);
    if (!TakeSign(",")) break;
  }
  if (!failed_) ExpectSign(")");
  return parameters;
}

void Parser::RoutineStatement(Statements& out) {
  const SourcePlace at = Here();
  tree::Routine routine{};
  BlockKind kind{};
  const bool headed = RoutineHead(routine, kind);
  if (!headed || !AtStatementEnd()) EndOfStatement();
  // The body is read all the same, so that a faulty head gives one error only.
  routine.Body = Body(kind, at);
  TakeEnd(kind);
  routine.Private = private_;
  if (headed) Add(out, at, routine);
}

void Parser::DeclareStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  tree::DeclareLine declare{};
  declare.Function = WordAhead() == Word::Function || WordAhead() == Word::FunctionI;
  if (!declare.Function && WordAhead() != Word::Sub && WordAhead() != Word::SubI) {
    return Expected("SUB or FUNCTION");
  }
  Take();
  SourcePlace name_at;
  declare.Name = RoutineName(name_at);
  if (TakeWord(Word::Lib)) {
    if (Peek().Kind != SourceTokenKind::Text) return Expected("The name of a DLL in quotes");
    declare.Library = Take().Text;
    declare.Entry = declare.Name;
    if (TakeWord(Word::Alias)) {
      if (Peek().Kind != SourceTokenKind::Text) return Expected("The name of an entry in quotes");
      declare.Entry = Take().Text;
    }
  }
  bool variadic = false;
  const std::vector<tree::ParameterNode> parameters = ParametersHere(variadic);
  declare.Parameters = memory_->List(parameters);
  if (failed_) return;
  declare.Result = OptionalType();
  Add(out, at, declare);
}

void Parser::TypeStatement(Statements& out) {
  const SourcePlace at = Here();
  Take();
  tree::TypeBlock type{};
  type.NameAt = Here();
  type.Name = ExpectName("The name of the type");
  if (TakeWord(Word::Extends)) {
    type.ExtendsAt = Here();
    type.Extends = ExpectName("The name of a class");
  }
  if (failed_ || !AtStatementEnd()) EndOfStatement();
  failed_ = false;
  std::vector<tree::Declarator> fields;
  Statements members;
  open_.push_back(BlockKind::Type);
  private_ = false;
  while (!messages_.Full()) {
    if (Peek().Kind == SourceTokenKind::LineEnd || IsSign(":")) {
      Take();
      continue;
    }
    BlockKind closed{};
    const bool closes = Closes(closed);
    if (closes && closed == BlockKind::With) {
      TakeEnd(closed);  // WITH THIS may stand around the routines
      continue;
    }
    if (closes || Peek().Kind == SourceTokenKind::End) break;
    failed_ = false;
    TypeMember(fields, members);
    EndOfStatement();
  }
  open_.pop_back();
  BlockKind closed{};
  if (Closes(closed) && closed == BlockKind::Type) {
    TakeEnd(BlockKind::Type);
  } else {
    Error(at, "END TYPE of this type is missing");
  }
  private_ = false;
  type.Fields = memory_->List(fields);
  type.Members = memory_->List(members);
  out_.HasTypes = true;
  Add(out, at, type);
}

void Parser::TypeMember(std::vector<tree::Declarator>& fields, Statements& members) {
  const Word word = WordAhead();
  const bool field = WordAhead(1) == Word::As || IsSign("(", 1) || IsSign(",", 1);
  if (!field) {
    switch (word) {
      case Word::Public:
      case Word::Private:
        PrivacyAhead(fields, members);
        return;
      case Word::Sub:
      case Word::SubI:
      case Word::Function:
      case Word::FunctionI:
      case Word::Constructor:
      case Word::Event:
      case Word::Property:
        return RoutineStatement(members);
      case Word::With:
        Take();
        Postfix();
        return;
      case Word::Dim:
        Take();
        break;
      default:
        break;
    }
  }
  FieldsHere(fields);
}

/// PRIVATE and PUBLIC: for one member on the same line, else for all that come.
void Parser::PrivacyAhead(std::vector<tree::Declarator>& fields, Statements& members) {
  const bool before = private_;
  bool section = false;
  while (WordAhead() == Word::Public || WordAhead() == Word::Private) {
    private_ = WordAhead() == Word::Private;
    Take();
    section = TakeSign(":") || AtStatementEnd();
  }
  if (!AtStatementEnd()) TypeMember(fields, members);
  if (!section) private_ = before;
}

void Parser::FieldsHere(std::vector<tree::Declarator>& fields) {
  do {
    tree::Declarator field;
    field.At = Here();
    std::string name(ExpectName("The name of a field"));
    while (!failed_ && IsSign(".") && IsName(1)) {
      Take();
      name.append(".").append(Take().Text);
    }
    if (failed_) return;
    field.Name = memory_->Text(name);
    if (IsSign("(")) DimensionsHere(field);
    if (failed_) return;
    if (WordAhead() == Word::As && WordAhead(1) == Word::Event && IsSign("(", 2)) {
      Take();
      Take();
      Take();
      field.EventTemplate = ExpectName("The name of a SUB");
      ExpectSign(")");
    } else {
      field.As = OptionalType();
    }
    if (!failed_ && WordAhead() == Word::Property && WordAhead(1) == Word::Set) {
      Take();
      Take();
      field.PropertySet = ExpectName("The name of a PROPERTY SET");
    }
    if (failed_) return;
    field.Private = private_;
    fields.push_back(field);
  } while (TakeSign(","));
}

}  // namespace tarnwick::basic
