// The check of a project: every finding in one list.
#pragma once

#include <string>
#include <vector>

#include "model/project_records.h"
#include "platform/ports.h"
#include "project/finding.h"

namespace tarnwick::project {

/// The findings on the project as it stands in the tables: names, texts, links between objects,
/// pictures, code. In the order of forms and of the objects on them, then the code. What the
/// generator writes depends on `CurrentForm`, and so do the findings. Linear in the size of the
/// project; of the files it only looks up whether they exist.
[[nodiscard]] std::vector<Finding> CheckProject(ProjectTables& tables, FilePort& files);

/// The findings on the project's files as they lie on disk: what of the index `ProjectFile` and its
/// forms cannot be read. None for a project without a file. To be called after opening; forms
/// are matched by their `FileName`.
[[nodiscard]] std::vector<Finding> CheckFiles(const ProjectTables& tables, FilePort& files);

/// The paths of forms that the index on disk names, and that are not in the tables: they could not
/// be read, or held no form.
[[nodiscard]] std::vector<std::string> UnreadForms(const ProjectTables& tables, FilePort& files);

}  // namespace tarnwick::project
