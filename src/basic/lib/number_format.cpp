#include "basic/lib/number_format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "basic/semantics.h"
#include "basic/vm/number_text.h"

namespace tarnwick::basic {
namespace {

/// A number as 0.DIGITS times 10 to the power of Point; "" and 0 for zero. No zeros at the end.
struct Decimal {
  bool Negative = false;
  std::string Digits;
  int Point = 0;
};

void DropZeros(Decimal& decimal) {
  while (!decimal.Digits.empty() && decimal.Digits.back() == '0') decimal.Digits.pop_back();
  if (decimal.Digits.empty()) decimal.Point = 0;
}

/// Keeps `count` digits, rounding a half away from 0. Below 0 leaves none.
void RoundTo(Decimal& decimal, int count) {
  if (count >= static_cast<int>(decimal.Digits.size())) return;
  if (count < 0) {
    decimal.Digits.clear();
    decimal.Point = 0;
    return;
  }
  const auto kept = static_cast<std::size_t>(count);
  bool up = decimal.Digits[kept] >= '5';
  decimal.Digits.resize(kept);
  for (std::size_t i = kept; up && i > 0; --i) {
    char& digit = decimal.Digits[i - 1];
    up = digit == '9';
    digit = up ? '0' : static_cast<char>(digit + 1);
  }
  if (up) {
    decimal.Digits.insert(decimal.Digits.begin(), '1');
    ++decimal.Point;
  }
  DropZeros(decimal);
}

/// The number with so many digits that rounding them once more is rounding the number itself.
Decimal DecimalOf(double number) {
  constexpr int kAllDigits = 40;
  std::array<char, 64> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(number),
                                 std::chars_format::scientific, kAllDigits - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
  const std::size_t exponent_at = text.find('e');
  Decimal decimal;
  decimal.Negative = number < 0;
  for (const char c : text.substr(0, exponent_at)) {
    if (c != '.') decimal.Digits += c;
  }
  std::string_view exponent = text.substr(exponent_at + 1);
  if (exponent.front() == '+') exponent.remove_prefix(1);
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.Point);
  ++decimal.Point;
  DropZeros(decimal);
  return decimal;
}

/// Digit `place` of the number: 1 is the first behind the point, 0 the one in front of it.
char DigitAt(const Decimal& decimal, int place) {
  const int index = decimal.Point + place - 1;
  return index >= 0 && index < static_cast<int>(decimal.Digits.size())
             ? decimal.Digits[static_cast<std::size_t>(index)]
             : '0';
}

std::string WholePart(const Decimal& decimal, bool groups) {
  std::string text;
  for (int place = std::max(decimal.Point, 1); place > 0; --place) {
    text += DigitAt(decimal, 1 - place);
    if (groups && place > 1 && place % 3 == 1) text += ',';
  }
  return text;
}

std::string FixedText(Decimal decimal, int decimals, bool groups) {
  RoundTo(decimal, decimal.Point + decimals);
  std::string text = WholePart(decimal, groups);
  if (decimals > 0) text += '.';
  for (int place = 1; place <= decimals; ++place) text += DigitAt(decimal, place);
  // What rounds to 0 has no sign.
  return decimal.Negative && !decimal.Digits.empty() ? "-" + text : text;
}

std::string ExponentDigits(int exponent, int least) {
  const std::string digits = std::to_string(std::abs(exponent));
  const auto width = static_cast<std::size_t>(std::max(least, 1));
  return std::string(width - std::min(width, digits.size()), '0') + digits;
}

/// "1.2340E+003": `precision` digits in all.
std::string ExponentText(const Decimal& decimal, int precision, int least) {
  std::string text = decimal.Negative ? "-" : "";
  text += decimal.Digits.empty() ? '0' : decimal.Digits[0];
  if (precision > 1) text += '.';
  for (std::size_t i = 1; i < static_cast<std::size_t>(precision); ++i) {
    text += i < decimal.Digits.size() ? decimal.Digits[i] : '0';
  }
  const int exponent = decimal.Digits.empty() ? 0 : decimal.Point - 1;
  return text + 'E' + (exponent < 0 ? '-' : '+') + ExponentDigits(exponent, least);
}

/// As STR$ writes it, with the digits that are left.
std::string GeneralText(const Decimal& decimal, int precision, int least) {
  constexpr int kSmallestPoint = -4;  // 0.00001
  if (decimal.Point <= precision && decimal.Point >= kSmallestPoint) {
    const int decimals = std::max(0, static_cast<int>(decimal.Digits.size()) - decimal.Point);
    return FixedText(decimal, decimals, false);
  }
  std::string text = decimal.Negative ? "-" : "";
  text += decimal.Digits[0];
  if (decimal.Digits.size() > 1) text.append(".").append(decimal.Digits, 1);
  const int exponent = decimal.Point - 1;
  return text + (exponent < 0 ? "E-" : "E") + ExponentDigits(exponent, least);
}

char DigitOf(unsigned value) {
  return static_cast<char>(value < 10 ? '0' + value : 'A' + (value - 10));
}

std::string Digits(std::uint64_t number, unsigned base) {
  std::string text;
  do {
    text += DigitOf(static_cast<unsigned>(number % base));
    number /= base;
  } while (number != 0);
  std::reverse(text.begin(), text.end());
  return text;
}

unsigned ValueOf(char digit) {
  if (digit >= '0' && digit <= '9') return static_cast<unsigned>(digit - '0');
  if (digit >= 'A' && digit <= 'Z') return static_cast<unsigned>(digit - 'A') + 10;
  if (digit >= 'a' && digit <= 'z') return static_cast<unsigned>(digit - 'a') + 10;
  return std::numeric_limits<unsigned>::max();
}

/// The size of a number, also of the lowest one, which has no positive of its width.
std::uint64_t Magnitude(std::int64_t number) {
  const auto bits = static_cast<std::uint64_t>(number);
  return number < 0 ? std::uint64_t{0} - bits : bits;
}

}  // namespace

