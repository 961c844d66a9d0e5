#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

class CompileCommandTest : public ShellTest {
 protected:
  void SetUp() override { Start(); }
};

TEST_F(CompileCommandTest, SavesGeneratesAndStartsTheCompiler) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::Compile);
  ExpectOrder({"view arrow", "replace Z:\\p\\one.ftn", "replace Z:\\p\\a.tnp",
               "view container hidden", "view form hidden 1", "replace Z:\\p\\a.com",
               "view form shown 1", "view container shown",
               "start Z:\\opt\\tarnwick\\Rc.exe /COMPILE  ", "view own pointer"});
  EXPECT_TRUE(ports.Files.Bytes("Z:\\p\\a.com")->starts_with("Dim Font As QFont\r\n"));
  EXPECT_EQ(tables().AccionProject, "save");
}

TEST_F(CompileCommandTest, TheDefaultProjectShowsTheSaveDialogAndTakesItsNewNames) {
  ports.Dialogs.SaveAnswers = {"Z:\\p\\b.tnp", "Z:\\p\\one.ftn"};
  main.Commands().Run(Command::Compile);
  EXPECT_TRUE(ports.Files.Exists("Z:\\p\\b.com"));
  EXPECT_FALSE(ports.Files.Exists("Z:\\opt\\tarnwick\\UnTitle.com"));
}

TEST_F(CompileCommandTest, ACancelledSaveGoesOnUnderTheDefaultNames) {
  ports.Dialogs.SaveAnswers = {std::nullopt};
  main.Commands().Run(Command::Compile);
  ASSERT_TRUE(ports.Files.Exists("Z:\\opt\\tarnwick\\UnTitle.com"));
  EXPECT_NE(ports.Files.Bytes("Z:\\opt\\tarnwick\\UnTitle.com")->find("Dim Form1 As QForm"),
            std::string::npos);
  EXPECT_EQ(log().Count("start"), 1U);
}

TEST_F(CompileCommandTest, AQuietTextTellsWhatWasStartedAndWhereTheSourceLies) {
  ports.Files.Put("Z:\\opt\\tarnwick\\Rc.exe", "MZ");
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::Compile);
  EXPECT_EQ(view.Status, "Rc.exe started. Source text: Z:\\p\\a.com");
  EXPECT_EQ(log().Count("show"), 0U);
}

TEST_F(CompileCommandTest, AMissingCompilerIsNamedWithThePlaceWhereItBelongs) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::Compile);
  EXPECT_EQ(view.Status,
            "Rc.exe was not found: put Rc.exe into Z:\\opt\\tarnwick. Source text: Z:\\p\\a.com");
}

TEST_F(CompileCommandTest, ACompilerThatDoesNotStartIsTold) {
  ports.Files.Put("Z:\\opt\\tarnwick\\Rc.exe", "MZ");
  ports.Processes.Succeeds = false;
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::Compile);
  EXPECT_TRUE(view.Status.starts_with("Rc.exe could not be started")) << view.Status;
}

TEST_F(CompileCommandTest, ASourceThatCannotBeWrittenIsNamedWithTheReason) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  ports.Files.SetReadOnly(true);
  main.Commands().Run(Command::Compile);
  EXPECT_EQ(view.Status, "Not saved: Z:\\p\\a.com: Read-only file system");
}

TEST_F(CompileCommandTest, WithTheSaveDialogCancelledWhatIsTypedIsGeneratedAllTheSame) {
  windows.CodeOpen = true;
  windows.OnStoreShownCode = [this] { tables().EventTable.Replace("Form1.OnShow", "Beep"); };
  main.Commands().Run(Command::Compile);
  ExpectOrder({"view commit", "windows store code", "dialog save",
               "replace Z:\\opt\\tarnwick\\UnTitle.com"});
  EXPECT_NE(ports.Files.Bytes("Z:\\opt\\tarnwick\\UnTitle.com")->find("Beep"), std::string::npos);
}

TEST_F(CompileCommandTest, TheFocusIsGivenBackWhereItWas) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::Compile);
  ExpectOrder({"view hold focus", "view form hidden 1", "view form shown 1", "view restore focus"});
  EXPECT_EQ(log().Count("view form focus"), 0U);
}

TEST_F(CompileCommandTest, F5OnADesignFormRunsTheSameCommand) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  surface().Keys().KeyDown(keys::kF5, 0);
  EXPECT_EQ(log().Count("start"), 1U);
}

TEST_F(CompileCommandTest, WithoutAFormThereIsNothingToCompile) {
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Remove);
  log().Clear();
  EXPECT_FALSE(main.Commands().State(Command::Compile).Enabled);
  main.Commands().Run(Command::Compile);
  EXPECT_TRUE(log().Entries().empty());
}

TEST_F(CompileCommandTest, ShownCodeIsStoredBeforeItIsGenerated) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  windows.CodeOpen = true;
  windows.OnStoreShownCode = [this] { tables().EventTable.Replace("Form1.OnShow", "Beep"); };
  main.Commands().Run(Command::Compile);
  EXPECT_NE(ports.Files.Bytes("Z:\\p\\a.com")->find("Beep"), std::string::npos);
  EXPECT_TRUE(windows.CodeOpen);
}

TEST_F(CompileCommandTest, ARemovedMainFormGivesWayToTheFirstOfTheList) {
  main.Commands().Run(Command::AddNewForm);
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\1.ftn", "Z:\\p\\2.ftn"});
  main.Forms().SelectLine(0);
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Remove);
  main.Commands().Run(Command::Compile);
  EXPECT_EQ(tables().MainFormName, "Form2 (2.ftn)");
}

TEST_F(CompileCommandTest, TheCurrentFormIsToBeSeenAgainAfterwards) {
  main.Commands().Run(Command::AddNewForm);
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\1.ftn", "Z:\\p\\2.ftn"});
  main.Commands().Run(Command::Compile);
  EXPECT_TRUE(tables().User(2)->Visible);
  main.Forms().SelectLine(0);
  EXPECT_TRUE(tables().User(1)->Visible);
  EXPECT_EQ(view.FormInFront, 1);
}

TEST_F(CompileCommandTest, TheWinSockNumberGoesOnFromCompileToCompile) {
  Place(18, 10, 10);
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\1.ftn"});
  main.Commands().Run(Command::Compile);
  const std::string first = *ports.Files.Bytes("Z:\\p\\a.com");
  main.Commands().Run(Command::Compile);
  EXPECT_NE(*ports.Files.Bytes("Z:\\p\\a.com"), first);
}

}  // namespace
}  // namespace tarnwick
