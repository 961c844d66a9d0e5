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

TEST(PropertySheet, TheGuardsAreUpOnlyWhileTheGridFills) {
  class Watch final : public PropertySheetView {
   public:
    PropertySheet* Sheet = nullptr;
    bool WasBusy = false;
    bool WasFilling = false;
    void RowsChanged() override {
      WasBusy = Sheet->GridBusy() == 1 && !Sheet->ApplyText("x") && !Sheet->ApplyChoice("x", 1);
      WasFilling = Sheet->GridFilling() == 1;
    }
  };
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  Watch watch;
  watch.Sheet = &bench.Sheet;
  bench.Sheet.SetView(&watch);
  bench.Sheet.ShowSelection();
  EXPECT_TRUE(watch.WasBusy);
  EXPECT_TRUE(watch.WasFilling);
  EXPECT_EQ(bench.Sheet.GridBusy(), 0);
  EXPECT_EQ(bench.Sheet.GridFilling(), 0);
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

TEST(PropertySheet, RowValueWritesOneRow) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  button->Caption = "Later";
  bench.Sheet.RowValue("caption", bench.RowOf("Caption"));
  EXPECT_EQ(bench.Text("Caption"), "Later");
  bench.Sheet.RowValue("name", 0);
  EXPECT_EQ(bench.Sheet.Text(0), "Form1Btn1");
}

TEST(PropertySheet, NamesAndMarksAreReadByRow) {
  SheetBench bench;
  bench.Make(Kind::Button);
  const int row = bench.RowOf("Cursor");
  EXPECT_EQ(bench.Sheet.RowNameLength(row), 6);
  EXPECT_EQ(bench.Sheet.RowMark(row), 158);
  EXPECT_EQ(bench.Sheet.RowMark(0), 0);
  EXPECT_EQ(bench.Sheet.RowMark(99), 0);
  EXPECT_EQ(bench.Sheet.EnumText("BUTTON", "Cursor\x9E", 21), "crHandPoint");
}

TEST(PropertySheet, TheSelectedRowHasItsColours) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(2);
  EXPECT_EQ(bench.Sheet.RowIndex(), 2);
  EXPECT_EQ(bench.Sheet.RowBackColor(2), 8388608);
  EXPECT_EQ(bench.Sheet.RowTextColor(2), 16777215);
  EXPECT_EQ(bench.Sheet.RowBackColor(1), 16777215);
  EXPECT_EQ(bench.Sheet.RowTextColor(1), 0);
  bench.Sheet.ClearPanel();
  EXPECT_EQ(bench.Sheet.RowBackColor(2), 16777215);
  EXPECT_EQ(bench.Sheet.RowIndex(), 2);
}

TEST(PropertySheet, ClearPanelHidesButtonsAndList) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.PressButton("Enabled");
  EXPECT_TRUE(bench.Sheet.Boton2Shown());
  EXPECT_TRUE(bench.Sheet.ListOpen());
  bench.Sheet.ClearPanel();
  EXPECT_FALSE(bench.Sheet.Boton1Shown());
  EXPECT_FALSE(bench.Sheet.Boton2Shown());
  EXPECT_FALSE(bench.Sheet.Boton3Shown());
  EXPECT_FALSE(bench.Sheet.ListOpen());
}

TEST(PropertySheet, TheSecondClearAlsoEmptiesHeadListAndFirstRow) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  bench.Sheet.ClearPanelAndCombo();
  EXPECT_EQ(bench.Sheet.Text(0), "");
  EXPECT_TRUE(bench.ComboRows().empty());
  EXPECT_FALSE(bench.Sheet.ApplyText("late"));
  EXPECT_EQ(button->Caption, "Form1Btn1");
}

TEST(PropertySheet, ButtonsStandBesideTheRowAndTheListBeneath) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(4);
  EXPECT_EQ(bench.Sheet.ButtonTop(), 4 * 315);
  EXPECT_EQ(bench.Sheet.ListTop(), 5 * 315);
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

