// Saving: the form files and the index that names them.
#pragma once

#include <string>

#include "project/project_context.h"

namespace tarnwick::project {

/// Writes one form to its `FileName`. Silent on failure: false, and the old file is unchanged.
bool WriteFormFile(ProjectContext& context, int form);
/// Writes every live form, asking for a file name where a form has none, then the index to
/// `path`. False when a file could not be written or a name dialog was cancelled; the rest is
/// written all the same.
bool SaveProject(ProjectContext& context, const std::string& path);

}  // namespace tarnwick::project
