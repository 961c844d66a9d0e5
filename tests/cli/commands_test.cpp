#include "cli/commands.h"

#include <gtest/gtest.h>

#include "cli/project_folder.h"
#include "text/path_text.h"

namespace tarnwick {
namespace {

using test::Call;
using test::CallResult;
using test::ProjectFolder;

constexpr const char* kForm =
    "[Form](1) {Form1}  Width<320>Width Height<240>Height Image<(Default)>Image "
    "Icon<(Default)>Icon String<One>String\r\n"
    "[Button] (1) {Ok} Left<10>Left Top<10>Top Width<75>Width Height<25>Height String<Ok>String "
    "Image<(None)>Image Click<Form1.Close>Click\r\n";

/// A project of that form alone.
std::string PutProject(const ProjectFolder& folder) {
  folder.Put("f.ftn", kForm);
  return folder.Put("p.tnp",
                    "1\x95"
                    "f.ftn\r\n");
}

TEST(GenerateTest, WritesTheSourceToStandardOutput) {
  const ProjectFolder folder;
  folder.Put("f.ftn", kForm);
  const CallResult result = Call({"generate",
                                  folder.Put("p.tnp",
                                             "1\x95"
                                             "f.ftn\r\nMF##Form1 (f.ftn)\r\n"),
                                  "--program-folder", "C:\\Tarnwick"});
  EXPECT_EQ(result.Exit, 0);
  EXPECT_EQ(result.Err, "");
  EXPECT_EQ(result.Out.find("Dim Font As QFont\r\nDim Form1 As QForm\r\nDim Ok As QButton\r\n"),
            0U);
  EXPECT_NE(result.Out.find("$Include \"C:\\Tarnwick\\Tarnwick1.lib\"\r\n"), std::string::npos);
  EXPECT_NE(result.Out.find("Sub Ok_OnClick\r\nForm1.Close\r\nEnd Sub\r\n"), std::string::npos);
}

TEST(GenerateTest, WritesTheSameBytesToAFile) {
  const ProjectFolder folder;
  const std::string project = PutProject(folder);
  const std::string out = folder.PathOf("out.com");
  EXPECT_EQ(Call({"generate", project, "-o", out}).Exit, 0);
  EXPECT_EQ(folder.Bytes("out.com"), Call({"generate", project}).Out);
}

TEST(GenerateTest, AProjectThatCannotBeReadLeavesNoFile) {
  const ProjectFolder folder;
  const CallResult result =
      Call({"generate", folder.PathOf("none.tnp"), "-o", folder.PathOf("out.com")});
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Err, "tarnwick-cli: cannot read " + folder.PathOf("none.tnp") + "\n");
  EXPECT_FALSE(folder.Has("out.com"));
}

TEST(GenerateTest, AnOutputThatCannotBeWrittenIsToldInOneLine) {
  const ProjectFolder folder;
  const std::string out = folder.PathOf("no/such/folder/out.com");
  const CallResult result = Call({"generate", folder.Put("p.tnp", "MF##Form1 ()\r\n"), "-o", out});
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Err, "tarnwick-cli: cannot write " + out + "\n");
}

TEST(GenerateTest, AFullDeviceIsTold) {
  const ProjectFolder folder;
  const std::string project = PutProject(folder);
  std::FILE* const full = std::fopen("/dev/full", "w");
  ASSERT_NE(full, nullptr);
  const test::TextStream err;
  const ParsedArguments parsed = ParseArguments({"generate", project});
  EXPECT_EQ(CommandRun(std::get<Arguments>(parsed), full, err.File()).Run(), 1);
  EXPECT_EQ(err.Text(), "tarnwick-cli: cannot write to standard output\n");
  std::fclose(full);
}

TEST(GenerateTest, AMissingFormIsNamedAndTheRestGenerated) {
  const ProjectFolder folder;
  folder.Put("f.ftn", kForm);
  const CallResult result = Call({"generate", folder.Put("p.tnp",
                                                         "1\x95"
                                                         "gone.ftn\r\n2\x95"
                                                         "f.ftn\r\n")});
  const std::string path = PathFromNative(folder.PathOf("gone.ftn"));
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Err, "Tarnwick: Error: File ' " + path +
                            " ' does not exist!\ntarnwick-cli: no form was read from " + path +
                            "\n");
  EXPECT_NE(result.Out.find("Dim Form1 As QForm"), std::string::npos);
}

TEST(GenerateTest, AListedFileWithoutAFormRecordIsToldAndTheRestWrittenToTheFile) {
  const ProjectFolder folder;
  folder.Put("f.ftn", kForm);
  folder.Put("empty.ftn", "[Label] (1) {L}\r\n");
  const CallResult result = Call({"generate",
                                  folder.Put("p.tnp",
                                             "1\x95"
                                             "f.ftn\r\n2\x95"
                                             "empty.ftn\r\n"),
                                  "-o", folder.PathOf("out.com")});
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Err, "tarnwick-cli: no form was read from " +
                            PathFromNative(folder.PathOf("empty.ftn")) + "\n");
  EXPECT_NE(folder.Bytes("out.com").find("Dim Form1 As QForm"), std::string::npos);
}

