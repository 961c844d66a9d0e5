#include "qt/menus/row_list_view.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPixmap>
#include <QSignalBlocker>

#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"

namespace tarnwick {

namespace {

constexpr int kMarkSide = 14;

QIcon EmptyIcon() {
  QPixmap empty(kMarkSide, kMarkSide);
  empty.fill(Qt::transparent);
  return empty;
}

}  // namespace

RowListView::RowListView(QWidget* parent)
    : QListWidget(parent), mark_(IconOf(QStringLiteral("mark"))), no_mark_(EmptyIcon()) {
  setObjectName(QStringLiteral("ListMenu"));
  setAccessibleName(QStringLiteral("Menu rows"));
  setUniformItemSizes(true);
  setIconSize({kMarkSide, kMarkSide});
  // An empty row is as high as the others.
  connect(this, &QListWidget::currentRowChanged, this, &RowListView::Chosen);
}

void RowListView::ShowRows(const std::vector<std::string>& rows,
                           const std::vector<std::string>& faults, int selected) {
  const QSignalBlocker quiet(this);
  while (count() > static_cast<int>(rows.size())) delete takeItem(count() - 1);
  while (count() < static_cast<int>(rows.size())) addItem(QString());
  for (int row = 0; row < count(); ++row) {
    const auto index = static_cast<std::size_t>(row);
    const QString text = ToQString(rows[index]);
    const QString fault = ToQString(faults[index]);
    QListWidgetItem& line = *item(row);
    if (line.text() == text && line.toolTip() == fault && !line.icon().isNull()) continue;
    line.setText(text);
    line.setIcon(fault.isEmpty() ? no_mark_ : mark_);
    line.setToolTip(fault);
    line.setData(Qt::AccessibleTextRole, fault.isEmpty()
                                             ? (text.isEmpty() ? QStringLiteral("Empty row") : text)
                                             : text + QStringLiteral(". ") + fault);
  }
  setCurrentRow(selected);
  if (selected >= 0) scrollToItem(item(selected));
}

int RowListView::RowUnder(const QPoint& place) const {
  // Beyond the edges the list goes on, one row at a time.
  if (place.y() < 0) return qMax(0, currentRow() - 1);
  if (place.y() >= viewport()->height()) return qMin(count() - 1, currentRow() + 1);
  const QModelIndex index = indexAt({1, place.y()});
  return index.isValid() ? index.row() : count() - 1;
}

void RowListView::mousePressEvent(QMouseEvent* event) {
  QListWidget::mousePressEvent(event);
  pressed_ = event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid();
  dragging_ = false;
  press_ = event->position().toPoint();
}

void RowListView::mouseMoveEvent(QMouseEvent* event) {
  if (!pressed_) {
    QListWidget::mouseMoveEvent(event);
    return;
  }
  const QPoint place = event->position().toPoint();
  if (!dragging_) {
    if ((place - press_).manhattanLength() < QApplication::startDragDistance()) return;
    dragging_ = true;
    viewport()->setCursor(Qt::ClosedHandCursor);
  }
  const int row = RowUnder(place);
  if (row != currentRow()) emit Dragged(row);
}

void RowListView::mouseReleaseEvent(QMouseEvent* event) {
  QListWidget::mouseReleaseEvent(event);
  if (dragging_) viewport()->unsetCursor();
  pressed_ = false;
  dragging_ = false;
}

}  // namespace tarnwick
