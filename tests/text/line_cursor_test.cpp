#include "text/line_cursor.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

std::vector<std::string> LinesIn(std::string_view text) {
  std::vector<std::string> lines;
  for (LineCursor cursor(text); cursor.Next();) lines.emplace_back(cursor.Line());
  return lines;
}

TEST(LineCursor, LinesAreThePiecesBetweenLineEnds) {
  EXPECT_EQ(LinesIn("a\r\nb\r\n\r\nc"), (std::vector<std::string>{"a", "b", "", "c"}));
  EXPECT_EQ(LinesIn("a\r\n"), (std::vector<std::string>{"a", ""}));
  EXPECT_EQ(LinesIn(""), (std::vector<std::string>{""}));
}

TEST(LineCursor, ASingleReturnOrLineFeedEndsNoLine) {
  EXPECT_EQ(LinesIn("a\rb\nc\r\r\nd\n"), (std::vector<std::string>{"a\rb\nc\r", "d\n"}));
}

}  // namespace
}  // namespace tarnwick
