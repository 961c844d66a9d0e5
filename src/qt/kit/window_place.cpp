#include "qt/kit/window_place.h"

#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace tarnwick {

void PlaceOverParent(QWidget& window) {
  const QWidget* const parent = window.parentWidget();
  if (parent == nullptr || window.testAttribute(Qt::WA_Moved)) return;
  const QRect free = parent->screen()->availableGeometry();
  const QRect over = parent->window()->geometry();
  const QPoint corner = over.center() - window.rect().center();
  const int left = std::min(corner.x(), free.right() - window.width());
  const int top = std::min(corner.y(), free.bottom() - window.height());
  window.move(std::max(left, free.left()), std::max(top, free.top()));
}

void GiveToParent(QWidget& window, QWidget& parent) {
  const bool shown = window.isVisible();
  // The frame that the desktop draws goes with the old parent, so the place is that of the inside.
  const QRect inside = window.geometry();
  window.setParent(&parent, window.windowFlags());
  window.setGeometry(inside);
  if (shown) window.show();
}

}  // namespace tarnwick
