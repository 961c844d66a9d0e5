#include "qt/kit/panel_frame.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

constexpr int kHeadHeight = 30;

}  // namespace

PanelFrame::PanelFrame(const QString& name, const QString& heading, QWidget* parent)
    : QFrame(parent),
      heading_(new QLabel(heading, this)),
      head_(new QHBoxLayout),
      body_(new QVBoxLayout) {
  setObjectName(name);
  setProperty("panel", true);
  heading_->setProperty("heading", true);
  heading_->setFixedHeight(kHeadHeight);
  head_->setContentsMargins(kRoom, 0, kGap, 0);
  head_->setSpacing(0);
  head_->addWidget(heading_);
  head_->addStretch();
  body_->setContentsMargins(kRoom, 0, kRoom, kRoom);
  body_->setSpacing(kRoom);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(1, kGap, 1, 1);
  column->setSpacing(kGap);
  column->addLayout(head_);
  column->addLayout(body_);
}

void PanelFrame::AddToHead(QWidget* widget) {
  head_->addWidget(widget);
}

}  // namespace tarnwick
