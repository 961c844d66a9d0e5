// Numbers as the system reads and prints them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// The number at the head of a text: leading blanks, a sign, digits, fraction, exponent. 0 when
/// the text begins with no number. May be infinite for a giant exponent.
[[nodiscard]] double Val(std::string_view text) noexcept;
/// Nearest whole number, half to even.
[[nodiscard]] double RoundHalfEven(double value) noexcept;
/// `value` rounded half to even, or nothing when it does not fit the width.
[[nodiscard]] std::optional<std::int16_t> ToInt16(double value) noexcept;
[[nodiscard]] std::optional<std::int32_t> ToInt32(double value) noexcept;
/// `value` as single precision, or nothing when it does not fit.
[[nodiscard]] std::optional<float> ToSingle(double value) noexcept;
/// The text's number into a field: rounded half to even; a number that does not fit leaves the
/// field as it is and answers false.
bool ReadNumber(std::string_view text, std::int16_t& field) noexcept;
bool ReadNumber(std::string_view text, std::int32_t& field) noexcept;

/// Decimal digits without blanks.
void AppendNumber(std::string& out, std::int64_t value);
/// Shortest decimal form that reads back to the same single, "." as separator, never an exponent;
/// a whole number has no fraction, minus zero prints "0".
void AppendNumber(std::string& out, float value);
[[nodiscard]] std::string NumberText(std::int64_t value);
[[nodiscard]] std::string NumberText(float value);

}  // namespace tarnwick