TEST(PropertySheet, ListsHaveTheirRowsAndHeights) {
  SheetBench bench;
  bench.Make(Kind::RichTextBox);
  bench.Sheet.SelectRow(bench.RowOf("ReadOnly"));
  EXPECT_EQ(bench.Sheet.ListRows(), (Rows{"False", "True"}));
  EXPECT_EQ(bench.Sheet.ListHeight(), 500);
  bench.Sheet.SelectRow(bench.RowOf("ScrollBars"));
  EXPECT_EQ(bench.Sheet.ListRows().size(), 4U);
  EXPECT_EQ(bench.Sheet.ListHeight(), 4 * 250);
  bench.Sheet.SelectRow(bench.RowOf("Text"));
  EXPECT_TRUE(bench.Sheet.ListRows().empty());
  EXPECT_EQ(bench.Sheet.ListHeight(), 500);
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Cursor"));
  EXPECT_EQ(bench.Sheet.ListRows().size(), 22U);
  EXPECT_EQ(bench.Sheet.ListHeight(), 22 * 70);
}

TEST(PropertySheet, AListIsLongOnceItsSplitPassesSix) {
  SupportTables rows;
  AddKindFile(rows,
              "[FORM]\x8DSeven\x9E"
              "1\x8B"
              "2\x8B"
              "3\x8B"
              "4\x8B"
              "5\x8B"
              "6\x8B"
              "7\x95"
              "Eight\x9E"
              "1\x8B"
              "2\x8B"
              "3\x8B"
              "4\x8B"
              "5\x8B"
              "6\x8B"
              "7\x8B"
              "8\x8E");
  SheetBench bench{rows};
  bench.Pick(nullptr);
  bench.Sheet.SelectRow(1);
  EXPECT_EQ(bench.Sheet.ListHeight(), 7 * 250);
  bench.Sheet.SelectRow(2);
  EXPECT_EQ(bench.Sheet.ListHeight(), 8 * 70);
}

TEST(PropertySheet, AListRowWithoutValuesShowsAnEmptyList) {
  SupportTables rows;
  AddKindFile(rows, "[FORM]\x8DWindowState\x9E\x8E");
  SheetBench bench{rows};
  bench.Pick(nullptr);
  bench.PressButton("WindowState");
  EXPECT_TRUE(bench.Sheet.ListOpen());
  EXPECT_TRUE(bench.Sheet.ListRows().empty());
  EXPECT_EQ(bench.Sheet.ListMarked(), -1);
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
  EXPECT_EQ(bench.Sheet.ListRows(), (Rows{"Form1", "Form1Btn1", "Form1Image1"}));
  EXPECT_EQ(bench.Sheet.ListHeight(), 3 * 250);
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

TEST(ObjectComboRows, RowsThatNameNothingAreIgnored) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  button->Tag = "Elsewhere";
  bench.Fakes.Log.Clear();
  bench.Sheet.ChooseComboRow(1);
  bench.Sheet.ChooseComboRow(2);
  bench.Sheet.ChooseComboRow(-1);
  EXPECT_EQ(bench.Fakes.Log.Count("select"), 0U);
}

TEST(ObjectComboRows, ADeletedObjectsRowGoes) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Make(Kind::Label);
  bench.Sheet.RemoveComboRow("FORM1BTN1");
  EXPECT_EQ(bench.ComboRows(), (Rows{"Form1   (Form)", "Form1Label1   (Label)"}));
  EXPECT_EQ(bench.Sheet.Combo().Selected(), 1);
  bench.Sheet.RemoveComboRow("Form1");
  EXPECT_EQ(bench.ComboRows().size(), 2U);
}

TEST(ObjectComboRows, OfTwoObjectsWithOneNameTheSelectedOnesRowGoes) {
  SheetBench bench;
  bench.Make(Kind::Button)->Tag = "Ok";
  const ControlRef second = bench.Make(Kind::Label);
  second->Tag = "Ok";
  bench.Sheet.FillCombo();
  bench.Sheet.RemoveComboRow("Ok");
  EXPECT_EQ(bench.ComboRows(), (Rows{"Form1   (Form)", "Ok   (Button)"}));
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
