// What a text typed into a row of the grid means.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "inspector/row_bindings.h"

namespace tarnwick {

/// A number as it is typed.
struct TypedNumber {
  enum class State : std::uint8_t {
    Unfinished,  ///< empty, a sign alone, the beginning of a name: nothing to store yet
    Number,
    Refused,  ///< more than any field can hold
    Unknown,  ///< a word that begins no colour's name
  };
  State Is = State::Unfinished;
  double Value = 0;
};

/// Reads the text of a number row. Decimal numbers count by their leading digits, a word is 0. A
/// colour row also takes the names of the language, `&H` with up to eight hexadecimal digits, `$`
/// with six digits as red, green and blue, and `$` with another number of digits as `&H`; the
/// beginning of a colour's name is unfinished there, another word unknown.
[[nodiscard]] TypedNumber ReadTypedNumber(RowShape shape, std::string_view text);

/// What a file row of a kind holds when it names no file: "(Default)" on a form, else "(None)".
[[nodiscard]] std::string_view NeutralFile(Kind kind) noexcept;
/// The text of a file row: "(none)" and "(default)" in any case are the neutral word of the kind,
/// and so is the emptied row of a form, which has an icon in any case.
[[nodiscard]] std::string FileRowText(std::string_view text, Kind kind);

}  // namespace tarnwick
