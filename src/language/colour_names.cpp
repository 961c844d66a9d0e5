#include "language/colour_names.h"

#include "text/code_page.h"

namespace tarnwick::language {

std::optional<std::int32_t> ColourOfName(std::string_view name) noexcept {
  for (const ColourName& colour : kColourNames) {
    if (EqualsFolded(colour.Name, name)) return colour.Value;
  }
  return std::nullopt;
}

std::string_view NameOfColour(std::int32_t colour) noexcept {
  for (const ColourName& known : kColourNames) {
    if (known.Value == colour) return known.Name;
  }
  return {};
}

}  // namespace tarnwick::language
