// Edits in the grid, one by one. That every row of every kind reads back is shown beside this.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sheet_bench.h"

namespace tarnwick {
namespace {

using Rows = std::vector<std::string>;

TEST(PropertyEdits, EachKeystrokeInANumberRowApplies) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Width"));
  EXPECT_TRUE(bench.Sheet.ApplyText("1"));
  EXPECT_EQ(button->Width, 15.0F);
  EXPECT_TRUE(bench.Sheet.ApplyText("12"));
  EXPECT_EQ(button->Width, 180.0F);
  EXPECT_TRUE(bench.Sheet.ApplyText("120"));
  EXPECT_EQ(button->Width, 1800.0F);
}

TEST(PropertyEdits, NumbersAreReadByTheirLeadingDigits) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Type("Left", "12abc");
  EXPECT_EQ(button->Left, 180.0F);
  bench.Type("Left", "abc");
  EXPECT_EQ(button->Left, 0.0F);
}

TEST(PropertyEdits, WidthOfAFormIsInPixelsAndItsWindowInTwips) {
  SheetBench bench;
  bench.Pick(nullptr);
  EXPECT_TRUE(bench.Type("Width", "200"));
  EXPECT_EQ(bench.Record().Width, 200);
  EXPECT_EQ(bench.Form().Width, 3000.0F);
  EXPECT_TRUE(bench.Logged("form 1"));
}

TEST(PropertyEdits, LeftAndTopOfAFormAreTheProgramsAlone) {
  SheetBench bench;
  bench.Pick(nullptr);
  bench.Form().Left = 45;
  bench.Type("Left", "120");
  EXPECT_EQ(bench.Record().Left, 120);
  EXPECT_EQ(bench.Form().Left, 45.0F);
}

TEST(PropertyEdits, ATransparentFramesPlaceGoesToItsFieldAndMovesTheControl) {
  SheetBench bench;
  const ControlRef frame = bench.Make(Kind::TransparentFrame);
  bench.Type("Left", "33");
  bench.Type("Height", "44");
  EXPECT_EQ(bench.Record().TfLeft, 33);
  EXPECT_EQ(frame->Left, 495.0F);
  EXPECT_EQ(bench.Record().TfHeight, 44);
  EXPECT_EQ(frame->Height, 660.0F);
}

TEST(PropertyEdits, ValuesThatAPlaceRefusesAreDroppedAndTheTextStays) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  EXPECT_FALSE(bench.Type("TabOrder", "40000"));
  EXPECT_EQ(bench.Record().Buttons.At(1)->TabOrder, 0);
  EXPECT_EQ(bench.Text("TabOrder"), "40000");
  EXPECT_FALSE(bench.Type("Width", "-5"));
  EXPECT_EQ(button->Width, 75 * 15.0F);
  bench.Sheet.ShowSelection();
  EXPECT_EQ(bench.Text("TabOrder"), "0");
  EXPECT_EQ(bench.Text("Width"), "75");
  bench.Pick(nullptr);
  EXPECT_FALSE(bench.Type("Height", "70000"));
  EXPECT_EQ(bench.Record().Height, 333);
  EXPECT_EQ(bench.Form().Height, 5000.0F);
}

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

TEST(PropertyEdits, ColorOfAFormPaintsTheWindowAnew) {
  SheetBench bench;
  bench.Pick(nullptr);
  bench.Type("Color", "255");
  EXPECT_EQ(bench.Form().BackColor, 255);
  EXPECT_TRUE(bench.Logged("recolor"));
}

