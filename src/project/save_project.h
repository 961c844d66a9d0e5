// Saving: the form files and the index that names them.
#pragma once

#include <string>

#include "project/project_context.h"
#include "project/write_outcome.h"

namespace tarnwick::project {

/// Writes one form to its `FileName`. Shows nothing on failure, and the old file is unchanged.
WriteOutcome WriteFormFile(ProjectContext& context, int form);
/// Writes every live form, asking for a file name where a form has none, then the index to
/// `path`. What could not be written, and a cancelled name dialog, are reported; the rest is
/// written all the same. An index that names forms which are not among those of this project, since
/// they could not be read, is kept beside the new one with ".bak" behind its name.
WriteOutcome SaveProject(ProjectContext& context, const std::string& path);

}  // namespace tarnwick::project
