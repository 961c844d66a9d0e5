#include "qt/property_row_view.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>

#include "qt/platform_colors.h"
#include "qt/text_bridge.h"
#include "qt/theme.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

/// The names take this part of the row's width.
constexpr double kNamePart = 0.42;
constexpr int kSwatch = 12;

QPixmap SwatchOf(std::string_view text, const QColor& line) {
  QPixmap pixmap(kSwatch, kSwatch);
  pixmap.fill(ColorOf(ToInt32(Val(text)).value_or(0)));
  QPainter painter(&pixmap);
  painter.setPen(line);
  painter.drawRect(0, 0, kSwatch - 1, kSwatch - 1);
  return pixmap;
}

}  // namespace

PropertyRowView::PropertyRowView(int row, QWidget* parent)
    : QWidget(parent), row_(row), label_(new QLabel(this)), text_(new QLineEdit(this)) {
  label_->setObjectName(QStringLiteral("Label_%1").arg(row));
  label_->setIndent(kRoom);
  text_->setObjectName(QStringLiteral("Text_%1").arg(row));
  text_->setFrame(false);
  KeepInCodePage(*text_);
  setFixedHeight(HeightPixels());
}

void PropertyRowView::SetName(std::string_view name) {
  const QString shown = ToQString(name);
  if (label_->text() == shown) return;
  label_->setText(shown);
  label_->setToolTip(shown);
  text_->setAccessibleName(shown);
}

void PropertyRowView::SetValue(std::string_view text, bool is_color, bool takes_typing) {
  const QString shown = ToQString(text);
  if (text_->text() != shown) {
    text_->setText(shown);
    text_->setCursorPosition(text_->hasFocus() ? static_cast<int>(shown.size()) : 0);
  }
  text_->setReadOnly(!takes_typing);
  if (is_color) {
    if (swatch_ == nullptr) swatch_ = text_->addAction(QIcon(), QLineEdit::LeadingPosition);
    swatch_->setIcon(SwatchOf(text, LineOf(palette())));
    swatch_->setVisible(true);
  } else if (swatch_ != nullptr) {
    swatch_->setVisible(false);
  }
}

void PropertyRowView::SetSelected(bool selected) {
  if (selected_ == selected) return;
  selected_ = selected;
  update();
}

void PropertyRowView::SetButtonRoom(int pixels) {
  button_room_ = pixels;
  LayOut();
}

void PropertyRowView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayOut();
}

void PropertyRowView::LayOut() {
  const int name = static_cast<int>(width() * kNamePart);
  label_->setGeometry(0, 0, name, height() - 1);
  text_->setGeometry(name + 1, 0, width() - name - 1 - button_room_, height() - 1);
}

void PropertyRowView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const int name = static_cast<int>(width() * kNamePart);
  if (selected_) {
    QColor veil = AccentOf(palette());
    veil.setAlpha(44);
    painter.fillRect(0, 0, name, height(), veil);
    painter.fillRect(0, 0, 3, height(), AccentOf(palette()));
  }
  const QColor line = LineOf(palette());
  painter.fillRect(0, height() - 1, width(), 1, line);
  painter.fillRect(name, 0, 1, height(), line);
}

}  // namespace tarnwick
