// Lists of entries: list boxes, lists of files, drop-down lists, string lists, tabs.
#include <algorithm>

#include "objects/behaviour.h"
#include "objects/text_files.h"
#include "text/code_page.h"

namespace tarnwick::objects {
namespace {

using Kind = ItemsChange::Kind;

/// The entry of an index; null and a reason when there is none.
ListItems::Item* ItemAt(ObjectWorld& world, ObjectRecord& list, std::int64_t index) {
  FillFileList(world, list);
  std::vector<ListItems::Item>& items = list.As<ListItems>()->Items;
  if (index >= 0 && index < static_cast<std::int64_t>(items.size())) {
    return &items[static_cast<std::size_t>(index)];
  }
  world.Fail(list.FullName() + " has no entry " + std::to_string(index) + ": it has " +
             std::to_string(items.size()) + ", counted from 0");
  return nullptr;
}

bool LessFolded(std::string_view a, std::string_view b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return static_cast<unsigned char>(LowerByte(x)) < static_cast<unsigned char>(LowerByte(y));
  });
}

/// Keeps the entry that was picked when entries move.
void MovePick(ObjectRecord& list, std::int64_t index) {
  list.Put(Word::ItemIndex, Value::Integer(index));
}

/// Puts an entry in; a sorted list puts it behind the last one that is not greater.
void Insert(ObjectWorld& world, ObjectRecord& list, std::size_t at, std::string text) {
  std::vector<ListItems::Item>& items = list.As<ListItems>()->Items;
  if (list.Truth(Word::Sorted)) {
    const auto next = std::upper_bound(
        items.begin(), items.end(), text,
        [](const std::string& a, const ListItems::Item& b) { return LessFolded(a, b.Text); });
    at = static_cast<std::size_t>(next - items.begin());
  }
  items.insert(items.begin() + static_cast<std::ptrdiff_t>(at), {std::move(text), false});
  const std::int64_t picked = list.Number(Word::ItemIndex);
  if (picked >= static_cast<std::int64_t>(at)) MovePick(list, picked + 1);
  world.ShowItems(list, {Kind::Inserted, at, 1});
}

bool AddItems(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
              std::span<Value> arguments, Value& /*result*/) {
  for (const Value& argument : arguments) {
    Insert(world, list, list.As<ListItems>()->Items.size(), argument.AsText());
  }
  return true;
}

bool InsertItem(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                std::span<Value> arguments, Value& /*result*/) {
  const std::int64_t index = arguments[0].AsInteger();
  const auto count = static_cast<std::int64_t>(list.As<ListItems>()->Items.size());
  if (index < 0 || index > count) {
    return world.Fail(list.FullName() + ": an entry can be inserted at 0 to " +
                      std::to_string(count) + ", not at " + std::to_string(index));
  }
  Insert(world, list, static_cast<std::size_t>(index), arguments[1].AsText());
  return true;
}

bool DelItems(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
              std::span<Value> arguments, Value& /*result*/) {
  std::vector<ListItems::Item>& items = list.As<ListItems>()->Items;
  std::vector<std::int64_t> indexes;
  for (const Value& argument : arguments) {
    indexes.push_back(argument.AsInteger());
    if (ItemAt(world, list, indexes.back()) == nullptr) return false;
  }
  // From the last one on, so that the others stay where the program means them.
  std::sort(indexes.rbegin(), indexes.rend());
  indexes.erase(std::unique(indexes.begin(), indexes.end()), indexes.end());
  for (const std::int64_t index : indexes) {
    items.erase(items.begin() + index);
    const std::int64_t picked = list.Number(Word::ItemIndex);
    if (picked >= index) MovePick(list, picked == index ? -1 : picked - 1);
    world.ShowItems(list, {Kind::Removed, static_cast<std::size_t>(index), 1});
  }
  return true;
}

bool Clear(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
           std::span<Value> /*arguments*/, Value& /*result*/) {
  FillList(world, list, {});
  if (list.Is(ObjectClass::QComboBox)) {
    world.Change(list, Word::Text, Value::Text({}), Origin::Code);
  }
  return true;
}

bool LoadFromFile(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                  std::span<Value> arguments, Value& /*result*/) {
  const std::optional<std::string> text = ReadTextFile(world, list, arguments[0].AsText());
  if (text) FillList(world, list, LinesOf(*text));
  return true;
}

bool SaveToFile(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                std::span<Value> arguments, Value& /*result*/) {
  std::string text;
  for (const ListItems::Item& item : list.As<ListItems>()->Items) text += item.Text + "\r\n";
  return WriteTextFile(world, list, arguments[0].AsText(), text);
}

bool GetItem(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
             std::span<const Value> index, Value& out) {
  const ListItems::Item* const item = ItemAt(world, list, index[0].AsInteger());
  if (item == nullptr) return false;
  out = Value::Text(item->Text);
  return true;
}

