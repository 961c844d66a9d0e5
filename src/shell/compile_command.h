// Compile and Run.
#pragma once

#include "project/compile.h"
#include "shell/project_commands.h"
#include "shell/shell_state.h"

namespace tarnwick {

/// Starts the compile driver and lends it the windows.
class CompileCommand final : public project::CompileHost {
 public:
  CompileCommand(ShellState& state, ProjectCommands& project) : state_(state), project_(project) {}

  /// Saves, generates and starts the compiler. The arrow pointer stands meanwhile.
  void Run();

  void SaveProject() override { project_.Save(); }
  void ShowContainer() override { state_.View->ShowContainer(); }
  void HideContainer() override { state_.View->HideContainer(); }
  void ShowDesignForm(DesignForm& form, bool visible) override {
    state_.View->SetFormVisible(form.Number(), visible);
  }

 private:
  ShellState& state_;
  ProjectCommands& project_;
  GeneratorState generator_;
};

}  // namespace tarnwick
