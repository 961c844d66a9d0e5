// Walks over the controls of a form.
#pragma once

#include <cstddef>
#include <vector>

#include "model/design_form.h"
#include "text/fetch_ahead.h"

namespace tarnwick {

/// What a walk reads of each control.
enum class ControlPart {
  Head,  ///< kind, index, name and whether it is there to be seen
  Whole,
};

/// Calls `use` with each of a row of references, empty ones included, from place `first` on. A
/// large form does not fit the processor's caches, so the controls further on are fetched
/// meanwhile.
template <ControlPart part, class Use>
void WalkControls(const std::vector<ControlRef>& controls, std::size_t first, Use use) {
  constexpr bool whole = part == ControlPart::Whole;
  constexpr std::size_t kAhead = whole ? 6 : 8;
  constexpr std::size_t kSize = whole ? sizeof(DesignControl) : 1;
  for (std::size_t i = first; i < controls.size(); ++i) {
    if (i + kAhead < controls.size()) FetchAhead(controls[i + kAhead].get(), kSize);
    use(controls[i]);
  }
}

}  // namespace tarnwick
