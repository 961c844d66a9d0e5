#include "platform/native_files.h"

#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "fakes/temporary_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// The real steps, of which the n-th fails.
class FailingSteps final : public DiskSteps {
 public:
  explicit FailingSteps(int fail_at) : fail_at_(fail_at) {}
  [[nodiscard]] int Steps() const { return step_; }

  int Create(const std::string& path, unsigned mode) override {
    return Fails() ? -1 : DiskSteps::Create(path, mode);
  }
  bool Write(int file, std::string_view bytes) override {
    // A disk that fills up takes the first half.
    if (Fails()) return DiskSteps::Write(file, bytes.substr(0, bytes.size() / 2)), false;
    return DiskSteps::Write(file, bytes);
  }
  bool CopyOwner(int file, const std::string& from) override {
    return !Fails() && DiskSteps::CopyOwner(file, from);
  }
  bool Flush(int file) override { return !Fails() && DiskSteps::Flush(file); }
  bool Close(int file) override {
    const bool fails = Fails();
    return DiskSteps::Close(file) && !fails;
  }
  bool Rename(const std::string& from, const std::string& to) override {
    return !Fails() && DiskSteps::Rename(from, to);
  }
  bool FlushFolder(const std::string& folder) override {
    return !Fails() && DiskSteps::FlushFolder(folder);
  }

 private:
  bool Fails() { return ++step_ == fail_at_; }

  int fail_at_;
  int step_ = 0;
};

class NativeFilesTest : public ::testing::Test {
 protected:
  TemporaryFolder Folder;
  NativeFiles Files;
};

TEST_F(NativeFilesTest, ReadsBytesAsTheyAre) {
  const std::string bytes("a\r\n\0\x8D\xFF\x1A", 7);
  Folder.Write("p.tnp", bytes);
  EXPECT_EQ(Files.Read(Folder.Path("p.tnp")), bytes);
  EXPECT_TRUE(Files.Exists(Folder.Path("p.tnp")));
}

TEST_F(NativeFilesTest, WhatIsNotThereCannotBeRead) {
  EXPECT_FALSE(Files.Read(Folder.Path("none")).has_value());
  EXPECT_FALSE(Files.Exists(Folder.Path("none")));
  EXPECT_FALSE(Files.Read("").has_value());
  EXPECT_FALSE(Files.Read("C:\\a").has_value());
  EXPECT_FALSE(Files.Read(Folder.Path(std::string("a\0b", 3))).has_value());
}

TEST_F(NativeFilesTest, AFolderIsNoFile) {
  EXPECT_FALSE(Files.Exists(Folder.Path()));
  EXPECT_FALSE(Files.Read(Folder.Path()).has_value());
  EXPECT_FALSE(Files.Replace(Folder.Path(), "x"));
  EXPECT_FALSE(Files.Remove(Folder.Path()));
}

TEST_F(NativeFilesTest, APipeIsNoFile) {
  ASSERT_EQ(::mkfifo(Folder.Native("pipe").c_str(), 0600), 0);
  EXPECT_FALSE(Files.Exists(Folder.Path("pipe")));
  EXPECT_FALSE(Files.Read(Folder.Path("pipe")).has_value());
  EXPECT_FALSE(Files.Replace(Folder.Path("pipe"), "x"));
}

TEST_F(NativeFilesTest, AnEmptyFileReadsAsEmpty) {
  Folder.Write("e", "");
  EXPECT_EQ(Files.Read(Folder.Path("e")), "");
}

TEST_F(NativeFilesTest, PathsAreFoundWithoutRegardToCase) {
  fs::create_directory(Folder.Native("Proj"));
  Folder.Write("Proj/Main.FTN", "x");
  EXPECT_EQ(Files.Read(Folder.Path("proj/main.ftn")), "x");
  EXPECT_TRUE(Files.Exists(Folder.Path("PROJ/MAIN.ftn")));
}

