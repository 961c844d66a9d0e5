// What tarnwick-cli does.
#pragma once

#include <cstdio>
#include <optional>

#include "cli/arguments.h"
#include "cli/loaded_project.h"

namespace tarnwick {

/// Runs a command and answers the exit code: 0 for done, 1 for an input that cannot be read, an
/// output that cannot be written, or findings. Results go to `out`, all messages to `err`. The
/// project is left in `project`, for the caller to take apart or not.
int RunCommand(const Arguments& arguments, std::FILE* out, std::FILE* err,
               std::optional<LoadedProject>& project);

}  // namespace tarnwick
