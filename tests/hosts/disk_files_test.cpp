#include "hosts/disk_files.h"

#include <gtest/gtest.h>

#include "fakes/temporary_folder.h"

namespace tarnwick::hosts {
namespace {

class DiskFilesTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(files_.ChangeFolder(folder_.Path())); }
  void Put(std::string_view path, std::string_view bytes) {
    const auto stream = files_.Open(path, basic::FileMode::Create);
    ASSERT_NE(stream, nullptr);
    EXPECT_TRUE(stream->Write(bytes));
  }

  TemporaryFolder folder_;
  DiskFiles files_;
};

TEST_F(DiskFilesTest, RelativePathsCountFromTheCurrentFolder) {
  Put("a.txt", "alpha");
  EXPECT_TRUE(files_.FileExists("A.TXT"));
  EXPECT_TRUE(files_.FileExists(files_.CurrentFolder() + "\\a.txt"));
  EXPECT_TRUE(files_.FileExists("sub\\..\\.\\a.txt"));
  EXPECT_FALSE(files_.FileExists(""));
  EXPECT_FALSE(files_.FolderExists("a.txt"));
}

TEST_F(DiskFilesTest, AStreamReadsWritesAndSeeks) {
  Put("a.bin", "0123456789");
  const auto stream = files_.Open("a.bin", basic::FileMode::ReadWrite);
  ASSERT_NE(stream, nullptr);
  EXPECT_EQ(stream->Size(), 10);
  EXPECT_EQ(stream->Read(3), "012");
  EXPECT_TRUE(stream->Write("ab"));
  EXPECT_EQ(stream->Position(), 5);
  EXPECT_EQ(stream->Read(100), "56789");
  EXPECT_EQ(stream->Read(1), "");
  EXPECT_FALSE(stream->Seek(-1));
  EXPECT_TRUE(stream->Resize(4));
  EXPECT_TRUE(stream->Seek(0));
  EXPECT_EQ(stream->Read(100), "012a");
}

TEST_F(DiskFilesTest, OpeningWhatIsNotThereFails) {
  EXPECT_EQ(files_.Open("none.txt", basic::FileMode::Read), nullptr);
  EXPECT_EQ(files_.Open("none\\a.txt", basic::FileMode::Create), nullptr);
  EXPECT_EQ(files_.Open(".", basic::FileMode::Read), nullptr);
}

TEST_F(DiskFilesTest, FoldersAreMadeEnteredAndRemoved) {
  const std::string start = files_.CurrentFolder();
  EXPECT_TRUE(files_.MakeFolder("sub"));
  EXPECT_FALSE(files_.MakeFolder("sub"));
  EXPECT_TRUE(files_.ChangeFolder("SUB"));
  Put("x", "");
  EXPECT_TRUE(files_.ChangeFolder(".."));
  EXPECT_EQ(files_.CurrentFolder(), start);
  EXPECT_FALSE(files_.RemoveFolder("sub")) << "it is not empty";
  EXPECT_TRUE(files_.Delete("sub\\x"));
  EXPECT_TRUE(files_.RemoveFolder("sub"));
  EXPECT_FALSE(files_.ChangeFolder("sub"));
}

TEST_F(DiskFilesTest, RenamingNeverReplacesAFile) {
  Put("a", "1");
  Put("b", "2");
  EXPECT_FALSE(files_.Rename("a", "b"));
  EXPECT_TRUE(files_.Rename("a", "c"));
  EXPECT_FALSE(files_.FileExists("a"));
}

TEST_F(DiskFilesTest, AListIsSortedAndShowsFoldersOnlyWhenAsked) {
  Put("b.txt", "12");
  Put("a.txt", "");
  Put("c.ini", "");
  files_.MakeFolder("d.txt");
  auto found = files_.List("*.txt", 0);
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].Name, "a.txt");
  EXPECT_EQ(found[1].Size, 2);
  found = files_.List("*.*", 16);
  ASSERT_EQ(found.size(), 4U);
  EXPECT_EQ(found[3].Attributes & 16, 16);
  EXPECT_TRUE(files_.List("none\\*", 0).empty());
}

TEST(FitsMaskTest, StarsAndQuestionMarks) {
  EXPECT_TRUE(FitsMask("Readme", "*.*"));
  EXPECT_TRUE(FitsMask("a.TXT", "*.txt"));
  EXPECT_TRUE(FitsMask("a.b.c", "*.c"));
  EXPECT_TRUE(FitsMask("ab", "a?"));
  EXPECT_FALSE(FitsMask("a", "a?"));
  EXPECT_FALSE(FitsMask("a.txt.bak", "*.txt"));
  EXPECT_TRUE(FitsMask("", "*"));
  EXPECT_FALSE(FitsMask("a", ""));
}

}  // namespace
}  // namespace tarnwick::hosts
