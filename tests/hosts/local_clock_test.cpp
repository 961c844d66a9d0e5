#include "hosts/local_clock.h"

#include <chrono>

#include <gtest/gtest.h>

namespace tarnwick::hosts {
namespace {

TEST(LocalClockTest, AClockThatStandsStillShowsItsMoment) {
  LocalClock clock(ReadClock("2024-02-29 13:05:09"));
  const basic::LocalTime now = clock.Now();
  EXPECT_EQ(now.Year, 2024);
  EXPECT_EQ(now.Month, 2);
  EXPECT_EQ(now.Day, 29);
  EXPECT_EQ(now.Hour, 13);
  EXPECT_EQ(now.Second, 9);
  clock.Sleep(1e6);
}

TEST(LocalClockTest, OnlyAWholeMomentIsOne) {
  EXPECT_FALSE(ReadClock(""));
  EXPECT_FALSE(ReadClock("2024-02-29"));
  EXPECT_FALSE(ReadClock("2024-13-01 00:00:00"));
  EXPECT_FALSE(ReadClock("2024-02-29 13:05:09 "));
}

TEST(LocalClockTest, TheEndOfTheProgramEndsASleep) {
  LocalClock clock;
  clock.Ending = [] { return true; };
  const auto start = std::chrono::steady_clock::now();
  clock.Sleep(30);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

}  // namespace
}  // namespace tarnwick::hosts