bool SetItem(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
             std::span<const Value> index, const Value& in) {
  ListItems::Item* const item = ItemAt(world, list, index[0].AsInteger());
  if (item == nullptr) return false;
  item->Text = in.AsText();
  world.ShowItems(list, {Kind::Replaced, static_cast<std::size_t>(index[0].AsInteger()), 1});
  return true;
}

bool CountItems(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                std::span<const Value> /*index*/, Value& out) {
  FillFileList(world, list);
  out = Value::Integer(static_cast<std::int64_t>(list.As<ListItems>()->Items.size()));
  return true;
}

void SortedChanged(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                   Origin /*origin*/) {
  if (!list.Truth(Word::Sorted) || list.As<ListItems>()->Items.empty()) return;
  std::vector<std::string> texts;
  for (ListItems::Item& item : list.As<ListItems>()->Items) texts.push_back(std::move(item.Text));
  FillList(world, list, std::move(texts));
}

// --- The entry that is picked

bool SetIndex(ObjectWorld& world, ObjectRecord& list, const MemberInfo& member,
              std::span<const Value> /*index*/, const Value& in) {
  FillFileList(world, list);
  const auto count = static_cast<std::int64_t>(list.As<ListItems>()->Items.size());
  const std::int64_t index = in.AsInteger();
  // What is outside picks nothing.
  const bool inside = index >= 0 && index < count;
  world.Change(list, member, Value::Integer(inside ? index : -1), Origin::Code);
  return true;
}

void ListPicked(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                Origin origin) {
  if (origin == Origin::Code) return;
  const ObjectId id = list.Id;
  if (world.Raise(id, Word::OnClick)) world.Raise(id, Word::OnChange);
}

void ComboPicked(ObjectWorld& world, ObjectRecord& combo, const MemberInfo& /*member*/,
                 Origin origin) {
  const ObjectId id = combo.Id;
  const std::int64_t index = combo.Number(Word::ItemIndex);
  const std::vector<ListItems::Item>& items = combo.As<ListItems>()->Items;
  const bool inside = index >= 0 && index < static_cast<std::int64_t>(items.size());
  const std::string text = inside ? items[static_cast<std::size_t>(index)].Text : std::string();
  combo.Put(Word::Text, Value::Text(text));
  if (origin == Origin::Code) return world.Show(combo, Word::Text);
  if (world.Raise(id, Word::OnChange)) world.Raise(id, Word::OnClick);
}

/// Only what the user types is a change; a text that is an entry picks it.
void ComboTyped(ObjectWorld& world, ObjectRecord& combo, const MemberInfo& /*member*/,
                Origin origin) {
  const std::vector<ListItems::Item>& items = combo.As<ListItems>()->Items;
  const auto found = std::find_if(items.begin(), items.end(), [&](const ListItems::Item& item) {
    return item.Text == combo.Text(Word::Text);
  });
  MovePick(combo, found == items.end() ? -1 : found - items.begin());
  if (origin == Origin::User) world.Raise(combo.Id, Word::OnChange);
}

void TabPicked(ObjectWorld& world, ObjectRecord& tabs, const MemberInfo& /*member*/,
               Origin origin) {
  if (origin == Origin::User) world.Raise(tabs.Id, Word::OnChange);
}

bool GetSelected(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                 std::span<const Value> index, Value& out) {
  const ListItems::Item* const item = ItemAt(world, list, index[0].AsInteger());
  if (item == nullptr) return false;
  const bool many = list.Truth(Word::MultiSelect);
  const bool picked = list.Number(Word::ItemIndex) == index[0].AsInteger();
  out = Value::Integer((many ? item->Selected : picked) ? 1 : 0);
  return true;
}

bool SetSelected(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                 std::span<const Value> index, const Value& in) {
  ListItems::Item* const item = ItemAt(world, list, index[0].AsInteger());
  if (item == nullptr) return false;
  item->Selected = in.AsTruth();
  world.ShowItems(list, {Kind::Replaced, static_cast<std::size_t>(index[0].AsInteger()), 1});
  return true;
}

bool CountSelected(ObjectWorld& /*world*/, ObjectRecord& list, const MemberInfo& /*member*/,
                   std::span<const Value> /*index*/, Value& out) {
  const std::vector<ListItems::Item>& items = list.As<ListItems>()->Items;
  const auto count = list.Truth(Word::MultiSelect)
                         ? std::count_if(items.begin(), items.end(),
                                         [](const ListItems::Item& item) { return item.Selected; })
                         : (list.Number(Word::ItemIndex) >= 0 ? 1 : 0);
  out = Value::Integer(count);
  return true;
}

// --- String lists

bool GetText(ObjectWorld& /*world*/, ObjectRecord& list, const MemberInfo& /*member*/,
             std::span<const Value> /*index*/, Value& out) {
  std::string text;
  for (const ListItems::Item& item : list.As<ListItems>()->Items) text += item.Text + "\r\n";
  out = Value::Text(std::move(text));
  return true;
}

bool SetText(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
             std::span<const Value> /*index*/, const Value& in) {
  FillList(world, list, LinesOf(in.AsText()));
  return true;
}

