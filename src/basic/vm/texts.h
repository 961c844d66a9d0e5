// Texts of the machine: joining, cutting, comparing.
#pragma once

#include <string_view>

#include "basic/vm/body.h"

namespace tarnwick::basic {

[[nodiscard]] inline std::string_view ViewOf(Slot text) {
  return text.B == nullptr ? std::string_view()
                           : std::string_view(static_cast<const TextBody*>(text.B)->Bytes);
}

/// A new text with a count of 1; null for "".
[[nodiscard]] Slot NewText(std::string bytes);
/// Replaces what a counted slot holds by a text.
void SetText(Slot& target, std::string bytes);

/// target = left + right. When `target` holds the left text itself and no one else does, it grows
/// in place: a loop of `s$ = s$ + x$` takes time in proportion to the text made. False, with
/// nothing changed, when the result is longer than the limit.
[[nodiscard]] bool Join(Slot& target, Slot left, Slot right, std::size_t limit);
/// Appends to a text in place, under the same rules.
[[nodiscard]] bool Append(Slot& target, Slot more, std::size_t limit);
/// The text without any occurrence of the other, found from the left, not rescanned.
[[nodiscard]] std::string Removed(std::string_view text, std::string_view part);
/// The character at a position from 1; "" outside.
[[nodiscard]] std::string_view CharacterOf(std::string_view text, std::int64_t position);
/// Cut or padded with blanks.
[[nodiscard]] std::string Padded(std::string_view text, std::size_t length);

}  // namespace tarnwick::basic
