#include "qt/frame/icon_display.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "qt/kit/icon_set.h"
#include "qt/kit/panel_frame.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "shell/program_icon.h"

namespace tarnwick {

namespace {

constexpr int kPicture = 32;

}  // namespace

IconDisplay::IconDisplay(const ProjectTables& tables, looks::PictureCache& pictures,
                         QWidget* parent)
    : QWidget(parent),
      tables_(tables),
      pictures_(pictures),
      picture_(new QLabel),
      text_(new QLabel) {
  auto* frame = new PanelFrame(QStringLiteral("Picture5"), QStringLiteral("Program icon"), this);
  picture_->setObjectName(QStringLiteral("ProgramIcon"));
  picture_->setFixedSize(kPicture, kPicture);
  picture_->setScaledContents(true);
  text_->setObjectName(QStringLiteral("ProgramIconPath"));
  text_->setProperty("quiet", true);
  text_->setMinimumWidth(1);
  auto* row = new QHBoxLayout;
  row->setSpacing(kRoom);
  row->addWidget(picture_);
  row->addWidget(text_, 1);
  frame->Body().addLayout(row);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(frame);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  Refresh();
}

void IconDisplay::Refresh() {
  const ProgramIconChoice icon = ProgramIconOf(tables_);
  full_ = ToQString(icon.Text);
  text_->setToolTip(full_);
  const QPixmap& own = pictures_.At(icon.Picture);
  picture_->setPixmap(own.isNull() ? ProgramIcon().pixmap(kPicture, kPicture) : own);
  Elide();
}

void IconDisplay::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Elide();
}

void IconDisplay::Elide() {
  text_->setText(text_->fontMetrics().elidedText(full_, Qt::ElideMiddle, text_->width()));
}

}  // namespace tarnwick
