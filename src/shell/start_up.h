// From the process's start to the first empty form.
#pragma once

#include "shell/form_commands.h"
#include "shell/shell_state.h"

namespace tarnwick {

/// The load of the main window, and the long initialisation that its timer's first tick starts.
class StartUp {
 public:
  StartUp(ShellState& state, FormCommands& forms) : state_(state), forms_(forms) {}

  /// Takes the windows that every command uses from now on.
  void Load(const ShellWindows& windows);
  /// Runs all steps once; later ticks only stop the timer. The screen is given time to repaint
  /// after each.
  void Time_Timer();
  /// True once the first form stands.
  [[nodiscard]] bool Done() const noexcept { return done_; }

 private:
  void DropEventIndex();
  void SetDefaults();
  void LoadLanguage();
  void LoadSupportTables();
  void LoadCodeWindows();
  void LayOutPanels();
  void ShowFirstForm();
  void AddSupportFile(std::string_view name,
                      void (*add)(language::SupportTables&, std::string_view));

  ShellState& state_;
  FormCommands& forms_;
  bool begun_ = false;
  bool done_ = false;
};

}  // namespace tarnwick
