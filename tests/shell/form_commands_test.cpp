#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

class FormCommandsTest : public ShellTest {
 protected:
  void SetUp() override { Start(); }

  void AddForms(int count) {
    for (int i = 0; i < count; ++i) main.Commands().Run(Command::AddNewForm);
    log().Clear();
  }
  void RemoveCurrent() {
    ports.Messages.Answers = {true};
    main.Commands().Run(Command::Remove);
  }
};

TEST_F(FormCommandsTest, TheFirstFormOfAnEmptyProjectIsMainFormAtOnce) {
  EXPECT_EQ(Lines(), std::vector<std::string>{"Form1 ()"});
  EXPECT_EQ(tables().MainFormName, "Form1 ()");
  EXPECT_EQ(main.Forms().Marks().MainForm, 1);
}

TEST_F(FormCommandsTest, AFurtherFormComesUpAndIsCurrent) {
  main.Commands().Run(Command::AddNewForm);
  EXPECT_EQ(Lines(), (std::vector<std::string>{"Form1 ()", "Form2 ()"}));
  EXPECT_EQ(tables().CurrentForm, tables().User(2));
  EXPECT_EQ(view.FormInFront, 2);
  EXPECT_EQ(view.SelectedLine, 1);
  EXPECT_EQ(tables().MainFormName, "Form1 ()");
  ExpectOrder({"told opened 2", "told list", "view form up 2", "told current"});
}

TEST_F(FormCommandsTest, ANewFormHasTheDefaultsOfForms) {
  main.Commands().Run(Command::AddNewForm);
  const FormRec& record = *tables().Form(2);
  EXPECT_EQ(record.Name, "Form2");
  EXPECT_EQ(record.FileName, "");
  EXPECT_EQ(record.Visible, 1);
  EXPECT_EQ(record.BorderStyle, 2);
  EXPECT_EQ(record.IconFile, "(Default)");
  EXPECT_EQ(record.ImageFile, "(Default)");
  EXPECT_EQ(record.Width, 400);
  EXPECT_EQ(record.Height, 333);
  const DesignForm& window = *tables().User(2);
  EXPECT_EQ(window.Caption, "Form2");
  EXPECT_EQ(window.Number(), 2);
  EXPECT_FLOAT_EQ(window.Width, 6000);
  EXPECT_FLOAT_EQ(window.Height, 5000);
  EXPECT_NE(tables().EventTable.Find("Form2.OnMouseUp"), nullptr);
}

TEST_F(FormCommandsTest, RemoveAsksWithTheFormsNameAndTheCriticalIcon) {
  tables().Form(1)->Name = "Start";
  main.Commands().Run(Command::Remove);
  EXPECT_EQ(log().Count("ask Delete Start?"), 1U);
  EXPECT_EQ(ports.Messages.LastTitle, "Tarnwick");
  EXPECT_EQ(ports.Messages.LastIcon, MessageIcon::Critical);
}

TEST_F(FormCommandsTest, NoKeepsTheForm) {
  main.Commands().Run(Command::Remove);
  EXPECT_EQ(tables().Form(1)->Removed, 0);
  EXPECT_EQ(Lines().size(), 1U);
  EXPECT_EQ(log().Count("ask Delete Form1?"), 1U);
  EXPECT_EQ(log().Count("told closing"), 0U);
}

TEST_F(FormCommandsTest, YesTakesFormBarAndLineAway) {
  AddForms(1);
  RemoveCurrent();
  EXPECT_EQ(tables().Form(2)->Removed, 1);
  EXPECT_EQ(tables().UserIfAny(2), nullptr);
  EXPECT_EQ(main.User(2), nullptr);
  EXPECT_EQ(Lines(), std::vector<std::string>{"Form1 ()"});
  EXPECT_EQ(log().Count("told closing 2"), 1U);
}

TEST_F(FormCommandsTest, AfterRemovingForm2OfThreeTheNextFormIsForm4) {
  AddForms(2);
  main.Forms().SelectLine(1);
  RemoveCurrent();
  main.Commands().Run(Command::AddNewForm);
  EXPECT_EQ(tables().FormsCount, 4);
  EXPECT_EQ(Lines(), (std::vector<std::string>{"Form1 ()", "Form3 ()", "Form4 ()"}));
}

TEST_F(FormCommandsTest, TheMainFormIsNotProtected) {
  AddForms(1);
  main.Forms().SelectLine(0);
  RemoveCurrent();
  EXPECT_EQ(tables().Form(1)->Removed, 1);
  EXPECT_EQ(tables().MainFormName, "Form1 ()");
  EXPECT_EQ(main.Forms().Marks().MainForm, 0);
  EXPECT_EQ(main.Forms().Marks().MainName, "Form1");
}

