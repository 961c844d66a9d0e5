// Where the main window stands, from one run to the next.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "persistence/settings.h"
#include "shell/panels.h"

namespace tarnwick {

/// A rectangle of the screen in pixels of the toolkit.
struct WindowRect {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
  friend bool operator==(const WindowRect&, const WindowRect&) = default;
};

/// Size and place of the main window, of its parts, and which panels are shown.
struct WindowPlacement {
  WindowRect Window;
  bool Maximised = false;
  std::vector<int> Columns;  ///< widths left and right of the splitter; empty: as they come
  std::vector<int> Panels;   ///< heights in the right column; likewise
  int Findings = 0;          ///< height of the list of findings; 0: as it comes
};

/// The window as it stands on a screen whose free area is `free`: no larger, and wholly within it.
[[nodiscard]] WindowRect FitInto(WindowRect window, const WindowRect& free) noexcept;

/// Where a window that works beside the design forms stands the first time: in the lower right of
/// the program's window, a good part of it large, and no smaller than `least` while the screen has
/// the room.
[[nodiscard]] WindowRect PlaceBeside(const WindowRect& program, const WindowRect& least,
                                     const WindowRect& free) noexcept;

/// The place of one window under a key of the section "Window"; a width of 0 when there is nothing
/// that can be used.
[[nodiscard]] WindowRect ReadPlace(const Settings& settings, std::string_view key);
void WritePlace(Settings& settings, std::string_view key, const WindowRect& place);

/// What the last run left in the settings, section "Window"; a width of 0 when there is nothing
/// that can be used.
[[nodiscard]] WindowPlacement ReadPlacement(const Settings& settings);
void WritePlacement(Settings& settings, const WindowPlacement& placement);

/// The panels that the last run showed; those without a setting keep the value they have.
void ReadPanels(const Settings& settings, std::array<bool, kPanelCount>& shown);
void WritePanels(Settings& settings, const std::array<bool, kPanelCount>& shown);

}  // namespace tarnwick
