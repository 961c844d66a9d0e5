// How a project and its forms get their files.
#pragma once

#include <optional>
#include <string>

#include "project/project_context.h"

namespace tarnwick::project {

/// Asks for the file of the project. An existing one is asked about first. The path as it was
/// chosen; null when the dialog is cancelled.
[[nodiscard]] std::optional<std::string> SaveProjectDialog(ProjectContext& context);
/// Asks for the file of a form and stores it in `FileName`, ".ftn" added where it lacks it. An
/// existing file is asked about first. False when the dialog is cancelled: nothing changed.
bool SaveFormDialog(ProjectContext& context, int form);
/// Gives the form's line in the form list its present name and file.
void RefreshFormListEntry(ProjectContext& context, int form);

}  // namespace tarnwick::project
