#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "basic/source_text.h"
#include "fakes/build_paths.h"

namespace tarnwick::basic {
namespace {

TEST(GoldenPrograms, Parse) {
  const std::filesystem::path folder =
      std::filesystem::path(tarnwick::test::SourceFolder()) / "tests/basic/golden";
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".bas") continue;
    if (std::filesystem::exists(std::filesystem::path(entry.path()).replace_extension(".err"))) {
      continue;
    }
    ++count;
    std::ifstream file(entry.path(), std::ios::binary);
    const test::ParsedText parsed(std::string(std::istreambuf_iterator<char>(file), {}));
    for (const Message& message : parsed.Found.All()) {
      EXPECT_NE(message.Level, Severity::Error)
          << entry.path().filename() << ":" << message.At.Line << ": " << message.Text;
    }
  }
  EXPECT_GT(count, 10);
}

}  // namespace
}  // namespace tarnwick::basic
