// Numbers as text and back, as STR$, PRINT and VAL have them. "." is the decimal sign everywhere.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick::basic {

/// A number as STR$ and PRINT write it: no blanks, the fewest digits (at most 15) that read back,
/// "0.5" with its zero, from 1E15 on and below 1E-5 with an exponent such as "1E20" or "1.5E-7".
[[nodiscard]] std::string NumberText(double number);
/// A whole number, all digits.
[[nodiscard]] std::string IntegerText(std::int64_t number);

/// The number a text begins with: leading blanks skipped, sign, digits, fraction, exponent (E or
/// D), or &H, &O, &B with digits; it ends at the first other character. 0 when there is none.
[[nodiscard]] double NumberIn(std::string_view text);

/// The nearest whole number, half to even, held within 64 bits; 0 for what is no number.
[[nodiscard]] std::int64_t Rounded(double number);

}  // namespace tarnwick::basic
