#include "platform/program_folder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <unistd.h>

#include "text/path_text.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

std::string Environment(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

std::string RunningExecutable() {
  std::error_code failed;
  const fs::path link = fs::read_symlink("/proc/self/exe", failed);
  return failed ? std::string() : link.string();
}

std::string AsFolder(const fs::path& folder) {
  std::string path = PathFromNative(folder.string());
  while (!path.empty() && path.back() == '\\') path.pop_back();
  return path;
}

}  // namespace

std::string ExecutableFolder() {
  return AsFolder(fs::path(RunningExecutable()).parent_path());
}

std::string ProgramFolder() {
  return ProgramFolderFor({RunningExecutable(), Environment("XDG_DATA_HOME"), Environment("HOME")});
}

std::string ProgramFolderFor(const ProgramSurroundings& surroundings) {
  const fs::path beside = fs::path(surroundings.Executable).parent_path();
  if (!beside.empty() && ::access(beside.c_str(), W_OK) == 0) return AsFolder(beside);
  // By the desktop's convention a data folder that is no absolute path is ignored.
  fs::path data = surroundings.DataHome;
  if (!data.is_absolute()) data = fs::path(surroundings.Home) / ".local" / "share";
  const fs::path folder = data / "tarnwick";
  std::error_code failed;
  fs::create_directories(folder, failed);
  // Without any folder of its own the program still runs; it only keeps no settings.
  return AsFolder(folder);
}

}  // namespace tarnwick
