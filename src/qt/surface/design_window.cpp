#include "qt/surface/design_window.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "model/units.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "qt/surface/form_menu_strip.h"

namespace tarnwick {

namespace {

constexpr int kLeast = 60;

int WholePixelsOf(float twips) {
  return static_cast<int>(std::lround(PixelsOf(twips)));
}

}  // namespace

DesignWindow::DesignWindow(FormUser& user, SurfaceGestures& gestures, DesignWindowHost& host,
                           looks::PictureCache& pictures, TextCache& texts, QWidget* parent)
    : QWidget(parent),
      user_(&user),
      host_(host),
      pictures_(pictures),
      surface_(new DesignSurface(user, gestures, host, pictures, texts, this)),
      menu_(new FormMenuStrip(
          [this](const ControlRef& item) {
            if (user_ != nullptr) user_->MenuItemPress(item);
          },
          this)) {
  setObjectName(QStringLiteral("FormUser_%1").arg(user.Number()));
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  surface_->setCursor(Qt::ArrowCursor);
  surface_->installEventFilter(menu_);
  SyncMenuBar();
  SyncWithForm();
}

DesignWindow::~DesignWindow() = default;

void DesignWindow::Detach() {
  user_ = nullptr;
  surface_->Detach();
}

void DesignWindow::SetCurrent(bool current) {
  if (current_ == current) return;
  current_ = current;
  update();
}

void DesignWindow::SyncWithForm() {
  if (user_ == nullptr) return;
  const DesignForm& form = user_->Form();
  const QSize wanted(qMax(1, WholePixelsOf(form.Width)), qMax(1, WholePixelsOf(form.Height)));
  if (state_ == WindowState::Normal) {
    resize(wanted);
  } else {
    // What was edited meanwhile holds when the window returns to normal.
    if (wanted.width() != stored_.width()) normal_.setWidth(wanted.width());
    if (wanted.height() != stored_.height()) normal_.setHeight(wanted.height());
  }
  stored_ = wanted;
  LayOut();
  update();
  surface_->update();
}

void DesignWindow::SyncMenuBar() {
  if (user_ == nullptr) return;
  menu_->Rebuild(user_->Form());
  LayOut();
}

WindowFrame DesignWindow::Frame() const {
  WindowFrame frame;
  if (user_ == nullptr) return frame;
  using FrameMember = clsStyle::Member;
  const clsStyle& style = user_->Frame().Style();
  frame.Metrics.Title = style.Get(FrameMember::Titlebar);
  frame.Metrics.Sizable = style.Get(FrameMember::Sizable);
  frame.Metrics.Tool = style.Get(FrameMember::ToolWindow);
  frame.Metrics.Menu = user_->Form().MenuBarVisible();
  frame.Buttons = style.Get(FrameMember::ControlBox);
  frame.Minimise = frame.Buttons && style.Get(FrameMember::MinButton);
  frame.Maximise = frame.Buttons && style.Get(FrameMember::MaxButton);
  frame.Size = size();
  frame.Fixed = state_ != WindowState::Normal;
  return frame;
}

void DesignWindow::LayOut() {
  const looks::FrameMetrics metrics = Frame().Metrics;
  const int border = metrics.Border();
  const QRect inside = rect().adjusted(border, metrics.Above(), -border, -border);
  menu_->setVisible(metrics.Menu);
  menu_->setGeometry(border, border + metrics.TitleBar(), inside.width(), looks::kMenuStripHeight);
  surface_->setVisible(state_ != WindowState::Minimised && inside.height() > 0);
  surface_->setGeometry(inside);
}

void DesignWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayOut();
}

void DesignWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  FrameLook look;
  look.Current = current_;
  look.Maximised = state_ == WindowState::Maximised;
  look.Hovered = hovered_;
  if (user_ != nullptr) {
    const DesignForm& form = user_->Form();
    look.Caption = ToQString(form.Caption);
    if (!form.WindowIcon.empty()) look.Icon = &pictures_.At(form.WindowIcon);
  }
  PaintFrame(painter, *this, Frame(), look);
}

void DesignWindow::mousePressEvent(QMouseEvent* event) {
  if (user_ == nullptr) return;
  host_.Activated(user_->Number());
  if (event->button() != Qt::LeftButton || user_ == nullptr) return;
  const QPoint place = event->position().toPoint();
  const WindowFrame frame = Frame();
  edges_ = frame.EdgesAt(place);
  const FramePart part = frame.PartAt(place);
  press_ = event->globalPosition().toPoint();
  at_press_ = geometry();
  if (edges_) return;
  if (!frame.ButtonRect(part).isEmpty()) {
    PressButton(part);
  } else {
    moving_ = part == FramePart::Title && state_ != WindowState::Maximised;
    surface_->setFocus();
  }
}

