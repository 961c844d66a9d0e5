#include "text/numbers.h"

#include <cmath>
#include <cstdlib>
#include <limits>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Numbers, ValReadsTheNumberAtTheHead) {
  EXPECT_EQ(Val("12"), 12);
  EXPECT_EQ(Val("12 pixels"), 12);
  EXPECT_EQ(Val("1.5x"), 1.5);
  EXPECT_EQ(Val("-3"), -3);
  EXPECT_EQ(Val("+3"), 3);
  EXPECT_EQ(Val("   7"), 7);
  EXPECT_EQ(Val("1.2.3"), 1.2);
}

TEST(Numbers, ValReadsFractionsWithoutDigitsOnOneSide) {
  EXPECT_EQ(Val(".5"), 0.5);
  EXPECT_EQ(Val("5."), 5);
  EXPECT_EQ(Val("-.25"), -0.25);
}

TEST(Numbers, ValReadsExponents) {
  EXPECT_EQ(Val("1e3"), 1000);
  EXPECT_EQ(Val("1E+3"), 1000);
  EXPECT_EQ(Val("25e-1z"), 2.5);
  EXPECT_EQ(Val("2e"), 2);
  EXPECT_EQ(Val("2e+"), 2);
  EXPECT_EQ(Val("2else"), 2);
}

TEST(Numbers, ValOfNoNumberIsZero) {
  for (const char* text : {"", " ", "abc", "-", "+", ".", "-.", "e5", ".e5", "- 1", "\t1", "inf",
                           "nan", "True", "--1", "+-1"}) {
    EXPECT_EQ(Val(text), 0) << text;
  }
  EXPECT_EQ(Val("0x10"), 0);
}

TEST(Numbers, ValOfGiantsAndDwarfs) {
  EXPECT_EQ(Val("1e999"), kInfinity);
  EXPECT_EQ(Val("-1e999"), -kInfinity);
  EXPECT_EQ(Val("1e99999999999999999999"), kInfinity);
  EXPECT_EQ(Val("1e-999"), 0);
  EXPECT_EQ(Val("1e-99999999999999999999"), 0);
  EXPECT_EQ(Val("0e999"), 0);
  EXPECT_EQ(Val("." + std::string(500, '0') + "1"), 0);
  EXPECT_EQ(Val(std::string(500, '9')), kInfinity);
}

TEST(Numbers, RoundingIsToTheNearestHalfToEven) {
  EXPECT_EQ(RoundHalfEven(0.5), 0);
  EXPECT_EQ(RoundHalfEven(1.5), 2);
  EXPECT_EQ(RoundHalfEven(2.5), 2);
  EXPECT_EQ(RoundHalfEven(-2.5), -2);
  EXPECT_EQ(RoundHalfEven(2.51), 3);
}

TEST(Numbers, SixteenBitsRefuseWhatDoesNotFit) {
  EXPECT_EQ(ToInt16(32767), std::int16_t{32767});
  EXPECT_EQ(ToInt16(32767.4), std::int16_t{32767});
  EXPECT_FALSE(ToInt16(32767.5).has_value());
  EXPECT_EQ(ToInt16(-32768.5), std::int16_t{-32768});
  EXPECT_FALSE(ToInt16(-32769).has_value());
  EXPECT_FALSE(ToInt16(kInfinity).has_value());
  EXPECT_FALSE(ToInt16(std::nan("")).has_value());
}

TEST(Numbers, ThirtyTwoBitsRefuseWhatDoesNotFit) {
  EXPECT_EQ(ToInt32(2147483647.0), 2147483647);
  EXPECT_FALSE(ToInt32(2147483648.0).has_value());
  EXPECT_EQ(ToInt32(-2147483648.0), std::numeric_limits<std::int32_t>::min());
  EXPECT_FALSE(ToInt32(-2147483649.0).has_value());
}

TEST(Numbers, SinglesRefuseWhatDoesNotFit) {
  EXPECT_EQ(ToSingle(0.1), 0.1F);
  EXPECT_FALSE(ToSingle(1e39).has_value());
  EXPECT_FALSE(ToSingle(-kInfinity).has_value());
  EXPECT_FALSE(ToSingle(std::nan("")).has_value());
}

TEST(Numbers, ARefusedNumberLeavesTheField) {
  std::int16_t small = 5;
  EXPECT_FALSE(ReadNumber("40000", small));
  EXPECT_EQ(small, 5);
  EXPECT_TRUE(ReadNumber("2.5", small));
  EXPECT_EQ(small, 2);
  std::int32_t wide = 5;
  EXPECT_FALSE(ReadNumber("1e10", wide));
  EXPECT_EQ(wide, 5);
  EXPECT_TRUE(ReadNumber("-16777215", wide));
  EXPECT_EQ(wide, -16777215);
  EXPECT_TRUE(ReadNumber("none", wide));
  EXPECT_EQ(wide, 0);
}

TEST(Numbers, WholeNumbersPrintTheirDigits) {
  EXPECT_EQ(NumberText(std::int64_t{0}), "0");
  EXPECT_EQ(NumberText(std::int64_t{-12632256}), "-12632256");
  EXPECT_EQ(NumberText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
  std::string line = "Top = ";
  AppendNumber(line, std::int64_t{15});
  EXPECT_EQ(line, "Top = 15");
}

TEST(Numbers, SinglesPrintTheirShortestForm) {
  EXPECT_EQ(NumberText(8.0F), "8");
  EXPECT_EQ(NumberText(8.25F), "8.25");
  EXPECT_EQ(NumberText(0.1F), "0.1");
  EXPECT_EQ(NumberText(-1.0F / 3.0F), "-0.33333334");
  EXPECT_EQ(NumberText(0.0F), "0");
  EXPECT_EQ(NumberText(-0.0F), "0");
  EXPECT_EQ(NumberText(120.0F), "120");
}

TEST(Numbers, SinglesNeverPrintAnExponentAndReadBack) {
  for (const float value :
       {1e10F, 1e-10F, 3.4028235e38F, 1.17549435e-38F, 1e-45F, -1.5e-45F, 16777217.0F, 123456.7F}) {
    const std::string text = NumberText(value);
    EXPECT_EQ(text.find_first_of("eE"), std::string::npos) << text;
    EXPECT_EQ(std::strtof(text.c_str(), nullptr), value) << text;
  }
}

}  // namespace
}  // namespace tarnwick
