// The order in which the Tab key goes through the objects of a form.
#pragma once

#include <vector>

#include "objects/object_world.h"

namespace tarnwick::objects {

/// The objects of a form that can have the focus, in the order of the Tab key: siblings by
/// TabOrder, equal numbers in the order in which they were made, those without a number last; what
/// stands on an object comes straight behind it. Whether they are visible and enabled is left to
/// the widgets.
[[nodiscard]] std::vector<ObjectId> TabOrderOf(const ObjectWorld& world, const ObjectRecord& form);

}  // namespace tarnwick::objects
