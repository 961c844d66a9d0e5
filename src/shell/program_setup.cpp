#include "shell/program_setup.h"

#include <optional>

#include "text/code_page.h"

namespace tarnwick {

namespace {

std::string PathIn(const std::string& folder, std::string_view name) {
  return std::string(folder).append("\\").append(name);
}

}  // namespace

int FillProgramFolder(FilePort& files, const std::string& installed,
                      const std::string& program_folder) {
  if (EqualsFolded(installed, program_folder)) return 0;
  int copied = 0;
  for (const std::string_view name : kProgramFiles) {
    const std::string target = PathIn(program_folder, name);
    if (files.Exists(target)) continue;
    const std::optional<std::string> bytes = files.Read(PathIn(installed, name));
    if (bytes && files.Replace(target, *bytes)) ++copied;
  }
  return copied;
}

}  // namespace tarnwick
