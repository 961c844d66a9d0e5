#include "designer/window_style.h"

#include <string>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Member = clsStyle::Member;

/// The six frame members, "1" for on, in slot order.
std::string Frame(const clsStyle& style) {
  std::string text;
  for (const Member member : {Member::ControlBox, Member::MaxButton, Member::MinButton,
                              Member::Sizable, Member::Titlebar, Member::ToolWindow}) {
    text += style.Get(member) ? '1' : '0';
  }
  return text;
}

TEST(WindowStyle, ANewWindowIsSizableWithItsButtons) {
  EXPECT_EQ(Frame(clsStyle()), "111110");
}

TEST(WindowStyle, EachBorderCodeSetsItsMembers) {
  const char* const expected[] = {"000010", "111010", "111110", "100010", "100010", "100111"};
  for (int code = 0; code <= kLastBorderStyle; ++code) {
    clsStyle style;
    EXPECT_TRUE(ApplyBorderStyle(style, code));
    EXPECT_EQ(Frame(style), expected[code]) << code;
  }
}

TEST(WindowStyle, EmptyCellsLeaveMembersAsTheyAre) {
  clsStyle style;
  ApplyBorderStyle(style, 5);
  ASSERT_TRUE(style.Get(Member::ToolWindow));
  ApplyBorderStyle(style, 3);
  EXPECT_EQ(Frame(style), "100011") << "code 3 does not touch the last member";
  style.Set(Member::Titlebar, false);
  ApplyBorderStyle(style, 2);
  EXPECT_FALSE(style.Get(Member::Titlebar)) << "code 2 touches four members only";
}

TEST(WindowStyle, EverySetMemberRedrawsTheFrame) {
  clsStyle style;
  int redraws = 0;
  style.Redraw = [&redraws] { ++redraws; };
  ApplyBorderStyle(style, 1);
  EXPECT_EQ(redraws, 4);
  ApplyBorderStyle(style, 5);
  EXPECT_EQ(redraws, 10);
}

TEST(WindowStyle, TheSystemMenuIsShownByTheWindowAlone) {
  clsStyle style;
  style.ShowSysMenu();
  int shown = 0;
  style.SysMenu = [&shown] { ++shown; };
  style.ShowSysMenu();
  EXPECT_EQ(shown, 1);
}

TEST(WindowStyle, ACodeWithoutARowTouchesNothing) {
  clsStyle style;
  EXPECT_FALSE(ApplyBorderStyle(style, 6));
  EXPECT_FALSE(ApplyBorderStyle(style, -1));
  EXPECT_EQ(Frame(style), "111110");
}

}  // namespace
}  // namespace tarnwick
