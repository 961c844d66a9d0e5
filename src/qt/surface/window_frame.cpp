#include "qt/surface/window_frame.h"

#include <QPainter>
#include <QWidget>

#include "qt/kit/icon_set.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

constexpr int kGrip = 10;  // a corner can be taken so far along the edges
constexpr int kIconSide = 16;
constexpr int kHoverVeil = 48;

QColor InkOf(const QWidget& window, bool current) {
  return current ? QColor(Qt::white) : window.palette().color(QPalette::PlaceholderText);
}

void PaintMark(QPainter& painter, const QPoint& middle, FramePart part, bool maximised) {
  const QRect box(middle.x() - 4, middle.y() - 4, 8, 8);
  if (part == FramePart::Close) {
    painter.drawLine(box.topLeft(), box.bottomRight());
    painter.drawLine(box.bottomLeft(), box.topRight());
  } else if (part == FramePart::Maximise) {
    painter.drawRect(maximised ? box.adjusted(0, 2, -3, -1) : box.adjusted(0, 0, -1, -1));
    if (maximised) {
      painter.drawLine(box.x() + 3, box.y(), box.right(), box.y());
      painter.drawLine(box.right(), box.y(), box.right(), box.y() + 5);
    }
  } else {
    painter.drawLine(box.left(), box.bottom(), box.right(), box.bottom());
  }
}

/// Paints the buttons and returns the left edge of the leftmost.
int PaintButtons(QPainter& painter, const WindowFrame& frame, const FrameLook& look,
                 const QColor& ink) {
  int left = frame.Size.width() - frame.Metrics.Border();
  for (const FramePart part : {FramePart::Close, FramePart::Maximise, FramePart::Minimise}) {
    const QRect button = frame.ButtonRect(part);
    if (button.isEmpty()) continue;
    left = button.left();
    if (part == look.Hovered) {
      QColor veil = ink;
      veil.setAlpha(kHoverVeil);
      painter.fillRect(button, veil);
    }
    painter.setPen(ink);
    PaintMark(painter, button.center(), part, look.Maximised);
  }
  return left;
}

void PaintIcon(QPainter& painter, const QPoint& at, const FrameLook& look, const QColor& ink,
               const QColor& ground, qreal ratio) {
  if (look.Icon != nullptr && !look.Icon->isNull()) {
    painter.drawPixmap(QRect(at, QSize(kIconSide, kIconSide)), *look.Icon);
  } else {
    painter.drawPixmap(at, PixmapOf(QStringLiteral("form"), kIconSide, ratio, {ink, ink, ground}));
  }
}

void PaintTitle(QPainter& painter, const QWidget& window, const WindowFrame& frame,
                const FrameLook& look) {
  const int border = frame.Metrics.Border();
  const int height = frame.Metrics.TitleBar();
  const QColor ground = look.Current ? TitleOf() : window.palette().color(QPalette::Button);
  painter.fillRect(QRect(1, 1, frame.Size.width() - 2, height + border - 1), ground);
  const QColor ink = InkOf(window, look.Current);
  int left = border + kGap;
  if (frame.Buttons && !frame.Metrics.Tool) {
    PaintIcon(painter, {left, border + (height - kIconSide) / 2}, look, ink, ground,
              window.devicePixelRatioF());
    left += kIconSide + 6;
  }
  const int right = PaintButtons(painter, frame, look, ink);
  QFont bold = window.font();
  bold.setWeight(QFont::DemiBold);
  painter.setFont(bold);
  painter.setPen(ink);
  const QRect text(left, border, qMax(0, right - left - kGap), height);
  painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft,
                   QFontMetrics(bold).elidedText(look.Caption, Qt::ElideRight, text.width()));
}

}  // namespace

QRect WindowFrame::ButtonRect(FramePart part) const {
  if (!Metrics.Title || !Buttons) return {};
  if (part == FramePart::Maximise && !Maximise) return {};
  if (part == FramePart::Minimise && !Minimise) return {};
  int from_right = 0;
  if (part == FramePart::Maximise) from_right = 1;
  if (part == FramePart::Minimise) from_right = Maximise ? 2 : 1;
  const int border = Metrics.Border();
  return {Size.width() - border - (from_right + 1) * looks::kTitleButtonWidth, border,
          looks::kTitleButtonWidth, Metrics.TitleBar()};
}

FramePart WindowFrame::PartAt(const QPoint& place) const {
  for (const FramePart part : {FramePart::Close, FramePart::Maximise, FramePart::Minimise}) {
    if (ButtonRect(part).contains(place)) return part;
  }
  return place.y() < Metrics.Border() + Metrics.TitleBar() ? FramePart::Title : FramePart::None;
}

Qt::Edges WindowFrame::EdgesAt(const QPoint& place) const {
  Qt::Edges edges;
  if (!Metrics.Sizable || Fixed) return edges;
  const int border = looks::kSizableBorder;
  const int width = Size.width();
  const int height = Size.height();
  const bool corner_x = place.x() < kGrip || place.x() >= width - kGrip;
  const bool on_edge = place.x() < border || place.y() < border || place.x() >= width - border ||
                       place.y() >= height - border;
  if (!on_edge) return edges;
  const int reach_y = corner_x ? kGrip : border;
  const bool corner_y = place.y() < kGrip || place.y() >= height - kGrip;
  const int reach_x = corner_y ? kGrip : border;
  if (place.x() < reach_x) edges |= Qt::LeftEdge;
  if (place.x() >= width - reach_x) edges |= Qt::RightEdge;
  if (place.y() < reach_y) edges |= Qt::TopEdge;
  if (place.y() >= height - reach_y) edges |= Qt::BottomEdge;
  return edges;
}

void PaintFrame(QPainter& painter, const QWidget& window, const WindowFrame& frame,
                const FrameLook& look) {
  painter.fillRect(window.rect(), LineOf(window.palette()));
  painter.setPen(look.Current ? TitleOf() : LineOf(window.palette()).darker(115));
  painter.drawRect(window.rect().adjusted(0, 0, -1, -1));
  if (frame.Metrics.Title) PaintTitle(painter, window, frame, look);
}

}  // namespace tarnwick
