// Declare lines and bodies of the event Subs.
#pragma once

#include "codegen/generation.h"

namespace tarnwick {

/// Writes the Declare Sub lines and the public declarations of the form. The counters of the
/// kinds go on from the form before, so the code of a later form's objects is looked for under
/// numbers that are theirs only by chance.
void WriteSubDeclares(Generation& gen);

/// Writes the Sub bodies of the form, counting its objects from 1.
void WriteEventSubs(Generation& gen);

}  // namespace tarnwick
