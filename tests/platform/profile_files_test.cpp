#include "platform/profile_files.h"

#include <gtest/gtest.h>

#include "fakes/memory_files.h"

namespace tarnwick {
namespace {

class ProfileFilesTest : public ::testing::Test {
 protected:
  std::string Read(std::string_view section, std::string_view key, std::size_t size = 286) {
    return Profiles.Read(kPath, section, key, size);
  }
  std::string Bytes() { return Files.Bytes(kPath).value_or("(none)"); }

  const std::string kPath = "Z:\\t\\Tarnwick.ini";
  CallLog Log;
  MemoryFiles Files{Log};
  ProfileFiles Profiles{Files};
};

TEST_F(ProfileFilesTest, AMissingFileGivesNothing) {
  EXPECT_EQ(Read("Path", "Bmp"), "");
}

TEST_F(ProfileFilesTest, SectionsAndKeysIgnoreCase) {
  Files.Put(kPath, "[PATH]\r\nBMP=C:\\a\r\n");
  EXPECT_EQ(Read("Path", "bmp"), "C:\\a");
}

TEST_F(ProfileFilesTest, TheFirstMatchCounts) {
  Files.Put(kPath, "[a]\r\nk=1\r\nk=2\r\n[b]\r\nk=3\r\n[a]\r\nk=4\r\nlate=5\r\n");
  EXPECT_EQ(Read("a", "k"), "1");
  EXPECT_EQ(Read("b", "k"), "3");
  EXPECT_EQ(Read("a", "late"), "");
}

TEST_F(ProfileFilesTest, SpaceAroundKeyAndValueFallsAway) {
  Files.Put(kPath, "  [ s ]  \n \t key \t =  the value \t\n");
  EXPECT_EQ(Read("s", "key"), "the value");
  EXPECT_EQ(Read(" s ", " key "), "the value");
}

TEST_F(ProfileFilesTest, OnePairOfQuotesFallsAway) {
  Files.Put(kPath, "[s]\na=\" x \"\nb=' y '\nc=\"\"z\"\"\nd=\"w'\ne=\"\nf=\"\"\n");
  EXPECT_EQ(Read("s", "a"), " x ");
  EXPECT_EQ(Read("s", "b"), " y ");
  EXPECT_EQ(Read("s", "c"), "\"z\"");
  EXPECT_EQ(Read("s", "d"), "\"w'");
  EXPECT_EQ(Read("s", "e"), "\"");
  EXPECT_EQ(Read("s", "f"), "");
}

TEST_F(ProfileFilesTest, AValueIsCutToItsBuffer) {
  Files.Put(kPath, "[s]\nk=" + std::string(400, 'x') + "\n");
  EXPECT_EQ(Read("s", "k").size(), 285U);
  EXPECT_EQ(Read("s", "k", 50).size(), 49U);
  EXPECT_EQ(Read("s", "k", 1), "");
  EXPECT_EQ(Read("s", "k", 0), "");
}

TEST_F(ProfileFilesTest, CommentsAndLinesWithoutEqualsAreNothing) {
  Files.Put(kPath, "[s]\n;k=1\n  ; k=2\nk\nk=3\n");
  EXPECT_EQ(Read("s", "k"), "3");
  EXPECT_EQ(Read("s", ";k"), "");
}

TEST_F(ProfileFilesTest, KeysOutsideOfSectionsAreNothing) {
  Files.Put(kPath, "k=1\n[s]\n");
  EXPECT_EQ(Read("s", "k"), "");
  EXPECT_EQ(Read("", "k"), "");
}

TEST_F(ProfileFilesTest, TheValueBeginsAtTheFirstEquals) {
  Files.Put(kPath, "[s]\nk=a=b\n=c\n");
  EXPECT_EQ(Read("s", "k"), "a=b");
}

TEST_F(ProfileFilesTest, BadFilesAreHarmless) {
  for (const std::string_view bytes :
       {std::string_view("\0\0[s\0]\nk", 9), std::string_view("[s"), std::string_view("[s]k=1"),
        std::string_view("]["), std::string_view("[]\n=\n"), std::string_view("\r\r\n\n\r")}) {
    Files.Put(kPath, std::string(bytes));
    EXPECT_EQ(Read("s", "k"), "");
  }
  Files.Put(kPath, std::string("[s]\nk=ab\0cd\n", 12));
  EXPECT_EQ(Read("s", "k"), "ab");
}

TEST_F(ProfileFilesTest, AnyLineEndIsALineEnd) {
  Files.Put(kPath, "[s]\ra=1\rb=2\nc=3");
  EXPECT_EQ(Read("s", "a"), "1");
  EXPECT_EQ(Read("s", "b"), "2");
  EXPECT_EQ(Read("s", "c"), "3");
}

TEST_F(ProfileFilesTest, WritingMakesFileAndSection) {
  EXPECT_TRUE(Profiles.Write(kPath, "Paths", "OpenDlg", "C:\\a b"));
  EXPECT_EQ(Bytes(), "[Paths]\r\nOpenDlg=C:\\a b\r\n");
  EXPECT_EQ(Read("paths", "opendlg"), "C:\\a b");
}

TEST_F(ProfileFilesTest, WritingKeepsTheRestByteForByte) {
  Files.Put(kPath, "; note\n\n[s]\n Key = old ; x\r\nother=1\n\n[t]\nkey=2");
  EXPECT_TRUE(Profiles.Write(kPath, "S", "KEY", "new"));
  EXPECT_EQ(Bytes(), "; note\n\n[s]\n Key =new\r\nother=1\n\n[t]\nkey=2");
}

TEST_F(ProfileFilesTest, ANewKeyGoesToTheEndOfItsSection) {
  Files.Put(kPath, "[s]\na=1\n\n[t]\nb=2");
  EXPECT_TRUE(Profiles.Write(kPath, "s", "c", "3"));
  EXPECT_EQ(Bytes(), "[s]\na=1\nc=3\r\n\n[t]\nb=2");
  EXPECT_TRUE(Profiles.Write(kPath, "t", "d", "4"));
  EXPECT_EQ(Bytes(), "[s]\na=1\nc=3\r\n\n[t]\nb=2\r\nd=4\r\n");
}

TEST_F(ProfileFilesTest, ANewSectionGoesToTheEnd) {
  Files.Put(kPath, "[s]\na=1");
  EXPECT_TRUE(Profiles.Write(kPath, "t", "b", "2"));
  EXPECT_EQ(Bytes(), "[s]\na=1\r\n[t]\r\nb=2\r\n");
}

TEST_F(ProfileFilesTest, AnEmptyValueStaysAKey) {
  EXPECT_TRUE(Profiles.Write(kPath, "s", "k", ""));
  EXPECT_TRUE(Profiles.Write(kPath, "s", "k", "v"));
  EXPECT_EQ(Bytes(), "[s]\r\nk=v\r\n");
}

TEST_F(ProfileFilesTest, AValueCannotBreakTheLine) {
  EXPECT_TRUE(Profiles.Write(kPath, "s", "k", "a\r\nz=1"));
  EXPECT_EQ(Bytes(), "[s]\r\nk=a\r\n");
}

TEST_F(ProfileFilesTest, TrailingBlanksSurviveOnlyBehindAMark) {
  Profiles.Write(kPath, "s", "k", "1  \x8D");
  EXPECT_EQ(Read("s", "k", 50), "1  \x8D");
}

TEST_F(ProfileFilesTest, AFailedWriteAnswersFalse) {
  Files.SetReadOnly(true);
  EXPECT_FALSE(Profiles.Write(kPath, "s", "k", "v"));
}

TEST_F(ProfileFilesTest, AFileThatCannotBeReadIsNotOverwritten) {
  Files.Put(kPath, "[s]\nk=1\n");
  Files.FailAtStep(1);
  EXPECT_FALSE(Profiles.Write(kPath, "s", "k", "2"));
  EXPECT_EQ(Bytes(), "[s]\nk=1\n");
}

}  // namespace
}  // namespace tarnwick
