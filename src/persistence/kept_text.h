// Whether a text comes back from a form file as it was.
#pragma once

#include <string>
#include <string_view>

#include "model/kinds.h"
#include "persistence/record_tags.h"

namespace tarnwick {

/// The text with "?" for each byte that the stored form of a tag reads as something else: the
/// stored line break and the stored commas.
[[nodiscard]] std::string KeptBytes(std::string_view text, Tag tag);

/// True when a record of the kind that holds the text under the tag reads back with it and with all
/// its other values. A text that holds a tag word beside "<" or ">" can end its own value, or take
/// the value of another tag, such as the code of an event.
[[nodiscard]] bool RecordKeeps(Kind kind, Tag tag, std::string_view text);

}  // namespace tarnwick
