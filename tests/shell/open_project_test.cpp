#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

constexpr std::string_view kSettings = "Z:\\opt\\tarnwick\\Tarnwick.ini";

class OpenProjectTest : public ShellTest {
 protected:
  void SetUp() override { Start(); }

  /// Lays down a saved project of two forms, the second with a button, and starts afresh.
  void SaveTwoForms() {
    main.Commands().Run(Command::AddNewForm);
    Place(0, 20, 30);
    SaveUnder("Z:\\p\\two.tnp", {"Z:\\p\\one.ftn", "Z:\\p\\second.ftn"});
    main.Commands().Run(Command::New);
    log().Clear();
  }
};

TEST_F(OpenProjectTest, TheDialogHasItsTitleFilterAndRememberedFolder) {
  ports.Profiles.Write(std::string(kSettings), "Paths", "OpenDlg", "Z:\\old\\");
  main.Commands().Run(Command::Open);
  EXPECT_EQ(ports.Dialogs.LastRequest.Title, "Open Project");
  EXPECT_EQ(ports.Dialogs.LastRequest.Filter, "Tarnwick Project (New Version)|*.tnp");
  EXPECT_EQ(ports.Dialogs.LastRequest.StartFolder, "Z:\\old\\");
}

TEST_F(OpenProjectTest, AFirstRunHasNoFolderToStartIn) {
  main.Commands().Run(Command::Open);
  EXPECT_EQ(ports.Dialogs.LastRequest.StartFolder, "");
}

TEST_F(OpenProjectTest, CancelledItLeavesEverythingAsItWas) {
  Place(0, 10, 10);
  const std::string title = view.Title;
  log().Clear();
  main.Commands().Run(Command::Open);
  EXPECT_EQ(tables().LoadingProject, 0);
  EXPECT_EQ(tables().AccionProject, "app");
  EXPECT_EQ(view.Title, title);
  EXPECT_TRUE(tables().CurrentForm->HasObjects(Kind::Button));
  EXPECT_EQ(tables().CurrentForm->NameObjet, "Button1");
  EXPECT_TRUE(main.Commands().State(Command::Open).Enabled);
  EXPECT_TRUE(main.Commands().ToolState(0).Enabled);
  EXPECT_EQ(log().Entries(),
            (std::vector<std::string>{"ask Did you want save this project?",
                                      "profile read [Paths] OpenDlg", "dialog open"}));
}

TEST_F(OpenProjectTest, AFileThatCannotBeReadLeavesEverythingAsItWas) {
  ports.Dialogs.OpenAnswers = {"Z:\\p\\none.tnp"};
  main.Commands().Run(Command::Open);
  EXPECT_EQ(tables().ProjectFile, "Z:\\opt\\tarnwick\\UnTitle.tnp");
  EXPECT_EQ(tables().LoadingProject, 0);
  EXPECT_EQ(tables().AccionProject, "app");
  EXPECT_EQ(log().Count("told closing"), 0U);
}

TEST_F(OpenProjectTest, AChangedProjectIsAskedAboutUnlessTheLastCommandWasSave) {
  SaveTwoForms();
  ports.Dialogs.OpenAnswers = {"Z:\\p\\two.tnp", "Z:\\p\\two.tnp", "Z:\\p\\two.tnp"};
  main.Commands().Run(Command::Open);
  log().Clear();
  main.Commands().Run(Command::Open);
  EXPECT_EQ(log().Count("ask"), 0U);
  Place(0, 10, 10);
  main.Commands().Run(Command::Open);
  EXPECT_EQ(log().Count("ask Did you want save this project?"), 1U);
  Place(0, 10, 10);
  main.Commands().Run(Command::Save);
  log().Clear();
  main.Commands().Run(Command::Open);
  EXPECT_EQ(log().Count("ask"), 0U);
}

