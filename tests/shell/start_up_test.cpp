#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

class StartUpTest : public ShellTest {};

TEST_F(StartUpTest, LoadSetsTitlesDisablesTheToolsAndStartsTheTimer) {
  tables().AccionProject = "open";
  tables().MainFormName = "Other ()";
  main.Load(views);
  EXPECT_GT(view.CommandChanges, 0);
  EXPECT_EQ(view.Title, "Tarnwick    Z:\\opt\\tarnwick\\UnTitle.tnp");
  EXPECT_EQ(view.ApplicationTitle, "Tarnwick");
  ExpectOrder({"view title", "view application title", "view timer on"});
  for (const ToolbarButton& button : MainToolbar()) {
    EXPECT_FALSE(main.Commands().State(button.Does).Enabled) << button.Tip;
  }
  for (const ToolInfo& tool : AllTools()) {
    EXPECT_FALSE(main.Commands().ToolState(tool.Number).Enabled) << tool.Tip;
  }
  EXPECT_EQ(tables().AccionProject, "app");
  EXPECT_EQ(tables().MainFormName, "Form1 ()");
  EXPECT_EQ(tables().FormsCount, 0);
}

TEST_F(StartUpTest, ALoadTurnsCommandsOffThatWereOn) {
  Start();
  ASSERT_TRUE(main.Commands().State(Command::New).Enabled);
  main.Load(views);
  EXPECT_FALSE(main.Commands().State(Command::New).Enabled);
  EXPECT_FALSE(main.Commands().ToolState(0).Enabled);
}

TEST_F(StartUpTest, TheLogoTextsComeInTheirOrderAroundTheSteps) {
  ports.Files.Put("Z:\\opt\\tarnwick\\IniEvents.ini", "[Events]\r\n");
  main.Load(views);
  log().Clear();
  main.Time_Timer();
  ExpectOrder({"view timer off", "view logo Wait...  1%", "remove Z:\\opt\\tarnwick\\IniEvents.ini",
               "view logo Wait...  10%", "read Z:\\opt\\tarnwick\\Add003.tn",
               "view logo Wait...  50%", "read Z:\\opt\\tarnwick\\Add002.tn",
               "read Z:\\opt\\tarnwick\\Add001.tn", "read Z:\\opt\\tarnwick\\Add004.tn",
               "view logo Wait...  70%", "windows code windows", "view logo Wait...  80%",
               "view lay out panels", "view logo Wait...  100%", "view container at 7000x6000",
               "told opened 1", "view form up 1", "view logo closed"});
  EXPECT_EQ(log().Count("view logo Wait"), 6U);
}

/// Tells of each yield that follows something else.
class LoggingScreen final : public ScreenPort {
 public:
  explicit LoggingScreen(CallLog& log) : log_(&log) {}
  void Yield() override {
    if (log_->Entries().empty() || log_->Entries().back() != "yield") log_->Add("yield");
  }

 private:
  CallLog* log_;
};

TEST_F(StartUpTest, TheScreenIsGivenTimeToRepaintAfterEachLogoText) {
  LoggingScreen screen(log());
  const Ports with_screen{ports.Files,    ports.Profiles, ports.Processes,
                          ports.Messages, ports.Dialogs,  screen};
  MDIForm1 window(with_screen, instances, std::string(kProgram));
  window.Load(views);
  window.Time_Timer();
  const std::vector<std::string>& all = log().Entries();
  for (std::size_t i = 0; i + 1 < all.size(); ++i) {
    if (!all[i].starts_with("view logo Wait")) continue;
    EXPECT_EQ(all[i + 1], "yield") << all[i];
  }
  EXPECT_EQ(log().Count("view logo Wait"), 6U);
}

TEST_F(StartUpTest, TheFirstFormStandsAndTheCommandsAreOn) {
  Start();
  EXPECT_EQ(tables().FormsCount, 1);
  ASSERT_NE(tables().CurrentForm, nullptr);
  EXPECT_EQ(tables().CurrentForm->Caption, "Form1");
  EXPECT_EQ(Lines(), std::vector<std::string>{"Form1 ()"});
  EXPECT_EQ(tables().ProjectFile, "Z:\\opt\\tarnwick\\UnTitle.tnp");
  EXPECT_EQ(tables().SourceFile, "Z:\\opt\\tarnwick\\UnTitle.com");
  EXPECT_EQ(tables().ExeFile, "Z:\\opt\\tarnwick\\UnTitle.exe");
  EXPECT_TRUE(main.Commands().State(Command::Compile).Enabled);
  EXPECT_TRUE(main.Commands().ToolState(0).Enabled);
  EXPECT_EQ(view.SelectedLine, 0);
  EXPECT_EQ(ProgramIconOf(tables()).Text, "(Default)");
  EXPECT_EQ(ProgramIconOf(tables()).Picture, "Z:\\opt\\tarnwick\\iconapp.ico");
}

TEST_F(StartUpTest, NoScratchFileMeansNothingToDelete) {
  main.Load(views);
  main.Time_Timer();
  EXPECT_EQ(log().Count("remove"), 0U);
}

TEST_F(StartUpTest, ALaterTickStartsNothingTwice) {
  main.Load(views);
  main.Time_Timer();
  log().Clear();
  main.Time_Timer();
  EXPECT_EQ(log().Entries(), std::vector<std::string>{"view timer off"});
  EXPECT_EQ(tables().FormsCount, 1);
}

TEST_F(StartUpTest, TheSupportFilesFillTheTables) {
  ports.Files.Put("Z:\\opt\\tarnwick\\Add004.tn",
                  "[Button]\x8D"
                  "Caption\x8E\r\n");
  Start();
  EXPECT_NE(main.Support().ObjectHelp.Find("BUTTON"), nullptr);
}

TEST_F(StartUpTest, AllPanelsAreShownButTheFloatingToolBox) {
  Start();
  EXPECT_TRUE(view.PanelShown[Panel::Properties]);
  EXPECT_TRUE(view.PanelShown[Panel::Forms]);
  EXPECT_TRUE(view.PanelShown[Panel::EventsBar]);
  EXPECT_FALSE(view.PanelShown[Panel::ObjectBar]);
  EXPECT_EQ(view.PanelShown.size(), kPanelCount) << "each is shown or hidden, and no other";
}

}  // namespace
}  // namespace tarnwick
