#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

constexpr std::string_view kQuestion = "ask Did you want save this project?";

class CloseTest : public ShellTest {
 protected:
  void SetUp() override { Start(); }
};

TEST_F(CloseTest, RightAfterTheStartItAsks) {
  EXPECT_TRUE(main.Close());
  EXPECT_EQ(log().Count(kQuestion), 1U);
  EXPECT_EQ(ports.Messages.LastTitle, "Tarnwick IDE");
  EXPECT_EQ(ports.Messages.LastIcon, MessageIcon::Question);
}

TEST_F(CloseTest, RightAfterNewItAsksNothing) {
  main.Commands().Run(Command::New);
  log().Clear();
  EXPECT_TRUE(main.Close());
  EXPECT_EQ(log().Count("ask"), 0U);
}

TEST_F(CloseTest, AfterASaveItAsksNothingEvenAfterEdits) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  Place(0, 10, 10);
  EXPECT_TRUE(main.Close());
  EXPECT_EQ(log().Count("ask"), 0U);
}

TEST_F(CloseTest, YesOnTheDefaultProjectSavesWithItsDialog) {
  ports.Messages.Answers = {true};
  ports.Dialogs.SaveAnswers = {"Z:\\p\\a.tnp", "Z:\\p\\one.ftn"};
  EXPECT_TRUE(main.Close());
  EXPECT_TRUE(ports.Files.Exists("Z:\\p\\a.tnp"));
}

TEST_F(CloseTest, YesOnANamedProjectWritesItDirectly) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  ports.Dialogs.OpenAnswers = {"Z:\\p\\a.tnp"};
  main.Commands().Run(Command::Open);
  log().Clear();
  ports.Messages.Answers = {true};
  EXPECT_TRUE(main.Close());
  EXPECT_EQ(log().Count("dialog"), 0U);
  ExpectOrder({kQuestion, "windows store code", "replace Z:\\p\\one.ftn", "replace Z:\\p\\a.tnp",
               "view unload 0"});
}

TEST_F(CloseTest, ACancelledSaveDialogAfterYesKeepsTheProgramOpen) {
  ports.Messages.Answers = {true};
  EXPECT_FALSE(main.Close());
  EXPECT_EQ(log().Count("view unload"), 0U);
  EXPECT_TRUE(main.Commands().State(Command::Save).Enabled);
  EXPECT_EQ(tables().FormsCount, 1);
  main.Commands().Run(Command::AddNewForm);
  EXPECT_EQ(tables().FormsCount, 2) << "commands run again";
}

TEST_F(CloseTest, ACancelledFormDialogAfterYesKeepsItOpenToo) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  ports.Dialogs.OpenAnswers = {"Z:\\p\\a.tnp"};
  main.Commands().Run(Command::Open);
  main.Commands().Run(Command::AddNewForm);
  ports.Messages.Answers = {true};
  EXPECT_FALSE(main.Close());
  EXPECT_EQ(log().Count("view unload"), 0U);
}

TEST_F(CloseTest, NoClosesWithoutSaving) {
  EXPECT_TRUE(main.Close());
  EXPECT_EQ(log().Count("replace"), 0U);
}

TEST_F(CloseTest, ExitTakesTheSamePath) {
  main.Commands().Run(Command::Exit);
  EXPECT_TRUE(closed);
  ExpectOrder({"view close", kQuestion, "view unload 0", "view unload container"});
}

TEST_F(CloseTest, TheWindowsAreUnloadedInTheirOrder) {
  main.Commands().Run(Command::AddNewForm);
  log().Clear();
  EXPECT_TRUE(main.Close());
  const auto entry = [](SideWindow window) {
    return "view unload " + std::to_string(static_cast<int>(window));
  };
  const std::string add_items = entry(SideWindow::FormAddItems);
  const std::string code = entry(SideWindow::FormCodigo);
  const std::string logo = entry(SideWindow::Logo);
  const std::string menu = entry(SideWindow::FormMenu);
  const std::string popup = entry(SideWindow::FormPopUp);
  const std::string view_codes = entry(SideWindow::FormViewCodes);
  ExpectOrder({add_items, code, logo, menu, popup, view_codes, "told closing 1", "told closing 2",
               "view unload container"});
  EXPECT_EQ(log().Count("view unload "), kSideWindowCount + 1) << "each once, and the container";
}

TEST_F(CloseTest, ASecondRequestAsksNothingMore) {
  EXPECT_TRUE(main.Close());
  log().Clear();
  EXPECT_TRUE(main.Close());
  EXPECT_TRUE(log().Entries().empty());
  main.Commands().Run(Command::AddNewForm);
  EXPECT_TRUE(log().Entries().empty());
}

TEST_F(CloseTest, ARequestInTheMidstOfACommandWaits) {
  view.OnFormMain = [this] { EXPECT_FALSE(main.Close()); };
  main.Commands().Run(Command::SelectMainForm);
  EXPECT_EQ(log().Count("ask"), 0U);
  EXPECT_TRUE(main.Close());
}

TEST(CloseBeforeStart, ARequestDuringTheStartWaits) {
  FakePorts ports;
  FakeShellView view(ports.Log);
  FakeSideWindows windows(ports.Log);
  FakeObserver observer(ports.Log);
  FakeInstanceFolders instances(ports.Files);
  MDIForm1 main(ports.All(), instances, std::string(kProgram));
  main.AddObserver(observer);
  main.Load({view, windows, windows, windows});
  EXPECT_FALSE(main.Close());
  main.Time_Timer();
  EXPECT_TRUE(main.Close());
}

}  // namespace
}  // namespace tarnwick
