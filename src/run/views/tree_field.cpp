#include "run/views/tree_field.h"

#include <QEvent>
#include <algorithm>

#include "looks/object_faces.h"
#include "run/stage.h"
#include "run/views/fields.h"

namespace tarnwick::run {

TreeField::TreeField(ObjectView& view) : view_(view) {
  setFrameStyle(QFrame::Panel | QFrame::Sunken);
  setLineWidth(looks::kListEdge);
  viewport()->setAutoFillBackground(false);
  setEditTriggers(NoEditTriggers);
  setUniformRowHeights(true);
  setAnimated(false);
  setExpandsOnDoubleClick(true);
}

bool TreeField::event(QEvent* event) {
  if (event->type() != QEvent::Paint) return QTreeWidget::event(event);
  PaintField(*this, view_);
  return true;
}

QIcon PictureOfList(Stage& stage, const ObjectRecord& object, Word images, int index) {
  const ObjectRecord* const list = stage.RecordOf(object.Object(images));
  const auto* const files = list == nullptr ? nullptr : list->As<objects::PickedFiles>();
  if (files == nullptr || index < 0 || static_cast<std::size_t>(index) >= files->Files.size()) {
    return {};
  }
  const QPixmap& picture = stage.Pictures().At(files->Files[static_cast<std::size_t>(index)]);
  return picture.isNull() ? QIcon() : QIcon(picture);
}

QSize PictureSizeOfList(Stage& stage, const ObjectRecord& object, Word images) {
  constexpr std::int64_t kUsual = 16;
  constexpr std::int64_t kLargest = 256;
  const ObjectRecord* const list = stage.RecordOf(object.Object(images));
  const auto side = [&](Word word) {
    const std::int64_t size = list == nullptr ? kUsual : list->Number(word);
    return static_cast<int>(std::clamp<std::int64_t>(size, 1, kLargest));
  };
  return {side(Word::Width), side(Word::Height)};
}

}  // namespace tarnwick::run
