// FORMAT$: a text from values by a mask with % codes.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "basic/vm/value.h"

namespace tarnwick::basic {

/// What became of a mask.
struct FormatResult {
  std::string Text;
  std::string Error;  ///< why there is no text; "" when there is one
};

/// Puts `values` into `mask` in order. A code is `%[-][width][.precision]type`, `%%` one per cent
/// sign: d whole number (precision: least digits), u the same without sign, x hexadecimal,
/// e with exponent, f with decimals, g in the shortest form, n with decimals and groups,
/// m as money, s text (precision: most characters), p address of 8 hexadecimal digits.
/// Too few values, an unknown type, and a text longer than `limit` are errors.
[[nodiscard]] FormatResult FormatByMask(std::string_view mask, std::span<const Value> values,
                                        std::size_t limit);

}  // namespace tarnwick::basic
