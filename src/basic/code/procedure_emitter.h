// Makes the code of one procedure. The parts stand in files of their own: values, locations,
// calls, statements, loops, input and output.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "basic/code/builder.h"
#include "basic/code/registers.h"

namespace tarnwick::basic {

/// Where a value stands while an instruction uses it.
struct Operand {
  enum class Kind : std::uint8_t {
    Constant,
    Fixed,    ///< a variable's own register
    Plain,    ///< a plain temporary; a text in it is borrowed
    Counted,  ///< a counted temporary with a value of its own
    Shared,   ///< a counted temporary with a variable's value: emptied after use, so that the
              ///< variable's text can grow in place
  };
  std::uint16_t Register = 0;
  Kind Hold = Kind::Constant;
};

/// What may happen between the making of an operand and its use.
enum class Until : std::uint8_t {
  Now,    ///< nothing: the variable's register itself will do
  Later,  ///< code of the program runs: the value must be kept apart
};

/// A place in memory that was found out once, for reading, writing or a reference.
struct Location {
  enum class Kind : std::uint8_t { Register, Global, Reference, Element, Element2, Address, Field };
  Kind Form = Kind::Register;
  std::uint32_t Index = 0;  ///< register, global or field
  Operand Base;             ///< reference, array or record
  Operand First;            ///< indexes
  Operand Second;
  Operand Keeper;  ///< what must live as long as an Address is used
  const Expression* Array = nullptr;
};

class ProcedureEmitter {
 public:
  ProcedureEmitter(CodeBuilder& builder, ProcedureId id);
  /// Makes the whole code. False when it needs more registers than there are.
  bool Make();

 private:
  // Values (emit_values.cpp, emit_operations.cpp)
  Operand Read(const Expression& expression, Until until);
  void Into(const Expression& expression, std::uint16_t target);
  /// Reads the expressions left to right; the operands come behind those in the list.
  void ReadAll(std::span<const Expression* const> expressions, std::vector<Operand>& operands);
  std::vector<Operand> ReadAll(std::span<const Expression* const> expressions);
  std::array<Operand, 2> ReadBoth(const Expression& left, const Expression& right);
  Operand Number(std::int64_t value);
  Operand ConstantOperand(Slot value);
  void Store(const WholeConstant& node, const Expression& whole, std::uint16_t target);
  void Store(const RealConstant& node, const Expression& whole, std::uint16_t target);
  void Store(const TextConstant& node, const Expression& whole, std::uint16_t target);
  void Store(const NothingConstant& node, const Expression& whole, std::uint16_t target);
  void Store(const BinaryOperation& node, const Expression& whole, std::uint16_t target);
  void Store(const UnaryOperation& node, const Expression& whole, std::uint16_t target);
  void Store(const Conversion& node, const Expression& whole, std::uint16_t target);
  void Store(const CharacterAt& node, const Expression& whole, std::uint16_t target);
  void Store(const Choice& node, const Expression& whole, std::uint16_t target);
  void Store(const BuiltInObject& node, const Expression& whole, std::uint16_t target);
  void Store(const FoundFile& node, const Expression& whole, std::uint16_t target);
  void Store(const ArrayBound& node, const Expression& whole, std::uint16_t target);
  void Store(const AddressOf& node, const Expression& whole, std::uint16_t target);
  void Store(const SizeOf& node, const Expression& whole, std::uint16_t target);
  void Store(const VariableParameter& node, const Expression& whole, std::uint16_t target);
  Operand ReadJoin(const BinaryOperation& node);
  /// An operation on a real number and a whole one in one instruction; false when there is none.
  bool StoreMixed(const BinaryOperation& node, std::uint16_t target);
  void StoreBoxed(const BinaryOperation& node, std::uint16_t target, const Operand& left,
                  const Operand& right);

  // Calls (emit_calls.cpp)
  void Store(const PropertyValue& node, const Expression& whole, std::uint16_t target);
  void Store(const MethodCall& node, const Expression& whole, std::uint16_t target);
  void Store(const ProcedureCall& node, const Expression& whole, std::uint16_t target);
  void Store(const PointerCall& node, const Expression& whole, std::uint16_t target);
  void Store(const DllCall& node, const Expression& whole, std::uint16_t target);
  void Store(const BuiltInCall& node, const Expression& whole, std::uint16_t target);
  struct CallArguments {
    CallShape Shape;
    std::vector<std::uint16_t> Registers;
    std::vector<Operand> Held;
    std::vector<const Expression*> Parts;  ///< of a property: object, value when it is set, indexes
  };
  CallArguments NewCall();
  void AddArgument(const Argument& argument, Until until, CallArguments& call,
                   const Variable* parameter);
  CallArguments ReadArguments(ArgumentList arguments, const Procedure* target);
  Operand ReadArgument(const Argument& argument, Until until, CallArguments& call,
                       const Variable* parameter);
  void FinishCall(CallArguments& call, SlotKind result);
  /// Reads the parts of a property and makes all but the object arguments; returns that.
  Operand ReadParts(CallArguments& call);