void DesignWindow::PressButton(FramePart button) {
  if (user_ == nullptr || Frame().ButtonRect(button).isEmpty()) return;
  const auto toggle = [this](WindowState state) {
    SetState(state_ == state ? WindowState::Normal : state);
  };
  if (button == FramePart::Close) host_.CloseRequested(user_->Number());
  if (button == FramePart::Maximise) toggle(WindowState::Maximised);
  if (button == FramePart::Minimise) toggle(WindowState::Minimised);
}

void DesignWindow::mouseMoveEvent(QMouseEvent* event) {
  const QPoint global = event->globalPosition().toPoint();
  if (moving_) {
    QPoint place = at_press_.topLeft() + global - press_;
    place.setX(qMax(place.x(), kLeast - width()));
    place.setY(qMax(place.y(), 0));
    move(place);
    return;
  }
  if (event->buttons().testFlag(Qt::LeftButton) && edges_) {
    DragEdges(global);
    return;
  }
  const QPoint place = event->position().toPoint();
  const WindowFrame frame = Frame();
  const Qt::Edges edges = frame.EdgesAt(place);
  Qt::CursorShape shape = Qt::ArrowCursor;
  if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge)) {
    shape = Qt::SizeFDiagCursor;
  } else if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge)) {
    shape = Qt::SizeBDiagCursor;
  } else if (edges & (Qt::LeftEdge | Qt::RightEdge)) {
    shape = Qt::SizeHorCursor;
  } else if (edges) {
    shape = Qt::SizeVerCursor;
  }
  if (cursor().shape() != shape) setCursor(shape);
  const FramePart part = frame.PartAt(place);
  if (part != hovered_) {
    hovered_ = part;
    update();
  }
}

void DesignWindow::DragEdges(const QPoint& global) {
  const QPoint by = global - press_;
  QRect place = at_press_;
  const int least_height = RolledUpHeight();
  if (edges_ & Qt::LeftEdge) place.setLeft(qMin(place.left() + by.x(), place.right() - kLeast));
  if (edges_ & Qt::RightEdge) place.setRight(qMax(place.right() + by.x(), place.left() + kLeast));
  if (edges_ & Qt::TopEdge) {
    place.setTop(qMax(0, qMin(place.top() + by.y(), place.bottom() - least_height)));
  }
  if (edges_ & Qt::BottomEdge) {
    place.setBottom(qMax(place.bottom() + by.y(), place.top() + least_height));
  }
  if (place == geometry()) return;
  setGeometry(place);
  StoreSize();
}

void DesignWindow::mouseReleaseEvent(QMouseEvent* /*event*/) {
  if (edges_) EndSizing();
  moving_ = false;
  edges_ = {};
}

void DesignWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  const WindowFrame frame = Frame();
  if (frame.PartAt(event->position().toPoint()) != FramePart::Title) return;
  if (state_ == WindowState::Minimised) {
    SetState(WindowState::Normal);
  } else if (frame.Maximise) {
    SetState(state_ == WindowState::Maximised ? WindowState::Normal : WindowState::Maximised);
  }
}

void DesignWindow::Unroll() {
  if (state_ == WindowState::Minimised) SetState(WindowState::Normal);
}

void DesignWindow::SetState(WindowState state) {
  if (state_ == state) return;
  if (state_ == WindowState::Normal) normal_ = geometry();
  state_ = state;
  hovered_ = FramePart::None;
  switch (state) {
    case WindowState::Normal:
      setGeometry(normal_);
      break;
    case WindowState::Minimised:
      resize(normal_.width(), RolledUpHeight());
      break;
    case WindowState::Maximised:
      emit FillRequested();
      break;
  }
  StoreSize();
  EndSizing();
  LayOut();
  update();
}

void DesignWindow::Fill(const QRect& visible) {
  if (geometry() == visible) return;
  setGeometry(visible);
  StoreSize();
}

void DesignWindow::Restore(WindowState state, const QRect& normal) {
  // The size of the form is what its text says; the position is the one before.
  setGeometry(state == WindowState::Normal ? QRect(normal.topLeft(), size()) : normal);
  SetState(state);
}

int DesignWindow::RolledUpHeight() const {
  const looks::FrameMetrics metrics = Frame().Metrics;
  return 2 * metrics.Border() + metrics.TitleBar();
}

void DesignWindow::EndSizing() {
  if (user_ != nullptr) user_->Frame().ResizeEnded();
}

void DesignWindow::StoreSize() {
  if (user_ == nullptr) return;
  if (state_ != WindowState::Minimised) stored_ = size();
  user_->Frame().Form_Resize(static_cast<float>(width() * kTwipsPerPixel),
                             static_cast<float>(height() * kTwipsPerPixel), state_);
  host_.Resized();
}

}  // namespace tarnwick
