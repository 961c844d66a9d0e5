// The syntax tree: what stands in the source, before any name is looked up.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "basic/source/arena.h"
#include "basic/source/sorts.h"
#include "basic/source/source_place.h"
#include "basic/syntax/name_table.h"

/// Nodes live in the tree's arena. Names are as written, suffix included.
namespace tarnwick::basic {
struct Expression;
}  // namespace tarnwick::basic

namespace tarnwick::basic::tree {

// --- Expressions ---------------------------------------------------------------------------------

struct Node;
using NodeList = std::span<const Node* const>;

struct WholeNumber {
  std::int64_t Value;
};
struct RealNumber {
  double Value;
};
struct TextLiteral {
  std::string_view Value;  ///< quotes off, escapes resolved
};
struct Name {
  Name(std::string_view text, NameId id)
      : first_(text.data()), length_(static_cast<std::uint32_t>(text.size())), Id(id) {}
  [[nodiscard]] std::string_view Text() const { return {first_, length_}; }

 private:
  const char* first_;
  std::uint32_t length_;

 public:
  NameId Id;
};
/// `Target(arguments)`: an element, a call or an indexed property. A null argument is an empty
/// place.
struct Apply {
  const Node* Target;
  NodeList Arguments;
};
/// `Target[Index]`.
struct Subscript {
  const Node* Target;
  const Node* Index;
};
/// `Target.Name`; a null target is the leading dot of WITH and CREATE.
struct MemberAccess {
  const Node* Target;
  std::string_view Name;
};
/// `@Operand`.
struct ByReference {
  const Node* Operand;
};
enum class Operator : std::uint8_t {
  Add,
  Subtract,
  Multiply,
  Divide,
  WholeDivide,
  Modulo,
  Inverse,
  Power,
  ShiftLeft,
  ShiftRight,
  And,
  Or,
  Xor,
  Join,
  Equal,
  NotEqual,
  Less,
  LessEqual,
  Greater,
  GreaterEqual,
  Negate,  ///< unary
  Plus,    ///< unary
  Not,     ///< unary
};
struct Unary {
  Operator Op;
  const Node* Operand;
};
struct Binary {
  Operator Op;
  const Node* Left;
  const Node* Right;
};

/// What the checker has worked out already, in place of the source; the parser makes none.
struct Checked {
  const basic::Expression* Value;
};

struct Node : Sorted<Node> {
  SourcePlace At;
  std::uint16_t Height;   ///< nodes from here to the deepest leaf, at most `kMaxExpressionHeight`
  std::uint8_t Sort = 0;  ///< in `NodeSorts`
};
using NodeSorts = Sorts<Node, WholeNumber, RealNumber, TextLiteral, Name, Apply, Subscript,
                        MemberAccess, ByReference, Unary, Binary, Checked>;

NodeSorts SortsOf(const Node& head);

/// Makes a node with its content.
template <class T>
Node* MakeNode(Arena& memory, SourcePlace at, int height, T content) {
  const Node head{{}, at, static_cast<std::uint16_t>(height)};
  return memory.Make<NodeSorts::Of<T>>(NodeSorts::Made(head, std::move(content)));
}

// --- Declarations --------------------------------------------------------------------------------

/// One dimension of a declared array; `Low` null: the default.
struct Dimension {
  const Node* Low;
  const Node* High;
};
/// `AS type`. No name: not written.
struct TypeName {
  std::string_view Text;
  SourcePlace At;
  const Node* Length = nullptr;  ///< STRING * n
};
/// One name of DIM, REDIM, STATIC, DEFxxx or a field of a TYPE.
struct Declarator {
  std::string_view Name;
  SourcePlace At;
  bool IsArray = false;
  std::span<const Dimension> Dimensions;  ///< empty for `a()`
  TypeName As;
  const Node* Initial = nullptr;   ///< DEFINT i = 0
  NodeList InitialList;            ///< DEFINT a(1 TO 3) = {1, 2, 3}
  std::string_view PropertySet;    ///< field: PROPERTY SET name; "" for none
  std::string_view EventTemplate;  ///< field: AS EVENT(template); "" for none
  bool Private = false;            ///< field: only the members of the type may use it
};
struct ParameterNode {
  std::string_view Name;
  SourcePlace At;
  TypeName As;
  bool ByReference = false;
  bool IsArray = false;
};

// --- Statements ----------------------------------------------------------------------------------

struct StatementNode;
using StatementList = std::span<const StatementNode* const>;

enum class DeclareKind : std::uint8_t { Dim, Redim, Static, Shared };
struct Declaration {
  DeclareKind Kind;
  std::span<const Declarator> Names;
};
struct ConstDeclaration {
  std::string_view Name;
  TypeName As;
  const Node* Value;
};
/// `Target = Value`, `Target += Value`. Null value: nothing stands behind the sign.
struct Assignment {
  const Node* Target;
  const Node* Value;
  Operator Op = Operator::Equal;  ///< Add for +=, Subtract for -=
};
/// `Target++`, `Target--`.
struct Step {
  const Node* Target;
  bool Up;
};
/// A call as a statement: a bare name or member, arguments with or without brackets, CALL.
struct CallLine {
  const Node* Target;
  NodeList Arguments;  ///< null for an empty place
};

struct Arm {
  const Node* Condition;  ///< null: ELSE
  StatementList Body;
};
struct IfBlock {
  std::span<const Arm> Arms;
};
struct CaseValue {
  Operator Op;  ///< Equal for a plain value; GreaterEqual with `High` for a range
  const Node* Value;
  const Node* High;
};
struct CaseBlock {
  std::span<const CaseValue> Values;
  bool Else;
  StatementList Body;
};
struct SelectBlock {
  const Node* Selector;
  std::span<const CaseBlock> Cases;
};
struct ForBlock {
  const Node* Variable;
  const Node* From;
  const Node* To;
  const Node* Step;
  StatementList Body;
};
struct LoopBlock {
  enum class Word : std::uint8_t { While, Do } Kind;
  const Node* Before;
  const Node* After;
  bool UntilBefore;
  bool UntilAfter;
  StatementList Body;
};
enum class ExitKind : std::uint8_t { Sub, Function, For, Do, While };
struct ExitLine {
  ExitKind Kind;
};
struct Label {
  std::string_view Name;
};
struct Jump {
  std::string_view Label;
  bool Returns;  ///< GOSUB
};
struct OnJumpLine {
  const Node* Selector;
  std::span<const std::string_view> Labels;
  bool Returns;
};
struct ReturnLine {};
struct EndLine {};

enum class PrintMark : std::uint8_t { LineEnd, Semicolon, Comma };
struct PrintPart {
  const Node* Value;  ///< null: only the mark
  PrintMark Mark;
};
struct PrintLine {
  bool Printer;  ///< LPRINT
  const Node* Page;
  std::span<const PrintPart> Parts;
};
struct InputLine {
  const Node* Prompt;
  NodeList Targets;
};
struct DataItem {
  std::string_view Text;
  bool Quoted;
};
struct DataLine {
  std::span<const DataItem> Items;
};
struct ReadLine {
  NodeList Targets;
};
struct RestoreLine {
  std::string_view Label;  ///< "": from the first value on
};
struct BindLine {
  const Node* Target;
  std::string_view Procedure;
  SourcePlace ProcedureAt;
};
struct WithBlock {
  const Node* Object;
  StatementList Body;
};
/// CREATE name AS class ... END CREATE. Inside, `Prop = v` and calls mean members of the object.
struct CreateBlock {
  Declarator Object;
  StatementList Body;
};

enum class RoutineKind : std::uint8_t { Sub, Function, Constructor, Event, PropertySet };
struct Routine {
  RoutineKind Kind;
  std::string_view Name;
  SourcePlace NameAt;
  std::span<const ParameterNode> Parameters;
  bool Variadic;          ///< SUBI, FUNCTIONI
  bool HasParameterList;  ///< brackets were written
  TypeName Result;
  std::string_view EventObject;  ///< EVENT component.OnX: the field; "" for the own event
  bool Private;                  ///< in a TYPE: only the members of the type may call it
  StatementList Body;
};
/// DECLARE SUB, DECLARE FUNCTION; `Library` is "" for a procedure of the program.
struct DeclareLine {
  bool Function;
  std::string_view Name;
  std::string_view Library;
  std::string_view Entry;
  std::span<const ParameterNode> Parameters;
  TypeName Result;
};
struct TypeBlock {
  std::string_view Name;
  SourcePlace NameAt;
  std::string_view Extends;  ///< "": a record
  SourcePlace ExtendsAt;
  std::span<const Declarator> Fields;
  StatementList Members;  ///< routines
};

struct ResourceLine {
  std::string_view Name;
  std::string_view File;
};
/// $TYPECHECK, $OPTION EXPLICIT: holds from here on.
struct TypeCheckLine {
  bool On;
};
/// $OPTION DIM type.
struct DefaultTypeLine {
  TypeName As;
};
struct StatementNode : Sorted<StatementNode> {
  SourcePlace At;
  std::uint8_t Sort = 0;  ///< in `StatementSorts`
};
using StatementSorts =
    Sorts<StatementNode, Declaration, ConstDeclaration, Assignment, Step, CallLine, IfBlock,
          SelectBlock, ForBlock, LoopBlock, ExitLine, Label, Jump, OnJumpLine, ReturnLine, EndLine,
          PrintLine, InputLine, DataLine, ReadLine, RestoreLine, BindLine, WithBlock, CreateBlock,
          Routine, DeclareLine, TypeBlock, ResourceLine, TypeCheckLine, DefaultTypeLine>;

StatementSorts SortsOf(const StatementNode& head);

/// Makes a statement with its content.
template <class T>
StatementNode* MakeStatement(Arena& memory, SourcePlace at, T content) {
  return memory.Make<StatementSorts::Of<T>>(StatementSorts::Made({{}, at}, std::move(content)));
}

/// An argument handed over with "@": its callee's parameter is a reference.
struct ReferenceUse {
  std::string_view Callee;
  std::size_t Argument;
};

/// True for statements that say something about the program as a whole, which is collected before
/// any body is checked.
template <class T>
inline constexpr bool kIsHead =
    std::is_same_v<T, Declaration> || std::is_same_v<T, ConstDeclaration> ||
    std::is_same_v<T, Label> || std::is_same_v<T, DataLine> || std::is_same_v<T, CreateBlock> ||
    std::is_same_v<T, Routine> || std::is_same_v<T, DeclareLine> || std::is_same_v<T, TypeBlock> ||
    std::is_same_v<T, ResourceLine> || std::is_same_v<T, DefaultTypeLine>;

/// Some statements of the top level, one behind the other, with all that is in them. The nodes of a
/// piece are of no more use once it is checked, and are freed then.
struct Piece {
  Arena Memory;
  StatementList Statements;
  bool HasHeads = false;  ///< one of them, or of those inside them, is a head
};
/// Bytes of nodes behind which a piece ends with its statement.
inline constexpr std::size_t kPieceBytes = std::size_t{1} << 18U;

/// A whole program as it stands in the source. Its texts lie in the source set, with the
/// preprocessor that it was made by, and in `Texts`.
struct SyntaxTree {
  Arena Texts;  ///< names put together of several tokens
  /// The names in it; those that the checker makes come to them.
  std::unique_ptr<NameTable> Names = std::make_unique<NameTable>();
  std::vector<Piece> Pieces;
  std::vector<ReferenceUse> References;
  std::size_t Routines = 0;  ///< number of them
  bool HasLabels = false;
  bool HasTypes = false;
  bool Generated = false;  ///< the text begins like one that the program wrote itself
  bool ApplicationTypeGiven = false;
  bool Console = false;  ///< $APPTYPE CONSOLE
};

}  // namespace tarnwick::basic::tree
