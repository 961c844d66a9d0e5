// The lines that build the menu bar and the popup menus.
#pragma once

#include "codegen/generation.h"

namespace tarnwick {

/// Writes the menu bar of the form. Titles and items are those of the whole project; the code is
/// looked up under the form's own number.
void WriteMenuBarInit(Generation& gen);

/// Writes the popup menu whose number the popup counter holds. `name` is the popup's name.
void WritePopUpInit(Generation& gen, std::string_view name);

}  // namespace tarnwick
