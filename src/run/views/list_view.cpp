#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "looks/classic_look.h"
#include "looks/platform_colors.h"
#include "looks/text_bridge.h"
#include "run/drawing_surfaces.h"
#include "run/stage.h"
#include "run/views/fields.h"
#include "run/views/list_views.h"

namespace tarnwick::run {
namespace {

using objects::ItemsChange;
using objects::ListItems;

/// Rows as the design form paints them.
class RowPainter final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    // The program draws them itself.
    if (Drawn) return;
    const bool chosen = (option.state & QStyle::State_Selected) != 0;
    const bool enabled = (option.state & QStyle::State_Enabled) != 0;
    const QPalette& palette = option.palette;
    if (chosen) painter->fillRect(option.rect, palette.color(QPalette::Highlight));
    painter->setFont(option.font);
    painter->setPen(!enabled ? looks::kGreyText
                             : palette.color(chosen ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(option.rect.adjusted(looks::kListTextLeft, 0, 0, 0),
                      Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, index.data().toString());
  }
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& index) const override {
    const int width =
        option.fontMetrics.horizontalAdvance(index.data().toString()) + 2 * looks::kListTextLeft;
    const QVariant own = index.data(Qt::UserRole);
    if (own.isValid()) return {width, own.toInt()};
    return {width, Height > 0 ? Height : option.fontMetrics.height()};
  }

  bool Drawn = false;
  int Height = 0;  ///< of the entries without one of their own; 0: that of the font
};

class ListField final : public QListWidget {
 public:
  explicit ListField(ListView& view) : view_(view) {
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setLineWidth(looks::kListEdge);
    viewport()->setAutoFillBackground(false);
    setItemDelegate(&Rows);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
  }

  RowPainter Rows;

 protected:
  void paintEvent(QPaintEvent* event) override {
    QListWidget::paintEvent(event);
    QPainter painter(viewport());
    view_.PaintDrawn(painter);
  }
  void scrollContentsBy(int dx, int dy) override {
    QListWidget::scrollContentsBy(dx, dy);
    view_.Moved();
  }
  void resizeEvent(QResizeEvent* event) override {
    QListWidget::resizeEvent(event);
    view_.Moved();
  }
  bool event(QEvent* event) override {
    if (event->type() != QEvent::Paint) return QListWidget::event(event);
    PaintField(*this, view_);
    return true;
  }
  // A press moves the focus to the entry first and selects it then: the choice is what stands
  // behind the whole press.
  void mousePressEvent(QMouseEvent* event) override {
    view_.Pressing(true);
    QListWidget::mousePressEvent(event);
    view_.Pressing(false);
  }
  void keyPressEvent(QKeyEvent* event) override {
    view_.Keying(true);
    QListWidget::keyPressEvent(event);
    view_.Keying(false);
    const bool many = selectionMode() != SingleSelection;
    if (many && event->key() == Qt::Key_Space && currentRow() >= 0) view_.Pressed(currentRow());
  }

 private:
  ListView& view_;
};

QListWidget* MakeListField(ListView& view) {
  return new ListField(view);
}

}  // namespace

ListView::ListView(Stage& stage, const ObjectRecord& list)
    : TableView(stage, list, MakeListField(*this), WidgetEvents::Mouse::Own),
      drawing_(stage, list.Id, Word::OnDrawItem, [this] { return Parts(); }) {
  Events().Watch(List(), *List().viewport());
  connect(&List(), &QListWidget::currentRowChanged, this, [this] { Picked(); });
  connect(&List(), &QListWidget::itemSelectionChanged, this, [this] { SelectionChanged(); });
  connect(&List(), &QListWidget::itemPressed, this,
          [this](QListWidgetItem* item) { Pressed(List().row(item)); });
}

QListWidget& ListView::List() const {
  return *static_cast<QListWidget*>(Widget());
}

void ListView::PaintDrawn(QPainter& painter) const {
  stage().Surfaces().Paint(painter, Id(), QPoint());
}

void ListView::ShowDrawing() {
  List().viewport()->update();
}

