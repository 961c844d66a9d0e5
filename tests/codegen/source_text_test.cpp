#include "codegen/source_text.h"

#include <limits>
#include <string>
#include <string_view>

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

}  // namespace
}  // namespace tarnwick::test
