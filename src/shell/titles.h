// Titles of the main window, and the files that go by a project's path.
#pragma once

#include <string>
#include <string_view>

#include "model/project_records.h"

namespace tarnwick {

inline constexpr std::string_view kApplicationTitle = "Tarnwick";
/// Title of the box that asks about saving.
inline constexpr std::string_view kSavePromptTitle = "Tarnwick IDE";

/// Title after the load of the window, New, Open and Open Old Version.
[[nodiscard]] std::string TitleOfOpened(std::string_view project_file);
/// Title after Save with its dialog and after Save As.
[[nodiscard]] std::string TitleOfSaved(std::string_view project_file);

/// The path of the project that was never saved.
[[nodiscard]] std::string DefaultProjectFile(const ProjectTables& tables);
/// True while the project has the default path.
[[nodiscard]] bool HasDefaultProjectFile(const ProjectTables& tables);
/// Sets `ProjectFile`, `SourceFile` and `ExeFile` to their defaults in the program folder.
void SetDefaultPaths(ProjectTables& tables);
/// Sets `ProjectFile`, and by it `SourceFile` and `ExeFile`: the path without its last three
/// characters plus "com" and "exe".
void SetProjectFile(ProjectTables& tables, std::string path);

}  // namespace tarnwick
