#include "basic/vm/number_text.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace tarnwick::basic {
namespace {

constexpr int kMostDigits = 15;
constexpr int kLargestPlainExponent = 14;
constexpr int kSmallestPlainExponent = -5;

int DigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'Z') return c - 'A' + 10;
  if (c >= 'a' && c <= 'z') return c - 'a' + 10;
  return 99;
}

/// The number behind "&H", "&O" or "&B"; the text begins behind the letter.
double RadixNumber(std::string_view text, int base) {
  std::uint64_t number = 0;
  for (const char c : text) {
    const int digit = DigitValue(c);
    if (digit >= base) break;
    number = number * static_cast<unsigned>(base) + static_cast<unsigned>(digit);
  }
  return static_cast<double>(number);
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// "d.ddde+XX" split into its digits and its exponent.
struct Digits {
  std::string All;
  int Exponent = 0;
};

Digits DigitsOf(double number) {
  char buffer[40];
  // Shortest first; a number that needs more than 15 digits is cut to them.
  auto end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::scientific);
  std::string_view text(buffer, static_cast<std::size_t>(end.ptr - buffer));
  if (text.find('e') > kMostDigits + 1) {
    end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::scientific,
                        kMostDigits - 1);
    text = std::string_view(buffer, static_cast<std::size_t>(end.ptr - buffer));
  }
  Digits digits;
  const std::size_t e = text.find('e');
  for (const char c : text.substr(0, e)) {
    if (c != '.') digits.All += c;
  }
  const char* exponent = text.data() + e + 1;
  if (*exponent == '+') ++exponent;
  std::from_chars(exponent, text.data() + text.size(), digits.Exponent);
  while (digits.All.size() > 1 && digits.All.back() == '0') digits.All.pop_back();
  return digits;
}

}  // namespace

std::string IntegerText(std::int64_t number) {
  return std::to_string(number);
}

std::string NumberText(double number) {
  if (std::isnan(number)) return "NAN";
  if (std::isinf(number)) return number < 0 ? "-INF" : "INF";
  if (number == 0) return "0";
  const Digits digits = DigitsOf(std::fabs(number));
  std::string text = number < 0 ? "-" : "";
  const int exponent = digits.Exponent;
  if (exponent > kLargestPlainExponent || exponent < kSmallestPlainExponent) {
    text += digits.All[0];
    if (digits.All.size() > 1) text.append(".").append(digits.All, 1);
    return text + "E" + std::to_string(exponent);
  }
  if (exponent < 0) {
    return text + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits.All;
  }
  const auto whole = static_cast<std::size_t>(exponent) + 1;
  if (digits.All.size() <= whole) {
    return text + digits.All + std::string(whole - digits.All.size(), '0');
  }
  return text + digits.All.substr(0, whole) + "." + digits.All.substr(whole);
}

double NumberIn(std::string_view text) {
  std::size_t at = text.find_first_not_of(' ');
  if (at == std::string_view::npos) return 0;
  text.remove_prefix(at);
  bool negative = false;
  if (text[0] == '-' || text[0] == '+') {
    negative = text[0] == '-';
    text.remove_prefix(1);
  }
  if (text.size() > 2 && text[0] == '&') {
    const char letter = static_cast<char>(text[1] & ~0x20);
    const int base = letter == 'H' ? 16 : letter == 'O' ? 8 : letter == 'B' ? 2 : 0;
    if (base == 0) return 0;
    const double number = RadixNumber(text.substr(2), base);
    return negative ? -number : number;
  }
  // The part that is a number, with E for the exponent sign D.
  std::string number;
  at = 0;
  while (at < text.size() && IsDigit(text[at])) number += text[at++];
  if (at < text.size() && text[at] == '.') {
    number += text[at++];
    while (at < text.size() && IsDigit(text[at])) number += text[at++];
  }
  if (number.empty() || number == ".") return 0;
  if (at < text.size() && ((text[at] | 0x20) == 'e' || (text[at] | 0x20) == 'd')) {
    std::size_t digit = at + 1;
    std::string exponent = "e";
    if (digit < text.size() && (text[digit] == '-' || text[digit] == '+')) {
      exponent += text[digit++];
    }
    if (digit < text.size() && IsDigit(text[digit])) {
      while (digit < text.size() && IsDigit(text[digit])) exponent += text[digit++];
      number += exponent;
    }
  }
  if (number[0] == '.') number.insert(0, 1, '0');
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    // Too large or too near to 0: the sign of the exponent shows which.
    value = number.find("e-") != std::string::npos ? 0 : std::numeric_limits<double>::infinity();
  }
  return negative ? -value : value;
}

std::int64_t Rounded(double number) {
  if (std::isnan(number)) return 0;
  const double whole = std::nearbyint(number);
  if (whole >= 9223372036854775807.0) return std::numeric_limits<std::int64_t>::max();
  if (whole <= -9223372036854775808.0) return std::numeric_limits<std::int64_t>::min();
  return static_cast<std::int64_t>(whole);
}

}  // namespace tarnwick::basic
