#include "designer/rect.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "text/numbers.h"

namespace tarnwick {

namespace {

/// Beyond this a rectangle is off every screen; within it sums and differences fit 32 bits.
constexpr double kFarthest = 1 << 29;

std::int32_t ToTwips(std::int32_t screen, std::int32_t origin, int factor) noexcept {
  return WholeUnits((static_cast<double>(screen) - origin) * factor);
}

std::int32_t ToScreen(std::int32_t twips, std::int32_t origin, int factor) noexcept {
  return WholeUnits(RoundHalfEven(static_cast<double>(twips) / factor) + origin);
}

}  // namespace

std::int32_t WholeUnits(double value) noexcept {
  if (!(value > -kFarthest)) return static_cast<std::int32_t>(-kFarthest);
  return static_cast<std::int32_t>(RoundHalfEven(std::min(value, kFarthest)));
}

SizeRule SizeRuleOf(std::string_view name_objet) {
  const std::optional<Kind> kind = KindOfNameObjet(name_objet);
  return kind ? InfoOf(*kind).Size : SizeRule::Free;
}

std::int32_t CRect::Width() const noexcept {
  return WholeUnits(static_cast<double>(Right) - Left);
}

void CRect::SetWidth(std::int32_t width) noexcept {
  Right = WholeUnits(static_cast<double>(Left) + width);
}

std::int32_t CRect::Height() const noexcept {
  return WholeUnits(static_cast<double>(Bottom) - Top);
}

void CRect::SetHeight(std::int32_t height) noexcept {
  Bottom = WholeUnits(static_cast<double>(Top) + height);
}

void CRect::SetRectToCtrl(const DesignControl& control) noexcept {
  Left = WholeUnits(control.Left);
  Top = WholeUnits(control.Top);
  Right = WholeUnits(static_cast<double>(control.Left) + control.Width);
  Bottom = WholeUnits(static_cast<double>(control.Top) + control.Height);
}

void CRect::SetRectToLine(float x1, float y1, float x2, float y2) noexcept {
  Left = WholeUnits(x1);
  Top = WholeUnits(y1);
  Right = WholeUnits(x2);
  Bottom = WholeUnits(y2);
  Flags = 0;
  if (Left > Right) Flags |= kLeftRightSwapped;
  if (Top > Bottom) Flags |= kTopBottomSwapped;
  NormalizeRect();
}

void CRect::SetCtrlToRect(DesignControl& control, std::string_view name_objet,
                          const DesignControl& control_sel) noexcept {
  NormalizeRect();
  const SizeRule rule = SizeRuleOf(name_objet);
  // The kept sizes are read first: both controls are the same one as a rule.
  const float kept_width = control_sel.Width;
  const float kept_height = control_sel.Height;
  control.Left = static_cast<float>(Left);
  control.Top = static_cast<float>(Top);
  control.Width = rule == SizeRule::KeepsBoth ? kept_width : static_cast<float>(Width());
  control.Height = rule == SizeRule::Free ? static_cast<float>(Height()) : kept_height;
}

void CRect::ScreenToTwips(ScreenPoint origin, TwipsPerPixel factor) noexcept {
  Left = ToTwips(Left, origin.X, factor.X);
  Top = ToTwips(Top, origin.Y, factor.X);
  Right = ToTwips(Right, origin.X, factor.X);
  Bottom = ToTwips(Bottom, origin.Y, factor.X);
}

void CRect::TwipsToScreen(ScreenPoint origin, TwipsPerPixel factor) noexcept {
  Left = ToScreen(Left, origin.X, factor.X);
  Top = ToScreen(Top, origin.Y, factor.X);
  Right = ToScreen(Right, origin.X, factor.X);
  Bottom = ToScreen(Bottom, origin.Y, factor.X);
}

void CRect::NormalizeRect() noexcept {
  if (Left > Right) std::swap(Left, Right);
  if (Top > Bottom) std::swap(Top, Bottom);
}

bool CRect::PtInRect(std::int32_t x, std::int32_t y) const noexcept {
  return Left <= x && x < Right && Top <= y && y < Bottom;
}

}  // namespace tarnwick
