// Splits lines of RapidQ source into tokens.
#pragma once

#include <string_view>
#include <vector>

#include "language/token.h"

namespace tarnwick::language {

/// Replaces `tokens` by those of one line, which has no line end, and returns the state for the
/// next line. Any bytes are taken; blanks give no token. Linear in the length of the line.
LineState LexLine(std::string_view line, LineState state, std::vector<Token>& tokens);

}  // namespace tarnwick::language
