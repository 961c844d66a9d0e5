// How the text of a row stands in the form file.
#pragma once

#include <string>
#include <string_view>

#include "inspector/row_bindings.h"

namespace tarnwick {

/// The text with "?" for the characters that the form file takes for marks of its own: a bullet in
/// a caption would come back as a line break.
[[nodiscard]] std::string StorableText(const RowBinding& binding, Kind kind, std::string_view text);
/// False when the object's record would be torn by the text: a tag word beside "<" or ">" ends
/// the value, or takes that of another row or the code of an event.
[[nodiscard]] bool IsStorable(const RowBinding& binding, Kind kind, std::string_view text);

}  // namespace tarnwick
