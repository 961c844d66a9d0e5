#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

constexpr std::string_view kQuestion = "ask Did you want save this project?";

class NewProjectTest : public ShellTest {
 protected:
  void SetUp() override { Start(); }
};

TEST_F(NewProjectTest, AsksAboutSavingWithItsTitleAndIcon) {
  main.Commands().Run(Command::New);
  EXPECT_EQ(log().Count(kQuestion), 1U);
  EXPECT_EQ(ports.Messages.LastTitle, "Tarnwick IDE");
  EXPECT_EQ(ports.Messages.LastIcon, MessageIcon::Question);
}

TEST_F(NewProjectTest, NoGoesOnWithoutSaving) {
  Place(0, 10, 10);
  main.Commands().Run(Command::New);
  EXPECT_EQ(log().Count("dialog save"), 0U);
  EXPECT_EQ(log().Count("replace Z:\\opt\\tarnwick\\UnTitle"), 0U);
  EXPECT_EQ(tables().FormsCount, 1);
  EXPECT_FALSE(tables().CurrentForm->HasObjects(Kind::Button));
  EXPECT_EQ(tables().AccionProject, "new");
}

TEST_F(NewProjectTest, ClosingTheQuestionStopsIt) {
  Place(0, 10, 10);
  ports.Messages.Answers = {std::nullopt};
  main.Commands().Run(Command::New);
  EXPECT_EQ(log().Count("ask"), 1U);
  EXPECT_TRUE(tables().CurrentForm->HasObjects(Kind::Button));
  EXPECT_EQ(tables().AccionProject, "app");
}

TEST_F(NewProjectTest, YesSavesFirst) {
  ports.Messages.Answers = {true};
  ports.Dialogs.SaveAnswers = {"Z:\\p\\a.tnp", "Z:\\p\\one.ftn"};
  main.Commands().Run(Command::New);
  ExpectOrder({kQuestion, "dialog save", "replace Z:\\p\\one.ftn", "replace Z:\\p\\a.tnp",
               "view title Tarnwick    Z:\\opt\\tarnwick\\UnTitle.tnp"});
  EXPECT_EQ(tables().ProjectFile, "Z:\\opt\\tarnwick\\UnTitle.tnp");
  EXPECT_EQ(tables().AccionProject, "new");
}

TEST_F(NewProjectTest, ACancelledSaveDialogAfterYesStopsIt) {
  Place(0, 10, 10);
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::New);
  EXPECT_EQ(log().Count("dialog save"), 1U);
  EXPECT_TRUE(tables().CurrentForm->HasObjects(Kind::Button));
  EXPECT_EQ(tables().AccionProject, "app");
  EXPECT_EQ(log().Count("told closing"), 0U);
}

TEST_F(NewProjectTest, ACancelledFormDialogAfterYesStopsItToo) {
  ports.Messages.Answers = {true};
  ports.Dialogs.SaveAnswers = {"Z:\\p\\a.tnp", std::nullopt};
  main.Commands().Run(Command::New);
  EXPECT_EQ(tables().AccionProject, "app");
  EXPECT_EQ(tables().ProjectFile, "Z:\\p\\a.tnp");
  EXPECT_EQ(log().Count("told closing"), 0U);
}

TEST_F(NewProjectTest, AFailedWriteAfterYesStopsItToo) {
  ports.Messages.Answers = {true};
  ports.Dialogs.SaveAnswers = {"Z:\\p\\a.tnp", "Z:\\p\\one.ftn"};
  ports.Files.SetReadOnly(true);
  main.Commands().Run(Command::New);
  EXPECT_EQ(log().Count("told closing"), 0U);
  EXPECT_EQ(log().Count("show"), 0U);
  EXPECT_EQ(view.Status, "Not saved: Z:\\p\\one.ftn: Read-only file system");
}

TEST_F(NewProjectTest, SaveThenNewAsksNothingEvenAfterEdits) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  Place(0, 10, 10);
  main.Commands().Run(Command::New);
  EXPECT_EQ(log().Count("ask"), 0U);
  EXPECT_EQ(tables().AccionProject, "new");
}

