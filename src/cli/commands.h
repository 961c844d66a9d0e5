// What tarnwick-cli does.
#pragma once

#include <cstdio>
#include <optional>

#include "cli/arguments.h"
#include "cli/loaded_project.h"

namespace tarnwick {

/// A command with the project it reads. The arguments outlive it. Results go to `out`, all messages
/// to `err`.
class CommandRun {
 public:
  CommandRun(const Arguments& arguments, std::FILE* out, std::FILE* err)
      : arguments_(arguments), out_(out), err_(err) {}
  /// Runs the command and returns the exit code: 0 for done, 1 for an input that cannot be read, an
  /// output that cannot be written, or findings; `run` has codes of its own.
  int Run();

 private:
  const Arguments& arguments_;
  std::FILE* out_;
  std::FILE* err_;
  std::optional<LoadedProject> project_;
};

}  // namespace tarnwick
