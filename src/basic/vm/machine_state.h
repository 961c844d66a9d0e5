// Everything a running program consists of. Shared by the parts of the machine; others use Machine.
#pragma once

#include <atomic>
#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "basic/code/code.h"
#include "basic/hosts/object_host.h"
#include "basic/vm/address_book.h"
#include "basic/vm/library_call.h"
#include "basic/vm/run_result.h"

namespace tarnwick::basic {

/// One running call.
struct Frame {
  const ProcedureCode* Procedure = nullptr;
  const Instruction* Pc = nullptr;  ///< where it is; of a caller its CALL
  Slot* Base = nullptr;             ///< its first register
  Slot* End = nullptr;              ///< behind its last one
  std::uint32_t Gosubs = 0;         ///< heights of the lists below when it began
  std::uint32_t Objects = 0;
  std::uint16_t Result = kNoRegister;  ///< of the caller
  bool Activation = false;             ///< started by the outside: its end leaves the loop
  bool Variadic = false;               ///< owns the last row of `Variadics`
  std::vector<Value>* Out = nullptr;   ///< gets the parameters at the end
};

/// The arguments of a SUBI or FUNCTIONI.
struct VariadicArguments {
  std::vector<Value> Texts;
  std::vector<Value> Numbers;
};

struct MachineState {
  MachineState(const Code& program, const Hosts& hosts, const RunOptions& options);
  ~MachineState();

  const Code& Program;
  Hosts Host;
  RunOptions Options;
  LibraryState Library;
  std::vector<NativeFunction> Natives;         ///< by FunctionId
  std::vector<std::optional<int>> DllEntries;  ///< number of each entry at the host
  std::vector<bool> DllFound;

  std::unique_ptr<Slot[]> Stack;
  Slot* StackEnd = nullptr;
  Slot* Globals = nullptr;  ///< the registers of the top level
  std::vector<Frame> Frames;
  std::vector<const Instruction*> Gosubs;
  std::vector<ObjectId> LocalObjects;
  std::vector<VariadicArguments> Variadics;
  std::map<ObjectId, Body*> RecordOfObject;  ///< records of a TYPE that extends a class
  AddressBook Addresses;
  std::size_t ArraySlots = 0;
  std::size_t Activations = 0;
  std::size_t NextData = 0;
  Value CallResult;  ///< of the activation that ended last
  std::string InputRest;
  bool PrinterMissed = false;  ///< the note that there is no printer was made

  std::uint64_t Steps = 0;
  std::uint64_t StepLimit = 0;
  std::int32_t Countdown = 1;
  std::chrono::steady_clock::time_point Deadline;
  std::chrono::steady_clock::time_point NextRepaint;
  std::atomic<bool> StopAsked = false;
  bool Ending = false;
  RunResult Result;

  // --- Ends (machine.cpp)
  /// Ends the program with an error at the running instruction. False, for `return Fail(...)`.
  bool Fail(std::string text);
  void EndWith(RunEnd end);
  /// The running calls, innermost first.
  [[nodiscard]] std::vector<CallSite> Chain() const;
  /// The rare part of the look at limits and the stop flag. False when the program ends.
  bool LookAround();
  /// To be asked behind what may wait for the user: a program that was stopped meanwhile does not
  /// go on with the line.
  bool EndsBehindWaiting() {
    if (StopAsked.load(std::memory_order_relaxed)) EndWith(RunEnd::Stopped);
    return Ending;
  }

  // --- Calls (calls.cpp)
  /// Opens the frame of a procedure; its parameters are still empty. False after an error.
  bool Push(const ProcedureCode& procedure, std::uint16_t result, bool activation);
  /// The frame itself, at a place on the stack that has room for it.
  Frame& OpenFrame(const ProcedureCode& procedure, Slot* base, std::uint16_t result) {
    Frame& frame = Frames.emplace_back();
    frame.Procedure = &procedure;
    frame.Pc = Program.Instructions.data() + procedure.First;
    frame.Base = base;
    frame.End = base + procedure.Start.size();
    frame.Gosubs = static_cast<std::uint32_t>(Gosubs.size());
    frame.Objects = static_cast<std::uint32_t>(LocalObjects.size());
    frame.Result = result;
    return frame;
  }
  /// CALL where EnterPlain (plain_calls.h) does not do it.
  bool Enter(const Instruction* call);
  bool EnterPointer(const Instruction* call);
  /// Closes the running frame and hands its result over. True when it was an activation.
  bool Leave();
  /// Frees all frames from the last one on, down to `count` of them.
  void Unwind(std::size_t count);
  bool PushVariadic(const ProcedureCode& procedure, std::vector<Value> values, std::uint16_t result,
                    bool activation);
  bool TooManyActivations();
  /// Runs a procedure to its end with these arguments; they get what its parameters hold then.
  bool Invoke(ProcedureId id, std::vector<Value>& arguments);
  void RunLoop();

