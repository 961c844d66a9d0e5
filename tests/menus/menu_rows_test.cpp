#include "menus/menu_rows.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/menu_bar.h"

namespace tarnwick::menus {
namespace {

TEST(MenuRow, IsPrefixCaptionGapAndName) {
  EXPECT_EQ(MenuRowText(0, "&File", "mnuFile"), "&File    (mnuFile)");
  EXPECT_EQ(MenuRowText(1, "&New", "mnuNew"), "...&New    (mnuNew)");
  EXPECT_EQ(MenuRowText(1, "-", "sep1"), "...-    (sep1)");
}

TEST(MenuRow, SplitsIntoItsParts) {
  const MenuRowParts top = SplitMenuRow("&File    (mnuFile)");
  EXPECT_EQ(top.Depth, 0);
  EXPECT_EQ(top.Caption, "&File");
  EXPECT_EQ(top.Name, "mnuFile");
  const MenuRowParts item = SplitMenuRow("...-    (sep1)");
  EXPECT_EQ(item.Depth, 1);
  EXPECT_EQ(item.Caption, "-");
  EXPECT_EQ(item.Name, "sep1");
}

TEST(MenuRow, ACaptionWithBracketsSplitsWrongly) {
  const MenuRowParts row = SplitMenuRow("Copy (all)    (mnuCopy)");
  EXPECT_EQ(row.Caption, "Copy");
  EXPECT_EQ(row.Name, "all");
  EXPECT_EQ(SplitMenuRow("a) b    (c)").Name, "");
}

TEST(MenuRow, AnEmptyRowIsAnEntryNotYetFilled) {
  EXPECT_TRUE(IsEmptyMenuRow(""));
  EXPECT_TRUE(IsEmptyMenuRow("..."));
  EXPECT_TRUE(IsEmptyMenuRow("......"));
  EXPECT_FALSE(IsEmptyMenuRow("....    (x)"));
  EXPECT_FALSE(IsEmptyMenuRow(" "));
  const MenuRowParts row = SplitMenuRow("");
  EXPECT_EQ(row.Depth, 0);
  EXPECT_EQ(row.Caption + row.Name, "");
}

TEST(MenuRow, ANameWithBlanksIsTakenAsItStands) {
  EXPECT_EQ(SplitMenuRow("&File    ( my name )").Name, " my name ");
  ProjectTables tables;
  ParseMenuRows(tables, {"&File    ( my name )"});
  EXPECT_EQ(tables.MenuTitles.at(1).Name, " my name ");
}

TEST(ParseMenuRows, FillsTitlesItemsAndRows) {
  ProjectTables tables;
  ParseMenuRows(tables, {"&File    (mnuFile)", "...&New    (mnuNew)", "...-    (sep1)",
                         "&Help    (mnuHelp)", "...&About    (mnuAbout)", "", ""});
  EXPECT_EQ(tables.MenuRows, (Rows{"", "&File", "...&New", "...-", "&Help", "...&About"}));
  ASSERT_EQ(tables.MenuTitles.size(), 3U);
  EXPECT_EQ(tables.MenuTitles[1].Caption, "&File");
  EXPECT_EQ(tables.MenuTitles[1].Tag, "Menu1");
  EXPECT_EQ(tables.MenuTitles[1].Reserved, "");
  EXPECT_EQ(tables.MenuTitles[1].Name, "mnuFile");
  EXPECT_EQ(tables.MenuTitles[1].LastItem, 2);
  EXPECT_EQ(tables.MenuTitles[2].Tag, "Menu2");
  EXPECT_EQ(tables.MenuTitles[2].LastItem, 3);
  ASSERT_EQ(tables.MenuItems.size(), 4U);
  EXPECT_EQ(tables.MenuItems[2].Caption, "-");
  EXPECT_EQ(tables.MenuItems[2].Name, "sep1");
  // Items count through the whole bar.
  EXPECT_EQ(tables.MenuItems[3].Tag, "Item3");
  EXPECT_EQ(tables.MenuItems[3].Parent, 2);
}

TEST(ParseMenuRows, RefillsTheArraysEachTime) {
  ProjectTables tables;
  ParseMenuRows(tables, {"A    (a)", "...B    (b)"});
  ParseMenuRows(tables, {"C    (c)"});
  EXPECT_EQ(tables.MenuTitles.size(), 2U);
  EXPECT_EQ(tables.MenuItems.size(), 1U);
  EXPECT_EQ(tables.MenuTitles[1].LastItem, 0);
}

TEST(ParseMenuRows, ANestedFirstRowHasNoParentAndIsNotReached) {
  ProjectTables tables;
  ParseMenuRows(tables, {"...Lost    (lost)", "&File    (mnuFile)", "...&New    (mnuNew)"});
  EXPECT_EQ(tables.MenuItems.at(1).Parent, 0);
  EXPECT_EQ(tables.MenuItems.at(1).Caption, "Lost");
  EXPECT_EQ(tables.MenuItems.at(2).Parent, 1);
  DesignForm window;
  BuildFormMenu(tables, window);
  EXPECT_EQ(RowsOfFormMenu(window), (Rows{"&File    (mnuFile)", "...&New    (mnuNew)"}));
}

TEST(ParseMenuRows, ASeparatorKeepsItsName) {
  ProjectTables tables;
  ParseMenuRows(tables, {"&File    (mnuFile)", "...-    (sep1)"});
  EXPECT_EQ(tables.MenuItems.at(1).Caption, "-");
  EXPECT_EQ(tables.MenuItems.at(1).Name, "sep1");
}

TEST(ParseMenuRows, TheCaptionEndsAtTheGapAndLosesBlanksAtItsEndOnly) {
  ProjectTables tables;
  ParseMenuRows(tables, {"  Two words       (a)", "...  x  y      (b)"});
  // The gap is the first four blanks that a bracket follows.
  EXPECT_EQ(tables.MenuTitles.at(1).Caption, "  Two words");
  EXPECT_EQ(tables.MenuItems.at(1).Caption, "  x  y");
  EXPECT_EQ(tables.MenuItems.at(1).Name, "b");
}

TEST(ParseMenuRows, ACaptionWithBracketsIsCutAtTheGapButItsNameIsTheFirstBracket) {
  ProjectTables tables;
  ParseMenuRows(tables, {"Copy (all)    (mnuCopy)"});
  EXPECT_EQ(tables.MenuTitles.at(1).Caption, "Copy (all)");
  EXPECT_EQ(tables.MenuTitles.at(1).Name, "all");
}

TEST(ParseMenuRows, ADeeperRowKeepsItsFurtherPrefixInTheCaption) {
  ProjectTables tables;
  ParseMenuRows(tables, {"A    (a)", "......Deep    (deep)"});
  EXPECT_EQ(tables.MenuItems.at(1).Caption, "...Deep");
  EXPECT_EQ(tables.MenuRows.at(2), "......Deep");
}

TEST(BuildFormMenu, EmptiesTheRowsThatHaveBeenUsed) {
  ProjectTables tables;
  ParseMenuRows(tables, {"A    (a)", "...B    (b)"});
  DesignForm window;
  BuildFormMenu(tables, window);
  EXPECT_EQ(tables.MenuRows, (Rows{"", "", ""}));
  EXPECT_EQ(window.UBound(Kind::Menu), 1);
  EXPECT_EQ(window.UBound(Kind::MenuItem), 1);
}

TEST(BuildFormMenu, RowsComeBackInTheirOrder) {
  const Rows rows{"A    (a)", "...B    (b)", "......C    (c)",
                  "D    (d)", "E    (e)",    "...F    (f)"};
  ProjectTables tables;
  ParseMenuRows(tables, rows);
  DesignForm window;
  BuildFormMenu(tables, window);
  EXPECT_EQ(RowsOfFormMenu(window), rows);
}

TEST(BuildFormMenu, ClearingTakesMenuAndArraysAway) {
  ProjectTables tables;
  ParseMenuRows(tables, {"A    (a)", "...B    (b)"});
  DesignForm window;
  BuildFormMenu(tables, window);
  ClearFormMenu(tables, window);
  EXPECT_TRUE(RowsOfFormMenu(window).empty());
  EXPECT_FALSE(window.MenuBarVisible());
  EXPECT_EQ(tables.MenuTitles.size(), 1U);
  EXPECT_EQ(tables.MenuItems.size(), 1U);
}

TEST(PopUpRows, FillTopRowsWithTheSubItemsUnderThem) {
  PopUpFormRec popup;
  ParsePopUpRows(popup, {"...Lost    (lost)", "Open    (pOpen)", "...Here    (pHere)",
                         "...There    (pThere)", "", "Close    (pClose)"});
  ASSERT_EQ(popup.Items.size(), 3U);
  EXPECT_EQ(popup.Items[1].Caption, "Open");
  EXPECT_EQ(popup.Items[1].Name, "pOpen");
  EXPECT_EQ(popup.Items[1].Level, 2);
  ASSERT_EQ(popup.Items[1].Entries.size(), 3U);
  EXPECT_EQ(popup.Items[1].Entries[2].Name, "pThere");
  EXPECT_EQ(popup.Items[1].Entries[2].Text, "There");
  EXPECT_EQ(popup.Items[2].Level, 0);
}

TEST(PopUpRows, ComeBackInTheirOrder) {
  const Rows rows{"Open    (pOpen)", "...Here    (pHere)", "Close    (pClose)"};
  PopUpFormRec popup;
  ParsePopUpRows(popup, rows);
  EXPECT_EQ(RowsOfPopUp(popup), rows);
  ParsePopUpRows(popup, {});
  EXPECT_TRUE(RowsOfPopUp(popup).empty());
}

}  // namespace
}  // namespace tarnwick::menus
