// Whole programs with what they print, found by listing the folder: <case>.bas beside <case>.out.
// One that a run-time error ends has <case>.stop with the text of the error. One that does not
// check has <case>.err with the messages, and prints nothing.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "basic/run_source.h"
#include "fakes/build_paths.h"

namespace tarnwick::basic {
namespace {

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void ExpectGoldenPrograms(Dispatch how) {
  const std::filesystem::path folder =
      std::filesystem::path(tarnwick::test::SourceFolder()) / "tests/basic/golden";
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::filesystem::path path = entry.path();
    if (path.extension() != ".bas") continue;
    ++count;
    ProgramWorld world;
    RunOptions options;
    options.MaxSteps = 10'000'000;
    options.How = how;
    const LineResult result = RunSource(BytesOf(path), world, options);
    const std::string name = path.filename().string();
    EXPECT_EQ(result.TextsHeld, 0U) << name;
    EXPECT_EQ(result.Output, BytesOf(path.replace_extension(".out"))) << name;
    if (std::filesystem::exists(path.replace_extension(".err"))) {
      EXPECT_NE(result.Error, "") << name;
      continue;
    }
    std::string fault = BytesOf(path.replace_extension(".stop"));
    if (fault.ends_with('\n')) fault.pop_back();
    EXPECT_EQ(result.Error, fault) << name;
  }
  EXPECT_GT(count, 10);
}

TEST(GoldenPrograms, PrintWhatTheirFilesSay) {
  ExpectGoldenPrograms(Dispatch::Threaded);
}

TEST(GoldenPrograms, PrintTheSameWithTheOtherDispatch) {
  ExpectGoldenPrograms(Dispatch::Switch);
}

}  // namespace
}  // namespace tarnwick::basic