TEST(PropertyEdits, FontColorOfAButtonGoesToItsRecord) {
  SheetBench bench;
  bench.Make(Kind::Button);
  EXPECT_TRUE(bench.Type("FontColor", "65280"));
  EXPECT_EQ(bench.Record().Buttons.At(1)->FontColor, 65280);
  const ControlRef label = bench.Make(Kind::Label);
  EXPECT_TRUE(bench.Type("FontColor", "16711680"));
  EXPECT_EQ(label->ForeColor, 16711680);
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

TEST(PropertyEdits, IcoHandleOfAFormWritesBothIconsAndLoadsTheWindows) {
  SheetBench bench;
  bench.Host.Pictures = {"C:\\i.ico", "C:\\T\\iconapp.ico"};
  bench.Pick(nullptr);
  bench.Type("IcoHandle", "C:\\i.ico");
  EXPECT_EQ(bench.Record().ImageFile, "C:\\i.ico");
  EXPECT_EQ(bench.Record().IconFile, "C:\\i.ico");
  EXPECT_EQ(bench.Form().WindowIcon, "C:\\i.ico");
  EXPECT_EQ(bench.Text("Icon(App)"), "C:\\i.ico");
  bench.Type("IcoHandle", "(Default)");
  EXPECT_EQ(bench.Form().WindowIcon, "C:\\T\\iconapp.ico");
}

TEST(PropertyEdits, IconAppWritesTheProjectIconAlone) {
  SheetBench bench;
  bench.Host.Pictures = {"C:\\i.ico"};
  bench.Pick(nullptr);
  bench.Type("Icon(App)", "C:\\i.ico");
  EXPECT_EQ(bench.Record().IconFile, "C:\\i.ico");
  EXPECT_EQ(bench.Record().ImageFile, "(Default)");
  EXPECT_EQ(bench.Form().WindowIcon, "");
  EXPECT_EQ(bench.Text("IcoHandle"), "(Default)");
}

TEST(PropertyEdits, AFileThatIsNoPictureLeavesThePictureAndKeepsTheText) {
  SheetBench bench;
  bench.Host.Pictures = {"C:\\a.bmp"};
  const ControlRef image = bench.Make(Kind::Image);
  bench.Type("BmpHandle", "C:\\a.bmp");
  EXPECT_EQ(image->Picture, "C:\\a.bmp");
  bench.Type("BmpHandle", "C:\\a.bm");
  EXPECT_EQ(image->Picture, "C:\\a.bmp");
  EXPECT_EQ(bench.Record().Images.At(1)->ImageFile, "C:\\a.bm");
  EXPECT_EQ(bench.Text("BmpHandle"), "C:\\a.bm");
}

TEST(PropertyEdits, ARelativePictureIsFoundInTheProject) {
  SheetBench bench;
  bench.Host.Pictures = {"C:\\P\\pics\\a.bmp"};
  bench.Tables.ProgramFolder = "D:\\T";
  const ControlRef button = bench.Make(Kind::Button);
  bench.Type("BmpHandle", "pics\\a.bmp");
  EXPECT_EQ(bench.Record().Buttons.At(1)->ImageFile, "pics\\a.bmp");
  EXPECT_EQ(button->Picture, "C:\\P\\pics\\a.bmp");
}

TEST(PropertyEdits, BmpHandleNamesTheResourceInTheRecord) {
  SheetBench bench;
  bench.Make(Kind::Image);
  bench.Type("BmpHandle", "a.bmp");
  EXPECT_EQ(bench.Record().Images.At(1)->Title, "Frm1Image1_Bmp");
  bench.Make(Kind::Button);
  bench.Type("BmpHandle", "a.bmp");
  EXPECT_EQ(bench.Record().Buttons.At(1)->Title, "Frm1Btn1_Bmp");
  EXPECT_EQ(bench.Text("Caption"), "Form1Btn1");
  bench.Type("BmpHandle", "(None)");
  EXPECT_EQ(bench.Record().Buttons.At(1)->Title, "(None)");
}

TEST(PropertyEdits, NoneInIcoHandleRemovesTheImagesPicture) {
  SupportTables rows;
  AddKindFile(rows, "[IMAGE]\x8DIcoHandle\x99\x8E");
  SheetBench bench{rows};
  bench.Host.Pictures = {"C:\\a.ico"};
  const ControlRef image = bench.Make(Kind::Image);
  bench.Type("IcoHandle", "C:\\a.ico");
  EXPECT_EQ(bench.Record().Images.At(1)->PictureName, "C:\\a.ico");
  EXPECT_EQ(image->Picture, "C:\\a.ico");
  bench.Type("IcoHandle", "(None)");
  EXPECT_EQ(image->Picture, "");
  EXPECT_EQ(bench.Record().Images.At(1)->PictureName, "(None)");
}

// Names.

TEST(PropertyEdits, RenamingAnObjectLeavesItsCodeWhereItIs) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Tables.EventTable.Replace("Form1.Button1.OnClick", "code");
  const std::size_t keys = bench.Tables.EventTable.Size();
  EXPECT_TRUE(bench.Type("Name", "Ok"));
  EXPECT_EQ(button->Tag, "Ok");
  EXPECT_EQ(*bench.Tables.EventTable.Find("Form1.Button1.OnClick"), "code");
  EXPECT_NE(bench.Tables.EventTable.Find("Form1.Form1Btn1.OnClick"), nullptr);
  EXPECT_EQ(bench.Tables.EventTable.Size(), keys);
}