TEST_F(FormCommandsTest, AfterRemoveTheLineAtTheSamePlaceIsSelected) {
  AddForms(2);
  main.Forms().SelectLine(1);
  RemoveCurrent();
  EXPECT_EQ(view.SelectedLine, 1);
  EXPECT_EQ(tables().CurrentForm, tables().User(3));
}

TEST_F(FormCommandsTest, AfterRemovingTheLastLineTheOneBeforeIsSelected) {
  AddForms(2);
  RemoveCurrent();
  EXPECT_EQ(view.SelectedLine, 1);
  EXPECT_EQ(tables().CurrentForm, tables().User(2));
}

TEST_F(FormCommandsTest, WithNoFormLeftFormCommandsAreOff) {
  RemoveCurrent();
  EXPECT_EQ(tables().CurrentForm, nullptr);
  EXPECT_EQ(main.CurrentUser(), nullptr);
  EXPECT_EQ(view.SelectedLine, -1);
  EXPECT_EQ(view.SelectionText, "");
  for (const Command command :
       {Command::Compile, Command::Remove, Command::SaveForm, Command::SaveFormAs, Command::Cut,
        Command::Copy, Command::Paste, Command::Delete, Command::AlignToGrid, Command::Lock,
        Command::Code, Command::PublicDeclarations, Command::SelectMainForm, Command::MenuEdit,
        Command::EventsBar, Command::BringToFront, Command::StayBack}) {
    EXPECT_FALSE(main.Commands().State(command).Enabled) << MenuRowOf(command)->Name;
  }
  EXPECT_TRUE(main.Commands().State(Command::AddNewForm).Enabled);
  EXPECT_TRUE(main.Commands().State(Command::New).Enabled);
}

TEST_F(FormCommandsTest, AddNewFormAddsToAProjectWithoutForms) {
  RemoveCurrent();
  main.Commands().Run(Command::AddNewForm);
  EXPECT_EQ(Lines(), std::vector<std::string>{"Form2 ()"});
  EXPECT_EQ(tables().CurrentForm, tables().User(2));
  EXPECT_TRUE(main.Commands().State(Command::Compile).Enabled);
}

TEST_F(FormCommandsTest, ALineOfTheListBringsItsFormUpWithItsEventsBar) {
  AddForms(2);
  main.Forms().SelectLine(1);
  EXPECT_EQ(tables().CurrentForm, tables().User(2));
  EXPECT_EQ(view.FormInFront, 2);
  EXPECT_TRUE(view.PanelShown[Panel::EventsBar]);
  EXPECT_EQ(main.Sheet().Combo().Rows().front().Text, "Form2   (Form)");
}

TEST_F(FormCommandsTest, ChoosingALineLeavesTheFocusAndEnterMovesItToTheForm) {
  AddForms(2);
  view.FocusedForm = 0;
  main.Forms().SelectLine(1);
  EXPECT_EQ(view.FormInFront, 2);
  EXPECT_EQ(view.FocusedForm, 0);
  main.Forms().GoToLine(0);
  EXPECT_EQ(view.FormInFront, 1);
  EXPECT_EQ(view.FocusedForm, 1);
}

TEST_F(FormCommandsTest, ALineShowsTheEventsBarAgain) {
  AddForms(1);
  main.Commands().Run(Command::EventsBar);
  ASSERT_FALSE(view.PanelShown[Panel::EventsBar]);
  main.Forms().SelectLine(0);
  EXPECT_TRUE(view.PanelShown[Panel::EventsBar]);
}

TEST_F(FormCommandsTest, AClosedWindowGivesWayToTheNextVisibleForm) {
  AddForms(2);
  main.Forms().SelectLine(0);
  main.Forms().WindowClosed(1);
  EXPECT_FALSE(tables().User(1)->Visible);
  EXPECT_EQ(tables().CurrentForm, tables().User(2));
  EXPECT_EQ(view.SelectedLine, 1);
  EXPECT_EQ(view.FocusedForm, 2);
  // Behind the last one the list goes on at its head.
  main.Forms().SelectLine(2);
  main.Forms().WindowClosed(3);
  EXPECT_EQ(tables().CurrentForm, tables().User(2));
}

TEST_F(FormCommandsTest, WithAllWindowsClosedNoCommandMeansAForm) {
  Place(0, 10, 10);
  main.Forms().WindowClosed(1);
  EXPECT_EQ(tables().CurrentForm, nullptr);
  EXPECT_EQ(view.SelectedLine, -1);
  EXPECT_FALSE(main.Commands().State(Command::Delete).Enabled);
  EXPECT_EQ(main.Sheet().Combo().Rows().size(), 0U);
  main.Commands().Run(Command::Delete);
  EXPECT_TRUE(tables().User(1)->HasObjects(Kind::Button));
  // Its line brings it back.
  main.Forms().SelectLine(0);
  EXPECT_TRUE(tables().User(1)->Visible);
  EXPECT_EQ(tables().CurrentForm, tables().User(1));
  EXPECT_EQ(view.FormInFront, 1);
}

