// The menu bar, the toolbar and the pop-up of the main window, built from the table of commands.
#pragma once

#include <QObject>
#include <array>
#include <functional>
#include <span>
#include <vector>

#include "shell/command_state.h"
#include "shell/command_table.h"

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;
class QToolButton;

namespace tarnwick {

class CommandCenter;
class ProjectCommands;

/// One action for each row of a menu and one button for each command of the toolbar; all follow
/// the same state.
class CommandActions final : public QObject {
  Q_OBJECT

 public:
  CommandActions(QMainWindow& window, CommandCenter& commands, ProjectCommands& projects);

  /// Reads state, check marks and captions of all commands and tools again.
  void Refresh();
  /// Fills the menu of recent projects again.
  void RefreshRecent();
  [[nodiscard]] QMenu& ObjectPopUp() { return *pop_up_; }
  /// A button of a small bar: named `name` and the index, with tip and picture of its command.
  QToolButton* MakeButton(const ToolbarButton& row, const QString& name, int index,
                          QWidget* parent);

 private:
  struct Entry {
    Command Does;
    QAction* Action = nullptr;
    QToolButton* Button = nullptr;
  };
  void BuildMenuBar(QMainWindow& window);
  void BuildToolbar(QMainWindow& window);
  void BuildPopUp(QMainWindow& window);
  void AddRows(QMenu& menu, std::span<const MenuRow> rows, bool takes_keys);
  void AddSubMenu(QMenu& menu, const MenuRow& row, bool takes_keys);
  void AddTools(QMenu& menu);
  void Run(Command command);
  /// The command's state; that of the focused text where the command would act on one.
  [[nodiscard]] CommandState StateOf(Command command) const;
  [[nodiscard]] QString CaptionOf(Command command) const;
  void PressTool(int number);

  CommandCenter& commands_;
  ProjectCommands& projects_;
  QMenu* recent_ = nullptr;
  std::vector<Entry> entries_;
  std::vector<std::pair<int, QAction*>> tools_;
  QMenu* pop_up_ = nullptr;
};

}  // namespace tarnwick
