#include "menus/row_faults.h"

#include <gtest/gtest.h>

#include "fakes/project_builder.h"

namespace tarnwick::menus {
namespace {

using test::ProjectBuilder;

std::vector<std::string> BarFaults(const Rows& rows, const NameSet& others = {}) {
  return FaultsOfRows(MenuBarDesign(), rows, others);
}

std::string Fault(const std::string& row, const NameSet& others = {}) {
  return BarFaults({"Top    (top)", row}, others).at(1);
}

TEST(RowFaults, AGoodRowAndAnEmptyOneHaveNone) {
  for (const std::string& fault :
       BarFaults({"&File    (mnuFile)", "...&New    (mnuNew)", "...-    (sep1)", "", "..."})) {
    EXPECT_EQ(fault, "");
  }
}

TEST(RowFaults, AnEmptyNameIsAFault) {
  EXPECT_EQ(Fault("&File    ()"), "The name is empty.");
}

TEST(RowFaults, AnEmptyNameOfASeparatorIsAFaultAsWell) {
  EXPECT_EQ(Fault("...-    ()"), "The name is empty.");
}

TEST(RowFaults, ANameThatIsNoIdentifierIsAFault) {
  EXPECT_EQ(Fault("&File    (my name)"), "The name my name is no name of the language.");
  EXPECT_EQ(Fault("&File    (1st)"), "The name 1st is no name of the language.");
}

TEST(RowFaults, AWordOfTheLanguageIsAFault) {
  EXPECT_EQ(Fault("&End    (End)"), "The name End is a word of the language.");
}

TEST(RowFaults, ADoubledNameIsAFaultOfBothRowsWithoutRegardToCase) {
  const auto faults = BarFaults({"A    (mnuA)", "B    (MNUA)"});
  EXPECT_EQ(faults.at(0), "The name mnuA stands twice in this menu.");
  EXPECT_EQ(faults.at(1), "The name MNUA stands twice in this menu.");
}

TEST(RowFaults, ANameOfTheRestOfTheProjectIsAFault) {
  EXPECT_EQ(Fault("&File    (button1)", {"Button1"}),
            "The name button1 is used elsewhere in the project.");
}

TEST(RowFaults, BracketsInTheCaptionAreAFault) {
  const std::string told = "It holds brackets: its caption and its name end at the first one.";
  EXPECT_EQ(Fault("Copy (all)    (mnuCopy)"), told);
  EXPECT_EQ(Fault("a) b    (c)"), told);
  EXPECT_EQ(Fault("a( b    (c)"), told);
  EXPECT_EQ(Fault("a    (b    (c)"), told);
}

TEST(RowFaults, BracketsInTheNameAreAFault) {
  EXPECT_EQ(Fault("Copy    (mnu(1))"),
            "It holds brackets: its caption and its name end at the first one.");
}

TEST(RowFaults, ANestedRowAheadOfTheFirstTitleIsAFault) {
  EXPECT_EQ(BarFaults({"", "...Lost    (lost)", "Top    (top)", "...Here    (here)"}),
            (std::vector<std::string>{"", "It has no title above it and is left out of the menu.",
                                      "", ""}));
  EXPECT_EQ(FaultsOfRows(PopUpDesign(), {"...Lost    (lost)"}, {}).front(),
            "It has no item above it and is left out of the menu.");
}

TEST(RowFaults, AQuoteAndACharacterOfTheFileAreFaults) {
  EXPECT_EQ(Fault("Say \"x\"    (say)"),
            "The caption has a double quote, which ends it in the program.");
  EXPECT_EQ(Fault("\x8Cuvre    (say)"),
            "The caption has a character that the form file cannot keep.");
}

TEST(RowFaults, ADeeperRowIsGoodInAMenuBarAndAFaultInAPopUpMenu) {
  EXPECT_EQ(Fault("......Deep    (deep)"), "");
  EXPECT_EQ(FaultsOfRows(PopUpDesign(), {"A    (a)", "......Deep    (deep)"}, {}).at(1),
            "A popup menu has one level of sub-items: the dots become part of the caption.");
}

TEST(RowFaults, OtherNamesOfAMenuBarAreAllButItsOwn) {
  ProjectBuilder made;
  const auto first = made.AddForm("Main");
  first.Add(Kind::Button, "Go");
  first.Add(Kind::Menu, "mnuFile");
  first.Add(Kind::MenuItem, "mnuNew");
  const auto second = made.AddForm("Other");
  second.Add(Kind::MenuItem, "mnuElsewhere");
  ParsePopUpRows(*made.Tables.PopUpMenus.Ensure(1), {"A    (ppA)", "...B    (ppB)"});
  const NameSet names = NamesBesideMenuBar(made.Tables, 1);
  EXPECT_EQ(names, (NameSet{"Main", "Other", "Go", "mnuElsewhere", "ppA", "ppB"}));
}

TEST(RowFaults, OtherNamesOfAPopUpMenuAreAllButItsOwnRows) {
  ProjectBuilder made;
  made.AddForm("Main").Add(Kind::MenuItem, "mnuNew");
  ParsePopUpRows(*made.Tables.PopUpMenus.Ensure(1), {"A    (ppA)"});
  ParsePopUpRows(*made.Tables.PopUpMenus.Ensure(2), {"B    (ppB)", "...C    (ppC)"});
  EXPECT_EQ(NamesBesidePopUp(made.Tables, 1), (NameSet{"Main", "mnuNew", "ppB", "ppC"}));
}

}  // namespace
}  // namespace tarnwick::menus