TEST_F(OpenProjectTest, CommandsAreOffWhileItIsReadAndJumpKeyIsEmptyAfterwards) {
  SaveTwoForms();
  ports.Dialogs.OpenAnswers = {"Z:\\p\\two.tnp"};
  tables().JumpKey = "OnClick";
  int closed_forms = 0;
  observer.OnFormClosing = [&](int) {
    ++closed_forms;
    EXPECT_EQ(tables().JumpKey, "");
    EXPECT_EQ(tables().LoadingProject, 1);
    EXPECT_FALSE(main.Commands().State(Command::Save).Enabled);
    EXPECT_FALSE(main.Commands().ToolState(0).Enabled);
    main.Commands().Run(Command::AddNewForm);
  };
  main.Commands().Run(Command::Open);
  EXPECT_GT(closed_forms, 0);
  EXPECT_EQ(tables().FormsCount, 2);
  EXPECT_EQ(tables().JumpKey, "");
  EXPECT_EQ(tables().LoadingProject, 0);
  EXPECT_TRUE(main.Commands().State(Command::Save).Enabled);
  EXPECT_TRUE(main.Commands().ToolState(0).Enabled);
}

TEST_F(OpenProjectTest, ClosingTheQuestionStopsItBeforeTheDialog) {
  Place(0, 10, 10);
  ports.Messages.Answers = {std::nullopt};
  main.Commands().Run(Command::Open);
  EXPECT_EQ(log().Count("dialog"), 0U);
  EXPECT_TRUE(tables().CurrentForm->HasObjects(Kind::Button));
}

TEST_F(OpenProjectTest, AFileThatIsNotThereIsNamedInTheStatusBar) {
  main.OpenNamed("Z:\\p\\none.tnp");
  EXPECT_EQ(view.Status, "Not opened: Z:\\p\\none.tnp: there is no such file");
}

TEST_F(OpenProjectTest, AFileThatIsNoTextIsNoProjectAndShowsNoBox) {
  ports.Files.Put("Z:\\p\\picture.tnp", std::string("BM\x01\0\x02 form\r\n", 12));
  Place(0, 10, 10);
  log().Clear();
  main.OpenNamed("Z:\\p\\picture.tnp");
  EXPECT_EQ(view.Status, "Not opened: Z:\\p\\picture.tnp: it is no project");
  EXPECT_EQ(log().Count("show"), 0U);
  EXPECT_TRUE(tables().CurrentForm->HasObjects(Kind::Button));
}

TEST_F(OpenProjectTest, ReadsTheProjectAndShowsItsFirstFormWithTheEventsBar) {
  SaveTwoForms();
  ports.Dialogs.OpenAnswers = {"Z:\\p\\two.tnp"};
  main.Commands().Run(Command::Open);
  EXPECT_EQ(tables().FormsCount, 2);
  EXPECT_EQ(Lines(), (std::vector<std::string>{"Form1 (one.ftn)", "Form2 (second.ftn)"}));
  EXPECT_EQ(tables().CurrentForm, tables().User(1));
  EXPECT_EQ(view.FormInFront, 1);
  EXPECT_EQ(view.SelectedLine, 0);
  EXPECT_TRUE(view.PanelShown[Panel::EventsBar]);
  EXPECT_TRUE(tables().User(2)->HasObjects(Kind::Button));
  EXPECT_EQ(tables().AccionProject, "open");
  EXPECT_EQ(tables().LoadingProject, 0);
  EXPECT_TRUE(main.Commands().State(Command::Open).Enabled);
}

TEST_F(OpenProjectTest, TitlePathsAndFolderFollowTheChosenFile) {
  SaveTwoForms();
  ports.Dialogs.OpenAnswers = {"Z:\\p\\two.tnp"};
  main.Commands().Run(Command::Open);
  EXPECT_EQ(view.Title, "Tarnwick    Z:\\p\\two.tnp");
  EXPECT_EQ(tables().ProjectFile, "Z:\\p\\two.tnp");
  EXPECT_EQ(tables().SourceFile, "Z:\\p\\two.com");
  EXPECT_EQ(tables().ExeFile, "Z:\\p\\two.exe");
  EXPECT_EQ(main.SettingsFile().Read("Paths", "OpenDlg"), "Z:\\p\\");
}

