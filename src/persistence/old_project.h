// Projects of the former version: one file that holds one form.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/ports.h"

namespace tarnwick {

/// The text of an old project in the present form format.
[[nodiscard]] std::string ConvertOldText(std::string_view old_text);

/// Converts the old project at `path` into a form file and an index beside it, named by the path
/// up to its first "." and overwriting what stands there. Answers the path of the new index;
/// nothing when the old file cannot be read or a new one not be written.
std::optional<std::string> ConvertOldProject(FilePort& files, const std::string& path);

}  // namespace tarnwick
