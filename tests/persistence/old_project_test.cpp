#include "persistence/old_project.h"

#include <string>

#include <gtest/gtest.h>

#include "fakes/fake_project.h"
#include "project/convert_project.h"

namespace tarnwick::test {
namespace {

/// One converted line.
std::string Converted(const std::string& line) {
  const std::string text = ConvertOldText(line);
  return text.substr(0, text.size() - 2);
}

TEST(OldProject, TheNumberOfANameGoesIntoTheBrackets) {
  EXPECT_EQ(Converted("[Button](Button12)  Left<1>Left"), "[Button](12) {Button12}   Left<1>Left");
  EXPECT_EQ(Converted("[Label](Label007) x"), "[Label](7) {Label007}  x");
}

TEST(OldProject, ANumberThatIsMissingOrNoughtBecomesOne) {
  EXPECT_EQ(Converted("[Button](Start) x"), "[Button](1) {Start}  x");
  EXPECT_EQ(Converted("[Button](Start0) x"), "[Button](1) {Start0}  x");
  EXPECT_EQ(Converted("[Button]() x"), "[Button](1) {}  x");
  EXPECT_EQ(Converted("[Button](a1b) x"), "[Button](1) {a1b}  x");
}

TEST(OldProject, FormsHaveNoNumber) {
  EXPECT_EQ(Converted("[Form](Form3)  Left<1>Left"), "[Form] {Form3}   Left<1>Left");
}

TEST(OldProject, ImagesGetTheImageWord) {
  EXPECT_EQ(Converted("[images](Pic2) x"), "[Image](2) {Pic2}  x");
  EXPECT_EQ(Converted("[IMAGE](Pic) x"), "[Image](1) {Pic}  x");
}

TEST(OldProject, FileStreamsAndFramesHaveNoBracketPart) {
  EXPECT_EQ(Converted("[FileStream](FileStr4) x"), "[FileStream] {FileStr4}  x");
  EXPECT_EQ(Converted("[TransparentFrame](T1) x"), "[TransparentFrame] {T1}  x");
}

TEST(OldProject, MenuItemsLoseTheirPrefix) {
  EXPECT_EQ(Converted("[MenuItem](Item(mnuNew) Click<a>Click"),
            "[MenuItem] {mnuNew}  Click<a>Click");
  EXPECT_EQ(Converted("[itemmenu](mnuNew) Click<a>Click"), "[itemmenu] {mnuNew}  Click<a>Click");
  EXPECT_EQ(Converted("[ItemMenu](Item(mnuSub) Click<a>Click"),
            "[ItemMenu] {mnuSub}  Click<a>Click");
  // Only these two kinds have the prefix.
  EXPECT_EQ(Converted("[Menu](Item(x) String<a>String"), "[Menu](1) {Item(x}  String<a>String");
  EXPECT_EQ(Converted("[Form](Item(x) a"), "[Form] {Item(x}  a");
  EXPECT_EQ(Converted("[Image](Item(1) a"), "[Image](1) {Item(1}  a");
  EXPECT_EQ(Converted("[Images](Item(2) a"), "[Image](2) {Item(2}  a");
  EXPECT_EQ(Converted("[FileStream](Item(2) a"), "[FileStream] {Item(2}  a");
  EXPECT_EQ(Converted("[TransparentFrame](Item(3) a"), "[TransparentFrame] {Item(3}  a");
}

TEST(OldProject, DeclarationsAndLinesWithoutAHeadAreCarriedOver) {
  for (const char* line : {"[DeclarePbl] String<Dim a(3)>String", "", "just text", "[Button] x",
                           "(Name) x", "]Button[(a)", "[Button])a("}) {
    EXPECT_EQ(Converted(line), line);
  }
}

TEST(OldProject, EveryLineIsWrittenInOrderTheLastEmptyOneToo) {
  EXPECT_EQ(ConvertOldText("[Form](F)\r\n\r\n[DeclarePbl] x\r\n"),
            "[Form] {F} \r\n\r\n[DeclarePbl] x\r\n\r\n");
}

TEST(OldProject, ConvertingWritesAProjectOfOneFormBesideTheOldFile) {
  FakeProject project;
  project.Ports.Files.Put("C:\\Work\\old.ptn", "[Form](F)\r\n");
  EXPECT_EQ(project::ConvertOldProject(project.Ports.Files, "C:\\Work\\old.ptn"),
            "C:\\Work\\old.tnp");
  EXPECT_EQ(project.Ports.Files.Bytes("C:\\Work\\old.tnp"),
            "1\x95old.ftn\r\nMF##Form (old.ftn)\r\n");
  EXPECT_EQ(project.Ports.Files.Bytes("C:\\Work\\old.ftn"), "[Form] {F} \r\n\r\n");
  EXPECT_EQ(project.Ports.Files.Bytes("C:\\Work\\old.ptn"), "[Form](F)\r\n");
}

TEST(OldProject, APathWithADotInAFolderIsCutThere) {
  FakeProject project;
  project.Ports.Files.Put("C:\\v1.0\\old.ptn", "[Form](F)\r\n");
  EXPECT_EQ(project::ConvertOldProject(project.Ports.Files, "C:\\v1.0\\old.ptn"), "C:\\v1.tnp");
  EXPECT_TRUE(project.Ports.Files.Exists("C:\\v1.ftn"));
}

TEST(OldProject, AnExistingFormFileIsOverwrittenWithoutAsking) {
  FakeProject project;
  project.Ports.Files.Put("C:\\Work\\old.ptn", "[Form](F)\r\n");
  project.Ports.Files.Put("C:\\Work\\old.ftn", "mine");
  project::ConvertOldProject(project.Ports.Files, "C:\\Work\\old.ptn");
  EXPECT_NE(project.Ports.Files.Bytes("C:\\Work\\old.ftn"), "mine");
  EXPECT_EQ(project.Ports.Log.Count("ask"), 0U);
}

TEST(OldProject, AFileThatCannotBeReadOrWrittenGivesNothing) {
  for (int step = 1; step <= 3; ++step) {
    FakeProject project;
    project.Ports.Files.Put("C:\\Work\\old.ptn", "[Form](F)\r\n");
    project.Ports.Files.FailAtStep(step);
    EXPECT_EQ(project::ConvertOldProject(project.Ports.Files, "C:\\Work\\old.ptn"), std::nullopt)
        << step;
  }
  FakeProject project;
  EXPECT_EQ(project::ConvertOldProject(project.Ports.Files, "C:\\Work\\none.ptn"), std::nullopt);
  EXPECT_EQ(project.Ports.Files.Count(), 0U);
}

TEST(OldProject, AConvertedProjectOpens) {
  FakeProject project;
  project.Ports.Files.Put("C:\\Work\\old.ptn",
                          "[Form](Main)  Width<50>Width String<Hi>String\r\n"
                          "[Button](Button2) Left<3>Left Click<a\x95"
                          "b>Click\r\n"
                          "[Images](Pic1) Left<4>Left\r\n[FileStream](Fs) Left<5>Left\r\n"
                          "[MenuItem](Item(mnuNew) Click<n>Click\r\n"
                          "[DeclarePbl] String<Dim x>String\r\n");
  project.Tables.ProjectFile =
      project::ConvertOldProject(project.Ports.Files, "C:\\Work\\old.ptn").value_or("");
  ASSERT_TRUE(project::LoadProject(project.Context, project.Tables.ProjectFile));
  EXPECT_EQ(project.Form().Name, "Main");
  EXPECT_EQ(project.Form().Width, 50);
  EXPECT_EQ(project.Tables.MainFormName, "Form (old.ftn)");
  EXPECT_EQ(project.Code("Form1.Button2.OnClick"), "a\r\nb");
  EXPECT_EQ(project.Control(Kind::Image).Tag, "Pic1");
  EXPECT_EQ(project.Control(Kind::FileStream).Left, 75);
  EXPECT_EQ(project.Code("Form1.mnuNew.OnClick"), "n");
  EXPECT_EQ(project.Form().DeclarePbl, "Dim x");
}

}  // namespace
}  // namespace tarnwick::test
