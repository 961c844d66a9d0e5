#include "inspector/property_sheet.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sheet_bench.h"
#include "text/numbers.h"

namespace tarnwick {
namespace {

using Rows = std::vector<std::string>;

TEST(PropertySheet, RowZeroIsTheNameAndRowsFollowTheSupportFile) {
  SheetBench bench;
  bench.Make(Kind::FileStream);
  EXPECT_EQ(bench.Labels(), (Rows{"Name", "Left", "Top"}));
  EXPECT_EQ(bench.Sheet.Text(0), "Form1FileStr1");
  EXPECT_EQ(bench.Sheet.Text(1), "10");
  EXPECT_EQ(bench.Sheet.Text(2), "20");
}

TEST(PropertySheet, ASmallerKindDropsTheSurplusRowsAndTheNameStaysOnTop) {
  SheetBench bench;
  bench.Make(Kind::Button);
  EXPECT_EQ(bench.Sheet.RowCount(), 14);
  bench.Make(Kind::Time);
  EXPECT_EQ(bench.Labels(), (Rows{"Name", "Enabled", "Interval", "Left", "Top"}));
  EXPECT_EQ(bench.Sheet.RowTop(0), 0);
  EXPECT_EQ(bench.Sheet.RowTop(4), 4 * 315);
  EXPECT_EQ(bench.Sheet.RowTop(5), -1);
}

TEST(PropertySheet, DigitsAreTakenOffTheKind) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Make(Kind::Button);
  EXPECT_EQ(bench.Form().NameObjet, "Button2");
  EXPECT_EQ(bench.Sheet.SelKind(), "Button");
  EXPECT_EQ(bench.Sheet.SelName(), "Form1Btn2");
}

TEST(PropertySheet, ArrayNamesOfImagesAndPopupsAreTheirKinds) {
  SheetBench bench;
  bench.Make(Kind::Image);
  bench.Sheet.ShowProperties("Images", "Form1Image1");
  EXPECT_EQ(bench.Sheet.SelKind(), "Image");
  EXPECT_GE(bench.RowOf("Stretch"), 1);
  bench.Make(Kind::PopUpMenu);
  bench.Sheet.ShowProperties("PopUpMnu", "Form1pMenu1");
  EXPECT_EQ(bench.Sheet.SelKind(), "PopupMenu");
  EXPECT_EQ(bench.Text("Parent"), "Form1");
}

TEST(PropertySheet, AKindWithoutRowsGivesAnEmptyGrid) {
  const SupportTables no_rows;
  SheetBench bench{no_rows};
  bench.Make(Kind::Button);
  EXPECT_EQ(bench.Labels(), Rows{"Name"});
  bench.Sheet.ShowProperties("Nothing7", "x");
  EXPECT_EQ(bench.Labels(), Rows{"Name"});
}

TEST(PropertySheet, AMemberThatTheControlLacksLeavesTheRowEmpty) {
  SupportTables rows;
  AddKindFile(rows,
              "[FILESTREAM]\x8D"
              "Caption\x95WordWrap\x97\x95Nonsense\x95Top\x8E");
  SheetBench bench{rows};
  bench.Make(Kind::FileStream);
  EXPECT_EQ(bench.Text("Caption"), "");
  EXPECT_EQ(bench.Text("WordWrap"), "");
  EXPECT_EQ(bench.Text("Nonsense"), "");
  EXPECT_EQ(bench.Text("Top"), "20");
}

TEST(PropertySheet, WhileThePanelIsHiddenTheGridStaysAsItWas) {
  SheetBench bench;
  bench.Make(Kind::Time);
  bench.Sheet.SetPanelVisible(false);
  bench.Make(Kind::Button);
  EXPECT_EQ(bench.Sheet.RowCount(), 5);
  EXPECT_EQ(bench.Sheet.SelKind(), "Time");
  bench.Sheet.SetPanelVisible(true);
  EXPECT_EQ(bench.Sheet.SelKind(), "Button");
  EXPECT_EQ(bench.Sheet.RowCount(), 14);
}

TEST(PropertySheet, NoEditIsTakenWhileTheGridFills) {
  class Watch final : public PropertySheetView {
   public:
    PropertySheet* Sheet = nullptr;
    bool WasBusy = false;
    void RowsChanged() override { WasBusy = !Sheet->ApplyText("x") && !Sheet->ApplyChoice("x", 1); }
  };
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  Watch watch;
  watch.Sheet = &bench.Sheet;
  bench.Sheet.SetView(&watch);
  bench.Sheet.ShowSelection();
  EXPECT_TRUE(watch.WasBusy);
  EXPECT_EQ(button->Caption, "Form1Btn1");
}

TEST(PropertySheet, TheFormShowsItsRecordAndItsWindow) {
  SheetBench bench;
  bench.Pick(nullptr);
  EXPECT_EQ(bench.Sheet.Text(0), "Form1");
  EXPECT_EQ(bench.Text("Caption"), "Form1");
  EXPECT_EQ(bench.Text("Width"), "400");
  EXPECT_EQ(bench.Text("Height"), "333");
  EXPECT_EQ(bench.Text("BorderStyle"), "bsSizeable");
  EXPECT_EQ(bench.Text("Center"), "False");
  EXPECT_EQ(bench.Text("IcoHandle"), "(Default)");
  EXPECT_EQ(bench.Text("WindowState"), "wsNormal");
  EXPECT_EQ(bench.Text("Color"), "12632256");
}

TEST(PropertySheet, SizesOfObjectsPrintInPixels) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  EXPECT_EQ(bench.Text("Width"), "75");
  button->Left = 500;
  bench.Sheet.ShowSelection();
  EXPECT_EQ(bench.Text("Left"), NumberText(500.0F / 15.0F));
}

