#include "shell/compile_command.h"

#include "shell/status_text.h"

namespace tarnwick {

void CompileCommand::Run() {
  ProjectTables& tables = state_.Tables;
  if (tables.ListaFrms.Empty()) return;
  // Also when the save is cancelled on the way: what was typed goes into the program.
  project_.TakePending();
  state_.View->HoldFocus();
  state_.View->SetArrowPointer(true);
  // By reference: a save on the way may give the project another source file.
  const project::CompileOutcome outcome =
      project::GenerateProgram(tables, generator_, *this, state_.Ports, tables.SourceFile);
  state_.View->SetArrowPointer(false);
  state_.View->RestoreFocus();
  state_.Say(CompileStatus(tables, outcome));
}

}  // namespace tarnwick
