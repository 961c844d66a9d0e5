#include "designer/grid.h"

#include <cmath>

#include "designer/rect.h"
#include "model/units.h"

namespace tarnwick {

float SnapToGrid(float twips) noexcept {
  const std::int32_t pixels = WholeUnits(static_cast<double>(twips) / kTwipsPerPixel);
  const std::int32_t rest = pixels % kGridStep;
  const std::int32_t snapped = rest > kGridStep / 2 ? pixels + (kGridStep - rest) : pixels - rest;
  return static_cast<float>(static_cast<double>(snapped) * kTwipsPerPixel);
}

float NextGridLine(float twips, bool upward) noexcept {
  constexpr double kStep = kGridStep * kTwipsPerPixel;
  const double lines = static_cast<double>(twips) / kStep;
  const double next = upward ? std::floor(lines) + 1 : std::ceil(lines) - 1;
  return static_cast<float>(next * kStep);
}

}  // namespace tarnwick
