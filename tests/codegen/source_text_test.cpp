#include "codegen/source_text.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

TEST(SourceText, LineIsItsPartsAndALineEnd) {
  std::string whole;
  SourceText text([&](std::string_view piece) { whole += piece; });
  text.Line("a", std::string("b"), 12, Quoted{"c"}, Numbered{"d", 3, true},
            Numbered{"e", 4, false});
  text.Blank();
  text.Flush();
  EXPECT_EQ(whole, "ab12\"c\"d3e\r\n\r\n");
}

TEST(SourceText, QuotesAndLineEndsOfLongLinesFitToo) {
  for (const std::size_t size : {32762U, 32763U, 32764U, 32765U, 32766U, 32767U, 32768U}) {
    std::string whole;
    SourceText text([&](std::string_view piece) { whole += piece; });
    const std::string part(size, 'a');
    text.Line(Quoted{part});
    text.Line(Numbered{part, -1, true});
    text.Flush();
    EXPECT_EQ(whole, '"' + part + "\"\r\n" + part + "-1\r\n");
  }
}

}  // namespace
}  // namespace tarnwick::test
