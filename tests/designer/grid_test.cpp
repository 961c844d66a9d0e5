#include "designer/grid.h"

#include <set>
#include <utility>

#include <gtest/gtest.h>

#include "model/units.h"

namespace tarnwick {
namespace {

float Pixels(int pixels) {
  return static_cast<float>(pixels * kTwipsPerPixel);
}

TEST(Grid, HasADotAtEveryTenthPixelBothEndsIncluded) {
  std::set<std::pair<int, int>> points;
  int calls = 0;
  ForEachGridPoint([&](int x, int y) {
    points.emplace(x, y);
    ++calls;
  });
  EXPECT_EQ(calls, 103 * 77);
  EXPECT_EQ(points.size(), static_cast<std::size_t>(calls));
  EXPECT_EQ(*points.begin(), std::make_pair(0, 0));
  EXPECT_EQ(*points.rbegin(), std::make_pair(1020, 760));
}

TEST(Grid, ExactHalfSnapsDown) {
  EXPECT_EQ(SnapToGrid(Pixels(15)), Pixels(10));
  EXPECT_EQ(SnapToGrid(Pixels(16)), Pixels(20));
  EXPECT_EQ(SnapToGrid(Pixels(14)), Pixels(10));
  EXPECT_EQ(SnapToGrid(Pixels(20)), Pixels(20));
}

TEST(Grid, LeftOfTheOriginEveryPlaceSnapsTowardsIt) {
  EXPECT_EQ(SnapToGrid(Pixels(-3)), Pixels(0));
  EXPECT_EQ(SnapToGrid(Pixels(-8)), Pixels(0));
  EXPECT_EQ(SnapToGrid(Pixels(-18)), Pixels(-10));
}

TEST(Grid, TheNextLineLiesStrictlyBeyond) {
  EXPECT_EQ(NextGridLine(Pixels(20), true), Pixels(30));
  EXPECT_EQ(NextGridLine(Pixels(20), false), Pixels(10));
  EXPECT_EQ(NextGridLine(Pixels(23), true), Pixels(30));
  EXPECT_EQ(NextGridLine(Pixels(23), false), Pixels(20));
  EXPECT_EQ(NextGridLine(Pixels(0), false), Pixels(-10));
  EXPECT_EQ(NextGridLine(Pixels(-3), true), Pixels(0));
}

}  // namespace
}  // namespace tarnwick
