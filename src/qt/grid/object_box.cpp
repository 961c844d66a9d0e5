#include "qt/grid/object_box.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <utility>

#include "qt/grid/cell_keys.h"

namespace tarnwick {

namespace {

constexpr int kMostRows = 20;
constexpr qint64 kPause = 1500;  ///< milliseconds after which letters begin another word

}  // namespace

ObjectBox::ObjectBox(std::function<int(const QString&)> search, QWidget* parent)
    : QComboBox(parent), search_(std::move(search)) {
  setMaxVisibleItems(kMostRows);
  // A list with a scroll bar rather than one over the whole screen.
  setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
  view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  view()->installEventFilter(this);
}

bool ObjectBox::Search(const QKeyEvent& event) {
  const bool goes_on = !typed_.isEmpty() && since_.isValid() && !since_.hasExpired(kPause);
  const bool is_blank_first = !goes_on && event.key() == Qt::Key_Space;
  if (!IsTyping(event) || is_blank_first) return false;
  typed_ = goes_on ? typed_ + event.text() : event.text();
  GoTo(search_(typed_));
  // The pause is the user's: the time that a selection takes to be shown does not count.
  since_.start();
  return true;
}

void ObjectBox::GoTo(int row) {
  if (row < 0) return;
  if (view()->isVisible()) {
    view()->setCurrentIndex(model()->index(row, modelColumn(), rootModelIndex()));
  } else if (row != currentIndex()) {
    setCurrentIndex(row);
    Q_EMIT activated(row);
  }
}

void ObjectBox::keyPressEvent(QKeyEvent* event) {
  if (Search(*event)) return;
  typed_.clear();
  QComboBox::keyPressEvent(event);
}

bool ObjectBox::eventFilter(QObject* object, QEvent* event) {
  if (object == view() && event->type() == QEvent::KeyPress &&
      Search(*static_cast<QKeyEvent*>(event))) {
    return true;
  }
  return QComboBox::eventFilter(object, event);
}

}  // namespace tarnwick
