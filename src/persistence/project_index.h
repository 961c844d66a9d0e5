// The text of the project index: a line for each form, then the main form.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/project_records.h"

namespace tarnwick {

/// What an index names. The texts are views of the index.
struct ProjectIndex {
  /// The form files in the order of their lines, as written there: bare names or paths.
  std::vector<std::string_view> FormFiles;
  /// The text behind the last main form mark; null without one.
  std::optional<std::string_view> MainForm;
};

/// Reads an index. Empty lines are passed over; a line without a number is a bare name.
[[nodiscard]] ProjectIndex ReadProjectIndex(std::string_view text);

/// The index of the project, as it is written to a file in `project_folder`: a form's file is named
/// without its folder when it lies there.
[[nodiscard]] std::string ProjectIndexText(const ProjectTables& tables,
                                           std::string_view project_folder);
/// The index that Save Form As leaves: the full path of every form, removed ones included, and no
/// more.
[[nodiscard]] std::string ShortProjectIndexText(const ProjectTables& tables);

}  // namespace tarnwick