TEST_F(FormCommandsTest, ASaveDoesNotShowWhatTheUserClosed) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  main.Forms().WindowClosed(1);
  log().Clear();
  main.Commands().Run(Command::Save);
  EXPECT_EQ(log().Count("replace Z:\\p\\one.ftn"), 1U);
  EXPECT_EQ(log().Count("view form"), 0U) << Text();
  EXPECT_EQ(tables().CurrentForm, nullptr);
}

TEST_F(FormCommandsTest, AToolPressedWithAllWindowsClosedBringsTheFirstFormUp) {
  main.Forms().WindowClosed(1);
  main.Commands().PressTool(0);
  EXPECT_EQ(tables().CurrentForm, tables().User(1));
  EXPECT_TRUE(main.Commands().ToolState(0).Checked);
  EXPECT_EQ(tables().FormsCount, 1);
}

TEST_F(FormCommandsTest, AnotherFormsClosedWindowLeavesTheCurrentOne) {
  AddForms(1);
  main.Forms().WindowClosed(1);
  EXPECT_EQ(tables().CurrentForm, tables().User(2));
}

TEST_F(FormCommandsTest, LinesKeepTheirFormsAfterARemoval) {
  AddForms(2);
  main.Forms().SelectLine(0);
  RemoveCurrent();
  main.Forms().SelectLine(1);
  EXPECT_EQ(tables().CurrentForm, tables().User(3));
}

TEST_F(FormCommandsTest, APlaceWithoutALineSelectsNothing) {
  main.Forms().SelectLine(7);
  main.Forms().SelectLine(-1);
  EXPECT_EQ(tables().CurrentForm, tables().User(1));
  EXPECT_TRUE(log().Entries().empty());
}

TEST_F(FormCommandsTest, ADesignWindowThatComesToTheFrontIsCurrent) {
  AddForms(1);
  main.Forms().Activated(1);
  EXPECT_EQ(tables().CurrentForm, tables().User(1));
  EXPECT_EQ(view.SelectedLine, 0);
  log().Clear();
  main.Forms().Activated(1);
  main.Forms().Activated(9);
  EXPECT_TRUE(log().Entries().empty());
}

TEST_F(FormCommandsTest, WhileTheCodeEditorIsOpenNothingElseIsChosen) {
  AddForms(1);
  windows.CodeOpen = true;
  main.Forms().SelectLine(0);
  EXPECT_EQ(tables().CurrentForm, tables().User(2));
  EXPECT_EQ(view.SelectedLine, 1);
  main.Forms().Activated(1);
  main.Commands().Run(Command::AddNewForm);
  main.Commands().Run(Command::Remove);
  main.Commands().PressTool(0);
  EXPECT_EQ(tables().CurrentForm, tables().User(2));
  EXPECT_EQ(tables().FormsCount, 2);
  EXPECT_EQ(tables().CurrentForm->Objeto, "");
  EXPECT_EQ(log().Count("windows code to front"), 5U);
}

TEST_F(FormCommandsTest, TheRemoveEntryNamesTheCurrentForm) {
  EXPECT_EQ(main.Commands().Caption(Command::Remove), "Remove Form1 from project");
  tables().Form(1)->Name = "Start";
  EXPECT_EQ(main.Commands().Caption(Command::Remove), "Remove Start from project");
  AddForms(1);
  EXPECT_EQ(main.Commands().Caption(Command::Remove), "Remove Form2 from project");
}

TEST_F(FormCommandsTest, TwoFormsHoldObjectsOfOneNameUnderKeysOfTheirOwn) {
  Place(0, 10, 10);
  main.Commands().Run(Command::AddNewForm);
  Place(0, 10, 10);
  EXPECT_EQ(tables().User(1)->Element(Kind::Button, 1)->Tag, "Form1Btn1");
  EXPECT_EQ(tables().User(2)->Element(Kind::Button, 1)->Tag, "Form2Btn1");
  EXPECT_NE(tables().EventTable.Find("Form1.Form1Btn1.OnClick"), nullptr);
  EXPECT_NE(tables().EventTable.Find("Form2.Form2Btn1.OnClick"), nullptr);
}

TEST_F(FormCommandsTest, ASavedProjectIsRenumberedWhenItIsReadAgain) {
  AddForms(2);
  tables().EventTable.Replace("Form3.OnShow", "Beep");
  main.Forms().SelectLine(1);
  RemoveCurrent();
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\1.ftn", "Z:\\p\\3.ftn"});
  ports.Dialogs.OpenAnswers = {"Z:\\p\\a.tnp"};
  main.Commands().Run(Command::Open);
  EXPECT_EQ(tables().FormsCount, 2);
  EXPECT_EQ(*tables().EventTable.Find("Form2.OnShow"), "Beep");
  EXPECT_EQ(tables().EventTable.Find("Form3.OnShow"), nullptr);
}

