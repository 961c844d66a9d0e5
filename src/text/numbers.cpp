#include "text/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace tarnwick {
namespace {

bool IsDigit(char c) noexcept {
  return c >= '0' && c <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t at) noexcept {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

/// The head of a text that is an unsigned number; "" when there is none.
std::string_view NumberHead(std::string_view text) noexcept {
  const std::size_t whole = SkipDigits(text, 0);
  std::size_t end = whole;
  std::size_t digits = whole;
  if (end < text.size() && text[end] == '.') {
    end = SkipDigits(text, whole + 1);
    digits += end - whole - 1;
  }
  if (digits == 0) return {};
  if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
    std::size_t exponent = end + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    // An "e" with no digits behind it belongs to what follows the number.
    const std::size_t exponent_end = SkipDigits(text, exponent);
    if (exponent_end > exponent) end = exponent_end;
  }
  return text.substr(0, end);
}

/// What a number outside the range of a double is nearest to. Its size follows from the exponent
/// and the place of its first digit that is not 0.
double OutOfRange(std::string_view number) noexcept {
  const std::size_t e = number.find_first_of("eE");
  const std::string_view digits = number.substr(0, e);
  const std::size_t first = digits.find_first_of("123456789");
  const std::size_t point = std::min(digits.find('.'), digits.size());
  const double place = static_cast<double>(point) - static_cast<double>(first);
  double exponent = 0;
  if (e != std::string_view::npos) {
    std::string_view text = number.substr(e + 1);
    const bool negative = text.front() == '-';
    if (negative || text.front() == '+') text.remove_prefix(1);
    std::int64_t value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    exponent = read.ec == std::errc() ? static_cast<double>(value)
                                      : std::numeric_limits<double>::infinity();
    if (negative) exponent = -exponent;
  }
  return place + exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

template <typename Whole>
std::optional<Whole> ToWhole(double value) noexcept {
  const double rounded = RoundHalfEven(value);
  // Written so that a value that is no number fails too.
  const bool fits = rounded >= static_cast<double>(std::numeric_limits<Whole>::min()) &&
                    rounded <= static_cast<double>(std::numeric_limits<Whole>::max());
  if (!fits) return std::nullopt;
  return static_cast<Whole>(rounded);
}

template <typename Whole>
bool ReadWhole(std::string_view text, Whole& field) noexcept {
  const std::optional<Whole> value = ToWhole<Whole>(Val(text));
  if (value) field = *value;
  return value.has_value();
}

/// A text of a few digits and nothing else, as nearly all are; nothing for any other.
std::optional<double> PlainDigits(std::string_view text) noexcept {
  constexpr std::size_t kExactDigits = 15;
  if (text.empty() || text.size() > kExactDigits) return std::nullopt;
  std::int64_t value = 0;
  for (const char c : text) {
    if (!IsDigit(c)) return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return static_cast<double>(value);
}

}  // namespace

double Val(std::string_view text) noexcept {
  const std::size_t start = text.find_first_not_of(' ');
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);
  if (const std::optional<double> plain = PlainDigits(text)) return *plain;
  const bool negative = text.front() == '-';
  if (negative || text.front() == '+') text.remove_prefix(1);
  const std::string_view number = NumberHead(text);
  if (number.empty()) return 0;
  double value = 0;
  const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
  if (read.ec == std::errc::result_out_of_range) value = OutOfRange(number);
  return negative ? -value : value;
}

double RoundHalfEven(double value) noexcept {
  return std::nearbyint(value);
}

std::optional<std::int16_t> ToInt16(double value) noexcept {
  return ToWhole<std::int16_t>(value);
}

std::optional<std::int32_t> ToInt32(double value) noexcept {
  return ToWhole<std::int32_t>(value);
}

std::optional<float> ToSingle(double value) noexcept {
  const bool fits = std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max());
  if (!fits) return std::nullopt;
  return static_cast<float>(value);
}

bool ReadNumber(std::string_view text, std::int16_t& field) noexcept {
  return ReadWhole(text, field);
}

bool ReadNumber(std::string_view text, std::int32_t& field) noexcept {
  return ReadWhole(text, field);
}

void AppendNumber(std::string& out, std::int64_t value) {
  std::array<char, 24> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), value);
  out.append(digits.data(), end.ptr);
}

void AppendNumber(std::string& out, float value) {
  if (value == 0.0F) {
    // Minus zero too.
    out += '0';
    return;
  }
  // The longest is the smallest single: "-0." and 45 places with a digit or two behind.
  std::array<char, 64> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), value, std::chars_format::fixed);
  out.append(digits.data(), end.ptr);
}

std::string NumberText(std::int64_t value) {
  std::string text;
  AppendNumber(text, value);
  return text;
}

std::string NumberText(float value) {
  std::string text;
  AppendNumber(text, value);
  return text;
}

}  // namespace tarnwick
