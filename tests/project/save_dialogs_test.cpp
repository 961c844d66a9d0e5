#include "project/save_dialogs.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/fake_project.h"

namespace tarnwick::test {

using namespace project;

namespace {

using Log = std::vector<std::string>;

TEST(SaveFormDialog, AsksWithTheFormsNameInTheProjectsFolder) {
  FakeProject project;
  project.Builder.AddForm("Main");
  project.Ports.Dialogs.SaveAnswers.push_back("C:\\Else\\x.FTN");
  EXPECT_TRUE(SaveFormDialog(project.Context, 1));
  const FileDialogRequest& request = project.Ports.Dialogs.LastRequest;
  EXPECT_EQ(request.Title, "Save Form");
  EXPECT_EQ(request.Filter, "Form (*.ftn)|*.ftn|All Files|*.*");
  EXPECT_EQ(request.StartFolder, "C:\\Work\\");
  EXPECT_EQ(request.StartName, "Main.ftn");
  EXPECT_EQ(project.Form().FileName, "C:\\Else\\x.FTN");
  EXPECT_EQ(project.Ports.Log.Entries(), (Log{"hide", "activate 1", "dialog save"}));
}

TEST(SaveFormDialog, AddsTheExtensionWhereItLacks) {
  FakeProject project;
  project.Builder.AddForm();
  project.Ports.Dialogs.SaveAnswers.push_back("C:\\Work\\a.txt");
  EXPECT_TRUE(SaveFormDialog(project.Context, 1));
  EXPECT_EQ(project.Form().FileName, "C:\\Work\\a.txt.ftn");
}

TEST(SaveFormDialog, CancelLeavesTheFormWithoutAFile) {
  FakeProject project;
  project.Builder.AddForm();
  EXPECT_FALSE(SaveFormDialog(project.Context, 1));
  EXPECT_EQ(project.Form().FileName, "");
}

TEST(SaveFormDialog, YesReplacesAnExistingFile) {
  FakeProject project;
  project.Builder.AddForm();
  project.Ports.Files.Put("C:\\Work\\a.ftn", "old");
  project.Ports.Dialogs.SaveAnswers.push_back("C:\\Work\\a.ftn");
  project.Ports.Messages.Answers.push_back(true);
  EXPECT_TRUE(SaveFormDialog(project.Context, 1));
  EXPECT_EQ(project.Form().FileName, "C:\\Work\\a.ftn");
  EXPECT_EQ(project.Ports.Log.Entries().back(),
            "ask The File C:\\Work\\a.ftn\r\nalready exists. Replace it?");
  EXPECT_EQ(project.Ports.Messages.LastTitle, "Tarnwick");
}

TEST(SaveFormDialog, NoAsksAgain) {
  FakeProject project;
  project.Builder.AddForm();
  project.Ports.Files.Put("C:\\Work\\a.ftn", "old");
  project.Ports.Dialogs.SaveAnswers = {"C:\\Work\\a.ftn", "C:\\Work\\b.ftn"};
  project.Ports.Messages.Answers.push_back(false);
  EXPECT_TRUE(SaveFormDialog(project.Context, 1));
  EXPECT_EQ(project.Form().FileName, "C:\\Work\\b.ftn");
  EXPECT_EQ(project.Ports.Log.Count("dialog save"), 2U);
}

TEST(SaveFormDialog, NoAndThenCancelLeavesTheFormWithoutAFile) {
  FakeProject project;
  project.Builder.AddForm();
  project.Ports.Files.Put("C:\\Work\\a.ftn", "old");
  project.Ports.Dialogs.SaveAnswers.push_back("C:\\Work\\a.ftn");
  EXPECT_FALSE(SaveFormDialog(project.Context, 1));
  EXPECT_EQ(project.Form().FileName, "");
  EXPECT_EQ(project.Ports.Files.Bytes("C:\\Work\\a.ftn"), "old");
}

TEST(SaveFormDialog, ThereIsNoneForANumberThatIsNotInUse) {
  FakeProject project;
  project.Builder.AddForm();
  EXPECT_FALSE(SaveFormDialog(project.Context, 0));
  EXPECT_FALSE(SaveFormDialog(project.Context, 2));
  EXPECT_TRUE(project.Ports.Log.Entries().empty());
}

TEST(FormListEntry, TakesTheNewNameAndKeepsTheFileUntilItChanges) {
  FakeProject project;
  project.Load("[Form](1) {F}\r\n");
  project.Form().Name = "Renamed";
  RefreshFormListEntry(project.Context, 1);
  EXPECT_EQ(project.Tables.ListaFrms.Lines().at(0).Text, "Renamed (a.ftn)");
  project.Form().FileName = "D:\\x\\other.ftn";
  RefreshFormListEntry(project.Context, 1);
  EXPECT_EQ(project.Tables.ListaFrms.Lines().at(0).Text, "Renamed (other.ftn)");
}

TEST(FormListEntry, AFormSavedIntoAnotherFolderIsListedByFullPathInTheNextIndex) {
  FakeProject project;
  project.Builder.AddForm();
  project.Ports.Dialogs.SaveAnswers.push_back("C:\\Else\\x.ftn");
  ASSERT_TRUE(SaveProject(project.Context, project.Tables.ProjectFile));
  EXPECT_EQ(project.Ports.Files.Bytes(project.Tables.ProjectFile),
            "1\x95"
            "C:\\Else\\x.ftn\r\nMF##Form1 ()\r\n");
  EXPECT_EQ(project.Tables.ListaFrms.Lines().at(0).Text, "Form1 (x.ftn)");
}

}  // namespace
}  // namespace tarnwick::test
