// A project on disk and one call of the command line.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "fakes/temporary_folder.h"
#include "fakes/text_stream.h"

namespace tarnwick::test {

struct CallResult {
  int Exit = 0;
  std::string Out;
  std::string Err;
};

/// Runs the command line as the program does, the program itself left out.
CallResult Call(const std::vector<std::string>& words);

/// A folder of the test's own with files written into it; all names are machine paths.
class ProjectFolder {
 public:
  std::string Put(std::string_view name, std::string_view bytes) const;
  [[nodiscard]] std::string PathOf(std::string_view name) const;
  [[nodiscard]] bool Has(std::string_view name) const;
  [[nodiscard]] std::string Bytes(std::string_view name) const;

 private:
  TemporaryFolder folder_;
};

}  // namespace tarnwick::test
