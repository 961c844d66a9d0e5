#include "shell/status_text.h"

#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

class StatusTextTest : public ShellTest {
 protected:
  void SetUp() override { Start(); }
};

TEST_F(StatusTextTest, OfTheFormItTellsThePlaceAndSizeOfTheProgramsForm) {
  EXPECT_EQ(view.SelectionText, "Form1   Left 0  Top 0  Width 400  Height 333");
}

TEST_F(StatusTextTest, OfAnObjectItTellsPixels) {
  Place(0, 20, 30);
  EXPECT_EQ(view.SelectionText, "Form1Btn1   Left 20  Top 30  Width 75  Height 25");
  EXPECT_EQ(SelectionStatus(tables()), view.SelectionText);
}

TEST_F(StatusTextTest, ItFollowsTheObject) {
  Place(0, 20, 30);
  main.Commands().Run(Command::AlignToGrid);
  surface().Keys().KeyDown(keys::kRight, kCtrlBit);
  EXPECT_EQ(view.SelectionText, "Form1Btn1   Left 21  Top 30  Width 75  Height 25");
  main.Commands().Run(Command::Delete);
  EXPECT_EQ(view.SelectionText, "Form1   Left 0  Top 0  Width 400  Height 333");
}

TEST_F(StatusTextTest, APlaceBetweenPixelsIsToldAsItIs) {
  Place(0, 20, 30);
  tables().CurrentForm->ControlSel->Left = 307.5F;
  main.RefreshStatus();
  EXPECT_EQ(view.SelectionText, "Form1Btn1   Left 20.5  Top 30  Width 75  Height 25");
}

TEST(PointerText, TellsWholePixels) {
  EXPECT_EQ(PointerStatus(Twips(12), Twips(30)), "X 12  Y 30");
  EXPECT_EQ(PointerStatus(188, -15), "X 13  Y -1");
}

TEST_F(StatusTextTest, OfAFormItIsTheRecordsPlaceAndNotTheWindows) {
  tables().Form(1)->Left = 7;
  tables().Form(1)->Top = 9;
  tables().CurrentForm->Left = Twips(100);
  tables().CurrentForm->Top = Twips(200);
  EXPECT_EQ(SelectionStatus(tables()), "Form1   Left 7  Top 9  Width 400  Height 333");
}

TEST_F(StatusTextTest, OfAnObjectEachNumberIsItsOwn) {
  Place(0, 20, 30);
  DesignControl& button = *tables().CurrentForm->ControlSel;
  button.Left = Twips(1);
  button.Top = Twips(2);
  button.Width = Twips(3);
  button.Height = Twips(4);
  EXPECT_EQ(SelectionStatus(tables()), "Form1Btn1   Left 1  Top 2  Width 3  Height 4");
}

TEST(CompileText, SaysWhatHappenedInTheOrderOfWhatFailed) {
  ProjectTables tables;
  tables.ProgramFolder = "C:\\T";
  tables.SourceFile = "C:\\p.com";
  project::CompileOutcome outcome;
  outcome.Source = {"C:\\p.com", "disk full"};
  EXPECT_EQ(CompileStatus(tables, outcome), "Not saved: C:\\p.com: disk full");
  outcome.Source = {};
  outcome.CompilerFound = false;
  EXPECT_EQ(CompileStatus(tables, outcome),
            "Rc.exe was not found: put Rc.exe into C:\\T. Source text: C:\\p.com");
  outcome.CompilerFound = true;
  outcome.Started = false;
  EXPECT_EQ(CompileStatus(tables, outcome),
            "Rc.exe could not be started; a Windows program needs Wine here. "
            "Source text: C:\\p.com");
  outcome.Started = true;
  EXPECT_EQ(CompileStatus(tables, outcome), "Rc.exe started. Source text: C:\\p.com");
}

TEST(SaveText, NamesTheTimeOrTheFileAndTheReason) {
  EXPECT_EQ(SavedStatus("2026-03-01 14:05:09"), "Saved 14:05");
  EXPECT_EQ(SavedStatus("14"), "Saved ");
  EXPECT_EQ(NotSavedStatus({"C:\\a.ftn", "read-only"}), "Not saved: C:\\a.ftn: read-only");
  EXPECT_EQ(NotSavedStatus({"C:\\a.ftn", ""}), "Not saved: C:\\a.ftn");
}

TEST(OpenText, NamesTheFileAndWhatIsToBeKnown) {
  EXPECT_EQ(NotOpenedStatus("C:\\a.tnp", "there is no such file"),
            "Not opened: C:\\a.tnp: there is no such file");
  EXPECT_EQ(OpenElsewhereStatus("C:\\a.tnp"),
            "C:\\a.tnp is open in another window of Tarnwick: the last save wins");
  EXPECT_EQ(RestoredStatus("2026-03-01 14:05:09"),
            "Restored as of 2026-03-01 14:05:09, not saved yet");
  EXPECT_EQ(NoHelpStatus("C:\\T.chm"), "The help is not installed: there is no C:\\T.chm");
}

TEST_F(StatusTextTest, WithoutAFormThereIsNothingToTell) {
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Remove);
  EXPECT_EQ(SelectionStatus(tables()), "");
}

}  // namespace
}  // namespace tarnwick
