// Whole files of the build's tools.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick::support {

/// A whole file; nothing when it cannot be read.
[[nodiscard]] std::optional<std::string> ReadFile(const std::string& path);

/// Writes a whole file unless it holds these bytes already, so that nothing is made again in vain.
/// False when it cannot be written; standard error then has the reason.
[[nodiscard]] bool WriteFile(const std::string& path, std::string_view bytes);

}  // namespace tarnwick::support
