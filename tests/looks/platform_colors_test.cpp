#include "looks/platform_colors.h"

#include <gtest/gtest.h>

namespace tarnwick::looks {
namespace {

TEST(PlatformColors, RedIsTheLowByte) {
  EXPECT_EQ(ColorOf(255), QColor(255, 0, 0));
  EXPECT_EQ(ColorOf(0xFF0000), QColor(0, 0, 255));
  EXPECT_EQ(ColorOf(12632256), QColor(0xC0, 0xC0, 0xC0));
}

TEST(PlatformColors, TheTopBitNamesAColourOfTheSystem) {
  EXPECT_EQ(ColorOf(static_cast<std::int32_t>(0x80000005U)), QColor(Qt::white));
  EXPECT_EQ(ColorOf(static_cast<std::int32_t>(0x8000000FU)), QColor(0xC0, 0xC0, 0xC0));
}

TEST(PlatformColors, AnUnknownSystemColourIsBlack) {
  EXPECT_EQ(ColorOf(static_cast<std::int32_t>(0x800000FFU)), QColor(Qt::black));
}

TEST(PlatformColors, NumbersComeBack) {
  for (const std::int32_t number : {0, 255, 65280, 12632256, 16777215}) {
    EXPECT_EQ(NumberOf(ColorOf(number)), number);
  }
}

}  // namespace
}  // namespace tarnwick::looks
