// Objects that stand for parts of others: panels, items, columns, nodes.
#pragma once

#include <string_view>
#include <vector>

#include "objects/object_world.h"

namespace tarnwick::objects {

/// True when a list of `count` parts has one of this index; else the world has the reason.
bool HasPart(ObjectWorld& world, const ObjectRecord& owner, std::string_view what,
             std::size_t count, std::int64_t index);
/// The object for the part of an index, which is made when it is asked for first and goes with its
/// owner. `known` keeps them. It stands for the part at that index.
[[nodiscard]] ObjectId PartObject(ObjectWorld& world, ObjectRecord& owner,
                                  std::vector<ObjectId>& known, ObjectClass kind,
                                  std::string_view what, std::int64_t index);

}  // namespace tarnwick::objects
