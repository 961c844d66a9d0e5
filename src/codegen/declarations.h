// The Dim lines of a form.
#pragma once

#include "codegen/generation.h"

namespace tarnwick {

/// Writes the Dim lines of the form and its objects, a blank line, and the form's resources.
void WriteDeclarations(Generation& gen);

}  // namespace tarnwick
