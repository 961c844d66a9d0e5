#include "qt/grid/value_popup.h"

#include <QKeyEvent>
#include <QScreen>
#include <QSignalBlocker>

#include "qt/kit/text_bridge.h"

namespace tarnwick {

namespace {

constexpr int kMostRows = 12;
constexpr int kFrame = 6;  ///< border and padding, both sides

}  // namespace

ValuePopup::ValuePopup(QWidget* parent) : QListWidget(parent) {
  setObjectName(QStringLiteral("ListBox"));
  setAccessibleName(QStringLiteral("Values"));
  setWindowFlags(Qt::Popup);
  // A press on the button that opened the list closes it and no more.
  setAttribute(Qt::WA_NoMouseReplay);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setUniformItemSizes(true);
  setMouseTracking(true);
  hide();
  connect(this, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { Choose(row(item)); });
}

void ValuePopup::Open(const std::vector<std::string>& values, int marked, const QRect& line) {
  const QSignalBlocker quiet(this);
  clear();
  for (const std::string& text : values) addItem(ToQString(text));
  setCurrentRow(marked);
  const int rows = qBound(1, count(), kMostRows);
  const int row_height = count() > 0 ? sizeHintForRow(0) : line.height();
  QRect place(line.left(), line.bottom() + 1, line.width(), row_height * rows + kFrame);
  if (const QScreen* desk = screen(); place.bottom() > desk->availableGeometry().bottom()) {
    place.moveBottom(line.top() - 1);
  }
  setGeometry(place);
  show();
  setFocus();
  if (currentItem() != nullptr) scrollToItem(currentItem());
}

void ValuePopup::Choose(int index) {
  if (index < 0 || index >= count()) return;
  hide();
  Q_EMIT Chosen(index);
}

void ValuePopup::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
      Choose(currentRow());
      return;
    case Qt::Key_Escape:
    case Qt::Key_F4:
      hide();
      return;
    default:
      break;
  }
  if (event->modifiers().testFlag(Qt::AltModifier)) {
    hide();
    return;
  }
  QListWidget::keyPressEvent(event);
}

void ValuePopup::hideEvent(QHideEvent* event) {
  QListWidget::hideEvent(event);
  Q_EMIT Closed();
}

}  // namespace tarnwick
