// Projects of the former version, made into present ones.
#pragma once

#include <optional>
#include <string>

#include "platform/ports.h"

namespace tarnwick::project {

/// Converts the old project at `path` into a form file and an index beside it, named by the path
/// up to its first "." and overwriting existing files. Returns the path of the new index;
/// null when the old file cannot be read or a new one not be written.
std::optional<std::string> ConvertOldProject(FilePort& files, const std::string& path);

}  // namespace tarnwick::project