TEST_F(NativeFilesTest, CaseOfLettersWithAccentsFoldsToo) {
  Folder.Write("Ni\xC3\xB1o.tnp", "x");
  EXPECT_EQ(Files.Read(Folder.Path() + "\\NI\xD1O.TNP"), "x");
}

TEST_F(NativeFilesTest, AnExactMatchGoesFirst) {
  Folder.Write("a.bmp", "small");
  Folder.Write("A.BMP", "large");
  EXPECT_EQ(Files.Read(Folder.Path("a.bmp")), "small");
  EXPECT_EQ(Files.Read(Folder.Path("A.BMP")), "large");
  // Neither is exact: the first in byte order, whatever the disk's order.
  EXPECT_EQ(Files.Read(Folder.Path("A.bmp")), "large");
}

TEST_F(NativeFilesTest, NamesOutsideTheCodePageAreFoundByTheirQuestionMarks) {
  Folder.Write("\xCE\xA9.tnp", "omega");
  EXPECT_EQ(Folder.Path("\xCE\xA9.tnp"), Folder.Path() + "\\?.tnp");
  EXPECT_EQ(Files.Read(Folder.Path() + "\\?.tnp"), "omega");
}

TEST_F(NativeFilesTest, ReplaceMakesAFile) {
  EXPECT_TRUE(Files.Replace(Folder.Path("n.ftn"), "new"));
  EXPECT_EQ(Folder.Read("n.ftn"), "new");
  EXPECT_EQ(Folder.Names(), std::vector<std::string>{"n.ftn"});
}

TEST_F(NativeFilesTest, ANewFileTakesTheUsersPermissions) {
  const mode_t mask = ::umask(027);
  EXPECT_TRUE(Files.Replace(Folder.Path("n"), "new"));
  ::umask(mask);
  EXPECT_EQ(fs::status(Folder.Native("n")).permissions(), static_cast<fs::perms>(0640));
}

TEST_F(NativeFilesTest, ReplaceWritesTheFileThatDiffersInCase) {
  Folder.Write("Main.FTN", "old");
  EXPECT_TRUE(Files.Replace(Folder.Path("main.ftn"), "new"));
  EXPECT_EQ(Folder.Names(), std::vector<std::string>{"Main.FTN"});
  EXPECT_EQ(Folder.Read("Main.FTN"), "new");
}

TEST_F(NativeFilesTest, ReplaceFindsItsFolderWithoutRegardToCase) {
  fs::create_directory(Folder.Native("Sub"));
  EXPECT_TRUE(Files.Replace(Folder.Path("SUB/a.txt"), "x"));
  EXPECT_EQ(Folder.Read("Sub/a.txt"), "x");
}

TEST_F(NativeFilesTest, ReplaceMakesNoFolder) {
  EXPECT_FALSE(Files.Replace(Folder.Path("none/a.txt"), "x"));
  EXPECT_FALSE(Files.Replace("", "x"));
  EXPECT_FALSE(Files.Replace("C:\\a.txt", "x"));
  EXPECT_TRUE(Folder.Names().empty());
}

TEST_F(NativeFilesTest, ReplaceKeepsThePermissions) {
  Folder.Write("a", "old");
  fs::permissions(Folder.Native("a"), static_cast<fs::perms>(0751));
  EXPECT_TRUE(Files.Replace(Folder.Path("a"), "new"));
  EXPECT_EQ(fs::status(Folder.Native("a")).permissions(), static_cast<fs::perms>(0751));
}

