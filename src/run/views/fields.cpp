#include "run/views/fields.h"

#include <QPainter>

#include "looks/platform_colors.h"

namespace tarnwick::run {

looks::FieldEdge EdgeOf(const ObjectRecord& object) {
  const bool none = object.Has(Word::BorderStyle) && object.Number(Word::BorderStyle) == 0;
  return none ? looks::FieldEdge::None : looks::FieldEdge::Sunken;
}

QColor PaperOf(const ObjectRecord& object) {
  return looks::ColorOf(static_cast<std::int32_t>(object.Number(Word::Color)));
}

void PaintField(QWidget& widget, const ObjectView& view) {
  const ObjectRecord* const object = view.Record();
  if (object == nullptr) return;
  QPainter painter(&widget);
  looks::DrawField(painter, widget.rect(), EdgeOf(*object), PaperOf(*object));
}

}  // namespace tarnwick::run
