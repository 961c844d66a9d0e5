// Units of the screen.
#pragma once

namespace tarnwick {

/// Design controls are placed in twips; the screen has 15 of them to the pixel on both axes.
inline constexpr int kTwipsPerPixel = 15;

/// A length in pixels, with what is left as its fraction.
[[nodiscard]] constexpr float PixelsOf(float twips) noexcept {
  return twips / static_cast<float>(kTwipsPerPixel);
}

}  // namespace tarnwick
