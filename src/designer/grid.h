// The dot grid of a design window and what snaps to it.
#pragma once

#include <cstdint>

namespace tarnwick {

/// Pixels between two grid lines.
inline constexpr int kGridStep = 10;
/// The grid covers this many pixels, whatever the window's size.
inline constexpr int kGridWidth = 1024;
inline constexpr int kGridHeight = 768;

/// Calls `visit(x, y)` for every dot, pixels of the window; columns from the left, each downwards.
template <class Visit>
void ForEachGridPoint(Visit visit) {
  for (int x = 0; x <= kGridWidth; x += kGridStep) {
    for (int y = 0; y <= kGridHeight; y += kGridStep) visit(x, y);
  }
}

/// A position in twips moved to the nearest grid line; exact half goes down.
[[nodiscard]] float SnapToGrid(float twips) noexcept;
/// The grid line beyond a position, twips: the next greater one, or the next smaller one.
[[nodiscard]] float NextGridLine(float twips, bool upward) noexcept;

}  // namespace tarnwick
