// What the main window shows of each change of the project.
#pragma once

#include "model/project_observer.h"
#include "shell/project_commands.h"
#include "shell/shell_state.h"

namespace tarnwick {

/// Keeps the text of the selection, the states of the commands and the icon display up to date.
class StatusFollower final : public ProjectObserver {
 public:
  StatusFollower(ShellState& state, ProjectCommands& project) : state_(state), project_(project) {}

  /// Tells the view the selection's text and that commands may differ.
  void Refresh();

  void FormChanged(int form) override;
  void ControlsChanged(int /*form*/) override { Refresh(); }
  void SelectionChanged(int /*form*/) override { Refresh(); }
  void CurrentFormChanged() override { Refresh(); }

 private:
  ShellState& state_;
  ProjectCommands& project_;
};

}  // namespace tarnwick
