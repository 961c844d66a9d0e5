// The classic edge of fields, lists and text boxes.
#pragma once

#include "looks/object_faces.h"
#include "run/object_view.h"

class QFrame;

namespace tarnwick::run {

/// The edge that an object's BorderStyle gives it.
[[nodiscard]] looks::FieldEdge EdgeOf(const ObjectRecord& object);
/// The paper of an object.
[[nodiscard]] QColor PaperOf(const ObjectRecord& object);
/// Paints the field of an object: edge and paper.
void PaintField(QWidget& widget, const ObjectView& view);

}  // namespace tarnwick::run