std::vector<DrawnPart> ListView::Parts() const {
  std::vector<DrawnPart> parts;
  const ObjectRecord* const list = Record();
  if (list == nullptr || list->Number(Word::Style) == 0) return parts;
  const QRect seen = List().viewport()->rect();
  for (int row = std::max(0, List().indexAt(QPoint(1, 1)).row()); row < List().count(); ++row) {
    const QListWidgetItem* const item = List().item(row);
    const QRect place = List().visualItemRect(item);
    if (place.top() > seen.bottom()) break;
    std::int64_t state = item->isSelected() ? kPartSelected : 0;
    if (!List().isEnabled()) state |= kPartDisabled;
    if (List().currentRow() == row && List().hasFocus()) state |= kPartFocused;
    parts.push_back({{row}, state, place});
  }
  return parts;
}

void ListView::ShowHeights(const ObjectRecord& list) {
  constexpr std::int64_t kVariable = 2;
  const std::int64_t style = list.Number(Word::Style);
  RowPainter& rows = static_cast<ListField&>(List()).Rows;
  rows.Drawn = style != 0 && list.IsHooked(Word::OnDrawItem);
  const auto fitted = [](std::int64_t height) {
    constexpr std::int64_t kTallest = 10'000;
    return static_cast<int>(std::clamp<std::int64_t>(height, 0, kTallest));
  };
  rows.Height = style == 0 ? 0 : fitted(list.Number(Word::ItemHeight));
  List().setUniformItemSizes(style != kVariable);
  for (int row = 0; row < List().count() && style == kVariable; ++row) {
    Value arguments[] = {Value::Integer(row), Value::Integer(rows.Height)};
    if (!stage().World().Raise(Id(), Word::OnMeasureItem, arguments) || Record() == nullptr) return;
    if (QListWidgetItem* const item = List().item(row)) {
      item->setData(Qt::UserRole, fitted(arguments[1].AsInteger()));
    }
  }
  List().doItemsLayout();
  drawing_.Want();
  FitHeight(list);
}

void ListView::BuildOwn(const ObjectRecord& list) {
  TableView::BuildOwn(list);
  built_ = true;
  FitHeight(list);
}

void ListView::FitHeight(const ObjectRecord& list) {
  constexpr std::int64_t kVariable = 2;
  const bool fits = list.Truth(Word::IntegralHeight) && list.Number(Word::Style) != kVariable &&
                    list.Number(Word::Align) == 0;
  if (!built_ || !fits) return;
  const int own = static_cast<ListField&>(List()).Rows.Height;
  const int row = own > 0 ? own : List().fontMetrics().height();
  const int edges = 2 * List().frameWidth();
  const int height = PlaceOf(list).height();
  // A list keeps the room of one entry at least.
  const int fitted = std::max(1, (height - edges) / std::max(1, row)) * row + edges;
  if (fitted >= height) return;
  List().resize(List().width(), fitted);
  stage().Report(
      [this, fitted] { stage().World().UserSet(Id(), Word::Height, Value::Integer(fitted)); });
}

void ListView::Picked() {
  const ObjectRecord* const list = Record();
  if (showing_ || pressing_ || list == nullptr || List().currentRow() < 0) return;
  // The focus goes to an entry without picking it; of many, the keys pick the one they reach.
  const bool reached = list->Truth(Word::MultiSelect) && keying_;
  if (!reached && !List().currentItem()->isSelected()) return;
  stage().Report([this, row = List().currentRow()] {
    stage().World().UserSet(Id(), Word::ItemIndex, Value::Integer(row));
  });
}

void ListView::Pressed(int row) {
  const ObjectRecord* const list = Record();
  if (list == nullptr) return;
  // A click on the entry that is picked already is a click too.
  if (list->Number(Word::ItemIndex) == row) {
    stage().Raise(Id(), Word::OnClick);
    return;
  }
  stage().Report(
      [this, row] { stage().World().UserSet(Id(), Word::ItemIndex, Value::Integer(row)); });
}

void ListView::SelectionChanged() {
  drawing_.Want();
  const ObjectRecord* const list = Record();
  if (showing_ || list == nullptr || !list->Truth(Word::MultiSelect)) return;
  const auto* const items = list->As<ListItems>();
  const int count = items == nullptr ? 0 : static_cast<int>(items->Items.size());
  for (int i = 0; i < count && i < List().count(); ++i) {
    stage().World().UserSelect(Id(), static_cast<std::size_t>(i), List().item(i)->isSelected());
  }
}

