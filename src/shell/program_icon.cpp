#include "shell/program_icon.h"

namespace tarnwick {

ProgramIconChoice ProgramIconOf(const ProjectTables& tables) {
  const FormRec* first = tables.Form(1);
  if (first == nullptr || first->IconFile.empty() || first->IconFile == kDefaultFile) {
    return {std::string(kDefaultFile), tables.ProgramFolder + "\\iconapp.ico"};
  }
  return {first->IconFile, first->IconFile};
}

}  // namespace tarnwick
