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

/// Adds the faults of the code to the findings of a project. An error among these makes lines of
/// the program faulty that the user has not written: then only those of his own lines, in code and
/// declarations, are added.
void AddCodeFaults(std::vector<Finding>& findings, ProjectTables& tables, FilePort& files,
                   const std::string& include_folder);

}  // namespace tarnwick::project