TEST_F(OpenProjectTest, TheStepsComeInTheirOrder) {
  SaveTwoForms();
  ports.Dialogs.OpenAnswers = {"Z:\\p\\two.tnp"};
  main.Commands().Run(Command::Open);
  ExpectOrder({"dialog open", "windows close code", "view container hidden", "told closing 1",
               "view title", "profile write [Paths] OpenDlg=Z:\\p\\", "read Z:\\p\\two.tnp",
               "read Z:\\p\\one.ftn", "read Z:\\p\\second.ftn", "view container shown"});
}

TEST_F(OpenProjectTest, AMissingFormFileIsNamedAndTheRestIsRead) {
  ports.Files.Put("Z:\\p\\a.tnp", "1\x95gone.ftn\r\nMF##Form1 ()\r\n");
  ports.Dialogs.OpenAnswers = {"Z:\\p\\a.tnp"};
  main.Commands().Run(Command::Open);
  EXPECT_EQ(log().Count("show Error: File ' Z:\\p\\gone.ftn ' does not exist!"), 1U);
  EXPECT_EQ(tables().FormsCount, 1);
  EXPECT_EQ(tables().MainFormName, "Form1 ()");
  ASSERT_NE(tables().CurrentForm, nullptr);
  EXPECT_EQ(log().Count("told opened 1"), 1U) << "its window stands";
}

TEST_F(OpenProjectTest, TheIconDisplayShowsTheIconOfFormOne) {
  SaveTwoForms();
  std::string form = *ports.Files.Bytes("Z:\\p\\one.ftn");
  const std::size_t at = form.find("Icon<(Default)>Icon");
  ASSERT_NE(at, std::string::npos);
  form.replace(at, std::string_view("Icon<(Default)>Icon").size(), "Icon<my.ico>Icon");
  ports.Files.Put("Z:\\q\\one.ftn", form);
  ports.Files.Put("Z:\\q\\i.tnp", "1\x95one.ftn\r\n");
  tables().ProgramFolder = "C:\\opt";
  ports.Dialogs.OpenAnswers = {"Z:\\q\\i.tnp"};
  main.Commands().Run(Command::Open);
  EXPECT_EQ(ProgramIconOf(tables()).Text, "Z:\\q\\my.ico");
  EXPECT_EQ(ProgramIconOf(tables()).Picture, "Z:\\q\\my.ico");
}

TEST_F(OpenProjectTest, AProjectThatTheDesktopNamesOpensWithoutADialog) {
  SaveTwoForms();
  main.OpenNamed("Z:\\p\\two.tnp");
  EXPECT_EQ(log().Count("dialog"), 0U);
  EXPECT_EQ(tables().ProjectFile, "Z:\\p\\two.tnp");
  EXPECT_EQ(tables().AccionProject, "open");
  EXPECT_EQ(tables().LoadingProject, 0);
  EXPECT_EQ(Lines(), (std::vector<std::string>{"Form1 (one.ftn)", "Form2 (second.ftn)"}));
  EXPECT_TRUE(main.Commands().State(Command::Save).Enabled);
}

TEST_F(OpenProjectTest, AFileThatTheDesktopNamesInVainLeavesEverythingAsItWas) {
  main.OpenNamed("Z:\\p\\none.tnp");
  EXPECT_EQ(tables().AccionProject, "app");
  EXPECT_EQ(tables().LoadingProject, 0);
  EXPECT_EQ(log().Count("told closing"), 0U);
}

class OpenOldTest : public OpenProjectTest {
 protected:
  static constexpr std::string_view kOld =
      "[Form](Form1)  Left<0>Left  Top<0>Top  Width<300>Width  Height<200>Height\r\n"
      "[Button](Button2)  Left<10>Left  Top<20>Top  Width<75>Width  Height<25>Height\r\n";
};

