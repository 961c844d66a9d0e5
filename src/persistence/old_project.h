// Projects of the former version: one file that holds one form.
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// The text of an old project in the present form format.
[[nodiscard]] std::string ConvertOldText(std::string_view old_text);

}  // namespace tarnwick
