// What the property sheet leaves in the history: one step for a stay in a row, one for each choice,
// picker, dialog and reset.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "../designer/history/project_text.h"
#include "inspector/form_add_items.h"
#include "sheet_bench.h"

namespace tarnwick {
namespace {

/// A bench whose history begins with the objects that stand there.
struct StepsBench : SheetBench {
  /// Takes the last step back and shows the selection again, as the main window does.
  std::string UndoOne() {
    const std::string name(Steps.UndoName());
    EXPECT_TRUE(Steps.Undo());
    Sheet.FillCombo();
    Sheet.ShowSelection();
    return name;
  }
  std::string State() { return ProjectText(Tables, WithSelection::No); }
  void TypeKeys(std::string_view row, std::string_view text) {
    Sheet.SelectRow(RowOf(row));
    for (std::size_t keys = 1; keys <= text.size(); ++keys) Sheet.ApplyText(text.substr(0, keys));
  }
};

TEST(RowSteps, TwoRowsTypedInAreTwoStepsNamedAfterRowAndObject) {
  StepsBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  const std::string before = bench.State();
  bench.TypeKeys("Caption", "Go on");
  bench.Sheet.LeaveRow();
  bench.TypeKeys("Width", "120");
  bench.Sheet.LeaveRow();
  ASSERT_EQ(bench.Steps.Size(), 2U);
  EXPECT_EQ(bench.UndoOne(), "Edit Width of Form1Btn1");
  EXPECT_EQ(button->Width, 75 * 15);
  EXPECT_EQ(bench.Text("Width"), "75");
  EXPECT_EQ(button->Caption, "Go on");
  EXPECT_EQ(bench.UndoOne(), "Edit Caption of Form1Btn1");
  EXPECT_EQ(button->Caption, "Form1Btn1");
  EXPECT_EQ(bench.Text("Caption"), "Form1Btn1");
  EXPECT_EQ(bench.State(), before);
  EXPECT_TRUE(bench.Steps.Redo());
  EXPECT_TRUE(bench.Steps.Redo());
  EXPECT_EQ(button->Caption, "Go on");
  EXPECT_EQ(button->Width, 120 * 15);
}

TEST(RowSteps, AValueOfTheRecordComesBackInRecordAndGrid) {
  StepsBench bench;
  bench.Make(Kind::Button);
  bench.Type("TabOrder", "7");
  bench.Sheet.LeaveRow();
  EXPECT_EQ(bench.Record().Buttons.At(1)->TabOrder, 7);
  EXPECT_EQ(bench.UndoOne(), "Edit TabOrder of Form1Btn1");
  EXPECT_EQ(bench.Record().Buttons.At(1)->TabOrder, 0);
  EXPECT_EQ(bench.Text("TabOrder"), "0");
}

TEST(RowSteps, AnotherRowEndsTheStayBeforeIt) {
  StepsBench bench;
  bench.Make(Kind::Button);
  bench.TypeKeys("Caption", "A");
  bench.TypeKeys("Hint", "B");
  EXPECT_EQ(bench.Steps.Size(), 1U);
  EXPECT_EQ(bench.Steps.UndoName(), "Edit Hint of Form1Btn1") << "the stay that goes on";
}

TEST(RowSteps, ARowThatIsEnteredAgainIsAnotherStep) {
  StepsBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.TypeKeys("Caption", "One");
  bench.Sheet.LeaveRow();
  bench.TypeKeys("Caption", "Two");
  bench.Sheet.LeaveRow();
  ASSERT_EQ(bench.Steps.Size(), 2U);
  bench.UndoOne();
  EXPECT_EQ(button->Caption, "One");
}

TEST(RowSteps, TheSameRowOfAnotherObjectIsAnotherStep) {
  StepsBench bench;
  const ControlRef first = bench.Make(Kind::Button);
  const ControlRef second = bench.Make(Kind::Button, 1500, 1500);
  bench.TypeKeys("Caption", "Two");
  bench.Pick(first);
  bench.TypeKeys("Caption", "One");
  bench.Sheet.LeaveRow();
  ASSERT_EQ(bench.Steps.Size(), 2U);
  EXPECT_EQ(bench.UndoOne(), "Edit Caption of Form1Btn1");
  EXPECT_EQ(bench.UndoOne(), "Edit Caption of Form1Btn2");
  EXPECT_EQ(second->Caption, "Form1Btn2");
}

TEST(RowSteps, UndoInTheMidstOfTypingTakesTheWholeStayBackAndTypingGoesOn) {
  StepsBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.TypeKeys("Caption", "Half a wo");
  EXPECT_EQ(bench.UndoOne(), "Edit Caption of Form1Btn1");
  EXPECT_EQ(button->Caption, "Form1Btn1");
  EXPECT_EQ(bench.Text("Caption"), "Form1Btn1");
  EXPECT_FALSE(bench.Steps.CanUndo());
  bench.TypeKeys("Caption", "New");
  bench.Sheet.LeaveRow();
  EXPECT_EQ(button->Caption, "New");
  EXPECT_EQ(bench.Steps.Size(), 1U);
  EXPECT_FALSE(bench.Steps.CanRedo()) << "something else was done since";
}

TEST(RowSteps, EscInARowLeavesNoStep) {
  StepsBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.TypeKeys("Caption", "Never mind");
  EXPECT_TRUE(bench.Sheet.Revert());
  bench.Sheet.LeaveRow();
  EXPECT_EQ(button->Caption, "Form1Btn1");
  EXPECT_FALSE(bench.Steps.CanUndo());
}

TEST(RowSteps, AfterAnUndoEscPutsBackWhatTheUndoLeft) {
  StepsBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.TypeKeys("Caption", "One");
  bench.Sheet.LeaveRow();
  bench.TypeKeys("Caption", "Two");
  bench.UndoOne();
  bench.TypeKeys("Caption", "Three");
  EXPECT_TRUE(bench.Sheet.Revert());
  EXPECT_EQ(button->Caption, "One");
}

TEST(RowSteps, ARefusedTextLeavesNoStepAndOffersNone) {
  StepsBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Type("Width", "-5");
  EXPECT_FALSE(bench.Steps.CanUndo());
  bench.Type("Cursor", "crNo such");
  EXPECT_FALSE(bench.Steps.CanUndo());
  bench.TypeKeys("TabOrder", "70000");
  bench.Sheet.LeaveRow();
  EXPECT_FALSE(bench.Steps.CanUndo());
  EXPECT_EQ(button->Width, 75 * 15);
}

TEST(RowSteps, AnEmptiedNumberGoesOnInTheSameStay) {
  StepsBench bench;
  bench.Make(Kind::Button);
  bench.Type("Width", "7");
  bench.Type("Width", "");
  bench.Type("Width", "9");
  bench.Sheet.LeaveRow();
  EXPECT_EQ(bench.Steps.Size(), 1U);
}

TEST(RowSteps, EachChosenValueIsAStep) {
  StepsBench bench;
  bench.Make(Kind::Button);
  bench.Choose("Cursor", 3);
  bench.Choose("Cursor", 5);
  bench.Choose("Enabled", 0);
  ASSERT_EQ(bench.Steps.Size(), 3U);
  EXPECT_EQ(bench.UndoOne(), "Edit Enabled of Form1Btn1");
  EXPECT_EQ(bench.Text("Enabled"), "True");
  EXPECT_EQ(bench.UndoOne(), "Edit Cursor of Form1Btn1");
  EXPECT_EQ(bench.Text("Cursor"), "crCross");
  EXPECT_EQ(bench.Record().Buttons.At(1)->Cursor, 3);
}

TEST(RowSteps, AChoiceEndsWhatWasTypedInItsRow) {
  StepsBench bench;
  bench.Make(Kind::Button);
  bench.Type("Cursor", "crCross");
  bench.Sheet.ApplyChoice("crSize", 5);
  ASSERT_EQ(bench.Steps.Size(), 2U);
  bench.UndoOne();
  EXPECT_EQ(bench.Record().Buttons.At(1)->Cursor, 3);
}

TEST(RowSteps, APickedFontIsOneStepWithItsColour) {
  StepsBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  const std::string before = bench.State();
  bench.Fakes.Dialogs.FontAnswers.push_back(FontChoice{"Courier New", 14, true, false, 255});
  bench.PressButton("Font");
  EXPECT_EQ(bench.Text("FontColor"), "255");
  ASSERT_EQ(bench.Steps.Size(), 1U);
  EXPECT_EQ(bench.UndoOne(), "Edit Font of Form1Btn1");
  EXPECT_EQ(bench.State(), before);
  EXPECT_EQ(bench.Text("Font"), "MS Sans Serif");
  EXPECT_EQ(bench.Text("FontColor"), "0");
  EXPECT_EQ(bench.Sheet.RowFont(bench.RowOf("Font"))->Size, 8);
  EXPECT_EQ(button->FontName, "MS Sans Serif");
}

TEST(RowSteps, PickedFilesColoursAndFoldersAreAStepEach) {
  StepsBench bench;
  bench.Host.Pictures = {"C:\\a.bmp"};
  const ControlRef button = bench.Make(Kind::Button);
  const std::string before = bench.State();
  bench.Fakes.Dialogs.OpenAnswers.push_back("C:\\a.bmp");
  bench.PressButton("BmpHandle");
  bench.Fakes.Dialogs.ColorAnswers.push_back(77);
  bench.PressButton("FontColor");
  ASSERT_EQ(bench.Steps.Size(), 2U);
  EXPECT_EQ(bench.UndoOne(), "Edit FontColor of Form1Btn1");
  EXPECT_EQ(bench.UndoOne(), "Edit BmpHandle of Form1Btn1");
  EXPECT_EQ(bench.State(), before);
  EXPECT_EQ(button->Picture, "");

  bench.Make(Kind::OpenDialog);
  bench.Steps.Clear();
  bench.Fakes.Dialogs.FolderAnswers.push_back("C:\\here");
  bench.PressButton("InitialDir");
  EXPECT_EQ(bench.UndoOne().substr(0, 19), "Edit InitialDir of ");
  EXPECT_EQ(bench.Text("InitialDir"), "");
}

TEST(RowSteps, ACancelledPickerLeavesNoStep) {
  StepsBench bench;
  bench.Make(Kind::Button);
  for (const std::string_view row : {"Font", "FontColor", "BmpHandle"}) bench.PressButton(row);
  EXPECT_FALSE(bench.Steps.CanUndo());
}

TEST(RowSteps, AResetIsOneStepWithThePictureThatItTakesAway) {
  StepsBench bench;
  bench.Host.Pictures = {"C:\\T\\iconapp.ico", "C:\\a.ico"};
  bench.Pick(nullptr);
  bench.Type("IcoHandle", "C:\\a.ico");
  bench.Sheet.LeaveRow();
  bench.Sheet.SelectRow(bench.RowOf("IcoHandle"));
  bench.Sheet.ResetValue();
  ASSERT_EQ(bench.Steps.Size(), 2U);
  EXPECT_EQ(bench.Text("IcoHandle"), "(Default)");
  EXPECT_EQ(bench.UndoOne(), "Edit IcoHandle of Form1");
  EXPECT_EQ(bench.Text("IcoHandle"), "C:\\a.ico");
  EXPECT_EQ(bench.Record().IconFile, "C:\\a.ico");
  EXPECT_EQ(bench.Form().WindowIcon, "C:\\a.ico");
}

TEST(RowSteps, TheItemsOfAListAreOneStep) {
  StepsBench bench;
  const ControlRef list = bench.Make(Kind::ListBox);
  const std::vector<std::string> before = list->Items;
  FormAddItems dialog{bench.Tables, bench.Observer, bench.Steps, bench.Form()};
  EXPECT_TRUE(dialog.Ok("one\r\ntwo"));
  EXPECT_EQ(bench.UndoOne(), "Edit AddItems of Form1List1");
  EXPECT_EQ(bench.Record().ListBoxes.At(1)->Items, "");
  EXPECT_EQ(list->Items, before);
  EXPECT_TRUE(bench.Steps.Redo());
  EXPECT_EQ(list->Items, (std::vector<std::string>{"one", "two"}));
}

TEST(RowSteps, ARenameIsOneStepAndComesBackEverywhere) {
  StepsBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.TypeKeys("Name", "Start");
  bench.Sheet.LeaveRow();
  EXPECT_EQ(bench.ComboRows().back(), "Start   (Button)");
  ASSERT_EQ(bench.Steps.Size(), 1U);
  EXPECT_EQ(bench.UndoOne(), "Edit Name of Form1Btn1") << "by the name that it had";
  EXPECT_EQ(button->Tag, "Form1Btn1");
  EXPECT_EQ(bench.Text("Name"), "Form1Btn1");
  EXPECT_EQ(bench.ComboRows().back(), "Form1Btn1   (Button)");
}

TEST(RowSteps, ARenamedFormComesBackInBothLists) {
  StepsBench bench;
  bench.Pick(nullptr);
  bench.TypeKeys("Name", "Main");
  bench.Sheet.LeaveRow();
  EXPECT_EQ(bench.UndoOne(), "Edit Name of Form1");
  EXPECT_EQ(bench.Record().Name, "Form1");
  EXPECT_EQ(bench.Tables.ListaFrms.Lines().front().Text, "Form1 ()");
  EXPECT_EQ(bench.ComboRows().front(), "Form1   (Form)");
}

TEST(RowSteps, AStepOfTheSurfaceEndsTheStayInARow) {
  StepsBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.TypeKeys("Caption", "Go");
  {
    const HistoryStep step(bench.Steps, 1, "Move");
    button->Left += 150;
  }
  ASSERT_EQ(bench.Steps.Size(), 2U);
  EXPECT_EQ(bench.UndoOne(), "Move");
  EXPECT_EQ(button->Caption, "Go");
  EXPECT_EQ(bench.UndoOne(), "Edit Caption of Form1Btn1");
}

TEST(RowSteps, AnEditWithinAStepIsPartOfIt) {
  StepsBench bench;
  bench.Make(Kind::Button);
  {
    const HistoryStep step(bench.Steps, 1, "Both");
    bench.Type("Caption", "Go");
    bench.Choose("Cursor", 2);
  }
  ASSERT_EQ(bench.Steps.Size(), 1U);
  EXPECT_EQ(bench.Steps.UndoName(), "Both");
}

}  // namespace
}  // namespace tarnwick
