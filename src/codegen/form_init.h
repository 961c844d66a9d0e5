// The run-time set-up of a form: its own lines, then a block for each object.
#pragma once

#include "codegen/generation.h"

namespace tarnwick {

/// Writes the form's lines and hooks, then its objects in the order of its collection.
void WriteFormInit(Generation& gen);

/// Writes the position of the form in the generated program, or that it is centred.
void WriteFormPlace(Generation& gen);

}  // namespace tarnwick
