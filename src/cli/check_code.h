// What is wrong with the code of a project: found in the text that the compiler would get.
#pragma once

#include <string>
#include <vector>

#include "model/project_records.h"
#include "platform/ports.h"

namespace tarnwick {

/// The faults of the code, a line each: form, object and event with the line in their code, what is
/// wrong, what to do. What is only missing when a program is run without the compiler is no fault.
/// None when the include file of generated programs is not found: its names would be missing.
/// For projects without other faults: those would be found in their lines again.
[[nodiscard]] std::vector<std::string> CodeFaults(ProjectTables& tables, FilePort& files,
                                                  const std::string& program_folder);

}  // namespace tarnwick
