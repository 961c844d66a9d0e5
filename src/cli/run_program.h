// `tarnwick-cli run`: a RapidQ program without windows, on the console.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "basic/hosts/file_host.h"

namespace tarnwick {

struct RunArguments {
  std::string Program;  ///< path of this machine
  std::vector<std::string> Arguments;
  std::uint64_t MaxSteps = 0;  ///< 0: no limit
  double MaxSeconds = 0;       ///< 0: no limit
  std::uint64_t Seed = 0;
  std::optional<basic::LocalTime> Clock;  ///< stands still at this moment
  bool Dump = false;                      ///< print the bytecode instead of running it
  bool Switch = false;                    ///< the plain way of dispatching
  bool Strict = false;
};

/// Reads the words behind "run": options, the program, its own arguments. Nothing and a text in
/// `wrong` when they are faulty.
[[nodiscard]] std::optional<RunArguments> ParseRunArguments(const std::vector<std::string>& words,
                                                            std::string& wrong);

/// What its options are, for the help.
[[nodiscard]] const char* RunOptionsHelp();

/// Exit codes of a run.
enum class RunExit : int {
  Ended = 0,
  Faulty = 1,  ///< the source has errors or cannot be read
  Usage = 2,
  Error = 3,  ///< a run-time error
  Limit = 4,
  Stopped = 5,
};

/// Checks and runs the program. Its text goes to `out`; errors and notes go to `err`, a line each:
/// `file:line:column: error: text`. An interrupt from the keyboard stops the program.
[[nodiscard]] RunExit RunProgram(const RunArguments& arguments, std::FILE* in, std::FILE* out,
                                 std::FILE* err);

}  // namespace tarnwick
