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
  explicit FakeRunner(CallLog& log) : log_(&log) {}
  bool Succeeds = true;  ///< the result of Start
  RunRequest Last;

  bool Start(const RunRequest& request, RunListener& listener) override {
    log_->Add("run " + request.Source);
    Last = request;
    if (!Succeeds || listener_ != nullptr) return false;
    listener_ = &listener;
    return true;
  }
  void Stop() override { log_->Add("stop run"); }
  [[nodiscard]] bool Running() const override { return listener_ != nullptr; }

  /// What the program does.
  void Begin() { listener_->RunStarted(); }
  void Print(std::string_view text) { listener_->RunOutput(text); }
  void Tell(RunSeverity severity, int line, std::string text) {
    listener_->RunMessaged({severity, Last.Source, line, 1, 1, std::move(text)});
  }
  void Tell(const RunMessage& message) { listener_->RunMessaged(message); }
  void End(RunnerEnd how) { std::exchange(listener_, nullptr)->RunEnded(how); }

 private:
  CallLog* log_;
  RunListener* listener_ = nullptr;
};

}  // namespace tarnwick
