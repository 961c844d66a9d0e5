// Measures of a form's window, under the name of the room that paints them.
#pragma once

#include "objects/frame_metrics.h"

namespace tarnwick::looks {

using objects::FrameMetrics;
using objects::kFixedBorder;
using objects::kMenuStripHeight;
using objects::kSizableBorder;
using objects::kTitleButtonWidth;
using objects::kTitleHeight;
using objects::kToolTitleHeight;

}  // namespace tarnwick::looks
