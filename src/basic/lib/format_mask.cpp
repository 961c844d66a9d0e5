#include "basic/lib/format_mask.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>

#include "basic/lib/number_format.h"
#include "basic/semantics.h"
#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

/// One % code of a mask.
struct Code {
  bool Left = false;
  std::size_t Width = 0;
  std::optional<std::size_t> Precision;
  char Type = '\0';  ///< lower case; zero at the end of the mask
};

/// The digits at `at`, held at `limit`; none gives nothing.
std::optional<std::size_t> TakeDigits(std::string_view text, std::size_t& at, std::size_t limit) {
  std::optional<std::size_t> number;
  for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) {
    const auto digit = static_cast<std::size_t>(text[at] - '0');
    number = std::min(limit + 1, number.value_or(0) * 10 + digit);
  }
  return number;
}

/// The code whose "%" stands in front of `at`; `at` moves behind it.
Code TakeCode(std::string_view mask, std::size_t& at, std::size_t limit) {
  Code code;
  if (at < mask.size() && mask[at] == '-') {
    code.Left = true;
    ++at;
  }
  code.Width = TakeDigits(mask, at, limit).value_or(0);
  if (at < mask.size() && mask[at] == '.') {
    ++at;
    code.Precision = TakeDigits(mask, at, limit).value_or(0);
  }
  if (at < mask.size()) code.Type = LowerByte(mask[at++]);
  return code;
}

std::string LeastDigits(std::string digits, const Code& code) {
  const bool negative = !digits.empty() && digits.front() == '-';
  const std::size_t count = digits.size() - (negative ? 1 : 0);
  const std::size_t least = code.Precision.value_or(0);
  if (count < least) digits.insert(negative ? 1 : 0, least - count, '0');
  return digits;
}

std::string Unsigned(std::int64_t number) {
  const bool narrow = number < 0 && number >= std::numeric_limits<std::int32_t>::min();
  auto bits = static_cast<std::uint64_t>(number);
  if (narrow) bits &= 0xFFFFFFFFU;
  return std::to_string(bits);
}

std::string Real(const Value& value, NumberLayout layout, const Code& code) {
  constexpr int kExponentDigits = 3;
  const bool decimals = layout != NumberLayout::General && layout != NumberLayout::Exponent;
  const auto precision = static_cast<std::int64_t>(
      code.Precision.value_or(static_cast<std::size_t>(decimals ? kDefaultDecimals : 0)));
  if (decimals) return LayOutNumber(value.AsNumber(), layout, kDefaultDigits, precision);
  return LayOutNumber(value.AsNumber(), layout, precision,
                      layout == NumberLayout::Exponent ? kExponentDigits : 0);
}

/// The value in the form of the code's type; nothing for an unknown type.
std::optional<std::string> TextOf(const Value& value, const Code& code) {
  switch (code.Type) {
    case 'd':
      return LeastDigits(std::to_string(value.AsInteger()), code);
    case 'u':
      return LeastDigits(Unsigned(value.AsInteger()), code);
    case 'x':
      return LeastDigits(BitPatternText(value.AsInteger(), 16), code);
    case 'p':
      return LeastDigits(BitPatternText(value.AsInteger(), 16), Code{false, 0, 8, 'p'});
    case 'e':
      return Real(value, NumberLayout::Exponent, code);
    case 'f':
      return Real(value, NumberLayout::Fixed, code);
    case 'g':
      return Real(value, NumberLayout::General, code);
    case 'n':
      return Real(value, NumberLayout::Number, code);
    case 'm':
      return Real(value, NumberLayout::Currency, code);
    case 's': {
      const std::string text = value.AsText();
      return text.substr(0, code.Precision.value_or(text.size()));
    }
    default:
      return std::nullopt;
  }
}

}  // namespace

FormatResult FormatByMask(std::string_view mask, std::span<const Value> values, std::size_t limit) {
  FormatResult result;
  std::string& text = result.Text;
  std::size_t next = 0;
  for (std::size_t at = 0; at < mask.size();) {
    const std::size_t percent = std::min(mask.size(), mask.find('%', at));
    text.append(mask.substr(at, percent - at));
    at = percent + 1;
    if (percent == mask.size()) break;
    if (at < mask.size() && mask[at] == '%') {
      text += '%';
      ++at;
      continue;
    }
    const Code code = TakeCode(mask, at, limit);
    const std::string written(mask.substr(percent, at - percent));
    if (code.Width > limit || code.Precision.value_or(0) > limit) {
      return {"", "FORMAT$: \"" + written + "\" is wider than a string can be"};
    }
    if (next == values.size()) return {"", "FORMAT$ has no value for \"" + written + "\""};
    const std::optional<std::string> part = TextOf(values[next++], code);
    if (!part) return {"", "FORMAT$ knows no code \"" + written + "\""};
    const std::size_t fill = code.Width > part->size() ? code.Width - part->size() : 0;
    if (text.size() > limit || part->size() + fill > limit - text.size()) {
      return {"", "FORMAT$: the text would be longer than a string can be"};
    }
    if (!code.Left) text.append(fill, ' ');
    text += *part;
    if (code.Left) text.append(fill, ' ');
  }
  return result;
}

}  // namespace tarnwick::basic
