// Edits in the grid: whom they reach, what a choice and a typed text do, and what a row shows when
// it is left. That every row of every kind reads back is shown beside this.
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "sheet_bench.h"

namespace tarnwick {
namespace {

TEST(PropertyEdits, ATextThatTheRowShowsAlreadyIsNoEdit) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  button->Left = 1003;
  bench.Sheet.ShowSelection();
  EXPECT_FALSE(bench.Type("Left", bench.Text("Left")));
  EXPECT_EQ(button->Left, 1003.0F);
}

TEST(PropertyEdits, AnEditGoesToTheObjectWhoseRowsStand) {
  SheetBench bench;
  const ControlRef first = bench.Make(Kind::Button);
  const ControlRef second = bench.Make(Kind::Button);
  bench.Pick(first);
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  // A press selects the next object before the row loses the focus.
  Select(bench.Form(), second);
  bench.Sheet.ClearPanel();
  EXPECT_TRUE(bench.Sheet.ApplyText("typed"));
  EXPECT_EQ(first->Caption, "typed");
  EXPECT_EQ(second->Caption, "Form1Btn2");
}

TEST(PropertyEdits, ALateTextNeverReachesTheNextObject) {
  SheetBench bench;
  const ControlRef first = bench.Make(Kind::Button);
  const ControlRef second = bench.Make(Kind::Button);
  bench.Pick(first);
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  bench.Pick(second);
  EXPECT_FALSE(bench.Sheet.ApplyText("late"));
  EXPECT_EQ(second->Caption, "Form1Btn2");
}

TEST(PropertyEdits, AnEditOfADeletedObjectGoesNowhere) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  bench.Form().Unload(button);
  EXPECT_FALSE(bench.Sheet.ApplyText("x"));
  EXPECT_FALSE(bench.Sheet.ApplyChoice("True", 1));
  EXPECT_EQ(button->Caption, "Form1Btn1");
}

TEST(PropertyEdits, AFormRemovedMeanwhileTakesNoEdit) {
  SheetBench bench;
  bench.Pick(nullptr);
  bench.Sheet.SelectRow(bench.RowOf("Hint"));
  bench.Record().Removed = 1;
  EXPECT_FALSE(bench.Sheet.ApplyText("x"));
  EXPECT_EQ(bench.Record().Hint, "");
}

TEST(PropertyEdits, AMissingRecordIsMadeByAnEditAndNotByAReading) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Record().Buttons.Clear();
  bench.Sheet.ShowSelection();
  EXPECT_EQ(bench.Text("Enabled"), "False");
  EXPECT_EQ(bench.Record().Buttons.UBound(), 0);
  EXPECT_TRUE(bench.Choose("Enabled", 1));
  EXPECT_EQ(bench.Record().Buttons.At(1)->Enabled, 1);
}

TEST(PropertyEdits, HintOfAFormIsInItsRecordAndOfAnObjectOnTheControl) {
  SheetBench bench;
  bench.Pick(nullptr);
  bench.Type("Hint", "a, b");
  EXPECT_EQ(bench.Record().Hint, "a, b");
  const ControlRef button = bench.Make(Kind::Button);
  bench.Type("Hint", "press");
  EXPECT_EQ(button->ToolTipText, "press");
}

// Rows of lists.

TEST(PropertyEdits, AChoiceIsWrittenIntoTheRowFirst) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.PressButton("Cursor");
  EXPECT_TRUE(bench.Sheet.ApplyChoice("crCross", 3));
  EXPECT_EQ(bench.Text("Cursor"), "crCross");
  EXPECT_FALSE(bench.Sheet.List().IsOpen());
  EXPECT_EQ(bench.Record().Buttons.At(1)->Cursor, 3);
}

TEST(PropertyEdits, ATextTypedIntoAListRowAppliesOnceItNamesAValue) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Enabled"));
  EXPECT_FALSE(bench.Sheet.ApplyText("fals"));
  EXPECT_EQ(bench.Record().Buttons.At(1)->Enabled, 1);
  EXPECT_TRUE(bench.Sheet.ApplyText("false"));
  EXPECT_EQ(bench.Record().Buttons.At(1)->Enabled, 0);
  EXPECT_EQ(bench.Text("Enabled"), "false");
  EXPECT_TRUE(bench.Type("Cursor", "crhelp"));
  EXPECT_EQ(bench.Record().Buttons.At(1)->Cursor, 20);
}

TEST(PropertyEdits, SocketRowsStoreTheTextAndNotThePlace) {
  SheetBench bench;
  bench.Make(Kind::WinSock);
  EXPECT_EQ(bench.Text("Family"), "AF_INET ");
  bench.Choose("Protocol", 2);
  bench.Type("Type", "sock_dgram");
  bench.Type("WMessage", "1025");
  const WinSockRec& record = *bench.Record().WinSocks.At(1);
  EXPECT_EQ(record.Protocol, "IPPROTO_UDP");
  EXPECT_EQ(record.Type, "SOCK_DGRAM");
  EXPECT_EQ(record.WMessage, "1025");
}

TEST(PropertyEdits, ParentStoresTheName) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Make(Kind::PopUpMenu);
  EXPECT_TRUE(bench.Choose("Parent", 1));
  EXPECT_EQ(bench.Record().PopUps.At(1)->PopUpMenu, "Form1Btn1");
  EXPECT_FALSE(bench.Type("Parent", "Form"));
  EXPECT_TRUE(bench.Type("Parent", "Form1"));
  EXPECT_EQ(bench.Record().PopUps.At(1)->PopUpMenu, "Form1");
}

