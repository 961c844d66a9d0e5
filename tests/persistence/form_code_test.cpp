// What a form file holds beside its objects: event code, popups, menus and declarations.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/fake_project.h"
#include "support/form_text.h"

namespace tarnwick::test {
namespace {

TEST(FormCode, FormEventsReplaceTheEmptyEntriesAndFillTheEventsBar) {
  FakeProject project;
  project.Load(
      "[Form](1) {F} Click<a>Click Close<>Close Show<b>Show\r\n"
      "[Button](1) {B} Click<c>Click KeyUp<d>KeyUp\r\n");
  EXPECT_EQ(project.Code("Form1.OnClick"), "a");
  EXPECT_EQ(project.Code("Form1.OnShow"), "b");
  EXPECT_EQ(project.Code("Form1.OnClose"), "");
  std::vector<std::string> rows;
  for (const auto& entry : project.Tables.Bar(1)->Entries)
    rows.push_back(entry.Name + " " + entry.Event);
  EXPECT_EQ(rows, (std::vector<std::string>{"Form OnClick", "Form OnShow", "Button1 OnClick",
                                            "Button1 OnKeyUp"}));
}

TEST(FormCode, TimersAndPopUpsHaveKeysOfTheirArrays) {
  FakeProject project;
  project.Load(
      WithForm("[Time](2) {T} Click<tick>Click\r\n[PopUpMenu](3) {P} Click<pop>Click\r\n"));
  EXPECT_EQ(project.Code("Form1.Time2.OnTimer"), "tick");
  EXPECT_EQ(project.Code("Form1.Popupmnu3.OnPopUp"), "pop");
  EXPECT_EQ(project.Code("Form1.Time2.OnClick"), "(none)");
}

TEST(FormCode, APopUpIsFilledAnewFromItsItems) {
  FakeProject project;
  project.Load(
      WithForm("[PopUpMenu](2) {P} String<1>String Tip<0>Tip Width<B>Width "
               "Items<A\x8D"
               "a\x8F"
               "B\x8C 1\x8D"
               "b\x8F\x8F"
               "C\x8E\x8E"
               "D\x8E>Items\r\n"));
  const PopUpItemRec& popup = *project.Form().PopUps.At(2);
  EXPECT_EQ(popup.Alignment, 1);
  EXPECT_EQ(popup.AutoPopUp, 0);
  EXPECT_EQ(popup.PopUpMenu, "B");
  const auto& rows = project.Tables.PopUpMenus.At(2)->Items;
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[1].Caption, "A");
  EXPECT_EQ(rows[1].Name, "a");
  EXPECT_EQ(rows[1].Level, 2);
  ASSERT_EQ(rows[1].Entries.size(), 3U);
  EXPECT_EQ(rows[1].Entries[1].Text, "B, 1");
  EXPECT_EQ(rows[1].Entries[1].Name, "b");
  EXPECT_EQ(rows[1].Entries[2].Text, "C");
  EXPECT_EQ(rows[1].Entries[2].Name, "");
  EXPECT_EQ(rows[2].Caption, "D");
  EXPECT_EQ(rows[2].Name, "");
}

TEST(FormCode, PopUpsOfOneNumberShareTheirRows) {
  FakeProject project;
  project.Ports.Files.Put("C:\\Work\\a.ftn", WithForm("[PopUpMenu](1) {P} Items<A\x8D"
                                                      "a\x8E>Items\r\n"));
  project.Ports.Files.Put("C:\\Work\\b.ftn",
                          "[Form](1) {G}\r\n[PopUpMenu](1) {Q} Items<B\x8D"
                          "b\x8E>Items\r\n");
  project.LoadIndex("a.ftn\r\nb.ftn\r\n");
  ASSERT_EQ(project.Tables.PopUpMenus.At(1)->Items.size(), 2U);
  EXPECT_EQ(project.Tables.PopUpMenus.At(1)->Items[1].Name, "b");
  EXPECT_NE(project.Saved(1).find("B\x8D"
                                  "b\x8E"),
            std::string::npos);
}

TEST(FormCode, MenuRecordsFillTheArraysAndTheForm) {
  FakeProject project;
  project.Load(
      WithForm("[MenuItem]   (1)  {mnuNew}  Click<n\x95m>Click\r\n"
               "[ItemMenu]   (2)  {mnuLast}  Click<>Click\r\n"
               "[Menu]   (1)  {mnuFile}  String<&File\x8D>String   Items<&New\x8C x\x8D#\x8D"
               "mnuNew\x8D*\x8DLast\x8E#\x8DmnuLast\x8D*\x8Dno mark\x8D*\x8D>Items\r\n"
               "[Menu]  (2) {mnuHelp} String<&Help>String   Items<>Items\r\n"));
  const ProjectTables& tables = project.Tables;
  ASSERT_EQ(tables.MenuTitles.size(), 3U);
  EXPECT_EQ(tables.MenuTitles[1].Caption, "&File,");
  EXPECT_EQ(tables.MenuTitles[1].LastItem, 2);
  ASSERT_EQ(tables.MenuItems.size(), 3U);
  EXPECT_EQ(tables.MenuItems[1].Caption, "&New, x");
  EXPECT_EQ(tables.MenuItems[2].Caption, "...Last");
  EXPECT_EQ(tables.MenuItems[2].Name, "mnuLast");
  EXPECT_EQ(tables.MenuItems[2].Parent, 1);
  EXPECT_EQ(project.Code("Form1.mnuNew.OnClick"), "n\r\nm");
  EXPECT_EQ(project.Code("Form1.mnuLast.OnClick"), "");
  EXPECT_EQ(project.User().UBound(Kind::Menu), 2);
  EXPECT_EQ(project.User().UBound(Kind::MenuItem), 2);
  EXPECT_TRUE(project.User().MenuBarVisible());
  EXPECT_EQ(project.Control(Kind::MenuItem, 2).MenuParent, 1);
}

TEST(FormCode, TheFirstMenuOfAFileEmptiesTheMenuArrays) {
  FakeProject project;
  const std::string menu =
      "[Menu]  (1) {m} String<M>String   Items<A\x8D#\x8D"
      "a\x8D*\x8D>Items\r\n";
  project.Ports.Files.Put("C:\\Work\\a.ftn", WithForm(menu + menu));
  project.Ports.Files.Put("C:\\Work\\b.ftn", "[Form](1) {G}\r\n" + menu);
  project.Ports.Files.Put("C:\\Work\\c.ftn", "[Form](1) {H}\r\n");
  project.LoadIndex("a.ftn\r\nb.ftn\r\nc.ftn\r\n");
  EXPECT_EQ(project.Tables.MenuTitles.size(), 2U);
  EXPECT_EQ(project.Tables.MenuItems.size(), 2U);
  // Each form keeps its own bar.
  EXPECT_EQ(project.User(1).UBound(Kind::Menu), 2);
  EXPECT_EQ(project.User(2).UBound(Kind::Menu), 1);
}

TEST(FormCode, CodeOfPopUpEntriesAndItemsReplacesWhatIsThere) {
  FakeProject project;
  project.Load(
      WithForm("[Sub]{p} Click<one>Click\r\n[SUB]{p} Click<two>Click\r\n"
               "[MenuItem] (1) {m} Click<a>Click\r\n[ItemMenu] (1) {m} Click<b>Click\r\n"));
  EXPECT_EQ(project.Code("Form1.p.OnClick"), "two");
  EXPECT_EQ(project.Code("Form1.m.OnClick"), "b");
}

TEST(FormCode, DeclarationsAreKeptUnlessTheyAreEmpty) {
  FakeProject project;
  project.Load(
      WithForm("[DeclarePbl] String<Dim a\x8D b\x95"
               "Dim c>String\r\n"
               "[DeclarePbl] String<>String\r\n"));
  EXPECT_EQ(project.Form().DeclarePbl, "Dim a, b\r\nDim c");
}

TEST(FormCode, TheKindWordOfDeclarationsIsExact) {
  FakeProject project;
  project.Load(WithForm("[declarepbl] String<x>String\r\n"));
  EXPECT_EQ(project.Form().DeclarePbl, "");
}

}  // namespace
}  // namespace tarnwick::test