TEST_F(NewProjectTest, NewAfterNewAsksAgain) {
  main.Commands().Run(Command::New);
  log().Clear();
  main.Commands().Run(Command::New);
  EXPECT_EQ(log().Count(kQuestion), 1U);
}

TEST_F(NewProjectTest, ResetsAllThatOpenResets) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  Place(19, 10, 10);
  tables().EventTable.Replace("Form1.Button1.OnClick", "Beep");
  tables().MenuRows.push_back("row");
  tables().MenuTitles.emplace_back();
  tables().MenuItems.emplace_back();
  tables().JumpKey = "Form1.x";
  tables().MainFormName = "Other ()";
  main.Commands().Run(Command::AddNewForm);
  main.Commands().Run(Command::New);
  EXPECT_EQ(tables().FormsCount, 1);
  EXPECT_EQ(Lines(), std::vector<std::string>{"Form1 ()"});
  EXPECT_EQ(tables().EventTable.Find("Form1.Button1.OnClick"), nullptr);
  EXPECT_NE(tables().EventTable.Find("Form1.OnShow"), nullptr);
  EXPECT_EQ(tables().PopUpMenus.UBound(), 0);
  EXPECT_EQ(tables().MenuRows.size(), 1U);
  EXPECT_EQ(tables().MenuTitles.size(), 1U);
  EXPECT_EQ(tables().MenuItems.size(), 1U);
  EXPECT_EQ(tables().JumpKey, "");
  EXPECT_EQ(tables().MainFormName, "Form1 ()");
  EXPECT_EQ(tables().CurrentForm->NameObjet, "Form");
  EXPECT_EQ(tables().ProjectFile, "Z:\\opt\\tarnwick\\UnTitle.tnp");
  EXPECT_EQ(tables().SourceFile, "Z:\\opt\\tarnwick\\UnTitle.com");
  EXPECT_EQ(tables().ExeFile, "Z:\\opt\\tarnwick\\UnTitle.exe");
}

TEST_F(NewProjectTest, TheStepsComeInTheirOrder) {
  ports.Files.Put("Z:\\opt\\tarnwick\\IniEvents.ini", "[Events]\r\n");
  main.Commands().Run(Command::AddNewForm);
  log().Clear();
  main.Commands().Run(Command::New);
  ExpectOrder({kQuestion, "windows close code", "view title", "remove Z:\\opt\\tarnwick\\IniEvents",
               "view container hidden", "told closing 1", "told closing 2", "told opened 1",
               "view form up 1", "view container shown"});
  EXPECT_FALSE(ports.Files.Exists("Z:\\opt\\tarnwick\\IniEvents.ini"));
  EXPECT_EQ(view.Title, "Tarnwick    Z:\\opt\\tarnwick\\UnTitle.tnp");
}

TEST_F(NewProjectTest, TheObjectListHoldsTheNewFormAlone) {
  Place(0, 10, 10);
  EXPECT_EQ(main.Sheet().Combo().Rows().size(), 2U);
  main.Commands().Run(Command::New);
  ASSERT_EQ(main.Sheet().Combo().Rows().size(), 1U);
  EXPECT_EQ(main.Sheet().Combo().Rows().front().Text, "Form1   (Form)");
}

TEST_F(NewProjectTest, TheIconDisplayGoesBackToTheDefault) {
  tables().Form(1)->IconFile = "Z:\\p\\my.ico";
  main.Commands().Run(Command::New);
  EXPECT_EQ(ProgramIconOf(tables()).Text, "(Default)");
  EXPECT_EQ(ProgramIconOf(tables()).Picture, "Z:\\opt\\tarnwick\\iconapp.ico");
}

TEST_F(NewProjectTest, CommandsAreOffInBetweenAndOnAfterwards) {
  observer.OnFormClosing = [this](int) {
    EXPECT_FALSE(main.Commands().State(Command::Save).Enabled);
    EXPECT_FALSE(main.Commands().ToolState(0).Enabled);
    main.Commands().Run(Command::AddNewForm);
  };
  main.Commands().Run(Command::New);
  EXPECT_EQ(tables().FormsCount, 1);
  EXPECT_TRUE(main.Commands().State(Command::Save).Enabled);
  EXPECT_TRUE(main.Commands().ToolState(0).Enabled);
}

}  // namespace
}  // namespace tarnwick
