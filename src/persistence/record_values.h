// What the lines of a form file say, as places in its text.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "model/kinds.h"
#include "persistence/line_bytes.h"
#include "persistence/record_tags.h"

namespace tarnwick {

/// The values as the lines so far left them: a line changes those that it has.
struct RecordValues {
  std::string_view KindWord;       ///< in the first square brackets; "" when the line has none
  std::optional<Kind> ObjectKind;  ///< of that word
  std::string_view Number;         ///< in the first round brackets of the last line that had them
  std::string_view Name;           ///< in the first curly brackets, likewise
  std::array<std::string_view, kTagCount> OfTag;
  Bytes Seen{};  ///< of all bytes looked at so far, each bit that one of them had
};

}  // namespace tarnwick