/// For root nothing is write-protected, so such a test goes on as a user without rights.
class WithoutRootRights {
 public:
  WithoutRootRights() : was_root_(::getuid() == 0 && ::setresuid(kNobody, kNobody, 0) == 0) {}
  ~WithoutRootRights() {
    if (was_root_ && ::setresuid(0, 0, 0) != 0) std::abort();
  }
  WithoutRootRights(const WithoutRootRights&) = delete;
  WithoutRootRights& operator=(const WithoutRootRights&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  bool was_root_;
};

TEST_F(NativeFilesTest, AWriteProtectedFileStays) {
  Folder.Write("a", "old");
  fs::permissions(Folder.Native(), fs::perms::all);
  fs::permissions(Folder.Native("a"), static_cast<fs::perms>(0444));
  {
    const WithoutRootRights plain_user;
    EXPECT_TRUE(Files.Replace(Folder.Path("b"), "new"));
    EXPECT_FALSE(Files.Replace(Folder.Path("a"), "new"));
  }
  EXPECT_EQ(Folder.Read("a"), "old");
}

TEST_F(NativeFilesTest, ReplaceWritesThroughLinks) {
  fs::create_directory(Folder.Native("real"));
  Folder.Write("real/a", "old");
  fs::create_symlink("real/a", Folder.Native("one"));
  fs::create_symlink(Folder.Native("one"), Folder.Native("two"));
  EXPECT_TRUE(Files.Replace(Folder.Path("two"), "new"));
  EXPECT_EQ(Folder.Read("real/a"), "new");
  EXPECT_TRUE(fs::is_symlink(Folder.Native("one")));
  EXPECT_TRUE(fs::is_symlink(Folder.Native("two")));
}

TEST_F(NativeFilesTest, ALinkToNothingMakesItsTarget) {
  fs::create_symlink("later", Folder.Native("link"));
  EXPECT_TRUE(Files.Replace(Folder.Path("link"), "new"));
  EXPECT_EQ(Folder.Read("later"), "new");
  EXPECT_TRUE(fs::is_symlink(Folder.Native("link")));
}

TEST_F(NativeFilesTest, ACircleOfLinksIsRefused) {
  fs::create_symlink("b", Folder.Native("a"));
  fs::create_symlink("a", Folder.Native("b"));
  EXPECT_FALSE(Files.Replace(Folder.Path("a"), "new"));
}

TEST_F(NativeFilesTest, EachFailingStepLeavesTheOldFileAndNoLitter) {
  FailingSteps counting(0);
  Folder.Write("a", "old");
  ASSERT_TRUE(NativeFiles(counting).Replace(Folder.Path("a"), "new text"));
  const int last = counting.Steps();
  ASSERT_EQ(last, 7);
  for (int step = 1; step < last; ++step) {
    Folder.Write("a", "old");
    FailingSteps failing(step);
    EXPECT_FALSE(NativeFiles(failing).Replace(Folder.Path("a"), "new text")) << step;
    EXPECT_EQ(Folder.Read("a"), "old") << step;
    EXPECT_EQ(Folder.Names(), std::vector<std::string>{"a"}) << step;
  }
  // The last step only hardens what is already there.
  FailingSteps failing(last);
  EXPECT_TRUE(NativeFiles(failing).Replace(Folder.Path("a"), "new text"));
  EXPECT_EQ(Folder.Read("a"), "new text");
}

TEST_F(NativeFilesTest, EachFailingStepOfANewFileLeavesNothing) {
  for (int step = 1; step <= 5; ++step) {
    FailingSteps failing(step);
    EXPECT_FALSE(NativeFiles(failing).Replace(Folder.Path("a"), "new")) << step;
    EXPECT_TRUE(Folder.Names().empty()) << step;
  }
}

TEST_F(NativeFilesTest, RemoveDeletesOnce) {
  Folder.Write("IniEvents.ini", "x");
  EXPECT_TRUE(Files.Remove(Folder.Path("inievents.INI")));
  EXPECT_FALSE(Files.Remove(Folder.Path("IniEvents.ini")));
  EXPECT_TRUE(Folder.Names().empty());
}

TEST_F(NativeFilesTest, ShortPathsAreThePathsCut) {
  Folder.Write("a.com", "x");
  EXPECT_EQ(Files.ShortPathOf(Folder.Path("a.com")), Folder.Path("a.com"));
  EXPECT_EQ(Files.ShortPathOf(Folder.Path("b.com")), "");
  const std::string longest(200, 'n');
  Folder.Write(longest, "x");
  EXPECT_EQ(Files.ShortPathOf(Folder.Path(longest)), Folder.Path(longest).substr(0, 165));
}

}  // namespace
}  // namespace tarnwick
