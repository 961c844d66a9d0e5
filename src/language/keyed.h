// A table whose keys compare without regard to case.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "text/code_page.h"

namespace tarnwick::language {

/// Values under keys that compare without regard to case, found in constant time. A key is given
/// once: a second value under it is refused and the first one stays.
template <class Value>
class Keyed {
 public:
  /// False, and nothing changed, when the key is there already.
  bool Add(std::string_view key, Value value) {
    const auto [slot, added] = values_.try_emplace(std::string{key});
    if (added) slot->second = std::move(value);
    return added;
  }
  /// The value of a key; null when there is none. It stays where it is until the table goes.
  [[nodiscard]] const Value* Find(std::string_view key) const {
    const auto found = values_.find(key);
    return found == values_.end() ? nullptr : &found->second;
  }
  [[nodiscard]] std::size_t Size() const noexcept { return values_.size(); }
  [[nodiscard]] bool Empty() const noexcept { return values_.empty(); }

 private:
  std::unordered_map<std::string, Value, FoldedHash, FoldedEqual> values_;
};

using KeyedTexts = Keyed<std::string>;

}  // namespace tarnwick::language
