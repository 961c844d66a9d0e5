// What a gesture on a design form takes from its window: the mouse and the rubber band.
#pragma once

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <optional>

#include "platform/ports.h"

class QMouseEvent;
class QPainter;

namespace tarnwick {

class DesignSurface;

/// The gesture port of one form. It grabs the mouse of the form's surface, keeps the pointer
/// within the window and holds the rubber band that the surface paints. It exists before the
/// surface and after it, when all calls but those of the pointer have no effect.
class SurfaceGestures final : public GesturePort {
 public:
  /// From now on gestures run on this surface; null for none.
  void SetSurface(DesignSurface* surface);

  void TakeCapture() override;
  void ReleaseCapture() override;
  void ConfineCursor() override;
  void FreeCursor() override;
  [[nodiscard]] ScreenPoint CursorPosition() override;
  [[nodiscard]] ScreenPoint ClientOrigin() override;
  void DrawRubberBand(const ScreenRect& rect) override;
  void TakeFocus() override;

  // For the surface.
  /// The pointer is where the event says until PointerHandled; a confined pointer is moved back
  /// into the window.
  void NotePointer(const QMouseEvent& event);
  void PointerHandled() { pointer_.reset(); }
  [[nodiscard]] bool IsConfined() const { return confined_; }
  void PaintBand(QPainter& painter) const;

 private:
  [[nodiscard]] QRect Confinement() const;
  void UpdateBand(const QRect& band);

  QPointer<DesignSurface> surface_;
  std::optional<QPoint> pointer_;  ///< of the mouse event being handled, screen pixels
  std::optional<QRect> band_;      ///< pixels of the form
  bool confined_ = false;
};

}  // namespace tarnwick
