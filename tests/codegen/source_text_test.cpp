#include "codegen/source_text.h"

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

TEST(SourceText, LineIsItsPartsAndALineEnd) {
  SourceText text;
  text.Line("a", std::string("b"), std::string_view("c"), 12, Quoted{"d"}, Numbered{"e", 3, true},
            Numbered{"f", 4, false}, 1.5F);
  text.Blank();
  EXPECT_EQ(text.Text(), "abc12\"d\"e3f1.5\r\n\r\n");
}

TEST(SourceText, NumbersOfEveryWidth) {
  SourceText text;
  text.Line(std::numeric_limits<std::int16_t>::min(), " ", std::numeric_limits<std::int32_t>::min(),
            " ", std::size_t{7});
  EXPECT_EQ(text.Text(), "-32768 -2147483648 7\r\n");
}

TEST(SourceText, ATakenTextIsWhole) {
  SourceText text;
  const std::string part(100000, 'a');
  text.Line(Quoted{part});
  EXPECT_EQ(text.Take(), '"' + part + "\"\r\n");
}

TEST(SourceText, PiecesAreTheTextInItsOrder) {
  constexpr std::size_t kPiece = 100;
  std::vector<std::string> pieces;
  SourceText text([&](std::string_view piece) { pieces.emplace_back(piece); }, kPiece);
  std::string whole;
  for (int line = 0; line < 50; ++line) {
    text.Line("line ", line);
    whole += "line " + std::to_string(line) + "\r\n";
    EXPECT_EQ(text.Size(), whole.size());
  }
  text.Flush();
  std::string joined;
  for (const std::string& piece : pieces) {
    EXPECT_LE(piece.size(), kPiece);
    joined += piece;
  }
  EXPECT_EQ(joined, whole);
  EXPECT_GT(pieces.size(), 3U);
  EXPECT_EQ(text.Text(), "");
}

TEST(SourceText, ALineLongerThanAPieceIsHandedOverWhole) {
  std::string joined;
  SourceText text([&](std::string_view piece) { joined += piece; }, 10);
  const std::string part(1000, 'a');
  text.Line("before");
  text.Line(part);
  text.Line("behind");
  text.Flush();
  EXPECT_EQ(joined, "before\r\n" + part + "\r\nbehind\r\n");
}

}  // namespace
}  // namespace tarnwick::test
