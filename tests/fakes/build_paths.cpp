#include "fakes/build_paths.h"

// The only source that is compiled with paths of this machine: a compiler cache serves all others
// in every copy of the tree.
namespace tarnwick::test {

std::string SourceFolder() {
  return TARNWICK_SOURCE_DIR;
}

std::string ProgramFolder() {
  return TARNWICK_PROGRAM_FOLDER;
}

}  // namespace tarnwick::test
