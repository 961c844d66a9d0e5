#include "run/views/grid_view.h"

#include <QPainter>

#include "looks/classic_look.h"
#include "looks/object_faces.h"
#include "looks/platform_colors.h"
#include "looks/text_bridge.h"
#include "objects/grid_options.h"
#include "run/drawing_surfaces.h"
#include "run/stage.h"
#include "run/views/fields.h"
#include "run/views/grid_field.h"

namespace tarnwick::run {
namespace {

using objects::GridOption;

constexpr std::uint32_t kRowFactor = 65'536;

std::string_view TextOf(const ObjectRecord& grid, const GridCell& cell) {
  const auto* const cells = grid.As<objects::GridCells>();
  const auto found = cells->Texts.find(static_cast<std::uint32_t>(cell.Row) * kRowFactor +
                                       static_cast<std::uint32_t>(cell.Column));
  return found == cells->Texts.end() ? std::string_view() : std::string_view(found->second);
}

bool IsFixed(const ObjectRecord& grid, const GridCell& cell) {
  return cell.Column < grid.Number(Word::FixedCols) || cell.Row < grid.Number(Word::FixedRows);
}

bool IsPicked(const ObjectRecord& grid, const GridCell& cell) {
  if (IsFixed(grid, cell) || cell.Row != grid.Number(Word::Row)) return false;
  return cell.Column == grid.Number(Word::Col) ||
         objects::HasGridOption(grid, GridOption::RowSelect);
}

QAbstractScrollArea* MakeGridField(GridView& view) {
  return new GridField(view);
}

}  // namespace

GridView::GridView(Stage& stage, const ObjectRecord& grid)
    : TableView(stage, grid, MakeGridField(*this), WidgetEvents::Mouse::Own),
      drawing_(stage, grid.Id, Word::OnDrawCell, [this] { return Parts(); }) {
  Events().Watch(Field(), *Field().viewport());
}

GridView::~GridView() = default;

GridField& GridView::Field() const {
  return *static_cast<GridField*>(Widget());
}

void GridView::ShowItems(const ObjectRecord& grid, const objects::ItemsChange& change) {
  if (change.What == objects::ItemsChange::Kind::All) Field().Fit(grid);
  Field().viewport()->update();
  drawing_.Want();
}

void GridView::ShowDrawing() {
  Field().viewport()->update();
}

void GridView::ShowCells(const ObjectRecord& grid) {
  Field().Fit(grid);
  drawing_.Want();
}

void GridView::ShowPicked(const ObjectRecord& grid) {
  Field().Reveal(
      {static_cast<int>(grid.Number(Word::Col)), static_cast<int>(grid.Number(Word::Row))});
  Field().viewport()->update();
  drawing_.Want();
}

void GridView::ShowFirst(const ObjectRecord& grid) {
  Field().SetFirst(
      {static_cast<int>(grid.Number(Word::LeftCol)), static_cast<int>(grid.Number(Word::TopRow))});
}

bool GridView::Live(const ObjectRecord& /*grid*/, const MemberInfo& member,
                    std::span<const Value> /*index*/, Value& out) {
  if (member.Name != Word::TopRow && member.Name != Word::LeftCol) return false;
  const GridCell first = Field().First();
  out = Value::Integer(member.Name == Word::TopRow ? first.Row : first.Column);
  return true;
}

void GridView::Pick(int column, int row) {
  stage().Report([this, column, row] {
    objects::ObjectWorld& world = stage().World();
    Value arguments[] = {Value::Integer(column), Value::Integer(row), Value::Integer(1)};
    if (!world.Raise(Id(), Word::OnSelectCell, arguments) || arguments[2].AsInteger() == 0) return;
    world.UserSet(Id(), Word::Col, Value::Integer(column));
    world.UserSet(Id(), Word::Row, Value::Integer(row));
    if (const ObjectRecord* const grid = Record()) ShowPicked(*grid);
    world.Raise(Id(), Word::OnClick);
  });
}

void GridView::TakeText(int column, int row, const std::string& text) {
  stage().Report([this, column, row, text] {
    const MemberInfo& cell = *objects::InfoOf(ObjectClass::QStringGrid).Find(Word::Cell);
    const Value index[] = {Value::Integer(column), Value::Integer(row)};
    stage().World().Set(Id(), cell.Facts.Id, index, Value::Text(text));
  });
}

void GridView::TakeSize(bool column, int index, int size) {
  stage().Report([this, column, index, size] {
    const objects::ClassInfo& info = objects::InfoOf(ObjectClass::QStringGrid);
    const MemberInfo& sizes = *info.Find(column ? Word::ColWidths : Word::RowHeights);
    const Value place[] = {Value::Integer(index)};
    stage().World().Set(Id(), sizes.Facts.Id, place, Value::Integer(size));
  });
}

void GridView::Scrolled() {
  drawing_.Want();
}

std::vector<DrawnPart> GridView::Parts() const {
  std::vector<DrawnPart> parts;
  const ObjectRecord* const grid = Record();
  if (grid == nullptr) return parts;
  Field().ForEachSeen([&](const GridCell& cell, const QRect& place) {
    std::int64_t state = 0;
    if (IsPicked(*grid, cell)) state |= kPartSelected;
    if (!Field().isEnabled()) state |= kPartDisabled;
    if (IsPicked(*grid, cell) && Field().hasFocus()) state |= kPartFocused;
    parts.push_back({{cell.Column, cell.Row}, state, place});
  });
  return parts;
}

void GridView::Paint(QPainter& painter) {
  const ObjectRecord* const grid = Record();
  if (grid == nullptr) return;
  const auto line = static_cast<int>(std::min<std::int64_t>(grid->Number(Word::GridLineWidth), 20));
  const QColor fixed = looks::ColorOf(static_cast<std::int32_t>(grid->Number(Word::FixedColor)));
  const QColor ink = looks::ColorOf(static_cast<std::int32_t>(stage().World().FontOf(*grid).Color));
  const QPalette& palette = Field().palette();
  const looks::FormFont& font = stage().FontOf(*grid);
  Field().ForEachSeen([&](const GridCell& cell, const QRect& place) {
    const bool is_fixed = IsFixed(*grid, cell);
    const bool picked = IsPicked(*grid, cell);
    const bool across = objects::HasGridOption(
        *grid, is_fixed ? GridOption::FixedHorizontalLine : GridOption::HorizontalLine);
    const bool down = objects::HasGridOption(
        *grid, is_fixed ? GridOption::FixedVerticalLine : GridOption::VerticalLine);
    painter.fillRect(place, is_fixed ? looks::kDarkShadow : looks::kFace);
    const QRect inside =
        place.adjusted(0, 0, down ? -std::max(line, 0) : 0, across ? -std::max(line, 0) : 0);
    if (is_fixed) {
      painter.fillRect(inside, fixed);
      looks::DrawFrame(painter, inside, looks::kLight, fixed);
    } else {
      painter.fillRect(inside, picked ? palette.color(QPalette::Highlight) : PaperOf(*grid));
    }
    constexpr int kTextLeft = 2;
    const QColor& text = picked ? palette.color(QPalette::HighlightedText) : ink;
    looks::DrawFaceText(painter, stage().Texts(), inside.adjusted(kTextLeft, kTextLeft, 0, 0),
                        {TextOf(*grid, cell), font, text, Field().isEnabled()}, Qt::AlignLeft,
                        looks::TextFlow::Plain);
  });
  stage().Surfaces().Paint(painter, Id(), QPoint());
}

}  // namespace tarnwick::run
