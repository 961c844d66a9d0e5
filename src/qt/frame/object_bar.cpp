#include "qt/frame/object_bar.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "qt/frame/tool_box_panel.h"
#include "qt/kit/theme.h"
#include "shell/command_center.h"

namespace tarnwick {

namespace {

constexpr int kColumns = 4;

}  // namespace

ObjectBar::ObjectBar(CommandCenter& commands, QWidget* parent)
    : QWidget(parent, Qt::Tool),
      commands_(commands),
      tools_(new ToolBoxPanel(commands, QStringLiteral("ObjectBarBtn"), kColumns, this)) {
  setObjectName(QStringLiteral("ObjectBar"));
  setWindowTitle(QStringLiteral("Objects"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kRoom, kRoom, kRoom, kRoom);
  column->addWidget(tools_);
  column->setSizeConstraint(QLayout::SetFixedSize);
}

void ObjectBar::Refresh() {
  tools_->Refresh();
}

void ObjectBar::closeEvent(QCloseEvent* event) {
  // Hiding is the shell's to decide, so that its menu row follows.
  event->ignore();
  commands_.SetPanelShown(Panel::ObjectBar, false);
}

void ObjectBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    commands_.Escape();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace tarnwick