TEST(PropertySheet, ATransparentFrameShowsTheFieldsOfItsForm) {
  SheetBench bench;
  bench.Make(Kind::TransparentFrame);
  bench.Record().TfWidth = 77;
  bench.Sheet.ShowSelection();
  EXPECT_EQ(bench.Text("Width"), "77");
  EXPECT_EQ(bench.Text("Transparency"), "60");
  EXPECT_EQ(bench.Text("Align"), "alClient");
}

TEST(PropertySheet, AdditemsPrintsItemsAndNeverTheList) {
  SheetBench bench;
  bench.Make(Kind::ListBox);
  bench.Record().ListBoxes.At(1)->Items =
      "a\x95"
      "b\x95";
  bench.Sheet.ShowSelection();
  EXPECT_EQ(bench.Text("AddItems"), "Items");
  EXPECT_FALSE(bench.Sheet.TakesTyping(bench.RowOf("AddItems")));
}

TEST(PropertySheet, MarksAreReadByRow) {
  SheetBench bench;
  bench.Make(Kind::Button);
  const int row = bench.RowOf("Cursor");
  EXPECT_EQ(bench.Sheet.RowMark(row), 158);
  EXPECT_EQ(bench.Sheet.RowMark(0), 0);
  EXPECT_EQ(bench.Sheet.RowMark(99), 0);
}

TEST(PropertySheet, ThePanelsClearingTakesTheSelectionOffTheRowsAndKeepsItsNumber) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(2);
  EXPECT_TRUE(bench.Sheet.HasSelectedRow());
  EXPECT_EQ(bench.Sheet.RowIndex(), 2);
  bench.Sheet.ClearPanel();
  EXPECT_FALSE(bench.Sheet.HasSelectedRow());
  EXPECT_EQ(bench.Sheet.RowIndex(), 2);
}

TEST(PropertySheet, ClearPanelHidesButtonsAndList) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.PressButton("Enabled");
  EXPECT_TRUE(bench.Sheet.Boton2Shown());
  EXPECT_TRUE(bench.Sheet.List().IsOpen());
  bench.Sheet.ClearPanel();
  EXPECT_FALSE(bench.Sheet.Boton1Shown());
  EXPECT_FALSE(bench.Sheet.Boton2Shown());
  EXPECT_FALSE(bench.Sheet.Boton3Shown());
  EXPECT_FALSE(bench.Sheet.List().IsOpen());
}

TEST(PropertySheet, TheSecondClearAlsoEmptiesHeadListAndGrid) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  bench.Sheet.ClearPanelAndCombo();
  EXPECT_EQ(bench.Labels(), Rows{"Name"});
  EXPECT_EQ(bench.Sheet.Text(0), "");
  EXPECT_TRUE(bench.ComboRows().empty());
  EXPECT_FALSE(bench.Sheet.ApplyText("late"));
  EXPECT_EQ(button->Caption, "Form1Btn1");
}

