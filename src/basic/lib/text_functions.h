// The string functions of the language on plain byte strings. Positions count from 1, a position
// below 1 counts as 1. A function that returns a view returns a part of its argument.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick::basic {

/// The first `count` bytes; "" for a count below 1, all for one past the end.
[[nodiscard]] std::string_view LeftPart(std::string_view text, std::int64_t count);
/// The last `count` bytes.
[[nodiscard]] std::string_view RightPart(std::string_view text, std::int64_t count);
/// `count` bytes from `start` on; "" past the end.
[[nodiscard]] std::string_view MidPart(std::string_view text, std::int64_t start,
                                       std::int64_t count);
/// The text without blanks (0x20) at its start.
[[nodiscard]] std::string_view TrimLeft(std::string_view text);
/// The text without blanks (0x20) at its end.
[[nodiscard]] std::string_view TrimRight(std::string_view text);

/// Position of the first match that begins at `start` or later; 0 for none and for an empty part.
/// Takes time in proportion to both lengths, whatever the texts.
[[nodiscard]] std::int64_t FirstMatch(std::string_view text, std::string_view part,
                                      std::int64_t start = 1);
/// Position of the last match that begins at `start` or before it; 0 for none, for an empty part
/// and for a `start` below 1.
[[nodiscard]] std::int64_t LastMatch(std::string_view text, std::string_view part,
                                     std::int64_t start);
/// Matches that do not overlap, counted from the left; 0 for an empty part.
[[nodiscard]] std::int64_t CountMatches(std::string_view text, std::string_view part);

/// The text with `part` put in before `position`; behind the end when it is past it.
[[nodiscard]] std::string InsertText(std::string_view part, std::string_view text,
                                     std::int64_t position);
/// The text without `count` bytes from `start` on.
[[nodiscard]] std::string DeleteText(std::string_view text, std::int64_t start, std::int64_t count);
/// The text with `part` written over it from `position` on; it grows where `part` reaches beyond
/// its end, and a position past the end appends.
[[nodiscard]] std::string OverwriteText(std::string_view text, std::string_view part,
                                        std::int64_t position);
/// Length of the result of ReplaceMatches, without making it.
[[nodiscard]] std::size_t ReplacedLength(std::string_view text, std::string_view part,
                                         std::string_view with);
/// The text with every match of `part` changed to `with`, from left to right; what was put in is
/// not searched again. An empty part changes nothing.
[[nodiscard]] std::string ReplaceMatches(std::string_view text, std::string_view part,
                                         std::string_view with);
/// Part `number` (from 1) of a text cut at `separator`; "" when there are fewer. An empty
/// separator cuts nothing.
[[nodiscard]] std::string_view FieldOf(std::string_view text, std::string_view separator,
                                       std::int64_t number);
/// The first letter of each word in upper case, the others in lower case; words part at blanks.
[[nodiscard]] std::string WordCase(std::string_view text);
/// The bytes in opposite order.
[[nodiscard]] std::string Reversed(std::string_view text);

}  // namespace tarnwick::basic
