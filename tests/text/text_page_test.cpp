#include "text/text_page.h"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "text/strings.h"

namespace tarnwick::test {
namespace {

/// A text that keeps what it hands on.
struct KeptPage {
  std::vector<std::string> Pieces;
  TextPage Page{[this](std::string_view piece) { Pieces.emplace_back(piece); }};

  std::string Whole() {
    Page.Flush();
    return Join(Pieces, "");
  }
};

TEST(TextPage, PartsStandOneBehindTheOther) {
  KeptPage kept;
  kept.Page.Put("a", std::string("b"), std::string_view("c"), 'd', 12, 1.5F);
  kept.Page.Put();
  kept.Page.Put("");
  kept.Page.Put(std::int16_t{-3});
  EXPECT_EQ(kept.Whole(), "abcd121.5-3");
}

TEST(TextPage, NothingIsHandedOnWhereNothingWasPut) {
  KeptPage kept;
  kept.Page.Flush();
  kept.Page.Put("");
  kept.Page.Flush();
  EXPECT_TRUE(kept.Pieces.empty());
}

TEST(TextPage, HandsOnEachByteOnce) {
  KeptPage kept;
  kept.Page.Put("a");
  kept.Page.Flush();
  kept.Page.Flush();
  kept.Page.Put("b");
  kept.Page.Flush();
  EXPECT_EQ(kept.Pieces, (std::vector<std::string>{"a", "b"}));
}

TEST(TextPage, ALongTextComesInPiecesBeforeItsEnd) {
  KeptPage kept;
  for (int line = 0; line < 10000; ++line) kept.Page.Put("ten bytes ", line, '\n');
  EXPECT_GT(kept.Pieces.size(), 2U);
  const std::string whole = kept.Whole();
  EXPECT_TRUE(whole.starts_with("ten bytes 0\nten bytes 1\n"));
  EXPECT_TRUE(whole.ends_with("ten bytes 9999\n"));
}

TEST(TextPage, PartsLongerThanAPageComeWhole) {
  KeptPage kept;
  std::string expected;
  for (const std::size_t size : {10U, 100000U, 5U, 32766U, 32768U, 70000U}) {
    const std::string part(size, static_cast<char>('a' + size % 26));
    kept.Page.Put(part, '-', part);
    expected += part + '-' + part;
  }
  EXPECT_EQ(kept.Whole(), expected);
}

TEST(TextPage, NumbersOfEveryWidth) {
  KeptPage kept;
  kept.Page.Put(
      std::numeric_limits<std::int16_t>::min(), ' ', std::numeric_limits<std::int32_t>::min(), ' ',
      std::numeric_limits<std::int64_t>::min(), ' ', std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(kept.Whole(), "-32768 -2147483648 -9223372036854775808 18446744073709551615");
}

TEST(TextPage, SinglesPrintInTheirShortestForm) {
  KeptPage kept;
  for (const float number : {10.0F, -10.0F, -0.0F, 20.0F / 3, 0.5F, 2.0e8F, 16777216.0F}) {
    kept.Page.Put(number, ' ');
  }
  EXPECT_EQ(kept.Whole(), "10 -10 0 6.6666665 0.5 200000000 16777216 ");
}

TEST(TextPage, TheLongestSinglesFit) {
  KeptPage kept;
  kept.Page.Put(-std::numeric_limits<float>::denorm_min());
  kept.Page.Put(-std::numeric_limits<float>::max());
  EXPECT_EQ(kept.Whole(),
            "-0." + std::string(44, '0') + "1-340282346638528859811704183484516925440");
}

}  // namespace
}  // namespace tarnwick::test
