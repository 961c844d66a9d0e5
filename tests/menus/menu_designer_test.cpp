#include "menus/menu_designer.h"

#include <gtest/gtest.h>

#include "fakes/fake_project.h"

namespace tarnwick::menus {
namespace {

using test::FakeProject;

class FakeOpener final : public CodeOpener {
 public:
  explicit FakeOpener(ProjectTables& tables) : tables_(tables) {}
  std::vector<std::string> Opened;  ///< what `JumpKey` was
  void OpenCode() override { Opened.push_back(tables_.JumpKey); }

 private:
  ProjectTables& tables_;
};

const std::string kFormText =
    "[Form](1) {Main}  Width<300>Width   Height<200>Height\r\n\r\n"
    "[PopUpMenu]  (1) {Pop} Left<5>Left   Top<6>Top  Items<&Copy\x8D"
    "ppCopy\x8F"
    "Sub\x8D"
    "ppSub\x8E>Items\r\n\r\n\r\n"
    "[Menu]  (1) {mnuFile} String<&File>String   Items<&New\x8D#\x8DmnuNew\x8D*\x8D>Items\r\n";

class Designers : public ::testing::Test {
 protected:
  Designers() { project.Load(kFormText); }
  FakeProject project;
  ProjectTables& tables = project.Tables;
  History steps{tables, project.Observer};
  FakeOpener code{tables};
};

TEST_F(Designers, TheMenuBarOpensWithTheFormsOwnRows) {
  tables.ClearMenuArrays();
  const FormMenu designer(project.Context, steps, 1);
  EXPECT_EQ(designer.List().ListMenu(),
            (Rows{"&File    (mnuFile)", "...&New    (mnuNew)", "", ""}));
  EXPECT_EQ(designer.Design().Title, "Menu Edit");
  EXPECT_FALSE(designer.Design().Subroutines);
}

TEST_F(Designers, AFormWithoutAMenuOpensWithTwoEmptyRows) {
  project.Load("[Form](1) {Main}\r\n");
  EXPECT_EQ(FormMenu(project.Context, steps, 1).List().ListMenu(), (Rows{"", ""}));
}

TEST_F(Designers, CancelTouchesNothing) {
  const std::string saved = project.Saved();
  const auto titles = tables.MenuTitles.size();
  const DesignForm* window = tables.CurrentForm;
  project.Ports.Log.Clear();
  {
    FormMenu designer(project.Context, steps, 1);
    designer.List().Example();
    FormPopUp popup(project.Context, steps, code, 1, 1);
    popup.List().DeleteAll();
  }
  EXPECT_EQ(project.Saved(), saved);
  EXPECT_EQ(tables.MenuTitles.size(), titles);
  EXPECT_EQ(tables.CurrentForm, window);
  EXPECT_TRUE(project.Ports.Log.Entries().empty());
}

TEST_F(Designers, OkOfTheMenuBarTakesTheRowsWithoutTheEmptyOnes) {
  FormMenu designer(project.Context, steps, 1);
  designer.List().Select(2);
  designer.List().SetTexts({"&Open", "mnuOpen"});
  designer.List().Enter();
  ASSERT_TRUE(designer.Ok());
  EXPECT_EQ(RowsOfFormMenu(project.User()),
            (Rows{"&File    (mnuFile)", "...&New    (mnuNew)", "...&Open    (mnuOpen)"}));
}

TEST_F(Designers, TypedTextThatWasNotAddedYetGoesIntoItsRowAtOk) {
  FormMenu designer(project.Context, steps, 1);
  designer.List().SetTexts({"&Data", "mnuData"});
  ASSERT_TRUE(designer.Ok());
  EXPECT_EQ(RowsOfFormMenu(project.User()).front(), "&Data    (mnuData)");
}

TEST_F(Designers, DelAllAndOkTakesTheMenuAway) {
  FormMenu designer(project.Context, steps, 1);
  designer.List().DeleteAll();
  ASSERT_TRUE(designer.Ok());
  EXPECT_FALSE(project.User().MenuBarVisible());
}

TEST_F(Designers, ARowWithoutANameIsTakenAllTheSame) {
  FormMenu designer(project.Context, steps, 1);
  designer.List().SetTexts({"&File", ""});
  designer.List().Enter();
  EXPECT_EQ(designer.Faults().front(), "The name is empty.");
  ASSERT_TRUE(designer.Ok());
  EXPECT_EQ(tables.MenuTitles.at(1).Name, "");
  EXPECT_EQ(tables.MenuTitles.at(1).Caption, "&File");
}

TEST_F(Designers, RowsOfAMenuBarAreNoNamesakesOfThemselves) {
  for (const std::string& fault : FormMenu(project.Context, steps, 1).Faults())
    EXPECT_EQ(fault, "");
}

TEST_F(Designers, ThePopUpOpensWithItsRowsAndTheSubItemsBehindEach) {
  const FormPopUp designer(project.Context, steps, code, 1, 1);
  EXPECT_EQ(designer.List().ListMenu(), (Rows{"&Copy    (ppCopy)", "...Sub    (ppSub)", "", ""}));
  EXPECT_EQ(designer.Design().Title, "PopUpMenu Edit");
  EXPECT_TRUE(designer.Design().Subroutines);
}

TEST_F(Designers, APopUpWithoutStoredRowsOpensWithTwoEmptyOnes) {
  tables.PopUpMenus.Clear();
  EXPECT_EQ(FormPopUp(project.Context, steps, code, 1, 1).List().ListMenu(), (Rows{"", ""}));
}

TEST_F(Designers, OkOfThePopUpStoresRowsAndLevelsAndRebuildsNothing) {
  FormPopUp designer(project.Context, steps, code, 1, 1);
  designer.List().Example();
  const DesignForm* window = tables.CurrentForm;
  project.Ports.Log.Clear();
  ASSERT_TRUE(designer.Ok());
  const PopUpFormRec& popup = *tables.PopUpMenus.At(1);
  ASSERT_EQ(popup.Items.size(), 8U);
  EXPECT_EQ(popup.Items[7].Name, "MainppmSubItems");
  EXPECT_EQ(popup.Items[7].Level, 2);
  EXPECT_EQ(popup.Items[7].Entries.at(2).Text, "&SubItem2");
  EXPECT_EQ(popup.Items[1].Level, 0);
  EXPECT_EQ(tables.CurrentForm, window);
  EXPECT_EQ(project.Ports.Log.Count("replace"), 0U);
}

TEST_F(Designers, APopUpWithNoRowsKeepsASingleEmptyEntriesList) {
  FormPopUp designer(project.Context, steps, code, 1, 1);
  designer.List().DeleteAll();
  ASSERT_TRUE(designer.Ok());
  const PopUpFormRec& popup = *tables.PopUpMenus.At(1);
  ASSERT_EQ(popup.Items.size(), 1U);
  ASSERT_EQ(popup.Items[0].Entries.size(), 1U);
  EXPECT_EQ(popup.Items[0].Entries[0].Name + popup.Items[0].Entries[0].Text, "");
  EXPECT_EQ(popup.Items[0].Level, 0);
}

TEST_F(Designers, OkOfAPopUpThatIsGoneStoresNothing) {
  FormPopUp designer(project.Context, steps, code, 1, 1);
  designer.List().Example();
  project.User().UnloadAll(Kind::PopUpMenu);
  EXPECT_FALSE(designer.Ok());
  EXPECT_EQ(tables.PopUpMenus.At(1)->Items.size(), 2U);
  EXPECT_FALSE(FormPopUp(project.Context, steps, code, 1, 0).Ok());
  EXPECT_FALSE(FormPopUp(project.Context, steps, code, 9, 1).Ok());
}

TEST_F(Designers, SubroutinesSetsTheJumpKeyOfTheItemAndOpensTheEditor) {
  FormPopUp designer(project.Context, steps, code, 1, 1);
  designer.List().Select(1);
  EXPECT_TRUE(designer.Subroutines());
  EXPECT_EQ(code.Opened, std::vector<std::string>{"Form1.ppSub"});
}

TEST_F(Designers, SubroutinesWithoutANameDoesNothing) {
  FormPopUp designer(project.Context, steps, code, 1, 1);
  designer.List().Select(2);
  EXPECT_FALSE(designer.Subroutines());
  EXPECT_TRUE(code.Opened.empty());
  EXPECT_EQ(tables.JumpKey, "");
}

TEST_F(Designers, TheMenuBarHasNoSubroutines) {
  FormMenu designer(project.Context, steps, 1);
  EXPECT_FALSE(designer.Subroutines());
}

TEST_F(Designers, TheExampleTakesTheFormsNameAsItIsNow) {
  project.Form().Name = "Renamed";
  FormMenu designer(project.Context, steps, 1);
  designer.List().Example();
  EXPECT_EQ(designer.List().Texts().Name, "RenamedmnuFile");
}

TEST_F(Designers, OkOfTheMenuBarIsOneStepThatUndoTakesBack) {
  tables.EventTable.Replace("Form1.mnuNew.OnClick", "New");
  const std::string before = project.Saved();
  FormMenu designer(project.Context, steps, 1);
  designer.List().Example();
  ASSERT_TRUE(designer.Ok());
  const std::string after = project.Saved();
  const auto items = tables.MenuItems.size();
  EXPECT_EQ(steps.UndoName(), "Menu Edit");
  ASSERT_TRUE(steps.Undo().has_value());
  EXPECT_EQ(project.Saved(), before);
  EXPECT_EQ(RowsOfFormMenu(project.User()), (Rows{"&File    (mnuFile)", "...&New    (mnuNew)"}));
  EXPECT_EQ(tables.MenuItems.size(), 2U);
  ASSERT_TRUE(steps.Redo().has_value());
  EXPECT_EQ(project.Saved(), after);
  EXPECT_EQ(tables.MenuItems.size(), items);
}

TEST_F(Designers, OkOfAPopUpIsOneStepThatUndoTakesBack) {
  FormPopUp designer(project.Context, steps, code, 1, 1);
  designer.List().Example();
  ASSERT_TRUE(designer.Ok());
  EXPECT_EQ(steps.UndoName(), "PopUpMenu Edit");
  ASSERT_TRUE(steps.Undo().has_value());
  EXPECT_EQ(RowsOfPopUp(*tables.PopUpMenus.At(1)),
            (Rows{"&Copy    (ppCopy)", "...Sub    (ppSub)"}));
  ASSERT_TRUE(steps.Redo().has_value());
  EXPECT_EQ(tables.PopUpMenus.At(1)->Items.size(), 8U);
}

TEST_F(Designers, CancelMakesNoStep) {
  { FormMenu(project.Context, steps, 1).List().Example(); }
  EXPECT_FALSE(steps.CanUndo());
}

}  // namespace
}  // namespace tarnwick::menus
