// The examples are what a user reads first: nothing may be amiss in them.
#include <gtest/gtest.h>

#include "cli/project_folder.h"
#include "fakes/build_paths.h"

namespace tarnwick {
namespace {

using test::Call;
using test::ProjectFolder;

const std::string kExamples = test::SourceFolder() + "/examples/";

void ExpectNoFindings(const std::string& project) {
  const test::CallResult result = Call({"check", project, "--program-folder", "C:\\Tarnwick"});
  EXPECT_EQ(result.Out, "");
  EXPECT_EQ(result.Err, "");
  EXPECT_EQ(result.Exit, 0);
}

TEST(ExamplesCheck, EveryProject) {
  int projects = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(kExamples)) {
    if (entry.path().extension() != ".tnp") continue;
    SCOPED_TRACE(entry.path().string());
    ExpectNoFindings(entry.path().string());
    ++projects;
  }
  EXPECT_GE(projects, 4);
}

TEST(ExamplesCheck, OldNotesOnceConverted) {
  const ProjectFolder folder;
  const std::string copy = folder.PathOf("notes.ptn");
  std::filesystem::copy_file(std::string(kExamples) + "old/notes.ptn", copy);
  ASSERT_EQ(Call({"convert", copy}).Exit, 0);
  ExpectNoFindings(folder.PathOf("notes.tnp"));
}

}  // namespace
}  // namespace tarnwick
