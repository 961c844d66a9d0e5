// Programs in files: those of golden/ check as their .err says, or without an error; those of
// tolerances/ give the messages of their .txt; generated texts check, too.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "basic/checked_text.h"
#include "basic/conformance_table.h"
#include "basic/syntax/tolerances.h"
#include "fakes/build_paths.h"
#include "fakes/golden_text.h"

namespace tarnwick::basic {
namespace {

namespace fs = std::filesystem;
using test::CheckedText;

fs::path TestFolder() {
  return fs::path(tarnwick::test::SourceFolder()) / "tests";
}

std::string ReadFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<fs::path> Programs(const fs::path& folder) {
  std::vector<fs::path> programs;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".bas") programs.push_back(entry.path());
  }
  std::sort(programs.begin(), programs.end());
  return programs;
}

/// The messages of a result that are errors.
std::string ErrorsOf(const FrontEndResult& result) {
  std::string errors;
  for (const Message& message : result.Found.All()) {
    if (message.Level != Severity::Error) continue;
    errors += std::to_string(message.At.Line) + ": " + message.Text + '\n';
  }
  return errors;
}

/// Files of the disk under the names that generated texts give them.
class DiskSources : public SourceReader {
 public:
  explicit DiskSources(fs::path main) : main_(std::move(main)) {}
  std::optional<std::string> ReadSource(const std::string& path) override {
    if (path == "main") return ReadFile(main_);
    const std::string bare = path.substr(path.find_last_of('\\') + 1);
    const fs::path file = fs::path(tarnwick::test::SourceFolder()) / "support" / bare;
    if (!fs::exists(file)) return std::nullopt;
    return ReadFile(file);
  }

 private:
  fs::path main_;
};

FrontEndResult CheckGenerated(const fs::path& path, bool strict = false) {
  DiskSources sources(path);
  return CheckProgram("main", sources, test::Classes(), {{"C:\\Tarnwick"}, strict});
}

TEST(GoldenPrograms, CheckAsTheirFilesSay) {
  const std::vector<fs::path> programs = Programs(TestFolder() / "basic/golden");
  EXPECT_GT(programs.size(), 10U);
  for (const fs::path& program : programs) {
    const CheckedText checked(ReadFile(program));
    fs::path expected = program;
    expected.replace_extension(".err");
    if (fs::exists(expected)) {
      tarnwick::test::ExpectSameText(program.filename().string(), checked.Messages(),
                                     ReadFile(expected));
      EXPECT_FALSE(checked.Result.Checked) << program;
    } else {
      EXPECT_EQ(ErrorsOf(checked.Result), "") << program;
      EXPECT_TRUE(checked.Result.Checked) << program;
    }
  }
}

TEST(GoldenPrograms, EveryToleranceHasItsCase) {
  for (const ToleranceRow& row : kTolerances) {
    const fs::path program = TestFolder() / "basic/tolerances" / (std::string(row.Name) + ".bas");
    ASSERT_TRUE(fs::exists(program)) << row.Name;
    fs::path expected = program;
    const CheckedText checked(ReadFile(program));
    tarnwick::test::ExpectSameText(std::string(row.Name), checked.Messages(),
                                   ReadFile(expected.replace_extension(".txt")));
    EXPECT_TRUE(checked.Result.Checked) << row.Name;
  }
}

TEST(GoldenPrograms, EveryToleratedCaseHasItsRow) {
  for (const fs::path& program : Programs(TestFolder() / "basic/tolerances")) {
    const auto is_its_row = [&](const ToleranceRow& row) {
      return row.Name == program.stem().string();
    };
    EXPECT_TRUE(std::any_of(kTolerances.begin(), kTolerances.end(), is_its_row)) << program;
  }
}

TEST(GoldenPrograms, AStrictCheckAcceptsNoIrregularLine) {
  for (const ToleranceRow& row : kTolerances) {
    // An empty argument is none the less one.
    if (row.Which == Tolerance::EmptyMenuTitle) continue;
    const fs::path program = TestFolder() / "basic/tolerances" / (std::string(row.Name) + ".bas");
    EXPECT_FALSE(CheckedText(ReadFile(program), true).Result.Checked) << row.Name;
  }
}

TEST(GoldenPrograms, GeneratedTextsOfTheExamplesCheck) {
  int count = 0;
  for (const auto& entry : fs::directory_iterator(TestFolder() / "examples/expected")) {
    if (entry.path().extension() != ".com") continue;
    ++count;
    const FrontEndResult result = CheckGenerated(entry.path());
    EXPECT_EQ(CheckedText::MessagesOf(result), "") << entry.path();
    EXPECT_TRUE(result.Checked);
  }
  EXPECT_EQ(count, 5);
}

TEST(GoldenPrograms, GeneratedTextsAreFaultyOnlyInTheUsersOwnLines) {
  // What these projects hold on purpose: code that is no RapidQ, and names that are none.
  const std::string all = ReadFile(TestFolder() / "basic/generated_faults.txt");
  std::string found;
  std::vector<fs::path> texts;
  for (const auto& entry : fs::directory_iterator(TestFolder() / "golden")) {
    const fs::path text = entry.path() / "expected/source.com";
    if (fs::exists(text)) texts.push_back(text);
  }
  std::sort(texts.begin(), texts.end());
  for (const fs::path& text : texts) {
    found += text.parent_path().parent_path().filename().string() + '\n' +
             ErrorsOf(CheckGenerated(text));
  }
  tarnwick::test::ExpectSameText("generated_faults.txt", found, all);
}

TEST(ConformanceRows, ProgramsWithoutAFaultCheck) {
  for (const char* file : {"functions.tsv", "operators.tsv"}) {
    for (const ConformanceRow& row : ReadConformanceRows(file)) {
      // "*" leaves the outcome open.
      if (row.Output.find("error: ") != std::string::npos || row.Output == "*") continue;
      EXPECT_EQ(ErrorsOf(CheckedText(row.Program).Result), "") << row.Where << ": " << row.Program;
    }
  }
}

}  // namespace
}  // namespace tarnwick::basic
