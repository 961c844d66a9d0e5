// Numbers laid out in a chosen form: STRF$, the number codes of FORMAT$, and other bases.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick::basic {

/// Layouts of STRF$, by their numbers (ffGeneral and so on).
enum class NumberLayout : std::uint8_t { General, Exponent, Fixed, Number, Currency };

/// Most decimals and most significant digits of any layout.
inline constexpr int kMostDecimals = 18;

/// The number in a layout. It is first rounded to `precision` significant digits (1 to 17, other
/// values are brought there; below 1 means 15), halves away from 0.
/// `digits`: decimals for Fixed, Number and Currency (0 to 18); least digits of the exponent for
/// General and Exponent (0 to 4). A number with more digits in front of the point than `precision`
/// is written with an exponent.
[[nodiscard]] std::string LayOutNumber(double number, NumberLayout layout, std::int64_t precision,
                                       std::int64_t digits);

/// Digits of a whole number in base 2, 8 or 16, in upper case without zeros in front. A negative
/// one gives its bit pattern: of 32 bits where it fits, else of 64.
[[nodiscard]] std::string BitPatternText(std::int64_t number, int base);

/// The whole number that `text` begins with in a base of 2 to 36, blanks in front skipped, a sign
/// taken; 0 for none. Nothing when it does not fit 64 bits.
[[nodiscard]] std::optional<std::int64_t> NumberInBase(std::string_view text, int base);
/// A whole number in a base of 2 to 36, upper case, with its sign.
[[nodiscard]] std::string TextInBase(std::int64_t number, int base);

}  // namespace tarnwick::basic
