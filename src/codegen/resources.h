// The $Resource lines of a form.
#pragma once

#include "codegen/generation.h"

namespace tarnwick {

/// Writes the lines that bind the form's icon and the pictures of its buttons and images into the
/// program. A picture that several objects of a kind name is bound once, for the first of them.
void WriteResources(Generation& gen);

}  // namespace tarnwick
