#include "codegen/source_text.h"

#include <limits>

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

TEST(SourceText, LineIsItsPartsAndALineEnd) {
  SourceText text;
  text.Line("a", std::string("b"), 12, Quoted{"c"}, Numbered{"d", 3, true},
            Numbered{"e", 4, false});
  text.Blank();
  EXPECT_EQ(text.Take(), "ab12\"c\"d3e\r\n\r\n");
}

TEST(SourceText, IsEmptyOnceTaken) {
  SourceText text(100);
  text.Line("a");
  EXPECT_EQ(text.Take(), "a\r\n");
  EXPECT_EQ(text.Take(), "");
}

TEST(SourceText, LinesLongerThanAPageComeWhole) {
  SourceText text;
  std::string expected;
  for (const std::size_t size : {10U, 100000U, 5U, 32766U, 32768U, 70000U}) {
    const std::string part(size, static_cast<char>('a' + size % 26));
    text.Line(part, Quoted{part});
    expected += part + '"' + part + "\"\r\n";
  }
  EXPECT_EQ(text.Take(), expected);
}

TEST(SourceText, NumbersOfEveryWidth) {
  SourceText text;
  text.Line(std::numeric_limits<std::int16_t>::min(), ' ', std::numeric_limits<std::int32_t>::min(),
            ' ', std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(text.Take(), "-32768 -2147483648 18446744073709551615\r\n");
}

TEST(SourceText, LengthsPrintInPixels) {
  SourceText text;
  for (const float twips : {150.0F, -150.0F, -0.0F, 100.0F, 7.5F, 3.0e9F}) text.Line(Pixels{twips});
  EXPECT_EQ(text.Take(), "10\r\n-10\r\n0\r\n6.6666665\r\n0.5\r\n200000000\r\n");
}

TEST(SourceText, SmallestLengthFits) {
  SourceText text;
  text.Line(Pixels{-std::numeric_limits<float>::denorm_min() * 15});
  EXPECT_EQ(text.Take(), "-0." + std::string(44, '0') + "1\r\n");
}

}  // namespace
}  // namespace tarnwick::test
