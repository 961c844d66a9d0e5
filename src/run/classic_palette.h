// The colours and the style of running programs, whatever the desktop has.
#pragma once

#include <QPalette>

class QApplication;

namespace tarnwick::run {

/// The classic colours with a paper and an ink.
[[nodiscard]] QPalette PaletteOf(const QColor& paper, const QColor& ink);
/// The classic colours.
[[nodiscard]] QPalette ClassicPalette();
/// How long hints take to come and how long they stay, milliseconds; and whether there are any.
struct HintTimes {
  int Pause = 500;
  int Hide = 2500;
  bool Shown = true;
};
/// The times that hold for all windows of the program.
[[nodiscard]] HintTimes& ProgramHints();

/// Gives a program the classic style, its colours and its font.
void ApplyClassicLook(QApplication& application);

}  // namespace tarnwick::run
