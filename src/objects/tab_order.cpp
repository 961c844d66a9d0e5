#include "objects/tab_order.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tarnwick::objects {

std::vector<ObjectId> TabOrderOf(const ObjectWorld& world, const ObjectRecord& form) {
  using Key = std::pair<std::int64_t, std::uint64_t>;
  const auto key_of = [](const ObjectRecord& object) {
    const std::int64_t number = object.Number(Word::TabOrder);
    return Key{number < 0 ? std::numeric_limits<std::int64_t>::max() : number, object.Order};
  };
  std::vector<ObjectId> order;
  std::vector<const ObjectRecord*> waiting{&form};
  while (!waiting.empty()) {
    const ObjectRecord& object = *waiting.back();
    waiting.pop_back();
    if (&object != &form && object.Has(Word::TabOrder)) order.push_back(object.Id);
    std::vector<const ObjectRecord*> children;
    for (const ObjectId child : object.Children) {
      const ObjectRecord* const record = world.Find(child);
      if (record != nullptr && !record->Info().Has(ClassFlag::Window)) children.push_back(record);
    }
    std::sort(children.begin(), children.end(), [&](const auto* a, const auto* b) {
      return key_of(*a) > key_of(*b);  // the first one is taken from the end
    });
    waiting.insert(waiting.end(), children.begin(), children.end());
  }
  return order;
}

}  // namespace tarnwick::objects
