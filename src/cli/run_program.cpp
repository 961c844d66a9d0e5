#include "cli/run_program.h"

#include <atomic>
#include <charconv>
#include <csignal>
#include <filesystem>

#include "basic/check/front_end.h"
#include "basic/code/dump.h"
#include "basic/code/emitter.h"
#include "basic/vm/machine.h"
#include "cli/no_classes.h"
#include "hosts/disk_files.h"
#include "hosts/local_clock.h"
#include "hosts/local_system.h"
#include "hosts/stream_console.h"
#include "platform/native_files.h"
#include "text/code_page.h"
#include "text/path_text.h"

namespace tarnwick {
namespace {

template <class Number>
bool ReadNumber(const std::string& text, Number& number) {
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end && number >= 0;
}

/// The running machine, for the handler of the interrupt.
std::atomic<basic::Machine*> g_running = nullptr;

void StopRunning(int) {
  if (basic::Machine* const machine = g_running.load()) machine->Stop();
}

class DiskSources final : public basic::SourceReader {
 public:
  std::optional<std::string> ReadSource(const std::string& path) override {
    return files_.Read(path);
  }

 private:
  NativeFiles files_;
};

/// Writes messages with the path of the machine in front.
class Reporter {
 public:
  Reporter(std::FILE* err, std::vector<std::string> files) : err_(err), files_(std::move(files)) {}

  [[nodiscard]] std::string PlaceText(basic::SourcePlace at) const {
    if (at.Line == 0 || at.File >= files_.size()) return "tarnwick-cli";
    const std::string native = PathToNative(files_[at.File]);
    return (native.empty() ? CodePageToUtf8(files_[at.File]) : native) + ":" +
           std::to_string(at.Line) + ":" + std::to_string(at.Column);
  }
  void Say(basic::SourcePlace at, std::string_view kind, std::string_view text,
           std::string_view remedy = {}) const {
    std::string line = PlaceText(at) + ": " + std::string(kind) + ": " + CodePageToUtf8(text);
    if (!remedy.empty()) line += " " + CodePageToUtf8(remedy);
    line += "\n";
    std::fwrite(line.data(), 1, line.size(), err_);
  }
  void SayChain(const std::vector<basic::CallSite>& chain) const {
    // A runaway recursion is the same line ten thousand times.
    constexpr std::size_t kMostLines = 20;
    for (std::size_t i = 0; i < chain.size() && chain.size() > 1; ++i) {
      if (chain.size() > kMostLines && i == kMostLines / 2) {
        i = chain.size() - kMostLines / 2;
        std::fputs("  ...\n", err_);
      }
      const std::string name =
          chain[i].Procedure.empty() ? "the program" : CodePageToUtf8(chain[i].Procedure);
      const std::string line = "  in " + name + ", " + PlaceText(chain[i].At) + "\n";
      std::fwrite(line.data(), 1, line.size(), err_);
    }
  }

