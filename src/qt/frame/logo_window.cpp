#include "qt/frame/logo_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "qt/frame/name_labels.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

LogoWindow::LogoWindow(QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::WindowStaysOnTopHint), text_(new QLabel(this)) {
  setObjectName(QStringLiteral("Logo"));
  text_->setObjectName(QStringLiteral("LogoText"));
  text_->setProperty("quiet", true);
  text_->setMinimumWidth(120);
  auto* texts = new QVBoxLayout;
  texts->setSpacing(kGap);
  texts->addStretch();
  texts->addWidget(MakeNameLabel(2.0, this));
  texts->addWidget(text_);
  texts->addStretch();
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(4 * kRoom, 3 * kRoom, 5 * kRoom, 3 * kRoom);
  row->setSpacing(3 * kRoom);
  row->addWidget(MakePictureLabel(this));
  row->addLayout(texts);
}

void LogoWindow::ShowText(std::string_view text) {
  text_->setText(ToQString(text));
  if (isVisible()) return;
  adjustSize();
  if (const QWidget* over = parentWidget()) move(over->geometry().center() - rect().center());
  show();
  raise();
}

void LogoWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  painter.setPen(LineOf(palette()));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.fillRect(0, 0, width(), 3, AccentOf(palette()));
}

}  // namespace tarnwick
