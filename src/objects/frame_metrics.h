// Measures of a form's window, the same around the design form and the running program's window.
#pragma once

namespace tarnwick::objects {

// All in pixels of the form.
inline constexpr int kTitleHeight = 24;
inline constexpr int kToolTitleHeight = 19;  ///< of a tool window
inline constexpr int kSizableBorder = 4;
inline constexpr int kFixedBorder = 2;
inline constexpr int kMenuStripHeight = 20;
inline constexpr int kTitleButtonWidth = 26;

/// What stands around the client area of a window.
struct FrameMetrics {
  bool Title = true;
  bool Tool = false;
  bool Sizable = true;
  bool Menu = false;

  [[nodiscard]] constexpr int Border() const { return Sizable ? kSizableBorder : kFixedBorder; }
  [[nodiscard]] constexpr int TitleBar() const {
    if (!Title) return 0;
    return Tool ? kToolTitleHeight : kTitleHeight;
  }
  /// How far the client area begins below the window's top edge.
  [[nodiscard]] constexpr int Above() const {
    return Border() + TitleBar() + (Menu ? kMenuStripHeight : 0);
  }
};

}  // namespace tarnwick::objects
