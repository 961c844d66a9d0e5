#include "project/recovery_text.h"

#include <gtest/gtest.h>

#include "fakes/fake_project.h"

namespace tarnwick::project {
namespace {

using test::FakeProject;

TEST(RecoveryText, AProjectComesBackWithItsPathsAndTheTextsThatASaveWouldWrite) {
  FakeProject project;
  project.Load("[Form](1) {F}\r\n");
  const std::string text = KeptFileText("2026-03-01 14:05:09", KeptText(project.Tables));
  const std::optional<KeptProject> kept = ReadKeptFile(text);
  ASSERT_TRUE(kept);
  EXPECT_EQ(kept->When, "2026-03-01 14:05:09");
  EXPECT_EQ(kept->ProjectFile, project.Tables.ProjectFile);
  EXPECT_EQ(kept->MainForm, project.Tables.MainFormName);
  ASSERT_EQ(kept->Forms.size(), 1U);
  EXPECT_EQ(kept->Forms[0].Name, "F");
  EXPECT_EQ(kept->Forms[0].File, project.Form(1).FileName);
  EXPECT_EQ(kept->Forms[0].Text, project.Saved());
}

TEST(RecoveryText, NoBeginningOfAFileIsTakenForAWholeOne) {
  FakeProject project;
  project.Load("[Form](1) {F}\r\n");
  const std::string text = KeptFileText("now", KeptText(project.Tables));
  for (std::size_t size = 0; size + 2 < text.size(); ++size) {
    ASSERT_FALSE(ReadKeptFile(std::string_view(text).substr(0, size))) << size;
  }
}

TEST(RecoveryText, BytesOfAnyKindAreNoProject) {
  for (const char* text : {"", "Tarnwick recovery 1\r\n", "Tarnwick recovery 1\r\nWhen x\r\n",
                           "Tarnwick recovery 1\r\nWhen 99999999999999999999 a\r\n",
                           "Tarnwick recovery 2\r\nEnd 0 \r\n"}) {
    EXPECT_FALSE(ReadKeptFile(text)) << text;
  }
}

}  // namespace
}  // namespace tarnwick::project
