#include "cli/loaded_project.h"

#include <filesystem>
#include <system_error>

#include "platform/program_folder.h"
#include "text/path_text.h"

namespace tarnwick {

std::string WindowsPathOf(const std::string& native) {
  std::error_code failed;
  const std::filesystem::path full = std::filesystem::absolute(native, failed);
  return PathFromNative(
      (failed ? std::filesystem::path(native) : full).lexically_normal().string());
}

void ToolMessages::Show(std::string_view text, std::string_view title) {
  if (!quiet_) console_.Show(text, title);
}

bool ToolMessages::AskYesNo(std::string_view text, std::string_view title, MessageIcon /*icon*/) {
  Show(text, title);
  return false;
}

LoadedProject::LoadedProject(const std::optional<std::string>& program_folder, std::FILE* err,
                             bool quiet)
    : Messages(err, quiet) {
  Tables.ProgramFolder = program_folder ? *program_folder : ProgramFolder();
}

bool LoadedProject::Load(const std::string& native_path) {
  Tables.ProjectFile = WindowsPathOf(native_path);
  return project::LoadProject(Context, Tables.ProjectFile);
}

}  // namespace tarnwick
