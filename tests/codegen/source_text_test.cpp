#include "codegen/source_text.h"

#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "text/strings.h"

namespace tarnwick::test {
namespace {

/// A text that keeps what it hands on.
struct KeptText {
  std::vector<std::string> Pieces;
  SourceText Text{[this](std::string_view piece) { Pieces.emplace_back(piece); }};

  std::string Whole() {
    Text.Flush();
    return Join(Pieces, "");
  }
};

TEST(SourceText, LineIsItsPartsAndALineEnd) {
  KeptText kept;
  SourceText& text = kept.Text;
  text.Line("a", std::string("b"), 12, Quoted{"c"}, Numbered{"d", 3, true},
            Numbered{"e", 4, false});
  text.Blank();
  EXPECT_EQ(kept.Whole(), "ab12\"c\"d3e\r\n\r\n");
}

TEST(SourceText, HandsOnEachByteOnce) {
  KeptText kept;
  kept.Text.Line("a");
  kept.Text.Flush();
  kept.Text.Flush();
  kept.Text.Line("b");
  kept.Text.Flush();
  EXPECT_EQ(kept.Pieces, (std::vector<std::string>{"a\r\n", "b\r\n"}));
}

TEST(SourceText, ALongTextComesInPiecesBeforeItsEnd) {
  KeptText kept;
  for (int line = 0; line < 10000; ++line) kept.Text.Line("ten bytes ", line);
  EXPECT_GT(kept.Pieces.size(), 2U);
  const std::string whole = kept.Whole();
  EXPECT_TRUE(whole.starts_with("ten bytes 0\r\nten bytes 1\r\n"));
  EXPECT_TRUE(whole.ends_with("ten bytes 9999\r\n"));
}

TEST(SourceText, LinesLongerThanAPageComeWhole) {
  KeptText kept;
  SourceText& text = kept.Text;
  std::string expected;
  for (const std::size_t size : {10U, 100000U, 5U, 32766U, 32768U, 70000U}) {
    const std::string part(size, static_cast<char>('a' + size % 26));
    text.Line(part, Quoted{part});
    expected += part + '"' + part + "\"\r\n";
  }
  EXPECT_EQ(kept.Whole(), expected);
}

TEST(SourceText, NumbersOfEveryWidth) {
  KeptText kept;
  SourceText& text = kept.Text;
  text.Line(std::numeric_limits<std::int16_t>::min(), ' ', std::numeric_limits<std::int32_t>::min(),
            ' ', std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(kept.Whole(), "-32768 -2147483648 18446744073709551615\r\n");
}

TEST(SourceText, LengthsPrintInPixels) {
  KeptText kept;
  SourceText& text = kept.Text;
  for (const float twips : {150.0F, -150.0F, -0.0F, 100.0F, 7.5F, 3.0e9F}) text.Line(Pixels{twips});
  EXPECT_EQ(kept.Whole(), "10\r\n-10\r\n0\r\n6.6666665\r\n0.5\r\n200000000\r\n");
}

TEST(SourceText, SmallestLengthFits) {
  KeptText kept;
  SourceText& text = kept.Text;
  text.Line(Pixels{-std::numeric_limits<float>::denorm_min() * 15});
  EXPECT_EQ(kept.Whole(), "-0." + std::string(44, '0') + "1\r\n");
}

}  // namespace
}  // namespace tarnwick::test
