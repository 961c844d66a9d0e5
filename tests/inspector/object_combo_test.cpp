// The list of objects at the head of the property sheet.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sheet_bench.h"

namespace tarnwick {
namespace {

using Rows = std::vector<std::string>;

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

TEST(ObjectComboRows, AFilledListIsThereToBeChosenFrom) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Make(Kind::Label);
  bench.Sheet.FillCombo();
  ASSERT_EQ(bench.Sheet.Combo().Rows().size(), 3U) << "filled again, not twice";
  bench.Sheet.ChooseComboRow(1);
  EXPECT_EQ(bench.Form().ControlSel, button);
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

TEST(ObjectComboRows, WithTheRowOfTheSelectionNoneIsSelected) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  ASSERT_EQ(bench.Sheet.Combo().Selected(), 1);
  bench.Sheet.RemoveComboRow(*button);
  EXPECT_EQ(bench.Sheet.Combo().Selected(), -1);
}

TEST(ObjectComboRows, ARowThatStandsFirstGoesWithItsObjectToo) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Sheet.ClearPanelAndCombo();
  bench.Sheet.ShowSelection();
  ASSERT_EQ(bench.ComboRows(), Rows{"Form1Btn1   (Button)"});
  bench.Sheet.RemoveComboRow(*button);
  EXPECT_EQ(bench.ComboRows(), Rows{});
  EXPECT_EQ(bench.Sheet.Combo().Selected(), -1);
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

}  // namespace
}  // namespace tarnwick
