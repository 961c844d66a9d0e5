// The Sub that shows a form with a transparent frame.
#pragma once

#include "codegen/generation.h"

namespace tarnwick {

/// Writes `Sub TrnspAbrFrm` of the form. Only the first frame counts; its numbers are the form's.
void WriteTransparentFrameSub(Generation& gen);

/// The name of that Sub for a form number.
[[nodiscard]] std::string TransparentFrameSubName(int form);

}  // namespace tarnwick
