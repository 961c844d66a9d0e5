// support_builder <sources> <program folder>: makes the four support files and the include file of
// generated programs. It writes all of them or, when a source has a fault, none.

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "build/files.h"
#include "build/support_format.h"

namespace {

using namespace tarnwick::support;

std::string Include(const std::string& folder, Faults& faults) {
  const std::string file = "Tarnwick1.lib";
  const std::optional<std::string> text = ReadFile(folder + "/" + file);
  if (!text) {
    faults.Add({file, 0}, "the file cannot be read");
    return {};
  }
  return IncludeFile(*text, file, faults);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: support_builder <sources> <program folder>\n", stderr);
    return 2;
  }
  const std::string from = argv[1];
  const std::string to = argv[2];
  Faults faults;
  const SupportSources sources = LoadSources(from, faults);
  const std::vector<std::pair<std::string, std::string>> files{
      {"Add001.tn", ObjectsFile(sources, faults)},  {"Add002.tn", FunctionsFile(sources, faults)},
      {"Add003.tn", KeywordsFile(sources, faults)}, {"Add004.tn", GridFile(sources, faults)},
      {"Tarnwick1.lib", Include(from, faults)},
  };
  for (const std::string& line : faults.Lines()) std::fprintf(stderr, "%s\n", line.c_str());
  if (!faults.Empty()) return 1;
  for (const auto& [name, bytes] : files) {
    if (!WriteFile(to + "/" + name, bytes)) return 1;
  }
  return 0;
}