bool Sort(ObjectWorld& /*world*/, ObjectRecord& list, const MemberInfo& /*member*/,
          std::span<Value> /*arguments*/, Value& /*result*/) {
  std::vector<ListItems::Item>& items = list.As<ListItems>()->Items;
  std::stable_sort(items.begin(), items.end(),
                   [](const auto& a, const auto& b) { return LessFolded(a.Text, b.Text); });
  return true;
}

bool IndexOf(ObjectWorld& /*world*/, ObjectRecord& list, const MemberInfo& /*member*/,
             std::span<Value> arguments, Value& result) {
  const std::vector<ListItems::Item>& items = list.As<ListItems>()->Items;
  const std::string text = arguments[0].AsText();
  const auto found = std::find_if(items.begin(), items.end(), [&](const ListItems::Item& item) {
    return EqualsFolded(item.Text, text);
  });
  result = Value::Integer(found == items.end() ? -1 : found - items.begin());
  return true;
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QListBox, Word::AddItems, {.Call = AddItems}},
    {QComboBox, Word::AddItems, {.Call = AddItems}},
    {QStringList, Word::AddItems, {.Call = AddItems}},
    {QTabControl, Word::AddTabs, {.Call = AddItems}},
    {QListBox, Word::InsertItem, {.Call = InsertItem}},
    {QComboBox, Word::InsertItem, {.Call = InsertItem}},
    {QStringList, Word::InsertItem, {.Call = InsertItem}},
    {QListBox, Word::DelItems, {.Call = DelItems}},
    {QComboBox, Word::DelItems, {.Call = DelItems}},
    {QStringList, Word::DelItems, {.Call = DelItems}},
    {QListBox, Word::Clear, {.Call = Clear}},
    {QComboBox, Word::Clear, {.Call = Clear}},
    {QStringList, Word::Clear, {.Call = Clear}},
    {QListBox, Word::LoadFromFile, {.Call = LoadFromFile}},
    {QComboBox, Word::LoadFromFile, {.Call = LoadFromFile}},
    {QStringList, Word::LoadFromFile, {.Call = LoadFromFile}},
    {QListBox, Word::SaveToFile, {.Call = SaveToFile}},
    {QComboBox, Word::SaveToFile, {.Call = SaveToFile}},
    {QStringList, Word::SaveToFile, {.Call = SaveToFile}},
    {None, Word::Item, {.Get = GetItem, .Set = SetItem}},
    {QTabControl, Word::Tab, {.Get = GetItem, .Set = SetItem}},
    {QListBox, Word::ItemCount, {.Get = CountItems}},
    {QFileListBox, Word::ItemCount, {.Get = CountItems}},
    {QComboBox, Word::ItemCount, {.Get = CountItems}},
    {QStringList, Word::ItemCount, {.Get = CountItems}},
    {QTabControl, Word::TabCount, {.Get = CountItems}},
    {None, Word::Sorted, {.Changed = SortedChanged}},
    {QListBox, Word::ItemIndex, {.Set = SetIndex, .Changed = ListPicked}},
    {QFileListBox, Word::ItemIndex, {.Set = SetIndex, .Changed = ListPicked}},
    {QComboBox, Word::ItemIndex, {.Set = SetIndex, .Changed = ComboPicked}},
    {QComboBox, Word::Text, {.Changed = ComboTyped}},
    {QTabControl, Word::TabIndex, {.Set = SetIndex, .Changed = TabPicked}},
    {QListBox, Word::Selected, {.Get = GetSelected, .Set = SetSelected}},
    {QFileListBox, Word::Selected, {.Get = GetSelected, .Set = SetSelected}},
    {QListBox, Word::TopIndex, {.Get = LiveValue}},
    {QFileListBox, Word::TopIndex, {.Get = LiveValue}},
    {QListBox, Word::ItemHeight, {.Get = LiveValue}},
    {QFileListBox, Word::ItemHeight, {.Get = LiveValue}},
    {QListBox, Word::SelCount, {.Get = CountSelected}},
    {QFileListBox, Word::SelCount, {.Get = CountSelected}},
    {QStringList, Word::Text, {.Get = GetText, .Set = SetText}},
    {QStringList, Word::Sort, {.Call = Sort}},
    {QStringList, Word::IndexOf, {.Call = IndexOf}},
};

}  // namespace

void FillList(ObjectWorld& world, ObjectRecord& list, std::vector<std::string> texts) {
  std::vector<ListItems::Item>& items = list.As<ListItems>()->Items;
  items.clear();
  for (std::string& text : texts) items.push_back({std::move(text), false});
  if (list.Truth(Word::Sorted)) {
    std::stable_sort(items.begin(), items.end(),
                     [](const auto& a, const auto& b) { return LessFolded(a.Text, b.Text); });
  }
  MovePick(list, -1);
  world.ShowItems(list, {Kind::All, 0, items.size()});
}

BehaviourRows ListBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
