// Commands on the current design form: the Edit menu, the views on its code, the tool box.
#pragma once

#include <optional>

#include "shell/command_table.h"
#include "shell/design_surfaces.h"
#include "shell/form_commands.h"
#include "shell/shell_state.h"

namespace tarnwick {

class EditCommands {
 public:
  EditCommands(ShellState& state, DesignSurfaces& surfaces, FormCommands& forms)
      : state_(state), surfaces_(surfaces), forms_(forms) {}

  /// Runs a command of the Edit menu; nothing for other commands or without a form.
  void Run(Command command);
  /// A locked form refuses deleting with a message; true when it did.
  bool Refused(Command command, const DesignForm& form);
  /// Esc: the armed tool gives way to the arrow. The lock stays; on a form that is not locked, with
  /// no tool armed, the form itself is selected.
  void ReleaseTool();
  /// A tool was pressed. A project without forms gets one first; a block of the form is lifted.
  void PressTool(int number);
  /// Takes the last step back, or does it again; its form comes up.
  void Undo();
  void Redo();

 private:
  void Show(std::optional<int> form);

  ShellState& state_;
  DesignSurfaces& surfaces_;
  FormCommands& forms_;
};

/// True for commands that change what is selected or what the selection is: while the code editor
/// is open they only bring it to the front, since its text belongs to that selection.
[[nodiscard]] bool WaitsForCodeEditor(Command command) noexcept;

}  // namespace tarnwick
