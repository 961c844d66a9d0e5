// The icon of the program that is being made.
#pragma once

#include <string>

#include "model/project_records.h"

namespace tarnwick {

/// What the icon display shows.
struct ProgramIconChoice {
  std::string Text;     ///< the icon's path, or "(Default)"
  std::string Picture;  ///< path of the picture file
};

/// The icon of form 1; the program folder's "iconapp.ico" while that has none.
[[nodiscard]] ProgramIconChoice ProgramIconOf(const ProjectTables& tables);

}  // namespace tarnwick
