#include "qt/frame/right_column.h"

#include <QEvent>
#include <QSplitter>
#include <utility>

#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

/// Heights of the column below which the icon, and then the room of the form list, give way.
constexpr int kLeastWithIcon = 700;
constexpr int kLow = 600;

}  // namespace

RightColumn::RightColumn(QSplitter* panels, QWidget* icon, QWidget* parent)
    : QWidget(parent), panels_(panels), icon_(icon) {
  panels_->setParent(this);
  icon_->setParent(this);
}

QSize RightColumn::minimumSizeHint() const {
  return panels_->minimumSizeHint();
}

void RightColumn::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayOut();
}

void RightColumn::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  LayOut();
}

bool RightColumn::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) {
    updateGeometry();
    LayOut();
  }
  return QWidget::event(event);
}

void RightColumn::LayOut() {
  const bool has_icon = height() >= kLeastWithIcon;
  icon_->setVisible(has_icon);
  const int icon = has_icon ? icon_->sizeHint().height() : 0;
  const int panels = has_icon ? height() - icon - kRoom : height();
  panels_->setGeometry(0, 0, width(), panels);
  icon_->setGeometry(0, height() - icon, width(), icon);
  if (isVisible()) ShareWithForms(panels);
}

/// A window that becomes low takes what the form list can spare and gives it back later.
void RightColumn::ShareWithForms(int height_of_both) {
  const bool is_low = height() < kLow;
  if (is_low == std::exchange(is_low_, is_low)) return;
  if (is_low) {
    const QList<int> sizes = panels_->sizes();
    forms_ = sizes.size() > 1 ? sizes[1] : 0;
    panels_->setSizes({height_of_both, 0});
  } else if (forms_ > 0) {
    panels_->setSizes({height_of_both - forms_, forms_});
  }
}

}  // namespace tarnwick
