#include "run/owner_drawing.h"

#include <QMetaObject>

#include "run/drawing_surfaces.h"
#include "run/stage.h"

namespace tarnwick::run {

void OwnerDrawing::Want() {
  const ObjectRecord* const object = stage_.RecordOf(object_);
  if (wanted_ || object == nullptr || !object->IsHooked(event_)) return;
  wanted_ = true;
  QMetaObject::invokeMethod(
      this, [this] { stage_.Report([this] { Run(); }); }, Qt::QueuedConnection);
}

void OwnerDrawing::Run() {
  wanted_ = false;
  objects::ObjectWorld& world = stage_.World();
  if (world.Find(object_) == nullptr) return;
  stage_.Surfaces().Forget(object_);
  if (world.Find(rect_) == nullptr) {
    rect_ = world.Create(static_cast<basic::ClassId>(ObjectClass::QRect),
                         world.Find(object_)->FullName() + ".Rect", -1);
  }
  const std::vector<DrawnPart> parts = parts_();
  QRect needed;
  for (const DrawnPart& part : parts) needed |= part.Place;
  stage_.Surfaces().Prepare(object_, {needed.right() + 1, needed.bottom() + 1});
  for (const DrawnPart& part : parts) {
    objects::ObjectRecord* const rect = world.Find(rect_);
    if (rect == nullptr) return;
    rect->Put(Word::Left, Value::Integer(part.Place.left()));
    rect->Put(Word::Top, Value::Integer(part.Place.top()));
    rect->Put(Word::Right, Value::Integer(part.Place.right() + 1));
    rect->Put(Word::Bottom, Value::Integer(part.Place.bottom() + 1));
    std::vector<Value> arguments;
    for (const std::int64_t number : part.Numbers) arguments.push_back(Value::Integer(number));
    arguments.push_back(Value::Integer(part.State));
    arguments.push_back(Value::Object(rect_));
    if (!world.Raise(object_, event_, arguments) || world.Find(object_) == nullptr) return;
  }
  if (ObjectView* const view = stage_.ViewOf(object_)) view->ShowDrawing();
}

}  // namespace tarnwick::run
