#include "shell/delivered_files.h"

namespace tarnwick {

void PutDeliveredFiles(MemoryFiles& files, const std::string& folder) {
  for (const char* const name : {"Add001.tn", "Add002.tn", "Add003.tn", "Add004.tn"}) {
    std::ifstream file(test::ProgramFolder() + "/" + name, std::ios::binary);
    files.Put(folder + "\\" + name, {std::istreambuf_iterator<char>(file), {}});
  }
}

}  // namespace tarnwick
