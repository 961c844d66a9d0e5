// Texts at the foot of the main window.
#pragma once

#include <string>

#include "model/project_records.h"

namespace tarnwick {

/// "Form1Btn1   Left 10  Top 20  Width 75  Height 25": name, place and size in pixels of what is
/// selected on the current form; of the form itself its own. "" without a form.
[[nodiscard]] std::string SelectionStatus(const ProjectTables& tables);
/// "X 12  Y 30": a place on a design form, twips in, pixels out.
[[nodiscard]] std::string PointerStatus(float x, float y);
/// Where the source text of the last compile lies.
[[nodiscard]] std::string CompileStatus(const ProjectTables& tables);

}  // namespace tarnwick
