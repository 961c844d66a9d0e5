// Expressions and statements of a syntax tree as text, for tests.
#pragma once

#include <string>

#include "basic/syntax/tree.h"

namespace tarnwick::basic::test {

/// Every operation in brackets: "(a + (b * 2))", "a(1, _)" with "_" for an empty place.
[[nodiscard]] std::string TextOf(const tree::Node* node);

}  // namespace tarnwick::basic::test
