// Every folder beside this file is a case: project/ holds a project as it comes, expected/ what
// opening it gives: its files as they are saved again, the generated source, and the messages
// shown. scripts/update-golden rewrites expected/; read its result before it is committed.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "codegen/program_source.h"
#include "fakes/build_paths.h"
#include "fakes/fake_project.h"
#include "fakes/golden_text.h"
#include "persistence/project_index.h"
#include "project/convert_project.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick::test {
namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;

const fs::path kCases = fs::path(SourceFolder()) / "tests" / "golden";

std::vector<std::string> CaseNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kCases)) {
    if (entry.is_directory()) names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

Files FilesOf(const fs::path& folder) {
  Files files;
  if (!fs::is_directory(folder)) return files;
  for (const auto& entry : fs::directory_iterator(folder)) {
    std::ifstream in(entry.path(), std::ios::binary);
    files[entry.path().filename().string()] = {std::istreambuf_iterator<char>(in), {}};
  }
  return files;
}

/// The one file of an ending; "" when there is none.
std::string FileOf(const Files& files, std::string_view ending) {
  for (const auto& [name, bytes] : files) {
    if (std::string_view(name).ends_with(ending)) return name;
  }
  return {};
}

/// What opening a case's project gives.
Files ResultsOf(const Files& input) {
  FakeProject project;
  for (const auto& [name, bytes] : input) project.Ports.Files.Put("C:\\Work\\" + name, bytes);
  if (const std::string old = FileOf(input, ".ptn"); !old.empty()) {
    project.Tables.ProjectFile =
        project::ConvertOldProject(project.Ports.Files, "C:\\Work\\" + old).value_or("");
  } else {
    project.Tables.ProjectFile = "C:\\Work\\" + FileOf(input, ".tnp");
  }
  project::LoadProject(project.Context, project.Tables.ProjectFile);
  Files results;
  results[std::string(BareName(project.Tables.ProjectFile))] =
      ProjectIndexText(project.Tables, FolderOf(project.Tables.ProjectFile));
  for (int form = 1; form <= project.Tables.FormsCount; ++form) {
    const std::string file(BareName(project.Form(form).FileName));
    results[file.empty() ? "form" + std::to_string(form) + ".ftn" : file] = project.Saved(form);
  }
  GeneratorState generator;
  results["source.com"] = GenerateSource(project.Tables, generator);
  for (const std::string& entry : project.Ports.Log.Entries()) {
    if (entry.starts_with("show ")) results["messages.txt"] += entry.substr(5) + "\r\n";
  }
  return results;
}

void Write(const fs::path& folder, const Files& files) {
  fs::remove_all(folder);
  fs::create_directories(folder);
  for (const auto& [name, bytes] : files) {
    std::ofstream(folder / name, std::ios::binary) << bytes;
  }
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, OpensAsExpected) {
  const fs::path folder = kCases / GetParam();
  const Files results = ResultsOf(FilesOf(folder / "project"));
  if (std::getenv("TARNWICK_UPDATE_GOLDEN") != nullptr) {
    Write(folder / "expected", results);
    return;
  }
  const Files expected = FilesOf(folder / "expected");
  ASSERT_FALSE(expected.empty()) << folder;
  for (const auto& [name, bytes] : expected) {
    ASSERT_EQ(results.count(name), 1U) << name << " is expected and not there";
    ExpectSameText(name, results.at(name), bytes);
  }
  EXPECT_EQ(results.size(), expected.size());
}

std::string NameOfCase(const testing::TestParamInfo<std::string>& tested) {
  std::string name = tested.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Cases, Golden, testing::ValuesIn(CaseNames()), NameOfCase);

TEST(GoldenFiles, AProjectAsItIsWrittenIsSavedToTheSameBytes) {
  const Files input = FilesOf(kCases / "every-kind" / "project");
  const Files expected = FilesOf(kCases / "every-kind" / "expected");
  ASSERT_EQ(input.size(), 2U);
  for (const auto& [name, bytes] : input) ExpectSameText(name, expected.at(name), bytes);
}

}  // namespace
}  // namespace tarnwick::test
