// The bytecode of a program: what the emitter makes and the machine runs.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "basic/check/types.h"
#include "basic/source/source_place.h"
#include "basic/vm/body.h"

namespace tarnwick::basic {

/// One number per row of opcodes.h.
enum class Op : std::uint16_t {
#define BASIC_OP(name, operands, words) name,
#include "basic/code/opcodes.h"
#undef BASIC_OP
};

/// 8 bytes: what is done, and to which registers.
struct Instruction {
  Op Code = Op::WORD;
  std::uint16_t A = 0;
  std::uint16_t B = 0;
  std::uint16_t C = 0;
};
static_assert(sizeof(Instruction) == 8);

/// Result register of a call whose result is dropped.
inline constexpr std::uint16_t kNoRegister = 0xFFFF;
/// Registers of one procedure at most; variables of the program are registers of the top level.
inline constexpr std::size_t kMaxRegisters = 0xFFFF;

/// C of MAKE_ARRAY, as a sum; C of MAKE_RECORD and MAKE_OBJECT knows the last one only.
inline constexpr std::uint16_t kArrayKeeps = 2;     ///< what fits into the new bounds stays
inline constexpr std::uint16_t kArrayGrows = 4;     ///< no bounds given
inline constexpr std::uint16_t kOnlyOnce = 8;       ///< nothing when it is there already
inline constexpr std::uint16_t kLocalVariable = 1;  ///< its objects end with the procedure

/// What an argument of a call is.
struct ArgumentShape {
  SlotKind Kind = SlotKind::Integer;
  Storage Stored = Storage::Whole;  ///< of the variable meant, when `Reference` is set
  bool Reference = false;           ///< the register holds the address of the variable
  friend bool operator==(const ArgumentShape&, const ArgumentShape&) = default;
};
/// Kinds of a call's arguments and of its result, which is Empty when there is none.
struct CallShape {
  std::vector<ArgumentShape> Arguments;
  SlotKind Result = SlotKind::Empty;
  friend bool operator==(const CallShape&, const CallShape&) = default;
};

/// A parameter of a procedure in the code.
struct ParameterCode {
  SlotKind Kind = SlotKind::Integer;  ///< a reference is Integer: nothing to count
  Storage Stored = Storage::Whole;
  bool ByReference = false;
  bool TakesSender = false;  ///< gets the object that raised the event
};

/// A procedure in the code. Its frame: registers as `Start` holds them (0, "" and constants), then
/// the arguments in the first ones.
struct ProcedureCode {
  std::string Name;
  std::uint32_t First = 0;  ///< index of its first instruction
  SourcePlace At;
  std::uint32_t ParameterCount = 0;
  std::vector<ParameterCode> Parameters;
  bool Variadic = false;
  SlotKind Result = SlotKind::Empty;
  std::uint16_t ResultRegister = kNoRegister;
  std::vector<Slot> Start;             ///< a frame before its arguments come
  std::vector<std::uint16_t> Counted;  ///< registers to release at the end
};

/// From instruction `First` on, up to the next row's, the text at `At` runs.
struct PlaceRow {
  std::uint32_t First = 0;
  SourcePlace At;
};

struct NativeEntry {
  std::string Name;
  std::string Library;
  std::string Entry;
};
struct DataItem {
  std::string Text;
  double Number = 0;
};

/// A whole program. Movable: what frames and arrays point to stays where it is.
struct Code {
  std::vector<Instruction> Instructions;
  std::vector<Slot> Constants;  ///< by CONSTANT
  std::deque<TextBody> Texts;   ///< the text constants, counted once here
  std::vector<ProcedureCode> Procedures;
  std::vector<CallShape> Shapes;
  /// What MAKE_... instructions make: a record of its layout, an array of its elements, an object.
  std::vector<std::unique_ptr<FieldLayout>> Variables;
  std::vector<std::unique_ptr<RecordLayout>> Records;
  std::vector<PlaceRow> Places;
  std::vector<NativeEntry> Natives;
  std::vector<DataItem> Data;
  std::vector<std::string> Files;
  std::vector<std::string> GlobalNames;  ///< of the first registers of the top level

  /// The place of an instruction; line 0 when it has none.
  [[nodiscard]] SourcePlace PlaceOf(std::size_t instruction) const;
};

/// Name of an instruction as opcodes.h has it.
[[nodiscard]] const char* NameOf(Op op);
/// Letters of its operands, and what follows it, as opcodes.h has them.
[[nodiscard]] const char* OperandsOf(Op op);
[[nodiscard]] const char* WordsOf(Op op);

/// The target of a jump, from the word behind it.
constexpr std::uint32_t TargetOf(Instruction word) {
  return word.B | static_cast<std::uint32_t>(word.C) << 16U;
}
/// Words of arguments behind the shape's word.
constexpr std::size_t ArgumentWords(std::size_t arguments) {
  return (arguments + 2) / 3;
}

/// The register of argument `index`, from the words behind the shape's.
constexpr std::uint16_t ArgumentRegister(const Instruction* words, std::size_t index) {
  const Instruction word = words[index / 3];
  return index % 3 == 0 ? word.A : index % 3 == 1 ? word.B : word.C;
}

}  // namespace tarnwick::basic
