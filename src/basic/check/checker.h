// From the syntax tree to the checked program.
#pragma once

#include "basic/check/class_catalog.h"
#include "basic/check/program.h"
#include "basic/source/messages.h"
#include "basic/syntax/tree.h"

namespace tarnwick::basic {

/// Resolves every name, types every expression, folds constants. Faults go to `messages`: with an
/// error there the program must not be run. Without `strict`, irregular lines of generated text
/// are accepted (`tolerances.h`). The program points to nothing outside itself. The pieces of the
/// tree are freed one by one, so that the program takes their memory.
[[nodiscard]] Program Check(tree::SyntaxTree tree, const ClassCatalog& classes, bool strict,
                            Messages& messages);

}  // namespace tarnwick::basic
