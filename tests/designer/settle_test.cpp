#include "designer/settle.h"

#include "surface_fixture.h"

namespace tarnwick {
namespace {

class Settle : public SurfaceTest {
 protected:
  std::string CodeOf(const std::string& key) {
    const std::string* code = tables.EventTable.Find(key);
    return code == nullptr ? "(none)" : *code;
  }
  void Delete(const ControlRef& control) {
    Click(control);
    commands.CutObject(keys::kDelete);
  }
};

TEST_F(Settle, LaterObjectsOfTheKindMoveDownWithRecordEntriesAndBarButton) {
  Place("Button", 10, 10);
  const ControlRef second = Place("Button", 110, 10);
  const ControlRef third = Place("Button", 210, 10);
  const ControlRef label = Place("Label", 10, 100);
  record.Buttons.At(2)->Cursor = 2;
  record.Buttons.At(3)->Cursor = 3;
  tables.EventTable.Replace("Form1.Button2.OnClick", "two");
  tables.EventTable.Replace("Form1.Button3.OnClick", "three");
  tables.EventTable.Replace("Form1.Button3.OnKeyUp", "up");
  tables.Bar(1)->Entries = {{"Button2", "OnClick"}, {"Label1", ""}, {"Button3", "OnClick"}};
  Delete(second);
  EXPECT_EQ(third->Index, 2);
  EXPECT_EQ(third->Tag, "Form1Btn3") << "names stay";
  EXPECT_EQ(form.Element(Kind::Button, 2), third);
  EXPECT_EQ(form.UBound(Kind::Button), 2);
  EXPECT_EQ(record.Buttons.UBound(), 2);
  EXPECT_EQ(record.Buttons.At(2)->Cursor, 3);
  EXPECT_EQ(CodeOf("Form1.Button2.OnClick"), "three");
  EXPECT_EQ(CodeOf("Form1.Button2.OnKeyUp"), "up");
  EXPECT_EQ(CodeOf("Form1.Button3.OnClick"), "(none)");
  EXPECT_EQ(label->Index, 1) << "other kinds stay";
  ASSERT_EQ(tables.Bar(1)->Entries.size(), 2U);
  EXPECT_EQ(tables.Bar(1)->Entries[0].Name, "Label1");
  EXPECT_EQ(tables.Bar(1)->Entries[1].Name, "Button2");
  EXPECT_NE(ports.Log.Find("number out Button2"), -1);
}

TEST_F(Settle, WhatTheLastOfAKindLeavesStaysForTheNextOfItsNumber) {
  Place("Button", 10, 10);
  const ControlRef second = Place("Button", 110, 10);
  tables.EventTable.Replace("Form1.Button2.OnClick", "two");
  tables.Bar(1)->Entries = {{"Button2", "OnClick"}};
  Delete(second);
  EXPECT_EQ(CodeOf("Form1.Button2.OnClick"), "two");
  ASSERT_EQ(tables.Bar(1)->Entries.size(), 1U) << "its button stays while there is code";
  EXPECT_EQ(ports.Log.Find("number out"), -1);
  EXPECT_EQ(Place("Button", 110, 10)->Index, 2);
  EXPECT_EQ(CodeOf("Form1.Button2.OnClick"), "two");
}

TEST_F(Settle, EveryKindOfRecordMoves) {
  Place("ComboBox", 10, 10);
  Place("ComboBox", 10, 40);
  *record.ComboItems.At(2) = "b";
  Delete(form.Element(Kind::ComboBox, 1));
  EXPECT_EQ(*record.ComboItems.At(1), "b");

  Place("WinSock", 10, 70);
  Place("WinSock", 50, 70);
  record.WinSocks.At(2)->Family = "second";
  Delete(form.Element(Kind::WinSock, 1));
  EXPECT_EQ(record.WinSocks.At(1)->Family, "second");

  Place("HtmlViewer", 10, 110);
  Place("HtmlViewer", 200, 110);
  record.HtmlViewers.At(2)->Navigate = "second";
  Delete(form.Element(Kind::HtmlViewer, 1));
  EXPECT_EQ(record.HtmlViewers.At(1)->Navigate, "second");

  Place("PopUpMenu", 90, 70);
  Place("PopUpMenu", 130, 70);
  record.PopUps.At(2)->Alignment = 2;
  tables.PopUpMenus.At(2)->Items.push_back({{}, "ppmSecond", "Second", 0});
  Delete(form.Element(Kind::PopUpMenu, 1));
  EXPECT_EQ(record.PopUps.At(1)->Alignment, 2);
  EXPECT_EQ(tables.PopUpMenus.At(1)->Items.back().Name, "ppmSecond");
  EXPECT_EQ(tables.PopUpMenus.At(2)->Items.size(), 0U);
}

TEST_F(Settle, PopupRowsThatAnotherFormShowsTooStay) {
  Place("PopUpMenu", 10, 10);
  Place("PopUpMenu", 50, 10);
  const int other = NewForm(tables);
  tables.User(other)->Load(Kind::PopUpMenu);
  tables.PopUpMenus.At(1)->Items.push_back({{}, "ppmShared", "Shared", 0});
  tables.PopUpMenus.At(2)->Items.push_back({{}, "ppmSecond", "Second", 0});
  Delete(form.Element(Kind::PopUpMenu, 1));
  EXPECT_EQ(tables.PopUpMenus.At(1)->Items.back().Name, "ppmShared");
}

TEST_F(Settle, PictureResourceNamesCarryTheNewNumber) {
  Place("Button", 10, 10);
  Place("Button", 110, 10);
  Place("Button", 210, 10);
  record.Buttons.At(2)->Title = "Frm1Btn2_Bmp";
  record.Buttons.At(3)->Title = "mine";
  Delete(form.Element(Kind::Button, 1));
  EXPECT_EQ(record.Buttons.At(1)->Title, "Frm1Btn1_Bmp");
  EXPECT_EQ(record.Buttons.At(2)->Title, "mine");
}

TEST_F(Settle, TheCopySourceIsFollowed) {
  Place("Button", 10, 10);
  const ControlRef second = Place("Button", 110, 10);
  record.Buttons.At(2)->Cursor = 7;
  commands.CopyObject(keys::kC, kCtrlBit);
  Delete(form.Element(Kind::Button, 1));
  commands.PasteObject(keys::kV, kCtrlBit);
  EXPECT_EQ(form.ControlSel->Index, 2);
  EXPECT_EQ(record.Buttons.At(2)->Cursor, 7);
  EXPECT_EQ(second->Index, 1);
}

TEST_F(Settle, NothingHappensWhileAnObjectStandsThere) {
  Place("Button", 10, 10);
  Place("Button", 110, 10);
  EXPECT_FALSE(SettleForm(tables, form, Kind::Button, 1));
  EXPECT_FALSE(SettleForm(tables, form, Kind::Button, 0));
  EXPECT_FALSE(SettleForm(tables, form, Kind::Button, 3));
  EXPECT_EQ(form.UBound(Kind::Button), 2);
}

}  // namespace
}  // namespace tarnwick
