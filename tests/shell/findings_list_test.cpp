// The list of findings, and the way from a line to what it is about.
#include "shell/findings_list.h"

#include "shell_fixture.h"

namespace tarnwick {
namespace {

using project::Severity;

class FindingsListTest : public ShellTest {
 protected:
  void SetUp() override {
    ports.Files.Put(std::string(kProgram) + "\\Add004.tn",
                    "button\x8D*\x8D"
                    "form\x8D*\x8D");
    Start();
  }
  FindingsList& findings() { return main.Findings(); }
  /// Places a button and gives it a caption that the program cannot hold.
  void PlaceFaulty(int x = 20) {
    Place(0, x, 20);
    surface().Form().ControlSel->Caption = "say \"hi\"";
  }
  /// The number of the line that is about that row; -1 for none.
  int LineOf(std::string_view row) {
    const auto& lines = findings().Lines();
    for (std::size_t i = 0; i < lines.size(); ++i) {
      if (lines[i].Row == row) return static_cast<int>(i);
    }
    return -1;
  }
};

TEST_F(FindingsListTest, AProjectWithoutAFaultHasNoWordAndNoLine) {
  main.Commands().Run(Command::Check);
  EXPECT_TRUE(findings().Lines().empty());
  EXPECT_EQ(findings().Word(), "");
}

TEST_F(FindingsListTest, TheCommandShowsTheListAndGoesToIt) {
  EXPECT_FALSE(main.Commands().PanelShown(Panel::Findings));
  PlaceFaulty();
  log().Clear();
  main.Commands().Run(Command::Check);
  EXPECT_TRUE(view.PanelShown[Panel::Findings]);
  ExpectOrder({"view commit", "windows store code", "view findings", "view panel shown 4",
               "view findings focus"});
  EXPECT_EQ(findings().Word(), "1 finding");
  EXPECT_EQ(findings().Lines().at(0),
            (FindingLine{Severity::Error, "Form1", "Form1Btn1", "Caption",
                         "the text has a double quote, which ends it in the program; "
                         "use ' in its place"}));
}

TEST_F(FindingsListTest, ACompileChecksQuietlyWhatIsTypedByThen) {
  Place(0, 20, 20);
  windows.OnStoreShownCode = [this] {
    tables().EventTable.Replace("Form1.Button7.OnKeyDown", "Beep");
  };
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::Compile);
  EXPECT_EQ(findings().Word(), "1 finding");
  EXPECT_FALSE(main.Commands().PanelShown(Panel::Findings)) << "the list waits for the user";
  EXPECT_EQ(log().Count("view findings focus"), 0U);
}

TEST_F(FindingsListTest, TheSaveOfACompileLeavesItsFindingsThere) {
  PlaceFaulty();
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  EXPECT_EQ(findings().Word(), "");
  Place(0, 80, 80);
  main.Commands().Run(Command::Compile);
  EXPECT_EQ(findings().Word(), "1 finding");
}

TEST_F(FindingsListTest, TheGravestComeFirstThenTheFormsInTheirOrder) {
  tables().EventTable.Replace("Form1.Button9.OnClick", "Beep");
  main.Commands().Run(Command::AddNewForm);
  PlaceFaulty();
  main.Forms().SelectLine(0);
  PlaceFaulty();
  main.Commands().Run(Command::Check);
  ASSERT_EQ(findings().Lines().size(), 3U);
  EXPECT_EQ(findings().Lines()[0].Form, "Form1");
  EXPECT_EQ(findings().Lines()[1].Form, "Form2");
  EXPECT_EQ(findings().Lines()[1].How, Severity::Error);
  EXPECT_EQ(findings().Lines()[2].How, Severity::Note);
  EXPECT_EQ(findings().Word(), "3 findings");
}

TEST_F(FindingsListTest, AFormThatTheIndexNamesAndThatIsGoneIsFound) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  ports.Files.Remove("Z:\\p\\one.ftn");
  main.Commands().Run(Command::Check);
  ASSERT_EQ(findings().Lines().size(), 1U);
  EXPECT_EQ(findings().Lines()[0].Form, "");
  EXPECT_EQ(findings().Lines()[0].Text.substr(0, 24), "the form does not exist:");
  findings().GoTo(0);
  // The save writes the file again, and the list hears of it.
  main.Commands().Run(Command::Save);
  EXPECT_TRUE(findings().Lines().empty());
}

TEST_F(FindingsListTest, ALineLeadsToFormObjectAndRow) {
  ports.Files.Put(std::string(kProgram) + "\\Add004.tn", "");
  PlaceFaulty();
  main.Commands().Run(Command::AddNewForm);
  main.Commands().Run(Command::Check);
  main.Commands().SetPanelShown(Panel::Properties, false);
  log().Clear();
  findings().GoTo(0);
  EXPECT_EQ(tables().CurrentForm, tables().User(1));
  EXPECT_EQ(view.FormInFront, 1);
  EXPECT_EQ(surface().Form().NameObjet, "Button1");
  EXPECT_TRUE(main.Commands().PanelShown(Panel::Properties));
}

TEST_F(FindingsListTest, TheRowIsSelectedAndGetsTheFocus) {
  Place(0, 20, 20);
  surface().Form().ControlSel->Tag = "a b";
  main.Commands().Run(Command::Check);
  log().Clear();
  findings().GoTo(LineOf("Name"));
  EXPECT_EQ(main.Sheet().RowIndex(), 0);
  EXPECT_TRUE(main.Sheet().HasSelectedRow());
  EXPECT_EQ(log().Count("view row focus"), 1U);
}

