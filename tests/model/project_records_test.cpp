#include "model/project_records.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/menu_bar.h"
#include "model/new_form.h"

namespace tarnwick {
namespace {

TEST(NewForm, HasItsDefaults) {
  ProjectTables tables;
  ASSERT_EQ(AddForm(tables), 1);
  const FormRec& form = *tables.Form(1);
  EXPECT_EQ(form.Removed, 0);
  EXPECT_EQ(form.Left, 0);
  EXPECT_EQ(form.Top, 0);
  EXPECT_EQ(form.Width, 400);
  EXPECT_EQ(form.Height, 333);
  EXPECT_EQ(form.FileName, "");
  EXPECT_EQ(form.Name, "Form1");
  EXPECT_EQ(form.Visible, 1);
  EXPECT_EQ(form.Hint, "");
  EXPECT_EQ(form.Cursor, 0);
  EXPECT_EQ(form.BorderStyle, 2);
  EXPECT_EQ(form.Center, 0);
  EXPECT_EQ(form.WndState, 0);
  EXPECT_EQ(form.IconFile, "(Default)");
  EXPECT_EQ(form.ImageFile, "(Default)");
  EXPECT_EQ(form.TfAlign, 5);
  EXPECT_EQ(form.TfColor, 0);
  EXPECT_EQ(form.TfCursor, 0);
  EXPECT_EQ(form.TfHeight, 0);
  EXPECT_EQ(form.TfLeft, 0);
  EXPECT_EQ(form.TfTop, 0);
  EXPECT_EQ(form.TfTransparency, 0);
  EXPECT_EQ(form.TfTranspColor, 0);
  EXPECT_EQ(form.TfWidth, 0);
  EXPECT_EQ(form.TfString, "");
  EXPECT_EQ(form.DeclarePbl, "");
  EXPECT_EQ(form.PopUps.UBound(), 0);
  EXPECT_EQ(form.ComboItems.UBound(), 0);
  for (std::size_t kind = 0; kind < kObjectKindCount; ++kind) {
    const auto* records = form.Objects(static_cast<Kind>(kind));
    if (records != nullptr) {
      EXPECT_EQ(records->UBound(), 0);
    }
  }
}

TEST(NewForm, HasAWindowOfItsNumberAndSize) {
  ProjectTables tables;
  AddForm(tables);
  const DesignForm& window = *tables.User(1);
  EXPECT_EQ(window.Caption, "Form1");
  EXPECT_EQ(window.Number(), 1);
  EXPECT_EQ(window.Width, 6000);
  EXPECT_EQ(window.Height, 5000);
  EXPECT_EQ(window.oldWidth, 6000);
  EXPECT_EQ(window.oldHeight, 5000);
}

TEST(NewForm, HasAnEmptyEntryForEachFormEvent) {
  ProjectTables tables;
  AddForm(tables);
  std::set<std::string> keys;
  tables.EventTable.ForEach([&](const std::string& key, const std::string& code) {
    keys.insert(key);
    EXPECT_EQ(code, "");
  });
  EXPECT_EQ(keys,
            (std::set<std::string>{
                "Form1.OnTimer", "Form1.OnClick", "Form1.OnClose", "Form1.OnHint", "Form1.OnPaint",
                "Form1.OnResize", "Form1.OnShow", "Form1.OnKeyDown", "Form1.OnKeyPress",
                "Form1.OnKeyUp", "Form1.OnMouseDown", "Form1.OnMouseMove", "Form1.OnMouseUp"}));
}

TEST(NewForm, TheFirstFormOfAnEmptyProjectBecomesItsMainForm) {
  ProjectTables tables;
  tables.MainFormName = "Other (x.ftn)";
  AddForm(tables);
  EXPECT_EQ(tables.MainFormName, "Form1 ()");
  tables.MainFormName = "Form1 (a.ftn)";
  AddForm(tables);
  EXPECT_EQ(tables.MainFormName, "Form1 (a.ftn)");
}

TEST(NewForm, TheCommandAddNewFormLeavesTheMainFormAlone) {
  ProjectTables tables;
  tables.MainFormName = "Other (x.ftn)";
  NewForm(tables);
  EXPECT_EQ(tables.MainFormName, "Other (x.ftn)");
}

TEST(NewForm, GetsALineInTheFormList) {
  ProjectTables tables;
  AddForm(tables);
  AddForm(tables);
  ASSERT_EQ(tables.ListaFrms.Lines().size(), 2U);
  EXPECT_EQ(tables.ListaFrms.Lines()[1].Text, "Form2 ()");
  EXPECT_EQ(tables.ListaFrms.Lines()[1].FormNumber, 2);
}

TEST(ProjectTables, ARemovedFormKeepsItsNumberAndTheNextGetsAHigherOne) {
  ProjectTables tables;
  AddForm(tables);
  AddForm(tables);
  tables.Form(2)->Removed = 1;
  EXPECT_EQ(tables.FormsCount, 2);
  EXPECT_FALSE(tables.IsLive(2));
  EXPECT_EQ(AddForm(tables), 3);
  EXPECT_EQ(tables.Form(2)->Removed, 1);
  EXPECT_TRUE(tables.IsLive(3));
}

TEST(ProjectTables, TwoFormsHoldObjectsOfOneNameUnderTheirOwnKeys) {
  ProjectTables tables;
  AddForm(tables);
  AddForm(tables);
  tables.EventTable.Add("Form1.Button1.OnClick", "first");
  tables.EventTable.Add("Form2.Button1.OnClick", "second");
  EXPECT_EQ(*tables.EventTable.Find("Form1.Button1.OnClick"), "first");
  EXPECT_EQ(*tables.EventTable.Find("Form2.Button1.OnClick"), "second");
}

TEST(ProjectTables, SlotNoughtIsNoForm) {
  ProjectTables tables;
  AddForm(tables);
  EXPECT_FALSE(tables.IsLive(0));
  EXPECT_EQ(tables.User(0), nullptr);
  EXPECT_EQ(tables.Bar(0), nullptr);
  EXPECT_EQ(tables.Form(2), nullptr);
  EXPECT_EQ(tables.Form(-1), nullptr);
  EXPECT_EQ(tables.User(2), nullptr);
  EXPECT_EQ(tables.FormsTable.size(), 2U);
}

TEST(ProjectTables, AnEmptySlotIsFilledOnFirstTouch) {
  ProjectTables tables;
  tables.GrowForms();
  EXPECT_EQ(tables.UserIfAny(1), nullptr);
  DesignForm* window = tables.User(1);
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(tables.User(1), window);
  EXPECT_EQ(tables.UserIfAny(1), window);
  EXPECT_EQ(tables.Bar(1)->Height, 50);
}

TEST(ProjectTables, FormsWindowsAndBarsGrowTogetherKeepingContents) {
  ProjectTables tables;
  AddForm(tables);
  tables.Form(1)->Name = "Kept";
  const DesignForm* window = tables.User(1);
  for (int i = 0; i < 50; ++i) AddForm(tables);
  EXPECT_EQ(tables.FormsTable.size(), 52U);
  EXPECT_EQ(tables.FormsUser.size(), 52U);
  EXPECT_EQ(tables.FormsBar.size(), 52U);
  EXPECT_EQ(tables.Form(1)->Name, "Kept");
  EXPECT_EQ(tables.User(1), window);
}

TEST(ProjectTables, TheLastNumberOfTheRangeIsTheLastForm) {
  ProjectTables tables;
  for (int i = 0; i < 32767; ++i) ASSERT_NE(tables.GrowForms(), 0);
  EXPECT_EQ(tables.GrowForms(), 0);
  EXPECT_EQ(tables.FormsCount, 32767);
}

TEST(ProjectTables, ARecordIsFoundByTheNumberOnItsWindow) {
  ProjectTables tables;
  AddForm(tables);
  AddForm(tables);
  EXPECT_EQ(tables.RecordOf(*tables.User(2)), tables.Form(2));
  const DesignForm unnumbered;
  EXPECT_EQ(tables.RecordOf(unnumbered), nullptr);
}

TEST(ProjectTables, ResettingEmptiesTheProjectAndKeepsItsPaths) {
  ProjectTables tables;
  tables.ProjectFile = "C:\\w\\p.tnp";
  AddForm(tables);
  tables.MainFormName = "Kept ()";
  tables.CurrentForm = tables.User(1);
  tables.EventTable.Add("Form1.Button1.OnClick", "x");
  tables.PopUpMenus.Ensure(2)->Removed = 1;
  AddMenuTitle(tables, "File", "mnuFile");
  tables.Reset();
  EXPECT_EQ(tables.FormsCount, 0);
  EXPECT_EQ(tables.FormsTable.size(), 1U);
  EXPECT_TRUE(tables.ListaFrms.Empty());
  EXPECT_EQ(tables.EventTable.Size(), 0U);
  EXPECT_EQ(tables.PopUpMenus.UBound(), 0);
  EXPECT_EQ(tables.MenuTitles.size(), 1U);
  EXPECT_EQ(tables.CurrentForm, nullptr);
  EXPECT_EQ(tables.MainFormName, "Kept ()");
  EXPECT_EQ(tables.ProjectFile, "C:\\w\\p.tnp");
}

TEST(ProjectTables, TheProjectFolderEndsInItsBackslash) {
  ProjectTables tables;
  EXPECT_EQ(tables.ProjectFolder(), "");
  tables.ProjectFile = "C:\\a\\b\\p.tnp";
  EXPECT_EQ(tables.ProjectFolder(), "C:\\a\\b\\");
}

TEST(ProjectTables, TwelveKindsHaveObjectRecordsOfTheirOwn) {
  FormRec form;
  std::vector<RecordArray<ObjectRec>*> met;
  for (std::size_t kind = 0; kind < kKindCount; ++kind) {
    RecordArray<ObjectRec>* records = form.Objects(static_cast<Kind>(kind));
    if (records == nullptr) continue;
    EXPECT_EQ(std::count(met.begin(), met.end(), records), 0);
    met.push_back(records);
  }
  EXPECT_EQ(met.size(), 12U);
  EXPECT_EQ(form.Objects(Kind::WinSock), nullptr);
  EXPECT_EQ(form.Objects(Kind::Image), &form.Images);
}

TEST(ProjectPaths, AFileOnTheProgramsDriveStandsAndAnyOtherHangsUnderTheProject) {
  ProjectTables tables;
  tables.ProgramFolder = "C:\\Tarnwick";
  tables.ProjectFile = "C:\\Work\\p.tnp";
  EXPECT_EQ(ResolveProjectPath(tables, "c:\\x.bmp", true), "c:\\x.bmp");
  EXPECT_EQ(ResolveProjectPath(tables, "c:\\x.bmp", false), "C:\\Work\\c:\\x.bmp");
  EXPECT_EQ(ResolveProjectPath(tables, "x.bmp", true), "C:\\Work\\x.bmp");
  EXPECT_EQ(ResolveProjectPath(tables, "D:\\x.bmp", true), "C:\\Work\\D:\\x.bmp");
}

TEST(ProjectPaths, APictureIsNamedByFormKindAndIndex) {
  EXPECT_EQ(PictureResourceName(2, Kind::Button, 3), "Frm2Btn3_Bmp");
  EXPECT_EQ(PictureResourceName(1, Kind::Image, 14), "Frm1Image14_Bmp");
}

TEST(MenuBar, TitlesAndItemsAreNumberedAsTheyCome) {
  ProjectTables tables;
  AddMenuTitle(tables, "&File", "mnuFile");
  AddMenuItem(tables, "&New", "mnuNew");
  AddMenuItem(tables, "&Open", "mnuOpen");
  AddMenuTitle(tables, "&Help", "mnuHelp");
  AddMenuItem(tables, "&About", "mnuAbout");
  ASSERT_EQ(tables.MenuTitles.size(), 3U);
  ASSERT_EQ(tables.MenuItems.size(), 4U);
  EXPECT_EQ(tables.MenuTitles[1].Tag, "Menu1");
  EXPECT_EQ(tables.MenuTitles[1].LastItem, 2);
  EXPECT_EQ(tables.MenuTitles[2].Tag, "Menu2");
  EXPECT_EQ(tables.MenuTitles[2].LastItem, 3);
  EXPECT_EQ(tables.MenuItems[3].Tag, "Item3");
  EXPECT_EQ(tables.MenuItems[3].Parent, 2);
}

TEST(MenuBar, AnItemAheadOfTheFirstTitleHangsUnderNothing) {
  ProjectTables tables;
  AddMenuItem(tables, "&Lost", "mnuLost");
  AddMenuTitle(tables, "&File", "mnuFile");
  AddMenuItem(tables, "&New", "mnuNew");
  EXPECT_EQ(tables.MenuItems[1].Parent, 0);
  DesignForm window;
  BuildMenuControls(tables, window);
  ASSERT_EQ(window.UBound(Kind::MenuItem), 1);
  EXPECT_EQ(window.Element(Kind::MenuItem, 1)->Tag, "mnuNew");
  EXPECT_EQ(window.Element(Kind::MenuItem, 1)->MenuParent, 1);
}

TEST(MenuBar, BuildingTheControlsAgainReplacesThem) {
  ProjectTables tables;
  AddMenuTitle(tables, "&File", "mnuFile");
  AddMenuItem(tables, "&New", "mnuNew");
  DesignForm window;
  BuildMenuControls(tables, window);
  BuildMenuControls(tables, window);
  EXPECT_EQ(window.UBound(Kind::Menu), 1);
  EXPECT_EQ(window.UBound(Kind::MenuItem), 1);
  EXPECT_TRUE(window.MenuBarVisible());
  ClearMenuControls(window);
  EXPECT_FALSE(window.MenuBarVisible());
}

}  // namespace
}  // namespace tarnwick
