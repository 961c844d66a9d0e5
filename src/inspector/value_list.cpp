#include "inspector/value_list.h"

#include <algorithm>
#include <cstddef>

#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick {

int ValueList::IndexOf(std::string_view text) const noexcept {
  for (std::size_t i = 0; i < values_.size(); ++i) {
    if (EqualsFolded(Trim(values_[i]), Trim(text))) return static_cast<int>(i);
  }
  return -1;
}

bool ValueList::Begins(std::string_view text) const noexcept {
  return std::any_of(values_.begin(), values_.end(), [text](const std::string& value) {
    return StartsWithFolded(Trim(value), Trim(text));
  });
}

}  // namespace tarnwick
