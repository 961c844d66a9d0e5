// One form as the text of its file.
#pragma once

#include <string>

#include "model/project_records.h"

namespace tarnwick {

/// The records of the form with that number, in file order, each ended by CR LF: the bytes of its
/// file. An object whose record is missing is written with an empty one: no object is lost for it.
/// "" for a number without a form.
[[nodiscard]] std::string FormFileText(const ProjectTables& tables, int form);
/// The same with the menu bar of another window, as if it had been built on the form just now.
[[nodiscard]] std::string FormFileTextWithMenu(const ProjectTables& tables, int form,
                                               const DesignForm& menu);

}  // namespace tarnwick
