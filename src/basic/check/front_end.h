// All phases from the main file to the checked program.
#pragma once

#include <optional>
#include <string>

#include "basic/check/class_catalog.h"
#include "basic/check/program.h"
#include "basic/source/preprocessor.h"

namespace tarnwick::basic {

struct FrontEndOptions {
  SourceOptions Source;
  bool Strict = false;  ///< irregular lines of generated text are errors
};

/// A program with its files and what was found. `Checked` is empty when there was an error.
struct FrontEndResult {
  SourceSet Files;
  Messages Found;
  std::optional<Program> Checked;
};

/// Reads, parses and checks the program of a main file. Nothing but an error when the file cannot
/// be read.
[[nodiscard]] FrontEndResult CheckProgram(const std::string& path, SourceReader& reader,
                                          const ClassCatalog& classes,
                                          const FrontEndOptions& options);

}  // namespace tarnwick::basic
