// A runner that records what it is asked, and is steered by the test.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "fakes/call_log.h"
#include "platform/runner_port.h"

namespace tarnwick {

/// Log entries: "run SOURCE", "stop run".
class FakeRunner final : public RunnerPort {
 public:
  explicit FakeRunner(CallLog& log);
  bool Succeeds = true;  ///< the result of Start
  RunRequest Last;

  bool Start(const RunRequest& request, RunListener& listener) override;
  void Stop() override;
  [[nodiscard]] bool Running() const override { return listener_ != nullptr; }

  /// What the program does.
  void Begin();
  void Print(std::string_view text);
  void Tell(RunSeverity severity, int line, std::string text);
  void Tell(const RunMessage& message);
  void End(RunnerEnd how);

 private:
  CallLog* log_;
  RunListener* listener_ = nullptr;
};

}  // namespace tarnwick
