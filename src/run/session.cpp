#include "run/session.h"

#include <QTimer>
#include <atomic>
#include <chrono>
#include <csignal>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>

#include <sys/stat.h>
#include <unistd.h>

#include "basic/vm/machine.h"
#include "hosts/disk_files.h"
#include "hosts/fault_report.h"
#include "hosts/local_clock.h"
#include "hosts/prepared_program.h"
#include "hosts/profile_calls.h"
#include "hosts/stream_console.h"
#include "looks/text_bridge.h"
#include "objects/class_table.h"
#include "objects/traced_widgets.h"
#include "platform/native_files.h"
#include "platform/profile_files.h"
#include "run/desktop_system.h"
#include "run/line_printer.h"
#include "run/message_windows.h"
#include "run/stage.h"
#include "run/stop_listener.h"
#include "run/tcp_network.h"
#include "run/window_console.h"
#include "text/code_page.h"
#include "text/path_text.h"

namespace tarnwick::run {
namespace {

using hosts::PreparedProgram;
using hosts::RunExit;
using hosts::RunReport;

/// Between two repaints of windows while the program does not wait for events.
constexpr auto kRepaintEvery = std::chrono::milliseconds(250);

/// What the program can ask about itself.
objects::ProgramFacts FactsOf(const PreparedProgram& program, const RunnerArguments& arguments) {
  const std::string_view path = program.Files.File(0).Path;
  const std::string_view name = BareName(path);
  const std::string stem(name.substr(0, name.rfind('.')));
  std::string exe = arguments.ExeName;
  const std::string folder = arguments.ProgramFolder.empty() ? std::string(FolderOf(path))
                                                             : arguments.ProgramFolder + "\\";
  if (exe.empty()) exe = std::string(FolderOf(path)) + stem + ".exe";
  // A bare name is that of a file in the program folder.
  if (exe.find('\\') == std::string::npos) exe.insert(0, folder);
  const std::string_view title = BareName(exe);
  return {exe, std::string(title.substr(0, title.rfind('.'))), program.Resources};
}

/// The request to stop, from the program that started this one. It may come at any time, also while
/// a message is shown.
class StopRequests {
 public:
  StopRequests(const RunnerArguments& arguments, std::FILE* in) {
    if (!arguments.WithIde) return;
    // What reads the report may end before the program does.
    std::signal(SIGPIPE, SIG_IGN);
    listener_ = std::make_unique<StopListener>(::fileno(in), [this] { Stop(); });
  }
  [[nodiscard]] bool Asked() const { return asked_; }
  /// The machine that is to stop; null for none.
  void SetMachine(basic::Machine* machine) {
    const std::scoped_lock lock(mutex_);
    machine_ = machine;
    if (asked_ && machine_ != nullptr) machine_->Stop();
  }

 private:
  /// Called by the listener's thread.
  void Stop() {
    {
      const std::scoped_lock lock(mutex_);
      asked_ = true;
      if (machine_ != nullptr) machine_->Stop();
    }
    // Wakes a program that waits for events, and closes the message that it shows.
    CloseMessagesSoon();
  }

  std::mutex mutex_;
  basic::Machine* machine_ = nullptr;
  std::atomic<bool> asked_ = false;
  std::unique_ptr<StopListener> listener_;  ///< last: its thread uses the others
};

/// While it lives, the machine ends when that is asked for or the time is over, also while it waits
/// for events.
class Stopping {
 public:
  Stopping(basic::Machine& machine, const RunnerArguments& arguments, StopRequests& requests)
      : machine_(machine), requests_(requests) {
    requests_.SetMachine(&machine);
    if (arguments.MaxSeconds > 0) {
      timer_.setSingleShot(true);
      QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
        late_ = true;
        machine_.Stop();
        CloseMessages();
      });
      timer_.start(std::chrono::milliseconds(static_cast<int>(arguments.MaxSeconds * 1000)));
    }
  }
  Stopping(const Stopping&) = delete;
  Stopping& operator=(const Stopping&) = delete;
  ~Stopping() { requests_.SetMachine(nullptr); }

