#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

const std::string kRecovery = std::string(kProgram) + "\\recovery";

class UnsavedWorkTest : public ShellTest {
 protected:
  void SetUp() override { Start(); }
  /// The process ends as it stands; the next one starts.
  void Crash() {
    instances.End(kRecovery + "\\1");
    next.Load(views);
    next.Time_Timer();
    log().Clear();
  }
  MDIForm1 next{ports.All(), instances, std::string(kProgram)};
};

TEST_F(UnsavedWorkTest, ACrashedRunIsOfferedAtTheNextStartWithProjectDateAndForms) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  Place(0, 20, 20);
  main.KeepWork();
  Crash();
  view.OnRestoreDialog = [&] {
    next.OfferCrashedWork();
    next.Commands().Run(Command::AddNewForm);
  };
  next.OfferCrashedWork();
  EXPECT_EQ(log().Count("view restore dialog"), 1U);
  EXPECT_EQ(next.Tables().FormsCount, 1) << "no command runs while the dialog is open";
  const auto offers = next.Projects().UnsavedWork();
  ASSERT_EQ(offers.size(), 1U);
  EXPECT_TRUE(offers[0].Crashed);
  EXPECT_EQ(offers[0].Project.ProjectFile, "Z:\\p\\a.tnp");
  EXPECT_EQ(offers[0].Project.When.size(), std::string_view("2026-03-01 14:05:09").size());
  ASSERT_EQ(offers[0].Project.Forms.size(), 1U);
  EXPECT_EQ(offers[0].Project.Forms[0].Name, "Form1");
  // The offer is no command that goes on.
  next.Commands().Run(Command::AddNewForm);
  EXPECT_EQ(next.Tables().FormsCount, 2);
}

TEST_F(UnsavedWorkTest, RestoredWorkIsAProjectWithItsOldPathsNotSaved) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  const std::string saved = *ports.Files.Bytes("Z:\\p\\one.ftn");
  Place(0, 20, 20);
  main.KeepWork();
  Crash();
  next.AddObserver(observer);
  log().Clear();
  next.Projects().Restore(next.Projects().UnsavedWork().at(0));
  EXPECT_EQ(log().Count("ask"), 0U);
  EXPECT_NE(log().Count("told list"), 0U);
  ProjectTables& back = next.Tables();
  EXPECT_EQ(back.ProjectFile, "Z:\\p\\a.tnp");
  EXPECT_EQ(back.Form(1)->FileName, "Z:\\p\\one.ftn");
  EXPECT_NE(back.CurrentForm->FindByTag("Form1Btn1"), nullptr);
  EXPECT_EQ(ports.Files.Bytes("Z:\\p\\one.ftn"), saved);
  // It is asked about, and a second crash loses nothing of it.
  EXPECT_EQ(back.AccionProject, "open");
  instances.End(kRecovery + "\\2");
  MDIForm1 third(ports.All(), instances, std::string(kProgram));
  third.Load(views);
  third.Time_Timer();
  ASSERT_EQ(third.Projects().UnsavedWork().size(), 1U);
  third.Projects().Restore(third.Projects().UnsavedWork().at(0));
  EXPECT_NE(third.Tables().CurrentForm->FindByTag("Form1Btn1"), nullptr);
}

TEST_F(UnsavedWorkTest, TheListOfTheRestoredFormsIsShownWithTheirMainForm) {
  struct FormListReader final : ProjectObserver {
    explicit FormListReader(const ProjectTables& tables) : Tables(tables) {}
    void FormListChanged() override { MainForm = Tables.MainFormName; }
    const ProjectTables& Tables;
    std::string MainForm;
  };
  main.Commands().Run(Command::AddNewForm);
  tables().MainFormName = "Form2 ()";
  main.KeepWork();
  Crash();
  FormListReader list(next.Tables());
  next.AddObserver(list);
  next.Projects().Restore(next.Projects().UnsavedWork().at(0));
  EXPECT_EQ(next.Tables().MainFormName, "Form2 ()");
  EXPECT_EQ(list.MainForm, "Form2 ()");
}

TEST_F(UnsavedWorkTest, AProjectThatWasNeverSavedComesBackToo) {
  main.Commands().Run(Command::AddNewForm);
  Place(3, 20, 20);
  main.KeepWork();
  Crash();
  next.Projects().Restore(next.Projects().UnsavedWork().at(0));
  EXPECT_EQ(next.Tables().FormsCount, 2);
  EXPECT_EQ(next.Tables().Form(2)->FileName, "");
  EXPECT_NE(next.Tables().User(2)->FindByTag("Form2Label1"), nullptr);
}

