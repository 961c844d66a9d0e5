#include "qt/grid/value_field.h"

#include <QPainter>

namespace tarnwick {

namespace {

constexpr int kMargin = 4;  ///< the style's padding and the toolkit's own margin

}  // namespace

void ValueField::SetIsPath(bool is_path) {
  if (is_path_ == is_path) return;
  is_path_ = is_path;
  update();
}

QRect ValueField::TextRect() const {
  return rect().adjusted(kMargin, 0, -kMargin, 0);
}

QString ValueField::CutText() const {
  return fontMetrics().elidedText(text(), is_path_ ? Qt::ElideLeft : Qt::ElideRight,
                                  TextRect().width());
}

void ValueField::paintEvent(QPaintEvent* event) {
  const QString cut = CutText();
  if (hasFocus() || cut == text()) {
    QLineEdit::paintEvent(event);
    return;
  }
  QPainter painter(this);
  painter.fillRect(rect(), palette().base());
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(TextRect(), Qt::AlignLeft | Qt::AlignVCenter, cut);
}

}  // namespace tarnwick
