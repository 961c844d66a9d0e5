// Calls of a form's Show, diverted to the Sub that shows its transparent frame.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "codegen/source_map.h"

namespace tarnwick {

/// Replaces each `pattern` found in the text, without regard to case, by `replacement`, and drops
/// the byte behind it; a hit followed by "1" keeps the pattern and loses the "1" instead. The
/// search goes on one byte behind the start of the hit, in the changed text, so that a replacement
/// can contain or complete the pattern again. It ends after one hit more than the given text has
/// bytes. An empty pattern is never found. Cost is linear in text and result. `changes` gets what
/// was replaced; null for a caller who does not care.
[[nodiscard]] std::string RewriteShowCalls(std::string_view text, std::string_view pattern,
                                           std::string_view replacement,
                                           std::vector<TextChange>* changes = nullptr);

}  // namespace tarnwick
