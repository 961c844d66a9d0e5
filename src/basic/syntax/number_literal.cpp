#include "basic/syntax/number_literal.h"

#include <algorithm>
#include <charconv>
#include <string>

#include "language/characters.h"
#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

NumberLiteral RadixNumber(std::string_view token) {
  int base = 10;
  while (token.size() >= 2 && token.front() == '&') {
    const char radix = LowerByte(token[1]);
    base = radix == 'h' ? 16 : radix == 'b' ? 2 : 8;
    token.remove_prefix(2);
  }
  std::uint64_t value = 0;
  for (const char c : token) {
    if (language::DigitValue(c) >= base) break;
    value = value * static_cast<std::uint64_t>(base) +
            static_cast<std::uint64_t>(language::DigitValue(c));
  }
  const auto whole = static_cast<std::int64_t>(value);
  return {whole, static_cast<double>(whole)};
}

}  // namespace

NumberLiteral NumberOf(std::string_view token) {
  if (!token.empty() && token.front() == '&') return RadixNumber(token);
  const bool plain = std::all_of(token.begin(), token.end(), language::IsDigit);
  constexpr std::size_t kSureDigits = 18;  // so many always fit
  if (plain && token.size() <= kSureDigits) {
    std::int64_t value = 0;
    for (const char digit : token) value = value * 10 + (digit - '0');
    return {value, static_cast<double>(value)};
  }
  const bool real = !plain && token.find_first_of(".eEdD!#") != std::string_view::npos;
  while (!plain && !token.empty() &&
         std::string_view("%&!#").find(token.back()) != std::string_view::npos) {
    token.remove_suffix(1);
  }
  NumberLiteral number;
  std::int64_t whole = 0;
  const char* const end = token.data() + token.size();
  if (!real && std::from_chars(token.data(), end, whole).ec == std::errc()) {
    number.Whole = whole;
    number.Real = static_cast<double>(whole);
    return number;
  }
  std::string digits(token);
  std::replace_if(
      digits.begin(), digits.end(), [](char c) { return c == 'd' || c == 'D'; }, 'e');
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number.Real);
  if (read.ec == std::errc::result_out_of_range) {
    const std::size_t exponent = digits.find_first_of("eE");
    const bool small =
        exponent != std::string::npos && digits.find('-', exponent) != std::string::npos;
    number.Real = small ? 0 : 1.7976931348623157e308;
  }
  return number;
}

}  // namespace tarnwick::basic
