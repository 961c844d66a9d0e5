#include "qt/frame/command_actions.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <optional>

#include "designer/tool_box.h"
#include "qt/kit/focused_text.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "shell/command_center.h"
#include "shell/project_commands.h"

namespace tarnwick {

namespace {

/// Commands whose caption follows the state of the project.
bool NamesWhatItDoes(Command command) {
  return command == Command::Remove || command == Command::Undo || command == Command::Redo;
}

constexpr int kToolbarIcon = 20;

/// Commands that stay on until they are run again.
bool IsToggle(Command command) {
  switch (command) {
    case Command::Lock:
    case Command::Properties:
    case Command::Forms:
    case Command::EventsBar:
    case Command::ObjectBar:
    case Command::Output:
    case Command::RunWithEither:
    case Command::RunWithCompiler:
    case Command::RunWithRunner:
      return true;
    default:
      return false;
  }
}

/// Rows whose marks are no pictures: a picture would take the place of the check mark.
bool HasIcon(Command command) {
  return !IsToggle(command) && command != Command::Exit && command != Command::OpenOld &&
         command != Command::SaveAs && command != Command::Restore &&
         command != Command::SaveForm && command != Command::SaveFormAs;
}

/// What a command does to a text that has the focus; nothing for commands that leave texts alone.
std::optional<TextEdit> TextEditOf(Command command) {
  switch (command) {
    case Command::Cut:
      return TextEdit::Cut;
    case Command::Copy:
      return TextEdit::Copy;
    case Command::Paste:
      return TextEdit::Paste;
    case Command::Delete:
      return TextEdit::Delete;
    default:
      return std::nullopt;
  }
}

}  // namespace

CommandActions::CommandActions(QMainWindow& window, CommandCenter& commands,
                               ProjectCommands& projects)
    : QObject(&window), commands_(commands), projects_(projects) {
  BuildMenuBar(window);
  BuildToolbar(window);
  BuildPopUp(window);
  // What the Edit menu works on goes by the focus, and so does what of it can be used.
  connect(qApp, &QApplication::focusChanged, this, [this] { Refresh(); });
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
    if (row.Opens != SubMenu::None) {
      AddSubMenu(menu, row, takes_keys);
      continue;
    }
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
    if (takes_keys && command == Command::Redo) {
      action->setShortcuts({action->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+Z"))});
    }
    action->setCheckable(IsToggle(command));
    if (HasIcon(command)) action->setIcon(IconOf(IconNameOf(command)));
    connect(action, &QAction::triggered, this, [this, command] { Run(command); });
    entries_.push_back({command, action, nullptr});
  }
}

void CommandActions::AddSubMenu(QMenu& menu, const MenuRow& row, bool takes_keys) {
  QMenu* const inner = menu.addMenu(ToQString(row.Caption));
  inner->setObjectName(ToQString(row.Name));
  if (row.Opens == SubMenu::RecentProjects) {
    recent_ = inner;
    return;
  }
  AddRows(*inner, RowsOf(row.Opens), takes_keys);
  // One of them holds, so their marks are those of a group.
  auto* const group = new QActionGroup(inner);
  for (QAction* const action : inner->actions()) group->addAction(action);
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
  pop_up_->setAccessibleName(QStringLiteral("Object menu"));
  AddRows(*pop_up_, ObjectPopUpRows(), false);
}

void CommandActions::Run(Command command) {
  const std::optional<TextEdit> edit = TextEditOf(command);
  if (QWidget* field = FocusedText(); edit && field != nullptr) {
    EditText(*field, *edit);
    Refresh();
    return;
  }
  commands_.Run(command);
  // A check mark that the toolkit set by itself goes back to what is true.
  Refresh();
}

void CommandActions::PressTool(int number) {
  commands_.PressTool(number);
  Refresh();
}

CommandState CommandActions::StateOf(Command command) const {
  CommandState state = commands_.State(command);
  const std::optional<TextEdit> edit = TextEditOf(command);
  if (const QWidget* field = FocusedText(); edit && field != nullptr) {
    state.Enabled = CanEdit(*field, *edit);
  }
  return state;
}

/// The caption of a command that names what it is about: a form, or a step of the history. An "&"
/// of such a name is no access key.
QString CommandActions::CaptionOf(Command command) const {
  if (command != Command::Remove && FocusedText() != nullptr) {
    return ToQString(MenuRowOf(command)->Caption);
  }
  const QString caption = ToQString(commands_.Caption(command));
  const qsizetype key = command == Command::Remove ? 0 : 1;
  return caption.left(key) + caption.mid(key).replace(u'&', QStringLiteral("&&"));
}

void CommandActions::RefreshRecent() {
  recent_->clear();
  int number = 1;
  for (const std::string& path : projects_.Recent()) {
    // An "&" of a path is no access key.
    const QString shown = ToQString(path).replace(u'&', QStringLiteral("&&"));
    QAction* row = recent_->addAction(QStringLiteral("&%1  %2").arg(number).arg(shown));
    row->setObjectName(QStringLiteral("mnuRecent_%1").arg(number++));
    connect(row, &QAction::triggered, this, [this, path] { commands_.OpenRecent(path); });
  }
  const bool any = number > 1;
  if (any) recent_->addSeparator();
  QAction* clear = recent_->addAction(QStringLiteral("&Clear"));
  clear->setObjectName(QStringLiteral("mnuRecentClear"));
  clear->setEnabled(any);
  connect(clear, &QAction::triggered, this, [this] { projects_.ClearRecent(); });
}

void CommandActions::Refresh() {
  for (const Entry& entry : entries_) {
    const CommandState state = StateOf(entry.Does);
    if (entry.Action != nullptr) {
      entry.Action->setEnabled(state.Enabled);
      if (entry.Action->isCheckable()) entry.Action->setChecked(state.Checked);
      if (NamesWhatItDoes(entry.Does)) entry.Action->setText(CaptionOf(entry.Does));
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
