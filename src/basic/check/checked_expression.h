// Expressions of the checked program: every name resolved, every type known.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "basic/check/types.h"
#include "basic/lib/function_table.h"
#include "basic/source/sorts.h"
#include "basic/source/source_place.h"

namespace tarnwick::basic {

struct Expression;
using ExpressionList = std::span<const Expression* const>;

// --- Constants -----------------------------------------------------------------------------------

struct WholeConstant {
  std::int64_t Value;
};
struct RealConstant {
  double Value;
};
/// Windows-1252 bytes.
struct TextConstant {
  std::string_view Value;
};
/// No object (what `o = 0` stores); with type None an argument that was left out.
struct NothingConstant {};

// --- Locations: what can be read, assigned to and passed by reference ----------------------------

/// A variable of the program; also STATIC ones. Index in `Program::Globals`.
struct GlobalSlot {
  std::uint32_t Index;
};
/// A variable of the running procedure: parameters first, in order. Index in `Procedure::Locals`.
/// Where that local is `ByReference`, reading and writing go through the reference.
struct LocalSlot {
  std::uint32_t Index;
};
/// An element of an array. `Array` is a location of array type; the indexes are of kind Whole, as
/// many as the array has dimensions. An index out of bounds is a run-time error.
struct ArrayElement {
  const Expression* Array;
  ExpressionList Indexes;
};
/// A field of a record. `Record` is an expression of kind Record.
struct RecordField {
  const Expression* Record;
  std::uint32_t Field;
};

// --- Objects -------------------------------------------------------------------------------------

/// An object that is there without a DIM, such as Application.
struct BuiltInObject {
  ClassId Class;
};
/// The value of a property.
struct PropertyValue {
  const Expression* Object;
  MemberId Member;
  ExpressionList Indexes;  ///< empty for a plain property
};
/// Call of a method. The type is None when it gives no value.
struct MethodCall {
  const Expression* Object;
  MemberId Member;
  std::span<const struct Argument> Arguments;
};

// --- Operations ----------------------------------------------------------------------------------

/// Both operands have the same kind, which is Whole, Real, Text or Variant as noted; comparisons
/// give Whole (`semantics.h` has the value of "true"), all else the kind of the operands.
enum class BinaryOperator : std::uint8_t {
  Add,           ///< Whole, Real, Variant
  Subtract,      ///< Whole, Real, Variant
  Multiply,      ///< Whole, Real, Variant
  Divide,        ///< Real, Variant
  WholeDivide,   ///< Whole; cuts
  Modulo,        ///< Whole; sign of the left operand
  Inverse,       ///< Whole; a INV m
  Power,         ///< Real, Variant
  ShiftLeft,     ///< Whole
  ShiftRight,    ///< Whole
  And,           ///< Whole
  Or,            ///< Whole
  Xor,           ///< Whole
  Join,          ///< Text, Variant
  Remove,        ///< Text: left without every occurrence of right
  Equal,         ///< Whole, Real, Text, Variant, Object
  NotEqual,      ///< likewise
  Less,          ///< Whole, Real, Text, Variant
  LessEqual,     ///< likewise
  Greater,       ///< likewise
  GreaterEqual,  ///< likewise
};
struct BinaryOperation {
  BinaryOperator Operator;
  const Expression* Left;
  const Expression* Right;
};
enum class UnaryOperator : std::uint8_t {
  Negate,  ///< Whole, Real, Variant
  Not,     ///< Whole: every bit
};
struct UnaryOperation {
  UnaryOperator Operator;
  const Expression* Operand;
};
/// The value as the kind of this expression's type. Whole from Real rounds half to even, Text from
/// a number is STR$, a number from Text is VAL; all from and to Variant; Object from Record takes
/// the object of a TYPE that EXTENDS a class.
struct Conversion {
  const Expression* Operand;
};
/// `s$[n]`: the n-th character of a text, from 1; "" outside.
struct CharacterAt {
  const Expression* Text;
  const Expression* Index;
};
/// IIF: all three are evaluated, left to right; both arms have the kind of the result.
struct Choice {
  const Expression* Condition;  ///< Whole or Real; holds when it is not 0
  const Expression* IfTrue;
  const Expression* IfFalse;
};

// --- Calls ---------------------------------------------------------------------------------------

enum class PassBy : std::uint8_t {
  Value,      ///< the value; objects and records are references by themselves
  Reference,  ///< the location `Value`: the procedure reads and writes it
  Array,      ///< the array itself, not a copy
};
struct Argument {
  const Expression* Value;
  PassBy How = PassBy::Value;
};
using ArgumentList = std::span<const Argument>;

/// Call of a procedure of the program; as many arguments as it has parameters, each of the kind
/// of its parameter. A SUBI or FUNCTIONI takes any number, each Text, Whole or Real.
/// In a call of a member of a TYPE the first argument is the record.
struct ProcedureCall {
  ProcedureId Procedure;
  ArgumentList Arguments;
};
/// CALLFUNC: call of the procedure whose number `Address` gives. 0 is a run-time error, and so is
/// a procedure that takes another number of arguments.
struct PointerCall {
  const Expression* Address;
  ArgumentList Arguments;
};
/// Call of an entry of a DLL. Index in `Program::DllEntries`.
struct DllCall {
  std::uint32_t Entry;
  ArgumentList Arguments;
};
/// Call of a native function of the language: one that `FunctionInfo::IsNative` says yes for. The
/// arguments have the kinds of its row; one that was left out between two others is a
/// NothingConstant, those left out at the end are not there.
struct BuiltInCall {
  FunctionId Function;
  ExpressionList Arguments;
};
/// LBOUND, UBOUND of a dimension, counted from 1. 0 for an array without bounds.
struct ArrayBound {
  const Expression* Array;
  const Expression* Dimension;
  bool Upper;
};
/// VARPTR: a number that stands for the bytes of a variable.
struct AddressOf {
  const Expression* Location;
};
/// SIZEOF of an array whose bounds are known only when the program runs.
struct SizeOf {
  const Expression* Location;
  std::int64_t ElementBytes;  ///< of one element of an array
};
/// FILEREC.member: a fact of the file that DIR$ found last.
enum class FoundFilePart : std::uint8_t { Filename, Size, Date, Time, Attributes };
struct FoundFile {
  FoundFilePart Part;  ///< Size and Attributes give Whole, the others Text
};
/// PARAMSTR$(n), PARAMVAL(n) and the two counts, inside a SUBI or FUNCTIONI.
struct VariableParameter {
  bool Text;
  const Expression* Index;  ///< from 1; null: the count
};

/// One expression. `Kind` is its type: of a location the storage that it has, of anything else
/// Whole, Double, String, Variant, Object, Record or None.
struct Expression : Sorted<Expression> {
  Type Kind;
  SourcePlace At;
  std::uint8_t Sort = 0;  ///< in `ExpressionSorts`
  [[nodiscard]] ValueKind Gives() const noexcept { return KindOf(Kind); }
  /// True for what can be assigned to and passed by reference.
  [[nodiscard]] bool IsLocation() const noexcept;
};
using ExpressionSorts =
    Sorts<Expression, WholeConstant, RealConstant, TextConstant, NothingConstant, GlobalSlot,
          LocalSlot, ArrayElement, RecordField, BuiltInObject, PropertyValue, MethodCall,
          BinaryOperation, UnaryOperation, Conversion, CharacterAt, Choice, ProcedureCall,
          PointerCall, DllCall, BuiltInCall, ArrayBound, AddressOf, SizeOf, FoundFile,
          VariableParameter>;

ExpressionSorts SortsOf(const Expression& head);
inline bool Expression::IsLocation() const noexcept {
  return Is<GlobalSlot>() || Is<LocalSlot>() || Is<ArrayElement>() || Is<RecordField>();
}

}  // namespace tarnwick::basic
