// Every command, tool and panel switch of the main window in one place.
#pragma once

#include <string>

#include "shell/command_state.h"
#include "shell/command_table.h"
#include "shell/panels.h"

namespace tarnwick {

class CompileCommand;
class EditCommands;
class FindingsList;
class FormCommands;
class ProjectCommands;
class PropertySheet;
class RunCommand;
struct ShellState;

/// What menus, toolbars, tool boxes and keys run:
///
///   if (commands.State(Command::Save).Enabled) commands.Run(Command::Save);
///   commands.PressTool(kArrowTool);
///
/// One command runs at a time: a request that comes while another one runs is ignored.
class CommandCenter {
 public:
  CommandCenter(ShellState& state, ProjectCommands& project, FormCommands& forms,
                EditCommands& edit, CompileCommand& compile, RunCommand& run,
                FindingsList& findings, PropertySheet& sheet)
      : state_(state),
        project_(project),
        forms_(forms),
        edit_(edit),
        compile_(compile),
        run_(run),
        findings_(findings),
        sheet_(sheet) {}

  /// Runs a command; nothing while it is off or another one runs.
  void Run(Command command);
  [[nodiscard]] CommandState State(Command command) const;
  /// Caption of the command's row in the menu bar.
  [[nodiscard]] std::string Caption(Command command) const;
  /// A tool of either box, or its row of the menu; nothing while it is off.
  void PressTool(int number);
  /// Esc on a design form or in the floating tool box: back to the arrow. The lock stays.
  void Escape();
  /// Opens a project of the list of recent ones.
  void OpenRecent(const std::string& path);
  [[nodiscard]] CommandState ToolState(int number) const;
  [[nodiscard]] bool PanelShown(Panel panel) const;
  /// Shows or hides a panel, also when its own close button was pressed.
  void SetPanelShown(Panel panel, bool shown);

 private:
  void Dispatch(Command command);
  void OpenHelp();
  void ShowFindings();
  void Toggle(Panel panel);

  ShellState& state_;
  ProjectCommands& project_;
  FormCommands& forms_;
  EditCommands& edit_;
  CompileCommand& compile_;
  RunCommand& run_;
  FindingsList& findings_;
  PropertySheet& sheet_;
};

}  // namespace tarnwick
