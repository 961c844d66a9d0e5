// What the program knows of the files that it has read and written.
#include "project/watched_files.h"

#include <gtest/gtest.h>

#include "fakes/fake_ports.h"

namespace tarnwick::project {
namespace {

class WatchedFilesTest : public ::testing::Test {
 protected:
  FakePorts ports;
  WatchedFiles files{ports.Files};
  const std::string path = "C:\\Work\\a.ftn";
};

TEST_F(WatchedFilesTest, AFileThatWasReadHasNotChangedUntilAnotherWritesIt) {
  ports.Files.Put(path, "one");
  EXPECT_EQ(files.Read(path), "one");
  EXPECT_FALSE(files.ChangedOutside(path));
  ports.Files.Put(path, "two");
  EXPECT_TRUE(files.ChangedOutside(path));
  EXPECT_TRUE(files.ChangedOutside("c:\\WORK\\A.FTN")) << "in any letters";
  EXPECT_TRUE(files.Read(path));
  EXPECT_FALSE(files.ChangedOutside(path));
}

TEST_F(WatchedFilesTest, OwnWritesAreNoChange) {
  ports.Files.Put(path, "one");
  EXPECT_TRUE(files.Read(path));
  EXPECT_TRUE(files.Replace(path, "two"));
  EXPECT_FALSE(files.ChangedOutside(path));
  ports.Files.Put(path, "one");
  EXPECT_TRUE(files.ChangedOutside(path));
}

TEST_F(WatchedFilesTest, AFileThatWasNeverSeenOrHasGoneHasNotChanged) {
  ports.Files.Put(path, "one");
  EXPECT_FALSE(files.ChangedOutside(path));
  EXPECT_TRUE(files.Read(path));
  ports.Files.Remove(path);
  EXPECT_FALSE(files.ChangedOutside(path));
  ports.Files.Put(path, "two");
  EXPECT_TRUE(files.ChangedOutside(path));
  EXPECT_TRUE(files.Remove(path));
  ports.Files.Put(path, "three");
  EXPECT_FALSE(files.ChangedOutside(path)) << "what was removed is forgotten";
}

}  // namespace
}  // namespace tarnwick::project
