// The colours and the style of running programs, whatever the desktop has.
#pragma once

#include <QPalette>

class QApplication;

namespace tarnwick::run {

/// The classic colours with a paper and an ink.
[[nodiscard]] QPalette PaletteOf(const QColor& paper, const QColor& ink);
/// The classic colours.
[[nodiscard]] QPalette ClassicPalette();
/// Gives a program the classic style, its colours and its font.
void ApplyClassicLook(QApplication& application);

}  // namespace tarnwick::run
