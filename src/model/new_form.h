// The coming into being of a form.
#pragma once

#include "model/project_records.h"

namespace tarnwick {

/// Adds an empty form with all defaults: `AddForm`. The first form of an empty project becomes
/// its main form. Returns its number, 0 when no number is left.
int AddForm(ProjectTables& tables);
/// The same without the main form rule: the command Add New Form.
int NewForm(ProjectTables& tables);
/// What a design window sets when it loads: caption, number, name, size 6000 by 5000 twips,
/// record defaults, and an empty entry for each form event.
void LoadFormWindow(ProjectTables& tables, int form);

}  // namespace tarnwick
