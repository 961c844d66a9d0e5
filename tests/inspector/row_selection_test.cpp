// The selected row of the property sheet: its buttons, its list, and the filter over the rows.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sheet_bench.h"

namespace tarnwick {
namespace {

using Rows = std::vector<std::string>;

TEST(RowSelection, ThePanelsClearingTakesTheSelectionOffTheRowsAndKeepsItsNumber) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(2);
  EXPECT_TRUE(bench.Sheet.HasSelectedRow());
  EXPECT_EQ(bench.Sheet.RowIndex(), 2);
  bench.Sheet.ClearPanel();
  EXPECT_FALSE(bench.Sheet.HasSelectedRow());
  EXPECT_EQ(bench.Sheet.RowIndex(), 2);
}

TEST(RowSelection, ClearPanelHidesButtonsAndList) {
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

TEST(RowSelection, TheSecondClearAlsoEmptiesHeadListAndGrid) {
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

TEST(RowSelection, ResetIsShownOnlyWhereThereIsANeutralText) {
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

TEST(RowSelection, ListsHaveTheirRows) {
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

TEST(RowSelection, AListRowWithoutValuesShowsAnEmptyList) {
  SupportTables rows;
  AddKindFile(rows, "[FORM]\x8DWindowState\x9E\x8E");
  SheetBench bench{rows};
  bench.Pick(nullptr);
  bench.PressButton("WindowState");
  EXPECT_TRUE(bench.Sheet.List().IsOpen());
  EXPECT_TRUE(bench.Sheet.List().Values().empty());
  EXPECT_EQ(bench.Sheet.List().Marked(), -1);
}

TEST(RowSelection, ParentOffersTheFormAndItsVisualObjects) {
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

TEST(RowSelection, AFilterHidesRowsAndChangesNoNumbers) {
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

TEST(RowSelection, AFilteredOutRowHasNoButtons) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Sheet.SelectRow(bench.RowOf("Enabled"));
  bench.Sheet.SetFilter("caption");
  EXPECT_FALSE(bench.Sheet.Boton2Shown());
}

TEST(RowSelection, AFilterStaysForTheNextObject) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Sheet.SetFilter("top");
  bench.Make(Kind::FileStream);
  EXPECT_EQ(bench.Sheet.ShownRows(), (std::vector<int>{0, 2}));
}

// The head list.

TEST(RowSelection, TheViewHearsThatTheListClosed) {
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

TEST(RowSelection, ARowStaysInUseWhenItsOwnObjectIsShownAgain) {
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

TEST(RowSelection, GoingToTheGridStartsAtTheRowOfTheNameLastSelected) {
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

}  // namespace
}  // namespace tarnwick
