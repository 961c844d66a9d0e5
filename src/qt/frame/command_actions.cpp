#include "qt/frame/command_actions.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include "designer/tool_box.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "shell/command_center.h"

namespace tarnwick {

namespace {

constexpr int kToolbarIcon = 20;

/// Commands that stay on until they are run again.
bool IsToggle(Command command) {
  switch (command) {
    case Command::Lock:
    case Command::Properties:
    case Command::Forms:
    case Command::EventsBar:
    case Command::ObjectBar:
      return true;
    default:
      return false;
  }
}

/// Rows whose marks are no pictures: a picture would take the place of the check mark.
bool HasIcon(Command command) {
  return !IsToggle(command) && command != Command::Exit && command != Command::OpenOld &&
         command != Command::SaveAs && command != Command::SaveForm &&
         command != Command::SaveFormAs;
}

}  // namespace

CommandActions::CommandActions(QMainWindow& window, CommandCenter& commands)
    : QObject(&window), commands_(commands) {
  BuildMenuBar(window);
  BuildToolbar(window);
  BuildPopUp(window);
  Refresh();
}

void CommandActions::BuildMenuBar(QMainWindow& window) {
  for (const MenuColumn& column : MenuBar()) {
    QMenu* menu = window.menuBar()->addMenu(ToQString(column.Caption));
    if (column.ShowsTools) {
      AddTools(*menu);
    } else {
      AddRows(*menu, column.Rows, true);
    }
    // The caption of Remove names the form that is current when the menu opens.
    connect(menu, &QMenu::aboutToShow, this, [this] { Refresh(); });
  }
}

void CommandActions::AddRows(QMenu& menu, std::span<const MenuRow> rows, bool takes_keys) {
  for (const MenuRow& row : rows) {
    if (!row.Does) {
      menu.addSeparator();
      continue;
    }
    const Command command = *row.Does;
    QString caption = ToQString(row.Caption);
    // A key that is only shown stands behind a tab.
    if (!takes_keys && !row.Key.empty()) caption += u'\t' + ToQString(row.Key);
    QAction* action = menu.addAction(caption);
    action->setObjectName(ToQString(row.Name));
    if (takes_keys && !row.Key.empty()) action->setShortcut(QKeySequence(ToQString(row.Key)));
    action->setCheckable(IsToggle(command));
    if (HasIcon(command)) action->setIcon(IconOf(IconNameOf(command)));
    connect(action, &QAction::triggered, this, [this, command] { Run(command); });
    entries_.push_back({command, action, nullptr});
  }
}

void CommandActions::AddTools(QMenu& menu) {
  for (const ToolInfo& tool : AllTools()) {
    const int number = tool.Number;
    QAction* action = menu.addAction(ToQString(tool.Tip));
    action->setObjectName(QStringLiteral("mnuItemObj_%1").arg(number));
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, number] { PressTool(number); });
    tools_.emplace_back(number, action);
  }
}

void CommandActions::BuildToolbar(QMainWindow& window) {
  auto* bar = new QToolBar(QStringLiteral("Toolbar"), &window);
  bar->setObjectName(QStringLiteral("BtnMenuBar"));
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  int index = 0;
  for (const ToolbarButton& row : MainToolbar()) {
    bar->addWidget(MakeButton(row, QStringLiteral("BtnMenu"), index++, bar));
    if (row.SeparatorAfter) bar->addSeparator();
  }
  window.addToolBar(Qt::TopToolBarArea, bar);
}

QToolButton* CommandActions::MakeButton(const ToolbarButton& row, const QString& name, int index,
                                        QWidget* parent) {
  const Command command = row.Does;
  auto* button = new QToolButton(parent);
  button->setObjectName(QStringLiteral("%1_%2").arg(name).arg(index));
  button->setToolTip(ToQString(row.Tip));
  button->setAccessibleName(ToQString(row.Tip));
  button->setIcon(IconOf(IconNameOf(command)));
  button->setIconSize(QSize(kToolbarIcon, kToolbarIcon));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setCheckable(IsToggle(command));
  connect(button, &QToolButton::clicked, this, [this, command] { Run(command); });
  entries_.push_back({command, nullptr, button});
  return button;
}

void CommandActions::BuildPopUp(QMainWindow& window) {
  pop_up_ = new QMenu(&window);
  pop_up_->setObjectName(QStringLiteral("ObjectPopUp"));
  AddRows(*pop_up_, ObjectPopUpRows(), false);
}

void CommandActions::Run(Command command) {
  commands_.Run(command);
  // A check mark that the toolkit set by itself goes back to what is true.
  Refresh();
}

void CommandActions::PressTool(int number) {
  commands_.PressTool(number);
  Refresh();
}

void CommandActions::Refresh() {
  for (const Entry& entry : entries_) {
    const CommandState state = commands_.State(entry.Does);
    if (entry.Action != nullptr) {
      entry.Action->setEnabled(state.Enabled);
      if (entry.Action->isCheckable()) entry.Action->setChecked(state.Checked);
      if (entry.Does == Command::Remove) {
        entry.Action->setText(ToQString(commands_.Caption(entry.Does)));
      }
    }
    if (entry.Button != nullptr) {
      entry.Button->setEnabled(state.Enabled);
      if (entry.Button->isCheckable()) entry.Button->setChecked(state.Checked);
    }
  }
  for (const auto& [number, action] : tools_) {
    const CommandState state = commands_.ToolState(number);
    action->setEnabled(state.Enabled);
    action->setChecked(state.Checked);
  }
}

}  // namespace tarnwick
