// What the frame of a window takes from its outer size.
#pragma once

#include "objects/object_record.h"

namespace tarnwick::objects {

/// Pixels around the client area of a form: both sides together, and above with below.
struct FrameSize {
  int Width = 0;
  int Height = 0;
};

/// The frame of a form with these properties. A form on which a main menu hangs has a strip for it.
[[nodiscard]] FrameSize FrameOf(const ObjectRecord& form);

}  // namespace tarnwick::objects
