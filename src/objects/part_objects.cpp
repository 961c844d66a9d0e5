#include "objects/part_objects.h"

namespace tarnwick::objects {

bool HasPart(ObjectWorld& world, const ObjectRecord& owner, std::string_view what,
             std::size_t count, std::int64_t index) {
  if (index >= 0 && index < static_cast<std::int64_t>(count)) return true;
  return world.Fail(owner.FullName() + " has no " + std::string(what) + " " +
                    std::to_string(index) + ": it has " + std::to_string(count) +
                    ", counted from 0");
}

ObjectId PartObject(ObjectWorld& world, ObjectRecord& owner, std::vector<ObjectId>& known,
                    ObjectClass kind, std::string_view what, std::int64_t index) {
  const auto at = static_cast<std::size_t>(index);
  if (at >= known.size()) known.resize(at + 1, ObjectId::None);
  if (world.Find(known[at]) != nullptr) return known[at];
  const ObjectId made =
      world.Create(static_cast<basic::ClassId>(kind), owner.FullName() + "." + std::string(what),
                   static_cast<int>(index));
  world.Find(made)->Parent = owner.Id;
  owner.Children.push_back(made);
  return known[at] = made;
}

}  // namespace tarnwick::objects
