#include "codegen/menu_init.h"

#include <gtest/gtest.h>

#include "fakes/generated.h"

namespace tarnwick::test {
namespace {

Lines MenuBarLines(ProjectBuilder& project) {
  return Between(Generate(project), "MenuBar.Parent = Form1", "Form1.ShowModal");
}

TEST(MenuInit, OneTitleHasNoComma) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  project.Title("mnuFile", "&File");
  form.ShowMenuBar();
  EXPECT_EQ(MenuBarLines(project),
            (Lines{"MenuBar.Parent = Form1", "MenuBar.AddItems  mnuFile", "",
                   "mnuFile.Caption = \"&File\"", "", "", "Form1.ShowModal"}));
}

TEST(MenuInit, NamelessTitleLeavesAnEmptyPlaceAndHasNoBlock) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  project.Title("mnuA", "A").Title("", "B").Item("mnuB1", "b").Title("mnuC", "C");
  form.ShowMenuBar();
  EXPECT_EQ(MenuBarLines(project),
            (Lines{"MenuBar.Parent = Form1", "MenuBar.AddItems  mnuA, , mnuC", "",
                   "mnuA.Caption = \"A\"", "", "mnuC.Caption = \"C\"", "", "", "Form1.ShowModal"}));
}

TEST(MenuInit, ItemsStandUnderTheirTitles) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  project.Title("mnuA", "A").Item("mnuA1", "one").Item("", "none").Item("mnuA2", "two");
  project.Title("mnuB", "B").Item("mnuB1", "three");
  form.ShowMenuBar().ItemCode("mnuA2", "x");
  EXPECT_EQ(
      MenuBarLines(project),
      (Lines{"MenuBar.Parent = Form1", "MenuBar.AddItems  mnuA, mnuB", "", "mnuA.Caption = \"A\"",
             "mnuA.AddItems mnuA1", "mnuA1.Caption = \"one\"", "mnuA.AddItems mnuA2",
             "mnuA2.Caption = \"two\"", "mnuA2.OnClick = mnuA2_OnClick", "", "mnuB.Caption = \"B\"",
             "mnuB.AddItems mnuB1", "mnuB1.Caption = \"three\"", "", "", "Form1.ShowModal"}));
}

TEST(MenuInit, OneDepthPrefixIsTakenOffACaption) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  project.Title("mnuA", "A").Item("mnuSave", "...Save").Item("mnuDeep", "......Deep");
  form.ShowMenuBar();
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "mnuSave.Caption = \"Save\""));
  EXPECT_TRUE(Has(lines, "mnuDeep.Caption = \"...Deep\""));
}

TEST(MenuInit, ItemWithoutATitleIsReachedFromNone) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  project.Item("mnuLost", "lost").Title("mnuA", "A");
  form.ShowMenuBar();
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Dim mnuLost As QMenuItem"));
  EXPECT_TRUE(Starting(lines, "mnuLost.").empty());
}

TEST(MenuInit, SeparatorIsAnItemLikeAnyOther) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  project.Title("mnuA", "A").Item("sep1", "-");
  form.ShowMenuBar();
  EXPECT_TRUE(Has(Generate(project), "sep1.Caption = \"-\""));
}

TEST(MenuInit, NameWithBlanksIsTakenAsItStands) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  project.Title("mnu A", "A").Item("it em", "i");
  form.ShowMenuBar().ItemCode("it em", "x");
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "mnu A.AddItems it em"));
  EXPECT_TRUE(Has(lines, "it em.OnClick = it em_OnClick"));
}

TEST(MenuInit, SecondFormRepeatsTheMenuAndLooksItsOwnCodeUp) {
  ProjectBuilder project;
  const BuiltForm form1 = project.AddForm();
  const BuiltForm form2 = project.AddForm();
  project.Title("mnuA", "A").Item("mnuA1", "one");
  form1.ShowMenuBar();
  form2.ShowMenuBar().ItemCode("mnuA1", "x");
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "MenuBar.Parent = Form1"));
  EXPECT_TRUE(Has(lines, "MenuBar.Parent = Form2"));
  EXPECT_EQ(CountOf(lines, "mnuA.AddItems mnuA1"), 2);
  EXPECT_EQ(CountOf(lines, "mnuA1.OnClick = mnuA1_OnClick"), 1);
  EXPECT_LT(PositionOf(lines, "MenuBar.Parent = Form2"),
            PositionOf(lines, "mnuA1.OnClick = mnuA1_OnClick"));
}

TEST(MenuInit, BarWithoutTitlesHasAnEmptyList) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  project.Title("mnuA", "A");
  form.ShowMenuBar();
  project.Tables.ClearMenuArrays();
  EXPECT_EQ(MenuBarLines(project),
            (Lines{"MenuBar.Parent = Form1", "MenuBar.AddItems  ", "", "", "Form1.ShowModal"}));
}

TEST(MenuInit, PopUpNumberOneIsTheFirstRealObject) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::PopUpMenu, "pm1").Code(Event::OnPopUp, "up");
  form.Record().PopUps.At(1)->PopUpMenu = "Grid1";
  form.Record().PopUps.At(1)->Alignment = 2;
  project.PopUpItem(1, "itA", "&A").PopUpEntry(1, "itA1", "A1").PopUpEntry(1, "", "none");
  project.PopUpItem(1, "", "nameless").PopUpEntry(1, "itX", "x");
  project.PopUpItem(1, "it(2)", "B");
  form.ItemCode("itA1", "x").ItemCode("it(2)", "y");
  EXPECT_EQ(Between(Generate(project), "Grid1.PopUpMenu = pm1", "Form1.ShowModal"),
            (Lines{"Grid1.PopUpMenu = pm1", "pm1.Alignment = 2", "pm1.AutoPopUp = 1",
                   "pm1.OnPopUp = pm1_OnPopUp", "pm1.AddItems itA", "itA.Caption = \"&A\"",
                   "itA.AddItems itA1", "itA1.Caption = \"A1\"", "itA1.OnClick = itA1_OnClick",
                   "pm1.AddItems it(2)", "it(2).Caption = \"B\"",
                   // Names in array form stand as they are in popups.
                   "it(2).OnClick = it(2)_OnClick", "", "Form1.ShowModal"}));
}

TEST(MenuInit, PopUpItemZeroIsNeverAdded) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::PopUpMenu, "pm1");
  project.PopUpItem(1, "itA", "A");
  project.Tables.PopUpMenus.At(1)->Items[0].Name = "itZero";
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Dim itZero As QMenuItem"));
  EXPECT_TRUE(Starting(lines, "pm1.AddItems itZero").empty());
  EXPECT_TRUE(Starting(lines, "itZero.").empty());
}

TEST(MenuInit, PopUpsOfEachFormCountFromOne) {
  ProjectBuilder project;
  project.AddForm().Add(Kind::PopUpMenu, "pmA");
  const BuiltForm form2 = project.AddForm();
  form2.Add(Kind::PopUpMenu, "pmB");
  form2.Record().PopUps.At(1)->PopUpMenu = "Text9";
  EXPECT_TRUE(Has(Generate(project), "Text9.PopUpMenu = pmB"));
}

}  // namespace
}  // namespace tarnwick::test
