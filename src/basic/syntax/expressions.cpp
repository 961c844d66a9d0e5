// Expressions: precedence climbing over the table of operators.
#include <algorithm>
#include <array>
#include <optional>

#include "basic/syntax/number_literal.h"
#include "basic/syntax/parser_core.h"

namespace tarnwick::basic {
namespace {

using tree::Operator;

/// A binary operator and how tightly it binds: higher is tighter.
struct OperatorRow {
  std::string_view Sign;
  Operator Op;
  int Level;
};

constexpr int kNotLevel = 4;
constexpr int kNegateLevel = 9;

constexpr std::array<OperatorRow, 25> kOperators = {{
    {"XOR", Operator::Xor, 1},         {"OR", Operator::Or, 2},
    {"AND", Operator::And, 3},         {"=", Operator::Equal, 5},
    {"<>", Operator::NotEqual, 5},     {"><", Operator::NotEqual, 5},
    {"<", Operator::Less, 5},          {"<=", Operator::LessEqual, 5},
    {"=<", Operator::LessEqual, 5},    {">", Operator::Greater, 5},
    {">=", Operator::GreaterEqual, 5}, {"=>", Operator::GreaterEqual, 5},
    {"+", Operator::Add, 6},           {"-", Operator::Subtract, 6},
    {"++", Operator::Add, 6},          {"--", Operator::Subtract, 6},
    {"&", Operator::Join, 6},          {"MOD", Operator::Modulo, 7},
    {"INV", Operator::Inverse, 7},     {"*", Operator::Multiply, 8},
    {"/", Operator::Divide, 8},        {"\\", Operator::WholeDivide, 8},
    {"SHL", Operator::ShiftLeft, 8},   {"SHR", Operator::ShiftRight, 8},
    {"^", Operator::Power, 10},
}};

const OperatorRow* OperatorOf(const SourceToken& token) {
  std::string_view text = token.Text;
  if (token.Kind == SourceTokenKind::Name) {
    const Word word = WordOf(text);
    if (word == Word::None) return nullptr;
    text = TextOf(word);
  } else if (token.Kind != SourceTokenKind::Sign) {
    return nullptr;
  }
  const auto* const row = std::find_if(kOperators.begin(), kOperators.end(),
                                       [text](const OperatorRow& r) { return r.Sign == text; });
  return row == kOperators.end() ? nullptr : row;
}

/// Words that are never the name of a value.
bool IsReserved(Word word) {
  return word == Word::Then || word == Word::And || word == Word::Or || word == Word::Xor ||
         word == Word::Mod;
}

int HeightOf(const tree::Node* node) {
  return node == nullptr ? 0 : node->Height;
}

}  // namespace

const tree::Node* Parser::BinaryFrom(int level) {
  const SourcePlace from = Here();
  if (++depth_ > kMaxExpressionDepth) {
    if (!failed_) Error(from, "The expression is nested too deeply", "Split it");
    --depth_;
    SkipLine();
    return MakeNode(from, 0, tree::WholeNumber{0});
  }
  const Node* left = Prefix();
  while (!failed_) {
    const OperatorRow* row = OperatorOf(Peek());
    if (row == nullptr || row->Level <= level) break;
    if (in_line_if_ > 0 && WordAhead() == Word::Else) break;
    const bool doubled = row->Sign == "++" || row->Sign == "--";
    Take();
    const Node* right = BinaryFrom(row->Level);
    // "a--1" is a minus in front of a negative number.
    if (doubled && row->Op == Operator::Subtract) {
      right = MakeNode(from, HeightOf(right), tree::Unary{Operator::Negate, right});
    }
    left = MakeNode(from, std::max(HeightOf(left), HeightOf(right)),
                    tree::Binary{row->Op, left, right});
  }
  --depth_;
  return left;
}

const tree::Node* Parser::Prefix() {
  const SourcePlace from = Here();
  std::optional<Operator> op;
  int operand_level = kNegateLevel;
  if (IsSign("-") || IsSign("--")) {
    op = Operator::Negate;
  } else if (IsSign("+") || IsSign("++")) {
    op = Operator::Plus;
  } else if (WordAhead() == Word::Not) {
    op = Operator::Not;
    operand_level = kNotLevel;
  }
  if (!op) return Postfix();
  const bool twice = IsSign("--");
  Take();
  const Node* operand = BinaryFrom(operand_level);
  if (twice || *op == Operator::Plus) return operand;
  return MakeNode(from, HeightOf(operand), tree::Unary{*op, operand});
}

const tree::Node* Parser::Postfix() {
  return PostfixFrom(Primary());
}

const tree::Node* Parser::PostfixFrom(const Node* node) {
  const SourcePlace from = node->At;
  while (!failed_) {
    if (IsSign("(")) {
      const std::size_t bracket = at_;
      Take();
      const std::vector<const Node*> arguments = ArgumentsUntil(node, ")");
      int height = HeightOf(node);
      for (const Node* argument : arguments) height = std::max(height, HeightOf(argument));
      if (!ExpectSign(")")) return node;
      last_bracket_ = bracket;
      node = MakeNode(from, height, tree::Apply{node, memory_.List(arguments)});
    } else if (IsSign("[")) {
      Take();
      const Node* index = Expression();
      if (!ExpectSign("]")) return node;
      node =
          MakeNode(from, std::max(HeightOf(node), HeightOf(index)), tree::Subscript{node, index});
    } else if (IsSign(".")) {
      Take();
      const SourcePlace at = Here();
      if (!IsName()) {
        Expected("The name of a member");
        return node;
      }
      const std::string_view name = Take().Text;
      node = MakeNode(from, HeightOf(node), tree::MemberAccess{node, name, at});
    } else {
      return node;
    }
  }
  return node;
}

std::vector<const tree::Node*> Parser::ArgumentsUntil(const Node* callee,
                                                      std::string_view closing) {
  std::vector<const Node*> arguments;
  const auto at_end = [this, closing] {
    return closing.empty() ? AtStatementEnd() : IsSign(closing) || AtLineEnd();
  };
  if (at_end()) return arguments;
  while (!failed_) {
    arguments.push_back(IsSign(",") || at_end() ? nullptr : Expression());
    const Node* last = arguments.back();
    const auto* name = callee == nullptr ? nullptr : std::get_if<tree::Name>(&callee->Value);
    if (last != nullptr && name != nullptr &&
        std::holds_alternative<tree::ByReference>(last->Value)) {
      out_.References.push_back({name->Text, arguments.size() - 1});
    }
    if (!TakeSign(",")) break;
  }
  return arguments;
}

const tree::Node* Parser::Primary() {
  const SourceToken& token = Peek();
  const SourcePlace from = token.At;
  switch (token.Kind) {
    case SourceTokenKind::Number:
      return NumberHere();
    case SourceTokenKind::Text:
      Take();
      return MakeNode(from, 0, tree::TextLiteral{token.Text});
    case SourceTokenKind::Name:
      if (!IsReserved(WordAhead())) return NameHere();
      break;
    case SourceTokenKind::Sign:
      if (token.Text == "(") {
        Take();
        const Node* inner = Expression();
        ExpectSign(")");
        return inner;
      }
      if (token.Text == "@") {
        Take();
        if (!IsName() && !IsSign(".")) break;
        const Node* operand = Postfix();
        return MakeNode(from, HeightOf(operand), tree::ByReference{operand});
      }
      if (token.Text == "." && IsName(1)) {
        Take();
        const SourcePlace at = Here();
        return MakeNode(from, 0, tree::MemberAccess{nullptr, Take().Text, at});
      }
      break;
    default:
      break;
  }
  Expected("A value");
  return MakeNode(from, 0, tree::WholeNumber{0});
}

const tree::Node* Parser::NumberHere() {
  const SourceToken& token = Take();
  const NumberLiteral number = NumberOf(token.Text);
  if (number.Whole) return MakeNode(token.At, 0, tree::WholeNumber{*number.Whole});
  return MakeNode(token.At, 0, tree::RealNumber{number.Real});
}

const tree::Node* Parser::NameHere() {
  const SourcePlace from = Here();
  SourcePlace at;
  const bool joined = tolerant_ && IsSign("(", 1) && Peek(1).Touches &&
                      Peek(2).Kind == SourceTokenKind::Number && IsSign(")", 3) && IsName(4) &&
                      Peek(4).Touches && Peek(4).Text.front() == '_';
  const std::string_view name = joined ? RoutineName(at) : Take().Text;
  return MakeNode(from, 0, tree::Name{name});
}

}  // namespace tarnwick::basic
