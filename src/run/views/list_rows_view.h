// Lists of items with columns.
#pragma once

#include "run/widget_view.h"

class QTreeWidgetItem;

namespace tarnwick::run {

class TreeField;

/// With columns as a report, else one below the other.
class ListRowsView final : public TableView<ListRowsView> {
 public:
  ListRowsView(Stage& stage, const ObjectRecord& list);
  void ShowItems(const ObjectRecord& list, const objects::ItemsChange& change) override;

  void ShowAllRows(const ObjectRecord& list);
  void ShowMode(const ObjectRecord& list);
  void ShowPicked(const ObjectRecord& list);
  static constexpr ShowRow<ListRowsView> kRows[] = {
      {Word::ViewStyle, &ListRowsView::ShowAllRows},
      {Word::SmallImages, &ListRowsView::ShowAllRows},
      {Word::LargeImages, &ListRowsView::ShowAllRows},
      {Word::CheckBoxes, &ListRowsView::ShowAllRows},
      {Word::ShowColumnHeaders, &ListRowsView::ShowMode},
      {Word::ColumnClick, &ListRowsView::ShowMode},
      {Word::RowSelect, &ListRowsView::ShowMode},
      {Word::MultiSelect, &ListRowsView::ShowMode},
      {Word::BorderStyle, &ListRowsView::ShowMode},
      {Word::GridLines, &ListRowsView::ShowMode},
      {Word::HotTrack, &ListRowsView::ShowMode},
      {Word::HideSelection, &ListRowsView::ShowMode},
      {Word::ReadOnly, &ListRowsView::ShowMode},
      {Word::ItemIndex, &ListRowsView::ShowPicked}};

 private:
  [[nodiscard]] TreeField& Field() const;
  void ShowColumns(const ObjectRecord& list);
  void ShowOne(const ObjectRecord& list, QTreeWidgetItem& shown, std::size_t index);
  void Picked();
  void SelectionChanged();
  /// The user has ticked an item, or has changed its caption.
  void Changed(QTreeWidgetItem& shown);
  bool showing_ = false;  ///< what changes now is no choice of the user
};

}  // namespace tarnwick::run
