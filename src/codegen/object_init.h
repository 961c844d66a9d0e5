// The lines of an object that are its kind's own.
#pragma once

#include "codegen/generation.h"

namespace tarnwick {

/// Writes the kind lines of an object and steps the kind's counter: the values come from the
/// record at the new number. A label's counter has stepped before, with its common lines.
void WriteObjectInit(Generation& gen, const DesignControl& control);

/// True when the rows of a list are written. A list of one row never is, and neither is one whose
/// first row is the object's name, which is how a list fresh from the tool box looks.
[[nodiscard]] bool HasListLines(const DesignControl& control) noexcept;

/// Writes the lines that bind the object's events to their Subs. Code of blanks only has no hook.
void WriteObjectHooks(Generation& gen, const DesignControl& control);

}  // namespace tarnwick
