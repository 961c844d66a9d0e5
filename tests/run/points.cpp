#include "run/points.h"

#include <QImage>

namespace tarnwick::test {

int PointsWhere(QWidget& widget, const std::function<bool(const QColor&)>& fits) {
  const QImage image = widget.grab().toImage();
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += fits(image.pixelColor(x, y)) ? 1 : 0;
  }
  return count;
}

int PointsOf(QWidget& widget, const QColor& color) {
  return PointsWhere(widget, [&color](const QColor& at) { return at == color; });
}

}  // namespace tarnwick::test
