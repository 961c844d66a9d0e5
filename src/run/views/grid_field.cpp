#include "run/views/grid_field.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cstdlib>
#include <numeric>

#include "looks/object_faces.h"
#include "looks/text_bridge.h"
#include "objects/grid_options.h"
#include "run/views/fields.h"
#include "run/views/grid_view.h"

namespace tarnwick::run {
namespace {

constexpr int kMostCells = 65'536;

/// A dimension of the grid: its count, sizes of its own and the size of the others.
std::vector<int> SizesOf(const ObjectRecord& grid, Word counter, Word usual,
                         const std::map<int, int>& own, int line) {
  constexpr std::int64_t kLargest = 10'000;
  const auto count =
      static_cast<std::size_t>(std::clamp<std::int64_t>(grid.Number(counter), 0, kMostCells));
  const auto size = static_cast<int>(std::clamp<std::int64_t>(grid.Number(usual), 0, kLargest));
  std::vector<int> sizes(count, size + line);
  for (const auto& [index, pixels] : own) {
    if (index >= 0 && static_cast<std::size_t>(index) < count) {
      sizes[static_cast<std::size_t>(index)] = pixels + line;
    }
  }
  return sizes;
}

int SumOf(const std::vector<int>& sizes, int first, int last) {
  return std::accumulate(sizes.begin() + first, sizes.begin() + std::max(first, last), 0);
}

}  // namespace

GridField::GridField(GridView& view) : view_(view) {
  setFrameStyle(QFrame::Panel | QFrame::Sunken);
  setLineWidth(looks::kListEdge);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setAutoFillBackground(false);
}

void GridField::Fit(const ObjectRecord& grid) {
  const auto* const cells = grid.As<objects::GridCells>();
  if (cells == nullptr) return;
  EndEdit(false);
  const auto line =
      static_cast<int>(std::clamp<std::int64_t>(grid.Number(Word::GridLineWidth), 0, 20));
  line_ = line;
  columns_.Sizes = SizesOf(grid, Word::ColCount, Word::DefaultColWidth, cells->ColumnWidths, line);
  rows_.Sizes = SizesOf(grid, Word::RowCount, Word::DefaultRowHeight, cells->RowHeights, line);
  const auto fixed = [&](Word property, const Axis& axis) {
    return static_cast<int>(std::clamp<std::int64_t>(grid.Number(property), 0,
                                                     static_cast<std::int64_t>(axis.Sizes.size())));
  };
  columns_.Fixed = fixed(Word::FixedCols, columns_);
  rows_.Fixed = fixed(Word::FixedRows, rows_);
  const std::int64_t bars = grid.Number(Word::ScrollBars);
  const auto policy = [&](int bit) {
    return (bars & bit) != 0 ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
  };
  setHorizontalScrollBarPolicy(policy(1));
  setVerticalScrollBarPolicy(policy(2));
  const bool edge = EdgeOf(grid) != looks::FieldEdge::None;
  setLineWidth(edge ? looks::kListEdge : 0);
  FitBar(columns_, *horizontalScrollBar(), viewport()->width());
  FitBar(rows_, *verticalScrollBar(), viewport()->height());
  viewport()->update();
}

/// The bar counts cells: as many as must leave so that the last one is seen whole.
void GridField::FitBar(const Axis& axis, QScrollBar& bar, int room) {
  room -= SumOf(axis.Sizes, 0, axis.Fixed);
  int needed = 0;
  int last = static_cast<int>(axis.Sizes.size());
  while (last > axis.Fixed && needed + axis.Sizes[static_cast<std::size_t>(last - 1)] <= room) {
    needed += axis.Sizes[static_cast<std::size_t>(--last)];
  }
  // A cell that is wider than the room is seen in part.
  const int most = static_cast<int>(axis.Sizes.size()) - 1 - axis.Fixed;
  bar.setRange(0, std::clamp(last - axis.Fixed, 0, std::max(0, most)));
  bar.setSingleStep(1);
  bar.setPageStep(std::max(1, static_cast<int>(axis.Sizes.size()) - last));
}

int GridField::FirstOf(const Axis& axis, int scrolled) const {
  return std::min(axis.Fixed + scrolled, static_cast<int>(axis.Sizes.size()));
}

/// Where the cell of an index begins when `first` is the first one behind the fixed ones.
int GridField::StartOf(const Axis& axis, int first, int index) {
  if (index < axis.Fixed) return SumOf(axis.Sizes, 0, index);
  return SumOf(axis.Sizes, 0, axis.Fixed) + SumOf(axis.Sizes, first, index);
}

GridCell GridField::First() const {
  return {FirstOf(columns_, horizontalScrollBar()->value()),
          FirstOf(rows_, verticalScrollBar()->value())};
}

void GridField::SetFirst(const GridCell& cell) {
  horizontalScrollBar()->setValue(cell.Column - columns_.Fixed);
  verticalScrollBar()->setValue(cell.Row - rows_.Fixed);
}

QRect GridField::PlaceOf(const GridCell& cell) const {
  const auto size = [](const Axis& axis, int index) {
    const bool inside = index >= 0 && static_cast<std::size_t>(index) < axis.Sizes.size();
    return inside ? axis.Sizes[static_cast<std::size_t>(index)] : 0;
  };
  const GridCell first = First();
  if (size(columns_, cell.Column) == 0 || size(rows_, cell.Row) == 0) return {};
  const bool hidden = (cell.Column >= columns_.Fixed && cell.Column < first.Column) ||
                      (cell.Row >= rows_.Fixed && cell.Row < first.Row);
  if (hidden) return {};
  return {StartOf(columns_, first.Column, cell.Column), StartOf(rows_, first.Row, cell.Row),
          size(columns_, cell.Column), size(rows_, cell.Row)};
}

void GridField::ForEachSeen(const std::function<void(const GridCell&, const QRect&)>& use) const {
  // Indexes and starts of what is seen in one direction, the fixed ones last.
  const auto seen = [](const Axis& axis, int first, int room) {
    std::vector<std::pair<int, int>> found;
    int at = SumOf(axis.Sizes, 0, axis.Fixed);
    for (int i = first; i < static_cast<int>(axis.Sizes.size()) && at < room; ++i) {
      found.emplace_back(i, at);
      at += axis.Sizes[static_cast<std::size_t>(i)];
    }
    at = 0;
    for (int i = 0; i < axis.Fixed && at < room; ++i) {
      found.emplace_back(i, at);
      at += axis.Sizes[static_cast<std::size_t>(i)];
    }
    return found;
  };
  const GridCell first = First();
  const auto columns = seen(columns_, first.Column, viewport()->width());
  for (const auto& [row, top] : seen(rows_, first.Row, viewport()->height())) {
    for (const auto& [column, left] : columns) {
      use({column, row}, QRect(left, top, columns_.Sizes[static_cast<std::size_t>(column)],
                               rows_.Sizes[static_cast<std::size_t>(row)]));
    }
  }
}

GridCell GridField::CellAt(const QPoint& at) const {
  GridCell found;
  ForEachSeen([&](const GridCell& cell, const QRect& place) {
    if (place.contains(at)) found = cell;
  });
  return found;
}

void GridField::Reveal(const GridCell& cell) {
  const auto scroll = [&](const Axis& axis, QScrollBar& bar, int index, int room) {
    if (index < axis.Fixed) return;
    const int first = FirstOf(axis, bar.value());
    int wanted = index;
    int left =
        room - SumOf(axis.Sizes, 0, axis.Fixed) - axis.Sizes[static_cast<std::size_t>(index)];
    while (wanted > first && axis.Sizes[static_cast<std::size_t>(wanted - 1)] <= left) {
      left -= axis.Sizes[static_cast<std::size_t>(--wanted)];
    }
    bar.setValue(wanted - axis.Fixed);
  };
  if (cell.Column >= static_cast<int>(columns_.Sizes.size()) ||
      cell.Row >= static_cast<int>(rows_.Sizes.size())) {
    return;
  }
  scroll(columns_, *horizontalScrollBar(), cell.Column, viewport()->width());
  scroll(rows_, *verticalScrollBar(), cell.Row, viewport()->height());
}

bool GridField::event(QEvent* event) {
  if (event->type() != QEvent::Paint) return QAbstractScrollArea::event(event);
  PaintField(*this, view_);
  return true;
}

void GridField::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  view_.Paint(painter);
}

