// Trees of nodes.
#pragma once

#include <QTimer>
#include <vector>

#include "run/widget_view.h"

class QTreeWidgetItem;

namespace tarnwick::run {

class TreeField;

/// Nodes that are opened and closed. Many changes in a row are shown once, with the next events.
class TreeView final : public TableView<TreeView> {
 public:
  TreeView(Stage& stage, const ObjectRecord& tree);
  void ShowItems(const ObjectRecord& tree, const objects::ItemsChange& change) override;

  void ShowNodes(const ObjectRecord& tree);
  void ShowMode(const ObjectRecord& tree);
  void ShowPicked(const ObjectRecord& tree);
  static constexpr ShowRow<TreeView> kRows[] = {
      {Word::Images, &TreeView::ShowNodes},       {Word::ShowRoot, &TreeView::ShowMode},
      {Word::ShowButtons, &TreeView::ShowMode},   {Word::Indent, &TreeView::ShowMode},
      {Word::ShowLines, &TreeView::ShowMode},     {Word::HotTrack, &TreeView::ShowMode},
      {Word::HideSelection, &TreeView::ShowMode}, {Word::ReadOnly, &TreeView::ShowMode},
      {Word::BorderStyle, &TreeView::ShowMode},   {Word::ItemIndex, &TreeView::ShowPicked}};

 private:
  [[nodiscard]] TreeField& Field() const;
  [[nodiscard]] bool Waiting() const { return refresh_.isActive(); }
  void ShowNode(const ObjectRecord& tree, std::size_t index);
  void Picked();
  void Opened(const QTreeWidgetItem& shown, bool open);
  void Renamed(const QTreeWidgetItem& shown);
  [[nodiscard]] int IndexOf(const QTreeWidgetItem* shown) const;
  std::vector<QTreeWidgetItem*> shown_;  ///< by the index of the node
  bool showing_ = false;                 ///< what changes now is no choice of the user
  QTimer refresh_;                       ///< runs while all nodes are to be shown again
};

}  // namespace tarnwick::run
