// What holds for every project, shown on many made by chance.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "codegen/program_source.h"
#include "fakes/fake_project.h"
#include "fakes/random_project.h"
#include "persistence/project_index.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick::test {

using namespace project;

namespace {

constexpr std::uint32_t kSeeds = 300;

std::vector<std::string> Texts(const FakeProject& project) {
  std::vector<std::string> texts{
      ProjectIndexText(project.Tables, FolderOf(project.Tables.ProjectFile))};
  for (int form = 1; form <= project.Tables.FormsCount; ++form) {
    texts.push_back(project.Saved(form));
  }
  return texts;
}

TEST(RoundTrip, WritingReadingAndWritingGivesTheSameBytes) {
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    FakeProject project;
    RandomProject(seed).Fill(project.Builder, {.Forms = 1 + static_cast<int>(seed % 4)});
    ASSERT_TRUE(SaveProject(project.Context, project.Tables.ProjectFile));
    const std::vector<std::string> first = Texts(project);
    ASSERT_TRUE(LoadProject(project.Context, project.Tables.ProjectFile));
    const std::vector<std::string> second = Texts(project);
    ASSERT_EQ(first.size(), second.size()) << seed;
    for (std::size_t i = 0; i < first.size(); ++i) ASSERT_EQ(second[i], first[i]) << seed;
  }
}

TEST(RoundTrip, ReadingChangesNoByteOnDisk) {
  FakeProject project;
  RandomProject(7).Fill(project.Builder, {});
  SaveProject(project.Context, project.Tables.ProjectFile);
  const std::vector<std::string> before = Texts(project);
  project.Ports.Log.Clear();
  LoadProject(project.Context, project.Tables.ProjectFile);
  EXPECT_EQ(project.Ports.Log.Count("replace"), 0U);
  EXPECT_EQ(project.Ports.Files.Bytes(project.Tables.ProjectFile), before.front());
}

/// Two lines may differ only where the number of a WinSock goes on from one run to the next: its
/// four values are then looked up where none are.
bool IsWinSockLine(std::string_view line) {
  for (const char* member : {".Family = ", ".Protocol = ", ".Type = ", ".WMessage = "}) {
    if (Contains(line, member)) return true;
  }
  return false;
}

TEST(RoundTrip, GeneratingTwiceDiffersOnlyInWinSockNumbers) {
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    FakeProject project;
    RandomProject(seed).Fill(project.Builder, {.Forms = 2});
    GeneratorState state;
    const std::string first = GenerateSource(project.Tables, state);
    const std::string again = GenerateSource(project.Tables, state);
    GeneratorState fresh;
    ASSERT_EQ(GenerateSource(project.Tables, fresh), first) << seed;
    const auto lines = Split(first, "\r\n");
    const auto lines_again = Split(again, "\r\n");
    ASSERT_EQ(lines.size(), lines_again.size()) << seed;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      if (IsWinSockLine(lines[i])) continue;
      ASSERT_EQ(lines_again[i], lines[i]) << seed;
    }
  }
}

TEST(RoundTrip, AProgramInPiecesIsTheWholeProgram) {
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    FakeProject project;
    // Some have transparent frames, whose calls are looked for in the whole text.
    RandomProject(seed).Fill(project.Builder, {.Forms = 3, .ObjectsPerForm = 200});
    GeneratorState whole;
    GeneratorState in_pieces;
    std::string joined;
    WriteSource(project.Tables, in_pieces, [&](std::string_view piece) { joined += piece; });
    ASSERT_EQ(joined, GenerateSource(project.Tables, whole)) << seed;
  }
}

TEST(RoundTrip, AReadProjectGeneratesWhatTheWrittenOneDid) {
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    FakeProject project;
    RandomProject(seed).Fill(project.Builder, {.Forms = 1});
    SaveProject(project.Context, project.Tables.ProjectFile);
    LoadProject(project.Context, project.Tables.ProjectFile);
    GeneratorState state;
    const std::string once = GenerateSource(project.Tables, state);
    SaveProject(project.Context, project.Tables.ProjectFile);
    LoadProject(project.Context, project.Tables.ProjectFile);
    GeneratorState fresh;
    ASSERT_EQ(GenerateSource(project.Tables, fresh), once) << seed;
  }
}

TEST(RoundTrip, AnyProjectIsReadBackWithoutHarm) {
  for (std::uint32_t seed = 0; seed < kSeeds; ++seed) {
    FakeProject project;
    RandomProject(seed).Fill(project.Builder, {.Forms = 3, .Holdable = false});
    SaveProject(project.Context, project.Tables.ProjectFile);
    ASSERT_TRUE(LoadProject(project.Context, project.Tables.ProjectFile)) << seed;
    EXPECT_GE(project.Tables.FormsCount, 1);
    EXPECT_EQ(project.Tables.LoadingProject, 0);
    GeneratorState state;
    EXPECT_FALSE(GenerateSource(project.Tables, state).empty());
  }
}

TEST(RoundTrip, EveryCutOfAFormFileCanBeRead) {
  FakeProject made;
  RandomProject(3).Fill(made.Builder, {.Forms = 1, .ObjectsPerForm = 8});
  const std::string whole = made.Saved();
  for (std::size_t size = 0; size < whole.size(); size += 7) {
    FakeProject project;
    ASSERT_TRUE(project.Load(whole.substr(0, size)));
    ASSERT_EQ(project.Tables.FormsCount, 1);
  }
}

}  // namespace
}  // namespace tarnwick::test
