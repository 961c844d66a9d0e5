// A program read, checked and made bytecode: all that comes before it runs.
#pragma once

#include <string>
#include <vector>

#include "basic/check/front_end.h"
#include "basic/code/emitter.h"
#include "hosts/run_report.h"

namespace tarnwick::hosts {

struct PreparedProgram {
  basic::SourceSet Files;
  basic::Messages Found;
  bool Good = false;  ///< can be run; else there is an error among `Found`
  basic::Code Code;
  std::vector<std::string> Resources;  ///< files of the $RESOURCE lines, in order
};

/// Reads the program whose main file has this path of the machine. What is wrong with it is in
/// `Found`, in the order of the lines.
[[nodiscard]] PreparedProgram PrepareProgram(const std::string& path,
                                             const basic::ClassCatalog& classes,
                                             const basic::FrontEndOptions& options);

/// The folder of the include file of generated programs, as this program was built or installed. A
/// Windows path without "\" at the end.
[[nodiscard]] std::string IncludeFolder();

}  // namespace tarnwick::hosts
