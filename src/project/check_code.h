// What is wrong with the code of a project: found in the text that the compiler would get.
#pragma once

#include <string>
#include <vector>

#include "model/project_records.h"
#include "platform/ports.h"
#include "project/finding.h"

namespace tarnwick::project {

/// The faults of the code, each with its place in the project where the user has one. What is only
/// missing when a program is run without the compiler is no fault. None when the include file of
/// generated programs is found neither where they name it nor in `include_folder`: its names would
/// be missing. Costs as much as reading the whole program; changes nothing in the tables.
[[nodiscard]] std::vector<Finding> CheckCode(ProjectTables& tables, FilePort& files,
                                             const std::string& include_folder);

/// True when no finding is an error. What is wrong with names and texts makes lines that are
/// faulty too: only behind it the code is worth a check.
[[nodiscard]] bool MakesAProgram(const std::vector<Finding>& findings) noexcept;

}  // namespace tarnwick::project
