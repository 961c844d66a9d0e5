#include "model/event_table.h"

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

std::string CodeOf(const EventCodeTable& table, std::string_view key) {
  const std::string* code = table.Find(key);
  return code == nullptr ? "(none)" : *code;
}

TEST(EventTable, AKeyIsFoundInAnyCase) {
  EventCodeTable table;
  EXPECT_TRUE(table.Add("Form1.Button2.OnClick", "Beep"));
  EXPECT_EQ(CodeOf(table, "form1.BUTTON2.onclick"), "Beep");
  EXPECT_EQ(CodeOf(table, "Form1.Button2.OnClose"), "(none)");
  EXPECT_EQ(CodeOf(table, "Form1.Button22.OnClick"), "(none)");
}

TEST(EventTable, AddingAKeyThatIsThereChangesNothing) {
  EventCodeTable table;
  table.Add("Form1.OnClick", "old");
  EXPECT_FALSE(table.Add("FORM1.onclick", "new"));
  EXPECT_FALSE(table.Add("Form1", Event::OnClick, "new"));
  EXPECT_EQ(CodeOf(table, "Form1.OnClick"), "old");
  EXPECT_EQ(table.Size(), 1U);
}

TEST(EventTable, ReplacingSetsWhatIsThereAndAddsWhatIsNot) {
  EventCodeTable table;
  table.Replace("Form1.OnClick", "a");
  table.Replace("form1", Event::OnClick, "b");
  table.Replace("Form1.mnuNew", Event::OnClick, "c");
  EXPECT_EQ(CodeOf(table, "Form1.OnClick"), "b");
  EXPECT_EQ(CodeOf(table, "Form1.mnuNew.OnClick"), "c");
  EXPECT_EQ(table.Size(), 2U);
}

TEST(EventTable, KeysByTextAndByOwnerAreTheSame) {
  EventCodeTable table;
  table.Add("Form1.Time3", Event::OnTimer, "tick");
  EXPECT_EQ(CodeOf(table, "Form1.Time3.OnTimer"), "tick");
  table.Add("Form1.Time3.OnClick", "click");
  const auto* owner = table.OwnerOf("FORM1.time3");
  ASSERT_NE(owner, nullptr);
  EXPECT_EQ(*owner->Find(Event::OnTimer), "tick");
  EXPECT_EQ(*owner->Find(Event::OnClick), "click");
  EXPECT_EQ(owner->Find(Event::OnPopUp), nullptr);
}

TEST(EventTable, AnEmptyTextIsAnEntry) {
  EventCodeTable table;
  table.Add("Form1.OnShow", "");
  ASSERT_NE(table.Find("Form1.OnShow"), nullptr);
  EXPECT_EQ(*table.Find("Form1.OnShow"), "");
}

TEST(EventTable, RemovingTakesOneKeyOut) {
  EventCodeTable table;
  table.Add("Form1.Btn.OnClick", "a");
  table.Add("Form1.Btn.OnKeyUp", "b");
  EXPECT_TRUE(table.Remove("FORM1.BTN.ONCLICK"));
  EXPECT_FALSE(table.Remove("Form1.Btn.OnClick"));
  EXPECT_FALSE(table.Remove("Form9.OnClick"));
  EXPECT_EQ(CodeOf(table, "Form1.Btn.OnClick"), "(none)");
  EXPECT_EQ(CodeOf(table, "Form1.Btn.OnKeyUp"), "b");
  EXPECT_EQ(table.Size(), 1U);
  EXPECT_TRUE(table.Add("Form1.Btn.OnClick", "again"));
}

TEST(EventTable, KeysThatEndInNoEventAreKeysAllTheSame) {
  EventCodeTable table;
  EXPECT_TRUE(table.Add("Form1.Thing", "x"));
  EXPECT_FALSE(table.Add("form1.thing", "y"));
  EXPECT_TRUE(table.Add("", "nothing"));
  EXPECT_EQ(CodeOf(table, "FORM1.THING"), "x");
  EXPECT_EQ(CodeOf(table, ""), "nothing");
  EXPECT_EQ(CodeOf(table, "Form1.Thing.OnClick"), "(none)");
}

