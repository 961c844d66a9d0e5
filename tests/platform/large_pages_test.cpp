#include "platform/large_pages.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(LargePages, BlocksDoNotOverlap) {
  constexpr std::size_t kBlocks = 200;  // several regions
  LargePages pages;
  std::vector<char*> blocks;
  for (std::size_t i = 0; i < kBlocks; ++i) {
    blocks.push_back(static_cast<char*>(pages.allocate(LargePages::kBlock)));
    std::memset(blocks.back(), static_cast<int>(i), LargePages::kBlock);
  }
  for (std::size_t i = 0; i < kBlocks; ++i) {
    const auto byte = static_cast<char>(i);
    EXPECT_TRUE(std::all_of(blocks[i], blocks[i] + LargePages::kBlock, [byte](char c) {
      return c == byte;
    })) << i;
  }
  for (char* const block : blocks) pages.deallocate(block, LargePages::kBlock);
}

TEST(LargePages, ABlockThatIsGivenBackIsHandedOutAgain) {
  LargePages pages;
  void* const first = pages.allocate(LargePages::kBlock);
  void* const second = pages.allocate(LargePages::kBlock);
  pages.deallocate(first, LargePages::kBlock);
  EXPECT_EQ(pages.allocate(LargePages::kBlock), first);
  EXPECT_NE(pages.allocate(LargePages::kBlock), second);
}

TEST(LargePages, OtherSizesComeFromTheHeap) {
  // What is not given back there is a leak.
  LargePages pages;
  for (const std::size_t bytes : {std::size_t{1}, LargePages::kBlock - 1, LargePages::kBlock + 1}) {
    void* const memory = pages.allocate(bytes);
    std::memset(memory, 1, bytes);
    pages.deallocate(memory, bytes);
  }
}

TEST(LargePages, EachIsASourceOfItsOwn) {
  const LargePages pages;
  const LargePages others;
  EXPECT_TRUE(pages.is_equal(pages));
  EXPECT_FALSE(pages.is_equal(others));
}

}  // namespace
}  // namespace tarnwick
