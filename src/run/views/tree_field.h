// The widget of lists with columns and of trees.
#pragma once

#include <QIcon>
#include <QTreeWidget>

#include "run/object_view.h"

namespace tarnwick::run {

/// What the properties of a list or tree say about its look.
struct TreeLook {
  bool Grid = false;           ///< lines between rows and columns
  bool Lines = false;          ///< from node to node
  bool Buttons = false;        ///< to open and close nodes
  bool HotTrack = false;       ///< the row under the pointer is underlined
  bool HideSelection = false;  ///< while another object has the focus
  bool ReadOnly = true;        ///< the user cannot change captions
  bool WholeRow = false;       ///< all columns of a row are marked, not its caption alone
};

/// Rows in the look of the other lists.
class TreeField final : public QTreeWidget {
 public:
  explicit TreeField(ObjectView& view);
  [[nodiscard]] const ObjectView& View() const { return view_; }
  void SetLook(const TreeLook& look);
  [[nodiscard]] const TreeLook& Look() const { return look_; }
  /// The look that an object's properties ask for; what its class does not have is off.
  [[nodiscard]] static TreeLook LookOf(const ObjectRecord& object);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;

 private:
  void PaintGrid();
  ObjectView& view_;
  TreeLook look_;
  bool hot_ = false;  ///< the pointer is over an item
};

/// An item whose caption the user can change where the look lets him.
[[nodiscard]] QTreeWidgetItem* MakeTreeItem();

/// The picture of an index of a QIMAGELIST, which is a property of the object; null when there is
/// none.
[[nodiscard]] QIcon PictureOfList(Stage& stage, const ObjectRecord& object, Word images, int index);
/// The size of the pictures of that list.
[[nodiscard]] QSize PictureSizeOfList(Stage& stage, const ObjectRecord& object, Word images);

}  // namespace tarnwick::run