TEST_F(FindingsListTest, AFaultOfTheFormItselfSelectsTheForm) {
  Place(0, 20, 20);
  tables().Form(1)->Name = "1abc";
  main.Commands().Run(Command::Check);
  findings().GoTo(LineOf("Name"));
  EXPECT_EQ(surface().Form().NameObjet, "Form");
  EXPECT_EQ(main.Sheet().RowIndex(), 0);
}

TEST_F(FindingsListTest, TheRowOfAnObjectThatHasGoneIsNotThatOfItsForm) {
  Place(0, 20, 20);
  surface().Form().ControlSel->Tag = "a b";
  main.Commands().Run(Command::Check);
  const int line = LineOf("Name");
  main.Commands().Run(Command::Delete);
  log().Clear();
  findings().GoTo(line);
  EXPECT_EQ(surface().Form().NameObjet, "Form");
  EXPECT_EQ(log().Count("view row focus"), 0U);
}

TEST_F(FindingsListTest, CodeOfAnObjectThatIsGoneOpensAtItsKey) {
  tables().EventTable.Replace("Form1.Button3.OnKeyDown", "Beep");
  main.Commands().Run(Command::Check);
  ASSERT_EQ(findings().Lines().size(), 1U);
  EXPECT_EQ(findings().Lines()[0].Object, "Button3");
  EXPECT_EQ(findings().Lines()[0].Row, "OnKeyDown");
  findings().GoTo(0);
  EXPECT_EQ(log().Count("windows open code"), 1U);
  EXPECT_EQ(tables().JumpKey, "Form1.Button3.OnKeyDown");
}

TEST_F(FindingsListTest, WhileTheCodeIsOpenOnlyCodeIsGoneTo) {
  PlaceFaulty();
  tables().EventTable.Replace("Form1.Button3.OnKeyDown", "Beep");
  main.Commands().Run(Command::Check);
  windows.CodeOpen = true;
  surface().SelectForm();
  log().Clear();
  findings().GoTo(0);
  EXPECT_EQ(log().Count("windows code to front"), 1U);
  EXPECT_EQ(surface().Form().NameObjet, "Form");
  findings().GoTo(1);
  EXPECT_EQ(log().Count("windows open code"), 1U);
  EXPECT_EQ(tables().JumpKey, "Form1.Button3.OnKeyDown");
}

TEST_F(FindingsListTest, AMainFormThatIsGoneOpensItsDialog) {
  tables().MainFormName = "Nobody ()";
  main.Commands().Run(Command::Check);
  ASSERT_EQ(findings().Lines().size(), 1U);
  log().Clear();
  findings().GoTo(0);
  EXPECT_EQ(log().Count("view FormMain"), 1U);
}

TEST_F(FindingsListTest, LinesThatAreNotThereAreNoLines) {
  findings().GoTo(0);
  findings().GoTo(-1);
  PlaceFaulty();
  main.Commands().Run(Command::Check);
  log().Clear();
  findings().GoTo(1);
  findings().GoTo(-1);
  EXPECT_EQ(log().Count("view form up"), 0U);
}

TEST_F(FindingsListTest, ALineOfAFormThatWasRemovedLeadsNowhere) {
  main.Commands().Run(Command::AddNewForm);
  PlaceFaulty();
  main.Commands().Run(Command::Check);
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Remove);
  log().Clear();
  findings().GoTo(0);
  EXPECT_EQ(log().Count("view form up"), 0U);
  EXPECT_EQ(tables().CurrentForm, tables().User(1));
}

TEST_F(FindingsListTest, TheShownListFollowsTheProjectAfterAPause) {
  PlaceFaulty();
  main.KeepWork();
  EXPECT_EQ(findings().Word(), "") << "what was not asked for is not checked";
  main.Commands().Run(Command::Check);
  PlaceFaulty(150);
  main.KeepWork();
  EXPECT_EQ(findings().Word(), "2 findings");
  log().Clear();
  main.KeepWork();
  EXPECT_EQ(log().Count("view findings"), 0U) << "the view reads the same lines once";
}

TEST_F(FindingsListTest, TheShownWordFollowsTooAndGoesWithTheLastFault) {
  PlaceFaulty();
  main.Commands().Run(Command::Check);
  main.Commands().SetPanelShown(Panel::Findings, false);
  surface().Form().ControlSel->Caption = "hi";
  main.KeepWork();
  EXPECT_EQ(findings().Word(), "");
}

TEST_F(FindingsListTest, AnotherProjectStartsWithoutAWord) {
  PlaceFaulty();
  main.Commands().Run(Command::Check);
  main.Commands().SetPanelShown(Panel::Findings, false);
  ports.Messages.Answers = {false};
  main.Commands().Run(Command::New);
  EXPECT_EQ(findings().Word(), "");
}

TEST_F(FindingsListTest, AProjectThatOpensWhileTheListIsShownIsChecked) {
  PlaceFaulty();
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Commands().Run(Command::New);
  main.Commands().Run(Command::Check);
  EXPECT_EQ(findings().Word(), "");
  main.OpenNamed("Z:\\p\\a.tnp");
  EXPECT_EQ(findings().Word(), "1 finding");
}

TEST_F(FindingsListTest, NoRunBeginsWithTheList) {
  main.Commands().Run(Command::Check);
  ASSERT_TRUE(main.Close());
  MDIForm1 next(ports.All(), instances, std::string(kProgram));
  next.Load(views);
  EXPECT_FALSE(next.Commands().PanelShown(Panel::Findings));
}

}  // namespace
}  // namespace tarnwick
