// The common lines of an object: what every kind writes that has the member.
#pragma once

#include "codegen/generation.h"

namespace tarnwick {

/// Writes font, position, size, text, colour and hint of an object. `button_count` is the running
/// number of buttons on the form for their stored font colour; it steps at each button. A label's
/// counter steps here, since its word wrap is the first of its lines that needs its record.
void WriteCommonLines(Generation& gen, const DesignControl& control, std::int16_t& button_count);

}  // namespace tarnwick
