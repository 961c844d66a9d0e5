// The parser's state and its functions; each group of functions is a file of its own.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "basic/source/messages.h"
#include "basic/source/source_token.h"
#include "basic/syntax/name_table.h"
#include "basic/syntax/parser.h"
#include "basic/syntax/tolerances.h"
#include "basic/syntax/tree.h"
#include "basic/syntax/words.h"

namespace tarnwick::basic {

/// What a block is closed by.
enum class BlockKind : std::uint8_t {
  If,
  Select,
  For,
  While,
  Do,
  With,
  Create,
  Type,
  Sub,
  Function,
  Constructor,
  Event,
  Property,
};

/// A binary operator and how tightly it binds: higher is tighter.
struct OperatorRow {
  std::string_view Sign;
  tree::Operator Op;
  int Level;
};

class Parser {
 public:
  Parser(TokenLines& lines, bool strict, tree::SyntaxTree& out, Messages& messages)
      : lines_(lines), out_(out), messages_(messages) {
    NewPiece();
    NextLine();
    tolerant_ = !strict && BeginsGenerated();
    out_.Generated = BeginsGenerated();
  }
  void Run();

 private:
  using Statements = std::vector<const tree::StatementNode*>;
  using Node = tree::Node;

  // --- Tokens (parser.cpp) -----------------------------------------------------------------------
  /// A token of the line; behind its end the LineEnd, or the End of the program.
  [[nodiscard]] const SourceToken& Peek(std::size_t ahead = 0) const {
    return line_[std::min(at_ + ahead, last_)];
  }
  /// Stays valid until the line behind it has been taken.
  const SourceToken& Take() {
    if (at_ < last_) return line_[at_++];
    if (Peek().Kind == SourceTokenKind::End) return Peek();
    NextLine();
    return line_before_.back();
  }
  void NextLine();
  /// The token taken last; null at the start of the program.
  [[nodiscard]] const SourceToken* Last() const {
    if (at_ > 0) return &line_[at_ - 1];
    return line_before_.empty() ? nullptr : &line_before_.back();
  }
  /// Number of the line and index in it: grows with each token taken.
  [[nodiscard]] std::pair<std::size_t, std::size_t> Position() const { return {line_number_, at_}; }
  [[nodiscard]] bool IsName(std::size_t ahead = 0) const {
    return Peek(ahead).Kind == SourceTokenKind::Name;
  }
  [[nodiscard]] bool IsSign(std::string_view sign, std::size_t ahead = 0) const {
    return FactsAhead(ahead).Sign == SignCode(sign);
  }
  /// The word of a name; None for every other token.
  [[nodiscard]] Word WordAhead(std::size_t ahead = 0) const { return FactsAhead(ahead).Keyword; }
  bool TakeSign(std::string_view sign) {
    if (!IsSign(sign)) return false;
    Take();
    return true;
  }
  bool TakeWord(Word word) {
    if (WordAhead() != word) return false;
    Take();
    return true;
  }
  [[nodiscard]] bool AtLineEnd(std::size_t ahead = 0) const {
    return Peek(ahead).Kind == SourceTokenKind::LineEnd || Peek(ahead).Kind == SourceTokenKind::End;
  }
  /// True at a line end, a colon, or an ELSE that belongs to a single-line IF.
  [[nodiscard]] bool AtStatementEnd() const {
    return AtLineEnd() || IsSign(":") || (in_line_if_ > 0 && WordAhead() == Word::Else);
  }
  [[nodiscard]] bool BeginsGenerated() const;
  [[nodiscard]] SourcePlace Here() const { return Peek().At; }
  /// Bytes from the start of `from` to the end of the last token taken, when both are on one line.
  [[nodiscard]] std::uint16_t LengthFrom(const SourcePlace& from) const;

  // --- Faults ------------------------------------------------------------------------------------
  void Error(SourcePlace at, std::string text, std::string remedy = {}) {
    messages_.Error(at, std::move(text), std::move(remedy));
    failed_ = true;
  }
  /// "... expected", naming what stands there instead.
  void Expected(std::string_view what);
  bool ExpectSign(std::string_view sign);
  bool ExpectWord(Word word);
  /// The name that must stand here; "" with an error when there is none.
  std::string_view ExpectName(std::string_view what);
  void SkipLine() {
    while (!AtLineEnd()) Take();
  }
  void Tolerate(Tolerance which, SourcePlace at);

  // --- Statements --------------------------------------------------------------------------------
  template <class T>
  void Add(Statements& out, SourcePlace at, T value) {
    tree::StatementNode* const made = tree::MakeStatement(*memory_, at, std::move(value));
    made->At.Length = LengthFrom(at);
    if constexpr (tree::kIsHead<T>) out_.Pieces.back().HasHeads = true;
    if constexpr (std::is_same_v<T, tree::Routine>) ++out_.Routines;
    out.push_back(made);
  }
  /// From here on nodes belong to another piece.
  void NewPiece() { memory_ = &out_.Pieces.emplace_back().Memory; }
  /// Statements up to the word that closes the block, which stays. Those of the top level, which
  /// nothing opens, end where the piece is full.
  tree::StatementList Body(BlockKind kind, SourcePlace opened);
  /// One statement; a separator must follow.
  void Statement(Statements& out, bool first_on_line);
  void StatementOfWord(Word word, Statements& out);
  [[nodiscard]] bool WordBeginsStatement(Word word) const;
  bool LabelHere(Statements& out);
  void EndOfStatement();
  /// The block that the word here closes or divides; false for none.
  [[nodiscard]] bool Closes(BlockKind& kind) const;
  [[nodiscard]] bool IsOpen(BlockKind kind) const;
  /// Takes END and its second word, or the one word that stands for both.
  bool TakeEnd(BlockKind kind);
  /// Reports that a block is not closed where one around it is.
  void MissingEnd(BlockKind kind, SourcePlace opened);

