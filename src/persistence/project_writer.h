// The project on its way to disk: the index file and the form files.
#pragma once

#include <string>

#include "persistence/project_context.h"

namespace tarnwick {

/// The bytes of a form's file; "" for a number that is not in use. Reads the tables only.
[[nodiscard]] std::string FormFileText(const ProjectTables& tables, int form);
/// The bytes of the index file: a line for each live form, then the main form.
[[nodiscard]] std::string ProjectFileText(const ProjectTables& tables);

/// Writes one form to its `FileName`. Silent on failure: false, and the old file stands.
bool WriteFormFile(ProjectContext& context, int form);
/// Writes every live form, asking for a file name where a form has none, then the index to
/// `path`. False when a file could not be written or a name dialog was cancelled; the rest is
/// written all the same.
bool SaveProject(ProjectContext& context, const std::string& path);
/// The index of Save Form As: the full path of every form, removed ones included, and no more.
[[nodiscard]] std::string ShortProjectFileText(const ProjectTables& tables);

}  // namespace tarnwick
