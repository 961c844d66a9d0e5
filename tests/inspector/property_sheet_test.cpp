// The rows of the property sheet: how they are filled, and what stands beside their text.
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

TEST(PropertySheet, AFaultGoesWithTheValueThatIsChosenFromTheList) {
  SheetBench bench;
  bench.Make(Kind::WinSock);
  bench.Record().WinSocks.At(1)->Family.clear();
  bench.Sheet.ShowSelection();
  const int row = bench.RowOf("Family");
  EXPECT_NE(bench.Sheet.RowFault(row), "");
  ASSERT_TRUE(bench.Choose("Family", 0));
  EXPECT_EQ(bench.Sheet.RowFault(row), "");
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
