#include "cli/run_program.h"

#include <atomic>
#include <csignal>

#include "basic/code/dump.h"
#include "basic/vm/machine.h"
#include "cli/no_classes.h"
#include "hosts/disk_files.h"
#include "hosts/local_clock.h"
#include "hosts/local_system.h"
#include "hosts/prepared_program.h"
#include "hosts/stream_console.h"
#include "text/code_page.h"

namespace tarnwick {
namespace {

/// The running machine, for the handler of the interrupt.
std::atomic<basic::Machine*> g_running = nullptr;

void StopRunning(int) {
  if (basic::Machine* const machine = g_running.load()) machine->Stop();
}

basic::RunResult RunCode(const hosts::PreparedProgram& program, const RunArguments& arguments,
                         std::FILE* in, std::FILE* out, std::FILE* err) {
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
  basic::Machine machine(program.Code, all, arguments.Options());
  machine.SetResources(program.Resources);
  clock.Ending = [&] { return machine.Ending(); };
  g_running = &machine;
  auto* const before = std::signal(SIGINT, StopRunning);
  basic::RunResult result = machine.Run();
  std::signal(SIGINT, before);
  g_running = nullptr;
  std::fflush(out);
  return result;
}

}  // namespace

std::optional<RunArguments> ParseRunArguments(const std::vector<std::string>& words,
                                              std::string& wrong) {
  RunArguments arguments;
  std::size_t at = 0;
  for (; at < words.size() && words[at].starts_with("-") && words[at] != "--"; ++at) {
    if (words[at] == "--dump") {
      arguments.Dump = true;
      continue;
    }
    const std::size_t equal = words[at].find('=');
    const bool joined = equal != std::string::npos;
    const std::string name = words[at].substr(0, equal);
    std::string value;
    if (joined) {
      value = words[at].substr(equal + 1);
    } else if (at + 1 < words.size()) {
      value = words[at + 1];
    }
    switch (hosts::TakeSetting(arguments, name, value)) {
      case hosts::Taken::No:
        wrong = "unknown option \"" + name + "\"";
        return std::nullopt;
      case hosts::Taken::Wrong:
        wrong = name + " does not take \"" + value + "\"";
        return std::nullopt;
      case hosts::Taken::Value:
        if (!joined) ++at;
        break;
      case hosts::Taken::Alone:
        break;
    }
  }
  if (at < words.size() && words[at] == "--") ++at;
  if (at >= words.size()) {
    wrong = "an argument is missing";
    return std::nullopt;
  }
  arguments.Program = words[at];
  arguments.Arguments.assign(words.begin() + static_cast<std::ptrdiff_t>(at) + 1, words.end());
  return arguments;
}

std::string RunOptionsHelp() {
  return std::string("\nOptions of run, in front of PROGRAM:\n") + hosts::RunSettingsHelp() +
         "  --dump                  print the bytecode and do not run it\n"
         "  Exit codes: 0 ended, 1 source faulty, 2 usage, 3 run-time error, 4 limit, 5 stopped\n";
}

RunExit RunProgram(const RunArguments& arguments, std::FILE* in, std::FILE* out, std::FILE* err) {
  basic::FrontEndOptions options;
  options.Strict = arguments.Strict;
  const hosts::PreparedProgram program =
      hosts::PrepareProgram(arguments.Program, NoClasses(), options);
  hosts::RunReport report(err, hosts::ReportForm::People, "tarnwick-cli");
  report.SetFiles(program.Files);
  report.SayAll(program.Found);
  if (!program.Good) return RunExit::Faulty;
  if (arguments.Dump) {
    const std::string text = CodePageToUtf8(basic::DumpCode(program.Code));
    std::fwrite(text.data(), 1, text.size(), out);
    return RunExit::Ended;
  }
  return report.SayResult(RunCode(program, arguments, in, out, err));
}

}  // namespace tarnwick
