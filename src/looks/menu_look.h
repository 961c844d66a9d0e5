// Menus in the classic look.
#pragma once

namespace tarnwick::looks {

inline constexpr int kMenuTitleRoom = 7;  ///< on each side of a title in a menu strip
inline constexpr int kMenuFontPixels = 11;

/// Menus of forms keep the colours of the program that is being made, whatever the desktop has.
inline constexpr auto kMenuSheet =
    "QMenu { background: #C0C0C0; color: black; border: 1px solid #808080; padding: 2px; "
    "font-size: 11px; }"
    "QMenu::item { padding: 3px 24px 3px 20px; border-radius: 0; }"
    "QMenu::item:selected:enabled { background: #000080; color: white; }"
    "QMenu::item:disabled { color: #808080; }"
    "QMenu::separator { height: 1px; background: #808080; margin: 3px 1px; }";

}  // namespace tarnwick::looks
