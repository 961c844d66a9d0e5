#include "qt/surface/surface_gestures.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPainter>

#include "qt/surface/design_surface.h"

namespace tarnwick {

namespace {

constexpr int kBandWidth = 2;

}  // namespace

void SurfaceGestures::SetSurface(DesignSurface* surface) {
  FreeCursor();
  ReleaseCapture();
  band_.reset();
  surface_ = surface;
}

void SurfaceGestures::TakeCapture() {
  if (surface_ != nullptr && surface_->isVisible()) surface_->grabMouse();
}

void SurfaceGestures::ReleaseCapture() {
  if (surface_ != nullptr && QWidget::mouseGrabber() == surface_) surface_->releaseMouse();
}

void SurfaceGestures::ConfineCursor() {
  confined_ = true;
}

void SurfaceGestures::FreeCursor() {
  confined_ = false;
}

QRect SurfaceGestures::Confinement() const {
  const QWidget* frame =
      surface_->parentWidget() != nullptr ? surface_->parentWidget() : surface_.data();
  return {frame->mapToGlobal(QPoint()), frame->size()};
}

ScreenPoint SurfaceGestures::CursorPosition() {
  QPoint position = pointer_.value_or(QCursor::pos());
  if (confined_ && surface_ != nullptr) {
    const QRect limits = Confinement();
    position.setX(qBound(limits.left(), position.x(), limits.right()));
    position.setY(qBound(limits.top(), position.y(), limits.bottom()));
  }
  return {position.x(), position.y()};
}

ScreenPoint SurfaceGestures::ClientOrigin() {
  const QPoint origin = surface_ != nullptr ? surface_->mapToGlobal(QPoint()) : QPoint();
  return {origin.x(), origin.y()};
}

void SurfaceGestures::DrawRubberBand(const ScreenRect& rect) {
  if (surface_ == nullptr) return;
  const QPoint origin = surface_->mapToGlobal(QPoint());
  const QRect band = QRect(QPoint(rect.Left, rect.Top), QPoint(rect.Right - 1, rect.Bottom - 1))
                         .normalized()
                         .translated(-origin);
  // Drawing inverts, so the same outline drawn again is gone.
  if (band_ == band) {
    band_.reset();
  } else {
    if (band_) UpdateBand(*band_);
    band_ = band;
  }
  UpdateBand(band);
}

void SurfaceGestures::UpdateBand(const QRect& band) {
  const QRect outer = band.adjusted(-kBandWidth, -kBandWidth, kBandWidth, kBandWidth);
  const QRect inner = band.adjusted(kBandWidth, kBandWidth, -kBandWidth, -kBandWidth);
  surface_->update(inner.isValid() ? QRegion(outer) - QRegion(inner) : QRegion(outer));
}

void SurfaceGestures::TakeFocus() {
  if (surface_ != nullptr) surface_->TakeFocus();
}

void SurfaceGestures::NotePointer(const QMouseEvent& event) {
  pointer_ = event.globalPosition().toPoint();
  if (!confined_) return;
  const ScreenPoint kept = CursorPosition();
  const QPoint inside(kept.X, kept.Y);
  if (inside != *pointer_) QCursor::setPos(inside);
}

void SurfaceGestures::PaintBand(QPainter& painter) const {
  if (!band_) return;
  painter.setCompositionMode(QPainter::RasterOp_NotDestination);
  painter.setPen(QPen(Qt::black, kBandWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(*band_);
}

}  // namespace tarnwick
