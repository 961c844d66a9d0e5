#include "shell/compile_command.h"

#include "shell/status_text.h"

namespace tarnwick {

void CompileCommand::Run() {
  ProjectTables& tables = state_.Tables;
  if (tables.ListaFrms.Empty()) return;
  state_.View->SetArrowPointer(true);
  // By reference: a save on the way may give the project another source file.
  project::GenerateProgram(tables, generator_, *this, state_.Ports, tables.SourceFile);
  state_.View->SetArrowPointer(false);
  state_.View->SetStatus(CompileStatus(tables));
}

}  // namespace tarnwick
