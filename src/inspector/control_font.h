// The font that a design control holds in its members.
#pragma once

#include "model/design_control.h"
#include "platform/ports.h"

namespace tarnwick {

/// The font of a control, without a colour; a member that the control lacks leaves its default.
[[nodiscard]] FontChoice FontOf(const DesignControl& control);

}  // namespace tarnwick
