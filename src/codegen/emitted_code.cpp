#include "codegen/emitted_code.h"

#include "codegen/event_code.h"
#include "codegen/generation.h"

namespace tarnwick {

EmittedCode FindEmittedCode(ProjectTables& tables) {
  EmittedCode emitted;
  GeneratorState state;
  Generation gen(tables, state);
  gen.Bodies = &emitted.texts_;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    if (!tables.IsLive(form)) continue;
    gen.SelectForm(form);
    WriteEventSubs(gen);
  }
  return emitted;
}

}  // namespace tarnwick
