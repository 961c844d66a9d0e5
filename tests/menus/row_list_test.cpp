#include "menus/row_list.h"

#include <string>

#include <gtest/gtest.h>

namespace tarnwick::menus {
namespace {

RowList BarList(Rows rows = {}) {
  return {MenuBarDesign(), "Form1", std::move(rows)};
}

void Fill(RowList& list, std::string caption, std::string name) {
  list.SetTexts({std::move(caption), std::move(name)});
  list.Enter();
}

TEST(RowList, OpensWithItsRowsAndTwoEmptyOnesAndSelectsTheFirst) {
  const RowList list = BarList({"&File    (mnuFile)", "...&New    (mnuNew)"});
  EXPECT_EQ(list.ListMenu(), (Rows{"&File    (mnuFile)", "...&New    (mnuNew)", "", ""}));
  EXPECT_EQ(list.Selected(), 0);
  EXPECT_EQ(list.Texts(), (RowTexts{"&File", "mnuFile"}));
  EXPECT_EQ(BarList().ListMenu(), (Rows{"", ""}));
  EXPECT_EQ(BarList().Selected(), 0);
}

TEST(RowList, ASelectedRowShowsItsPartsWithoutItsDepth) {
  RowList list = BarList({"&File    (mnuFile)", "......&New    (mnuNew)"});
  list.Select(1);
  EXPECT_EQ(list.Texts(), (RowTexts{"&New", "mnuNew"}));
  EXPECT_EQ(list.Depth(), 2);
  list.Select(2);
  EXPECT_EQ(list.Texts(), RowTexts{});
}

TEST(RowList, ASelectionStaysWithinTheList) {
  RowList list = BarList({"A    (a)"});
  list.Select(99);
  EXPECT_EQ(list.Selected(), 2);
  list.Select(-5);
  EXPECT_EQ(list.Selected(), 0);
}

TEST(RowList, EnterReplacesTheRowAndKeepsItsDepth) {
  RowList list = BarList({"A    (a)", "...B    (b)"});
  list.Select(1);
  Fill(list, "&Bee", "bee");
  EXPECT_EQ(list.ListMenu(), (Rows{"A    (a)", "...&Bee    (bee)", "", ""}));
  EXPECT_EQ(list.Selected(), 2);
  EXPECT_EQ(list.Texts(), RowTexts{});
}

TEST(RowList, AnEmptyRowTakesTheDepthOfTheRowAboveIt) {
  RowList list = BarList({"A    (a)", "...B    (b)"});
  list.Select(2);
  EXPECT_EQ(list.Depth(), 1);
  Fill(list, "C", "c");
  Fill(list, "D", "d");
  EXPECT_EQ(list.ListMenu(), (Rows{"A    (a)", "...B    (b)", "...C    (c)", "...D    (d)", ""}));
}

TEST(RowList, TheFirstRowHasNoDepthToTake) {
  RowList list = BarList();
  Fill(list, "A", "a");
  EXPECT_EQ(list.ListMenu().front(), "A    (a)");
}

TEST(RowList, ARowOfPrefixesOnlyKeepsItsDepthWhenItIsFilled) {
  RowList list = BarList({"A    (a)"});
  list.Select(1);
  list.Indent();
  EXPECT_EQ(list.ListMenu().at(1), "...");
  Fill(list, "B", "b");
  EXPECT_EQ(list.ListMenu().at(1), "...B    (b)");
}

TEST(RowList, FillingTheLastRowAddsAnEmptyOne) {
  RowList list = BarList();
  Fill(list, "A", "a");
  EXPECT_EQ(list.ListMenu(), (Rows{"A    (a)", ""}));
  Fill(list, "B", "b");
  EXPECT_EQ(list.ListMenu(), (Rows{"A    (a)", "B    (b)", ""}));
  EXPECT_EQ(list.Selected(), 2);
}

TEST(RowList, EnterWithNothingTypedGoesOnAndFillsNoRow) {
  RowList list = BarList();
  list.Enter();
  EXPECT_EQ(list.ListMenu(), (Rows{"", ""}));
  EXPECT_EQ(list.Selected(), 1);
  list.Enter();
  EXPECT_EQ(list.ListMenu(), (Rows{"", ""}));
  EXPECT_EQ(list.Selected(), 1);
}

TEST(RowList, ARowWithACaptionAloneHasAnEmptyName) {
  RowList list = BarList();
  Fill(list, "&File", "");
  EXPECT_EQ(list.ListMenu().front(), "&File    ()");
  list.Select(0);
  EXPECT_EQ(list.Texts(), (RowTexts{"&File", ""}));
}

TEST(RowList, DepthGoesUpToTwoPrefixesAndBackToNone) {
  RowList list = BarList({"A    (a)"});
  list.Indent();
  list.Indent();
  list.Indent();
  EXPECT_EQ(list.ListMenu().front(), "......A    (a)");
  list.Outdent();
  EXPECT_EQ(list.ListMenu().front(), "...A    (a)");
  list.Outdent();
  list.Outdent();
  EXPECT_EQ(list.ListMenu().front(), "A    (a)");
  EXPECT_EQ(list.Selected(), 0);
}

TEST(RowList, AnEmptyRowCanBeGivenLessDepthThanTheRowAbove) {
  RowList list = BarList({"A    (a)", "...B    (b)"});
  list.Select(2);
  list.Outdent();
  EXPECT_EQ(list.Depth(), 0);
  EXPECT_EQ(list.ListMenu().at(2), "");
  Fill(list, "C", "c");
  EXPECT_EQ(list.ListMenu().at(2), "C    (c)");
  // The wish was for that row alone.
  list.Select(1);
  list.Select(3);
  EXPECT_EQ(list.Depth(), 0);
  list.Outdent();
  list.Indent();
  EXPECT_EQ(list.Depth(), 1);
}

TEST(RowList, AnEmptyRowGoesOneLevelDeeperThanItWouldHaveBeen) {
  RowList list = BarList({"A    (a)", "...B    (b)"});
  list.Select(2);
  list.Indent();
  EXPECT_EQ(list.ListMenu().at(2), "......");
  list.Outdent();
  EXPECT_EQ(list.Depth(), 1);
  list.Outdent();
  EXPECT_EQ(list.Depth(), 0);
  list.Indent();
  EXPECT_EQ(list.ListMenu().at(2), "...");
}

TEST(RowList, UpAndDownSwapWithTheNeighbourAndTheSelectionMovesAlong) {
  RowList list = BarList({"A    (a)", "...B    (b)", "C    (c)"});
  list.Down();
  EXPECT_EQ(list.ListMenu(), (Rows{"...B    (b)", "A    (a)", "C    (c)", "", ""}));
  EXPECT_EQ(list.Selected(), 1);
  EXPECT_EQ(list.Texts(), (RowTexts{"A", "a"}));
  list.Up();
  EXPECT_EQ(list.ListMenu(), (Rows{"A    (a)", "...B    (b)", "C    (c)", "", ""}));
}

TEST(RowList, UpDoesNothingOnTheFirstRowAndDownNothingOnTheLast) {
  RowList list = BarList({"A    (a)"});
  list.Up();
  EXPECT_EQ(list.Selected(), 0);
  EXPECT_EQ(list.ListMenu(), (Rows{"A    (a)", "", ""}));
  list.Select(2);
  list.Down();
  EXPECT_EQ(list.Selected(), 2);
  EXPECT_EQ(list.ListMenu(), (Rows{"A    (a)", "", ""}));
}

TEST(RowList, ADraggedRowLandsWhereItIsDropped) {
  RowList list = BarList({"A    (a)", "B    (b)", "C    (c)", "D    (d)"});
  list.MoveTo(2);
  EXPECT_EQ(list.ListMenu(), (Rows{"B    (b)", "C    (c)", "A    (a)", "D    (d)", "", ""}));
  list.MoveTo(0);
  EXPECT_EQ(list.ListMenu(), (Rows{"A    (a)", "B    (b)", "C    (c)", "D    (d)", "", ""}));
  list.MoveTo(-1);
  list.MoveTo(6);
  EXPECT_EQ(list.Selected(), 0);
}

TEST(RowList, DelItemRemovesTheRowAndSelectsTheOneThatFollows) {
  RowList list = BarList({"A    (a)", "B    (b)"});
  list.DeleteRow();
  EXPECT_EQ(list.ListMenu(), (Rows{"B    (b)", "", ""}));
  EXPECT_EQ(list.Texts(), (RowTexts{"B", "b"}));
  list.Select(2);
  list.DeleteRow();
  EXPECT_EQ(list.Selected(), 1);
}

TEST(RowList, DelItemToTheEndLeavesAnEmptyListOnWhichEveryStepIsSafe) {
  RowList list = BarList();
  for (int press = 0; press < 4; ++press) list.DeleteRow();
  EXPECT_TRUE(list.ListMenu().empty());
  EXPECT_EQ(list.Selected(), -1);
  EXPECT_EQ(list.Depth(), 0);
  list.Up();
  list.Down();
  list.Indent();
  list.Outdent();
  list.Select(3);
  EXPECT_EQ(list.Selected(), -1);
  EXPECT_TRUE(list.ListMenu().empty());
}

TEST(RowList, DelAllLeavesAnEmptyListAndEnterOrInsertAddTheTwoRowsFirst) {
  RowList list = BarList({"A    (a)"});
  list.DeleteAll();
  EXPECT_TRUE(list.ListMenu().empty());
  EXPECT_FALSE(list.HasText());
  Fill(list, "B", "b");
  EXPECT_EQ(list.ListMenu(), (Rows{"B    (b)", ""}));
  list.DeleteAll();
  list.Insert();
  EXPECT_EQ(list.ListMenu(), (Rows{"", "", ""}));
  EXPECT_EQ(list.Selected(), 0);
}

TEST(RowList, InsertOpensAnEmptyRowAtTheSelection) {
  RowList list = BarList({"A    (a)", "B    (b)"});
  list.Select(1);
  list.Insert();
  EXPECT_EQ(list.ListMenu(), (Rows{"A    (a)", "", "B    (b)", "", ""}));
  EXPECT_EQ(list.Selected(), 1);
  EXPECT_EQ(list.Texts(), RowTexts{});
}

TEST(RowList, InsertOnTheLastRowAddsOneBehindIt) {
  RowList list = BarList({"A    (a)"});
  list.Select(2);
  list.Insert();
  EXPECT_EQ(list.ListMenu(), (Rows{"A    (a)", "", "", ""}));
  EXPECT_EQ(list.Selected(), 2);
}

TEST(RowList, TheExampleOfAMenuBarCarriesTheNameOfTheForm) {
  RowList list(MenuBarDesign(), "Main", {"Gone    (gone)"});
  list.Example();
  EXPECT_EQ(
      list.ListMenu(),
      (Rows{"&File    (MainmnuFile)", "...&New    (MainmnuNew)", "...&Open    (MainmnuOpen)",
            "...&Save    (MainmnuSave)", "...Save &As    (MainmnuSaveAs)", "...-    (Mainsep1)",
            "...&Exit    (MainmnuExit)", "&Edit    (MainmnuEdit)", "...&Copy    (MainmnuCopy)",
            "...&Cut    (MainmnuCut)", "...&Paste    (MainmnuPaste)", "...-    (Mainsep2)",
            "...&Select All    (MainmnuSelectAll)", "", ""}));
  EXPECT_EQ(list.Selected(), 0);
}

TEST(RowList, TheExampleOfAPopUpMenuCarriesTheNameOfTheForm) {
  RowList list(PopUpDesign(), "Main", {});
  list.Example();
  EXPECT_EQ(list.ListMenu(),
            (Rows{"&Copy    (MainppmCopy)", "&Cut    (MainppmCut)", "&Paste    (MainppmPaste)",
                  "-    (Mainppmsep1)", "&Select All    (MainppmSelectAll)", "-    (Mainppmsep2)",
                  "&SubItems    (MainppmSubItems)", "...&SubItem1    (MainSubItem1)",
                  "...&SubItem2    (MainSubItem2)", "", ""}));
}

TEST(RowList, TextsThatWereNotAddedYetArePending) {
  RowList list = BarList({"A    (a)"});
  EXPECT_FALSE(list.HasPendingText());
  list.SetTexts({"A", "b"});
  EXPECT_TRUE(list.HasPendingText());
  list.Select(1);
  EXPECT_FALSE(list.HasPendingText());
}

TEST(RowList, ACaptionThatBeginsWithDotsIsDepth) {
  RowList list = BarList({"A    (a)"});
  list.Select(1);
  Fill(list, "...More", "more");
  list.Select(1);
  EXPECT_EQ(list.Depth(), 1);
  EXPECT_EQ(list.Texts(), (RowTexts{"More", "more"}));
}

}  // namespace
}  // namespace tarnwick::menus
