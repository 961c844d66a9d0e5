#include "run/object_view.h"

#include "run/stage.h"

namespace tarnwick::run {

const ObjectRecord* ObjectView::Record() const {
  return stage_.RecordOf(id_);
}

void ObjectView::Retire() {
  if (Widget() != nullptr) Widget()->hide();
}

}  // namespace tarnwick::run
