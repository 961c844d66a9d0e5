#include "text/path_text.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(PathText, FolderAndBareName) {
  EXPECT_EQ(FolderOf("C:\\a\\b.tnp"), "C:\\a\\");
  EXPECT_EQ(BareName("C:\\a\\b.tnp"), "b.tnp");
  EXPECT_EQ(FolderOf("b.tnp"), "");
  EXPECT_EQ(BareName("b.tnp"), "b.tnp");
  EXPECT_EQ(BareName("C:\\a\\"), "");
  EXPECT_EQ(FolderOf(""), "");
}

TEST(PathText, TheRootIsDriveZ) {
  EXPECT_EQ(PathFromNative("/home/ann/p.tnp"), "Z:\\home\\ann\\p.tnp");
  EXPECT_EQ(PathFromNative("/"), "Z:\\");
  EXPECT_EQ(PathToNative("Z:\\home\\ann\\p.tnp"), "/home/ann/p.tnp");
  EXPECT_EQ(PathToNative("z:\\home"), "/home");
  EXPECT_EQ(PathToNative("Z:\\"), "/");
  EXPECT_EQ(PathToNative("Z:"), "/");
}

TEST(PathText, PathsChangeTheirEncodingOnTheWay) {
  EXPECT_EQ(PathFromNative("/ni\xC3\xB1o"), "Z:\\ni\xF1o");
  EXPECT_EQ(PathToNative("Z:\\ni\xF1o"), "/ni\xC3\xB1o");
}

TEST(PathText, PathsWithoutADriveOnlyTurnTheirSlashes) {
  EXPECT_EQ(PathFromNative("a/b"), "a\\b");
  EXPECT_EQ(PathToNative("a\\b"), "a/b");
  EXPECT_EQ(PathToNative("\\UnTitle.com"), "/UnTitle.com");
  EXPECT_EQ(PathFromNative(""), "");
  EXPECT_EQ(PathToNative(""), "");
}

TEST(PathText, OtherDrivesNameNothing) {
  EXPECT_EQ(PathToNative("C:\\a.bmp"), "");
}

}  // namespace
}  // namespace tarnwick
