#include "project/save_project.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/fake_project.h"
#include "persistence/project_index.h"
#include "text/path_text.h"

namespace tarnwick::test {

using namespace project;

namespace {

using Log = std::vector<std::string>;
constexpr const char* kProject = "C:\\Work\\Demo.tnp";

/// A project of so many forms, each with its file in the project's folder.
void AddForms(FakeProject& project, int count) {
  for (int i = 1; i <= count; ++i) {
    const BuiltForm form = project.Builder.AddForm();
    form.Record().FileName = "C:\\Work\\f" + std::to_string(i) + ".ftn";
  }
}

TEST(ProjectWriter, TheIndexListsEachFormThenTheMainForm) {
  FakeProject project;
  AddForms(project, 2);
  project.Tables.MainFormName = "Form2 (f2.ftn)";
  EXPECT_EQ(ProjectIndexText(project.Tables, FolderOf(project.Tables.ProjectFile)),
            "1\x95"
            "f1.ftn\r\n2\x95"
            "f2.ftn\r\nMF##Form2 (f2.ftn)\r\n");
}

TEST(ProjectWriter, ARemovedFormHasNoLineAndTheNumbersKeepTheirGaps) {
  FakeProject project;
  AddForms(project, 3);
  project.Builder.Form(2).Remove();
  EXPECT_EQ(ProjectIndexText(project.Tables, FolderOf(project.Tables.ProjectFile)),
            "1\x95"
            "f1.ftn\r\n3\x95"
            "f3.ftn\r\nMF##Form1 ()\r\n");
  ASSERT_TRUE(SaveProject(project.Context, kProject));
  EXPECT_FALSE(project.Ports.Files.Exists("C:\\Work\\f2.ftn"));
}

TEST(ProjectWriter, AFormInTheProjectsFolderIsBareAndOneElsewhereIsNamedInFull) {
  FakeProject project;
  AddForms(project, 3);
  project.Form(1).FileName = "c:\\WORK\\One.ftn";
  project.Form(2).FileName = "C:\\Work\\sub\\two.ftn";
  project.Form(3).FileName = "C:\\three.ftn";
  EXPECT_EQ(ProjectIndexText(project.Tables, FolderOf(project.Tables.ProjectFile)),
            "1\x95One.ftn\r\n2\x95"
            "C:\\Work\\sub\\two.ftn\r\n3\x95"
            "C:\\three.ftn\r\n"
            "MF##Form1 ()\r\n");
}

TEST(ProjectWriter, TheFolderThatCountsIsThatOfTheFileBeingSaved) {
  FakeProject project;
  AddForms(project, 1);
  ASSERT_TRUE(SaveProject(project.Context, "D:\\New\\p.tnp"));
  EXPECT_EQ(project.Ports.Files.Bytes("D:\\New\\p.tnp"),
            "1\x95"
            "C:\\Work\\f1.ftn\r\nMF##Form1 ()\r\n");
}

TEST(ProjectWriter, TheShortIndexNamesEveryFormInFullAndNothingElse) {
  FakeProject project;
  AddForms(project, 2);
  project.Builder.Form(1).Remove();
  EXPECT_EQ(ShortProjectIndexText(project.Tables), "C:\\Work\\f1.ftn\r\nC:\\Work\\f2.ftn\r\n");
}

TEST(ProjectWriter, SavingGoesThroughItsStepsInOrder) {
  FakeProject project;
  AddForms(project, 3);
  project.Builder.Form(2).Remove();
  project.Tables.CurrentForm = &project.User(3);
  project.Ports.Log.Clear();
  EXPECT_TRUE(SaveProject(project.Context, kProject));
  EXPECT_EQ(project.Ports.Log.Entries(),
            (Log{"hide", "activate 1", "replace C:\\Work\\f1.ftn", "activate 3",
                 "replace C:\\Work\\f3.ftn", "replace C:\\Work\\Demo.tnp", "container",
                 "activate 3", "list"}));
}

TEST(ProjectWriter, AFormWithoutAFileIsAskedForInItsTurn) {
  FakeProject project;
  AddForms(project, 2);
  project.Form(1).FileName.clear();
  project.Ports.Dialogs.SaveAnswers.push_back("C:\\Work\\new");
  project.Ports.Log.Clear();
  EXPECT_TRUE(SaveProject(project.Context, kProject));
  EXPECT_EQ(project.Form(1).FileName, "C:\\Work\\new.ftn");
  EXPECT_EQ(project.Ports.Log.Entries(),
            (Log{"hide", "activate 1", "hide", "activate 1", "dialog save",
                 "replace C:\\Work\\new.ftn", "activate 2", "replace C:\\Work\\f2.ftn",
                 "replace C:\\Work\\Demo.tnp", "container", "activate 1", "list"}));
  EXPECT_EQ(project.Ports.Files.Bytes(kProject),
            "1\x95new.ftn\r\n2\x95"
            "f2.ftn\r\nMF##Form1 ()\r\n");
  EXPECT_EQ(project.Tables.ListaFrms.Lines().at(0).Text, "Form1 (new.ftn)");
}

TEST(ProjectWriter, ACancelledFormDialogWritesTheRestAndDoesNotCountAsSaved) {
  FakeProject project;
  AddForms(project, 2);
  project.Form(1).FileName.clear();
  EXPECT_FALSE(SaveProject(project.Context, kProject));
  EXPECT_EQ(project.Form(1).FileName, "");
  EXPECT_TRUE(project.Ports.Files.Exists("C:\\Work\\f2.ftn"));
  EXPECT_EQ(project.Ports.Files.Bytes(kProject),
            "1\x95\r\n2\x95"
            "f2.ftn\r\nMF##Form1 ()\r\n");
  EXPECT_EQ(project.Ports.Log.Count("show"), 0U);
}

TEST(ProjectWriter, AFileThatCannotBeWrittenKeepsItsOldBytesAndTheRestIsSaved) {
  // Two form files and the index, which is read first: whichever fails, the other two are written.
  const std::string old =
      "1\x95"
      "f1.ftn\r\n";
  const std::vector<std::pair<int, std::string>> steps{
      {1, "C:\\Work\\f1.ftn"}, {2, "C:\\Work\\f2.ftn"}, {4, kProject}};
  for (const auto& [step, failing] : steps) {
    FakeProject project;
    AddForms(project, 2);
    for (const auto& [any, file] : steps) project.Ports.Files.Put(file, old);
    project.Ports.Files.FailAtStep(step);
    const WriteOutcome outcome = SaveProject(project.Context, kProject);
    EXPECT_FALSE(outcome);
    EXPECT_EQ(outcome.Failed, failing);
    for (const auto& [any, file] : steps) {
      EXPECT_EQ(project.Ports.Files.Bytes(file) == old, file == failing) << file;
    }
    // Nothing is reported, and the container shows again.
    EXPECT_EQ(project.Ports.Log.Count("show"), 0U);
    EXPECT_EQ(project.Ports.Log.Count("container"), 1U);
  }
}

TEST(ProjectWriter, OnAWriteProtectedDiskNothingChanges) {
  FakeProject project;
  AddForms(project, 2);
  project.Ports.Files.SetReadOnly(true);
  EXPECT_FALSE(SaveProject(project.Context, kProject));
  EXPECT_EQ(project.Ports.Files.Count(), 0U);
}

TEST(ProjectWriter, AFailedWriteNamesTheFileAndTheReason) {
  FakeProject project;
  AddForms(project, 1);
  project.Ports.Files.SetReadOnly(true);
  const WriteOutcome outcome = SaveProject(project.Context, kProject);
  EXPECT_EQ(outcome.Failed, "C:\\Work\\f1.ftn");
  EXPECT_EQ(outcome.Reason, "Read-only file system");
  EXPECT_FALSE(outcome.Cancelled);
}

TEST(ProjectWriter, AnIndexThatNamesAFormWhichCouldNotBeReadIsKeptBesideTheNewOne) {
  FakeProject project;
  AddForms(project, 2);
  const std::string former =
      "1\x95"
      "f1.ftn\r\n2\x95"
      "lost.ftn\r\n";
  project.Ports.Files.Put(kProject, former);
  EXPECT_TRUE(SaveProject(project.Context, kProject));
  EXPECT_EQ(project.Ports.Files.Bytes(std::string(kProject) + ".bak"), former);
  // The next save finds nothing that it leaves out.
  project.Ports.Files.Put(std::string(kProject) + ".bak", "untouched");
  EXPECT_TRUE(SaveProject(project.Context, kProject));
  EXPECT_EQ(project.Ports.Files.Bytes(std::string(kProject) + ".bak"), "untouched");
}

TEST(ProjectWriter, AFormThatTheUserRemovedKeepsNoFormerIndex) {
  FakeProject project;
  AddForms(project, 2);
  ASSERT_TRUE(SaveProject(project.Context, kProject));
  project.Builder.Form(2).Remove();
  ASSERT_TRUE(SaveProject(project.Context, kProject));
  EXPECT_FALSE(project.Ports.Files.Exists(std::string(kProject) + ".bak"));
}

TEST(ProjectWriter, AnIndexWhoseCopyCannotBeWrittenStays) {
  FakeProject project;
  AddForms(project, 1);
  const std::string former =
      "1\x95"
      "lost.ftn\r\n";
  project.Ports.Files.Put(kProject, former);
  project.Ports.Files.FailAtStep(3);
  const WriteOutcome outcome = SaveProject(project.Context, kProject);
  EXPECT_EQ(outcome.Failed, std::string(kProject) + ".bak");
  EXPECT_EQ(project.Ports.Files.Bytes(kProject), former);
}

TEST(ProjectWriter, AFormWithoutAFileNameCannotBeWritten) {
  FakeProject project;
  AddForms(project, 1);
  project.Form().FileName.clear();
  EXPECT_FALSE(WriteFormFile(project.Context, 1));
  EXPECT_FALSE(WriteFormFile(project.Context, 0));
  EXPECT_FALSE(WriteFormFile(project.Context, 2));
  EXPECT_EQ(project.Ports.Files.Count(), 0U);
}

TEST(ProjectWriter, WritingAFormPutsItsTextIntoItsFileAndLetsTheWindowsRepaint) {
  FakeProject project;
  AddForms(project, 1);
  EXPECT_TRUE(WriteFormFile(project.Context, 1));
  EXPECT_EQ(project.Ports.Files.Bytes("C:\\Work\\f1.ftn"), FormFileText(project.Tables, 1));
  EXPECT_GE(project.Ports.Screen.Yields, 1);
}

TEST(ProjectWriter, AFormWhoseWindowIsMissingIsNeverAnEmptyFile) {
  FakeProject project;
  AddForms(project, 1);
  project.Tables.FormsUser[1].reset();
  EXPECT_TRUE(WriteFormFile(project.Context, 1));
  EXPECT_EQ(project.Ports.Files.Bytes("C:\\Work\\f1.ftn")->substr(0, 6), "[Form]");
}

TEST(ProjectWriter, ACaptionWithACommaComesBackAsItWas) {
  FakeProject project;
  AddForms(project, 1);
  project.Builder.Form(1).Add(Kind::Label, "L").Control.Caption = "one, two";
  ASSERT_TRUE(SaveProject(project.Context, kProject));
  EXPECT_NE(project.Ports.Files.Bytes("C:\\Work\\f1.ftn")->find("String<one\x8D two>String"),
            std::string::npos);
  ASSERT_TRUE(LoadProject(project.Context, kProject));
  EXPECT_EQ(project.Control(Kind::Label).Caption, "one, two");
}

TEST(ProjectWriter, CodeOfSeveralLinesStaysOnOneAndABulletInItComesBackBroken) {
  FakeProject project;
  AddForms(project, 1);
  project.Builder.Form(1).Add(Kind::Button, "B").Code(Event::OnClick, "a\r\nb \x95 c");
  ASSERT_TRUE(SaveProject(project.Context, kProject));
  EXPECT_NE(project.Ports.Files.Bytes("C:\\Work\\f1.ftn")
                ->find("Click<a\x95"
                       "b \x95 c>Click"),
            std::string::npos);
  ASSERT_TRUE(LoadProject(project.Context, kProject));
  EXPECT_EQ(project.Code("Form1.Button1.OnClick"), "a\r\nb \r\n c");
}

TEST(ProjectWriter, AValueWithAClosingTagInItIsNotStoredSafely) {
  FakeProject project;
  AddForms(project, 1);
  project.Builder.Form(1).Add(Kind::Button, "B").Code(Event::OnClick, "x = \">Click\" + y");
  ASSERT_TRUE(SaveProject(project.Context, kProject));
  ASSERT_TRUE(LoadProject(project.Context, kProject));
  EXPECT_EQ(project.Code("Form1.Button1.OnClick"), "x = \"");
}

}  // namespace
}  // namespace tarnwick::test
