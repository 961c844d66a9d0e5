// The support files as they are delivered, for a program folder of a test.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

#include "fakes/build_paths.h"
#include "fakes/memory_files.h"

namespace tarnwick {

inline void PutDeliveredFiles(MemoryFiles& files, const std::string& folder) {
  for (const char* const name : {"Add001.tn", "Add002.tn", "Add003.tn", "Add004.tn"}) {
    std::ifstream file(test::ProgramFolder() + "/" + name, std::ios::binary);
    files.Put(folder + "\\" + name, {std::istreambuf_iterator<char>(file), {}});
  }
}

}  // namespace tarnwick