void ListView::ShowEntries(const ObjectRecord& list) {
  const auto* const items = list.As<ListItems>();
  if (items == nullptr) return;
  showing_ = true;
  List().clear();
  QStringList texts;
  for (const ListItems::Item& item : items->Items) texts << looks::ToQString(item.Text);
  List().addItems(texts);
  showing_ = false;
  ShowPicked(list);
  ShowHeights(list);
}

void ListView::ShowItems(const ObjectRecord& list, const ItemsChange& change) {
  const auto* const items = list.As<ListItems>();
  if (items == nullptr) return;
  if (change.What == ItemsChange::Kind::All) return ShowEntries(list);
  showing_ = true;
  const auto first = static_cast<int>(change.First);
  for (std::size_t i = 0; i < change.Count; ++i) {
    const int row = first + static_cast<int>(i);
    if (change.What == ItemsChange::Kind::Removed) {
      delete List().takeItem(first);
      continue;
    }
    const ListItems::Item& item = items->Items[change.First + i];
    if (change.What == ItemsChange::Kind::Inserted) {
      List().insertItem(row, looks::ToQString(item.Text));
    } else if (QListWidgetItem* const shown = List().item(row)) {
      shown->setText(looks::ToQString(item.Text));
    }
    if (List().item(row) != nullptr && list.Truth(Word::MultiSelect)) {
      List().item(row)->setSelected(item.Selected);
    }
  }
  showing_ = false;
  ShowPicked(list);
  if (list.Number(Word::Style) != 0) ShowHeights(list);
}

void ListView::ShowMode(const ObjectRecord& list) {
  const bool many = list.Truth(Word::MultiSelect);
  const bool extended = list.Truth(Word::ExtendedSelect);
  List().setSelectionMode(!many      ? QListWidget::SingleSelection
                          : extended ? QListWidget::ExtendedSelection
                                     : QListWidget::MultiSelection);
  // Columns flow sideways, each as wide as its part of the list.
  const auto columns =
      static_cast<int>(std::clamp<std::int64_t>(list.Number(Word::Columns), 0, 64));
  List().setFlow(QListWidget::TopToBottom);
  List().setWrapping(columns > 0);
  List().setHorizontalScrollBarPolicy(columns > 0 ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  if (columns > 0) {
    List().setGridSize(
        QSize((List().width() - 2 * looks::kListEdge) / columns, List().fontMetrics().height()));
  } else {
    List().setGridSize(QSize());
  }
}

void ListView::ShowPicked(const ObjectRecord& list) {
  const auto row = static_cast<int>(list.Number(Word::ItemIndex));
  if (List().currentRow() == row) return;
  showing_ = true;
  const bool many = list.Truth(Word::MultiSelect);
  if (row < 0 && !many) List().clearSelection();
  List().setCurrentRow(row,
                       many ? QItemSelectionModel::NoUpdate : QItemSelectionModel::ClearAndSelect);
  showing_ = false;
}

void ListView::ShowTop(const ObjectRecord& list) {
  if (QListWidgetItem* const item = List().item(static_cast<int>(list.Number(Word::TopIndex)))) {
    List().scrollToItem(item, QListWidget::PositionAtTop);
  }
}

void ListView::ShowFont(const ObjectRecord& list) {
  WidgetView::ShowFont(list);
  if (list.Number(Word::Columns) > 0) ShowMode(list);
  FitHeight(list);
}

bool ListView::Live(const ObjectRecord& list, const MemberInfo& member,
                    std::span<const Value> /*index*/, Value& out) {
  if (member.Name == Word::TopIndex) {
    out = Value::Integer(std::max(0, List().indexAt(QPoint(1, 1)).row()));
    return true;
  }
  if (member.Name == Word::ItemHeight && list.Number(Word::Style) == 0) {
    out = Value::Integer(List().fontMetrics().height());
    return true;
  }
  return false;
}

}  // namespace tarnwick::run
