#include "platform/program_folder.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "fakes/temporary_folder.h"

namespace tarnwick {
namespace {

/// An executable whose folder nobody can write, not even root.
constexpr const char* kSealed = "/proc/self/tarnwick";

TEST(ProgramFolder, AWritableFolderOfTheExecutableIsIt) {
  const TemporaryFolder folder;
  EXPECT_EQ(ProgramFolderFor({folder.Native("tarnwick"), "", "/nowhere"}), folder.Path());
}

TEST(ProgramFolder, OtherwiseTheUsersDataFolderIsMade) {
  const TemporaryFolder home;
  EXPECT_EQ(ProgramFolderFor({kSealed, "", home.Native()}), home.Path(".local/share/tarnwick"));
  EXPECT_TRUE(std::filesystem::is_directory(home.Native(".local/share/tarnwick")));
}

TEST(ProgramFolder, TheDesktopsDataFolderGoesFirst) {
  const TemporaryFolder home;
  EXPECT_EQ(ProgramFolderFor({kSealed, home.Native("data"), home.Native()}),
            home.Path("data/tarnwick"));
  EXPECT_TRUE(std::filesystem::is_directory(home.Native("data/tarnwick")));
}

TEST(ProgramFolder, ARelativeDataFolderIsPassedOver) {
  const TemporaryFolder home;
  EXPECT_EQ(ProgramFolderFor({kSealed, "data", home.Native()}), home.Path(".local/share/tarnwick"));
}

TEST(ProgramFolder, TheRunningExecutablesFolderHasNoTrailingBackslash) {
  const std::string folder = ExecutableFolder();
  ASSERT_GT(folder.size(), 3U);
  EXPECT_EQ(folder.substr(0, 3), "Z:\\");
  EXPECT_NE(folder.back(), '\\');
}

}  // namespace
}  // namespace tarnwick
