// `CRect`: the rectangle that a gesture works on.
#pragma once

#include <cstdint>
#include <string_view>

#include "model/design_control.h"
#include "model/units.h"
#include "platform/ports.h"

namespace tarnwick {

/// Twips to the pixel on both axes of a screen.
struct TwipsPerPixel {
  int X = kTwipsPerPixel;
  int Y = kTwipsPerPixel;
};

/// The nearest whole number of twips or pixels, half to even, kept within what a rectangle can
/// reckon with.
[[nodiscard]] std::int32_t WholeUnits(double value) noexcept;

/// The rule of the kind that a text as `NameObjet` has it names; Free for any other.
[[nodiscard]] SizeRule SizeRuleOf(std::string_view name_objet);

/// A rectangle in twips or in screen pixels; who holds one knows which. Right and Bottom lie just
/// outside.
class CRect {
 public:
  /// Bits of `Flags`: how a line was turned before it was normalised.
  static constexpr std::uint16_t kLeftRightSwapped = 1;
  static constexpr std::uint16_t kTopBottomSwapped = 2;

  std::int32_t Left = 0;
  std::int32_t Top = 0;
  std::int32_t Right = 0;
  std::int32_t Bottom = 0;
  std::uint16_t Flags = 0;

  [[nodiscard]] std::int32_t Width() const noexcept;
  void SetWidth(std::int32_t width) noexcept;  ///< moves Right
  [[nodiscard]] std::int32_t Height() const noexcept;
  void SetHeight(std::int32_t height) noexcept;  ///< moves Bottom

  /// Takes a control's rectangle, twips.
  void SetRectToCtrl(const DesignControl& control) noexcept;
  /// Takes the ends of a line, twips; the flags say which of them were reversed.
  void SetRectToLine(float x1, float y1, float x2, float y2) noexcept;
  /// Normalises, then gives the control this rectangle. What the rule of `name_objet` keeps comes
  /// from `control_sel`.
  void SetCtrlToRect(DesignControl& control, std::string_view name_objet,
                     const DesignControl& control_sel) noexcept;
  /// Screen pixels to twips of a window whose client area begins at `origin`. Both axes take the
  /// factor of x.
  void ScreenToTwips(ScreenPoint origin, TwipsPerPixel factor = {}) noexcept;
  /// Twips to screen pixels, by the same factor.
  void TwipsToScreen(ScreenPoint origin, TwipsPerPixel factor = {}) noexcept;
  /// Swaps crossed edges.
  void NormalizeRect() noexcept;
  [[nodiscard]] bool PtInRect(std::int32_t x, std::int32_t y) const noexcept;

  friend bool operator==(const CRect&, const CRect&) = default;
};

}  // namespace tarnwick
