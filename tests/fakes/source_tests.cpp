#include "fakes/source_tests.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>
#include <vector>

#include "fakes/build_paths.h"
#include "text/strings.h"

namespace tarnwick::test {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

/// The names in the brackets of each TEST, TEST_F and TEST_P of a source.
void AddTests(const std::string& text, std::set<std::string>& names) {
  for (std::size_t at = text.find("\nTEST"); at != std::string::npos;
       at = text.find("\nTEST", at + 1)) {
    const std::size_t open = text.find('(', at);
    const std::size_t close = text.find(')', at);
    if (open == std::string::npos || close == std::string::npos || open > close) continue;
    const std::string words = text.substr(open + 1, close - open - 1);
    const std::vector<std::string_view> parts = Split(words, ",");
    if (parts.size() != 2) continue;
    const std::string name = ReplaceAll(parts[1], "\n", " ");
    names.insert(std::string(Trim(parts[0])).append(".").append(Trim(name)));
  }
}

}  // namespace

std::set<std::string> TestsOfTheSources() {
  std::set<std::string> names;
  for (const auto& entry : fs::recursive_directory_iterator(SourceFolder() + "/tests")) {
    if (entry.path().string().ends_with("_test.cpp")) AddTests(BytesOf(entry.path()), names);
  }
  return names;
}

std::string SourceBytes(const std::string& path) {
  return BytesOf(SourceFolder() + "/" + path);
}

}  // namespace tarnwick::test
