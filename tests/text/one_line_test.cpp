#include "text/one_line.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(OneLineText, LineBreaksAndControlCharactersAreBlanks) {
  EXPECT_EQ(OneLineText("a\r\nb"), "a b");
  EXPECT_EQ(OneLineText("a\nb\rc\td"), "a b c d");
  EXPECT_EQ(OneLineText("\x7F"), " ");
  EXPECT_EQ(OneLineText("plain \xE9\x8D"), "plain \xE9\x8D");
  EXPECT_EQ(OneLineText(""), "");
}

}  // namespace
}  // namespace tarnwick