TEST(PropertySheet, ResetIsShownOnlyWhereThereIsANeutralText) {
  SheetBench bench;
  bench.Pick(nullptr);
  for (const char* row : {"IcoHandle", "Icon(App)"}) {
    bench.Sheet.SelectRow(bench.RowOf(row));
    EXPECT_TRUE(bench.Sheet.Boton3Shown()) << row;
    EXPECT_TRUE(bench.Sheet.ButtonTakesFocus()) << row;
  }
  bench.Make(Kind::HtmlViewer);
  bench.Sheet.SelectRow(bench.RowOf("Navigate"));
  EXPECT_TRUE(bench.Sheet.Boton3Shown());
  bench.Make(Kind::OpenDialog);
  bench.Sheet.SelectRow(bench.RowOf("FileName"));
  EXPECT_TRUE(bench.Sheet.Boton1Shown());
  EXPECT_FALSE(bench.Sheet.Boton3Shown());
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("BmpHandle"));
  EXPECT_FALSE(bench.Sheet.Boton3Shown());
}

TEST(PropertySheet, ListsHaveTheirRows) {
  SheetBench bench;
  bench.Make(Kind::RichTextBox);
  bench.Sheet.SelectRow(bench.RowOf("ReadOnly"));
  EXPECT_EQ(bench.Sheet.List().Values(), (Rows{"False", "True"}));
  bench.Sheet.SelectRow(bench.RowOf("ScrollBars"));
  EXPECT_EQ(bench.Sheet.List().Values().size(), 4U);
  bench.Sheet.SelectRow(bench.RowOf("Text"));
  EXPECT_TRUE(bench.Sheet.List().Values().empty());
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Cursor"));
  EXPECT_EQ(bench.Sheet.List().Values().size(), 22U);
}

TEST(PropertySheet, AListRowWithoutValuesShowsAnEmptyList) {
  SupportTables rows;
  AddKindFile(rows, "[FORM]\x8DWindowState\x9E\x8E");
  SheetBench bench{rows};
  bench.Pick(nullptr);
  bench.PressButton("WindowState");
  EXPECT_TRUE(bench.Sheet.List().IsOpen());
  EXPECT_TRUE(bench.Sheet.List().Values().empty());
  EXPECT_EQ(bench.Sheet.List().Marked(), -1);
}

TEST(PropertySheet, ParentOffersTheFormAndItsVisualObjects) {
  SheetBench bench;
  for (const Kind kind :
       {Kind::Button, Kind::Time, Kind::HtmlViewer, Kind::OpenDialog, Kind::SaveDialog,
        Kind::FileStream, Kind::WinSock, Kind::TransparentFrame, Kind::Image}) {
    bench.Make(kind);
  }
  bench.Make(Kind::PopUpMenu);
  bench.Sheet.SelectRow(bench.RowOf("Parent"));
  EXPECT_EQ(bench.Sheet.List().Values(), (Rows{"Form1", "Form1Btn1", "Form1Image1"}));
}

TEST(PropertySheet, AFilterHidesRowsAndChangesNoNumbers) {
  SheetBench bench;
  bench.Make(Kind::Button);
  const int font = bench.RowOf("Font");
  bench.Sheet.SetFilter("FON");
  EXPECT_EQ(bench.Sheet.ShownRows(), (std::vector<int>{0, font, font + 1}));
  EXPECT_EQ(bench.Sheet.RowTop(0), 0);
  EXPECT_EQ(bench.Sheet.RowTop(font), 315);
  EXPECT_EQ(bench.Sheet.RowTop(font + 1), 630);
  EXPECT_EQ(bench.Sheet.RowTop(1), -1);
  EXPECT_EQ(bench.Sheet.Label(font), "Font");
  EXPECT_EQ(bench.Sheet.RowCount(), 14);
  bench.Sheet.SetFilter("");
  EXPECT_EQ(bench.Sheet.ShownRows().size(), 14U);
}

TEST(PropertySheet, AFilteredOutRowHasNoButtons) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Enabled"));
  bench.Sheet.SetFilter("caption");
  EXPECT_FALSE(bench.Sheet.Boton2Shown());
}

