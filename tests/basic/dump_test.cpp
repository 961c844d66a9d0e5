// The bytecode of small programs: dumps/<case>.bas gives dumps/<case>.dump.
#include "basic/code/dump.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "basic/code/emitter.h"
#include "basic/object_world.h"
#include "fakes/build_paths.h"

namespace tarnwick::basic {
namespace {

std::string ReadAll(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::filesystem::path> Cases() {
  std::vector<std::filesystem::path> cases;
  const std::string folder = tarnwick::test::SourceFolder() + "/tests/basic/dumps";
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ".bas") cases.push_back(entry.path());
  }
  std::sort(cases.begin(), cases.end());
  return cases;
}

TEST(DumpTest, EveryCaseHasItsCode) {
  const std::vector<std::filesystem::path> cases = Cases();
  ASSERT_GE(cases.size(), 5U);
  for (const std::filesystem::path& path : cases) {
    test::MemorySources sources;
    sources.Files["C:\\main.bas"] = ReadAll(path);
    const test::BoxCatalog classes;
    const FrontEndResult checked = CheckProgram("C:\\main.bas", sources, classes, {});
    ASSERT_TRUE(checked.Checked.has_value()) << path << ": " << checked.Found.All()[0].Text;
    const EmitResult emitted = Emit(*checked.Checked);
    ASSERT_EQ(emitted.Error, "") << path;
    const std::string dump = DumpCode(emitted.Made);
    std::filesystem::path expected = path;
    expected.replace_extension(".dump");
    if (std::getenv("TARNWICK_UPDATE_GOLDEN") != nullptr) {
      std::ofstream(expected, std::ios::binary) << dump;
    }
    EXPECT_EQ(dump, ReadAll(expected)) << path;
  }
}

}  // namespace
}  // namespace tarnwick::basic
