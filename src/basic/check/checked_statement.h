// Statements of the checked program.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "basic/check/checked_expression.h"

namespace tarnwick::basic {

struct Statement;
using Block = std::span<const Statement* const>;

/// Stores a value into a location. Numbers and texts are of the target's kind and are fitted to its
/// storage (low bits of a narrower integer, cut or padded fixed string). A record copies its
/// fields, of which arrays are shared; an object stores the reference.
struct Assign {
  const Expression* Target;
  const Expression* Value;
};
/// Sets a property; the value has the kind of the property, or is an Object.
struct SetProperty {
  const Expression* Object;
  MemberId Member;
  ExpressionList Indexes;
  const Expression* Value;
};
/// Copies the values of an object into another of a class that copies (QFONT, QRECT).
struct CopyObject {
  const Expression* Target;
  const Expression* Source;
};
/// Ties a procedure to an event; `kNoProcedure` takes the hook away. `Bound` is null, or the record
/// that is handed to the procedure as its first argument in front of those of the event.
struct HookEvent {
  const Expression* Object;
  MemberId Event;
  ProcedureId Procedure;
  const Expression* Bound;
};
/// Evaluates a call and drops its value.
struct Evaluate {
  const Expression* Call;
};

/// Bounds of one dimension, of kind Whole. `Low` null: 0.
struct DimensionBounds {
  const Expression* Low;
  const Expression* High;
};
/// Makes the value of a variable that needs one: an array, an object, a record. `Variable` is a
/// GlobalSlot, a LocalSlot, or for Redim any location of array type. Nothing is done for a variable
/// of the program that has its object or record already. An array without bounds grows as it is
/// written to.
struct MakeVariable {
  const Expression* Variable;
  std::span<const DimensionBounds> Dimensions;
  bool Keeps = false;     ///< REDIM: what fits into the new bounds stays
  bool OnlyOnce = false;  ///< STATIC: nothing the second time
};

struct IfArm {
  const Expression* Condition;  ///< Whole or Real; null: ELSE
  Block Body;
};
struct If {
  std::span<const IfArm> Arms;
};
struct CaseTest {
  BinaryOperator Operator;  ///< a comparison; GreaterEqual with `High` set: the range Value TO High
  const Expression* Value;  ///< of the selector's kind
  const Expression* High;   ///< null when it is no range
};
struct CaseArm {
  std::span<const CaseTest> Tests;  ///< any of them; empty: CASE ELSE
  Block Body;
};
/// The selector is evaluated once.
struct SelectCase {
  const Expression* Selector;  ///< Whole, Real, Text or Variant
  std::span<const CaseArm> Arms;
};
/// `Variable` is a GlobalSlot or LocalSlot; all four are of one kind, Whole or Real. Bounds and
/// step are evaluated once; the body may change the variable. Null step: 1.
struct ForLoop {
  const Expression* Variable;
  const Expression* From;
  const Expression* To;
  const Expression* Step;
  Block Body;
};
/// WHILE and DO. A null condition is always met; `Until...` loops while the condition does not
/// hold.
struct Loop {
  const Expression* Before;
  const Expression* After;
  bool UntilBefore;
  bool UntilAfter;
  Block Body;
};
/// Leaves the loop that stands `Levels` loops (FOR, WHILE, DO) further out; 0: the innermost.
struct ExitLoop {
  std::uint32_t Levels;
};
struct LabelMark {
  LabelId Label;
};
struct Goto {
  LabelId Label;
};
struct Gosub {
  LabelId Label;
};
/// ON n GOTO, ON n GOSUB: the n-th label, from 1; outside nothing happens.
struct OnJump {
  const Expression* Selector;
  std::span<const LabelId> Labels;
  bool Returns;
};
/// RETURN: behind the last GOSUB of this call; without one it leaves the procedure.
struct Return {};
/// EXIT SUB, EXIT FUNCTION.
struct ExitProcedure {};
/// END: ends the program.
struct EndProgram {};

enum class PrintSeparator : std::uint8_t { LineEnd, Nothing, NextZone };
struct PrintItem {
  const Expression* Value;   ///< Whole, Real, Text or Variant; null: only the separator
  PrintSeparator Separator;  ///< what follows the value
};
/// PRINT and LPRINT. No items: an empty line.
struct Print {
  const Expression* Page;  ///< `PRINT #n,`; null: the visible page
  std::span<const PrintItem> Items;
  bool Printer;  ///< LPRINT: there is no page
};
/// INPUT: one line, its values parted by commas.
struct Input {
  const Expression* Prompt;  ///< null: none
  ExpressionList Targets;    ///< locations of numbers and texts
};
/// READ: the next values of DATA.
struct Read {
  ExpressionList Targets;
};
/// RESTORE: the next value to read, an index in `Program::Data`.
struct Restore {
  std::uint32_t Index;
};
/// SWAP: two locations of one type.
struct Swap {
  const Expression* Left;
  const Expression* Right;
};
/// INITARRAY: fills the elements from the first on, the last index running fastest; the rest is 0.
struct InitArray {
  const Expression* Array;
  ExpressionList Values;  ///< of the kind of the elements
};
/// QUICKSORT between two elements of one array, both included.
struct QuickSort {
  const Expression* First;
  const Expression* Last;
  bool Descending;
};

/// One statement.
struct Statement : Sorted<Statement> {
  SourcePlace At;
  std::uint8_t Sort = 0;  ///< in `StatementSorts`
};
using StatementSorts =
    Sorts<Statement, Assign, SetProperty, CopyObject, HookEvent, Evaluate, MakeVariable, If,
          SelectCase, ForLoop, Loop, ExitLoop, LabelMark, Goto, Gosub, OnJump, Return,
          ExitProcedure, EndProgram, Print, Input, Read, Restore, Swap, InitArray, QuickSort>;

StatementSorts SortsOf(const Statement& head);

}  // namespace tarnwick::basic