TEST(PropertySheet, AFilterStaysForTheNextObject) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Sheet.SetFilter("top");
  bench.Make(Kind::FileStream);
  EXPECT_EQ(bench.Sheet.ShownRows(), (std::vector<int>{0, 2}));
}

// The head list.

TEST(ObjectComboRows, TheFormsRowComesFirstAndObjectsFollowInTheirOrder) {
  SheetBench bench;
  bench.Make(Kind::Label);
  bench.Make(Kind::Button);
  bench.Sheet.FillCombo();
  EXPECT_EQ(bench.ComboRows(),
            (Rows{"Form1   (Form)", "Form1Label1   (Label)", "Form1Btn1   (Button)"}));
}

TEST(ObjectComboRows, EveryKindHasItsSuffix) {
  SheetBench bench;
  Rows expected{"Form1   (Form)"};
  for (const KindInfo& info : AllKinds().first<kObjectKindCount>()) {
    const ControlRef control = bench.Make(info.Id);
    expected.push_back(control->Tag + std::string{info.ComboText});
  }
  EXPECT_EQ(bench.ComboRows(), expected);
  bench.Sheet.FillCombo();
  EXPECT_EQ(bench.ComboRows(), expected);
  EXPECT_EQ(expected[3], "Form1Image1   (Images)");
  EXPECT_EQ(expected[14], "Form1TrnspFrm  (TransparentFrame)");
  EXPECT_EQ(expected[16], "Form1Sock1   (WinSock)");
  EXPECT_EQ(expected[17], "Form1pMenu1  (PopupMenu)");
}

TEST(ObjectComboRows, HandlesAndMenuEntriesHaveNone) {
  SheetBench bench;
  bench.Form().Load(Kind::Menu)->Tag = "mnuFile";
  bench.Form().Load(Kind::MenuItem)->Tag = "mnuNew";
  bench.Sheet.FillCombo();
  EXPECT_EQ(bench.ComboRows(), Rows{"Form1   (Form)"});
}

TEST(ObjectComboRows, ANewObjectGetsARowAndIsSelected) {
  SheetBench bench;
  bench.Make(Kind::Button);
  EXPECT_EQ(bench.Sheet.Combo().Selected(), 1);
  bench.Pick(nullptr);
  EXPECT_EQ(bench.Sheet.Combo().Selected(), 0);
  EXPECT_EQ(bench.ComboRows().size(), 2U);
}

TEST(ObjectComboRows, NamesCompareWhole) {
  SheetBench bench;
  const ControlRef first = bench.Make(Kind::Button);
  const ControlRef second = bench.Make(Kind::Button);
  first->Tag = "Ok(1)";
  second->Tag = "Ok";
  bench.Sheet.FillCombo();
  bench.Pick(second);
  EXPECT_EQ(bench.Sheet.Combo().Selected(), 2);
  bench.Pick(first);
  EXPECT_EQ(bench.Sheet.Combo().Selected(), 1);
  EXPECT_EQ(ComboRowName("Ok(1)   (Button)"), "Ok(1)");
}

TEST(ObjectComboRows, ChoosingARowSelectsAsAPressDoes) {
  SheetBench bench;
  bench.Make(Kind::Image);
  const ControlRef button = bench.Make(Kind::Button);
  bench.Pick(nullptr);
  bench.Sheet.ChooseComboRow(2);
  EXPECT_EQ(bench.Form().ControlSel, button);
  EXPECT_EQ(bench.Sheet.SelKind(), "Button");
  EXPECT_TRUE(bench.Logged("select Button1"));
  bench.Sheet.ChooseComboRow(1);
  EXPECT_EQ(bench.Sheet.SelKind(), "Image");
  EXPECT_EQ(bench.Sheet.SelName(), "Form1Image1");
  bench.Sheet.ChooseComboRow(0);
  EXPECT_EQ(bench.Form().ControlSel, nullptr);
  EXPECT_EQ(bench.Sheet.SelKind(), "Form");
  EXPECT_EQ(bench.Sheet.SelName(), "Form1");
}

TEST(ObjectComboRows, ChoosingAPopupShowsItsRows) {
  SheetBench bench;
  bench.Make(Kind::PopUpMenu);
  bench.Pick(nullptr);
  bench.Sheet.ChooseComboRow(1);
  EXPECT_EQ(bench.Sheet.SelKind(), "PopupMenu");
  EXPECT_GE(bench.RowOf("AutoPopUp"), 1);
}

