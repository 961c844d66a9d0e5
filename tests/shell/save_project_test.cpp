#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

class SaveProjectTest : public ShellTest {
 protected:
  void SetUp() override { Start(); }
};

TEST_F(SaveProjectTest, TheDefaultNameAlwaysShowsTheDialog) {
  main.Commands().Run(Command::Save);
  EXPECT_EQ(log().Count("dialog save"), 1U);
  EXPECT_EQ(ports.Dialogs.LastRequest.Title, "Save Project");
  EXPECT_EQ(ports.Dialogs.LastRequest.Filter, "Tarnwick Project|*.tnp|All Files|*.*");
  EXPECT_EQ(ports.Dialogs.LastRequest.StartFolder, "Z:\\opt\\tarnwick\\");
  EXPECT_EQ(ports.Dialogs.LastRequest.StartName, "UnTitle.tnp");
  main.Commands().Run(Command::Save);
  EXPECT_EQ(log().Count("dialog save"), 2U);
}

TEST_F(SaveProjectTest, CancelEndsTheCommandWithoutChange) {
  const std::string title = view.Title;
  main.Commands().Run(Command::Save);
  EXPECT_EQ(tables().AccionProject, "app");
  EXPECT_EQ(view.Title, title);
  EXPECT_EQ(tables().ProjectFile, "Z:\\opt\\tarnwick\\UnTitle.tnp");
  EXPECT_EQ(log().Count("replace"), 0U);
}

TEST_F(SaveProjectTest, WritesFormsThenIndexAndRemembersTheSave) {
  ports.Dialogs.SaveAnswers = {"Z:\\p\\a.tnp", "Z:\\p\\one.ftn"};
  main.Commands().Run(Command::Save);
  ExpectOrder({"dialog save", "view title Tarnwick - Z:\\p\\a.tnp", "replace Z:\\p\\one.ftn",
               "replace Z:\\p\\a.tnp"});
  EXPECT_EQ(view.Title, "Tarnwick - Z:\\p\\a.tnp");
  EXPECT_EQ(tables().ProjectFile, "Z:\\p\\a.tnp");
  EXPECT_EQ(tables().SourceFile, "Z:\\p\\a.com");
  EXPECT_EQ(tables().ExeFile, "Z:\\p\\a.exe");
  EXPECT_EQ(tables().AccionProject, "save");
  EXPECT_EQ(ports.Files.Bytes("Z:\\p\\a.tnp"), "1\x95one.ftn\r\nMF##Form1 ()\r\n");
  EXPECT_EQ(Lines(), std::vector<std::string>{"Form1 (one.ftn)"});
}

TEST_F(SaveProjectTest, ANamedProjectIsWrittenAtOnceUnderTheTitleItHas) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  ports.Dialogs.OpenAnswers = {"Z:\\p\\a.tnp"};
  main.Commands().Run(Command::Open);
  log().Clear();
  main.Commands().Run(Command::Save);
  EXPECT_EQ(log().Count("dialog"), 0U);
  EXPECT_EQ(log().Count("replace Z:\\p\\a.tnp"), 1U);
  EXPECT_EQ(view.Title, "Tarnwick    Z:\\p\\a.tnp");
  EXPECT_EQ(tables().AccionProject, "save");
}

TEST_F(SaveProjectTest, AnExistingFileIsAskedAboutWithItsOwnWords) {
  ports.Files.Put("Z:\\p\\a.tnp", "old");
  ports.Messages.Answers = {true};
  ports.Dialogs.SaveAnswers = {"Z:\\p\\a.tnp", "Z:\\p\\one.ftn"};
  main.Commands().Run(Command::Save);
  EXPECT_EQ(log().Count("ask The File Z:\\p\\a.tnp\r\nalready exist. Replace it?"), 1U);
  EXPECT_EQ(ports.Messages.LastTitle, "Tarnwick");
  EXPECT_EQ(tables().AccionProject, "save");
}

TEST_F(SaveProjectTest, NoGoesBackToTheDialog) {
  ports.Files.Put("Z:\\p\\a.tnp", "old");
  ports.Messages.Answers = {false};
  ports.Dialogs.SaveAnswers = {"Z:\\p\\a.tnp", "Z:\\p\\b.tnp", "Z:\\p\\one.ftn"};
  main.Commands().Run(Command::Save);
  ExpectOrder({"dialog save", "ask The File", "dialog save", "replace Z:\\p\\b.tnp"});
  EXPECT_EQ(ports.Files.Bytes("Z:\\p\\a.tnp"), "old");
  EXPECT_EQ(tables().ProjectFile, "Z:\\p\\b.tnp");
}