  /// What the end was, seen from outside.
  [[nodiscard]] basic::RunEnd EndOf(basic::RunEnd end) const {
    if (end != basic::RunEnd::Stopped && end != basic::RunEnd::Ended) return end;
    // A program that waited in its last line ends by itself when it is stopped.
    if (late_) return basic::RunEnd::TimeLimit;
    return requests_.Asked() ? basic::RunEnd::Stopped : end;
  }

 private:
  basic::Machine& machine_;
  StopRequests& requests_;
  QTimer timer_;
  bool late_ = false;
};

/// Lets windows repaint while the program sleeps.
class SleepingWindows {
 public:
  explicit SleepingWindows(Stage& stage) : stage_(stage) {}
  void Tick() {
    const auto now = std::chrono::steady_clock::now();
    if (now - last_ < kRepaintEvery) return;
    last_ = now;
    stage_.Repaint();
  }

 private:
  Stage& stage_;
  std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

/// Line by line, so that the file has all lines when the program hangs or is ended.
void WriteTrace(std::FILE* file, std::string_view line) {
  const std::string text = CodePageToUtf8(line) + "\n";
  std::fwrite(text.data(), 1, text.size(), file);
  std::fflush(file);
}

/// True when nobody sees what is written to the standard streams: a program that was started from
/// the desktop, without a terminal. A pipe and a file have a reader.
bool IsUnread(std::FILE* in, std::FILE* out) {
  struct stat facts {};
  if (::isatty(::fileno(in)) != 0 || ::isatty(::fileno(out)) != 0) return false;
  if (::fstat(::fileno(out), &facts) != 0) return false;
  return S_ISCHR(facts.st_mode) || S_ISSOCK(facts.st_mode);
}

bool HasShownForms(const objects::ObjectWorld& world) {
  bool shown = false;
  world.ForEach([&](const objects::ObjectRecord& object) {
    const auto* const form = object.As<objects::FormState>();
    shown = shown || (form != nullptr && form->Shown);
  });
  return shown;
}

/// `trace` gets the changes that the windows show; null for none.
basic::RunResult RunCode(const PreparedProgram& program, const RunnerArguments& arguments,
                         const RunStreams& streams, const RunReport& report, StopRequests& requests,
                         std::FILE* trace) {
  std::vector<std::string> words;
  for (const std::string& word : arguments.Arguments) words.push_back(Utf8ToCodePage(word));
  // Standard input belongs to the program that started this one, if there is one.
  const objects::ProgramFacts facts = FactsOf(program, arguments);
  std::optional<WindowConsole> window;
  std::optional<hosts::StreamConsole> stream;
  basic::ConsoleHost* console = streams.Console;
  const bool unread =
      !arguments.WithIde && (arguments.Windows || IsUnread(streams.In, streams.Out));
  if (console == nullptr && (arguments.WithIde || unread)) {
    console = &window.emplace(looks::ToQString(facts.Title), streams.Out);
    window->ShowsText = unread;
  } else if (console == nullptr) {
    console = &stream.emplace(streams.In, streams.Out);
  }
  hosts::DiskFiles files;
  hosts::LocalClock clock(arguments.Clock);
  DesktopSystem system(std::move(words), streams.Err);
  NativeFiles disk;
  ProfileFiles profiles(disk);
  hosts::ProfileCalls natives(profiles);
  Stage stage;
  objects::TracedWidgets traced(stage, [&](std::string_view line) { WriteTrace(trace, line); });
  objects::ObjectWorld world(trace != nullptr ? static_cast<objects::WidgetPort&>(traced) : stage,
                             &files, facts);
  traced.Connect(world);
  stage.Connect(world);
  TcpNetwork network([&](int wait_ms) { stage.Rest(wait_ms); });
  world.UseNetwork(network);
  LinePrinter lines(stage);
  basic::Machine machine(program.Code, {console, &world, &files, &clock, &system, &natives, &lines},
                         arguments.Options());
  machine.SetResources(program.Resources);
  world.Connect(machine);
  if (window) {
    window->Ending = [&] { return machine.Ending(); };
    window->Closed = [&] { machine.Stop(); };
  }
  SleepingWindows sleeping(stage);
  clock.Ending = [&] {
    sleeping.Tick();
    return machine.Ending();
  };
  const Stopping stopping(machine, arguments, requests);
  const hosts::FaultWatch::Running watched(machine, report);
  basic::RunResult result = machine.Run();
  result.End = stopping.EndOf(result.End);
  std::fflush(streams.Out);
  // A program without forms has no other window in which its text can be read.
  if (window && window->ShowsText && result.End == basic::RunEnd::Ended && !HasShownForms(world)) {
    window->WaitClosed([&] { return requests.Asked(); });
  }
  return result;
}

QString FromUtf8(const std::string& text) {
  return QString::fromStdString(text);
}

/// The name of a file of this machine.
std::string BareNameOf(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

void ShowRunTimeError(const PreparedProgram& program, const RunReport& report,
                      const basic::RunResult& result, const RunnerArguments& arguments) {
  const basic::SourcePlace at =
      result.Chain.empty() ? basic::SourcePlace{} : result.Chain.front().At;
  FaultText fault;
  fault.Title = looks::ToQString(BareName(program.Files.File(0).Path));
  fault.What = looks::ToQString(result.Text);
  fault.Place = FromUtf8(report.PlaceText(at));
  fault.Line = looks::ToQString(program.Files.LineAt(at)).trimmed();
  for (const std::string& line : ChainLines(report, result.Chain)) fault.Chain << FromUtf8(line);
  if (ShowFault(fault, arguments.WithIde)) report.Show(at);
}

void ShowSourceErrors(const PreparedProgram& program, const RunReport& report,
                      const std::string& source) {
  QStringList errors;
  for (const basic::Message& message : program.Found.All()) {
    if (message.Level != basic::Severity::Error) continue;
    const std::string text = message.Text + (message.Remedy.empty() ? "" : " " + message.Remedy);
    errors << FromUtf8(report.PlaceText(message.At)) + QStringLiteral(": ") +
                  looks::ToQString(text);
  }
  ShowErrors(FromUtf8(source), errors);
}

RunExit Run(const RunnerArguments& arguments, const RunStreams& streams, RunReport& report) {
  basic::FrontEndOptions options;
  options.Strict = arguments.Strict;
  options.Source.ProgramFolder =
      arguments.ProgramFolder.empty() ? hosts::IncludeFolder() : arguments.ProgramFolder;
  const PreparedProgram program =
      hosts::PrepareProgram(arguments.Source, objects::ClassTable(), options);
  report.SetFiles(program.Files);
  report.SayAll(program.Found);
  if (!program.Good) {
    if (!arguments.WithIde) ShowSourceErrors(program, report, arguments.Source);
    return RunExit::Faulty;
  }
  File trace(nullptr, &std::fclose);
  if (!arguments.Trace.empty()) {
    trace.reset(std::fopen(arguments.Trace.c_str(), "wb"));
    if (trace == nullptr) {
      report.Say({}, "error", "The trace cannot be written: " + Utf8ToCodePage(arguments.Trace));
      return RunExit::Usage;
    }
  }
  report.Signal("start");
  StopRequests requests(arguments, streams.In);
  const basic::RunResult result =
      RunCode(program, arguments, streams, report, requests, trace.get());
  const RunExit exit = report.SayResult(result);
  if (result.End == basic::RunEnd::Error && !requests.Asked()) {
    ShowRunTimeError(program, report, result, arguments);
  }
  return exit;
}

}  // namespace

RunExit RunSession(const RunnerArguments& arguments, const RunStreams& streams) {
  RunReport report(streams.Err, arguments.Report, "tarnwick-run");
  hosts::FaultWatch watch("tarnwick-run " TARNWICK_VERSION, arguments.Source);
  RunExit exit = RunExit::Fault;
  try {
    exit = Run(arguments, streams, report);
  } catch (const std::exception& fault) {
    const std::string text = watch.Report(fault);
    report.Say({}, "error", Utf8ToCodePage(text));
    // The program that started the runner shows it itself.
    if (!arguments.WithIde) {
      ShowFault({FromUtf8(BareNameOf(arguments.Source)), FromUtf8(text), {}, {}, {}}, false);
    }
  }
  report.Signal("end", std::to_string(static_cast<int>(exit)));
  return exit;
}

}  // namespace tarnwick::run
