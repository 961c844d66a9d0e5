#include "basic/vm/machine.h"

#include <algorithm>

#include "basic/hosts/printer_host.h"
#include "basic/lib/native_table.h"
#include "basic/vm/machine_state.h"

namespace tarnwick::basic {
namespace {

/// Jumps back and calls between two looks at the clock and the stop flag.
constexpr std::int32_t kLookEvery = 2000;
constexpr auto kRepaintEvery = std::chrono::milliseconds(250);

}  // namespace

MachineState::MachineState(const Code& program, const Hosts& hosts, const RunOptions& options)
    : Program(program),
      Host(hosts),
      Options(options),
      DllEntries(program.Natives.size()),
      DllFound(program.Natives.size(), false),
      Stack(new Slot[options.StackSlots]),
      StackEnd(Stack.get() + options.StackSlots) {
  Library.Random.Restart(options.Seed);
  Library.Memory = &Addresses;
  for (const FunctionInfo& function : Functions()) Natives.push_back(NativeOf(function.Id));
  Frames.reserve(kMostCalls + 1);
  StepLimit = options.MaxSteps;
  const auto now = std::chrono::steady_clock::now();
  NextRepaint = now + kRepaintEvery;
  Deadline = now + std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                       std::chrono::duration<double>(options.MaxSeconds));
}

MachineState::~MachineState() {
  Unwind(0);
  for (const auto& [object, record] : RecordOfObject) Release(record);
}

bool MachineState::Fail(std::string text) {
  if (Ending) return false;
  Result.Text = std::move(text);
  EndWith(RunEnd::Error);
  return false;
}

void MachineState::EndWith(RunEnd end) {
  if (Ending) return;
  Ending = true;
  Result.End = end;
  if (end != RunEnd::Ended) Result.Chain = Chain();
}

std::vector<CallSite> MachineState::Chain() const {
  std::vector<CallSite> chain;
  std::for_each(Frames.rbegin(), Frames.rend(), [&](const auto& frame) {
    const auto at = static_cast<std::size_t>(frame.Pc - Program.Instructions.data());
    chain.push_back({frame.Procedure->Name, Program.PlaceOf(at)});
  });
  return chain;
}

bool MachineState::LookAround() {
  Countdown = kLookEvery;
  if (StopAsked.load(std::memory_order_relaxed)) EndWith(RunEnd::Stopped);
  if (Options.MaxSeconds <= 0 && Host.Objects == nullptr) return !Ending;
  const auto now = std::chrono::steady_clock::now();
  if (Options.MaxSeconds > 0 && now >= Deadline) EndWith(RunEnd::TimeLimit);
  if (Host.Objects != nullptr && now >= NextRepaint) {
    NextRepaint = now + kRepaintEvery;
    Host.Objects->Repaint();
  }
  return !Ending;
}

Machine::Machine(const Code& code, const Hosts& hosts, const RunOptions& options)
    : state_(std::make_unique<MachineState>(code, hosts, options)) {}

Machine::~Machine() = default;

RunResult Machine::Run() {
  MachineState& state = *state_;
  if (state.Push(state.Program.Procedures[0], kNoRegister, true)) {
    state.Globals = state.Base();
    state.RunLoop();
  }
  state.Unwind(0);
  if (state.Host.Printer != nullptr) state.Host.Printer->Flush();
  state.TakeNotes();
  state.Result.Steps = state.Steps;
  return std::move(state.Result);
}

void Machine::SetResources(std::vector<std::string> files) {
  state_->Library.Resources = std::move(files);
}

std::vector<CallSite> Machine::Chain() const {
  return state_->Chain();
}

std::uint64_t Machine::Steps() const noexcept {
  return state_->Steps;
}

void Machine::Stop() {
  state_->StopAsked.store(true, std::memory_order_relaxed);
}

bool Machine::Raise(ObjectId sender, const EventHook& hook, std::span<Value> arguments) {
  MachineState& state = *state_;
  const auto number = static_cast<std::size_t>(hook.Procedure);
  if (state.Ending || number == 0 || number >= state.Program.Procedures.size()) {
    return !state.Ending;
  }
  const ProcedureCode& procedure = state.Program.Procedures[number];
  // Which argument of the event each parameter takes.
  std::vector<Value> values(procedure.ParameterCount);
  std::vector<std::size_t> source(procedure.ParameterCount, arguments.size());
  std::size_t next = 0;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i == 0 && hook.Bound.Kind() != SlotKind::Empty) {
      values[i] = hook.Bound;
    } else if (procedure.Parameters[i].Kind == SlotKind::Object && next < arguments.size() &&
               arguments[next].Kind() == SlotKind::Object) {
      // An event that hands over an object of its own, such as the rectangle of a cell.
      values[i] = arguments[next++];
    } else if (procedure.Parameters[i].TakesSender) {
      values[i] = Value::Object(sender);
      const auto record = state.RecordOfObject.find(sender);
      if (procedure.Parameters[i].Kind == SlotKind::Record) {
        values[i] = record == state.RecordOfObject.end()
                        ? Value()
                        : Value::OfSlot(SlotKind::Record, Slot{.B = record->second});
      }
    } else if (next < arguments.size()) {
      source[i] = next;
      values[i] = arguments[next++];
    }
  }
  state.Invoke(hook.Procedure, values);
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (source[i] < arguments.size()) arguments[source[i]] = values[i];
  }
  return !state.Ending;
}

void Machine::Note(std::string text) {
  state_->Library.Notes.push_back(std::move(text));
  if (!state_->Frames.empty()) state_->TakeNotes();
}

void Machine::Terminate() {
  state_->EndWith(RunEnd::Ended);
}

bool Machine::Ending() const {
  return state_->Ending || state_->StopAsked.load(std::memory_order_relaxed);
}

}  // namespace tarnwick::basic
