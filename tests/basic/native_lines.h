// Runs lines of native functions and PRINT without parser and machine: what the function library
// does by itself.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick::basic {

/// What a line gave.
struct LineResult {
  std::string Output;  ///< printed text and calls of the hosts
  std::string Error;   ///< of the function that failed; "" when all went well
  std::string Notes;   ///< a line each
  /// Uses of the program's text constants that are left when it has ended; each keeps a text alive.
  std::uint32_t TextsHeld = 0;
};

/// Runs statements parted by ":". A statement is `? expression` or a native statement with its
/// arguments; an expression is literals and native functions joined by "+". Nothing when the line
/// has anything else in it, and so needs the whole language.
[[nodiscard]] std::optional<LineResult> RunNativeLine(std::string_view line);

}  // namespace tarnwick::basic