void GridField::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  if (const ObjectRecord* const grid = view_.Record()) Fit(*grid);
}

void GridField::scrollContentsBy(int /*dx*/, int /*dy*/) {
  EndEdit(true);
  viewport()->update();
  view_.Scrolled();
}

// --- Keys and mouse

GridCell GridField::Picked() const {
  const ObjectRecord* const grid = view_.Record();
  if (grid == nullptr) return {};
  return {static_cast<int>(grid->Number(Word::Col)), static_cast<int>(grid->Number(Word::Row))};
}

bool GridField::HasOption(objects::GridOption option) const {
  const ObjectRecord* const grid = view_.Record();
  return grid != nullptr && objects::HasGridOption(*grid, option);
}

bool GridField::CanEdit() const {
  return HasOption(objects::GridOption::Editing);
}

bool GridField::focusNextPrevChild(bool next) {
  if (HasOption(objects::GridOption::Tabs) && PickNext(next)) return true;
  return QAbstractScrollArea::focusNextPrevChild(next);
}

bool GridField::PickNext(bool next) {
  GridCell cell = Picked();
  const int last_column = static_cast<int>(columns_.Sizes.size()) - 1;
  const int last_row = static_cast<int>(rows_.Sizes.size()) - 1;
  cell.Column += next ? 1 : -1;
  if (cell.Column > last_column) cell = {columns_.Fixed, cell.Row + 1};
  if (cell.Column < columns_.Fixed) cell = {last_column, cell.Row - 1};
  if (cell.Row < rows_.Fixed || cell.Row > last_row || last_column < columns_.Fixed) return false;
  EndEdit(true);
  view_.Pick(cell.Column, cell.Row);
  return true;
}

