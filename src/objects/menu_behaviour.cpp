// Trees of menu items below main menus and popup menus.
#include <algorithm>

#include "objects/behaviour.h"

namespace tarnwick::objects {
namespace {

/// Notifies the widgets of the menu at the top of the tree that an item is part of, once it is
/// shown.
void Changed(ObjectWorld& world, ObjectRecord& row) {
  const ObjectRecord* top = &row;
  while (const ObjectRecord* const above = world.Find(top->Parent)) top = above;
  if (top->Realised) world.Widgets().MenuChanged(*top);
}

/// Puts an item into a menu. One that stands elsewhere moves here.
bool Insert(ObjectWorld& world, ObjectRecord& menu, std::size_t at, const Value& argument) {
  ObjectRecord* const item = world.Find(argument.AsObject());
  if (item == nullptr || !item->Is(ObjectClass::QMenuItem)) {
    return world.Fail(menu.FullName() + " takes QMENUITEM objects");
  }
  for (const ObjectRecord* up = &menu; up != nullptr; up = world.Find(up->Parent)) {
    if (up == item) return world.Fail(item->FullName() + " cannot be a row of itself");
  }
  if (ObjectRecord* const before = world.Find(item->Parent)) {
    std::vector<ObjectId>& rows = before->As<MenuRows>()->Rows;
    const auto found = std::find(rows.begin(), rows.end(), item->Id);
    if (before == &menu && found != rows.end() &&
        static_cast<std::size_t>(found - rows.begin()) < at) {
      --at;
    }
    std::erase(rows, item->Id);
  }
  item->Parent = menu.Id;
  std::vector<ObjectId>& rows = menu.As<MenuRows>()->Rows;
  rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(std::min(at, rows.size())), item->Id);
  return true;
}

bool AddItems(ObjectWorld& world, ObjectRecord& menu, const MemberInfo& /*member*/,
              std::span<Value> arguments, Value& /*result*/) {
  for (const Value& argument : arguments) {
    if (!Insert(world, menu, menu.As<MenuRows>()->Rows.size(), argument)) return false;
  }
  Changed(world, menu);
  return true;
}

bool InsertItem(ObjectWorld& world, ObjectRecord& menu, const MemberInfo& /*member*/,
                std::span<Value> arguments, Value& /*result*/) {
  const std::int64_t index = std::max<std::int64_t>(arguments[0].AsInteger(), 0);
  if (!Insert(world, menu, static_cast<std::size_t>(index), arguments[1])) return false;
  Changed(world, menu);
  return true;
}

bool DelItems(ObjectWorld& world, ObjectRecord& menu, const MemberInfo& /*member*/,
              std::span<Value> arguments, Value& /*result*/) {
  std::vector<ObjectId>& rows = menu.As<MenuRows>()->Rows;
  std::vector<ObjectId> going;
  for (const Value& argument : arguments) {
    const std::int64_t index = argument.AsInteger();
    if (index < 0 || index >= static_cast<std::int64_t>(rows.size())) {
      return world.Fail(menu.FullName() + " has no row " + std::to_string(index));
    }
    going.push_back(rows[static_cast<std::size_t>(index)]);
  }
  for (const ObjectId id : going) {
    std::erase(rows, id);
    if (ObjectRecord* const item = world.Find(id)) item->Parent = ObjectId::None;
  }
  Changed(world, menu);
  return true;
}

bool Clear(ObjectWorld& world, ObjectRecord& menu, const MemberInfo& /*member*/,
           std::span<Value> /*arguments*/, Value& /*result*/) {
  for (const ObjectId id : menu.As<MenuRows>()->Rows) {
    if (ObjectRecord* const item = world.Find(id)) item->Parent = ObjectId::None;
  }
  menu.As<MenuRows>()->Rows.clear();
  Changed(world, menu);
  return true;
}

bool CountItems(ObjectWorld& /*world*/, ObjectRecord& menu, const MemberInfo& /*member*/,
                std::span<const Value> /*index*/, Value& out) {
  out = Value::Integer(static_cast<std::int64_t>(menu.As<MenuRows>()->Rows.size()));
  return true;
}

/// Hangs a main menu on one more form. A form has one: the last one that was hung there.
bool SetForm(ObjectWorld& world, ObjectRecord& menu, const MemberInfo& /*member*/,
             std::span<const Value> /*index*/, const Value& in) {
  ObjectRecord* const form = world.Find(in.AsObject());
  FormState* const state = form == nullptr ? nullptr : form->As<FormState>();
  if (state == nullptr) return world.Fail("A main menu hangs on a form");
  if (state->Menu == menu.Id) return true;
  if (ObjectRecord* const before = world.Find(state->Menu)) {
    std::erase(before->As<MenuRows>()->Forms, form->Id);
  }
  state->Menu = menu.Id;
  menu.As<MenuRows>()->Forms.push_back(form->Id);
  if (form->Realised) RealiseMenu(world, *form);
  return true;
}

void RowChanged(ObjectWorld& world, ObjectRecord& row, const MemberInfo& /*member*/,
                Origin /*origin*/) {
  Changed(world, row);
}

/// Of the radio items of a group one is checked.
void CheckedChanged(ObjectWorld& world, ObjectRecord& row, const MemberInfo& member,
                    Origin /*origin*/) {
  const ObjectRecord* const menu = world.Find(row.Parent);
  if (menu != nullptr && row.Truth(Word::RadioItem) && row.Truth(Word::Checked)) {
    for (const ObjectId other : menu->As<MenuRows>()->Rows) {
      ObjectRecord* const sibling = world.Find(other);
      if (other != row.Id && sibling != nullptr && sibling->Truth(Word::RadioItem) &&
          sibling->Number(Word::GroupIndex) == row.Number(Word::GroupIndex)) {
        world.Change(*sibling, member, Value::Integer(0), Origin::Code);
      }
    }
  }
  Changed(world, row);
}

bool GetIndex(ObjectWorld& world, ObjectRecord& row, const MemberInfo& /*member*/,
              std::span<const Value> /*index*/, Value& out) {
  out = Value::Integer(-1);
  const ObjectRecord* const menu = world.Find(row.Parent);
  if (menu == nullptr) return true;
  const std::vector<ObjectId>& rows = menu->As<MenuRows>()->Rows;
  out = Value::Integer(std::find(rows.begin(), rows.end(), row.Id) - rows.begin());
  return true;
}

bool SetIndex(ObjectWorld& world, ObjectRecord& row, const MemberInfo& /*member*/,
              std::span<const Value> /*index*/, const Value& in) {
  ObjectRecord* const menu = world.Find(row.Parent);
  if (menu == nullptr) return true;
  std::vector<ObjectId>& rows = menu->As<MenuRows>()->Rows;
  std::erase(rows, row.Id);
  const auto last = static_cast<std::int64_t>(rows.size());
  const std::int64_t at = std::min(std::max<std::int64_t>(in.AsInteger(), 0), last);
  rows.insert(rows.begin() + at, row.Id);
  Changed(world, row);
  return true;
}

bool Popup(ObjectWorld& world, ObjectRecord& menu, const MemberInfo& method,
           std::span<Value> arguments, Value& result) {
  world.PopupShows(menu.Id);
  if (const ObjectRecord* const after = world.Find(menu.Id)) {
    world.Widgets().Invoke(*after, method, arguments, result);
  }
  return true;
}

/// A separator, put in front of an item or at the end of a submenu's rows.
bool AddBreak(ObjectWorld& world, ObjectRecord& menu, const MemberInfo& /*member*/,
              std::span<Value> /*arguments*/, Value& /*result*/) {
  const ObjectId made = world.Create(static_cast<basic::ClassId>(ObjectClass::QMenuItem),
                                     menu.FullName() + ".Break", -1);
  ObjectRecord& line = *world.Find(made);
  line.Put(Word::Caption, Value::Text("-"));
  if (!Insert(world, menu, menu.As<MenuRows>()->Rows.size(), Value::Object(made))) return false;
  Changed(world, menu);
  return true;
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QMainMenu, Word::AddItems, {.Call = AddItems}},
    {QPopupMenu, Word::AddItems, {.Call = AddItems}},
    {QMenuItem, Word::AddItems, {.Call = AddItems}},
    {QMainMenu, Word::InsertItem, {.Call = InsertItem}},
    {QPopupMenu, Word::InsertItem, {.Call = InsertItem}},
    {QMenuItem, Word::InsertItem, {.Call = InsertItem}},
    {QMainMenu, Word::DelItems, {.Call = DelItems}},
    {QPopupMenu, Word::DelItems, {.Call = DelItems}},
    {QMenuItem, Word::DelItems, {.Call = DelItems}},
    {QMainMenu, Word::Clear, {.Call = Clear}},
    {QPopupMenu, Word::Clear, {.Call = Clear}},
    {QMenuItem, Word::Clear, {.Call = Clear}},
    {QMainMenu, Word::ItemCount, {.Get = CountItems}},
    {QPopupMenu, Word::ItemCount, {.Get = CountItems}},
    {QMenuItem, Word::ItemCount, {.Get = CountItems}},
    {QMainMenu, Word::Parent, {.Set = SetForm}},
    {QMenuItem, Word::Caption, {.Changed = RowChanged}},
    {QMenuItem, Word::Enabled, {.Changed = RowChanged}},
    {QMenuItem, Word::Visible, {.Changed = RowChanged}},
    {QMenuItem, Word::ShortCut, {.Changed = RowChanged}},
    {QMenuItem, Word::RadioItem, {.Changed = RowChanged}},
    {QMenuItem, Word::Default, {.Changed = RowChanged}},
    {QMenuItem, Word::Bmp, {.Changed = RowChanged}},
    {QMenuItem, Word::BMPHandle, {.Changed = RowChanged}},
    {QMenuItem, Word::ImageIndex, {.Changed = RowChanged}},
    {QMainMenu, Word::ImageList, {.Changed = RowChanged}},
    {QMenuItem, Word::Checked, {.Changed = CheckedChanged}},
    {QMenuItem, Word::MenuIndex, {.Get = GetIndex, .Set = SetIndex}},
    {QMenuItem, Word::AddBreak, {.Call = AddBreak}},
    {QPopupMenu, Word::Popup, {.Call = Popup}},
};

}  // namespace

