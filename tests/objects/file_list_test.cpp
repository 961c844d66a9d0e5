#include <gtest/gtest.h>

#include "fakes/object_program.h"

namespace tarnwick::objects {
namespace {

/// A program with the list L and lines that print it, in a folder with three files and a folder.
class FileListProgram : public test::ObjectProgram {
 public:
  explicit FileListProgram(const std::string& text)
      : ObjectProgram(
            "DIM L AS QFILELISTBOX\nSUB Show\nDIM k AS INTEGER\n"
            "FOR k = 0 TO L.ItemCount - 1\nPRINT L.Item(k); \" \";\nNEXT\nPRINT\n"
            "END SUB\n" +
            text) {
    for (const char* const name : {"b.txt", "A.bas", "c.TXT", "sub\\d.txt"}) {
      Files.Add("C:\\work\\" + std::string(name), "x");
    }
  }
};

TEST(FileLists, HaveTheFilesOfTheCurrentFolderByName) {
  EXPECT_EQ(FileListProgram("PRINT L.Directory\nShow").Run(), "C:\\work\nA.bas b.txt c.TXT \n");
}

TEST(FileLists, ShowAnotherFolder) {
  EXPECT_EQ(FileListProgram("L.Directory = \"C:\\work\\sub\\\"\nPRINT L.Directory\nShow\n"
                            "L.Directory = \"..\"\nPRINT L.ItemCount\n"
                            "L.Directory = \"sub\"\nPRINT L.Directory; L.ItemCount")
                .Run(),
            "C:\\work\\sub\nd.txt \n0\nC:\\work\\sub1\n");
}

TEST(FileLists, AFolderThatIsNotThereHasNoFilesAndANote) {
  FileListProgram program("L.Directory = \"C:\\none\"\nPRINT L.ItemCount");
  EXPECT_EQ(program.Run(), "0\n");
  ASSERT_EQ(program.Result.Notes.size(), 1U);
  EXPECT_EQ(program.Result.Notes[0].Text, "L: there is no folder C:\\none");
}

TEST(FileLists, MasksChooseTheFiles) {
  EXPECT_EQ(FileListProgram("L.Mask = \"*.txt\"\nShow\nL.Mask = \"*.bas; *.txt\"\nShow\n"
                            "L.Mask = \"*.bas;*.bas\"\nShow\nL.Mask = \"\"\nShow")
                .Run(),
            "b.txt c.TXT \nA.bas b.txt c.TXT \nA.bas \nA.bas b.txt c.TXT \n");
}

TEST(FileLists, KindsOfFilesComeAndGo) {
  EXPECT_EQ(FileListProgram("L.AddFileTypes(4)\nShow\nL.DelFileTypes(4, 6)\nShow\n"
                            "L.AddFileTypes(5, 99, -1)\nShow")
                .Run(),
            "[..] [sub] A.bas b.txt c.TXT \n\nA.bas b.txt c.TXT \n");
}

TEST(FileLists, TheFileThatIsPickedHasAFullPath) {
  EXPECT_EQ(FileListProgram("PRINT \"<\"; L.FileName; \">\"; L.ItemIndex\nL.ItemIndex = 1\n"
                            "PRINT L.FileName; L.Selected(1)\nL.AddFileTypes(4)\n"
                            "L.ItemIndex = 1\nPRINT L.FileName")
                .Run(),
            "<>-1\nC:\\work\\b.txt1\nC:\\work\\sub\n");
}

TEST(FileLists, AFileNamePicksItsEntryAndItsFolder) {
  EXPECT_EQ(
      FileListProgram("L.FileName = \"B.TXT\"\nPRINT L.ItemIndex; L.FileName\n"
                      "L.FileName = \"C:\\work\\sub\\d.txt\"\nPRINT L.ItemIndex; L.Directory\n"
                      "L.FileName = \"none\"\nPRINT L.ItemIndex\n"
                      "L.FileName = \"C:\\work\\*.bas\"\nPRINT L.Mask; L.ItemCount")
          .Run(),
      "1C:\\work\\b.txt\n0C:\\work\\sub\n-1\n*.bas1\n");
}

TEST(FileLists, UpdateReadsTheFolderAgain) {
  EXPECT_EQ(FileListProgram("PRINT L.ItemCount;\nKILL \"b.txt\"\nPRINT L.ItemCount;\nL.Update\n"
                            "PRINT L.ItemCount")
                .Run(),
            "332\n");
}

TEST(FileLists, APickByTheUserIsAClick) {
  FileListProgram program(
      "DIM F AS QFORM\nL.Parent = F\nSUB Picked\nPRINT L.FileName\nEND SUB\nL.OnClick = Picked\n"
      "F.ShowModal");
  program.Then(
      [&] { program.World->UserSet(program.Id("L"), Word::ItemIndex, Value::Integer(2)); });
  EXPECT_EQ(program.Run(), "C:\\work\\c.TXT\n");
}

}  // namespace
}  // namespace tarnwick::objects
