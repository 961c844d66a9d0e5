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

TEST(RecoveryText, TypedCodeComesBackWithTheFormThatItWasTypedOn) {
  FakeProject project;
  project.Ports.Files.Put("C:\\Work\\a.ftn", "[Form](1) {A}\r\n");
  project.Ports.Files.Put("C:\\Work\\b.ftn", "[Form](2) {B}\r\n");
  project.Ports.Files.Put("C:\\Work\\c.ftn", "[Form](3) {C}\r\n");
  project.LoadIndex(
      "1\x95"
      "a.ftn\r\n2\x95"
      "b.ftn\r\n3\x95"
      "c.ftn\r\nMF##A (a.ftn)\r\n");
  project.Form(2).Removed = 1;
  const TypedCode code{{"Form1.Button1.OnClick", "one\r\n"},
                       {"Form11.Button1.OnClick", "no such form"},
                       {"Form2.OnShow", "of a form that was removed"},
                       {"Form3.OnShow", ""},
                       {"Form3.Timer1.OnTimer", "End 0 \r\n"}};
  const std::string text =
      KeptFileText("now", WithTypedCode(KeptText(project.Tables), project.Tables, code));
  const std::optional<KeptProject> kept = ReadKeptFile(text);
  ASSERT_TRUE(kept);
  ASSERT_EQ(kept->Forms.size(), 2U);
  EXPECT_EQ(kept->Forms[0].Code, (TypedCode{{".Button1.OnClick", "one\r\n"}}));
  EXPECT_EQ(kept->Forms[1].Code, (TypedCode{{".OnShow", ""}, {".Timer1.OnTimer", "End 0 \r\n"}}));
}

TEST(RecoveryText, CodeOfAFormThatIsNotThereIsPassedOver) {
  for (const std::string key : {"2.OnShow", "0.OnShow", "-1.OnShow", "1", ".", ""}) {
    const std::string text = "Tarnwick recovery 1\r\nForm 1 F\r\nCode " +
                             std::to_string(key.size()) + " " + key + "\r\nTyped 1 x\r\nEnd 0 \r\n";
    const std::optional<KeptProject> kept = ReadKeptFile(text);
    ASSERT_TRUE(kept) << key;
    ASSERT_EQ(kept->Forms.size(), 1U);
    EXPECT_TRUE(kept->Forms[0].Code.empty()) << key;
  }
}

TEST(RecoveryText, NoBeginningOfAFileIsTakenForAWholeOne) {
  FakeProject project;
  project.Load("[Form](1) {F}\r\n");
  const std::string text = KeptFileText("now", KeptText(project.Tables));
  for (std::size_t size = 0; size + 2 < text.size(); ++size) {
    ASSERT_FALSE(ReadKeptFile(std::string_view(text).substr(0, size))) << size;
  }
}

TEST(RecoveryText, AnEmptyValueNeedsNoLength) {
  const auto kept = ReadKeptFile("Tarnwick recovery 1\r\nWhen  \r\nForm 1 F\r\nEnd 0 \r\n");
  ASSERT_TRUE(kept);
  EXPECT_EQ(kept->When, "");
  EXPECT_EQ(kept->Forms.size(), 1U);
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