TEST_F(UnsavedWorkTest, AStartAfterAnOrderlyEndOffersNothing) {
  Place(0, 20, 20);
  main.KeepWork();
  ASSERT_TRUE(main.Close());
  Crash();
  next.OfferCrashedWork();
  EXPECT_EQ(log().Count("view restore dialog"), 0U);
}

TEST_F(UnsavedWorkTest, CodeBeingTypedComesBackOnItsKeyAfterACrash) {
  main.Commands().Run(Command::AddNewForm);
  main.Commands().Run(Command::AddNewForm);
  main.Forms().SelectLine(0);
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Remove);
  windows.Code = {{"Form2.OnShow", "Beep"}, {"Form3.Button1.OnClick", "Print 1"}};
  main.KeepWork();
  windows.Code.clear();
  Crash();
  const auto offers = next.Projects().UnsavedWork();
  ASSERT_EQ(offers.size(), 1U);
  next.Projects().Restore(offers[0]);
  // The first form was removed: the others have the numbers 1 and 2 now.
  using Code = std::map<std::string, std::string>;
  EXPECT_EQ(windows.Offered,
            (Code{{"Form1.OnShow", "Beep"}, {"Form2.Button1.OnClick", "Print 1"}}));
}

TEST_F(UnsavedWorkTest, OpenAsksAlsoWhenOnlyCodeWasTyped) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  ports.Dialogs.OpenAnswers = {"Z:\\p\\a.tnp", "Z:\\p\\a.tnp"};
  main.Commands().Run(Command::Open);
  log().Clear();
  windows.CodeOpen = true;
  windows.Typed = true;
  ports.Messages.Answers = {std::nullopt};
  main.Commands().Run(Command::Open);
  EXPECT_EQ(log().Count("ask"), 1U);
  EXPECT_TRUE(windows.CodeOpen) << "the question was cancelled";
}

TEST_F(UnsavedWorkTest, WhatNewLeavesBehindIsOfferedFromTheMenuOnly) {
  Place(0, 20, 20);
  main.Commands().Run(Command::New);
  const auto offers = main.Projects().UnsavedWork();
  ASSERT_EQ(offers.size(), 1U);
  EXPECT_FALSE(offers[0].Crashed);
  main.OfferCrashedWork();
  EXPECT_EQ(log().Count("view restore dialog"), 0U);
  main.Commands().Run(Command::Restore);
  EXPECT_EQ(log().Count("view restore dialog"), 1U);
}

TEST_F(UnsavedWorkTest, ClosingWithNoLeavesTheWorkOnOfferForTheNextRun) {
  Place(0, 20, 20);
  ports.Messages.Answers = {false};
  ASSERT_TRUE(main.Close());
  Crash();
  ASSERT_EQ(next.Projects().UnsavedWork().size(), 1U);
}

TEST_F(UnsavedWorkTest, AnEditAfterASaveIsKeptThoughClosingAsksNothing) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  Place(0, 20, 20);
  ASSERT_TRUE(main.Close());
  EXPECT_EQ(log().Count("ask"), 0U);
  Crash();
  EXPECT_EQ(next.Projects().UnsavedWork().size(), 1U);
}

TEST_F(UnsavedWorkTest, ASavedProjectLeavesNothingBehind) {
  Place(0, 20, 20);
  main.KeepWork();
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::New);
  EXPECT_TRUE(main.Projects().UnsavedWork().empty());
}

TEST_F(UnsavedWorkTest, DeletingAnOfferAsksFirst) {
  Place(0, 20, 20);
  main.Commands().Run(Command::New);
  main.Projects().Forget(main.Projects().UnsavedWork().at(0));
  EXPECT_EQ(main.Projects().UnsavedWork().size(), 1U);
  ports.Messages.Answers = {true};
  main.Projects().Forget(main.Projects().UnsavedWork().at(0));
  EXPECT_TRUE(main.Projects().UnsavedWork().empty());
}

TEST_F(UnsavedWorkTest, TheSecondInstanceOnAProjectSaysSo) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  next.Load(views);
  next.Time_Timer();
  next.OpenNamed("Z:\\p\\a.tnp");
  EXPECT_EQ(view.Status, "Z:\\p\\a.tnp is open in another window of Tarnwick: the last save wins");
}

TEST_F(UnsavedWorkTest, AProjectThatNoOtherInstanceHasOpensWithoutAWord) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::New);
  next.Load(views);
  next.Time_Timer();
  next.OpenNamed("Z:\\p\\a.tnp");
  EXPECT_EQ(view.Status, "");
}

TEST_F(UnsavedWorkTest, WithoutAFolderForItEverythingElseGoesOn) {
  instances.Refuses = true;
  next.Load(views);
  next.Time_Timer();
  EXPECT_TRUE(next.KeepWork());
  EXPECT_TRUE(next.Close());
}

}  // namespace
}  // namespace tarnwick