TEST(ObjectComboRows, RowsWhoseObjectIsGoneAreIgnored) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Form().Unload(button);
  bench.Fakes.Log.Clear();
  for (const int row : {1, 2, -1}) bench.Sheet.ChooseComboRow(row);
  EXPECT_EQ(bench.Fakes.Log.Count("select"), 0U);
}

TEST(ObjectComboRows, OfTwoObjectsWithOneNameEachRowSelectsItsOwn) {
  SheetBench bench;
  const ControlRef first = bench.Make(Kind::Button);
  const ControlRef second = bench.Make(Kind::Button);
  bench.Type("Name", first->Tag);
  EXPECT_EQ(bench.ComboRows()[1], bench.ComboRows()[2]);
  bench.Sheet.ChooseComboRow(1);
  EXPECT_EQ(bench.Form().ControlSel, first);
  EXPECT_EQ(bench.Sheet.Combo().Selected(), 1);
  bench.Sheet.ChooseComboRow(2);
  EXPECT_EQ(bench.Form().ControlSel, second);
  EXPECT_EQ(bench.Sheet.Combo().Selected(), 2);
}

TEST(ObjectComboRows, ADeletedObjectsRowGoesAndTheViewIsTold) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Make(Kind::Label);
  const int told = bench.View.Combos;
  bench.Sheet.RemoveComboRow(*button);
  EXPECT_EQ(bench.ComboRows(), (Rows{"Form1   (Form)", "Form1Label1   (Label)"}));
  EXPECT_EQ(bench.Sheet.Combo().Selected(), 1);
  EXPECT_EQ(bench.View.Combos, told + 1);
  bench.Sheet.RemoveComboRow(*button);
  EXPECT_EQ(bench.ComboRows().size(), 2U);
  EXPECT_EQ(bench.View.Combos, told + 1);
}

TEST(ObjectComboRows, OfTwoObjectsWithOneNameTheDeletedOnesRowGoes) {
  SheetBench bench;
  bench.Make(Kind::Button)->Tag = "Ok";
  const ControlRef second = bench.Make(Kind::Label);
  second->Tag = "Ok";
  bench.Sheet.FillCombo();
  bench.Sheet.RemoveComboRow(*second);
  EXPECT_EQ(bench.ComboRows(), (Rows{"Form1   (Form)", "Ok   (Button)"}));
}

TEST(ObjectComboRows, ObjectsPlacedWhileThePanelIsHiddenAreThereWhenItIsShown) {
  SheetBench bench;
  bench.Sheet.SetPanelVisible(false);
  bench.Make(Kind::Button);
  bench.Make(Kind::Label);
  EXPECT_EQ(bench.ComboRows(), Rows{"Form1   (Form)"});
  bench.Sheet.SetPanelVisible(true);
  EXPECT_EQ(bench.ComboRows(),
            (Rows{"Form1   (Form)", "Form1Btn1   (Button)", "Form1Label1   (Label)"}));
  EXPECT_EQ(bench.Sheet.Combo().Selected(), 2);
}

TEST(ObjectComboRows, ASearchGoesToTheFirstRowThatBeginsWithTheTextOrElseHoldsIt) {
  SheetBench bench;
  for (int i = 0; i < 12; ++i) bench.Make(Kind::Button);
  bench.Make(Kind::Label);
  const ObjectCombo& combo = bench.Sheet.Combo();
  EXPECT_EQ(combo.Search("form1btn1"), 1);
  EXPECT_EQ(combo.Search("FORM1BTN12"), 12);
  EXPECT_EQ(combo.Search("btn3"), 3);
  EXPECT_EQ(combo.Search("label"), 13);
  EXPECT_EQ(combo.Search("button"), -1);
  EXPECT_EQ(combo.Search("form1"), 0);
}

TEST(ObjectComboRows, TheListItselfSelectsNothingWhileItIsEdited) {
  SheetBench bench;
  bench.View.Sheet = &bench.Sheet;
  bench.Make(Kind::Button);
  bench.Type("Name", "Ok");
  EXPECT_GE(bench.View.Combos, 2);
  EXPECT_EQ(bench.Fakes.Log.Count("select"), 0U);
}

