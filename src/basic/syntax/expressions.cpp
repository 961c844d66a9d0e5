// Expressions: precedence climbing over the table of operators.
#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "basic/syntax/number_literal.h"
#include "basic/syntax/parser_core.h"

namespace tarnwick::basic {
namespace {

using tree::Operator;

constexpr int kNotLevel = 4;
constexpr int kNegateLevel = 9;

/// In the order of their signs.
constexpr std::array<OperatorRow, 25> kOperators = {{
    {"&", Operator::Join, 6},          {"*", Operator::Multiply, 8},
    {"+", Operator::Add, 6},           {"++", Operator::Add, 6},
    {"-", Operator::Subtract, 6},      {"--", Operator::Subtract, 6},
    {"/", Operator::Divide, 8},        {"<", Operator::Less, 5},
    {"<=", Operator::LessEqual, 5},    {"<>", Operator::NotEqual, 5},
    {"=", Operator::Equal, 5},         {"=<", Operator::LessEqual, 5},
    {"=>", Operator::GreaterEqual, 5}, {">", Operator::Greater, 5},
    {"><", Operator::NotEqual, 5},     {">=", Operator::GreaterEqual, 5},
    {"AND", Operator::And, 3},         {"INV", Operator::Inverse, 7},
    {"MOD", Operator::Modulo, 7},      {"OR", Operator::Or, 2},
    {"SHL", Operator::ShiftLeft, 8},   {"SHR", Operator::ShiftRight, 8},
    {"XOR", Operator::Xor, 1},         {"\\", Operator::WholeDivide, 8},
    {"^", Operator::Power, 10},
}};

/// Words that are never the name of a value.
bool IsReserved(Word word) {
  return word == Word::Then || word == Word::And || word == Word::Or || word == Word::Xor ||
         word == Word::Mod;
}

int HeightOf(const tree::Node* node) {
  return node == nullptr ? 0 : node->Height;
}

}  // namespace

const OperatorRow* Parser::OperatorOf(std::string_view text) {
  // The rows in the order of their first bytes: where those of a byte begin.
  static constexpr auto kFirst = [] {
    std::array<std::uint8_t, 129> first{};
    for (std::size_t byte = 0, row = 0; byte < first.size(); ++byte) {
      while (row < kOperators.size() && static_cast<std::size_t>(kOperators[row].Sign[0]) < byte)
        ++row;
      first[byte] = static_cast<std::uint8_t>(row);
    }
    return first;
  }();
  const auto byte = static_cast<unsigned char>(text[0]);
  if (byte >= kFirst.size() - 1) return nullptr;
  for (std::size_t row = kFirst[byte]; row < kFirst[byte + 1U]; ++row) {
    if (kOperators[row].Sign == text) return &kOperators[row];
  }
  return nullptr;
}

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
    const OperatorRow* row = FactsAhead(0).Binary;
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
      const tree::NodeList arguments = ArgumentsUntil(node, ")");
      int height = HeightOf(node);
      for (const Node* argument : arguments) height = std::max(height, HeightOf(argument));
      if (!ExpectSign(")")) return node;
      last_bracket_ = bracket;
      node = MakeNode(from, height, tree::Apply{node, arguments});
    } else if (IsSign("[")) {
      Take();
      const Node* index = Expression();
      if (!ExpectSign("]")) return node;
      node =
          MakeNode(from, std::max(HeightOf(node), HeightOf(index)), tree::Subscript{node, index});
    } else if (IsSign(".")) {
      Take();
      if (!IsName()) {
        Expected("The name of a member");
        return node;
      }
      const std::string_view name = Take().Text;
      node = MakeNode(from, HeightOf(node), tree::MemberAccess{node, name});
    } else {
      return node;
    }
  }
  return node;
}

tree::NodeList Parser::ArgumentsUntil(const Node* callee, std::string_view closing) {
  const auto at_end = [this, closing] {
    return closing.empty() ? AtStatementEnd() : IsSign(closing) || AtLineEnd();
  };
  if (at_end()) return {};
  const auto* name = callee == nullptr ? nullptr : callee->As<tree::Name>();
  // Calls within the arguments put theirs behind those read so far, and take them away again.
  const std::size_t first = arguments_.size();
  while (!failed_) {
    const Node* argument = IsSign(",") || at_end() ? nullptr : Expression();
    arguments_.push_back(argument);
    if (argument != nullptr && name != nullptr && argument->Is<tree::ByReference>()) {
      out_.References.push_back({name->Text(), arguments_.size() - first - 1});
    }
    if (!TakeSign(",")) break;
  }
  const tree::NodeList list =
      memory_->List(std::span<const Node* const>(arguments_).subspan(first));
  arguments_.resize(first);
  return list;
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
        return MakeNode(from, 0, tree::MemberAccess{nullptr, Take().Text});
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
  if (joined) {
    const std::string_view name = RoutineName(at);
    return MakeNode(from, 0, tree::Name{name, out_.Names->Of(name)});
  }
  const NameId id = facts_[at_].Name;
  return MakeNode(from, 0, tree::Name{Take().Text, id});
}

}  // namespace tarnwick::basic