TEST(EventTable, AnItemWithoutANameHasAKeyOfItsOwn) {
  EventCodeTable table;
  table.Add("Form1.OnClick", "form");
  table.Replace("Form1.", Event::OnClick, "item");
  EXPECT_EQ(CodeOf(table, "Form1.OnClick"), "form");
  EXPECT_EQ(CodeOf(table, "Form1..OnClick"), "item");
}

TEST(EventTable, AWalkMeetsEveryEntryOnce) {
  EventCodeTable table;
  const std::map<std::string, std::string> entries{
      {"Form1.OnClick", "1"}, {"Form1.Button1.OnKeyDown", "2"}, {"Form1.Other", "3"}};
  for (const auto& [key, code] : entries) table.Add(key, code);
  std::map<std::string, std::string> met;
  table.ForEach([&](const std::string& key, const std::string& code) { met[key] = code; });
  EXPECT_EQ(met, entries);
}

TEST(EventTable, ClearingForgetsEverything) {
  EventCodeTable table;
  table.Add("Form1.OnClick", "x");
  table.Clear();
  EXPECT_EQ(table.Size(), 0U);
  EXPECT_EQ(table.OwnerOf("Form1"), nullptr);
  EXPECT_TRUE(table.Add("Form1.OnClick", "y"));
}

TEST(EventTable, TheKeyOfAnObjectIsItsFormArrayAndNumber) {
  EXPECT_EQ(ObjectKey(1, Kind::Image, 3), "Form1.Images3");
  EXPECT_EQ(ObjectKey(32767, Kind::PopUpMenu, 12), "Form32767.PopUpMnu12");
}

TEST(EventTable, AnOwnerIsMadeOnceAndFoundInAnyCase) {
  EventCodeTable table;
  auto& owner = table.OwnerFor("Form2.Button5");
  EXPECT_TRUE(owner.Add(Event::OnClick, "first"));
  EXPECT_FALSE(owner.Add(Event::OnClick, "second"));
  EXPECT_EQ(&table.OwnerFor("FORM2.BUTTON5"), &owner);
  EXPECT_EQ(table.OwnerOf("form2.button5"), &owner);
  EXPECT_EQ(table.OwnerOf("Form2.Button6"), nullptr);
  EXPECT_EQ(*table.Find("Form2.Button5.OnClick"), "first");
}

TEST(EventTable, AnObjectIsTheOwnerOfItsKey) {
  EventCodeTable table;
  for (const ObjectPlace& object :
       {ObjectPlace{2, Kind::Image, 5}, ObjectPlace{1, Kind::Button, 7},
        ObjectPlace{1, Kind::Button, 8}, ObjectPlace{0, Kind::Button, 1},
        ObjectPlace{1, Kind::Label, 0}, ObjectPlace{1, Kind::Label, -3},
        ObjectPlace{1, Kind::Label, 2000000000}}) {
    const std::string key = ObjectKey(object.Form, object.Id, object.Number);
    EXPECT_EQ(table.OwnerOf(object), nullptr) << key;
    auto& owner = table.OwnerFor(object);
    EXPECT_EQ(table.OwnerOf(object), &owner) << key;
    EXPECT_EQ(table.OwnerOf(key), &owner) << key;
    owner.Add(Event::OnClick, key);
    EXPECT_EQ(CodeOf(table, key + ".OnClick"), key);
  }
  EXPECT_EQ(table.Size(), 7U);
}

TEST(EventTable, AWalkOverObjectsLeavesOutAllOtherOwners) {
  EventCodeTable table;
  for (const char* key : {"Form1.Label9", "Form1", "FORM1.BUTTON2", "Form1.Item3", "Form0.Button1",
                          "Form1.Button02"}) {
    table.Add(key, Event::OnClick, "x");
  }
  std::vector<ObjectPlace> met;
  table.ForEachObject([&](const ObjectPlace& object, const EventCodeTable::Owner& owner) {
    EXPECT_TRUE(owner.HasCode());
    met.push_back(object);
  });
  EXPECT_EQ(met, (std::vector<ObjectPlace>{{1, Kind::Label, 9}, {1, Kind::Button, 2}}));
}

