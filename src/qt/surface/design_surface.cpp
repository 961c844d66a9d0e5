#include "qt/surface/design_surface.h"

#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

#include "designer/drag.h"
#include "designer/hit_test.h"
#include "model/units.h"
#include "qt/kit/key_codes.h"

namespace tarnwick {

namespace {

/// Beyond this many pieces one larger repaint is cheaper.
constexpr int kMostPieces = 8;
constexpr int kBandWidth = 2;

float Twips(double pixels) {
  return static_cast<float>(std::floor(pixels) * kTwipsPerPixel);
}

int ButtonOf(const QMouseEvent& event) {
  return event.button() == Qt::RightButton ? kRightButton : kLeftButton;
}

Qt::CursorShape ShapeOf(int pointer) {
  switch (pointer) {
    case 6:
      return Qt::SizeBDiagCursor;
    case 7:
      return Qt::SizeVerCursor;
    case 8:
      return Qt::SizeFDiagCursor;
    case 9:
      return Qt::SizeHorCursor;
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace

DesignSurface::DesignSurface(DesignForm& form, looks::PictureCache& pictures, TextCache& texts,
                             const DesignWindowDoors& doors, QWidget* parent)
    : QWidget(parent), form_(&form), doors_(doors), painter_(pictures, texts) {
  setObjectName(QStringLiteral("FormUser"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
}

std::string DesignSurface::FormName() const {
  const FormRec* const record = form_ != nullptr ? doors_.Record() : nullptr;
  return record != nullptr ? record->Name : std::string();
}

void DesignSurface::PressObject(const ControlRef& object) {
  FormUser* user = doors_.User();
  if (form_ == nullptr || user == nullptr) return;
  doors_.Activated();
  if (object) {
    user->SelectObject(object);
  } else {
    user->SelectForm();
  }
}

void DesignSurface::Detach() {
  form_ = nullptr;
  FreeCursor();
  ReleaseCapture();
}

void DesignSurface::TakeCapture() {
  if (isVisible()) grabMouse();
}

void DesignSurface::ReleaseCapture() {
  if (mouseGrabber() == this) releaseMouse();
}

void DesignSurface::ConfineCursor() {
  confined_ = true;
}

void DesignSurface::FreeCursor() {
  confined_ = false;
}

QRect DesignSurface::Confinement() const {
  const QWidget* frame = parentWidget() != nullptr ? parentWidget() : this;
  return {frame->mapToGlobal(QPoint()), frame->size()};
}

ScreenPoint DesignSurface::CursorPosition() {
  QPoint place = pointer_.value_or(QCursor::pos());
  if (confined_) {
    const QRect limits = Confinement();
    place.setX(qBound(limits.left(), place.x(), limits.right()));
    place.setY(qBound(limits.top(), place.y(), limits.bottom()));
  }
  return {place.x(), place.y()};
}

ScreenPoint DesignSurface::ClientOrigin() {
  const QPoint origin = mapToGlobal(QPoint());
  return {origin.x(), origin.y()};
}

void DesignSurface::DrawRubberBand(const ScreenRect& rect) {
  const QPoint origin = mapToGlobal(QPoint());
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

void DesignSurface::UpdateBand(const QRect& band) {
  const QRect outer = band.adjusted(-kBandWidth, -kBandWidth, kBandWidth, kBandWidth);
  const QRect inner = band.adjusted(kBandWidth, kBandWidth, -kBandWidth, -kBandWidth);
  update(inner.isValid() ? QRegion(outer) - QRegion(inner) : QRegion(outer));
}

void DesignSurface::TakeFocus() {
  if (!doors_.FocusIsKept || !doors_.FocusIsKept()) setFocus();
}

void DesignSurface::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  if (form_ == nullptr) {
    painter.fillRect(event->rect(), palette().window());
    return;
  }
  const FormRec* record = doors_.Record();
  const QRegion& exposed = event->region();
  if (exposed.rectCount() <= kMostPieces) {
    for (const QRect& piece : exposed) {
      painter.setClipRect(piece);
      painter_.Paint(painter, *form_, record, piece);
    }
    painter.setClipRegion(exposed);
  } else {
    painter_.Paint(painter, *form_, record, event->rect());
  }
  if (band_) {
    painter.setCompositionMode(QPainter::RasterOp_NotDestination);
    painter.setPen(QPen(Qt::black, kBandWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(*band_);
  }
}

void DesignSurface::NotePointer(const QMouseEvent& event) {
  pointer_ = event.globalPosition().toPoint();
  if (!confined_) return;
  const ScreenPoint kept = CursorPosition();
  const QPoint inside(kept.X, kept.Y);
  if (inside != *pointer_) QCursor::setPos(inside);
}

void DesignSurface::mousePressEvent(QMouseEvent* event) {
  FormUser* user = doors_.User();
  if (form_ == nullptr || user == nullptr) return;
  if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton) return;
  NotePointer(*event);
  setFocus(Qt::MouseFocusReason);
  doors_.Activated();
  const float x = Twips(event->position().x());
  const float y = Twips(event->position().y());
  const Hit hit = HitTest(*form_, x, y);
  if (hit.Handle >= 0) {
    user->Gestures().HandleMouseDown(hit.Handle, ButtonOf(*event));
  } else if (hit.Object) {
    user->Gestures().ObjectMouseDown(hit.Object, ButtonOf(*event), 0, x - hit.Object->Left,
                                     y - hit.Object->Top);
  } else {
    user->Gestures().Form_MouseDown(ButtonOf(*event), 0, x, y);
  }
  pointer_.reset();
}

void DesignSurface::mouseMoveEvent(QMouseEvent* event) {
  FormUser* user = doors_.User();
  if (form_ == nullptr || user == nullptr) return;
  NotePointer(*event);
  user->Gestures().MouseMove();
  pointer_.reset();
  if (!confined_) ShowPointerOver(event->position());
  doors_.PointerMoved(event->position().toPoint());
}

void DesignSurface::mouseReleaseEvent(QMouseEvent* event) {
  FormUser* user = doors_.User();
  if (form_ == nullptr || user == nullptr) return;
  NotePointer(*event);
  user->Gestures().MouseUp();
  pointer_.reset();
  if (form_ != nullptr) ShowPointerOver(event->position());
}

void DesignSurface::mouseDoubleClickEvent(QMouseEvent* event) {
  FormUser* user = doors_.User();
  if (form_ == nullptr || user == nullptr || event->button() != Qt::LeftButton) return;
  user->Gestures().DoubleClick();
}

void DesignSurface::ShowPointerOver(const QPointF& place) {
  const bool armed = !form_->Objeto.empty() && form_->Objeto != InfoOf(Kind::Form).Name;
  const Hit hit = HitTest(*form_, Twips(place.x()), Twips(place.y()));
  Qt::CursorShape shape = Qt::ArrowCursor;
  if (hit.Handle >= 0) {
    shape = ShapeOf(Handles()[static_cast<std::size_t>(hit.Handle)].Pointer);
  } else if (armed && (!hit.Object || hit.Object->Id == Kind::Image)) {
    shape = Qt::CrossCursor;
  } else if (hit.Object && form_->m_bDesignMode) {
    shape = Qt::SizeAllCursor;
  }
  if (cursor().shape() != shape) setCursor(shape);
}

void DesignSurface::keyPressEvent(QKeyEvent* event) {
  FormUser* user = doors_.User();
  if (form_ == nullptr || user == nullptr) return;
  if (event->key() == Qt::Key_Escape) {
    if (user->Gestures().Mode() != DragMode::None) {
      user->Gestures().Escape();
    } else {
      doors_.Escape();
    }
    return;
  }
  const int code = KeyCodeOf(*event);
  if (code == 0 || !user->Keys().KeyDown(code, ShiftBitsOf(*event))) event->ignore();
}

void DesignSurface::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  // However the focus came, keys go here now: this form is the one that all commands mean.
  if (form_ != nullptr && doors_.Activated) doors_.Activated();
}

bool DesignSurface::focusNextPrevChild(bool /*next*/) {
  // Tab walks the objects of the form.
  return false;
}

void DesignSurface::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  doors_.PointerMoved(QPoint(-1, -1));
}

}  // namespace tarnwick
