// Numbers as the system reads and prints them.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// The number at the head of a text: leading blanks, a sign, digits, fraction, exponent. 0 when
/// the text begins with no number. May be infinite for a giant exponent.
[[nodiscard]] double Val(std::string_view text) noexcept;
/// Nearest whole number, half to even.
[[nodiscard]] inline double RoundHalfEven(double value) noexcept {
  return std::nearbyint(value);
}
/// `value` rounded half to even; null when it does not fit the width.
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
/// `value` as single precision; null when it does not fit.
[[nodiscard]] inline std::optional<float> ToSingle(double value) noexcept {
  const bool fits = std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max());
  if (!fits) return std::nullopt;
  return static_cast<float>(value);
}
/// Reads the text's number into a field, rounded half to even. A number that does not fit leaves
/// the field as it is and returns false.
template <class Whole>
bool ReadNumber(std::string_view text, Whole& field) noexcept {
  const std::optional<Whole> whole = ToWhole<Whole>(Val(text));
  if (whole) field = *whole;
  return whole.has_value();
}

/// The most bytes that a number prints as.
inline constexpr std::size_t kMostNumberBytes = 64;
/// Writes a number as AppendNumber prints it to where there is room for kMostNumberBytes. Returns
/// the end of the text.
char* WriteNumber(char* to, std::int64_t value) noexcept;
char* WriteNumber(char* to, float value) noexcept;
/// Appends decimal digits without blanks.
void AppendNumber(std::string& out, std::int64_t value);
/// Appends a single: the shortest decimal form that reads back to the same single, "." as
/// separator, never an exponent; a whole number has no fraction, minus zero prints "0".
void AppendNumber(std::string& out, float value);
[[nodiscard]] std::string NumberText(std::int64_t value);
[[nodiscard]] std::string NumberText(float value);

}  // namespace tarnwick
