#include "looks/classic_look.h"

#include <QPainter>
#include <QPainterPath>

namespace tarnwick::looks {

void DrawFrame(QPainter& painter, const QRect& rect, const QColor& top_left,
               const QColor& bottom_right) {
  const int x = rect.x();
  const int y = rect.y();
  const int w = rect.width();
  const int h = rect.height();
  if (w < 1 || h < 1) return;
  painter.fillRect(x, y, w - 1, 1, top_left);
  painter.fillRect(x, y, 1, h - 1, top_left);
  painter.fillRect(x, y + h - 1, w, 1, bottom_right);
  painter.fillRect(x + w - 1, y, 1, h, bottom_right);
}

void DrawRaised(QPainter& painter, const QRect& rect, const QColor& face) {
  painter.fillRect(rect, face);
  DrawFrame(painter, rect, kLight, kDarkShadow);
  DrawFrame(painter, rect.adjusted(1, 1, -1, -1), kInnerLight, kShadow);
}

void DrawSunken(QPainter& painter, const QRect& rect, const QColor& paper) {
  painter.fillRect(rect, paper);
  DrawFrame(painter, rect, kShadow, kLight);
  DrawFrame(painter, rect.adjusted(1, 1, -1, -1), kDarkShadow, kInnerLight);
}

void DrawFlat(QPainter& painter, const QRect& rect, const QColor& paper) {
  painter.fillRect(rect, paper);
  DrawFrame(painter, rect, kDarkShadow, kDarkShadow);
}

void DrawCheckBox(QPainter& painter, const QPoint& top_left, bool checked, bool enabled) {
  DrawSunken(painter, QRect(top_left, QSize(13, 13)), enabled ? kLight : kFace);
  if (!checked) return;
  const QColor ink = enabled ? kDarkShadow : kGreyText;
  for (int i = 0; i < 7; ++i) {
    const int drop = i < 3 ? i : 4 - i;
    painter.fillRect(top_left.x() + 3 + i, top_left.y() + 5 + drop, 1, 3, ink);
  }
}

void DrawOption(QPainter& painter, const QPoint& top_left, bool chosen, bool enabled) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF circle(top_left.x() + 0.5, top_left.y() + 0.5, 11, 11);
  painter.setPen(Qt::NoPen);
  painter.setBrush(enabled ? kLight : kFace);
  painter.drawEllipse(circle);
  painter.setBrush(Qt::NoBrush);
  constexpr int kQuarter = 90 * 16;
  const auto ring = [&painter](const QRectF& r, const QColor& upper, const QColor& lower) {
    painter.setPen(QPen(upper, 1));
    painter.drawArc(r, kQuarter / 2, 2 * kQuarter);
    painter.setPen(QPen(lower, 1));
    painter.drawArc(r, kQuarter / 2 + 2 * kQuarter, 2 * kQuarter);
  };
  ring(circle, kShadow, kLight);
  ring(circle.adjusted(1, 1, -1, -1), kDarkShadow, kInnerLight);
  if (chosen) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(enabled ? kDarkShadow : kGreyText);
    painter.drawEllipse(QPointF(top_left.x() + 6, top_left.y() + 6), 2.2, 2.2);
  }
  painter.restore();
}

void DrawDropArrow(QPainter& painter, const QRect& button, const QColor& color) {
  const int x = button.x() + (button.width() - 7) / 2;
  const int y = button.y() + (button.height() - 4) / 2;
  for (int i = 0; i < 4; ++i) painter.fillRect(x + i, y + i, 7 - 2 * i, 1, color);
}

}  // namespace tarnwick::looks
