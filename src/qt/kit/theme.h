// The look of the program's own windows: one accent, a light and a dark palette.
#pragma once

#include <QColor>
#include <QPalette>

class QApplication;

namespace tarnwick {

enum class Theme { Light, Dark };

/// Distances of the one grid on which all windows are laid out, in pixels.
inline constexpr int kGap = 4;
inline constexpr int kRoom = 8;

/// The theme that a palette belongs to.
[[nodiscard]] Theme ThemeOf(const QPalette& palette);
[[nodiscard]] QColor AccentOf(const QPalette& palette);
/// Ground of the title of the current design window, on which white stands: the deep accent in
/// both themes.
[[nodiscard]] QColor TitleOf();
/// The quiet line between two parts of a window.
[[nodiscard]] QColor LineOf(const QPalette& palette);
[[nodiscard]] QPalette PaletteOf(Theme theme);
/// Gives the application style, palette and style sheet of a theme. Design forms keep the colours
/// of their project.
void ApplyTheme(QApplication& application, Theme theme);

}  // namespace tarnwick
