// Where the sources and what was built from them lie.
#pragma once

#include <string>

namespace tarnwick::test {

/// The top of the source tree, without a "/" at its end; a path of the system like the others.
[[nodiscard]] std::string SourceFolder();
/// The folder of the built programs with the support files beside them.
[[nodiscard]] std::string ProgramFolder();

}  // namespace tarnwick::test