  // --- Values of a call's registers (host_calls.cpp)
  void ReadArguments(const Instruction* words, std::vector<Value>& arguments) const;
  void WriteArguments(const Instruction* words, std::vector<Value>& arguments);
  /// Stores a value into a register as the kind that its shape has.
  void StoreResult(std::uint16_t target, SlotKind kind, Value value);
  bool CallLibrary(const Instruction* call);
  bool CallDll(const Instruction* call);
  bool CallMethod(const Instruction* call);
  bool GetProperty(const Instruction* call);
  bool SetProperty(const Instruction* call);
  bool CopyObject(ObjectId to, ObjectId from);
  bool HookEvent(const Instruction* hook);
  bool BuiltIn(std::uint16_t target, ClassId kind);
  void TakeNotes();
  bool NeedObjects();

  // --- Arrays (arrays.cpp)
  /// The element at one or two indexes when the quick way did not find it: grows the array, or
  /// ends the program with an error and returns null.
  Slot* Element(ArrayBody* array, std::int64_t index);
  Slot* Element2(ArrayBody* array, std::int64_t first, std::int64_t second);
  Slot* Elements(const Instruction* words, ArrayBody* array);
  Slot* Flat(ArrayBody* array, std::int64_t index);
  bool MakeArray(const Instruction* make);
  bool FillArray(ArrayBody& array, std::vector<Bound> bounds, bool keep, bool local);
  bool GrowArray(ArrayBody& array, std::size_t count);
  /// Makes what elements from an index on need: objects, records.
  bool StartElements(ElementsBody& elements, const ArrayBody& array, std::size_t from, bool local);
  /// True when so many more array slots are within the limit.
  bool TakeSlots(std::size_t count);
  bool NeedArray(const Instruction* need);
  bool GetBound(const Instruction* bound);
  bool ClearArray(ArrayBody* array);
  bool Sort(const Instruction* sort);

  // --- Records and objects (records.cpp)
  bool MakeObject(Slot& variable, const FieldLayout& layout, int index, bool local);
  RecordBody* MakeRecord(const RecordLayout& layout, std::string_view name, int index, bool local,
                         int depth);
  bool MakeRecordAt(Slot& variable, const FieldLayout& layout, bool local);
  bool CopyRecord(Body* to, Body* from);
  /// The start value of a variable or element that needs a body.
  bool MakeStart(Slot& variable, const FieldLayout& layout, SlotKind kind, int index, bool local,
                 int depth);

  /// BINARY_BOX: a new variant with the result of an operator on two.
  bool OperateVariants(const Instruction* operation);

  // --- Console and data (console_steps.cpp)
  /// To a page of the console, or to the printer (`kPrinterPage`).
  bool PrintText(std::string_view text, std::int64_t page);
  bool PrintZone(std::int64_t page);
  bool InputLine();
  void InputField(Slot& target, bool rest);
  const DataItem* ReadData();
  void FoundFact(std::uint16_t target, std::uint16_t part);
  bool Parameter(const Instruction* read, bool text);

  [[nodiscard]] Slot* Base() { return Frames.back().Base; }
};

/// Result kept to the width of a storage.
[[nodiscard]] Slot FitTo(Storage storage, Slot value);

/// One loop per way of dispatching; `Counting` counts each instruction against MaxSteps.
void RunThreaded(MachineState& state);
void RunThreadedCounting(MachineState& state);
void RunSwitch(MachineState& state);
void RunSwitchCounting(MachineState& state);

}  // namespace tarnwick::basic