TEST(ObjectComboRows, ARenameAndASelectionTouchOneRowEach) {
  class Watch final : public PropertySheetView {
   public:
    int Lists = 0;
    std::vector<int> Texts;
    std::vector<int> Selected;
    void ComboChanged() override { ++Lists; }
    void ComboRowTextChanged(int row) override { Texts.push_back(row); }
    void ComboRowSelected(int row) override { Selected.push_back(row); }
  };
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Make(Kind::Label);
  Watch watch;
  bench.Sheet.SetView(&watch);
  bench.Pick(button);
  bench.Type("Name", "Ok");
  bench.Pick(button);
  EXPECT_EQ(watch.Lists, 0);
  EXPECT_EQ(watch.Selected, std::vector<int>{1});
  EXPECT_EQ(watch.Texts, std::vector<int>{1});
  bench.Make(Kind::Time);
  EXPECT_EQ(watch.Lists, 1);
}

TEST(PropertySheet, TheViewHearsThatTheListClosed) {
  class Watch final : public PropertySheetView {
   public:
    std::vector<bool> Lists;
    void ListOpened(bool is_open) override { Lists.push_back(is_open); }
  };
  SheetBench bench;
  bench.Make(Kind::Button);
  Watch watch;
  bench.Sheet.SetView(&watch);
  bench.PressButton("Enabled");
  bench.Sheet.CloseList();
  bench.Sheet.CloseList();
  EXPECT_EQ(watch.Lists, (std::vector<bool>{true, false}));
  bench.PressButton("Enabled");
  bench.Sheet.SelectRow(0);
  EXPECT_EQ(watch.Lists, (std::vector<bool>{true, false, true, false}));
}

TEST(PropertySheet, ARowStaysInUseWhenItsOwnObjectIsShownAgain) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  const int subjects = bench.View.Subjects;
  bench.Pick(button);
  EXPECT_EQ(bench.View.Subjects, subjects);
  EXPECT_TRUE(bench.Sheet.ApplyText("typed"));
  EXPECT_EQ(button->Caption, "typed");
  bench.Make(Kind::Button);
  EXPECT_EQ(bench.View.Subjects, subjects + 1);
}

TEST(PropertySheet, GoingToTheGridStartsAtTheRowOfTheNameLastSelected) {
  SheetBench bench;
  bench.Make(Kind::Button);
  EXPECT_EQ(bench.Sheet.RowToEnter(), 0);
  bench.Sheet.SelectRow(bench.RowOf("Height"));
  bench.Make(Kind::Label);
  EXPECT_EQ(bench.Sheet.RowToEnter(), bench.RowOf("Height"));
  EXPECT_NE(bench.Sheet.RowToEnter(), bench.Sheet.RowIndex());
  bench.Make(Kind::Time);
  EXPECT_EQ(bench.Sheet.RowToEnter(), 0);
  bench.Make(Kind::Button);
  EXPECT_EQ(bench.Sheet.RowToEnter(), bench.RowOf("Height"));
}

TEST(PropertySheet, TheProgramsIconIsOfferedOnTheFirstFormAlone) {
  SheetBench bench;
  bench.Pick(nullptr);
  EXPECT_GT(bench.RowOf("Icon(App)"), 0);
  bench.Tables.CurrentForm = bench.Tables.User(AddForm(bench.Tables));
  bench.Pick(nullptr);
  EXPECT_EQ(bench.Sheet.Text(0), "Form2");
  EXPECT_EQ(bench.RowOf("Icon(App)"), -1);
  EXPECT_GT(bench.RowOf("IcoHandle"), 0);
  EXPECT_TRUE(bench.Type("Width", "250"));
  EXPECT_EQ(bench.Record().Width, 250);
}

TEST(PropertySheet, RowsAreFilledOneByOneWhileTheScreenFollows) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Fakes.Screen.Yields = 0;
  bench.Sheet.ShowSelection();
  EXPECT_EQ(bench.Fakes.Screen.Yields, bench.Sheet.RowCount() - 1);
}

TEST(PropertySheet, AnObjectThatGoesWhileItsRowsAreFilledIsLeftAlone) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Pick(nullptr);
  bench.Fakes.Screen.OnYield = [&] {
    bench.Fakes.Screen.OnYield = nullptr;
    bench.Form().Unload(button);
  };
  bench.Pick(button);
  EXPECT_EQ(bench.Sheet.RowCount(), 14);
  EXPECT_EQ(bench.Text("Width"), "");
  EXPECT_FALSE(bench.Type("Width", "5"));
}

