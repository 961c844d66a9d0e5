// What a user wants to know of a project before compiling it.
#pragma once

#include <string>
#include <vector>

#include "cli/loaded_project.h"

namespace tarnwick {

/// The findings, a line each: form and object, a colon, and what is amiss. Windows-1252.
[[nodiscard]] std::vector<std::string> CheckProject(LoadedProject& project);

}  // namespace tarnwick
