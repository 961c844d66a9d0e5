// Texts for fields of one line.
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// The text with each line break, and each other control character, as a blank; a pair of CR and LF
/// is one blank.
[[nodiscard]] std::string OneLineText(std::string_view text);

}  // namespace tarnwick
