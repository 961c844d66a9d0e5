#include "basic/source/arena.h"

#include <memory_resource>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace tarnwick::basic {
namespace {

/// The default resource while it lives; counts the bytes that are in use.
class CountedMemory final : public std::pmr::memory_resource {
 public:
  CountedMemory() : before_(std::pmr::set_default_resource(this)) {}
  CountedMemory(const CountedMemory&) = delete;
  CountedMemory& operator=(const CountedMemory&) = delete;
  ~CountedMemory() override { std::pmr::set_default_resource(before_); }
  std::size_t Bytes = 0;

 private:
  void* do_allocate(std::size_t bytes, std::size_t alignment) override {
    Bytes += bytes;
    return std::pmr::new_delete_resource()->allocate(bytes, alignment);
  }
  void do_deallocate(void* memory, std::size_t bytes, std::size_t alignment) override {
    Bytes -= bytes;
    std::pmr::new_delete_resource()->deallocate(memory, bytes, alignment);
  }
  [[nodiscard]] bool do_is_equal(const memory_resource& other) const noexcept override {
    return this == &other;
  }

  std::pmr::memory_resource* before_;
};

TEST(Arena, GivesAllItsMemoryBack) {
  CountedMemory memory;
  {
    Arena arena;
    EXPECT_EQ(memory.Bytes, 0U);
    for (int i = 0; i < 100'000; ++i) arena.Make<int>(i);
    arena.Text(std::string(200'000, 'x'));
    EXPECT_GE(memory.Bytes, 600'000U);
    EXPECT_EQ(memory.Bytes, arena.Bytes());
  }
  EXPECT_EQ(memory.Bytes, 0U);
}

TEST(Arena, WhatAMovedArenaMadeStaysWhereItIs) {
  CountedMemory memory;
  Arena first;
  const std::string_view text = first.Text("kept");
  const int* const number = first.Make<int>(7);
  Arena second(std::move(first));
  Arena third;
  third.Text("given up");
  const std::size_t both = memory.Bytes;
  third = std::move(second);
  EXPECT_LT(memory.Bytes, both);
  EXPECT_EQ(text, "kept");
  EXPECT_EQ(*number, 7);
  // The arena that was moved from begins again.
  first = Arena();
  EXPECT_EQ(first.Text("new"), "new");
  EXPECT_EQ(text, "kept");
}

TEST(Arena, NodesAreAligned) {
  Arena arena;
  for (int i = 0; i < 100; ++i) {
    arena.Text("x");
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(arena.Make<double>(1.0)) % alignof(double), 0U);
  }
}

TEST(Arena, EmptyListsAndTextsTakeNothing) {
  CountedMemory memory;
  Arena arena;
  EXPECT_TRUE(arena.Text("").empty());
  EXPECT_TRUE(arena.List(std::vector<int>()).empty());
  EXPECT_EQ(memory.Bytes, 0U);
}

}  // namespace
}  // namespace tarnwick::basic
