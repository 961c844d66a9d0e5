#include "qt/kit/runner_process.h"

#include <QCoreApplication>
#include <QPointer>
#include <QProcess>
#include <QStandardPaths>
#include <utility>

#include "platform/run_report_reader.h"
#include "qt/kit/text_bridge.h"

namespace tarnwick {

namespace {

constexpr int kStartWait = 5000;  // milliseconds
constexpr int kStopWait = 2000;
constexpr int kLeaveWait = 200;

QString FindRunner() {
  const QString name = QStringLiteral("tarnwick-run");
  const QString beside =
      QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
  return beside.isEmpty() ? QStandardPaths::findExecutable(name) : beside;
}

std::string_view ViewOf(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

}  // namespace

/// One running program.
struct RunnerProcess::Run {
  explicit Run(RunListener& listener) : Listener(listener), Report(listener) {}

  QProcess* Process = new QProcess;
  RunListener& Listener;
  RunReportReader Report;
  Utf8Pieces Printed;
  bool Stopped = false;  ///< it was asked to end
};

RunnerProcess::RunnerProcess(QString program) : program_(std::move(program)) {
  for (QTimer* timer : {&first_read_, &stop_wait_}) timer->setSingleShot(true);
  stop_wait_.setInterval(kStopWait);
  QObject::connect(&first_read_, &QTimer::timeout, &receiver_, [this] { Read(); });
  QObject::connect(&stop_wait_, &QTimer::timeout, &receiver_, [this] {
    if (run_ != nullptr) run_->Process->kill();
  });
}

RunnerProcess::~RunnerProcess() {
  if (run_ == nullptr) return;
  // From here on the end of its input no longer means that it is to stop.
  run_->Process->disconnect();
  run_->Process->write("leave\n");
  run_->Process->waitForBytesWritten(kLeaveWait);
  // The process object would end the program, so it stays behind.
}

bool RunnerProcess::Start(const RunRequest& request, RunListener& listener) {
  const QString program = program_.isEmpty() ? FindRunner() : program_;
  if (run_ != nullptr || program.isEmpty()) return false;
  auto run = std::make_unique<Run>(listener);
  QProcess* const process = run->Process;
  process->start(program, {QStringLiteral("--with-ide"), QStringLiteral("--report=tab"),
                           QStringLiteral("--program-folder"), ToQString(request.ProgramFolder),
                           QStringLiteral("--exe-name"), ToQString(request.ExeName),
                           ToQString(request.Source)});
  if (!process->waitForStarted(kStartWait)) {
    delete process;
    return false;
  }
  run_ = std::move(run);
  // Queued, so that nothing is heard before this call has returned.
  QObject::connect(
      process, &QProcess::readyReadStandardError, &receiver_, [this] { ReadReport(); },
      Qt::QueuedConnection);
  QObject::connect(
      process, &QProcess::readyReadStandardOutput, &receiver_, [this] { ReadOutput(); },
      Qt::QueuedConnection);
  QObject::connect(
      process, &QProcess::finished, &receiver_,
      [this](int code, QProcess::ExitStatus status) {
        Read();
        Ended(code, status == QProcess::CrashExit);
      },
      Qt::QueuedConnection);
  // What came while the start was waited for, and a program that has ended already.
  first_read_.start();
  return true;
}

void RunnerProcess::ReadReport() {
  if (run_ != nullptr) run_->Report.Take(ViewOf(run_->Process->readAllStandardError()));
}

void RunnerProcess::ReadOutput() {
  if (run_ == nullptr) return;
  const std::string text = run_->Printed.Take(ViewOf(run_->Process->readAllStandardOutput()));
  if (!text.empty()) run_->Listener.RunOutput(text);
}

void RunnerProcess::Read() {
  ReadReport();
  ReadOutput();
}

void RunnerProcess::Stop() {
  if (run_ == nullptr || std::exchange(run_->Stopped, true)) return;
  run_->Process->write("stop\n");
  stop_wait_.start();
}

void RunnerProcess::Ended(int code, bool crashed) {
  const std::unique_ptr<Run> run = std::move(run_);
  if (run == nullptr) return;
  stop_wait_.stop();
  run->Process->deleteLater();
  RunnerEnd how = crashed ? RunnerEnd::RunnerFault : RunnerEndOf(code);
  // A runner that failed says why in words of its own.
  if (how == RunnerEnd::RunnerFault || how == RunnerEnd::BadUsage) {
    const std::string& why = run->Report.LastOther();
    if (!why.empty() && !run->Stopped) {
      run->Listener.RunMessaged({RunSeverity::Error, {}, 0, 0, 0, why});
    }
  }
  // A stop that lets the program come to its end, or that had to be forced, is a stop all the same.
  if (run->Stopped && (crashed || how == RunnerEnd::Ended)) how = RunnerEnd::Stopped;
  run->Listener.RunEnded(how);
}

}  // namespace tarnwick
