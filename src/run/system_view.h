// Screen, clipboard and application: objects without a widget.
#pragma once

#include <span>

#include "run/object_view.h"

namespace tarnwick::run {

void ApplySystem(Stage& stage, const ObjectRecord& object, Word property);
bool InvokeSystem(Stage& stage, const ObjectRecord& object, Word method, std::span<Value> arguments,
                  Value& result);
bool LiveSystem(Stage& stage, const ObjectRecord& object, Word property,
                std::span<const Value> index, Value& out);

}  // namespace tarnwick::run