TEST(GenerateTest, AnIndexOfOtherBytesIsToldByItsExit) {
  const ProjectFolder folder;
  const CallResult result =
      Call({"generate", folder.Put("p.tnp", std::string("\x7F"
                                                        "ELF\x02\0\x01\r\n\x90\xFE",
                                                        12))});
  EXPECT_EQ(result.Exit, 1);
  EXPECT_NE(result.Err.find("no form was read from"), std::string::npos);
  EXPECT_NE(result.Out.find("Dim Form1 As QForm"), std::string::npos);
}

TEST(GenerateTest, AFormListedTwiceIsRefusedOnce) {
  const ProjectFolder folder;
  folder.Put("f.ftn", kForm);
  const CallResult result = Call({"generate", folder.Put("p.tnp",
                                                         "1\x95"
                                                         "f.ftn\r\n2\x95"
                                                         "f.ftn\r\n")});
  EXPECT_EQ(result.Exit, 0);
  EXPECT_EQ(result.Err, "Tarnwick: Form1 already exist!\n");
}

TEST(GenerateTest, NothingOfTheProjectOnDiskChanges) {
  const ProjectFolder folder;
  const std::string project = PutProject(folder);
  EXPECT_EQ(Call({"generate", project}).Exit, 0);
  EXPECT_EQ(folder.Bytes("f.ftn"), kForm);
  EXPECT_EQ(folder.Bytes("p.tnp"),
            "1\x95"
            "f.ftn\r\n");
}

TEST(ResaveTest, WritesTheProjectIntoAnotherFolder) {
  const ProjectFolder folder;
  folder.Put("sub/f.ftn", kForm);
  const std::string project = folder.Put("p.tnp", "1\x95sub\\f.ftn\r\nMF##Form1 (f.ftn)\r\n");
  EXPECT_EQ(Call({"resave", project, folder.PathOf("out")}).Exit, 0);
  EXPECT_EQ(folder.Bytes("out/p.tnp"),
            "1\x95"
            "f.ftn\r\nMF##Form1 (f.ftn)\r\n");
  EXPECT_EQ(folder.Bytes("out/f.ftn").find("[Form](1) {Form1}  Left<0>Left   Top<0>Top   "), 0U);
}

TEST(ResaveTest, ASecondResaveGivesTheSameBytes) {
  const ProjectFolder folder;
  const std::string project = PutProject(folder);
  EXPECT_EQ(Call({"resave", project, folder.PathOf("a")}).Exit, 0);
  EXPECT_EQ(Call({"resave", folder.PathOf("a/p.tnp"), folder.PathOf("b")}).Exit, 0);
  EXPECT_EQ(folder.Bytes("a/f.ftn"), folder.Bytes("b/f.ftn"));
  EXPECT_EQ(folder.Bytes("a/p.tnp"), folder.Bytes("b/p.tnp"));
}

TEST(ResaveTest, AFormWithoutAFileStaysWithoutOne) {
  const ProjectFolder folder;
  EXPECT_EQ(Call({"resave", folder.Put("p.tnp", "MF##Form1 ()\r\n"), folder.PathOf("out")}).Exit,
            0);
  EXPECT_EQ(folder.Bytes("out/p.tnp"), "1\x95\r\nMF##Form1 ()\r\n");
}

TEST(ResaveTest, AFolderThatCannotBeMadeIsTold) {
  const ProjectFolder folder;
  const std::string project = PutProject(folder);
  const CallResult result = Call({"resave", project, folder.PathOf("f.ftn")});
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Err,
            "tarnwick-cli: cannot write the project into " + folder.PathOf("f.ftn") + "\n");
}

TEST(ConvertTest, WritesTheNewFilesBesideTheOldOne) {
  const ProjectFolder folder;
  EXPECT_EQ(
      Call({"convert", folder.Put("old.ptn", "[Form](Main) Left<1>Left\r\n[Button](Btn7) x\r\n")})
          .Exit,
      0);
  EXPECT_EQ(folder.Bytes("old.tnp"), "1\x95old.ftn\r\nMF##Form (old.ftn)\r\n");
  EXPECT_EQ(folder.Bytes("old.ftn"), "[Form] {Main}  Left<1>Left\r\n[Button](7) {Btn7}  x\r\n\r\n");
}

TEST(ConvertTest, AnOldFileThatCannotBeReadIsTold) {
  const ProjectFolder folder;
  const CallResult result = Call({"convert", folder.PathOf("none.ptn")});
  EXPECT_EQ(result.Exit, 1);
  EXPECT_EQ(result.Err, "tarnwick-cli: cannot read " + folder.PathOf("none.ptn") + "\n");
  EXPECT_FALSE(folder.Has("none.tnp"));
}

}  // namespace
}  // namespace tarnwick
