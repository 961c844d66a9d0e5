#include "designer/window_style.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace tarnwick {

namespace {

using Member = clsStyle::Member;

constexpr unsigned BitOf(Member member) noexcept {
  return 1U << static_cast<unsigned>(member);
}

/// The members that border codes set, in the order in which they are set.
constexpr std::array kFrameMembers{Member::ControlBox, Member::MaxButton, Member::MinButton,
                                   Member::Sizable,    Member::Titlebar,  Member::ToolWindow};

enum class Cell : std::uint8_t { Keep, Off, On };
using enum Cell;

constexpr std::array<std::array<Cell, kFrameMembers.size()>, kLastBorderStyle + 1> kBorderStyles{{
    {Off, Off, Off, Off, Keep, Keep},
    {On, On, On, Off, Keep, Keep},
    {On, On, On, On, Keep, Keep},
    {On, Off, Off, Off, On, Keep},
    {On, Off, Off, Off, On, Keep},
    {On, Off, Off, On, On, On},
}};

}  // namespace

clsStyle::clsStyle() noexcept
    : bits_(BitOf(Member::ControlBox) | BitOf(Member::MaxButton) | BitOf(Member::MinButton) |
            BitOf(Member::Sizable) | BitOf(Member::Titlebar)) {}

bool clsStyle::Get(Member member) const noexcept {
  return (bits_ & BitOf(member)) != 0;
}

void clsStyle::Set(Member member, bool value) {
  bits_ = value ? bits_ | BitOf(member) : bits_ & ~BitOf(member);
  pRedraw();
}

void clsStyle::pRedraw() const {
  if (Redraw) Redraw();
}

void clsStyle::ShowSysMenu() const {
  if (SysMenu) SysMenu();
}

bool ApplyBorderStyle(clsStyle& style, int code) {
  if (code < 0 || code > kLastBorderStyle) return false;
  const auto& row = kBorderStyles[static_cast<std::size_t>(code)];
  for (std::size_t i = 0; i < kFrameMembers.size(); ++i) {
    if (row[i] != Keep) style.Set(kFrameMembers[i], row[i] == On);
  }
  return true;
}

}  // namespace tarnwick