void RealiseMenu(ObjectWorld& world, const ObjectRecord& form) {
  const auto* const state = form.As<FormState>();
  ObjectRecord* const menu = state == nullptr ? nullptr : world.Find(state->Menu);
  if (menu == nullptr) return;
  menu->Realised = true;
  world.Widgets().MenuChanged(*menu);
}

void LeaveMenus(ObjectWorld& world, ObjectId object) {
  ObjectRecord* const record = world.Find(object);
  if (record == nullptr) return;
  if (const auto* const state = record->As<FormState>()) {
    ObjectRecord* const menu = world.Find(state->Menu);
    if (menu != nullptr) std::erase(menu->As<MenuRows>()->Forms, object);
  }
  auto* const rows = record->As<MenuRows>();
  if (rows == nullptr) return;
  for (const ObjectId id : rows->Rows) {
    if (ObjectRecord* const row = world.Find(id)) row->Parent = ObjectId::None;
  }
  for (const ObjectId id : rows->Forms) {
    if (ObjectRecord* const form = world.Find(id)) form->As<FormState>()->Menu = ObjectId::None;
  }
  rows->Rows.clear();
  if (!rows->Forms.empty() && record->Realised) world.Widgets().MenuChanged(*record);
  rows->Forms.clear();
  ObjectRecord* const above = world.Find(record->Parent);
  if (above == nullptr || above->As<MenuRows>() == nullptr) return;
  std::erase(above->As<MenuRows>()->Rows, object);
  Changed(world, *above);
}

BehaviourRows MenuBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
