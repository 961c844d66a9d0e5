#include "run/views/list_rows_view.h"

#include <QHeaderView>
#include <algorithm>

#include "looks/object_faces.h"
#include "looks/text_bridge.h"
#include "run/stage.h"
#include "run/views/fields.h"
#include "run/views/tree_field.h"

namespace tarnwick::run {
namespace {

using objects::ItemsChange;
using objects::ListRows;

constexpr std::int64_t kLargeIcons = 0;
constexpr std::int64_t kReport = 3;

TreeField* MakeField(ListRowsView& view) {
  return new TreeField(view);
}

Word ImagesOf(const ObjectRecord& list) {
  return list.Number(Word::ViewStyle) == kLargeIcons ? Word::LargeImages : Word::SmallImages;
}

}  // namespace

ListRowsView::ListRowsView(Stage& stage, const ObjectRecord& list)
    : TableView(stage, list, MakeField(*this), WidgetEvents::Mouse::OwnClicks) {
  TreeField& field = Field();
  Events().Watch(field, *field.viewport());
  field.setRootIsDecorated(false);
  field.setIndentation(0);
  field.header()->setStretchLastSection(false);
  connect(&field, &QTreeWidget::currentItemChanged, this, [this] { Picked(); });
  connect(&field, &QTreeWidget::itemSelectionChanged, this, [this] { SelectionChanged(); });
  connect(&field, &QTreeWidget::itemChanged, this,
          [this](QTreeWidgetItem* item, int) { Changed(*item); });
  connect(field.header(), &QHeaderView::sectionClicked, this, [this](int column) {
    this->stage().Raise(Id(), Word::OnColumnClick, {Value::Integer(column)});
  });
}

TreeField& ListRowsView::Field() const {
  return *static_cast<TreeField*>(Widget());
}

void ListRowsView::ShowColumns(const ObjectRecord& list) {
  constexpr Qt::Alignment kSides[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  const ListRows& rows = *list.As<ListRows>();
  const bool report = list.Number(Word::ViewStyle) == kReport && !rows.Columns.empty();
  TreeField& field = Field();
  field.setColumnCount(report ? static_cast<int>(rows.Columns.size()) : 1);
  field.header()->setStretchLastSection(!report);
  QTreeWidgetItem& head = *field.headerItem();
  for (int i = 0; report && i < field.columnCount(); ++i) {
    const ListRows::Column& column = rows.Columns[static_cast<std::size_t>(i)];
    head.setText(i, looks::ToQString(column.Caption));
    head.setTextAlignment(i, kSides[column.Alignment] | Qt::AlignVCenter);
    field.setColumnWidth(i, column.Width);
  }
}

void ListRowsView::ShowOne(const ObjectRecord& list, QTreeWidgetItem& shown, std::size_t index) {
  const ListRows& rows = *list.As<ListRows>();
  const ListRows::Row& row = rows.Rows[index];
  const bool before = showing_;
  showing_ = true;
  for (int i = 0; i < Field().columnCount(); ++i) {
    const auto at = static_cast<std::size_t>(i);
    shown.setText(i, at < row.Texts.size() ? looks::ToQString(row.Texts[at]) : QString());
    shown.setData(i, Qt::TextAlignmentRole, Field().headerItem()->data(i, Qt::TextAlignmentRole));
  }
  shown.setIcon(0, PictureOfList(stage(), list, ImagesOf(list), row.Image));
  if (list.Truth(Word::CheckBoxes)) {
    shown.setCheckState(0, row.Checked ? Qt::Checked : Qt::Unchecked);
  }
  if (list.Truth(Word::MultiSelect)) shown.setSelected(row.Selected);
  showing_ = before;
}

void ListRowsView::ShowAllRows(const ObjectRecord& list) {
  const auto* const rows = list.As<ListRows>();
  if (rows == nullptr) return;
  showing_ = true;
  TreeField& field = Field();
  field.clear();
  field.setIconSize(PictureSizeOfList(stage(), list, ImagesOf(list)));
  ShowColumns(list);
  QList<QTreeWidgetItem*> items;
  for (std::size_t i = 0; i < rows->Rows.size(); ++i) items << MakeTreeItem();
  field.addTopLevelItems(items);
  for (std::size_t i = 0; i < rows->Rows.size(); ++i) {
    ShowOne(list, *items[static_cast<qsizetype>(i)], i);
  }
  showing_ = false;
  ShowMode(list);
  ShowPicked(list);
}

void ListRowsView::ShowItems(const ObjectRecord& list, const ItemsChange& change) {
  if (list.As<ListRows>() == nullptr) return;
  if (change.What == ItemsChange::Kind::All) return ShowAllRows(list);
  showing_ = true;
  const auto at = static_cast<int>(change.First);
  if (change.What == ItemsChange::Kind::Removed) {
    delete Field().takeTopLevelItem(at);
  } else {
    if (change.What == ItemsChange::Kind::Inserted) {
      Field().insertTopLevelItem(at, MakeTreeItem());
    }
    if (QTreeWidgetItem* const shown = Field().topLevelItem(at))
      ShowOne(list, *shown, change.First);
  }
  showing_ = false;
  ShowPicked(list);
}

void ListRowsView::ShowMode(const ObjectRecord& list) {
  TreeField& field = Field();
  const bool report = list.Number(Word::ViewStyle) == kReport;
  field.setHeaderHidden(!report || !list.Truth(Word::ShowColumnHeaders));
  field.header()->setSectionsClickable(list.Truth(Word::ColumnClick));
  field.setAllColumnsShowFocus(list.Truth(Word::RowSelect));
  field.setSelectionBehavior(list.Truth(Word::RowSelect) ? QTreeWidget::SelectRows
                                                         : QTreeWidget::SelectItems);
  field.setSelectionMode(list.Truth(Word::MultiSelect) ? QTreeWidget::ExtendedSelection
                                                       : QTreeWidget::SingleSelection);
  field.SetLook(TreeField::LookOf(list));
  field.setLineWidth(EdgeOf(list) == looks::FieldEdge::None ? 0 : looks::kListEdge);
}

void ListRowsView::ShowPicked(const ObjectRecord& list) {
  QTreeWidgetItem* const wanted =
      Field().topLevelItem(static_cast<int>(list.Number(Word::ItemIndex)));
  if (Field().currentItem() == wanted) return;
  showing_ = true;
  const bool many = list.Truth(Word::MultiSelect);
  if (wanted == nullptr && !many) Field().clearSelection();
  QItemSelectionModel::SelectionFlags how = QItemSelectionModel::NoUpdate;
  if (!many) how = QItemSelectionModel::ClearAndSelect;
  if (!many && list.Truth(Word::RowSelect)) how |= QItemSelectionModel::Rows;
  Field().setCurrentItem(wanted, 0, how);
  showing_ = false;
}

// --- Reported by the field

void ListRowsView::Picked() {
  if (showing_ || Record() == nullptr) return;
  // The focus goes to an item without picking it, and comes to one before a press picks it.
  QTreeWidgetItem* const item = Field().currentItem();
  if (item == nullptr || !item->isSelected()) return;
  const int index = Field().indexOfTopLevelItem(item);
  stage().Report(
      [this, index] { stage().World().UserSet(Id(), Word::ItemIndex, Value::Integer(index)); });
}

void ListRowsView::SelectionChanged() {
  if (showing_) return;
  objects::ObjectRecord* const list = stage().World().Find(Id());
  if (list == nullptr || !list->Truth(Word::MultiSelect)) return Picked();
  std::vector<ListRows::Row>& rows = list->As<ListRows>()->Rows;
  const int count = std::min(Field().topLevelItemCount(), static_cast<int>(rows.size()));
  for (int i = 0; i < count; ++i) {
    rows[static_cast<std::size_t>(i)].Selected = Field().topLevelItem(i)->isSelected();
  }
  Picked();
}

void ListRowsView::Changed(QTreeWidgetItem& shown) {
  objects::ObjectRecord* const list = stage().World().Find(Id());
  if (showing_ || list == nullptr) return;
  std::vector<ListRows::Row>& rows = list->As<ListRows>()->Rows;
  const int index = Field().indexOfTopLevelItem(&shown);
  if (index < 0 || index >= static_cast<int>(rows.size())) return;
  ListRows::Row& row = rows[static_cast<std::size_t>(index)];
  std::string caption = looks::FromQString(shown.text(0));
  const bool checked = list->Truth(Word::CheckBoxes) && shown.checkState(0) == Qt::Checked;
  if (row.Texts[0] == caption && row.Checked == checked) return;
  row.Texts[0] = std::move(caption);
  row.Checked = checked;
  stage().Raise(Id(), Word::OnChange);
}

}  // namespace tarnwick::run