TEST_F(OpenOldTest, TheDialogHasItsTitleAndFilter) {
  main.Commands().Run(Command::OpenOld);
  EXPECT_EQ(ports.Dialogs.LastRequest.Title, "Open Old Version");
  EXPECT_EQ(ports.Dialogs.LastRequest.Filter, "Tarnwick Project (Old Version)|*.ptn|All Files|*.*");
}

TEST_F(OpenOldTest, CancelledItLeavesEverythingAsItWas) {
  main.Commands().Run(Command::OpenOld);
  EXPECT_EQ(tables().LoadingProject, 0);
  EXPECT_EQ(tables().AccionProject, "app");
  EXPECT_TRUE(main.Commands().State(Command::OpenOld).Enabled);
  EXPECT_EQ(log().Count("told closing"), 0U);
}

TEST_F(OpenOldTest, ConvertsBesideTheOldFileAndOpensTheResult) {
  ports.Files.Put("Z:\\old\\app.ptn", std::string(kOld));
  ports.Dialogs.OpenAnswers = {"Z:\\old\\app.ptn"};
  main.Commands().Run(Command::OpenOld);
  EXPECT_TRUE(ports.Files.Exists("Z:\\old\\app.ftn"));
  EXPECT_EQ(ports.Files.Bytes("Z:\\old\\app.tnp"),
            "1\x95"
            "app.ftn\r\nMF##Form (app.ftn)\r\n");
  EXPECT_EQ(tables().ProjectFile, "Z:\\old\\app.tnp");
  EXPECT_EQ(tables().SourceFile, "Z:\\old\\app.com");
  EXPECT_EQ(tables().ExeFile, "Z:\\old\\app.exe");
  EXPECT_EQ(view.Title, "Tarnwick    Z:\\old\\app.tnp");
  EXPECT_EQ(main.SettingsFile().Read("Paths", "OpenDlg"), "Z:\\old\\");
  EXPECT_EQ(tables().AccionProject, "open");
  EXPECT_EQ(tables().FormsCount, 1);
  EXPECT_TRUE(tables().CurrentForm->HasObjects(Kind::Button));
}

TEST_F(OpenOldTest, AnExistingFormFileOfThatNameIsOverwrittenUnasked) {
  ports.Files.Put("Z:\\old\\app.ptn", std::string(kOld));
  ports.Files.Put("Z:\\old\\app.ftn", "something else");
  ports.Dialogs.OpenAnswers = {"Z:\\old\\app.ptn"};
  main.Commands().Run(Command::OpenOld);
  EXPECT_EQ(log().Count("ask The File"), 0U);
  EXPECT_NE(ports.Files.Bytes("Z:\\old\\app.ftn"), "something else");
}

TEST_F(OpenOldTest, APathWithADotInAFolderIsCutThere) {
  ports.Files.Put("Z:\\v1.2\\app.ptn", std::string(kOld));
  ports.Dialogs.OpenAnswers = {"Z:\\v1.2\\app.ptn"};
  main.Commands().Run(Command::OpenOld);
  EXPECT_TRUE(ports.Files.Exists("Z:\\v1.tnp"));
  EXPECT_EQ(tables().ProjectFile, "Z:\\v1.tnp");
}

TEST_F(OpenOldTest, AFailedConversionLeavesEverythingAsItWas) {
  ports.Files.Put("Z:\\old\\app.ptn", std::string(kOld));
  ports.Files.SetReadOnly(true);
  ports.Dialogs.OpenAnswers = {"Z:\\old\\app.ptn"};
  main.Commands().Run(Command::OpenOld);
  EXPECT_EQ(tables().ProjectFile, "Z:\\opt\\tarnwick\\UnTitle.tnp");
  EXPECT_EQ(log().Count("told closing"), 0U);
}

}  // namespace
}  // namespace tarnwick
