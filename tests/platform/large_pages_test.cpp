#include "platform/large_pages.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

TEST(LargePages, WhatLiesOnTheHeapStaysAndItGrowsOn) {
  std::vector<std::string> texts;
  const auto add = [&] {
    for (int i = 0; i < 1000; ++i) texts.emplace_back(5000, static_cast<char>('a' + i % 26));
  };
  add();
  PreferLargePages();
  add();
  PreferLargePages();
  add();
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(texts[i], std::string(5000, static_cast<char>('a' + i % 1000 % 26)));
  }
}

}  // namespace
}  // namespace tarnwick::test