TEST(PropertySheet, TheFontOfItsRowIsThatOfTheObject) {
  SheetBench bench;
  const ControlRef label = bench.Make(Kind::Label);
  label->FontSize = 8.25F;
  label->FontBold = true;
  const std::optional<FontChoice> font = bench.Sheet.RowFont(bench.RowOf("Font"));
  ASSERT_TRUE(font);
  EXPECT_EQ(font->Name, "MS Sans Serif");
  EXPECT_EQ(font->Size, 8.25F);
  EXPECT_TRUE(font->Bold);
  EXPECT_FALSE(bench.Sheet.RowFont(bench.RowOf("Caption")));
}

TEST(PropertySheet, APictureRowNamesTheFilesThatItMayShow) {
  SheetBench bench;
  bench.Make(Kind::Button);
  const int row = bench.RowOf("BmpHandle");
  EXPECT_EQ(bench.Sheet.RowPictures(row), Rows{});
  bench.Type("BmpHandle", "pics\\a.bmp");
  EXPECT_EQ(bench.Sheet.RowPictures(row), (Rows{"pics\\a.bmp", "C:\\P\\pics\\a.bmp"}));
  EXPECT_TRUE(bench.Sheet.IsPath(row));
  EXPECT_FALSE(bench.Sheet.IsPath(bench.RowOf("Caption")));
  bench.Pick(nullptr);
  EXPECT_EQ(bench.Sheet.RowPictures(bench.RowOf("IcoHandle")), Rows{"C:\\T\\iconapp.ico"});
}

TEST(PropertySheet, ANameThatMakesNoProgramIsMarkedWithTheReason) {
  SheetBench bench;
  bench.Make(Kind::Button);
  const ControlRef second = bench.Make(Kind::Button);
  EXPECT_EQ(bench.Sheet.RowFault(0), "");
  for (const char* name : {"", "1abc", "a b", "Print", "Font", "FORM1BTN1"}) {
    bench.Type("Name", name);
    EXPECT_EQ(second->Tag, name);
    EXPECT_NE(bench.Sheet.RowFault(0), "") << name;
    ASSERT_FALSE(bench.View.Texts.empty());
    EXPECT_EQ(bench.View.Texts.back(), 0);
  }
  bench.Type("Name", "Ok");
  EXPECT_EQ(bench.Sheet.RowFault(0), "");
  bench.Type("Name", "End");
  EXPECT_EQ(bench.Sheet.RowFault(0),
            "The name End is a word of the language: choose another name.");
  bench.Pick(nullptr);
  EXPECT_EQ(bench.Sheet.RowFault(0), "");
}

TEST(PropertySheet, EachRowHasTheFindingsOfTheCheckThatAreAboutIt) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Type("Caption", "say \"hello\"");
  EXPECT_NE(bench.Sheet.RowFault(bench.RowOf("Caption")), "");
  EXPECT_EQ(bench.Sheet.RowFault(bench.RowOf("Hint")), "");
  EXPECT_EQ(bench.Sheet.RowFault(0), "");
  bench.Type("Caption", "say hello");
  EXPECT_EQ(bench.Sheet.RowFault(bench.RowOf("Caption")), "");
  bench.Type("BmpHandle", "C:\\none.bmp");
  EXPECT_NE(bench.Sheet.RowFault(bench.RowOf("BmpHandle")), "");
  bench.Make(Kind::Label);
  EXPECT_EQ(bench.Sheet.RowFault(bench.RowOf("Caption")), "");
}

TEST(PropertySheet, AFormOfManyObjectsShowsWithoutAWalkForEachRow) {
  SheetBench bench;
  for (int i = 0; i < 500; ++i) bench.Make(i % 2 == 0 ? Kind::Button : Kind::Label);
  const int combos = bench.View.Combos;
  bench.Pick(bench.Form().Element(Kind::Button, 100));
  EXPECT_EQ(bench.View.Combos, combos + 1);
  EXPECT_EQ(bench.ComboRows().size(), 501U);
  EXPECT_EQ(bench.Sheet.Combo().Selected(), 199);
}

}  // namespace
}  // namespace tarnwick
