#include "cli/run_program.h"

#include <atomic>
#include <csignal>
#include <exception>
#include <filesystem>

#include "basic/code/dump.h"
#include "basic/vm/machine.h"
#include "hosts/disk_files.h"
#include "hosts/fault_report.h"
#include "hosts/local_clock.h"
#include "hosts/local_system.h"
#include "hosts/prepared_program.h"
#include "hosts/profile_calls.h"
#include "hosts/stream_console.h"
#include "objects/class_table.h"
#include "objects/scripted_widgets.h"
#include "objects/supported_list.h"
#include "objects/traced_widgets.h"
#include "platform/native_files.h"
#include "platform/profile_files.h"
#include "text/code_page.h"
#include "text/path_text.h"

namespace tarnwick {
namespace {

/// The running machine, for the handler of the interrupt.
std::atomic<basic::Machine*> g_running = nullptr;

void StopRunning(int /*signal*/) {
  if (basic::Machine* const machine = g_running.load()) machine->Stop();
}

/// What the program can ask about itself; the program it would be compiled to lies beside its
/// source.
objects::ProgramFacts FactsOf(const hosts::PreparedProgram& program) {
  const std::string_view path = program.Files.File(0).Path;
  const std::string_view name = BareName(path);
  const std::string stem(name.substr(0, name.rfind('.')));
  return {std::string(FolderOf(path)) + stem + ".exe", stem, program.Resources};
}

struct Streams {
  std::FILE* In;
  std::FILE* Out;
  std::FILE* Err;
};

basic::RunResult RunCode(const hosts::PreparedProgram& program, objects::ScriptedWidgets& widgets,
                         const RunArguments& arguments, const Streams& streams,
                         const hosts::RunReport& report) {
  std::vector<std::string> words;
  for (const std::string& word : arguments.Arguments) words.push_back(Utf8ToCodePage(word));
  hosts::StreamConsole console(streams.In, streams.Out);
  hosts::DiskFiles files;
  hosts::LocalClock clock(arguments.Clock);
  hosts::LocalSystem system(std::move(words), streams.Err);
  NativeFiles disk;
  ProfileFiles profiles(disk);
  hosts::ProfileCalls natives(profiles);
  objects::TracedWidgets traced(widgets, widgets.Played);
  objects::ObjectWorld world(arguments.Trace ? static_cast<objects::WidgetPort&>(traced) : widgets,
                             &files, FactsOf(program));
  traced.Connect(world);
  widgets.Play(world);
  basic::Machine machine(program.Code, {&console, &world, &files, &clock, &system, &natives},
                         arguments.Options());
  machine.SetResources(program.Resources);
  world.Connect(machine);
  clock.Ending = [&] { return machine.Ending(); };
  const hosts::FaultWatch::Running watched(machine, report);
  g_running = &machine;
  auto* const before = std::signal(SIGINT, StopRunning);
  basic::RunResult result = machine.Run();
  std::signal(SIGINT, before);
  g_running = nullptr;
  widgets.EndPlay();
  std::fflush(streams.Out);
  return result;
}

void WriteText(std::FILE* out, std::string_view text) {
  const std::string utf8 = CodePageToUtf8(text);
  std::fwrite(utf8.data(), 1, utf8.size(), out);
}

/// The options that are not the same for all programs that run RapidQ.
hosts::Taken TakeOption(RunArguments& arguments, const std::string& name,
                        const std::string& value) {
  const std::pair<std::string_view, bool*> flags[] = {{"--dump", &arguments.Dump},
                                                      {"--trace", &arguments.Trace},
                                                      {"--supported", &arguments.Supported}};
  for (const auto& [flag, target] : flags) {
    if (flag != name) continue;
    *target = true;
    return hosts::Taken::Alone;
  }
  if (name == "--events") {
    arguments.Events = value;
  } else if (name == "--program-folder") {
    arguments.ProgramFolder = Utf8ToCodePage(value);
  } else {
    return hosts::TakeSetting(arguments, name, value);
  }
  return value.empty() ? hosts::Taken::Wrong : hosts::Taken::Value;
}

RunExit CheckAndRun(const RunArguments& arguments, const Streams& streams,
                    hosts::RunReport& report) {
  basic::FrontEndOptions options;
  options.Strict = arguments.Strict;
  options.Source.ProgramFolder =
      arguments.ProgramFolder.empty() ? hosts::IncludeFolder() : arguments.ProgramFolder;
  const hosts::PreparedProgram program =
      hosts::PrepareProgram(arguments.Program, objects::ClassTable(), options);
  report.SetFiles(program.Files);
  report.SayAll(program.Found);
  if (!program.Good) return RunExit::Faulty;
  if (arguments.Dump) {
    WriteText(streams.Out, basic::DumpCode(program.Code));
    return RunExit::Ended;
  }
  std::optional<std::string> script = std::string();
  if (!arguments.Events.empty()) {
    std::error_code ignored;
    script = NativeFiles().Read(
        PathFromNative(std::filesystem::absolute(arguments.Events, ignored).string()));
  }
  if (!script) {
    report.Say({}, "error", "The events cannot be read: " + Utf8ToCodePage(arguments.Events));
    return RunExit::Usage;
  }
  objects::ScriptedWidgets widgets(*script);
  if (arguments.Trace) {
    widgets.Played = [&](std::string_view line) {
      WriteText(streams.Out, std::string(line) + "\n");
    };
  }
  const basic::RunResult result = RunCode(program, widgets, arguments, streams, report);
  for (const std::string& fault : widgets.Faults) report.Say({}, "note", fault);
  return report.SayResult(result);
}

}  // namespace

std::optional<RunArguments> ParseRunArguments(const std::vector<std::string>& words,
                                              std::string& wrong) {
  RunArguments arguments;
  std::size_t at = 0;
  for (; at < words.size() && words[at].starts_with("-") && words[at] != "--"; ++at) {
    const std::size_t equal = words[at].find('=');
    const bool joined = equal != std::string::npos;
    const std::string name = words[at].substr(0, equal);
    std::string value;
    if (joined) {
      value = words[at].substr(equal + 1);
    } else if (at + 1 < words.size()) {
      value = words[at + 1];
    }
    switch (TakeOption(arguments, name, value)) {
      case hosts::Taken::No:
        wrong = std::string("unknown option \"").append(name).append("\"");
        return std::nullopt;
      case hosts::Taken::Wrong:
        wrong = std::string(name).append(" does not take \"").append(value).append("\"");
        return std::nullopt;
      case hosts::Taken::Value:
        if (!joined) ++at;
        break;
      case hosts::Taken::Alone:
        break;
    }
  }
  if (at < words.size() && words[at] == "--") ++at;
  if (at >= words.size() && arguments.Supported) return arguments;
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
         "  --events FILE           what the user does, a line each: click Button1, key Text1 65,\n"
         "                          type Text1 words, pick List1 2, tick Time1, close Form1\n"
         "  --trace                 print the changes that the windows would show\n"
         "  --program-folder TEXT   where the include file of generated programs lies\n"
         "  --supported             list what is supported, and leave\n"
         "  --dump                  print the bytecode and do not run it\n"
         "  Exit codes: 0 ended, 1 source faulty, 2 usage, 3 run-time error, 4 limit,\n"
         "  5 stopped, 6 fault of the runner\n";
}

RunExit RunProgram(const RunArguments& arguments, std::FILE* in, std::FILE* out, std::FILE* err) {
  if (arguments.Supported) {
    WriteText(out, objects::SupportedList());
    return RunExit::Ended;
  }
  hosts::RunReport report(err, hosts::ReportForm::People, "tarnwick-cli");
  hosts::FaultWatch watch("tarnwick-cli " TARNWICK_VERSION, arguments.Program);
  try {
    return CheckAndRun(arguments, {in, out, err}, report);
  } catch (const std::exception& fault) {
    g_running = nullptr;
    report.Say({}, "error", Utf8ToCodePage(watch.Report(fault)));
    return RunExit::Fault;
  }
}

}  // namespace tarnwick
