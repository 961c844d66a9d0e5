#include "qt/grid/property_row_view.h"

#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include "qt/grid/value_field.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

/// So many pixels in front of the line between the columns can be dragged.
constexpr int kGrip = 5;

/// A triangle with an exclamation mark.
void DrawWarning(QPainter& painter, const QRectF& place) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath triangle;
  triangle.moveTo(place.center().x(), place.top() + 1);
  triangle.lineTo(place.right() - 1, place.bottom() - 1);
  triangle.lineTo(place.left() + 1, place.bottom() - 1);
  triangle.closeSubpath();
  painter.setPen(QPen(QColor(0x9A, 0x67, 0x00), 1));
  painter.setBrush(QColor(0xFB, 0xBF, 0x24));
  painter.drawPath(triangle);
  painter.setPen(QPen(QColor(0x42, 0x20, 0x06), 1.6));
  const double x = place.center().x();
  painter.drawLine(QPointF(x, place.top() + 6), QPointF(x, place.bottom() - 6));
  painter.drawPoint(QPointF(x, place.bottom() - 3.5));
  painter.restore();
}

}  // namespace

PropertyRowView::PropertyRowView(int row, QWidget* parent)
    : QWidget(parent), row_(row), label_(new QLabel(this)), text_(new ValueField(this)) {
  label_->setObjectName(QStringLiteral("Label_%1").arg(row));
  label_->setTextFormat(Qt::PlainText);
  label_->setIndent(kRoom);
  label_->setForegroundRole(QPalette::WindowText);
  text_->setObjectName(QStringLiteral("Text_%1").arg(row));
  text_->setFrame(false);
  text_->setFocusPolicy(Qt::ClickFocus);
  KeepInCodePage(*text_);
  setMouseTracking(true);
  resize(width(), HeightPixels());
}

QLineEdit& PropertyRowView::Field() {
  return *text_;
}

void PropertyRowView::SetName(std::string_view name) {
  const QString shown = ToQString(name);
  if (label_->text() == shown) return;
  label_->setText(shown);
  text_->setAccessibleName(shown);
}

void PropertyRowView::SetValue(std::string_view text, const RowLook& look) {
  const QString shown = ToQString(text);
  if (text_->text() != shown) {
    // A character that was replaced where it was typed leaves the caret behind it.
    const int caret = shown.size() == text_->text().size() ? text_->cursorPosition()
                                                           : static_cast<int>(shown.size());
    text_->setText(shown);
    text_->setCursorPosition(text_->hasFocus() ? caret : 0);
    if (!note_.isEmpty()) LayOut();
  }
  if (text_->isReadOnly() == look.Typed) text_->setReadOnly(!look.Typed);
  if (text_->font() != look.Face) text_->setFont(look.Face);
  const QString& tip = look.Fault.isEmpty() ? look.Tip : look.Fault;
  if (text_->toolTip() != tip) text_->setToolTip(tip);
  if (text_->accessibleDescription() != look.Fault) text_->setAccessibleDescription(look.Fault);
  text_->SetIsPath(look.IsPath);
  const bool same =
      picture_.isNull() && look.Picture.isNull() && note_ == look.Note && fault_ == look.Fault;
  if (same) return;
  picture_ = look.Picture;
  note_ = look.Note;
  fault_ = look.Fault;
  LayOut();
}

void PropertyRowView::SetSelected(bool selected) {
  if (selected_ == selected) return;
  selected_ = selected;
  label_->setForegroundRole(selected ? QPalette::HighlightedText : QPalette::WindowText);
  update();
}

void PropertyRowView::SetButtonRoom(int pixels) {
  if (button_room_ == pixels) return;
  button_room_ = pixels;
  LayOut();
}

void PropertyRowView::SetValueLeft(int pixels) {
  if (value_left_ == pixels) return;
  value_left_ = pixels;
  LayOut();
}

void PropertyRowView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayOut();
}

void PropertyRowView::LayOut() {
  int left = value_left_;
  label_->setGeometry(0, 0, left - kGrip, height() - 1);
  if (!picture_.isNull() || !fault_.isEmpty()) left += kGap + PicturePixels();
  int right = width() - button_room_;
  const int note = note_.isEmpty() ? 0 : fontMetrics().horizontalAdvance(note_) + kRoom;
  // Where the buttons of the selected row leave too little, the value comes first.
  const int value = text_->fontMetrics().horizontalAdvance(text_->text()) + kRoom;
  note_fits_ = button_room_ == 0 || right - note - left >= value;
  if (note_fits_) right -= note;
  text_->setGeometry(left, 0, qMax(0, right - left), height() - 1);
  update();
}

void PropertyRowView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const int left = value_left_;
  if (selected_) painter.fillRect(0, 0, left, height(), palette().highlight());
  painter.fillRect(left, 0, width() - left, height(), palette().base());
  const int side = PicturePixels();
  if (!fault_.isEmpty()) {
    DrawWarning(painter, QRectF(left + kGap, (height() - 1 - side) / 2.0, side, side));
  } else if (!picture_.isNull()) {
    const QSizeF size = picture_.deviceIndependentSize();
    painter.drawPixmap(
        QPointF(left + kGap + (side - size.width()) / 2, (height() - 1 - size.height()) / 2),
        picture_);
  }
  if (!note_.isEmpty() && note_fits_) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(QRect(left, 0, width() - button_room_ - left - kGap, height() - 1),
                     Qt::AlignRight | Qt::AlignVCenter, note_);
  }
  const QColor line = LineOf(palette());
  painter.fillRect(0, height() - 1, width(), 1, line);
  painter.fillRect(left - 1, 0, 1, height(), line);
}

bool PropertyRowView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  Q_EMIT TipWanted(row_, static_cast<QHelpEvent*>(event)->globalPos());
  return true;
}

bool PropertyRowView::IsOnDivider(const QMouseEvent& event) const {
  const double x = event.position().x();
  return x >= value_left_ - kGrip && x < value_left_;
}

void PropertyRowView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  dragging_ = IsOnDivider(*event);
  if (!dragging_) Q_EMIT NamePressed(row_, false);
}

void PropertyRowView::mouseMoveEvent(QMouseEvent* event) {
  if (dragging_) {
    Q_EMIT DividerDragged(static_cast<int>(event->position().x()));
  } else if (IsOnDivider(*event)) {
    setCursor(Qt::SplitHCursor);
  } else {
    unsetCursor();
  }
}

void PropertyRowView::mouseReleaseEvent(QMouseEvent* /*event*/) {
  dragging_ = false;
}

void PropertyRowView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && !IsOnDivider(*event)) Q_EMIT NamePressed(row_, true);
}

}  // namespace tarnwick
