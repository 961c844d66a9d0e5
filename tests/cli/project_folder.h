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
inline CallResult Call(const std::vector<std::string>& words) {
  const ParsedArguments parsed = ParseArguments(words);
  if (const auto* const print = std::get_if<PrintAndLeave>(&parsed)) return {0, print->Text, ""};
  if (const auto* const wrong = std::get_if<WrongUsage>(&parsed)) return {2, "", wrong->Text};
  const TextStream out;
  const TextStream err;
  const int exit = CommandRun(std::get<Arguments>(parsed), out.File(), err.File()).Run();
  return {exit, out.Text(), err.Text()};
}

/// A folder of the test's own with files written into it; all names are machine paths.
class ProjectFolder {
 public:
  std::string Put(std::string_view name, std::string_view bytes) const {
    std::filesystem::create_directories(std::filesystem::path(PathOf(name)).parent_path());
    folder_.Write(name, bytes);
    return PathOf(name);
  }
  [[nodiscard]] std::string PathOf(std::string_view name) const { return folder_.Native(name); }
  [[nodiscard]] bool Has(std::string_view name) const {
    return std::filesystem::exists(PathOf(name));
  }
  [[nodiscard]] std::string Bytes(std::string_view name) const { return folder_.Read(name); }

 private:
  TemporaryFolder folder_;
};

}  // namespace tarnwick::test
