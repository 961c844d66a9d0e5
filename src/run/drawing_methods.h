// The drawing methods of objects.
#pragma once

#include "run/drawing_surfaces.h"

namespace tarnwick::run {

/// Draws on the surface of an object; false when the method does not draw.
bool DrawByMethod(DrawingSurfaces& surfaces, const ObjectRecord& object, Word method,
                  std::span<Value> arguments, Value& result);

}  // namespace tarnwick::run
