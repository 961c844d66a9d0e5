// The support files as they are delivered, for a program folder of a test.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

#include "fakes/build_paths.h"
#include "fakes/memory_files.h"

namespace tarnwick {

void PutDeliveredFiles(MemoryFiles& files, const std::string& folder);

}  // namespace tarnwick
