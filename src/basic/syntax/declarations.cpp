// DIM and its kin, CONST.
#include <string>

#include "basic/syntax/parser_core.h"
#include "text/code_page.h"

namespace tarnwick::basic {

void Parser::DimStatement(Statements& out, tree::DeclareKind kind) {
  const SourcePlace at = Here();
  Take();
  if (kind == tree::DeclareKind::Dim && WordAhead() == Word::Shared && IsName(1)) Take();
  std::vector<tree::Declarator> names;
  do {
    tree::Declarator name;
    if (!DeclaratorHere(name)) return;
    names.push_back(name);
  } while (TakeSign(","));
  Add(out, at, tree::Declaration{kind, memory_->List(names)});
}

void Parser::DefStatement(Statements& out, std::string_view type) {
  const SourcePlace at = Here();
  Take();
  std::vector<tree::Declarator> names;
  do {
    tree::Declarator name;
    if (!DeclaratorHere(name)) return;
    if (name.As.Text.empty()) name.As = {type, name.At, nullptr};
    if (TakeSign("=")) InitialHere(name);
    if (failed_) return;
    names.push_back(name);
  } while (TakeSign(","));
  Add(out, at, tree::Declaration{tree::DeclareKind::Dim, memory_->List(names)});
}

void Parser::InitialHere(tree::Declarator& out) {
  if (!TakeSign("{")) {
    out.Initial = Expression();
    return;
  }
  out.InitialList = ArgumentsUntil(nullptr, "}");
  ExpectSign("}");
}

void Parser::ConstStatement(Statements& out) {
  Take();
  do {
    const SourcePlace at = Here();
    tree::ConstDeclaration declaration{};
    declaration.Name = ExpectName("The name of the constant");
    declaration.As = OptionalType();
    if (failed_ || !ExpectSign("=")) return;
    declaration.Value = Expression();
    if (failed_) return;
    Add(out, at, declaration);
  } while (TakeSign(","));
}

bool Parser::DeclaratorHere(tree::Declarator& out) {
  out.At = Here();
  out.Name = ExpectName("A name");
  if (failed_) return false;
  if (IsSign("(")) DimensionsHere(out);
  if (failed_) return false;
  out.As = OptionalType();
  return !failed_;
}

void Parser::DimensionsHere(tree::Declarator& out) {
  out.IsArray = true;
  std::vector<tree::Dimension> dimensions;
  const SourcePlace first = Here();
  Take();
  while (!failed_ && !IsSign(")")) {
    tree::Dimension dimension{nullptr, Expression()};
    if (TakeWord(Word::To)) {
      dimension.Low = dimension.High;
      dimension.High = Expression();
    }
    dimensions.push_back(dimension);
    if (!TakeSign(",")) break;
  }
  if (failed_ || !ExpectSign(")")) return;
  if (tolerant_ && IsSign("(") && Peek(1).Kind == SourceTokenKind::Number && IsSign(")", 2) &&
      dimensions.size() == 1) {
    // A socket's whole name in front of the array's own brackets: the higher index of the two.
    Take();
    const Node* second = Expression();
    ExpectSign(")");
    const auto* low = dimensions[0].High->As<tree::WholeNumber>();
    const auto* high = second->As<tree::WholeNumber>();
    if (low != nullptr && high != nullptr && high->Value > low->Value) dimensions[0].High = second;
    Tolerate(Tolerance::SocketArray, first);
  }
  out.Dimensions = memory_->List(dimensions);
}

tree::TypeName Parser::OptionalType() {
  if (!TakeWord(Word::As)) return {};
  return TypeHere();
}

tree::TypeName Parser::TypeHere() {
  tree::TypeName type;
  type.At = Here();
  type.Text = ExpectName("The name of a type");
  if (EqualsFolded(type.Text, "STRING") && TakeSign("*")) type.Length = Postfix();
  return type;
}

}  // namespace tarnwick::basic
