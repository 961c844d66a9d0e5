#include "qt/grid/row_area.h"

#include <QScrollBar>

#include "qt/grid/property_row_view.h"

namespace tarnwick {

namespace {

constexpr int kLeastRows = 3;

}  // namespace

RowArea::RowArea() {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setWidgetResizable(true);
  verticalScrollBar()->setSingleStep(PropertyRowView::HeightPixels());
}

QSize RowArea::minimumSizeHint() const {
  return {QScrollArea::minimumSizeHint().width(), kLeastRows * PropertyRowView::HeightPixels()};
}

void RowArea::resizeEvent(QResizeEvent* event) {
  const QMargins margins(0, 0, 0, contentsRect().height() % PropertyRowView::HeightPixels());
  if (viewportMargins() != margins) setViewportMargins(margins);
  QScrollArea::resizeEvent(event);
  // The toolkit sets the step by the size of the contents.
  verticalScrollBar()->setSingleStep(PropertyRowView::HeightPixels());
}

}  // namespace tarnwick
