// How a project and its forms get their files.
#pragma once

#include <optional>
#include <string>

#include "project/project_context.h"

namespace tarnwick::project {

/// Asks for the file of the project. The name that is proposed or typed gets the extension ".tnp"
/// where it lacks it, and an existing file is asked about. Null when the dialog is cancelled.
[[nodiscard]] std::optional<std::string> SaveProjectDialog(ProjectContext& context);
/// Asks for the file of a form, ".ftn" likewise, and stores it in `FileName`. An existing file is
/// asked about. False when the dialog is cancelled: nothing changed.
bool SaveFormDialog(ProjectContext& context, int form);
/// Gives the form's line in the form list its present name and file.
void RefreshFormListEntry(ProjectContext& context, int form);

}  // namespace tarnwick::project