  // Locations (emit_locations.cpp)
  void Store(const GlobalSlot& node, const Expression& whole, std::uint16_t target);
  void Store(const LocalSlot& node, const Expression& whole, std::uint16_t target);
  void Store(const ArrayElement& node, const Expression& whole, std::uint16_t target);
  void Store(const RecordField& node, const Expression& whole, std::uint16_t target);
  Location Find(const Expression& expression, Until until);
  Location FindElement(const ArrayElement& node, Until until);
  void ReadLocation(const Location& location, const Type& type, std::uint16_t target);
  void WriteLocation(const Location& location, const Type& type, const Operand& value);
  void Release(Location& location);
  /// The address of a location in a plain temporary. `Keeper` of `location` holds what keeps it
  /// valid.
  Operand AddressOfLocation(Location& location);
  Operand ArrayOperand(const Expression& array);
  Operand RecordOperand(const Expression& record);
  /// The register of a variable that stands in one; nothing for all other locations.
  std::optional<std::uint16_t> DirectRegister(const Expression& location) const;

  // Statements (emit_statements.cpp, emit_assign.cpp, emit_loops.cpp, emit_output.cpp)
  void Make(Block block);
  void Make(const Assign& node);
  void Make(const SetProperty& node);
  void Make(const CopyObject& node);
  void Make(const HookEvent& node);
  void Make(const Evaluate& node);
  void Make(const MakeVariable& node);
  void Make(const If& node);
  void Make(const SelectCase& node);
  void Make(const ForLoop& node);
  void Make(const Loop& node);
  void Make(const ExitLoop& node);
  void Make(const LabelMark& node);
  void Make(const Goto& node);
  void Make(const Gosub& node);
  void Make(const OnJump& node);
  void Make(const Return& node);
  void Make(const ExitProcedure& node);
  void Make(const EndProgram& node);
  void Make(const Print& node);
  void Make(const Input& node);
  void Make(const tarnwick::basic::Read& node);
  void Make(const Restore& node);
  void Make(const Swap& node);
  void Make(const InitArray& node);
  void Make(const QuickSort& node);

  void StoreText(const Expression& target, const Operand& text);
  bool AppendInPlace(const Assign& node);
  void StoreInto(std::uint16_t variable, const Type& type, const Expression& value);
  void Fit(Storage storage, std::uint32_t length, std::uint16_t target, std::uint16_t source);
  void ForInRegister(const ForLoop& node, std::uint16_t variable);
  void ForElsewhere(const ForLoop& node);
  void TestCase(const CaseTest& test, const Expression& selector, const Operand& held,
                CodeLabel& hit);
  /// Jumps to the label when the condition's outcome is `when`.
  void Branch(const Expression& condition, bool when, CodeLabel& target);
  bool BranchOnComparison(const BinaryOperation& node, bool when, CodeLabel& target);

  // Registers
  Operand Temporary(bool counted) {
    return {registers_.Temporary(counted), counted ? Operand::Kind::Counted : Operand::Kind::Plain};
  }
  void Free(const Operand& operand);
  void Free(std::span<const Operand> operands) {
    for (const Operand& operand : operands) Free(operand);
  }
  [[nodiscard]] bool IsMain() const { return id_ == kMainProcedure; }
  [[nodiscard]] std::uint16_t LocalRegister(std::uint32_t index) const {
    return static_cast<std::uint16_t>(index + (IsMain() ? globals_ : 0));
  }
  [[nodiscard]] bool IsReference(std::uint32_t local) const {
    const Variable& variable = procedure_.Locals[local];
    return variable.ByReference && !variable.Kind.IsArray();
  }

  CodeBuilder& code_;
  ProcedureId id_;
  const Procedure& procedure_;
  std::uint32_t globals_;
  Registers registers_;
  std::vector<CodeLabel> labels_;
  std::vector<CodeLabel*> loop_ends_;
  std::vector<CallArguments> spare_calls_;  ///< empty ones, whose memory is used again
  CodeLabel end_;
};

/// True when evaluating it may run code of the program or change variables, so that a value read
/// before may be another one after it.
[[nodiscard]] bool RunsCode(const Expression& expression);
/// False when the value is sure to be one that a variable of the type can hold.
[[nodiscard]] bool NeedsFit(const Type& type, const Expression& value);
/// True when a counted register holds values of that type.
[[nodiscard]] inline bool IsCounted(const Type& type) {
  return IsCounted(SlotKindOf(type));
}

}  // namespace tarnwick::basic