 private:
  std::FILE* err_;
  std::vector<std::string> files_;
};

RunExit Report(const basic::RunResult& result, const Reporter& report) {
  for (const basic::RunNote& note : result.Notes) report.Say(note.At, "note", note.Text);
  const basic::SourcePlace at =
      result.Chain.empty() ? basic::SourcePlace{} : result.Chain.front().At;
  switch (result.End) {
    case basic::RunEnd::Ended:
      return RunExit::Ended;
    case basic::RunEnd::Error:
      report.Say(at, "error", result.Text);
      report.SayChain(result.Chain);
      return RunExit::Error;
    case basic::RunEnd::StepLimit:
      report.Say(at, "error", "Stopped at the limit of steps");
      return RunExit::Limit;
    case basic::RunEnd::TimeLimit:
      report.Say(at, "error", "Stopped at the limit of time");
      return RunExit::Limit;
    case basic::RunEnd::Stopped:
      report.Say(at, "note", "Stopped");
      return RunExit::Stopped;
  }
  return RunExit::Ended;
}

RunExit RunCode(const basic::Code& code, std::vector<std::string> resources,
                const RunArguments& arguments, std::FILE* in, std::FILE* out, std::FILE* err,
                const Reporter& report) {
  std::vector<std::string> words;
  for (const std::string& word : arguments.Arguments) words.push_back(Utf8ToCodePage(word));
  hosts::StreamConsole console(in, out);
  hosts::DiskFiles files;
  hosts::LocalClock clock(arguments.Clock);
  hosts::LocalSystem system(std::move(words), err);
  basic::Hosts all;
  all.Console = &console;
  all.Files = &files;
  all.Clock = &clock;
  all.System = &system;
  basic::RunOptions options;
  options.MaxSteps = arguments.MaxSteps;
  options.MaxSeconds = arguments.MaxSeconds;
  options.Seed = arguments.Seed;
  options.How = arguments.Switch ? basic::Dispatch::Switch : basic::Dispatch::Threaded;
  basic::Machine machine(code, all, options);
  machine.SetResources(std::move(resources));
  clock.Ending = [&] { return machine.Ending(); };
  g_running = &machine;
  auto* const before = std::signal(SIGINT, StopRunning);
  const basic::RunResult result = machine.Run();
  std::signal(SIGINT, before);
  g_running = nullptr;
  std::fflush(out);
  return Report(result, report);
}

}  // namespace

std::optional<RunArguments> ParseRunArguments(const std::vector<std::string>& words,
                                              std::string& wrong) {
  RunArguments arguments;
  std::size_t at = 0;
  for (; at < words.size() && words[at].starts_with("-") && words[at] != "--"; ++at) {
    std::string name = words[at];
    if (name == "--dump" || name == "--switch" || name == "--strict") {
      (name == "--dump"     ? arguments.Dump
       : name == "--switch" ? arguments.Switch
                            : arguments.Strict) = true;
      continue;
    }
    std::string value;
    const std::size_t equal = name.find('=');
    if (equal != std::string::npos) {
      value = name.substr(equal + 1);
      name.resize(equal);
    } else if (at + 1 < words.size()) {
      value = words[++at];
    }
    bool good = false;
    if (name == "--max-steps") {
      good = ReadNumber(value, arguments.MaxSteps);
    } else if (name == "--max-seconds") {
      good = ReadNumber(value, arguments.MaxSeconds);
    } else if (name == "--seed") {
      good = ReadNumber(value, arguments.Seed);
    } else if (name == "--clock") {
      arguments.Clock = hosts::ReadClock(value);
      good = arguments.Clock.has_value();
    } else {
      wrong = "unknown option \"" + name + "\"";
      return std::nullopt;
    }
    if (!good) {
      wrong = name + " does not take \"" + value + "\"";
      return std::nullopt;
    }
  }
  if (at < words.size() && words[at] == "--") ++at;
  if (at == words.size()) {
    wrong = "an argument is missing";
    return std::nullopt;
  }
  arguments.Program = words[at];
  arguments.Arguments.assign(words.begin() + static_cast<std::ptrdiff_t>(at) + 1, words.end());
  return arguments;
}

const char* RunOptionsHelp() {
  return "\nOptions of run, in front of PROGRAM:\n"
         "  --max-steps N           stop after N instructions\n"
         "  --max-seconds S         stop after S seconds\n"
         "  --seed N                start of the series of RND\n"
         "  --clock \"YYYY-MM-DD HH:MM:SS\"\n"
         "                          a clock that stands still, local time\n"
         "  --strict                tolerate nothing that generated texts are forgiven\n"
         "  --switch                the plain way of dispatching\n"
         "  --dump                  print the bytecode and do not run it\n"
         "  Exit codes: 0 ended, 1 source faulty, 2 usage, 3 run-time error, 4 limit, 5 stopped\n";
}

RunExit RunProgram(const RunArguments& arguments, std::FILE* in, std::FILE* out, std::FILE* err) {
  std::error_code ignored;
  const std::string path =
      PathFromNative(std::filesystem::absolute(arguments.Program, ignored).string());
  DiskSources sources;
  const NoClasses classes;
  basic::FrontEndOptions options;
  options.Strict = arguments.Strict;
  const basic::FrontEndResult checked = basic::CheckProgram(path, sources, classes, options);
  std::vector<std::string> names;
  for (std::size_t i = 0; i < checked.Files.Count(); ++i) {
    names.push_back(checked.Files.File(static_cast<std::uint16_t>(i)).Path);
  }
  const Reporter report(err, names);
  for (const basic::Message& message : checked.Found.All()) {
    const bool error = message.Level == basic::Severity::Error;
    report.Say(message.At, error ? "error" : "note", message.Text, message.Remedy);
  }
  if (!checked.Checked) return RunExit::Faulty;
  std::vector<std::string> resources;
  for (const basic::Resource& resource : checked.Checked->Resources) {
    resources.emplace_back(resource.File);
  }
  const basic::EmitResult emitted = basic::Emit(*checked.Checked);
  if (!emitted.Error.empty()) {
    report.Say(emitted.At, "error", emitted.Error);
    return RunExit::Faulty;
  }
  if (arguments.Dump) {
    const std::string text = CodePageToUtf8(basic::DumpCode(emitted.Made));
    std::fwrite(text.data(), 1, text.size(), out);
    return RunExit::Ended;
  }
  return RunCode(emitted.Made, std::move(resources), arguments, in, out, err, report);
}

}  // namespace tarnwick
