#include "basic/tree_text.h"

#include <array>
#include <string_view>

namespace tarnwick::basic::test {
namespace {

constexpr std::array<std::string_view, 23> kOperators = {
    "+",   "-", "*", "/",  "\\", "MOD", "INV", "^",  "SHL", "SHR", "AND", "OR",
    "XOR", "&", "=", "<>", "<",  "<=",  ">",   ">=", "-",   "+",   "NOT"};

std::string_view Sign(tree::Operator op) {
  return kOperators[static_cast<std::size_t>(op)];
}

struct Writer {
  std::string operator()(const tree::WholeNumber& n) const { return std::to_string(n.Value); }
  std::string operator()(const tree::RealNumber& n) const { return std::to_string(n.Value); }
  std::string operator()(const tree::TextLiteral& n) const {
    return '"' + std::string(n.Value) + '"';
  }
  std::string operator()(const tree::Name& n) const { return std::string(n.Text()); }
  std::string operator()(const tree::Apply& n) const {
    std::string text = TextOf(n.Target) + '(';
    for (std::size_t i = 0; i < n.Arguments.size(); ++i) {
      if (i > 0) text += ", ";
      text += TextOf(n.Arguments[i]);
    }
    return text + ')';
  }
  std::string operator()(const tree::Subscript& n) const {
    return TextOf(n.Target) + '[' + TextOf(n.Index) + ']';
  }
  std::string operator()(const tree::MemberAccess& n) const {
    return (n.Target == nullptr ? "" : TextOf(n.Target)) + '.' + std::string(n.Name);
  }
  std::string operator()(const tree::ByReference& n) const { return '@' + TextOf(n.Operand); }
  std::string operator()(const tree::Unary& n) const {
    return '(' + std::string(Sign(n.Op)) + ' ' + TextOf(n.Operand) + ')';
  }
  std::string operator()(const tree::Checked&) const { return "checked"; }
  std::string operator()(const tree::Binary& n) const {
    return '(' + TextOf(n.Left) + ' ' + std::string(Sign(n.Op)) + ' ' + TextOf(n.Right) + ')';
  }
};

}  // namespace

std::string TextOf(const tree::Node* node) {
  return node == nullptr ? "_" : node->Visit(Writer{});
}

}  // namespace tarnwick::basic::test
