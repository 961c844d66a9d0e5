// The widget of lists with columns and of trees.
#pragma once

#include <QIcon>
#include <QTreeWidget>

#include "run/object_view.h"

namespace tarnwick::run {

/// Rows in the look of the other lists.
class TreeField final : public QTreeWidget {
 public:
  explicit TreeField(ObjectView& view);
  [[nodiscard]] const ObjectView& View() const { return view_; }

 protected:
  bool event(QEvent* event) override;

 private:
  ObjectView& view_;
};

/// The picture of an index of a QIMAGELIST, which is a property of the object; null when there is
/// none.
[[nodiscard]] QIcon PictureOfList(Stage& stage, const ObjectRecord& object, Word images, int index);
/// The size of the pictures of that list.
[[nodiscard]] QSize PictureSizeOfList(Stage& stage, const ObjectRecord& object, Word images);

}  // namespace tarnwick::run
