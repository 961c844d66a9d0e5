#include "basic/lib/text_functions.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

namespace tarnwick::basic {
namespace {

/// The position that a plain search gives, from 1; 0 for none.
std::int64_t Plain(std::size_t offset) {
  return offset == std::string::npos ? 0 : static_cast<std::int64_t>(offset) + 1;
}

std::string TextOfTwoLetters(std::mt19937& random, std::size_t length) {
  std::string text;
  for (std::size_t i = 0; i < length; ++i) text += random() % 8 == 0 ? 'b' : 'a';
  return text;
}

TEST(TextFunctions, LongPartsAreFoundLikeShortOnes) {
  std::mt19937 random(7);
  for (int round = 0; round < 300; ++round) {
    const std::string text = TextOfTwoLetters(random, 400);
    const std::size_t length = 1 + random() % 40;
    std::string part = text.substr(random() % (text.size() - length), length);
    if (round % 3 == 0) part = TextOfTwoLetters(random, length);
    const auto start = static_cast<std::size_t>(random() % 420);
    EXPECT_EQ(FirstMatch(text, part, static_cast<std::int64_t>(start) + 1),
              Plain(start > text.size() ? std::string::npos : text.find(part, start)));
    EXPECT_EQ(LastMatch(text, part, static_cast<std::int64_t>(start) + 1),
              Plain(text.rfind(part, start)));
  }
}

TEST(TextFunctions, ReplacedLengthIsThatOfTheReplacedText) {
  std::mt19937 random(11);
  for (int round = 0; round < 100; ++round) {
    const std::string text = TextOfTwoLetters(random, 300);
    const std::string part = TextOfTwoLetters(random, 1 + random() % 25);
    const std::string with = TextOfTwoLetters(random, random() % 9);
    EXPECT_EQ(ReplaceMatches(text, part, with).size(), ReplacedLength(text, part, with));
  }
}

TEST(TextFunctions, SearchTakesTimeInProportionToTheLengths) {
  // A search that begins again behind each failed match would take 10^11 steps here.
  const std::string text(std::size_t{1} << 20U, 'a');
  const std::string part = std::string(std::size_t{100000}, 'a') + "b";
  EXPECT_EQ(FirstMatch(text, part), 0);
  EXPECT_EQ(LastMatch(text, part, static_cast<std::int64_t>(text.size())), 0);
  EXPECT_EQ(CountMatches(text, part), 0);
}

TEST(TextFunctions, FieldsJoinedAgainAreTheText) {
  std::mt19937 random(3);
  for (int round = 0; round < 50; ++round) {
    const std::string text = TextOfTwoLetters(random, 120);
    const std::int64_t count = CountMatches(text, "b") + 1;
    std::string joined;
    for (std::int64_t i = 1; i <= count; ++i) {
      if (i > 1) joined += 'b';
      joined += FieldOf(text, "b", i);
    }
    EXPECT_EQ(joined, text);
    EXPECT_EQ(FieldOf(text, "b", count + 1), "");
  }
}

}  // namespace
}  // namespace tarnwick::basic