TEST_F(SaveProjectTest, CancelAfterNoEndsTheCommandWithoutChange) {
  ports.Files.Put("Z:\\p\\a.tnp", "old");
  ports.Dialogs.SaveAnswers = {"Z:\\p\\a.tnp"};
  main.Commands().Run(Command::Save);
  EXPECT_EQ(log().Count("dialog save"), 2U);
  EXPECT_EQ(ports.Files.Bytes("Z:\\p\\a.tnp"), "old");
  EXPECT_EQ(tables().AccionProject, "app");
}

TEST_F(SaveProjectTest, AMissingExtensionIsAppended) {
  ports.Dialogs.SaveAnswers = {"Z:\\p\\a", "Z:\\p\\one"};
  main.Commands().Run(Command::Save);
  EXPECT_EQ(tables().ProjectFile, "Z:\\p\\a.tnp");
  EXPECT_EQ(view.Title, "Tarnwick - Z:\\p\\a.tnp");
  EXPECT_TRUE(ports.Files.Exists("Z:\\p\\one.ftn"));
}

TEST_F(SaveProjectTest, AnUpperCaseExtensionGetsNoSecondOne) {
  ports.Dialogs.SaveAnswers = {"Z:\\p\\A.TNP", "Z:\\p\\one.ftn"};
  main.Commands().Run(Command::Save);
  EXPECT_EQ(tables().ProjectFile, "Z:\\p\\A.TNP");
  EXPECT_EQ(tables().SourceFile, "Z:\\p\\A.com");
  EXPECT_EQ(tables().ExeFile, "Z:\\p\\A.exe");
}

TEST_F(SaveProjectTest, ACancelledFormDialogDoesNotCountAsSaved) {
  ports.Dialogs.SaveAnswers = {"Z:\\p\\a.tnp", std::nullopt};
  main.Commands().Run(Command::Save);
  EXPECT_EQ(tables().AccionProject, "app");
  EXPECT_EQ(tables().Form(1)->FileName, "");
}

TEST_F(SaveProjectTest, AFailedWriteIsSilentAndDoesNotCountAsSaved) {
  ports.Files.SetReadOnly(true);
  ports.Dialogs.SaveAnswers = {"Z:\\p\\a.tnp", "Z:\\p\\one.ftn"};
  main.Commands().Run(Command::Save);
  EXPECT_EQ(log().Count("show"), 0U);
  EXPECT_EQ(tables().AccionProject, "app");
}

TEST_F(SaveProjectTest, WhatIsTypedAndShownIsTakenFirst) {
  windows.CodeOpen = true;
  windows.OnStoreShownCode = [this] { tables().EventTable.Replace("Form1.OnShow", "Beep"); };
  ports.Dialogs.SaveAnswers = {"Z:\\p\\a.tnp", "Z:\\p\\one.ftn"};
  main.Commands().Run(Command::Save);
  ExpectOrder({"view commit", "windows store code", "replace Z:\\p\\one.ftn"});
  EXPECT_NE(ports.Files.Bytes("Z:\\p\\one.ftn")->find("Show<Beep>Show"), std::string::npos);
}

TEST_F(SaveProjectTest, TheFormInFrontStaysInFront) {
  main.Commands().Run(Command::AddNewForm);
  main.Forms().SelectLine(0);
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn", "Z:\\p\\second.ftn"});
  EXPECT_EQ(tables().CurrentForm, tables().User(1));
  EXPECT_EQ(view.FormInFront, 1);
  EXPECT_EQ(view.SelectedLine, 0);
}

TEST_F(SaveProjectTest, SaveAsAlwaysShowsTheDialogAndKeepsTheLastCommand) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  ports.Dialogs.OpenAnswers = {"Z:\\p\\a.tnp"};
  main.Commands().Run(Command::Open);
  log().Clear();
  ports.Dialogs.SaveAnswers = {"Z:\\q\\b"};
  main.Commands().Run(Command::SaveAs);
  EXPECT_EQ(log().Count("dialog save"), 1U);
  EXPECT_EQ(ports.Dialogs.LastRequest.StartFolder, "Z:\\p\\");
  EXPECT_EQ(ports.Dialogs.LastRequest.StartName, "a.tnp");
  EXPECT_EQ(view.Title, "Tarnwick - Z:\\q\\b.tnp");
  EXPECT_EQ(tables().ProjectFile, "Z:\\q\\b.tnp");
  EXPECT_EQ(tables().SourceFile, "Z:\\q\\b.com");
  EXPECT_EQ(tables().AccionProject, "open");
  // The form stays in the other folder and is named by its full path.
  EXPECT_EQ(ports.Files.Bytes("Z:\\q\\b.tnp"), "1\x95Z:\\p\\one.ftn\r\nMF##Form1 ()\r\n");
}

