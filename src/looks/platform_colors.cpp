#include "looks/platform_colors.h"

#include <array>
#include <cstddef>

namespace tarnwick::looks {

namespace {

/// Scroll bar, desktop, active and inactive caption, menu, window, frame, menu text, window text,
/// caption text, active and inactive border, workspace, highlight, its text, face, shadow, grey
/// text, button text, inactive caption text, light, dark shadow, inner light, tip text, tip.
constexpr std::array<QRgb, 25> kSystemColors{
    0xFFC0C0C0, 0xFF008080, 0xFF000080, 0xFF808080, 0xFFC0C0C0, 0xFFFFFFFF, 0xFF000000,
    0xFF000000, 0xFF000000, 0xFFFFFFFF, 0xFFC0C0C0, 0xFFC0C0C0, 0xFF808080, 0xFF000080,
    0xFFFFFFFF, 0xFFC0C0C0, 0xFF808080, 0xFF808080, 0xFF000000, 0xFFC0C0C0, 0xFFFFFFFF,
    0xFF000000, 0xFFDFDFDF, 0xFF000000, 0xFFFFFFE1};

}  // namespace

QColor ColorOf(std::int32_t number) noexcept {
  const auto bits = static_cast<std::uint32_t>(number);
  if ((bits & 0x80000000U) != 0) {
    const std::size_t index = bits & 0xFFU;
    return index < kSystemColors.size() ? QColor(kSystemColors[index]) : QColor(Qt::black);
  }
  return {static_cast<int>(bits & 0xFFU), static_cast<int>((bits >> 8U) & 0xFFU),
          static_cast<int>((bits >> 16U) & 0xFFU)};
}

std::int32_t NumberOf(const QColor& color) noexcept {
  return color.red() | (color.green() << 8) | (color.blue() << 16);
}

}  // namespace tarnwick::looks
