#include "inspector/value_list.h"

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

}  // namespace tarnwick
