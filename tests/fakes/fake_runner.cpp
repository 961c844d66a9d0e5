#include "fakes/fake_runner.h"

namespace tarnwick {

FakeRunner::FakeRunner(CallLog& log) : log_(&log) {}

bool FakeRunner::Start(const RunRequest& request, RunListener& listener) {
  log_->Add("run " + request.Source);
  Last = request;
  if (!Succeeds || listener_ != nullptr) return false;
  listener_ = &listener;
  return true;
}

void FakeRunner::Stop() {
  log_->Add("stop run");
}

void FakeRunner::Begin() {
  listener_->RunStarted();
}

void FakeRunner::Print(std::string_view text) {
  listener_->RunOutput(text);
}

void FakeRunner::Tell(RunSeverity severity, int line, std::string text) {
  listener_->RunMessaged({severity, Last.Source, line, 1, 1, std::move(text)});
}

void FakeRunner::Tell(const RunMessage& message) {
  listener_->RunMessaged(message);
}

void FakeRunner::End(RunnerEnd how) {
  std::exchange(listener_, nullptr)->RunEnded(how);
}

}  // namespace tarnwick
