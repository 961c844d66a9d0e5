#include "qt/grid/property_row_view.h"

#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>

#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

/// The names take this part of the row's width.
constexpr double kNamePart = 0.42;

}  // namespace

PropertyRowView::PropertyRowView(int row, QWidget* parent)
    : QWidget(parent), row_(row), label_(new QLabel(this)), text_(new QLineEdit(this)) {
  label_->setObjectName(QStringLiteral("Label_%1").arg(row));
  label_->setTextFormat(Qt::PlainText);
  label_->setIndent(kRoom);
  // Not the roles that the grid hands down: the selected row sets these two.
  label_->setBackgroundRole(QPalette::Window);
  label_->setForegroundRole(QPalette::WindowText);
  text_->setObjectName(QStringLiteral("Text_%1").arg(row));
  text_->setFrame(false);
  text_->setFocusPolicy(Qt::ClickFocus);
  KeepInCodePage(*text_);
  resize(width(), HeightPixels());
}

void PropertyRowView::SetName(std::string_view name) {
  const QString shown = ToQString(name);
  if (label_->text() == shown) return;
  label_->setText(shown);
  label_->setToolTip(shown);
  text_->setAccessibleName(shown);
}

void PropertyRowView::SetValue(std::string_view text, const RowLook& look) {
  const QString shown = ToQString(text);
  if (text_->text() != shown) {
    text_->setText(shown);
    text_->setCursorPosition(text_->hasFocus() ? static_cast<int>(shown.size()) : 0);
  }
  if (text_->isReadOnly() == look.Typed) text_->setReadOnly(!look.Typed);
  if (text_->font() != look.Face) text_->setFont(look.Face);
  if (text_->toolTip() != look.Tip) text_->setToolTip(look.Tip);
  if (picture_.isNull() && look.Picture.isNull() && note_ == look.Note) return;
  picture_ = look.Picture;
  note_ = look.Note;
  LayOut();
  update();
}

void PropertyRowView::SetColors(const QColor& back, const QColor& text) {
  const bool selected = back.isValid();
  if (selected_ == selected) return;
  selected_ = selected;
  QPalette colors = palette();
  if (selected) {
    colors.setColor(QPalette::Window, back);
    colors.setColor(QPalette::WindowText, text);
  }
  label_->setPalette(colors);
  label_->setAutoFillBackground(selected);
}

void PropertyRowView::SetButtonRoom(int pixels) {
  if (button_room_ == pixels) return;
  button_room_ = pixels;
  LayOut();
}

int PropertyRowView::ValueLeft(int width) {
  return static_cast<int>(width * kNamePart) + 1;
}

void PropertyRowView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayOut();
}

void PropertyRowView::LayOut() {
  int left = ValueLeft(width());
  label_->setGeometry(0, 0, left - 1, height() - 1);
  if (!picture_.isNull()) left += kGap + PicturePixels();
  int right = width() - button_room_;
  if (!note_.isEmpty()) right -= fontMetrics().horizontalAdvance(note_) + kRoom;
  text_->setGeometry(left, 0, qMax(0, right - left), height() - 1);
}

void PropertyRowView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const int left = ValueLeft(width());
  painter.fillRect(left, 0, width() - left, height(), palette().base());
  if (!picture_.isNull()) {
    const QSizeF size = picture_.deviceIndependentSize();
    const int side = PicturePixels();
    painter.drawPixmap(
        QPointF(left + kGap + (side - size.width()) / 2, (height() - 1 - size.height()) / 2),
        picture_);
  }
  if (!note_.isEmpty()) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(QRect(left, 0, width() - button_room_ - left - kGap, height() - 1),
                     Qt::AlignRight | Qt::AlignVCenter, note_);
  }
  const QColor line = LineOf(palette());
  painter.fillRect(0, height() - 1, width(), 1, line);
  painter.fillRect(left - 1, 0, 1, height(), line);
}

void PropertyRowView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Q_EMIT NamePressed(row_, false);
}

void PropertyRowView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Q_EMIT NamePressed(row_, true);
}

}  // namespace tarnwick
