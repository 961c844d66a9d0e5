// From tokens to the syntax tree.
#pragma once

#include "basic/source/messages.h"
#include "basic/source/source_token.h"
#include "basic/syntax/tree.h"

namespace tarnwick::basic {

/// Brackets and signs within each other at most.
inline constexpr int kMaxExpressionDepth = 100;
/// Nodes from the root of an expression to its deepest leaf at most.
inline constexpr int kMaxExpressionHeight = 1000;
/// Blocks within each other at most.
inline constexpr int kMaxBlockDepth = 100;

/// Parses a whole program. Faults go to `messages`; after one the parser goes on with the next
/// line, so the tree is complete but for the faulty lines. With `strict`, irregular lines of
/// generated text are faults like any other.
[[nodiscard]] tree::SyntaxTree Parse(TokenLines& lines, bool strict, Messages& messages);

}  // namespace tarnwick::basic
