// The runner as a process beside the IDE.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <memory>

#include "platform/runner_port.h"

class QProcess;

namespace tarnwick {

/// Starts `tarnwick-run`, which lies beside the IDE or on the search path. A program that runs when
/// this goes is left to itself.
class RunnerProcess final : public RunnerPort {
 public:
  /// `program` is the runner's path; the real one when it is empty.
  explicit RunnerProcess(QString program = {});
  RunnerProcess(const RunnerProcess&) = delete;
  RunnerProcess& operator=(const RunnerProcess&) = delete;
  ~RunnerProcess() override;

  bool Start(const RunRequest& request, RunListener& listener) override;
  void Stop() override;
  [[nodiscard]] bool Running() const override { return run_ != nullptr; }

 private:
  struct Run;
  void ReadReport();
  void ReadOutput();
  void Read();
  void Ended(int code, bool crashed);

  QString program_;
  std::unique_ptr<Run> run_;  ///< null while no program runs
  QTimer first_read_;         ///< for what a program wrote before its start was known
  QTimer stop_wait_;          ///< until a program that was asked to stop is ended
  QObject receiver_;          ///< of the calls that wait in the queue, which end with it
};

}  // namespace tarnwick