GridField::Edge GridField::EdgeAt(const QPoint& at, bool column) const {
  constexpr int kReach = 3;
  const Axis& axis = column ? columns_ : rows_;
  const Axis& other = column ? rows_ : columns_;
  const int along = column ? at.x() : at.y();
  const int across = column ? at.y() : at.x();
  // Only the heads have edges.
  if (across < 0 || across >= SumOf(other.Sizes, 0, other.Fixed)) return {};
  const int first = column ? First().Column : First().Row;
  const int room = column ? viewport()->width() : viewport()->height();
  for (int index = 0; index < static_cast<int>(axis.Sizes.size()); ++index) {
    if (index >= axis.Fixed && index < first) continue;
    const int size = axis.Sizes[static_cast<std::size_t>(index)];
    const int end = StartOf(axis, first, index) + size;
    if (std::abs(along - end) <= kReach) return {column, index, along, size - line_};
    if (end > room) break;
  }
  return {};
}

GridField::Edge GridField::EdgeAt(const QPoint& at) const {
  Edge edge;
  if (HasOption(objects::GridOption::ColumnSizing)) edge = EdgeAt(at, true);
  const bool rows = edge.Index < 0 && HasOption(objects::GridOption::RowSizing);
  return rows ? EdgeAt(at, false) : edge;
}

void GridField::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (dragged_.Index < 0) {
    const Edge edge = EdgeAt(at);
    if (edge.Index >= 0) {
      viewport()->setCursor(edge.Column ? Qt::SplitHCursor : Qt::SplitVCursor);
    } else {
      viewport()->unsetCursor();
    }
    return QAbstractScrollArea::mouseMoveEvent(event);
  }
  const int moved = (dragged_.Column ? at.x() : at.y()) - dragged_.From;
  view_.TakeSize(dragged_.Column, dragged_.Index, std::max(0, dragged_.Size + moved));
}

void GridField::mouseReleaseEvent(QMouseEvent* event) {
  dragged_ = {};
  QAbstractScrollArea::mouseReleaseEvent(event);
}