TEST(PropertyEdits, CancelAndDefaultAreMembersOfTheButton) {
  SupportTables rows;
  AddKindFile(rows,
              "[BUTTON]\x8D"
              "Cancel\x97\x95"
              "Default\x97\x8E");
  SheetBench bench{rows};
  const ControlRef button = bench.Make(Kind::Button);
  bench.Choose("Cancel", 1);
  EXPECT_TRUE(button->Cancel);
  EXPECT_EQ(bench.Text("Default"), "False");
  bench.Choose("Cancel", 0);
  EXPECT_FALSE(button->Cancel);
}

TEST(PropertyEdits, TransparentIsTheLabelsBackStyleTurnedRound) {
  SheetBench bench;
  const ControlRef label = bench.Make(Kind::Label);
  EXPECT_EQ(bench.Text("Transparent"), "False");
  bench.Choose("Transparent", 1);
  EXPECT_EQ(label->BackStyle, 0);
  bench.Choose("Transparent", 0);
  EXPECT_EQ(label->BackStyle, 1);
}

TEST(PropertyEdits, CheckedSetsRecordAndControl) {
  SheetBench bench;
  const ControlRef check = bench.Make(Kind::CheckBox);
  bench.Choose("Checked", 1);
  EXPECT_EQ(bench.Record().CheckBoxes.At(1)->Checked, 1);
  EXPECT_EQ(check->Value, 1);
  const ControlRef option = bench.Make(Kind::OptionButton);
  bench.Choose("Checked", 1);
  EXPECT_EQ(bench.Record().OptionButtons.At(1)->Checked, 1);
  EXPECT_EQ(option->Value, -1);
}

TEST(PropertyEdits, WordWrapSetsTheControlAndTheFieldThatIsSaved) {
  SheetBench bench;
  const ControlRef label = bench.Make(Kind::Label);
  bench.Choose("WordWrap", 1);
  EXPECT_TRUE(label->WordWrap);
  EXPECT_EQ(bench.Record().Labels.At(1)->Icon, 1);
  bench.Make(Kind::RichTextBox);
  bench.Choose("WordWrap", 1);
  EXPECT_EQ(bench.Record().RichTextBoxes.At(1)->Icon, 1);
}

TEST(PropertyEdits, BorderStyleOfAFormGoesToWindowAndRecord) {
  SheetBench bench;
  bench.Pick(nullptr);
  bench.Choose("BorderStyle", 4);
  EXPECT_EQ(bench.Record().BorderStyle, 4);
  EXPECT_TRUE(bench.Logged("border 4"));
}

TEST(PropertyEdits, BorderStyleOfTextsIsTheirBorderAndOfListsTheirAppearance) {
  SheetBench bench;
  const ControlRef text = bench.Make(Kind::TextBox);
  bench.Choose("BorderStyle", 0);
  EXPECT_EQ(text->BorderStyle, 0);
  const ControlRef list = bench.Make(Kind::ListBox);
  bench.Choose("BorderStyle", 0);
  EXPECT_EQ(list->Appearance, 0);
  EXPECT_EQ(bench.Text("BorderStyle"), "bsNone");
}

// Pictures and icons.

TEST(PropertyEdits, EditsDoNotMarkTheProjectAsChanged) {
  SheetBench bench;
  bench.Tables.AccionProject = "save";
  bench.Make(Kind::Button);
  bench.Type("Caption", "x");
  EXPECT_EQ(bench.Tables.AccionProject, "save");
}

// SyncRow.

TEST(PropertyEdits, ARowThatIsLeftShowsWhatIsStored) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Type("Left", "12abc");
  EXPECT_EQ(bench.Text("Left"), "12abc");
  bench.Sheet.LeaveRow();
  EXPECT_EQ(bench.Text("Left"), "12");
  bench.Type("TabOrder", "7.5");
  bench.Type("Enabled", "fal");
  EXPECT_EQ(bench.Text("TabOrder"), "8");
  bench.Type("Cursor", "CRHELP");
  EXPECT_EQ(bench.Text("Enabled"), "True");
  bench.Sheet.LeaveRow();
  EXPECT_EQ(bench.Text("Cursor"), "crHelp");
}

TEST(PropertyEdits, RevertPutsBackTheValueAtEntry) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Width"));
  EXPECT_FALSE(bench.Sheet.Revert());
  bench.Sheet.ApplyText("8");
  EXPECT_TRUE(bench.Sheet.Revert());
  EXPECT_EQ(button->Width, 75 * 15.0F);
  EXPECT_EQ(bench.Text("Width"), "75");
  EXPECT_FALSE(bench.Sheet.Revert());
  bench.Sheet.ApplyText("");
  EXPECT_TRUE(bench.Sheet.Revert());
  EXPECT_EQ(bench.Text("Width"), "75");
  bench.Sheet.SelectRow(0);
  bench.Sheet.ApplyText("Other");
  EXPECT_TRUE(bench.Sheet.Revert());
  EXPECT_EQ(button->Tag, "Form1Btn1");
}

TEST(PropertyEdits, LineBreaksAndControlCharactersBecomeBlanks) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Type("Name", "na\nme");
  EXPECT_EQ(button->Tag, "na me");
  EXPECT_EQ(bench.Sheet.Text(0), "na me");
  bench.Type("Caption", "one\r\ntwo\tthree\x7F");
  EXPECT_EQ(button->Caption, "one two three ");
  bench.Type("Hint", std::string_view("a\0b\rc", 5));
  EXPECT_EQ(button->ToolTipText, "a b c");
  bench.Make(Kind::OpenDialog);
  bench.Type("Filter", "Texts\n|*.txt");
  EXPECT_EQ(bench.Record().OpenDialogs.At(1)->Filter, "Texts |*.txt");
}

}  // namespace
}  // namespace tarnwick