class SelectMainFormTest : public FormCommandsTest {};

TEST_F(SelectMainFormTest, TheDialogTakesTheChosenLine) {
  AddForms(1);
  view.OnFormMain = [this] {
    FormMain dialog(tables());
    EXPECT_EQ(dialog.List1(), (std::vector<std::string>{"Form1 ()", "Form2 ()"}));
    EXPECT_EQ(dialog.Selected(), 0);
    EXPECT_EQ(dialog.Text1(), "Form1 ()");
    dialog.List1_Click(1);
    EXPECT_EQ(dialog.Text1(), "Form2 ()");
    main.Forms().TakeMainForm(dialog);
  };
  main.Commands().Run(Command::SelectMainForm);
  EXPECT_EQ(tables().MainFormName, "Form2 ()");
  EXPECT_EQ(main.Forms().Marks().MainForm, 2);
  ExpectOrder({"view FormMain", "told list"});
}

TEST_F(SelectMainFormTest, TheFirstRowCanBeTheMainForm) {
  main.Commands().Run(Command::AddNewForm);
  tables().MainFormName = "Form2 ()";
  FormMain dialog = main.Forms().MainFormDialog();
  EXPECT_EQ(dialog.Selected(), 1);
  dialog.List1_Click(0);
  EXPECT_EQ(dialog.Selected(), 0);
  EXPECT_EQ(dialog.Text1(), "Form1 ()");
  main.Forms().TakeMainForm(dialog);
  EXPECT_EQ(tables().MainFormName, "Form1 ()");
  EXPECT_EQ(main.Forms().MainFormDialog().Selected(), 0);
}

TEST_F(SelectMainFormTest, ARowThatIsNotThereKeepsRowAndText) {
  main.Commands().Run(Command::AddNewForm);
  FormMain dialog = main.Forms().MainFormDialog();
  dialog.List1_Click(1);
  dialog.List1_Click(2);
  dialog.List1_Click(-1);
  EXPECT_EQ(dialog.Selected(), 1);
  EXPECT_EQ(dialog.Text1(), "Form2 ()");
}

TEST_F(SelectMainFormTest, OfTwoEqualLinesTheFirstIsSelected) {
  main.Commands().Run(Command::AddNewForm);
  tables().Form(2)->Name = "Form1";
  tables().ListaFrms.SetText(2, "Form1 ()");
  EXPECT_EQ(main.Forms().MainFormDialog().Selected(), 0);
  EXPECT_EQ(main.Forms().Marks().MainForm, 1);
}

TEST_F(SelectMainFormTest, CancelChangesNothing) {
  AddForms(1);
  view.OnFormMain = [this] {
    FormMain dialog(tables());
    dialog.List1_Click(1);
  };
  main.Commands().Run(Command::SelectMainForm);
  EXPECT_EQ(tables().MainFormName, "Form1 ()");
}

TEST_F(SelectMainFormTest, AnyTextIsTakenAsItStands) {
  FormMain dialog(tables());
  dialog.Text1_Change("  nobody ( ");
  main.Forms().TakeMainForm(dialog);
  EXPECT_EQ(tables().MainFormName, "  nobody ( ");
  EXPECT_EQ(main.Forms().Marks().MainForm, 0);
}

TEST_F(SelectMainFormTest, AMainFormThatIsInNoLineSelectsNone) {
  tables().MainFormName = "Gone ()";
  FormMain dialog(tables());
  EXPECT_EQ(dialog.Selected(), -1);
  EXPECT_EQ(dialog.Text1(), "Gone ()");
  dialog.List1_Click(5);
  dialog.List1_Click(-1);
  EXPECT_EQ(dialog.Text1(), "Gone ()");
}

TEST_F(SelectMainFormTest, TheTextGoesOutOfDateWhenTheFormIsSavedAndItsNameStillMarksIt) {
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn"});
  EXPECT_EQ(tables().MainFormName, "Form1 ()");
  EXPECT_EQ(Lines(), std::vector<std::string>{"Form1 (one.ftn)"});
  EXPECT_EQ(main.Forms().Marks().MainForm, 1);
}

TEST_F(SelectMainFormTest, AmongFormsOfOneNameTheWholeTextDecides) {
  AddForms(1);
  tables().Form(2)->Name = "Form1";
  SaveUnder("Z:\\p\\a.tnp", {"Z:\\p\\one.ftn", "Z:\\p\\two.ftn"});
  EXPECT_EQ(main.Forms().Marks().MainForm, 1);
  tables().MainFormName = "Form1 (two.ftn)";
  EXPECT_EQ(main.Forms().Marks().MainForm, 2);
}

}  // namespace
}  // namespace tarnwick
