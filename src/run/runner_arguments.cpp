#include "run/runner_arguments.h"

#include "platform/native_path.h"
#include "text/code_page.h"
#include "text/path_text.h"

namespace tarnwick::run {
namespace {

/// A path of the command line, of this machine or of Windows, as a Windows path.
std::string WindowsPath(const std::string& path) {
  const bool native = path.starts_with('/');
  std::string windows = native ? PathFromNative(path) : Utf8ToCodePage(path);
  if (windows.size() > 3 && windows.ends_with('\\')) windows.pop_back();
  return windows;
}

/// A path of the command line as one of this machine.
std::string MachinePath(const std::string& path) {
  const bool windows = path.size() > 2 && path[1] == ':' && (path[2] == '\\' || path[2] == '/');
  if (!windows) return path;
  return FindNative(Utf8ToCodePage(path)).value_or(PathToNative(Utf8ToCodePage(path)));
}

struct FlagWord {
  const char* Name;
  bool RunnerArguments::*Flag;
};
constexpr FlagWord kFlags[] = {{"--with-ide", &RunnerArguments::WithIde},
                               {"--supported", &RunnerArguments::Supported},
                               {"--help", &RunnerArguments::Help},
                               {"-h", &RunnerArguments::Help}};

struct ValueWord {
  const char* Name;
  bool (*Read)(RunnerArguments&, const std::string&);
};
constexpr ValueWord kValues[] = {
    {"--program-folder",
     [](RunnerArguments& a, const std::string& v) {
       a.ProgramFolder = WindowsPath(v);
       return !v.empty();
     }},
    {"--exe-name",
     [](RunnerArguments& a, const std::string& v) {
       a.ExeName = WindowsPath(v);
       return true;
     }},
    {"--trace",
     [](RunnerArguments& a, const std::string& v) {
       a.Trace = MachinePath(v);
       return !v.empty();
     }},
    {"--report",
     [](RunnerArguments& a, const std::string& v) {
       a.Report = v == "tab" ? hosts::ReportForm::Tab : hosts::ReportForm::People;
       return v == "tab" || v == "people";
     }},
};

hosts::Taken TakeOwn(RunnerArguments& arguments, const std::string& name,
                     const std::string& value) {
  for (const FlagWord& row : kFlags) {
    if (name != row.Name) continue;
    arguments.*row.Flag = true;
    return hosts::Taken::Alone;
  }
  for (const ValueWord& row : kValues) {
    if (name != row.Name) continue;
    return row.Read(arguments, value) ? hosts::Taken::Value : hosts::Taken::Wrong;
  }
  return hosts::TakeSetting(arguments, name, value);
}

/// `/COMPILE "icon" "source" "target" "exe"`.
std::optional<RunnerArguments> CompilerWords(const std::vector<std::string>& words,
                                             std::string& wrong) {
  constexpr std::size_t kSource = 2;
  constexpr std::size_t kTarget = 3;
  constexpr std::size_t kExe = 4;
  RunnerArguments arguments;
  if (words.size() <= kSource) {
    wrong = "/COMPILE takes an icon, a source, a target and a name";
    return std::nullopt;
  }
  arguments.Source = MachinePath(words[kSource]);
  if (words.size() > kTarget) arguments.ExeName = WindowsPath(words[kTarget]);
  if (words.size() > kExe && !words[kExe].empty()) arguments.ExeName = WindowsPath(words[kExe]);
  arguments.Windows = true;
  return arguments;
}

}  // namespace

std::optional<RunnerArguments> ReadRunnerArguments(const std::vector<std::string>& words,
                                                   std::string& wrong) {
  if (!words.empty() && EqualsFolded(words[0], "/COMPILE")) return CompilerWords(words, wrong);
  RunnerArguments arguments;
  std::size_t at = 0;
  for (; at < words.size() && words[at].starts_with("-") && words[at] != "--"; ++at) {
    const std::size_t equal = words[at].find('=');
    const bool joined = equal != std::string::npos;
    const bool next = !joined && at + 1 < words.size();
    const std::string name = words[at].substr(0, equal);
    const std::string value = joined ? words[at].substr(equal + 1) : next ? words[at + 1] : "";
    switch (TakeOwn(arguments, name, value)) {
      case hosts::Taken::No:
        wrong = "unknown option \"" + name + "\"";
        return std::nullopt;
      case hosts::Taken::Wrong:
        wrong = name + " does not take \"" + value + "\"";
        return std::nullopt;
      case hosts::Taken::Value:
        if (!joined && !next) {
          wrong = name + " needs a value";
          return std::nullopt;
        }
        if (next) ++at;
        break;
      case hosts::Taken::Alone:
        break;
    }
  }
  if (arguments.Help || arguments.Supported) return arguments;
  if (at < words.size() && words[at] == "--") ++at;
  if (at >= words.size()) {
    wrong = "the source file is missing";
    return std::nullopt;
  }
  arguments.Source = MachinePath(words[at++]);
  if (at < words.size() && words[at] == "--") ++at;
  arguments.Arguments.assign(words.begin() + static_cast<std::ptrdiff_t>(at), words.end());
  return arguments;
}

std::string RunnerHelp() {
  return std::string(
             "Usage: tarnwick-run [options] SOURCE [-- arguments]\n"
             "Runs a RapidQ program with its windows.\n\n"
             "  --program-folder F      where includes are looked for by their bare names\n"
             "  --exe-name F            what Application.ExeName is\n"
             "  --with-ide              \"stop\" on standard input, or its end, stops the "
             "program;\n"
             "                          after \"leave\" it goes on by itself\n"
             "  --report=tab            messages as fields with tabs between\n"
             "  --trace F               write the changes that the windows show to a file\n"
             "  --supported             print what is not supported, and run nothing\n") +
         hosts::RunSettingsHelp() +
         "  Exit codes: 0 ended, 1 source faulty, 2 usage, 3 run-time error, 4 limit, 5 stopped,\n"
         "  6 fault of the runner\n";
}

}  // namespace tarnwick::run