TEST(PropertyEdits, RenamingAnObjectEditsItsRowOfTheHeadListInPlace) {
  SheetBench bench;
  bench.Make(Kind::Image);
  bench.Make(Kind::Button);
  bench.Type("Name", "Ok");
  EXPECT_EQ(bench.ComboRows(), (Rows{"Form1   (Form)", "Form1Image1   (Images)", "Ok   (Button)"}));
  EXPECT_EQ(bench.Sheet.Combo().Selected(), 2);
  EXPECT_TRUE(bench.Logged("name Form1Btn1>Ok"));
  EXPECT_TRUE(bench.Logged("bar 1"));
}

TEST(PropertyEdits, RenamingPassesThroughTheNameOfAnother) {
  SheetBench bench;
  bench.Make(Kind::Button)->Tag = "A";
  bench.Make(Kind::Button)->Tag = "B";
  bench.Sheet.FillCombo();
  bench.Sheet.ShowSelection();
  bench.Sheet.SelectRow(0);
  for (const char* text : {"", "A", "AB"}) EXPECT_TRUE(bench.Sheet.ApplyText(text));
  EXPECT_EQ(bench.ComboRows(), (Rows{"Form1   (Form)", "A   (Button)", "AB   (Button)"}));
}

TEST(PropertyEdits, ADuplicateOrIllegalNameGivesNoMessage) {
  SheetBench bench;
  bench.Make(Kind::Button);
  const ControlRef second = bench.Make(Kind::Button);
  EXPECT_TRUE(bench.Type("Name", "Form1Btn1"));
  EXPECT_TRUE(bench.Type("Name", "no name, really"));
  EXPECT_EQ(second->Tag, "no name, really");
  EXPECT_EQ(bench.Fakes.Log.Count("show"), 0U);
}

TEST(PropertyEdits, RenamingAFormChangesRecordListBarAndHeadRow) {
  SheetBench bench;
  bench.Record().FileName = "C:\\P\\one.ftn";
  bench.Pick(nullptr);
  EXPECT_TRUE(bench.Type("Name", "Main"));
  EXPECT_EQ(bench.Record().Name, "Main");
  EXPECT_EQ(bench.Tables.ListaFrms.Lines()[0].Text, "Main (one.ftn)");
  EXPECT_EQ(bench.Tables.Bar(1)->Caption, "Main  Procedures");
  EXPECT_EQ(bench.ComboRows()[0], "Main   (Form)");
  EXPECT_EQ(bench.Sheet.SelName(), "Main");
  EXPECT_EQ(bench.Form().Caption, "Form1");
  EXPECT_TRUE(bench.Logged("list"));
  EXPECT_TRUE(bench.Logged("name Form1>Main"));
}

TEST(PropertyEdits, TheMainFormFollowsARenameOnlyWhenItsWholeTextIsTheName) {
  SheetBench bench;
  bench.Pick(nullptr);
  bench.Type("Name", "Main");
  EXPECT_EQ(bench.Tables.MainFormName, "Form1 ()");
  bench.Tables.MainFormName = "Main";
  bench.Type("Name", "First");
  EXPECT_EQ(bench.Tables.MainFormName, "First");
  bench.Tables.MainFormName = "FIRST";
  bench.Type("Name", "Second");
  EXPECT_EQ(bench.Tables.MainFormName, "FIRST");
}

TEST(PropertyEdits, EditsDoNotMarkTheProjectAsChanged) {
  SheetBench bench;
  bench.Tables.AccionProject = "save";
  bench.Make(Kind::Button);
  bench.Type("Caption", "x");
  EXPECT_EQ(bench.Tables.AccionProject, "save");
}

// SyncRow.

