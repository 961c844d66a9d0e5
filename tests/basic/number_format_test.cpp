#include "basic/lib/number_format.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "basic/vm/number_text.h"

namespace tarnwick::basic {
namespace {

TEST(NumberFormat, FixedAgreesWithTheLibraryAwayFromHalves) {
  std::mt19937_64 random(5);
  for (int round = 0; round < 2000; ++round) {
    const double number = static_cast<double>(random() % 2000000007U) / 1000003.0 - 900;
    const int decimals = static_cast<int>(random() % 5);
    std::array<char, 64> expected{};
    std::snprintf(expected.data(), expected.size(), "%.*f", decimals, number);
    std::string text = expected.data();
    if (text.find_first_not_of("-0.") == std::string::npos && text[0] == '-') text.erase(0, 1);
    EXPECT_EQ(LayOutNumber(number, NumberLayout::Fixed, 18, decimals), text) << number;
  }
}

TEST(NumberFormat, GeneralWithFifteenDigitsIsWhatStrGives) {
  std::mt19937_64 random(9);
  for (int round = 0; round < 5000; ++round) {
    const double number = std::bit_cast<double>(random());
    if (!std::isfinite(number)) continue;
    EXPECT_EQ(LayOutNumber(number, NumberLayout::General, 15, 0), NumberText(number));
  }
}

TEST(NumberFormat, AnyArgumentsGiveAText) {
  const std::array<double, 9> numbers = {0,    -0.0, 1e308,    -1e308,      5e-324,
                                         1e15, 0.5,  INFINITY, std::nan("")};
  for (const double number : numbers) {
    for (int layout = 0; layout <= 4; ++layout) {
      for (const std::int64_t precision : {INT64_MIN, std::int64_t{-1}, std::int64_t{0},
                                           std::int64_t{1}, std::int64_t{18}, INT64_MAX}) {
        for (const std::int64_t digits :
             {INT64_MIN, std::int64_t{0}, std::int64_t{4}, std::int64_t{18}, INT64_MAX}) {
          const std::string text =
              LayOutNumber(number, static_cast<NumberLayout>(layout), precision, digits);
          EXPECT_FALSE(text.empty());
          EXPECT_LT(text.size(), 64U);
        }
      }
    }
  }
}

TEST(NumberFormat, ABaseAndBackIsTheNumber) {
  std::mt19937_64 random(2);
  for (int base = 2; base <= 36; ++base) {
    for (int round = 0; round < 50; ++round) {
      const auto number = static_cast<std::int64_t>(random()) / (round + 1);
      EXPECT_EQ(NumberInBase(TextInBase(number, base), base), number);
    }
  }
}

TEST(NumberFormat, TheLowestNumberHasDigits) {
  EXPECT_EQ(TextInBase(INT64_MIN, 10), "-9223372036854775808");
  EXPECT_EQ(BitPatternText(INT64_MIN, 16), "8000000000000000");
}

}  // namespace
}  // namespace tarnwick::basic
