// One run of a program with its windows.
#pragma once

#include <cstdio>

#include "basic/hosts/console_host.h"
#include "run/runner_arguments.h"

namespace tarnwick::run {

struct RunStreams {
  std::FILE* In = stdin;
  std::FILE* Out = stdout;
  std::FILE* Err = stderr;
  /// The program's console instead of the streams and of a window; null for those.
  basic::ConsoleHost* Console = nullptr;
};

/// Checks and runs the program; windows need the toolkit's application. Its PRINT goes to `Out`,
/// errors and notes to `Err` in the form that the arguments want. A run-time error is shown in a
/// window too, with a way to its line for the program that started the runner; the errors of a
/// source, and a fault of the runner itself, are where no other program shows them. The message
/// about such a fault names the file of its report.
[[nodiscard]] hosts::RunExit RunSession(const RunnerArguments& arguments,
                                        const RunStreams& streams);

}  // namespace tarnwick::run
