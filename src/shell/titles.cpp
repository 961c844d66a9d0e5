#include "shell/titles.h"

#include <utility>

namespace tarnwick {

namespace {

constexpr std::size_t kExtensionLength = 3;

}  // namespace

std::string TitleOfOpened(std::string_view project_file) {
  return "Tarnwick    " + std::string(project_file);
}

std::string TitleOfSaved(std::string_view project_file) {
  return "Tarnwick - " + std::string(project_file);
}

std::string DefaultProjectFile(const ProjectTables& tables) {
  return tables.ProgramFolder + "\\UnTitle.tnp";
}

bool HasDefaultProjectFile(const ProjectTables& tables) {
  return tables.ProjectFile == DefaultProjectFile(tables);
}

void SetDefaultPaths(ProjectTables& tables) {
  SetProjectFile(tables, DefaultProjectFile(tables));
}

void SetProjectFile(ProjectTables& tables, std::string path) {
  const std::size_t stem = path.size() < kExtensionLength ? 0 : path.size() - kExtensionLength;
  tables.SourceFile = path.substr(0, stem) + "com";
  tables.ExeFile = path.substr(0, stem) + "exe";
  tables.ProjectFile = std::move(path);
}

}  // namespace tarnwick
