#include "shell/compile_command.h"

#include <utility>

#include "shell/status_text.h"

namespace tarnwick {

void CompileCommand::Run() {
  ProjectTables& tables = state_.Tables;
  if (tables.ListaFrms.Empty()) return;
  if (run_.Running()) return run_.StopAndCompile();
  const RunWith with = run_.ReadChoice();
  const bool may_run = with != RunWith::Compiler && run_.HasRunner();
  // "Runner" without a runner starts the compiler, which is better than nothing.
  const bool may_compile = with != RunWith::Runner || !may_run;
  // Also when the save is cancelled on the way: what was typed goes into the program.
  project_.TakePending();
  findings_.Check();
  state_.View->HoldFocus();
  state_.View->SetArrowPointer(true);
  // By reference: a save on the way may give the project another source file.
  project::CompileOutcome outcome =
      project::GenerateProgram(tables, generator_, *this, state_.Ports, tables.SourceFile,
                               {.StartsCompiler = may_compile, .WantsMap = may_run});
  state_.View->SetArrowPointer(false);
  state_.View->RestoreFocus();
  // A source that could not be written is an old one, or none.
  if (outcome.Started || !may_run || !outcome.Source) {
    state_.Say(CompileStatus(tables, outcome));
  } else if (!run_.Start(std::move(outcome.Text), std::move(outcome.Map))) {
    state_.Say(NothingStartedStatus(tables, outcome));
  }
}

}  // namespace tarnwick
