// What objects do beyond keeping values, and where it is shown: class_facts.tsv has a row for each
// behaviour with the test that shows it, or "left out: " and the reason.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "fakes/build_paths.h"
#include "text/strings.h"

namespace tarnwick::objects {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

/// All tests of the sources, as "Suite.Name".
std::set<std::string> TestsOfTheSources() {
  std::set<std::string> names;
  for (const auto& entry : fs::recursive_directory_iterator(test::SourceFolder() + "/tests")) {
    if (!entry.path().string().ends_with("_test.cpp")) continue;
    const std::string text = BytesOf(entry.path());
    for (std::size_t at = text.find("\nTEST"); at != std::string::npos;
         at = text.find("\nTEST", at + 1)) {
      const std::size_t open = text.find('(', at);
      const std::size_t close = text.find(')', at);
      if (open == std::string::npos || close == std::string::npos || open > close) continue;
      const std::string words = text.substr(open + 1, close - open - 1);
      const std::vector<std::string_view> parts = Split(words, ",");
      if (parts.size() == 2) {
        names.insert(std::string(Trim(parts[0])) + "." +
                     std::string(Trim(ReplaceAll(parts[1], "\n", " "))));
      }
    }
  }
  return names;
}

TEST(ClassFacts, EachIsShownByATestOrLeftOutWithAReason) {
  constexpr std::string_view kLeftOut = "left out: ";
  const std::set<std::string> tests = TestsOfTheSources();
  const std::string table = BytesOf(test::SourceFolder() + "/tests/objects/class_facts.tsv");
  std::size_t rows = 0;
  for (const std::string_view line : Split(table, "\n")) {
    const std::vector<std::string_view> cells = Split(line, "\t");
    if (line.empty() || cells[0] == "subject") continue;
    ASSERT_EQ(cells.size(), 3U) << line;
    ++rows;
    if (cells[2].starts_with(kLeftOut)) {
      EXPECT_GT(cells[2].size(), kLeftOut.size()) << line;
    } else {
      EXPECT_TRUE(tests.contains(std::string(cells[2]))) << line;
    }
  }
  EXPECT_GT(rows, 100U);
}

}  // namespace
}  // namespace tarnwick::objects
