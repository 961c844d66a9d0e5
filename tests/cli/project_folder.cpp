#include "cli/project_folder.h"

namespace tarnwick::test {

CallResult Call(const std::vector<std::string>& words) {
  const ParsedArguments parsed = ParseArguments(words);
  if (const auto* const print = std::get_if<PrintAndLeave>(&parsed)) return {0, print->Text, ""};
  if (const auto* const wrong = std::get_if<WrongUsage>(&parsed)) return {2, "", wrong->Text};
  const TextStream out;
  const TextStream err;
  const int exit = CommandRun(std::get<Arguments>(parsed), out.File(), err.File()).Run();
  return {exit, out.Text(), err.Text()};
}

std::string ProjectFolder::Put(std::string_view name, std::string_view bytes) const {
  std::filesystem::create_directories(std::filesystem::path(PathOf(name)).parent_path());
  folder_.Write(name, bytes);
  return PathOf(name);
}

std::string ProjectFolder::PathOf(std::string_view name) const {
  return folder_.Native(name);
}

bool ProjectFolder::Has(std::string_view name) const {
  return std::filesystem::exists(PathOf(name));
}

std::string ProjectFolder::Bytes(std::string_view name) const {
  return folder_.Read(name);
}

}  // namespace tarnwick::test