TEST_F(SaveProjectTest, SaveAsCancelledChangesNothing) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  const std::string title = view.Title;
  main.Commands().Run(Command::SaveAs);
  EXPECT_EQ(view.Title, title);
  EXPECT_EQ(tables().ProjectFile, "Z:\\p\\a.tnp");
  EXPECT_EQ(log().Count("replace"), 0U);
}

TEST_F(SaveProjectTest, ASaveMovesNoFocusAndShowsNoWindow) {
  main.Commands().Run(Command::AddNewForm);
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn", "Z:\\p\\two.ftn"});
  main.Commands().Run(Command::Save);
  main.Commands().Run(Command::SaveForm);
  EXPECT_EQ(log().Count("view form"), 0U) << Text();
  EXPECT_EQ(tables().CurrentForm, tables().User(2));
}

TEST_F(SaveProjectTest, ASaveTellsTheTimeUntilTheProjectChanges) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::Save);
  ASSERT_TRUE(view.Status.starts_with("Saved ")) << view.Status;
  EXPECT_EQ(view.Status.size(), std::string_view("Saved 14:05").size());
  main.KeepWork();
  EXPECT_NE(view.Status, "");
  Place(0, 10, 10);
  main.KeepWork();
  EXPECT_EQ(view.Status, "");
}

TEST_F(SaveProjectTest, AFailedSaveAfterASavedOneCountsAsNotSaved) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  ports.Files.SetReadOnly(true);
  main.Commands().Run(Command::Save);
  EXPECT_EQ(view.Status, "Not saved: Z:\\p\\one.ftn: Read-only file system");
  log().Clear();
  ports.Messages.Answers = {std::nullopt};
  main.Commands().Run(Command::New);
  EXPECT_EQ(log().Count("ask Did you want save"), 1U);
}

TEST_F(SaveProjectTest, ATypedNameIsCompletedBeforeTheQuestion) {
  ports.Files.Put("Z:\\p\\a.tnp", "old");
  ports.Dialogs.SaveAnswers = {"Z:\\p\\a"};
  main.Commands().Run(Command::Save);
  EXPECT_EQ(log().Count("ask The File Z:\\p\\a.tnp\r\nalready exist. Replace it?"), 1U);
  EXPECT_EQ(ports.Files.Bytes("Z:\\p\\a.tnp"), "old");
}

TEST_F(SaveProjectTest, AFileThatAnotherProgramChangedIsReplacedOnYesOnly) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  ports.Files.Put("Z:\\p\\one.ftn", "theirs");
  ports.Messages.Answers = {false};
  main.Commands().Run(Command::Save);
  EXPECT_EQ(log().Count("ask The File Z:\\p\\one.ftn\r\nwas changed by another program"), 1U);
  EXPECT_EQ(ports.Files.Bytes("Z:\\p\\one.ftn"), "theirs");
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Save);
  EXPECT_NE(ports.Files.Bytes("Z:\\p\\one.ftn"), "theirs");
  log().Clear();
  main.Commands().Run(Command::Save);
  EXPECT_EQ(log().Count("ask"), 0U);
}

class SaveFormTest : public SaveProjectTest {};

TEST_F(SaveFormTest, AsksForAFileWhileTheFormHasNone) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::AddNewForm);
  ports.Dialogs.SaveAnswers = {"Z:\\p\\Second"};
  main.Commands().Run(Command::SaveForm);
  EXPECT_EQ(ports.Dialogs.LastRequest.Title, "Save Form");
  EXPECT_EQ(ports.Dialogs.LastRequest.Filter, "Form (*.ftn)|*.ftn|All Files|*.*");
  EXPECT_EQ(ports.Dialogs.LastRequest.StartFolder, "Z:\\p\\");
  EXPECT_EQ(ports.Dialogs.LastRequest.StartName, "Form2.ftn");
  EXPECT_EQ(tables().Form(2)->FileName, "Z:\\p\\Second.ftn");
  EXPECT_EQ(Lines().back(), "Form2 (Second.ftn)");
  EXPECT_TRUE(ports.Files.Exists("Z:\\p\\Second.ftn"));
}

TEST_F(SaveFormTest, HidesTheContainerForTheDialogAndBringsItBack) {
  main.Commands().Run(Command::SaveForm);
  ExpectOrder({"view container hidden", "dialog save", "view container shown"});
  EXPECT_EQ(tables().Form(1)->FileName, "");
  EXPECT_EQ(log().Count("replace"), 0U);
}

