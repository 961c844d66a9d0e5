// Units of the screen.
#pragma once

namespace tarnwick {

/// Design controls are placed in twips; the screen has 15 of them to the pixel on both axes.
inline constexpr int kTwipsPerPixel = 15;

}  // namespace tarnwick