std::string LayOutNumber(double number, NumberLayout layout, std::int64_t precision,
                         std::int64_t digits) {
  if (!std::isfinite(number)) return NumberText(number);
  constexpr std::int64_t kMostDigits = std::numeric_limits<double>::max_digits10;
  const auto significant =
      static_cast<int>(precision < 1 ? kDefaultDigits : std::min(precision, kMostDigits));
  const auto decimals =
      static_cast<int>(std::clamp<std::int64_t>(digits, std::int64_t{0}, kMostDecimals));
  const int exponent_digits = std::min(decimals, 4);
  Decimal decimal = DecimalOf(number);
  RoundTo(decimal, significant);
  if (layout == NumberLayout::General) return GeneralText(decimal, significant, exponent_digits);
  if (layout == NumberLayout::Exponent || decimal.Point > significant) {
    return ExponentText(decimal, significant, exponent_digits);
  }
  if (layout == NumberLayout::Fixed) return FixedText(decimal, decimals, false);
  std::string text = FixedText(decimal, decimals, true);
  if (layout == NumberLayout::Number) return text;
  const std::string sign(1, kCurrencySign);
  return text.front() == '-' ? "(" + sign + text.substr(1) + ")" : sign + text;
}

std::string BitPatternText(std::int64_t number, int base) {
  auto bits = static_cast<std::uint64_t>(number);
  if (number < 0 && number >= std::numeric_limits<std::int32_t>::min()) bits &= 0xFFFFFFFFU;
  return Digits(bits, static_cast<unsigned>(base));
}

std::optional<std::int64_t> NumberInBase(std::string_view text, int base) {
  text.remove_prefix(std::min(text.size(), text.find_first_not_of(' ')));
  const bool negative = !text.empty() && text.front() == '-';
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  constexpr std::uint64_t kMost = std::numeric_limits<std::int64_t>::max();
  const auto step = static_cast<unsigned>(base);
  std::uint64_t number = 0;
  for (const char c : text) {
    const unsigned digit = ValueOf(c);
    if (digit >= step) break;
    if (number > (kMost - digit) / step) return std::nullopt;
    number = number * step + digit;
  }
  const auto value = static_cast<std::int64_t>(number);
  return negative ? -value : value;
}

std::string TextInBase(std::int64_t number, int base) {
  const std::string digits = Digits(Magnitude(number), static_cast<unsigned>(base));
  return number < 0 ? "-" + digits : digits;
}

}  // namespace tarnwick::basic
