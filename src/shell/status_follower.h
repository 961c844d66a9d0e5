// What the main window shows of each change of the project.
#pragma once

#include "model/project_observer.h"
#include "shell/shell_state.h"

namespace tarnwick {

/// Keeps the text of the selection and the states of the commands up to date.
class StatusFollower final : public ProjectObserver {
 public:
  explicit StatusFollower(ShellState& state) : state_(state) {}

  /// Gives the view the selection's text, and lets it read the commands' states again.
  void Refresh();

  void FormChanged(int /*form*/) override { Refresh(); }
  void ControlsChanged(int /*form*/) override { Refresh(); }
  void SelectionChanged(int /*form*/) override { Refresh(); }
  void CurrentFormChanged() override { Refresh(); }

 private:
  ShellState& state_;
};

}  // namespace tarnwick
