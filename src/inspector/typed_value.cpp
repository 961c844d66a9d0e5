#include "inspector/typed_value.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "language/characters.h"
#include "language/colour_names.h"
#include "model/project_records.h"
#include "text/code_page.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr TypedNumber kUnfinished{};
constexpr TypedNumber kRefused{TypedNumber::State::Refused, 0};
constexpr TypedNumber kUnknown{TypedNumber::State::Unknown, 0};
constexpr std::size_t kRgbDigits = 6;
constexpr std::size_t kMostHexDigits = 8;

TypedNumber Number(double value) {
  if (!std::isfinite(value)) return kRefused;
  return {TypedNumber::State::Number, value};
}

/// The number of hexadecimal digits alone; nothing when there are none, others or too many.
std::optional<std::uint32_t> HexNumber(std::string_view digits) {
  constexpr int kBase = 16;
  if (digits.empty() || digits.size() > kMostHexDigits) return std::nullopt;
  std::uint32_t value = 0;
  for (const char c : digits) {
    const int digit = language::DigitValue(LowerByte(c));
    if (digit >= kBase) return std::nullopt;
    value = value * kBase + static_cast<std::uint32_t>(digit);
  }
  return value;
}

TypedNumber HexColour(std::string_view digits, bool may_be_rgb) {
  if (digits.size() > kMostHexDigits) return kRefused;
  const std::optional<std::uint32_t> number = HexNumber(digits);
  if (!number) return kUnfinished;
  if (may_be_rgb && digits.size() == kRgbDigits) {
    const std::uint32_t red = *number >> 16U;
    const std::uint32_t green = *number >> 8U & 0xFFU;
    const std::uint32_t blue = *number & 0xFFU;
    return Number(blue << 16U | green << 8U | red);
  }
  // Eight digits have the sign: colours of the system are negative.
  return Number(static_cast<std::int32_t>(*number));
}

TypedNumber ReadColour(std::string_view text) {
  if (StartsWithFolded(text, "&h")) return HexColour(text.substr(2), false);
  if (text.starts_with('$')) return HexColour(text.substr(1), true);
  if (const auto colour = language::ColourOfName(text)) return Number(*colour);
  const bool begins =
      text == "&" ||
      std::any_of(language::kColourNames.begin(), language::kColourNames.end(),
                  [text](const auto& row) { return StartsWithFolded(row.Name, text); });
  return begins ? kUnfinished : kUnknown;
}

bool BeginsANumber(std::string_view text) {
  return std::any_of(text.begin(), text.end(), language::IsDigit) &&
         (language::IsDigit(text.front()) || text.front() == '-' || text.front() == '+' ||
          text.front() == '.');
}

}  // namespace

TypedNumber ReadTypedNumber(RowShape shape, std::string_view text) {
  text = Trim(text);
  if (text.empty() || text == "-" || text == "+" || text == "." || text == "-.") {
    return kUnfinished;
  }
  if (shape == RowShape::Color && !BeginsANumber(text)) return ReadColour(text);
  return Number(Val(text));
}

std::string_view NeutralFile(Kind kind) noexcept {
  return kind == Kind::Form ? kDefaultFile : kNoPicture;
}

std::string FileRowText(std::string_view text, Kind kind) {
  const bool is_neutral = EqualsFolded(text, kNoPicture) || EqualsFolded(text, kDefaultFile) ||
                          (text.empty() && kind == Kind::Form);
  return std::string{is_neutral ? NeutralFile(kind) : text};
}

}  // namespace tarnwick
