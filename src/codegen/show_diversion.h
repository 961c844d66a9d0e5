// Calls of Show diverted for all forms with a transparent frame at once.
#pragma once

#include <string>
#include <vector>

namespace tarnwick {

/// A form whose Show is diverted.
struct ShowDiversion {
  std::string Name;         ///< of the form
  std::string Replacement;  ///< the Sub that shows it
};

/// What `RewriteShowCalls` makes of the text for each form in turn, with the pattern Name ".show".
/// One pass for each form would cost forms times text; here the calls are found once and each
/// form visits its own.
[[nodiscard]] std::string DivertShowCalls(const std::string& text,
                                          const std::vector<ShowDiversion>& forms);

}  // namespace tarnwick
