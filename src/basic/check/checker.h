// From the syntax tree to the checked program.
#pragma once

#include "basic/check/class_catalog.h"
#include "basic/check/program.h"
#include "basic/source/messages.h"
#include "basic/syntax/tree.h"

namespace tarnwick::basic {

/// Resolves every name, types every expression, folds constants. Faults go to `messages`: with an
/// error there the program must not be run. Without `strict`, irregular lines of generated text
/// are accepted (`tolerances.h`). The program points to nothing outside itself.
[[nodiscard]] Program Check(const tree::SyntaxTree& tree, const ClassCatalog& classes, bool strict,
                            Messages& messages);

}  // namespace tarnwick::basic