  // blocks.cpp
  void IfStatement(Statements& out);
  tree::StatementList LineBody();
  void SelectStatement(Statements& out);
  tree::CaseValue CaseValueHere();
  void ForStatement(Statements& out);
  void WhileStatement(Statements& out);
  void DoStatement(Statements& out);
  void WithStatement(Statements& out);
  void CreateStatement(Statements& out);

  // simple_statements.cpp
  void AssignmentOrCall(Statements& out);
  void AssignmentTo(const Node* target, SourcePlace at, Statements& out);
  void CallStatement(Statements& out);
  void PrintStatement(Statements& out);
  void InputStatement(Statements& out);
  void OnStatement(Statements& out);
  void JumpStatement(Statements& out, bool returns);
  void ExitStatement(Statements& out);
  void DataStatement(Statements& out);
  void ReadStatement(Statements& out);
  void RestoreStatement(Statements& out);
  void BindStatement(Statements& out);
  void DirectiveLine(Statements& out);
  std::string_view LabelName();

  // declarations.cpp
  void DimStatement(Statements& out, tree::DeclareKind kind);
  void DefStatement(Statements& out, std::string_view type);
  void ConstStatement(Statements& out);
  bool DeclaratorHere(tree::Declarator& out);
  void DimensionsHere(tree::Declarator& out);
  void InitialHere(tree::Declarator& out);
  tree::TypeName TypeHere();
  tree::TypeName OptionalType();

  // routines.cpp
  void RoutineStatement(Statements& out);
  bool RoutineHead(tree::Routine& routine, BlockKind& kind);
  std::string_view RoutineName(SourcePlace& at);
  std::vector<tree::ParameterNode> ParametersHere(bool& variadic);
  void DeclareStatement(Statements& out);
  void TypeStatement(Statements& out);
  void TypeMember(std::vector<tree::Declarator>& fields, Statements& members);
  void PrivacyAhead(std::vector<tree::Declarator>& fields, Statements& members);
  void FieldsHere(std::vector<tree::Declarator>& fields);

  // expressions.cpp
  const Node* Expression() { return BinaryFrom(0); }
  const Node* BinaryFrom(int level);
  const Node* Prefix();
  const Node* Postfix();
  const Node* Primary();
  const Node* PostfixFrom(const Node* node);
  const Node* NumberHere();
  /// The name here, and the parts of one with brackets inside (`pm(1)_OnClick`).
  const Node* NameHere();
  /// The arguments up to `closing`, or to the end of the statement when that is "". Null for an
  /// empty place.
  tree::NodeList ArgumentsUntil(const Node* callee, std::string_view closing);
  template <class T>
  const Node* MakeNode(SourcePlace from, int height, T value);

  /// What is known of a token of the line beside its text.
  struct TokenFacts {
    NameId Name = NameId::None;
    std::uint32_t Sign = 0;               ///< its `SignCode`; 0: no sign
    const OperatorRow* Binary = nullptr;  ///< null: no operator between two values
    Word Keyword = Word::None;
  };
  [[nodiscard]] TokenFacts FactsOf(const SourceToken& token) const;
  [[nodiscard]] const TokenFacts& FactsAhead(std::size_t ahead) const {
    return facts_[std::min(at_ + ahead, last_)];
  }
  /// The bytes of a sign as a number: signs are compared all the time, and have three at most.
  [[nodiscard]] static constexpr std::uint32_t SignCode(std::string_view sign) {
    std::uint32_t code = 0;
    for (const char byte : sign) code = code << 8U | static_cast<unsigned char>(byte);
    return code;
  }
  [[nodiscard]] static const OperatorRow* OperatorOf(std::string_view text);

  TokenLines& lines_;
  tree::SyntaxTree& out_;
  Arena* memory_ = nullptr;  ///< that of the last piece
  Messages& messages_;
  std::vector<SourceToken> line_before_;
  std::vector<SourceToken> line_;
  std::vector<TokenFacts> facts_;  ///< by token of the line
  std::size_t line_number_ = 0;
  std::size_t at_ = 0;                  ///< index in the line
  std::size_t last_ = 0;                ///< index of its last token
  std::vector<const Node*> arguments_;  ///< those of the calls that are being read
  bool tolerant_ = false;
  bool failed_ = false;           ///< the statement being parsed has met an error
  bool private_ = false;          ///< the members of the TYPE being read are private
  bool unclosed_ = false;         ///< the block that ended last was not closed
  int in_line_if_ = 0;            ///< single-line IFs around this statement
  int depth_ = 0;                 ///< of the expression
  std::size_t last_bracket_ = 0;  ///< index of the bracket that opened the last `Apply` made
  std::vector<BlockKind> open_;
};

template <class T>
const tree::Node* Parser::MakeNode(SourcePlace from, int height, T value) {
  if (height >= kMaxExpressionHeight) {
    if (!failed_) Error(from, "The expression is too long", "Split it into several statements");
    height = 0;
    return tree::MakeNode(*memory_, from, 1, tree::WholeNumber{0});
  }
  Node* const made = tree::MakeNode(*memory_, from, height + 1, std::move(value));
  made->At.Length = LengthFrom(from);
  return made;
}

}  // namespace tarnwick::basic
