#include "qt/frame/tool_box_panel.h"

#include <QGridLayout>
#include <QToolButton>

#include "designer/tool_box.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "shell/command_center.h"

namespace tarnwick {

namespace {

constexpr int kIcon = 20;
constexpr int kButton = 34;
constexpr int kBetween = 2;

}  // namespace

ToolBoxPanel::ToolBoxPanel(CommandCenter& commands, const QString& name, int columns,
                           QWidget* parent)
    : QWidget(parent), commands_(commands) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kBetween);
  int index = 0;
  for (const ToolInfo& tool : AllTools()) {
    const int number = tool.Number;
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("%1_%2").arg(name).arg(number));
    button->setToolTip(ToQString(tool.Tip));
    button->setAccessibleName(ToQString(tool.Tip));
    button->setIcon(IconOf(IconNameOfTool(number)));
    button->setIconSize(QSize(kIcon, kIcon));
    button->setFixedSize(kButton, kButton);
    button->setAutoRaise(true);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, [this, number] {
      commands_.PressTool(number);
      Refresh();
    });
    grid->addWidget(button, index / columns, index % columns);
    buttons_.emplace_back(number, button);
    ++index;
  }
  Refresh();
}

void ToolBoxPanel::Refresh() {
  for (const auto& [number, button] : buttons_) {
    const CommandState state = commands_.ToolState(number);
    button->setEnabled(state.Enabled);
    button->setChecked(state.Checked);
  }
}

}  // namespace tarnwick
