#include "text/short_bytes.h"

#include <string>

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

constexpr std::size_t kSizes = 50;

/// A text of the given size in which no two neighbours are equal.
std::string TextOfSize(std::size_t size) {
  std::string text;
  for (std::size_t i = 0; i < size; ++i) text += static_cast<char>('a' + i % 23);
  return text;
}

TEST(ShortBytes, ACopyOfAnySizeIsWholeAndTouchesNothingBehindIt) {
  for (std::size_t size = 0; size < kSizes; ++size) {
    std::string buffer(size + 1, '#');
    EXPECT_EQ(CopyBytes(buffer.data(), TextOfSize(size)), buffer.data() + size);
    EXPECT_EQ(buffer, TextOfSize(size) + "#");
  }
}

TEST(ShortBytes, OneByteMakesTextsOfAnySizeDiffer) {
  for (std::size_t size = 0; size < kSizes; ++size) {
    const std::string text = TextOfSize(size);
    EXPECT_TRUE(SameBytes(text.data(), TextOfSize(size)));
    for (std::size_t place = 0; place < size; ++place) {
      std::string other = text;
      other[place] = '#';
      EXPECT_FALSE(SameBytes(other.data(), text)) << size << " " << place;
    }
  }
}

}  // namespace
}  // namespace tarnwick::test