void GridField::mousePressEvent(QMouseEvent* event) {
  EndEdit(true);
  if (event->button() == Qt::LeftButton) {
    dragged_ = EdgeAt(event->position().toPoint());
    if (dragged_.Index >= 0) return;
  }
  const GridCell cell = CellAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || cell.Column < columns_.Fixed || cell.Row < rows_.Fixed) {
    return;
  }
  const bool again = cell == Picked();
  view_.Pick(cell.Column, cell.Row);
  if (again && CanEdit()) Edit({});
}

void GridField::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
}

void GridField::keyPressEvent(QKeyEvent* event) {
  GridCell cell = Picked();
  const int page = std::max(1, verticalScrollBar()->pageStep());
  switch (event->key()) {
    case Qt::Key_Left:
      --cell.Column;
      break;
    case Qt::Key_Right:
      ++cell.Column;
      break;
    case Qt::Key_Up:
      --cell.Row;
      break;
    case Qt::Key_Down:
      ++cell.Row;
      break;
    case Qt::Key_PageUp:
      cell.Row = std::max(rows_.Fixed, cell.Row - page);
      break;
    case Qt::Key_PageDown:
      cell.Row = std::min(static_cast<int>(rows_.Sizes.size()) - 1, cell.Row + page);
      break;
    case Qt::Key_Home:
      cell.Column = columns_.Fixed;
      break;
    case Qt::Key_End:
      cell.Column = static_cast<int>(columns_.Sizes.size()) - 1;
      break;
    case Qt::Key_F2:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!CanEdit()) return QAbstractScrollArea::keyPressEvent(event);
      return Edit({});
    default:
      if (CanEdit() && !event->text().isEmpty() && event->text().at(0).isPrint()) {
        return Edit(event->text());
      }
      return QAbstractScrollArea::keyPressEvent(event);
  }
  const bool inside = cell.Column >= columns_.Fixed && cell.Row >= rows_.Fixed &&
                      cell.Column < static_cast<int>(columns_.Sizes.size()) &&
                      cell.Row < static_cast<int>(rows_.Sizes.size());
  if (inside && cell != Picked()) view_.Pick(cell.Column, cell.Row);
}

// --- A text that the user changes

void GridField::Edit(const QString& text) {
  const ObjectRecord* const grid = view_.Record();
  edited_ = Picked();
  const QRect place = PlaceOf(edited_);
  if (grid == nullptr || place.isEmpty()) return;
  auto* const editor = new QLineEdit(viewport());
  editor->setObjectName(objectName() + QStringLiteral(".Edit"));
  editor->setFrame(false);
  editor->setFont(font());
  editor->setPalette(palette());
  // The lines stay to be seen.
  editor->setGeometry(place.adjusted(0, 0, -line_, -line_));
  editor->installEventFilter(this);
  const auto* const cells = grid->As<objects::GridCells>();
  const auto found =
      cells->Texts.find(static_cast<std::uint32_t>(edited_.Row * kMostCells + edited_.Column));
  editor->setText(!text.isEmpty() || found == cells->Texts.end() ? text
                                                                 : looks::ToQString(found->second));
  if (text.isEmpty()) editor->selectAll();
  editor_ = editor;
  connect(editor, &QLineEdit::editingFinished, this, [this] { EndEdit(true); });
  editor->show();
  editor->setFocus();
}

bool GridField::eventFilter(QObject* watched, QEvent* event) {
  if (watched != editor_ || event->type() != QEvent::KeyPress) {
    return QAbstractScrollArea::eventFilter(watched, event);
  }
  return EditorKey(static_cast<QKeyEvent&>(*event));
}

bool GridField::EditorKey(QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      EndEdit(true);
      return true;
    case Qt::Key_Escape:
      EndEdit(false);
      return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      EndEdit(true);
      keyPressEvent(&event);
      return true;
    default:
      return false;
  }
}

void GridField::EndEdit(bool takes) {
  if (editor_.isNull()) return;
  QLineEdit* const editor = editor_;
  editor_ = nullptr;
  const std::string text = looks::FromQString(editor->text());
  const bool focused = editor->hasFocus();
  editor->hide();
  editor->deleteLater();
  if (focused) setFocus();
  if (takes) view_.TakeText(edited_.Column, edited_.Row, text);
}

}  // namespace tarnwick::run
