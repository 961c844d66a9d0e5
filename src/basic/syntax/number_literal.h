// The value of a number as it stands in the source.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tarnwick::basic {

/// `Whole` is set for a number without fraction and exponent that fits 64 bits; `Real` always.
struct NumberLiteral {
  std::optional<std::int64_t> Whole;
  double Real = 0;
};

/// Reads the bytes of a number token: decimal with fraction and exponent (E or D), &H, &B, &O
/// (which may be doubled, as in "&H&H1F"), with or without a type suffix. "!" and "#" make it Real.
[[nodiscard]] NumberLiteral NumberOf(std::string_view token);

}  // namespace tarnwick::basic
