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

DesignWindow::DesignWindow(DesignForm& form, looks::PictureCache& pictures, TextCache& texts,
                           DesignWindowDoors doors, QWidget* parent)
    : QWidget(parent),
      form_(&form),
      doors_(std::move(doors)),
      pictures_(pictures),
      surface_(new DesignSurface(form, pictures, texts, doors_, this)),
      menu_(new FormMenuStrip(
          [this](const ControlRef& item) {
            if (FormUser* user = doors_.User()) user->MenuItemPress(item);
          },
          this)) {
  setObjectName(QStringLiteral("FormUser_%1").arg(form.Number()));
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  surface_->setCursor(Qt::ArrowCursor);
  surface_->installEventFilter(menu_);
  SyncMenuBar();
  SyncWithForm();
}

DesignWindow::~DesignWindow() = default;

void DesignWindow::Detach() {
  form_ = nullptr;
  surface_->Detach();
}

void DesignWindow::SetCurrent(bool current) {
  if (current_ == current) return;
  current_ = current;
  update();
}

void DesignWindow::SyncWithForm() {
  if (form_ == nullptr) return;
  const QSize wanted(qMax(1, WholePixelsOf(form_->Width)), qMax(1, WholePixelsOf(form_->Height)));
  if (state_ == WindowState::Normal) {
    resize(wanted);
  } else {
    // What was edited meanwhile holds when the window returns to normal.
    if (wanted.width() != told_.width()) normal_.setWidth(wanted.width());
    if (wanted.height() != told_.height()) normal_.setHeight(wanted.height());
  }
  told_ = wanted;
  LayOut();
  update();
  surface_->update();
}

void DesignWindow::SyncMenuBar() {
  if (form_ == nullptr) return;
  menu_->Rebuild(*form_);
  LayOut();
}

WindowFrame DesignWindow::FrameOf() const {
  WindowFrame frame;
  const FormUser* user = doors_.User();
  if (user == nullptr) return frame;
  using FrameMember = clsStyle::Member;
  const clsStyle& style = user->Frame().Style();
  frame.Metrics.Title = style.Get(FrameMember::Titlebar);
  frame.Metrics.Sizable = style.Get(FrameMember::Sizable);
  frame.Metrics.Tool = style.Get(FrameMember::ToolWindow);
  frame.Metrics.Menu = form_ != nullptr && form_->MenuBarVisible();
  frame.Buttons = style.Get(FrameMember::ControlBox);
  frame.Minimise = frame.Buttons && style.Get(FrameMember::MinButton);
  frame.Maximise = frame.Buttons && style.Get(FrameMember::MaxButton);
  frame.Size = size();
  frame.Fixed = state_ != WindowState::Normal;
  return frame;
}

void DesignWindow::LayOut() {
  const looks::FrameMetrics metrics = FrameOf().Metrics;
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
  look.Caption = form_ != nullptr ? ToQString(form_->Caption) : QString();
  if (form_ != nullptr && !form_->WindowIcon.empty()) look.Icon = &pictures_.At(form_->WindowIcon);
  PaintFrame(painter, *this, FrameOf(), look);
}

void DesignWindow::mousePressEvent(QMouseEvent* event) {
  doors_.Activated();
  if (event->button() != Qt::LeftButton || form_ == nullptr) return;
  const QPoint place = event->position().toPoint();
  const WindowFrame frame = FrameOf();
  edges_ = frame.EdgesAt(place);
  const FramePart part = frame.PartAt(place);
  press_ = event->globalPosition().toPoint();
  at_press_ = geometry();
  if (edges_) return;
  if (part == FramePart::Close) {
    doors_.Closed();
  } else if (part == FramePart::Maximise) {
    SetState(state_ == WindowState::Maximised ? WindowState::Normal : WindowState::Maximised);
  } else if (part == FramePart::Minimise) {
    SetState(state_ == WindowState::Minimised ? WindowState::Normal : WindowState::Minimised);
  } else {
    moving_ = part == FramePart::Title && state_ != WindowState::Maximised;
    surface_->setFocus();
  }
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
  const WindowFrame frame = FrameOf();
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
  TellSize();
}

void DesignWindow::mouseReleaseEvent(QMouseEvent* /*event*/) {
  if (edges_) EndSizing();
  moving_ = false;
  edges_ = {};
}

void DesignWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  const WindowFrame frame = FrameOf();
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
      setGeometry(doors_.Visible());
      break;
  }
  TellSize();
  EndSizing();
  LayOut();
  update();
}

void DesignWindow::Fill(const QRect& visible) {
  if (geometry() == visible) return;
  setGeometry(visible);
  TellSize();
}

int DesignWindow::RolledUpHeight() const {
  const looks::FrameMetrics metrics = FrameOf().Metrics;
  return 2 * metrics.Border() + metrics.TitleBar();
}

void DesignWindow::EndSizing() {
  if (FormUser* const user = doors_.User()) user->Frame().ResizeEnded();
}

void DesignWindow::TellSize() {
  FormUser* user = doors_.User();
  if (form_ == nullptr || user == nullptr) return;
  if (state_ != WindowState::Minimised) told_ = size();
  user->Frame().Form_Resize(static_cast<float>(width() * kTwipsPerPixel),
                            static_cast<float>(height() * kTwipsPerPixel), state_);
  doors_.Resized();
}

}  // namespace tarnwick