TEST(PropertyEdits, SyncRowBringsTheFormsSizeFromItsWindow) {
  SheetBench bench;
  bench.Pick(nullptr);
  bench.Form().Width = 3000;
  bench.Form().Left = 990;
  bench.Sheet.SyncRow("Form", "width");
  bench.Sheet.SyncRow("Form", "left");
  EXPECT_EQ(bench.Record().Width, 200);
  EXPECT_EQ(bench.Record().Left, 0);
  EXPECT_EQ(bench.Text("Width"), "200");
}

TEST(PropertyEdits, SyncRowBringsAFramesPlaceFromItsControl) {
  SheetBench bench;
  const ControlRef frame = bench.Make(Kind::TransparentFrame);
  frame->Left = 300;
  frame->Top = 457;
  bench.Sheet.SetPanelVisible(false);
  bench.Sheet.SyncRow("TransparentFrame", "left");
  bench.Sheet.SyncRow("TransparentFrame", "top");
  EXPECT_EQ(bench.Record().TfLeft, 20);
  EXPECT_EQ(bench.Record().TfTop, 30);
}

TEST(PropertyEdits, SyncRowOfOtherObjectsHasNothingToBring) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  button->Left = 300;
  bench.Sheet.SyncRow("Button1", "left");
  bench.Sheet.SyncRow("Label1", "left");
  bench.Sheet.SyncRow("", "left");
  EXPECT_EQ(button->Left, 300.0F);
}

TEST(PropertyEdits, SyncRowOfASelectionRowStoresTheSharedChoice) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Choose("Cursor", 7);
  const ControlRef label = bench.Make(Kind::Label);
  bench.Sheet.SyncRow("Label1", "cursor");
  EXPECT_EQ(bench.Record().Labels.At(1)->Cursor, 7);
  EXPECT_EQ(bench.Text("Cursor"), "crSizeNS");
}

TEST(PropertyEdits, ATypedTabOrderGoesToTheRecord) {
  SheetBench bench;
  bench.Make(Kind::Button);
  EXPECT_TRUE(bench.Type("TabOrder", "5"));
  EXPECT_EQ(bench.Record().Buttons.At(1)->TabOrder, 5);
}

// What a row shows is what is stored.

TEST(PropertyEdits, ANumberThatIsRefusedPutsBackTheValueBeforeIt) {
  struct Case {
    Kind On;
    const char* Row;
    std::vector<const char*> Keys;
  };
  for (const Case& c :
       {Case{Kind::Button, "TabOrder", {"7", "70", "700", "7000", "70000"}},
        Case{Kind::Button, "FontColor", {"429496729", "4294967296"}},
        Case{Kind::Button, "Width", {"-", "-5"}}, Case{Kind::Form, "Height", {"7000", "70000"}},
        Case{Kind::Time, "Interval", {"4000", "40000"}},
        Case{Kind::TransparentFrame, "Width", {"4000", "40000"}}}) {
    SheetBench bench;
    bench.MakeOrForm(c.On);
    const std::string before = bench.Text(c.Row);
    bench.Sheet.SelectRow(bench.RowOf(c.Row));
    for (const char* text : c.Keys) bench.Sheet.ApplyText(text);
    EXPECT_EQ(bench.Text(c.Row), c.Keys.back()) << c.Row;
    bench.Sheet.LeaveRow();
    EXPECT_EQ(bench.Text(c.Row), before) << c.Row;
    bench.Sheet.ShowSelection();
    EXPECT_EQ(bench.Text(c.Row), before) << c.Row;
  }
}

TEST(PropertyEdits, ANumberThatIsCorrectedAfterARefusalIsStored) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("TabOrder"));
  EXPECT_FALSE(bench.Sheet.ApplyText("70000"));
  EXPECT_TRUE(bench.Sheet.ApplyText("700"));
  EXPECT_EQ(bench.Record().Buttons.At(1)->TabOrder, 700);
}

TEST(PropertyEdits, AnEmptiedNumberRowAndASignAloneApplyNothing) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  for (const char* text : {"", "-", "+", ".", " "}) {
    EXPECT_FALSE(bench.Type("Width", text)) << text;
    EXPECT_EQ(button->Width, 75 * 15.0F) << text;
  }
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  EXPECT_EQ(bench.Text("Width"), "75");
}

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

