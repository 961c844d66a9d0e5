#include "qt/surface/design_window.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "model/units.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "qt/surface/form_menu_strip.h"

namespace tarnwick {

namespace {

constexpr int kTitle = 24;
constexpr int kToolTitle = 19;
constexpr int kSizableBorder = 4;
constexpr int kFixedBorder = 2;
constexpr int kGrip = 10;
constexpr int kButtonWidth = 26;
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
  if (state_ == WindowState::Normal) {
    resize(qMax(1, WholePixelsOf(form_->Width)), qMax(1, WholePixelsOf(form_->Height)));
  }
  LayOut();
  update();
  surface_->update();
}

void DesignWindow::SyncMenuBar() {
  if (form_ == nullptr) return;
  menu_->Rebuild(*form_);
  LayOut();
}

DesignWindow::Frame DesignWindow::FrameOf() const {
  Frame frame;
  const FormUser* user = doors_.User();
  if (user == nullptr) return frame;
  using FrameMember = clsStyle::Member;
  const clsStyle& style = user->FormStyle();
  frame.Title = style.Get(FrameMember::Titlebar);
  frame.Buttons = style.Get(FrameMember::ControlBox);
  frame.Minimise = frame.Buttons && style.Get(FrameMember::MinButton);
  frame.Maximise = frame.Buttons && style.Get(FrameMember::MaxButton);
  frame.Sizable = style.Get(FrameMember::Sizable);
  frame.Tool = style.Get(FrameMember::ToolWindow);
  return frame;
}

int DesignWindow::TitleHeight() const {
  const Frame frame = FrameOf();
  if (!frame.Title) return 0;
  return frame.Tool ? kToolTitle : kTitle;
}

int DesignWindow::BorderWidth() const {
  return FrameOf().Sizable ? kSizableBorder : kFixedBorder;
}

void DesignWindow::LayOut() {
  const int border = BorderWidth();
  QRect inside = rect().adjusted(border, border + TitleHeight(), -border, -border);
  const bool menu = form_ != nullptr && form_->MenuBarVisible();
  menu_->setVisible(menu);
  if (menu) {
    menu_->setGeometry(inside.x(), inside.y(), inside.width(), FormMenuStrip::HeightPixels());
    inside.setTop(inside.top() + FormMenuStrip::HeightPixels());
  }
  surface_->setVisible(state_ != WindowState::Minimised && inside.height() > 0);
  surface_->setGeometry(inside);
}

QRect DesignWindow::ButtonRect(Part part) const {
  const Frame frame = FrameOf();
  if (!frame.Title || !frame.Buttons) return {};
  int place = 0;
  if (part == Part::Maximise) place = 1;
  if (part == Part::Minimise) place = frame.Maximise ? 2 : 1;
  if (part == Part::Maximise && !frame.Maximise) return {};
  if (part == Part::Minimise && !frame.Minimise) return {};
  const int border = BorderWidth();
  return {width() - border - (place + 1) * kButtonWidth, border, kButtonWidth, TitleHeight()};
}

DesignWindow::Part DesignWindow::PartAt(const QPoint& place) const {
  for (const Part part : {Part::Close, Part::Maximise, Part::Minimise}) {
    if (ButtonRect(part).contains(place)) return part;
  }
  return place.y() < BorderWidth() + TitleHeight() ? Part::Title : Part::None;
}

Qt::Edges DesignWindow::EdgesAt(const QPoint& place) const {
  Qt::Edges edges;
  if (!FrameOf().Sizable || state_ != WindowState::Normal) return edges;
  const int border = kSizableBorder;
  const bool corner_x = place.x() < kGrip || place.x() >= width() - kGrip;
  const bool on_edge = place.x() < border || place.y() < border || place.x() >= width() - border ||
                       place.y() >= height() - border;
  if (!on_edge) return edges;
  const int reach_y = corner_x ? kGrip : border;
  const bool corner_y = place.y() < kGrip || place.y() >= height() - kGrip;
  const int reach_x = corner_y ? kGrip : border;
  if (place.x() < reach_x) edges |= Qt::LeftEdge;
  if (place.x() >= width() - reach_x) edges |= Qt::RightEdge;
  if (place.y() < reach_y) edges |= Qt::TopEdge;
  if (place.y() >= height() - reach_y) edges |= Qt::BottomEdge;
  return edges;
}

void DesignWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayOut();
}

void DesignWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor line = current_ ? TitleOf() : LineOf(palette()).darker(115);
  painter.fillRect(rect(), LineOf(palette()));
  painter.setPen(line);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  if (FrameOf().Title) PaintTitle(painter);
}

