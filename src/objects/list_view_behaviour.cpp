// Lists of items with columns.
#include <algorithm>

#include "objects/behaviour.h"
#include "objects/part_objects.h"
#include "text/code_page.h"

namespace tarnwick::objects {
namespace {

using Kind = ItemsChange::Kind;

ListRows& RowsOf(ObjectRecord& list) {
  return *list.As<ListRows>();
}

void ShowRow(ObjectWorld& world, const ObjectRecord& list, std::size_t index) {
  world.ShowItems(list, {Kind::Replaced, index, 1});
}

void ShowAll(ObjectWorld& world, const ObjectRecord& list) {
  world.ShowItems(list, {Kind::All, 0, list.As<ListRows>()->Rows.size()});
}

bool IsSorted(const ObjectRecord& list) {
  constexpr std::int64_t kByText = 2;
  return list.Number(Word::SortType) >= kByText;
}

bool LessByText(const ListRows::Row& a, const ListRows::Row& b) {
  return Lower(a.Texts[0]) < Lower(b.Texts[0]);
}

/// Puts a row in; a sorted list puts it behind the last one that is not greater.
void Insert(ObjectWorld& world, ObjectRecord& list, std::size_t at, std::string text) {
  std::vector<ListRows::Row>& rows = RowsOf(list).Rows;
  ListRows::Row row;
  row.Texts.push_back(std::move(text));
  if (IsSorted(list)) {
    at = static_cast<std::size_t>(std::upper_bound(rows.begin(), rows.end(), row, LessByText) -
                                  rows.begin());
  }
  rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(at), std::move(row));
  const std::int64_t picked = list.Number(Word::ItemIndex);
  if (picked >= static_cast<std::int64_t>(at)) {
    list.Put(Word::ItemIndex, Value::Integer(picked + 1));
  }
  world.ShowItems(list, {Kind::Inserted, at, 1});
}

bool AddItems(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
              std::span<Value> arguments, Value& /*result*/) {
  for (const Value& argument : arguments) {
    Insert(world, list, RowsOf(list).Rows.size(), argument.AsText());
  }
  return true;
}

bool InsertItem(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                std::span<Value> arguments, Value& /*result*/) {
  const std::int64_t index = arguments[0].AsInteger();
  const std::size_t count = RowsOf(list).Rows.size();
  if (index != static_cast<std::int64_t>(count) && !HasPart(world, list, "item", count, index)) {
    return false;
  }
  Insert(world, list, static_cast<std::size_t>(index), arguments[1].AsText());
  return true;
}

bool DelItems(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
              std::span<Value> arguments, Value& /*result*/) {
  std::vector<ListRows::Row>& rows = RowsOf(list).Rows;
  std::vector<std::int64_t> indexes;
  for (const Value& argument : arguments) {
    indexes.push_back(argument.AsInteger());
    if (!HasPart(world, list, "item", rows.size(), indexes.back())) return false;
  }
  // From the last one on, so that the others stay where the program means them.
  std::sort(indexes.rbegin(), indexes.rend());
  indexes.erase(std::unique(indexes.begin(), indexes.end()), indexes.end());
  for (const std::int64_t index : indexes) {
    rows.erase(rows.begin() + index);
    const std::int64_t picked = list.Number(Word::ItemIndex);
    if (picked >= index) {
      list.Put(Word::ItemIndex, Value::Integer(picked == index ? -1 : picked - 1));
    }
    world.ShowItems(list, {Kind::Removed, static_cast<std::size_t>(index), 1});
  }
  return true;
}

bool Clear(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
           std::span<Value> /*arguments*/, Value& /*result*/) {
  RowsOf(list).Rows.clear();
  list.Put(Word::ItemIndex, Value::Integer(-1));
  ShowAll(world, list);
  return true;
}

bool AddColumns(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                std::span<Value> arguments, Value& /*result*/) {
  for (const Value& argument : arguments) {
    RowsOf(list).Columns.emplace_back().Caption = argument.AsText();
  }
  ShowAll(world, list);
  return true;
}

/// Texts for the columns behind the first one, behind those that are there.
bool AddSubItem(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                std::span<Value> arguments, Value& /*result*/) {
  std::vector<ListRows::Row>& rows = RowsOf(list).Rows;
  const std::int64_t index = arguments[0].AsInteger();
  if (!HasPart(world, list, "item", rows.size(), index)) return false;
  for (const Value& argument : arguments.subspan(1)) {
    rows[static_cast<std::size_t>(index)].Texts.push_back(argument.AsText());
  }
  ShowRow(world, list, static_cast<std::size_t>(index));
  return true;
}

bool Count(ObjectWorld& /*world*/, ObjectRecord& list, const MemberInfo& member,
           std::span<const Value> /*index*/, Value& out) {
  const ListRows& rows = RowsOf(list);
  auto count = static_cast<std::int64_t>(rows.Rows.size());
  if (member.Name == Word::ColumnCount) count = static_cast<std::int64_t>(rows.Columns.size());
  if (member.Name == Word::SelCount) {
    count = list.Truth(Word::MultiSelect)
                ? std::count_if(rows.Rows.begin(), rows.Rows.end(),
                                [](const ListRows::Row& row) { return row.Selected; })
                : (list.Number(Word::ItemIndex) >= 0 ? 1 : 0);
  }
  out = Value::Integer(count);
  return true;
}

bool GetItem(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
             std::span<const Value> index, Value& out) {
  ListRows& rows = RowsOf(list);
  const std::int64_t number = index[0].AsInteger();
  if (!HasPart(world, list, "item", rows.Rows.size(), number)) return false;
  out = Value::Object(
      PartObject(world, list, rows.ItemObjects, ObjectClass::QListItem, "Item", number));
  return true;
}

bool GetColumn(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
               std::span<const Value> index, Value& out) {
  ListRows& rows = RowsOf(list);
  const std::int64_t number = index[0].AsInteger();
  if (!HasPart(world, list, "column", rows.Columns.size(), number)) return false;
  out = Value::Object(
      PartObject(world, list, rows.ColumnObjects, ObjectClass::QListColumn, "Column", number));
  return true;
}

/// An index outside picks nothing.
bool SetIndex(ObjectWorld& world, ObjectRecord& list, const MemberInfo& member,
              std::span<const Value> /*index*/, const Value& in) {
  const std::int64_t index = in.AsInteger();
  const bool inside = index >= 0 && index < static_cast<std::int64_t>(RowsOf(list).Rows.size());
  world.Change(list, member, Value::Integer(inside ? index : -1), Origin::Code);
  return true;
}

void Picked(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/, Origin origin) {
  if (origin == Origin::User) world.Raise(list.Id, Word::OnChange);
}

void SortChanged(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                 Origin /*origin*/) {
  if (!IsSorted(list)) return;
  std::vector<ListRows::Row>& rows = RowsOf(list).Rows;
  std::stable_sort(rows.begin(), rows.end(), LessByText);
  list.Put(Word::ItemIndex, Value::Integer(-1));
  ShowAll(world, list);
}

// --- Items

/// What an item object stands for.
struct ItemOf {
  ItemOf(ObjectWorld& world, const ObjectRecord& item) : List(world.Find(item.Parent)) {
    const auto index = static_cast<std::size_t>(item.Index);
    if (List == nullptr || !HasPart(world, *List, "item", RowsOf(*List).Rows.size(), item.Index)) {
      return;
    }
    Index = index;
    Row = &RowsOf(*List).Rows[index];
  }
  ObjectRecord* List;
  std::size_t Index = 0;
  ListRows::Row* Row = nullptr;  ///< null, and the world has the reason, when it is gone
};

bool GetOfItem(ObjectWorld& world, ObjectRecord& item, const MemberInfo& member,
               std::span<const Value> /*index*/, Value& out) {
  const ItemOf of(world, item);
  if (of.Row == nullptr) return false;
  switch (member.Name) {
    case Word::Caption:
      out = Value::Text(of.Row->Texts[0]);
      return true;
    case Word::ImageIndex:
      out = Value::Integer(of.Row->Image);
      return true;
    case Word::Checked:
      out = Value::Integer(of.Row->Checked ? 1 : 0);
      return true;
    case Word::Selected: {
      const bool many = of.List->Truth(Word::MultiSelect);
      const bool picked = of.List->Number(Word::ItemIndex) == static_cast<std::int64_t>(of.Index);
      out = Value::Integer((many ? of.Row->Selected : picked) ? 1 : 0);
      return true;
    }
    default:
      out = Value::Integer(static_cast<std::int64_t>(of.Row->Texts.size()) - 1);
      return true;
  }
}

bool SetOfItem(ObjectWorld& world, ObjectRecord& item, const MemberInfo& member,
               std::span<const Value> /*index*/, const Value& in) {
  const ItemOf of(world, item);
  if (of.Row == nullptr) return false;
  switch (member.Name) {
    case Word::Caption:
      of.Row->Texts[0] = in.AsText();
      break;
    case Word::ImageIndex:
      of.Row->Image = static_cast<int>(std::clamp<std::int64_t>(in.AsInteger(), -1, 65'535));
      break;
    case Word::Checked:
      of.Row->Checked = in.AsTruth();
      break;
    default:
      of.Row->Selected = in.AsTruth();
      if (!of.List->Truth(Word::MultiSelect)) {
        const auto own = static_cast<std::int64_t>(of.Index);
        const bool picked = of.List->Number(Word::ItemIndex) == own;
        if (in.AsTruth() != picked) {
          world.Change(*of.List, Word::ItemIndex, Value::Integer(picked ? -1 : own), Origin::Code);
        }
      }
      break;
  }
  ShowRow(world, *of.List, of.Index);
  return true;
}

/// Texts behind the caption, counted from 0; those that are not there are empty.
bool GetSubItem(ObjectWorld& world, ObjectRecord& item, const MemberInfo& /*member*/,
                std::span<const Value> index, Value& out) {
  const ItemOf of(world, item);
  if (of.Row == nullptr) return false;
  const std::int64_t at = index[0].AsInteger() + 1;
  const bool there = at >= 1 && at < static_cast<std::int64_t>(of.Row->Texts.size());
  out = Value::Text(there ? of.Row->Texts[static_cast<std::size_t>(at)] : std::string());
  return true;
}

bool SetSubItem(ObjectWorld& world, ObjectRecord& item, const MemberInfo& /*member*/,
                std::span<const Value> index, const Value& in) {
  constexpr std::int64_t kMostColumns = 256;
  const ItemOf of(world, item);
  if (of.Row == nullptr) return false;
  const std::int64_t number = index[0].AsInteger();
  if (number < 0 || number >= kMostColumns) {
    return world.Fail(item.FullName() + " can have no text " + std::to_string(number));
  }
  const auto at = static_cast<std::size_t>(number) + 1;
  if (of.Row->Texts.size() <= at) of.Row->Texts.resize(at + 1);
  of.Row->Texts[at] = in.AsText();
  ShowRow(world, *of.List, of.Index);
  return true;
}

// --- Columns

ListRows::Column* ColumnOf(ObjectWorld& world, const ObjectRecord& column, ObjectRecord*& list) {
  list = world.Find(column.Parent);
  if (list == nullptr ||
      !HasPart(world, *list, "column", RowsOf(*list).Columns.size(), column.Index)) {
    return nullptr;
  }
  return &RowsOf(*list).Columns[static_cast<std::size_t>(column.Index)];
}

bool GetOfColumn(ObjectWorld& world, ObjectRecord& column, const MemberInfo& member,
                 std::span<const Value> /*index*/, Value& out) {
  ObjectRecord* list = nullptr;
  const ListRows::Column* const of = ColumnOf(world, column, list);
  if (of == nullptr) return false;
  if (member.Name == Word::Caption) {
    out = Value::Text(of->Caption);
  } else {
    out = Value::Integer(member.Name == Word::Width ? of->Width : of->Alignment);
  }
  return true;
}

bool SetOfColumn(ObjectWorld& world, ObjectRecord& column, const MemberInfo& member,
                 std::span<const Value> /*index*/, const Value& in) {
  constexpr std::int64_t kWidest = 10'000;
  ObjectRecord* list = nullptr;
  ListRows::Column* const of = ColumnOf(world, column, list);
  if (of == nullptr) return false;
  if (member.Name == Word::Caption) {
    of->Caption = in.AsText();
  } else if (member.Name == Word::Width) {
    of->Width = static_cast<int>(std::clamp<std::int64_t>(in.AsInteger(), 0, kWidest));
  } else {
    of->Alignment = static_cast<int>(std::clamp<std::int64_t>(in.AsInteger(), 0, 2));
  }
  ShowAll(world, *list);
  return true;
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QListView, Word::AddItems, {.Call = AddItems}},
    {QListView, Word::InsertItem, {.Call = InsertItem}},
    {QListView, Word::DelItems, {.Call = DelItems}},
    {QListView, Word::Clear, {.Call = Clear}},
    {QListView, Word::AddColumns, {.Call = AddColumns}},
    {QListView, Word::AddSubItem, {.Call = AddSubItem}},
    {QListView, Word::ItemCount, {.Get = Count}},
    {QListView, Word::ColumnCount, {.Get = Count}},
    {QListView, Word::SelCount, {.Get = Count}},
    {QListView, Word::Item, {.Get = GetItem}},
    {QListView, Word::Column, {.Get = GetColumn}},
    {QListView, Word::ItemIndex, {.Set = SetIndex, .Changed = Picked}},
    {QListView, Word::SortType, {.Changed = SortChanged}},
    {QListItem, Word::Caption, {.Get = GetOfItem, .Set = SetOfItem}},
    {QListItem, Word::ImageIndex, {.Get = GetOfItem, .Set = SetOfItem}},
    {QListItem, Word::Checked, {.Get = GetOfItem, .Set = SetOfItem}},
    {QListItem, Word::Selected, {.Get = GetOfItem, .Set = SetOfItem}},
    {QListItem, Word::SubItemCount, {.Get = GetOfItem}},
    {QListItem, Word::SubItem, {.Get = GetSubItem, .Set = SetSubItem}},
    {QListColumn, Word::Caption, {.Get = GetOfColumn, .Set = SetOfColumn}},
    {QListColumn, Word::Width, {.Get = GetOfColumn, .Set = SetOfColumn}},
    {QListColumn, Word::Alignment, {.Get = GetOfColumn, .Set = SetOfColumn}},
};

}  // namespace

BehaviourRows ListViewBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
