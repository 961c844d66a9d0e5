// Grids of texts, and the panels of status bars.
#include <algorithm>
#include <utility>

#include "objects/behaviour.h"

namespace tarnwick::objects {
namespace {

constexpr std::int64_t kMostCells = 65536;  ///< rows, and columns, at most

void ShowCells(ObjectWorld& world, ObjectRecord& grid) {
  world.ShowItems(grid, {ItemsChange::Kind::All, 0, 0});
}

/// Key of a cell; -1 and a reason outside of the grid.
std::int64_t KeyOf(ObjectWorld& world, const ObjectRecord& grid, std::span<const Value> index) {
  const std::int64_t column = index[0].AsInteger();
  const std::int64_t row = index[1].AsInteger();
  const bool inside = column >= 0 && row >= 0 && column < grid.Number(Word::ColCount) &&
                      row < grid.Number(Word::RowCount);
  if (inside) return row * kMostCells + column;
  world.Fail(grid.FullName() + " has no cell (" + std::to_string(column) + ", " +
             std::to_string(row) + "): it has " + std::to_string(grid.Number(Word::ColCount)) +
             " columns and " + std::to_string(grid.Number(Word::RowCount)) + " rows");
  return -1;
}

bool GetCell(ObjectWorld& world, ObjectRecord& grid, const MemberInfo& /*member*/,
             std::span<const Value> index, Value& out) {
  const std::int64_t key = KeyOf(world, grid, index);
  if (key < 0) return false;
  const auto& texts = grid.As<GridCells>()->Texts;
  const auto found = texts.find(static_cast<std::uint32_t>(key));
  out = Value::Text(found == texts.end() ? std::string() : found->second);
  return true;
}

bool SetCell(ObjectWorld& world, ObjectRecord& grid, const MemberInfo& /*member*/,
             std::span<const Value> index, const Value& in) {
  const std::int64_t key = KeyOf(world, grid, index);
  if (key < 0) return false;
  grid.As<GridCells>()->Texts[static_cast<std::uint32_t>(key)] = in.AsText();
  world.ShowItems(grid, {ItemsChange::Kind::Replaced, static_cast<std::size_t>(key), 1});
  return true;
}

bool SetCount(ObjectWorld& world, ObjectRecord& grid, const MemberInfo& member,
              std::span<const Value> /*index*/, const Value& in) {
  const std::int64_t count = std::clamp<std::int64_t>(in.AsInteger(), 1, kMostCells);
  world.Change(grid, member, Value::Integer(count), Origin::Code);
  return true;
}

bool GetSize(ObjectWorld& /*world*/, ObjectRecord& grid, const MemberInfo& member,
             std::span<const Value> index, Value& out) {
  const bool width = member.Name == Word::ColWidths;
  const GridCells& cells = *grid.As<GridCells>();
  const std::map<int, int>& sizes = width ? cells.ColumnWidths : cells.RowHeights;
  const auto found = sizes.find(static_cast<int>(index[0].AsInteger()));
  out = Value::Integer(found != sizes.end()
                           ? found->second
                           : grid.Number(width ? Word::DefaultColWidth : Word::DefaultRowHeight));
  return true;
}

bool SetSize(ObjectWorld& world, ObjectRecord& grid, const MemberInfo& member,
             std::span<const Value> index, const Value& in) {
  GridCells& cells = *grid.As<GridCells>();
  std::map<int, int>& sizes =
      member.Name == Word::ColWidths ? cells.ColumnWidths : cells.RowHeights;
  const std::int64_t number = index[0].AsInteger();
  if (number < 0 || number >= kMostCells) return true;
  sizes[static_cast<int>(number)] =
      static_cast<int>(std::clamp<std::int64_t>(in.AsInteger(), 0, kMostCells));
  ShowCells(world, grid);
  return true;
}

/// Moves the rows (or columns) from `at` on by `step`; those that leave the grid are gone.
void Shift(ObjectRecord& grid, bool rows, std::int64_t at, std::int64_t step) {
  std::map<std::uint32_t, std::string>& texts = grid.As<GridCells>()->Texts;
  std::map<std::uint32_t, std::string> moved;
  for (auto& [key, text] : texts) {
    std::int64_t row = key / kMostCells;
    std::int64_t column = key % kMostCells;
    std::int64_t& place = rows ? row : column;
    if (step < 0 && place == at) continue;
    if (place >= at) place += step;
    moved[static_cast<std::uint32_t>(row * kMostCells + column)] = std::move(text);
  }
  texts = std::move(moved);
}

bool ChangeRows(ObjectWorld& world, ObjectRecord& grid, const MemberInfo& method,
                std::span<Value> arguments, Value& /*result*/) {
  const bool rows = method.Name == Word::InsertRow || method.Name == Word::DeleteRow;
  const bool inserts = method.Name == Word::InsertRow || method.Name == Word::InsertCol;
  const Word counter = rows ? Word::RowCount : Word::ColCount;
  const std::int64_t count = grid.Number(counter);
  const std::int64_t at = arguments[0].AsInteger();
  if (at < 0 || at >= count + (inserts ? 1 : 0)) {
    return world.Fail(grid.FullName() + " has no row or column " + std::to_string(at));
  }
  if (inserts ? count >= kMostCells : count <= 1) return true;
  Shift(grid, rows, at, inserts ? 1 : -1);
  world.Change(grid, counter, Value::Integer(count + (inserts ? 1 : -1)), Origin::Code);
  ShowCells(world, grid);
  return true;
}

/// A cell that is picked by the program lies within the grid.
bool SetPicked(ObjectWorld& world, ObjectRecord& grid, const MemberInfo& member,
               std::span<const Value> /*index*/, const Value& in) {
  const std::int64_t count =
      grid.Number(member.Name == Word::Row ? Word::RowCount : Word::ColCount);
  const std::int64_t index = std::clamp<std::int64_t>(in.AsInteger(), 0, count - 1);
  world.Change(grid, member, Value::Integer(index), Origin::Code);
  return true;
}

bool ChangeOptions(ObjectWorld& world, ObjectRecord& grid, const MemberInfo& method,
                   std::span<Value> arguments, Value& /*result*/) {
  constexpr std::int64_t kMost = 31;
  std::uint32_t& options = grid.As<GridCells>()->Options;
  for (const Value& argument : arguments) {
    const std::int64_t option = argument.AsInteger();
    if (option < 0 || option > kMost) continue;
    const std::uint32_t bit = std::uint32_t{1} << static_cast<unsigned>(option);
    options = method.Name == Word::AddOptions ? options | bit : options & ~bit;
  }
  ShowCells(world, grid);
  return true;
}

// --- Status bars

void ShowPanels(ObjectWorld& world, const ObjectRecord& bar) {
  world.ShowItems(bar, {ItemsChange::Kind::All, 0, bar.As<Panels>()->All.size()});
}

bool AddPanels(ObjectWorld& world, ObjectRecord& bar, const MemberInfo& /*member*/,
               std::span<Value> arguments, Value& /*result*/) {
  for (const Value& argument : arguments) {
    const std::size_t index = bar.As<Panels>()->All.size();
    const ObjectId made = world.Create(static_cast<basic::ClassId>(ObjectClass::QStatusPanel),
                                       bar.FullName() + ".Panel", static_cast<int>(index));
    ObjectRecord& panel = *world.Find(made);
    panel.Put(Word::Caption, Value::Text(argument.AsText()));
    panel.Parent = bar.Id;
    bar.Children.push_back(made);
    bar.As<Panels>()->All.push_back(made);
  }
  ShowPanels(world, bar);
  return true;
}

bool ClearPanels(ObjectWorld& world, ObjectRecord& bar, const MemberInfo& /*member*/,
                 std::span<Value> /*arguments*/, Value& /*result*/) {
  const std::vector<ObjectId> going = std::exchange(bar.As<Panels>()->All, {});
  for (const ObjectId id : going) world.Free(id);
  ShowPanels(world, bar);
  return true;
}

bool GetPanel(ObjectWorld& world, ObjectRecord& bar, const MemberInfo& /*member*/,
              std::span<const Value> index, Value& out) {
  const std::vector<ObjectId>& panels = bar.As<Panels>()->All;
  const std::int64_t number = index[0].AsInteger();
  if (number < 0 || number >= static_cast<std::int64_t>(panels.size())) {
    return world.Fail(bar.FullName() + " has no panel " + std::to_string(number) + ": it has " +
                      std::to_string(panels.size()) + ", counted from 0");
  }
  out = Value::Object(panels[static_cast<std::size_t>(number)]);
  return true;
}

void PanelChanged(ObjectWorld& world, ObjectRecord& panel, const MemberInfo& /*member*/,
                  Origin /*origin*/) {
  const ObjectRecord* const bar = world.Find(panel.Parent);
  if (bar != nullptr && bar->As<Panels>() != nullptr) ShowPanels(world, *bar);
}

bool CountPanels(ObjectWorld& /*world*/, ObjectRecord& bar, const MemberInfo& /*member*/,
                 std::span<const Value> /*index*/, Value& out) {
  out = Value::Integer(static_cast<std::int64_t>(bar.As<Panels>()->All.size()));
  return true;
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QStringGrid, Word::Cell, {.Get = GetCell, .Set = SetCell}},
    {QStringGrid, Word::RowCount, {.Set = SetCount}},
    {QStringGrid, Word::ColCount, {.Set = SetCount}},
    {QStringGrid, Word::ColWidths, {.Get = GetSize, .Set = SetSize}},
    {QStringGrid, Word::RowHeights, {.Get = GetSize, .Set = SetSize}},
    {QStringGrid, Word::InsertRow, {.Call = ChangeRows}},
    {QStringGrid, Word::DeleteRow, {.Call = ChangeRows}},
    {QStringGrid, Word::InsertCol, {.Call = ChangeRows}},
    {QStringGrid, Word::DeleteCol, {.Call = ChangeRows}},
    {QStatusBar, Word::AddPanels, {.Call = AddPanels}},
    {QStatusBar, Word::Clear, {.Call = ClearPanels}},
    {QStatusBar, Word::PanelCount, {.Get = CountPanels}},
    {QStatusBar, Word::Panel, {.Get = GetPanel}},
    {QStatusPanel, Word::Caption, {.Changed = PanelChanged}},
    {QStatusPanel, Word::Width, {.Changed = PanelChanged}},
    {QStringGrid, Word::AddOptions, {.Call = ChangeOptions}},
    {QStringGrid, Word::DelOptions, {.Call = ChangeOptions}},
    {QStringGrid, Word::TopRow, {.Get = LiveValue}},
    {QStringGrid, Word::LeftCol, {.Get = LiveValue}},
    {QStringGrid, Word::Row, {.Set = SetPicked}},
    {QStringGrid, Word::Col, {.Set = SetPicked}},
};

}  // namespace

BehaviourRows GridBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
