// Numbers as the system reads and prints them.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace tarnwick {

/// A text of a few digits and nothing else, as nearly all numbers are; nothing for any other.
template <class Number>
[[nodiscard]] std::optional<Number> PlainDigits(std::string_view text) noexcept {
  // So many digits fit a whole number, or are exact in a double.
  constexpr std::size_t kMost = std::is_integral_v<Number> ? std::numeric_limits<Number>::digits10
                                                           : std::numeric_limits<double>::digits10;
  if (text.empty() || text.size() > kMost) return std::nullopt;
  std::int64_t value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return static_cast<Number>(value);
}
/// `Val` for any text.
[[nodiscard]] double ValOfAny(std::string_view text) noexcept;
/// The number at the head of a text: leading blanks, a sign, digits, fraction, exponent. 0 when
/// the text begins with no number. May be infinite for a giant exponent.
[[nodiscard]] inline double Val(std::string_view text) noexcept {
  const std::optional<double> plain = PlainDigits<double>(text);
  return plain ? *plain : ValOfAny(text);
}
/// Nearest whole number, half to even.
[[nodiscard]] inline double RoundHalfEven(double value) noexcept {
  return std::nearbyint(value);
}
/// `value` rounded half to even, or nothing when it does not fit the width.
template <class Whole>
[[nodiscard]] std::optional<Whole> ToWhole(double value) noexcept {
  const double rounded = RoundHalfEven(value);
  // Written so that a value that is no number fails too.
  const bool fits = rounded >= static_cast<double>(std::numeric_limits<Whole>::min()) &&
                    rounded <= static_cast<double>(std::numeric_limits<Whole>::max());
  if (!fits) return std::nullopt;
  return static_cast<Whole>(rounded);
}
[[nodiscard]] inline std::optional<std::int16_t> ToInt16(double value) noexcept {
  return ToWhole<std::int16_t>(value);
}
[[nodiscard]] inline std::optional<std::int32_t> ToInt32(double value) noexcept {
  return ToWhole<std::int32_t>(value);
}
/// `value` as single precision, or nothing when it does not fit.
[[nodiscard]] inline std::optional<float> ToSingle(double value) noexcept {
  const bool fits = std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max());
  if (!fits) return std::nullopt;
  return static_cast<float>(value);
}
/// The text's number into a field: rounded half to even; a number that does not fit leaves the
/// field as it is and answers false.
template <class Whole>
bool ReadNumber(std::string_view text, Whole& field) noexcept {
  const std::optional<Whole> number = PlainDigits<Whole>(text);
  const std::optional<Whole> whole = number ? number : ToWhole<Whole>(Val(text));
  if (whole) field = *whole;
  return whole.has_value();
}

/// No single prints longer: "-0." and 45 places with a digit or two behind.
inline constexpr std::size_t kMostSingle = 64;
/// Prints a single at `at`, where there must be room for kMostSingle bytes, and returns the place
/// behind it: the shortest decimal form that reads back to the same single, "." as separator, never
/// an exponent; a whole number has no fraction, minus zero prints "0".
char* PutNumber(char* at, float value) noexcept;
/// Decimal digits without blanks.
void AppendNumber(std::string& out, std::int64_t value);
/// A single as above.
void AppendNumber(std::string& out, float value);
[[nodiscard]] std::string NumberText(std::int64_t value);
[[nodiscard]] std::string NumberText(float value);

}  // namespace tarnwick