void DesignWindow::PaintTitle(QPainter& painter) {
  const Frame frame = FrameOf();
  const int border = BorderWidth();
  const QRect title(1, 1, width() - 2, TitleHeight() + border - 1);
  const QColor ground = current_ ? TitleOf() : palette().color(QPalette::Button);
  painter.fillRect(title, ground);
  const QColor ink = current_ ? QColor(Qt::white) : palette().color(QPalette::PlaceholderText);
  int left = border + kGap;
  if (frame.Buttons && !frame.Tool) {
    const int side = 16;
    const QRect place(left, border + (TitleHeight() - side) / 2, side, side);
    const QPixmap* own =
        form_ != nullptr && !form_->WindowIcon.empty() ? &pictures_.At(form_->WindowIcon) : nullptr;
    if (own != nullptr && !own->isNull()) {
      painter.drawPixmap(place, *own);
    } else {
      const QColor paper = ground;
      painter.drawPixmap(place.topLeft(), PixmapOf(QStringLiteral("form"), side,
                                                   devicePixelRatioF(), {ink, ink, paper}));
    }
    left += side + 6;
  }
  int right = width() - border;
  for (const Part part : {Part::Close, Part::Maximise, Part::Minimise}) {
    const QRect button = ButtonRect(part);
    if (button.isEmpty()) continue;
    right = button.left();
    PaintButton(painter, part);
  }
  QFont bold = font();
  bold.setWeight(QFont::DemiBold);
  painter.setFont(bold);
  painter.setPen(ink);
  const QRect text(left, border, qMax(0, right - left - kGap), TitleHeight());
  const QString caption = form_ != nullptr ? ToQString(form_->Caption) : QString();
  painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft,
                   QFontMetrics(bold).elidedText(caption, Qt::ElideRight, text.width()));
}

void DesignWindow::PaintButton(QPainter& painter, Part part) {
  const QRect button = ButtonRect(part);
  const QColor ink = current_ ? QColor(Qt::white) : palette().color(QPalette::PlaceholderText);
  if (part == hovered_) {
    QColor veil = ink;
    veil.setAlpha(48);
    painter.fillRect(button, veil);
  }
  painter.setPen(ink);
  const QPoint middle = button.center();
  const QRect box(middle.x() - 4, middle.y() - 4, 8, 8);
  if (part == Part::Close) {
    painter.drawLine(box.topLeft(), box.bottomRight());
    painter.drawLine(box.bottomLeft(), box.topRight());
  } else if (part == Part::Maximise) {
    painter.drawRect(state_ == WindowState::Maximised ? box.adjusted(0, 2, -3, -1)
                                                      : box.adjusted(0, 0, -1, -1));
    if (state_ == WindowState::Maximised) {
      painter.drawLine(box.x() + 3, box.y(), box.right(), box.y());
      painter.drawLine(box.right(), box.y(), box.right(), box.y() + 5);
    }
  } else {
    painter.drawLine(box.left(), box.bottom(), box.right(), box.bottom());
  }
}

void DesignWindow::mousePressEvent(QMouseEvent* event) {
  doors_.Activated();
  if (event->button() != Qt::LeftButton || form_ == nullptr) return;
  const QPoint place = event->position().toPoint();
  edges_ = EdgesAt(place);
  const Part part = PartAt(place);
  press_ = event->globalPosition().toPoint();
  at_press_ = geometry();
  if (edges_) return;
  if (part == Part::Close) {
    doors_.Closed();
  } else if (part == Part::Maximise) {
    SetState(state_ == WindowState::Maximised ? WindowState::Normal : WindowState::Maximised);
  } else if (part == Part::Minimise) {
    SetState(state_ == WindowState::Minimised ? WindowState::Normal : WindowState::Minimised);
  } else {
    moving_ = part == Part::Title && state_ != WindowState::Maximised;
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
  const Qt::Edges edges = EdgesAt(place);
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
  const Part part = PartAt(place);
  if (part != hovered_) {
    hovered_ = part;
    update();
  }
}

void DesignWindow::DragEdges(const QPoint& global) {
  const QPoint by = global - press_;
  QRect place = at_press_;
  const int least_height = 2 * BorderWidth() + TitleHeight();
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
  moving_ = false;
  edges_ = {};
}

void DesignWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  if (PartAt(event->position().toPoint()) != Part::Title) return;
  if (state_ == WindowState::Minimised) {
    SetState(WindowState::Normal);
  } else if (FrameOf().Maximise) {
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
  hovered_ = Part::None;
  switch (state) {
    case WindowState::Normal:
      setGeometry(normal_);
      break;
    case WindowState::Minimised:
      resize(normal_.width(), 2 * BorderWidth() + TitleHeight());
      break;
    case WindowState::Maximised:
      if (parentWidget() != nullptr) setGeometry(parentWidget()->visibleRegion().boundingRect());
      break;
  }
  TellSize();
  LayOut();
  update();
}

void DesignWindow::TellSize() {
  FormUser* user = doors_.User();
  if (form_ == nullptr || user == nullptr) return;
  user->Form_Resize(static_cast<float>(width() * kTwipsPerPixel),
                    static_cast<float>(height() * kTwipsPerPixel), state_);
  doors_.Resized();
}

}  // namespace tarnwick