TEST(PropertyEdits, AColourIsTypedAsANameANumberOrInHexadecimal) {
  SheetBench bench;
  const ControlRef label = bench.Make(Kind::Label);
  const struct {
    const char* Typed;
    std::int32_t Colour;
  } cases[] = {{"255", 255},
               {"clRed", 255},
               {"CLBLUE", 16711680},
               {"clScrollBar", -2147483647 - 1},
               {"clBtnFace", -2147483633},
               {"&HFF", 255},
               {"&h00ff00", 65280},
               {"&H80000005", -2147483643},
               {"$FF", 255},
               {"$FF0000", 255},
               {"$0000ff", 16711680},
               {" clWhite ", 16777215},
               {"-2147483633", -2147483633}};
  for (const auto& c : cases) {
    label->BackColor = 1;
    bench.Sheet.ShowSelection();
    EXPECT_TRUE(bench.Type("Color", c.Typed)) << c.Typed;
    EXPECT_EQ(label->BackColor, c.Colour) << c.Typed;
    bench.Sheet.LeaveRow();
    EXPECT_EQ(bench.Text("Color"), std::to_string(c.Colour)) << c.Typed;
  }
}

TEST(PropertyEdits, AHalfTypedColourChangesNothing) {
  SheetBench bench;
  const ControlRef label = bench.Make(Kind::Label);
  for (const char* text : {"c", "clRe", "&", "&H", "$", "&HXY", "$GG", "red"}) {
    EXPECT_FALSE(bench.Type("Color", text)) << text;
    EXPECT_EQ(label->BackColor, 12632256) << text;
  }
  EXPECT_FALSE(bench.Type("Color", "&H123456789"));
  EXPECT_EQ(label->BackColor, 12632256);
  bench.Sheet.LeaveRow();
  EXPECT_EQ(bench.Text("Color"), "12632256");
}

TEST(PropertyEdits, EveryColourRowTakesNames) {
  SheetBench bench;
  bench.Pick(nullptr);
  EXPECT_TRUE(bench.Type("Color", "clBlue"));
  EXPECT_EQ(bench.Form().BackColor, 16711680);
  bench.Make(Kind::Button);
  EXPECT_TRUE(bench.Type("FontColor", "clRed"));
  EXPECT_EQ(bench.Record().Buttons.At(1)->FontColor, 255);
  bench.Make(Kind::TransparentFrame);
  EXPECT_TRUE(bench.Type("TranspColor", "clGreen"));
  EXPECT_EQ(bench.Record().TfTranspColor, 65280);
}

TEST(PropertyEdits, NoneInAnyLettersIsNone) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  button->Picture = "C:\\a.bmp";
  bench.Type("BmpHandle", "(none)");
  EXPECT_EQ(bench.Record().Buttons.At(1)->ImageFile, "(None)");
  EXPECT_EQ(button->Picture, "");
  bench.Sheet.LeaveRow();
  EXPECT_EQ(bench.Text("BmpHandle"), "(None)");
  bench.Pick(nullptr);
  bench.Type("IcoHandle", "(DEFAULT)");
  EXPECT_EQ(bench.Record().ImageFile, "(Default)");
}

TEST(PropertyEdits, AnEmptyFileRowReadsNone) {
  SheetBench bench;
  bench.Make(Kind::HtmlViewer);
  bench.Type("Navigate", "page.htm");
  bench.Type("Navigate", "");
  bench.Sheet.LeaveRow();
  EXPECT_EQ(bench.Text("Navigate"), "(None)");
}

TEST(PropertyEdits, APageIsShownByTheViewerOnTheForm) {
  SheetBench bench;
  const ControlRef viewer = bench.Make(Kind::HtmlViewer);
  bench.Type("Navigate", "C:\\a.htm");
  EXPECT_EQ(viewer->Text, "C:\\a.htm");
  EXPECT_TRUE(bench.Logged("controls 1"));
}

TEST(PropertyEdits, EditsOfPlaceAndSizeMoveTheHandles) {
  for (const char* row : {"Left", "Top", "Width", "Height"}) {
    SheetBench bench;
    bench.Make(Kind::Button);
    bench.Fakes.Log.Clear();
    bench.Type(row, "40");
    EXPECT_TRUE(bench.Logged("place 1")) << row;
  }
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Fakes.Log.Clear();
  bench.Type("Caption", "40");
  bench.Pick(nullptr);
  bench.Type("Width", "400");
  EXPECT_EQ(bench.Fakes.Log.Count("place"), 0U);
}

}  // namespace
}  // namespace tarnwick
