// The folder that the program keeps its settings and support files in.
#pragma once

#include <string>

namespace tarnwick {

/// The folders that the program could use, as machine paths (UTF-8); "" for unknown ones.
struct ProgramSurroundings {
  std::string Executable;
  std::string DataHome;  ///< the user's data folder, when the desktop names one
  std::string Home;
};

/// The folder of the running executable as a Windows path without a trailing backslash.
[[nodiscard]] std::string ExecutableFolder();
/// The executable's folder when it can be written, otherwise the user's own "tarnwick" folder,
/// which is made. A Windows path without a trailing backslash.
[[nodiscard]] std::string ProgramFolder();
/// The same for given surroundings.
[[nodiscard]] std::string ProgramFolderFor(const ProgramSurroundings& surroundings);

}  // namespace tarnwick
