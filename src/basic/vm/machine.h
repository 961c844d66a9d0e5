// The machine that runs bytecode.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "basic/code/code.h"
#include "basic/hosts/hosts.h"
#include "basic/hosts/object_host.h"
#include "basic/vm/run_result.h"

namespace tarnwick::basic {

struct MachineState;

/// Runs one program once.
///
///   Machine machine(code, hosts, options);
///   const RunResult result = machine.Run();
///
/// Code and hosts outlive it. Only `Stop` may be called from another thread.
class Machine : public EventSink {
 public:
  Machine(const Code& code, const Hosts& hosts, const RunOptions& options);
  ~Machine() override;
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;

  /// Runs the top level to its end. All variables are freed afterwards.
  RunResult Run();
  /// The files of the program's $RESOURCE lines, in order; set before `Run`.
  void SetResources(std::vector<std::string> files);
  /// The running calls, innermost first. They stay when an exception of a host ends the run.
  [[nodiscard]] std::vector<CallSite> Chain() const;
  /// Instructions run so far, where a limit of steps is set.
  [[nodiscard]] std::uint64_t Steps() const noexcept;
  /// Ends the program at the next jump back, call or return of a host.
  void Stop();

  bool Raise(ObjectId sender, const EventHook& hook, std::span<Value> arguments) override;
  void Note(std::string text) override;
  void Terminate() override;
  [[nodiscard]] bool Ending() const override;

  /// True when the build has the threaded dispatch.
  [[nodiscard]] static bool HasThreadedDispatch();

 private:
  std::unique_ptr<MachineState> state_;
};

}  // namespace tarnwick::basic
