// `clsStyle`: the frame of a design window, as data that a view turns into its frame hints.
#pragma once

#include <functional>

namespace tarnwick {

/// The members of a window's frame. Setting one redraws the frame through `pRedraw`.
class clsStyle {
 public:
  /// Style members in slot order.
  enum class Member {
    AutoDrag,
    AutoSysMenu,
    Client,
    ControlBox,
    MaxButton,
    MinButton,
    Sizable,
    Titlebar,
    ToolWindow,
    TopMost,
    WhatsThisButton,
  };
  static constexpr int kMemberCount = 11;

  /// The window whose frame this is: its form's number; 0 while unbound.
  int hwnd = 0;
  /// Called after each change of a member.
  std::function<void()> Redraw;
  /// Called when the window's system menu is wanted.
  std::function<void()> SysMenu;

  /// A sizable window with a title bar and its three buttons.
  clsStyle() noexcept;
  [[nodiscard]] bool Get(Member member) const noexcept;
  void Set(Member member, bool value);
  void pRedraw() const;
  void ShowSysMenu() const;

 private:
  unsigned bits_;
};

/// Border codes run from 0 to this one.
inline constexpr int kLastBorderStyle = 5;

/// Sets the members that a border code names, in slot order; false for a code without a row.
bool ApplyBorderStyle(clsStyle& style, int code);

}  // namespace tarnwick
