// The command line of tarnwick-run.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "hosts/run_report.h"
#include "hosts/run_settings.h"

namespace tarnwick::run {

struct RunnerArguments : hosts::RunSettings {
  std::string Source;                  ///< path of this machine, UTF-8
  std::vector<std::string> Arguments;  ///< of the program, UTF-8
  std::string ProgramFolder;           ///< Windows path without "\" at the end; "" for none
  std::string ExeName;                 ///< Windows path; "": the source's name with .exe
  std::string Trace;                   ///< file of this machine for the changes shown
  hosts::ReportForm Report = hosts::ReportForm::People;
  bool WithIde = false;    ///< standard input stops the program
  bool Supported = false;  ///< print what is supported and run nothing
  bool Help = false;
  bool Windows = false;  ///< messages are shown in windows: the standard streams are not read
};

/// Reads the words behind the program's name, UTF-8. Nothing and a text in `wrong` when they are
/// faulty. The words of the compiler, `/COMPILE icon source target exe`, are understood too.
[[nodiscard]] std::optional<RunnerArguments> ReadRunnerArguments(
    const std::vector<std::string>& words, std::string& wrong);

[[nodiscard]] std::string RunnerHelp();

}  // namespace tarnwick::run
