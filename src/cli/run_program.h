// `tarnwick-cli run`: a RapidQ program on the console; its windows are there but not shown.
#pragma once

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "hosts/run_report.h"
#include "hosts/run_settings.h"

namespace tarnwick {

using hosts::RunExit;

struct RunArguments : hosts::RunSettings {
  std::string Program;  ///< path of this machine
  std::vector<std::string> Arguments;
  bool Dump = false;          ///< print the bytecode instead of running it
  bool Trace = false;         ///< print the calls to the widgets
  bool Supported = false;     ///< list what is supported and leave
  std::string Events;         ///< path of this machine of a script of what the user does; "": none
  std::string ProgramFolder;  ///< where the include file of generated programs lies; "": beside us
};

/// Reads the words behind "run": options, the program, its own arguments. Nothing and a text in
/// `wrong` when they are faulty.
[[nodiscard]] std::optional<RunArguments> ParseRunArguments(const std::vector<std::string>& words,
                                                            std::string& wrong);

/// What its options are, for the help.
[[nodiscard]] std::string RunOptionsHelp();

/// Checks and runs the program. Its windows are there but not shown; the script of events is their
/// only user: without one, waiting for the user ends at once. Its text goes to `out`; errors and
/// notes go to `err`, a line each: `file:line:column: error: text`. An interrupt from the keyboard
/// stops the program.
[[nodiscard]] RunExit RunProgram(const RunArguments& arguments, std::FILE* in, std::FILE* out,
                                 std::FILE* err);

}  // namespace tarnwick
