// What tarnwick-cli does.
#pragma once

#include <cstdio>

#include "cli/arguments.h"

namespace tarnwick {

/// Runs a command and returns the exit code: 0 for done, 1 for an input that cannot be read, an
/// output that cannot be written, or findings. Results go to `out`, all messages to `err`.
int RunCommand(const Arguments& arguments, std::FILE* out, std::FILE* err);

}  // namespace tarnwick
