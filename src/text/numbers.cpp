#include "text/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
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

/// The value of a text that is a few digits and nothing else, as nearly all are.
std::optional<std::int64_t> ShortWhole(std::string_view text) noexcept {
  constexpr std::size_t kMostDigits = 15;  // a double holds all whole numbers of that length
  if (text.empty() || text.size() > kMostDigits) return std::nullopt;
  std::int64_t value = 0;
  for (const char c : text) {
    if (!IsDigit(c)) return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return value;
}

/// What a number outside the range of a double is nearest to. Its size follows from the exponent
/// and the position of its first digit that is not 0.
double OutOfRange(std::string_view number) noexcept {
  const std::size_t e = number.find_first_of("eE");
  const std::string_view digits = number.substr(0, e);
  const std::size_t first = digits.find_first_of("123456789");
  const std::size_t point = std::min(digits.find('.'), digits.size());
  const double magnitude = static_cast<double>(point) - static_cast<double>(first);
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
  return magnitude + exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

}  // namespace

double Val(std::string_view text) noexcept {
  if (const std::optional<std::int64_t> whole = ShortWhole(text)) {
    return static_cast<double>(*whole);
  }
  const std::size_t start = text.find_first_not_of(' ');
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);
  const bool negative = text.front() == '-';
  if (negative || text.front() == '+') text.remove_prefix(1);
  const std::string_view number = NumberHead(text);
  if (number.empty()) return 0;
  double value = 0;
  const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
  if (read.ec == std::errc::result_out_of_range) value = OutOfRange(number);
  return negative ? -value : value;
}

char* WriteNumber(char* to, std::int64_t value) noexcept {
  return std::to_chars(to, to + kMostNumberBytes, value).ptr;
}

char* WriteNumber(char* to, float value) noexcept {
  // Nearly every single is a whole number, which prints faster as one. Minus zero is 0 here.
  if (const auto whole = ToInt32(static_cast<double>(value));
      whole && std::abs(value) < 16777216.0F && static_cast<float>(*whole) == value) {
    return WriteNumber(to, std::int64_t{*whole});
  }
  // No single prints longer than "-0." and 47 places.
  return std::to_chars(to, to + kMostNumberBytes, value, std::chars_format::fixed).ptr;
}

void AppendNumber(std::string& out, std::int64_t value) {
  if (value >= 0 && value <= 9) {
    out += static_cast<char>('0' + value);
    return;
  }
  std::array<char, kMostNumberBytes> bytes{};
  out.append(bytes.data(), WriteNumber(bytes.data(), value));
}

void AppendNumber(std::string& out, float value) {
  std::array<char, kMostNumberBytes> bytes{};
  out.append(bytes.data(), WriteNumber(bytes.data(), value));
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
