// One form as the text of its file.
#pragma once

#include <string>

#include "model/project_records.h"

namespace tarnwick {

/// Appends the records of the form with that number, in file order, each ended by CR LF. An object
/// whose record is missing is written with an empty one: no object is lost for it. Nothing for a
/// number without a form.
void AppendFormText(std::string& out, const ProjectTables& tables, int form);
/// The same text on its own: the bytes of the form's file.
[[nodiscard]] std::string FormFileText(const ProjectTables& tables, int form);

}  // namespace tarnwick
