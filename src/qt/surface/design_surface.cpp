#include "qt/surface/design_surface.h"

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

DesignSurface::DesignSurface(FormUser& user, SurfaceGestures& gestures, DesignWindowHost& host,
                             looks::PictureCache& pictures, TextCache& texts, QWidget* parent)
    : QWidget(parent), user_(&user), gestures_(gestures), host_(host), painter_(pictures, texts) {
  setObjectName(QStringLiteral("FormUser"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  gestures_.SetSurface(this);
}

DesignSurface::~DesignSurface() {
  Detach();
}

std::string DesignSurface::FormName() const {
  const FormRec* const record = user_ != nullptr ? user_->Record() : nullptr;
  return record != nullptr ? record->Name : std::string();
}

void DesignSurface::PressObject(const ControlRef& object) {
  if (user_ == nullptr) return;
  host_.Activated(user_->Number());
  if (object) {
    user_->SelectObject(object);
  } else {
    user_->SelectForm();
  }
}

void DesignSurface::Detach() {
  // The next window of the form may have taken the gestures over already.
  if (user_ != nullptr) gestures_.SetSurface(nullptr);
  user_ = nullptr;
}

void DesignSurface::TakeFocus() {
  if (!host_.FocusIsKept()) setFocus();
}

void DesignSurface::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  if (user_ == nullptr) {
    painter.fillRect(event->rect(), palette().window());
    return;
  }
  const DesignForm& form = user_->Form();
  const FormRec* record = user_->Record();
  const QRegion& exposed = event->region();
  if (exposed.rectCount() <= kMostPieces) {
    for (const QRect& piece : exposed) {
      painter.setClipRect(piece);
      painter_.Paint(painter, form, record, piece);
    }
    painter.setClipRegion(exposed);
  } else {
    painter_.Paint(painter, form, record, event->rect());
  }
  gestures_.PaintBand(painter);
}

void DesignSurface::mousePressEvent(QMouseEvent* event) {
  if (user_ == nullptr) return;
  if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton) return;
  gestures_.NotePointer(*event);
  setFocus(Qt::MouseFocusReason);
  host_.Activated(user_->Number());
  // Whoever heard of it may have closed the form.
  if (user_ == nullptr) return;
  const float x = Twips(event->position().x());
  const float y = Twips(event->position().y());
  const Hit hit = HitTest(user_->Form(), x, y);
  if (hit.Handle >= 0) {
    user_->Gestures().HandleMouseDown(hit.Handle, ButtonOf(*event));
  } else if (hit.Object) {
    user_->Gestures().ObjectMouseDown(hit.Object, ButtonOf(*event), 0, x - hit.Object->Left,
                                      y - hit.Object->Top);
  } else {
    user_->Gestures().Form_MouseDown(ButtonOf(*event), 0, x, y);
  }
  gestures_.PointerHandled();
}

void DesignSurface::mouseMoveEvent(QMouseEvent* event) {
  if (user_ == nullptr) return;
  gestures_.NotePointer(*event);
  user_->Gestures().MouseMove();
  gestures_.PointerHandled();
  if (!gestures_.IsConfined()) ShowPointerOver(event->position());
  host_.PointerMoved(event->position().toPoint());
}

void DesignSurface::mouseReleaseEvent(QMouseEvent* event) {
  if (user_ == nullptr) return;
  gestures_.NotePointer(*event);
  user_->Gestures().MouseUp();
  gestures_.PointerHandled();
  if (user_ != nullptr) ShowPointerOver(event->position());
}

void DesignSurface::mouseDoubleClickEvent(QMouseEvent* event) {
  if (user_ == nullptr || event->button() != Qt::LeftButton) return;
  user_->Gestures().DoubleClick();
}

void DesignSurface::ShowPointerOver(const QPointF& position) {
  const DesignForm& form = user_->Form();
  const bool armed = !form.Objeto.empty() && form.Objeto != InfoOf(Kind::Form).Name;
  const Hit hit = HitTest(form, Twips(position.x()), Twips(position.y()));
  Qt::CursorShape shape = Qt::ArrowCursor;
  if (hit.Handle >= 0) {
    shape = ShapeOf(Handles()[static_cast<std::size_t>(hit.Handle)].Pointer);
  } else if (armed && (!hit.Object || hit.Object->Id == Kind::Image)) {
    shape = Qt::CrossCursor;
  } else if (hit.Object && form.m_bDesignMode) {
    shape = Qt::SizeAllCursor;
  }
  if (cursor().shape() != shape) setCursor(shape);
}

void DesignSurface::keyPressEvent(QKeyEvent* event) {
  if (user_ == nullptr) return;
  if (event->key() == Qt::Key_Escape) {
    if (user_->Gestures().Mode() != DragMode::None) {
      user_->Gestures().Escape();
    } else {
      host_.EscapePressed();
    }
    return;
  }
  const int code = KeyCodeOf(*event);
  if (code == 0 || !user_->Keys().KeyDown(code, ShiftBitsOf(*event))) event->ignore();
}

void DesignSurface::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  // However the focus came, keys go here now: this form is the one that all commands mean.
  if (user_ != nullptr) host_.Activated(user_->Number());
}

bool DesignSurface::focusNextPrevChild(bool /*next*/) {
  // Tab walks the objects of the form.
  return false;
}

void DesignSurface::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  host_.PointerMoved(QPoint(-1, -1));
}

}  // namespace tarnwick
