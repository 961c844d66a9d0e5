#include "editor/function_panel.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/fake_edit_widget.h"

namespace tarnwick::test {
namespace {

using editor::FunctionListId;
using editor::FunctionPanel;
using editor::SearchIn;
using Rows = std::vector<std::string>;

class FunctionPanelTest : public testing::Test {
 protected:
  FunctionPanelTest() {
    language_.Functions.Add("Abs", "The value without its sign, a number");
    language_.Functions.Add("Mid$", "A piece of a text");
    language_.Functions.Add("Left$", "The first letters");
    language_.Functions.Add("Beep", "A tone");
    language_.ListFunc1 = {"Mid$", "Left$"};
    language_.ListFunc0 = {"Abs", "Beep"};
    panel_.Fill();
  }
  Rows Found(std::string_view text, SearchIn where) {
    panel_.Search(text, where);
    return panel_.ListFunc(FunctionListId::Found);
  }

  language::SupportTables language_;
  FakeEditWidget editor_;
  FunctionPanel panel_{language_, editor_};
};

TEST_F(FunctionPanelTest, TheListsAreThoseOfTheSupportFileWithTheFirstRowSelected) {
  EXPECT_EQ(panel_.ListFunc(FunctionListId::Main), (Rows{"Mid$", "Left$"}));
  EXPECT_EQ(panel_.ListFunc(FunctionListId::Further), (Rows{"Abs", "Beep"}));
  EXPECT_EQ(panel_.RowOf(FunctionListId::Main), 0);
  EXPECT_TRUE(panel_.ListFunc(FunctionListId::Found).empty());
}

TEST_F(FunctionPanelTest, EmptyTablesGiveEmptyLists) {
  const language::SupportTables none;
  FunctionPanel panel(none, editor_);
  panel.Fill();
  EXPECT_EQ(panel.RowOf(FunctionListId::Main), -1);
  panel.InsertSelected(FunctionListId::Main);
  EXPECT_EQ(editor_.Text(), "");
}

TEST_F(FunctionPanelTest, TheFirstRowThatBeginsWithTheTextIsSelectedInAnyLetters) {
  panel_.EditSearchChanged(FunctionListId::Main, "lEf");
  EXPECT_EQ(panel_.RowOf(FunctionListId::Main), 1);
  panel_.EditSearchChanged(FunctionListId::Main, "zz");
  EXPECT_EQ(panel_.RowOf(FunctionListId::Main), 1);
  panel_.EditSearchChanged(FunctionListId::Main, "");
  EXPECT_EQ(panel_.RowOf(FunctionListId::Main), 0);
}

TEST_F(FunctionPanelTest, TheHelpOfTheRowThatIsFoundShows) {
  panel_.EditSearchChanged(FunctionListId::Main, "");
  EXPECT_EQ(panel_.EditHelp(), "");
  panel_.EditSearchChanged(FunctionListId::Main, "mi");
  EXPECT_EQ(panel_.EditHelp(), "MID$\r\nA piece of a text");
  panel_.EditSearchChanged(FunctionListId::Main, "zz");
  EXPECT_EQ(panel_.EditHelp(), "MID$\r\nA piece of a text");
}

TEST_F(FunctionPanelTest, TheFieldOfTheSearchFindsNothingByItself) {
  panel_.Search("e", SearchIn::Names);
  panel_.EditSearchChanged(FunctionListId::Found, "b");
  EXPECT_EQ(panel_.RowOf(FunctionListId::Found), -1);
}

TEST_F(FunctionPanelTest, ASearchInNamesWalksTheMainListFirst) {
  EXPECT_EQ(Found("E", SearchIn::Names), (Rows{"Left$", "Beep"}));
}

TEST_F(FunctionPanelTest, ATextThatOnlyStandsInDescriptionsIsNotFoundInNames) {
  EXPECT_EQ(Found("tone", SearchIn::Names), Rows{"Not Found"});
  EXPECT_EQ(Found("tone", SearchIn::Descriptions), Rows{"Beep"});
}

TEST_F(FunctionPanelTest, ASearchInDescriptionsFollowsTheOrderOfTheHelp) {
  EXPECT_EQ(Found("a ", SearchIn::Descriptions), (Rows{"Abs", "Mid$", "Beep"}));
}

TEST_F(FunctionPanelTest, ASearchEverywhereNamesEachFunctionOnce) {
  EXPECT_EQ(Found("e", SearchIn::All), (Rows{"Left$", "Beep", "Abs", "Mid$"}));
}

TEST_F(FunctionPanelTest, AnEmptyTextSearchesNothing) {
  Found("tone", SearchIn::Descriptions);
  EXPECT_EQ(Found("", SearchIn::All), Rows{"Beep"});
}

TEST_F(FunctionPanelTest, AClickShowsTheHelpUnderTheNameInCapitals) {
  panel_.Click(FunctionListId::Main, 0);
  EXPECT_EQ(panel_.EditHelp(), "MID$\r\nA piece of a text");
}

TEST_F(FunctionPanelTest, AClickOnNotFoundLeavesTheHelp) {
  panel_.Click(FunctionListId::Main, 0);
  panel_.Search("zzz", SearchIn::All);
  panel_.Click(FunctionListId::Found, 0);
  EXPECT_EQ(panel_.EditHelp(), "MID$\r\nA piece of a text");
  panel_.DoubleClick(FunctionListId::Found, 0);
  EXPECT_EQ(editor_.Text(), "");
}

TEST_F(FunctionPanelTest, ARowThatIsNotThereDoesNothing) {
  panel_.Click(FunctionListId::Main, 7);
  panel_.Click(FunctionListId::Main, 2);
  EXPECT_EQ(panel_.RowOf(FunctionListId::Main), 0);
  panel_.DoubleClick(FunctionListId::Main, -1);
  EXPECT_EQ(panel_.EditHelp(), "");
  EXPECT_EQ(editor_.Text(), "");
}

TEST_F(FunctionPanelTest, ADoubleClickInsertsTheNameAndABlank) {
  editor_.SetText("x = 1");
  editor_.SetCaretPos(0, 4);
  panel_.DoubleClick(FunctionListId::Further, 0);
  EXPECT_EQ(editor_.CaretLine(), "x = Abs |1");
  EXPECT_EQ(editor_.Focused, 1);
}

TEST_F(FunctionPanelTest, EnterInTheFieldInsertsTheNameAlone) {
  panel_.EditSearchChanged(FunctionListId::Main, "le");
  panel_.InsertSelected(FunctionListId::Main);
  EXPECT_EQ(editor_.CaretLine(), "Left$|");
}

TEST_F(FunctionPanelTest, EnterInTheFieldInsertsTheRowThatWasClickedLast) {
  panel_.Click(FunctionListId::Further, 1);
  EXPECT_EQ(panel_.RowOf(FunctionListId::Further), 1);
  panel_.InsertSelected(FunctionListId::Further);
  EXPECT_EQ(editor_.CaretLine(), "Beep|");
}

TEST_F(FunctionPanelTest, EnterInTheFieldOfTheSearchInsertsNothing) {
  panel_.Search("beep", SearchIn::Names);
  panel_.Click(FunctionListId::Found, 0);
  panel_.InsertSelected(FunctionListId::Found);
  EXPECT_EQ(editor_.Text(), "");
}

TEST_F(FunctionPanelTest, WhatIsInsertedReplacesTheSelection) {
  editor_.SetText("x = old + 1");
  editor_.SetSel({0, 4, 0, 7});
  panel_.DoubleClick(FunctionListId::Further, 0);
  EXPECT_EQ(editor_.CaretLine(), "x = Abs | + 1");
}

TEST_F(FunctionPanelTest, AnotherFillEmptiesWhatWasFoundAndKeepsTheHelp) {
  panel_.Click(FunctionListId::Main, 1);
  panel_.Search("e", SearchIn::Names);
  panel_.Fill();
  EXPECT_TRUE(panel_.ListFunc(FunctionListId::Found).empty());
  EXPECT_EQ(panel_.RowOf(FunctionListId::Main), 0);
  EXPECT_EQ(panel_.EditHelp(), "LEFT$\r\nThe first letters");
}

TEST_F(FunctionPanelTest, AWordOfTheCodeShowsItsHelpInAnyLetters) {
  EXPECT_TRUE(panel_.ShowHelpOf("mid$"));
  EXPECT_EQ(panel_.EditHelp(), "MID$\r\nA piece of a text");
  EXPECT_FALSE(panel_.ShowHelpOf("nix"));
  EXPECT_EQ(panel_.EditHelp(), "MID$\r\nA piece of a text");
}

TEST(ComboSearch, HasItsRowsAsTheyStand) {
  EXPECT_EQ(editor::kComboSearchRows[0], "Funcions Name");
  EXPECT_EQ(editor::kComboSearchRows[1], "Descriptions Functions");
  EXPECT_EQ(editor::kComboSearchRows[2], "All!");
}

}  // namespace
}  // namespace tarnwick::test
