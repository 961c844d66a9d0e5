#include "qt/editor/kept_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include "shell/window_placement.h"

namespace tarnwick {

namespace {

/// What the desktop draws around a window.
constexpr int kFrameSide = 4;
constexpr int kFrameTop = 32;
/// A window smaller than this has no room for a text beside its lists.
constexpr WindowRect kLeast{0, 0, 640, 400};

WindowRect RectOf(const QRect& rect) {
  return {rect.x(), rect.y(), rect.width(), rect.height()};
}

}  // namespace

void TakePlace(QWidget& window, const Settings& settings, std::string_view key) {
  const QRect program = window.parentWidget()->window()->geometry();
  const WindowRect kept = ReadPlace(settings, key);
  const bool known = kept.Width > 0;
  const QPoint middle =
      known ? QPoint(kept.Left + kept.Width / 2, kept.Top + kept.Height / 2) : program.center();
  // A screen that has gone since leaves its windows to the first one.
  const QScreen* screen = QGuiApplication::screenAt(middle);
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  const WindowRect free =
      RectOf(screen->availableGeometry().adjusted(kFrameSide, kFrameTop, -kFrameSide, -kFrameSide));
  const WindowRect place = known ? FitInto(kept, free) : PlaceBeside(RectOf(program), kLeast, free);
  window.setGeometry(place.Left, place.Top, place.Width, place.Height);
}

void LeaveWindow(const QWidget& window, Settings& settings, std::string_view key) {
  const bool whole = window.isMaximized() || window.isFullScreen();
  WritePlace(settings, key, RectOf(whole ? window.normalGeometry() : window.geometry()));
  // Not every desktop gives the keys back by itself.
  QWidget* const home = window.parentWidget()->window();
  if (home->isVisible()) home->activateWindow();
}

}  // namespace tarnwick
