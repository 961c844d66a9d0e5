// Compile and Run.
#pragma once

#include "project/compile.h"
#include "shell/findings_list.h"
#include "shell/project_commands.h"
#include "shell/run_command.h"
#include "shell/shell_state.h"

namespace tarnwick {

/// Starts the compile driver and lends it the windows.
class CompileCommand final : public project::CompileHost {
 public:
  CompileCommand(ShellState& state, ProjectCommands& project, FindingsList& findings,
                 RunCommand& run)
      : state_(state), project_(project), findings_(findings), run_(run) {}

  /// Checks, saves, generates and starts the compiler, or the runner where that could not be
  /// started or the user wants it, whatever the check found. The arrow pointer stands meanwhile. A
  /// program that runs is stopped first.
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
  FindingsList& findings_;
  RunCommand& run_;
  GeneratorState generator_;
};

}  // namespace tarnwick