TEST_F(SaveFormTest, ViewsOfTheFormListAreNotifiedOfTheNewLine) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  tables().Form(1)->Name = "Start";
  main.Commands().Run(Command::SaveForm);
  EXPECT_EQ(Lines(), std::vector<std::string>{"Start (one.ftn)"});
  EXPECT_EQ(log().Count("told list"), 1U);
}

TEST_F(SaveFormTest, AFormWithAFileIsWrittenAtOnce) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::SaveForm);
  EXPECT_EQ(log().Count("dialog"), 0U);
  EXPECT_EQ(log().Count("replace Z:\\p\\one.ftn"), 1U);
  EXPECT_EQ(log().Count("replace Z:\\p\\a.tnp"), 0U);
}

TEST_F(SaveFormTest, AnExistingFileIsAskedAboutWithOtherWordsThanAProject) {
  ports.Files.Put("Z:\\p\\one.ftn", "old");
  ports.Messages.Answers = {false, true};
  ports.Dialogs.SaveAnswers = {"Z:\\p\\one.ftn", "Z:\\p\\one.ftn"};
  main.Commands().Run(Command::SaveForm);
  EXPECT_EQ(log().Count("ask The File Z:\\p\\one.ftn\r\nalready exists. Replace it?"), 2U);
  EXPECT_EQ(ports.Messages.LastTitle, "Tarnwick");
  EXPECT_NE(ports.Files.Bytes("Z:\\p\\one.ftn"), "old");
}

TEST_F(SaveFormTest, ARenamedFormChangesItsListLineAtTheNextSave) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  tables().Form(1)->Name = "Start";
  main.Commands().Run(Command::SaveForm);
  EXPECT_EQ(Lines(), std::vector<std::string>{"Start (one.ftn)"});
  EXPECT_EQ(tables().MainFormName, "Form1 ()");
}

TEST_F(SaveFormTest, AFormInAnotherFolderIsListedByItsFullPathAtTheNextSave) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::AddNewForm);
  ports.Dialogs.SaveAnswers = {"Z:\\other\\two.ftn"};
  main.Commands().Run(Command::SaveForm);
  main.Commands().Run(Command::Save);
  EXPECT_EQ(ports.Files.Bytes("Z:\\p\\a.tnp"),
            "1\x95one.ftn\r\n2\x95Z:\\other\\two.ftn\r\nMF##Form1 ()\r\n");
}

TEST_F(SaveFormTest, TwoFormsMayShareANameInDifferentFiles) {
  main.Commands().Run(Command::AddNewForm);
  tables().Form(2)->Name = "Form1";
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn", "Z:\\p\\second.ftn"});
  ports.Dialogs.OpenAnswers = {"Z:\\p\\a.tnp"};
  main.Commands().Run(Command::Open);
  EXPECT_EQ(tables().FormsCount, 2);
  EXPECT_EQ(log().Count("show"), 0U);
}

TEST_F(SaveFormTest, SaveFormAsAlwaysAsksAndRewritesTheIndexInItsShortForm) {
  main.Commands().Run(Command::AddNewForm);
  main.Commands().Run(Command::AddNewForm);
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\1.ftn", "Z:\\p\\2.ftn", "Z:\\p\\3.ftn"});
  main.Forms().SelectLine(1);
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Remove);
  main.Forms().SelectLine(0);
  ports.Dialogs.SaveAnswers = {"Z:\\p\\new.ftn"};
  main.Commands().Run(Command::SaveFormAs);
  EXPECT_EQ(tables().Form(1)->FileName, "Z:\\p\\new.ftn");
  EXPECT_TRUE(ports.Files.Exists("Z:\\p\\new.ftn"));
  EXPECT_EQ(Lines().front(), "Form1 (new.ftn)");
  // Removed forms are named too; no numbers and no main form.
  EXPECT_EQ(ports.Files.Bytes("Z:\\p\\a.tnp"),
            "Z:\\p\\new.ftn\r\nZ:\\p\\2.ftn\r\nZ:\\p\\3.ftn\r\n");
}

TEST_F(SaveFormTest, SaveFormAsCancelledWritesNothing) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::SaveFormAs);
  EXPECT_EQ(log().Count("dialog save"), 1U);
  EXPECT_EQ(log().Count("replace"), 0U);
  EXPECT_EQ(tables().Form(1)->FileName, "Z:\\p\\one.ftn");
}

TEST_F(SaveFormTest, WithoutAFormThereIsNothingToSave) {
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Remove);
  log().Clear();
  main.Commands().Run(Command::SaveForm);
  main.Commands().Run(Command::SaveFormAs);
  EXPECT_TRUE(log().Entries().empty());
}

}  // namespace
}  // namespace tarnwick