TEST(EventTable, PointersStayValidWhileOtherEntriesCome) {
  EventCodeTable table;
  auto& owner = table.OwnerFor("Form1.Button1");
  owner.Add(Event::OnClick, "Beep");
  const std::string* const code = table.Find("Form1.Button1.OnClick");
  for (int number = 2; number <= 5000; ++number) {
    table.Add(ObjectKey(1, Kind::Button, number), Event::OnClick, "other");
  }
  owner.Add(Event::OnKeyUp, "added to the same owner");
  table.Remove("Form1.Button1.OnKeyUp");
  EXPECT_EQ(table.Find("Form1.Button1.OnClick"), code);
  EXPECT_EQ(table.OwnerOf("Form1.Button1"), &owner);
  EXPECT_EQ(*code, "Beep");
  table.Replace("Form1.Button1.OnClick", "new");
  EXPECT_EQ(*code, "new");
}

TEST(EventTable, ANumberThatIsWrittenInAnotherWayIsAnotherKey) {
  EventCodeTable table;
  for (const char* key : {"Form1.Button2", "Form1.Button02", "Form01.Button2", "Form1.Button-2",
                          "Form1.Button12345678901", "Form1.Button2.Button2", "Form1.Button"}) {
    table.Add(key, Event::OnClick, key);
  }
  EXPECT_EQ(table.Size(), 7U);
  EXPECT_EQ(CodeOf(table, "form01.button2.onclick"), "Form01.Button2");
  EXPECT_EQ(CodeOf(table, ObjectKey(1, Kind::Button, 2) + ".OnClick"), "Form1.Button2");
}

TEST(EventTable, AWalkNamesKeysAsTheyWereFirstWrittenAndOwnersInTheirOrder) {
  EventCodeTable table;
  table.Add("FORM1.button2", Event::OnClick, "a");
  table.Add("Form1.Button2", Event::OnKeyUp, "b");
  table.Add("Form1.Button1", Event::OnClick, "c");
  table.Add("FORM1.BUTTON1", Event::OnKeyUp, "d");
  std::vector<std::string> keys;
  table.ForEach([&](const std::string& key, const std::string&) { keys.push_back(key); });
  EXPECT_EQ(keys, (std::vector<std::string>{"FORM1.button2.OnClick", "FORM1.button2.OnKeyUp",
                                            "Form1.Button1.OnClick", "Form1.Button1.OnKeyUp"}));
}

TEST(EventTable, ACodeThatIsEmptiedAndFilledAgainIsTheNewOne) {
  EventCodeTable table;
  table.Add("Form1.Button1", Event::OnClick, "old");
  table.Replace("Form1.Button1", Event::OnClick, "");
  EXPECT_EQ(CodeOf(table, "Form1.Button1.OnClick"), "");
  table.Remove("Form1.Button1.OnClick");
  EXPECT_EQ(CodeOf(table, "Form1.Button1.OnClick"), "(none)");
  EXPECT_TRUE(table.Add("Form1.Button1", Event::OnClick, "new"));
  EXPECT_EQ(CodeOf(table, "Form1.Button1.OnClick"), "new");
}

TEST(EventTable, AnOwnerHasCodeWhileAnEntryIsNotEmpty) {
  EventCodeTable table;
  auto& owner = table.OwnerFor("Form1.Button1");
  EXPECT_FALSE(owner.HasCode());
  owner.Add(Event::OnKeyUp, "");
  EXPECT_FALSE(owner.HasCode());
  table.Replace("Form1.Button1.OnKeyUp", "x");
  EXPECT_TRUE(owner.HasCode());
  table.Replace("Form1.Button1.OnKeyUp", "");
  EXPECT_FALSE(owner.HasCode());
}

TEST(EventTable, AMovedTableHasItsEntriesInTheirOrder) {
  EventCodeTable table;
  for (const char* key : {"Form2.OnClick", "Form1.OnClick", "Form3.OnClick"}) table.Add(key, "x");
  const EventCodeTable moved = std::move(table);
  std::vector<std::string> keys;
  moved.ForEach([&](const std::string& key, const std::string&) { keys.push_back(key); });
  EXPECT_EQ(keys, (std::vector<std::string>{"Form2.OnClick", "Form1.OnClick", "Form3.OnClick"}));
}

}  // namespace
}  // namespace tarnwick
