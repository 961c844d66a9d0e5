#include "qt/kit/grip_splitter.h"

#include <QPainter>

#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

constexpr int kGripLength = 28;
constexpr int kGripWidth = 4;

class GripHandle final : public QSplitterHandle {
 public:
  GripHandle(Qt::Orientation orientation, QSplitter* parent)
      : QSplitterHandle(orientation, parent) {
    setAttribute(Qt::WA_Hover);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(underMouse() ? AccentOf(palette())
                                  : palette().color(QPalette::PlaceholderText));
    const bool is_upright = orientation() == Qt::Horizontal;
    QRectF grip(0, 0, is_upright ? kGripWidth : kGripLength, is_upright ? kGripLength : kGripWidth);
    grip.moveCenter(QRectF(rect()).center());
    painter.drawRoundedRect(grip, kGripWidth / 2.0, kGripWidth / 2.0);
  }
};

}  // namespace

QSplitterHandle* GripSplitter::createHandle() {
  return new GripHandle(orientation(), this);
}

}  // namespace tarnwick
