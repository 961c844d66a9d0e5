#include "hosts/console_page.h"

#include <string>

#include <gtest/gtest.h>

namespace tarnwick::hosts {
namespace {

TEST(ConsolePageTest, TextStandsWhereItWasWritten) {
  ConsolePage page;
  page.Write("ab\nc");
  EXPECT_EQ(page.CharacterAt(1, 2), 'b');
  EXPECT_EQ(page.CharacterAt(2, 1), 'c');
  EXPECT_EQ(page.Row(), 2);
  EXPECT_EQ(page.Column(), 2);
}

TEST(ConsolePageTest, ALineGoesOnInTheNextRow) {
  ConsolePage page;
  page.Write(std::string(ConsolePage::kColumns, 'x'));
  EXPECT_EQ(page.Row(), 2);
  EXPECT_EQ(page.Column(), 1);
}

TEST(ConsolePageTest, AtTheLowerEdgeEverythingMovesUp) {
  ConsolePage page;
  page.Write("first\nsecond");
  for (int row = 2; row <= ConsolePage::kRows; ++row) page.Write("\n");
  EXPECT_EQ(page.Row(), ConsolePage::kRows);
  EXPECT_EQ(page.CharacterAt(1, 1), 's');
}

TEST(ConsolePageTest, PositionsOutsideAreMovedInside) {
  ConsolePage page;
  page.Locate(99, 0);
  EXPECT_EQ(page.Row(), ConsolePage::kRows);
  EXPECT_EQ(page.Column(), 1);
  EXPECT_EQ(page.CharacterAt(0, 1), 0);
  EXPECT_EQ(page.CharacterAt(1, ConsolePage::kColumns + 1), 0);
}

TEST(ConsolePageTest, BytesAreCharacterAndColourInTurn) {
  ConsolePage page;
  page.Color(14, 1);
  page.Write("A");
  EXPECT_EQ(page.Peek(0), 'A');
  EXPECT_EQ(page.Peek(1), 0x1E);
  page.Poke(2, 'B');
  EXPECT_EQ(page.CharacterAt(1, 2), 'B');
  page.Poke(-1, 1);
  page.Poke(4000, 1);
  EXPECT_EQ(page.Peek(-1), 0);
  EXPECT_EQ(page.Peek(4000), 0);
}

}  // namespace
}  // namespace tarnwick::hosts
