#include "menus/menu_preview.h"

#include <gtest/gtest.h>

namespace tarnwick::menus {
namespace {

TEST(MenuPreview, HasTitlesWithTheItemsUnderThem) {
  const auto menus = PreviewOf(
      MenuBarDesign(), {"&File    (f)", "...&New    (n)", "...-    (s)", "", "&Help    (h)", ""});
  ASSERT_EQ(menus.size(), 2U);
  EXPECT_EQ(menus[0].Head, (PreviewItem{0, "&File"}));
  EXPECT_EQ(menus[0].Items, (std::vector<PreviewItem>{{1, "&New"}, {2, "-"}}));
  EXPECT_TRUE(menus[0].Items[1].IsSeparator());
  EXPECT_EQ(menus[1], (PreviewMenu{{4, "&Help"}, {}}));
}

TEST(MenuPreview, ADeeperItemHangsUnderItsTitleWithoutDots) {
  const auto menus = PreviewOf(MenuBarDesign(), {"A    (a)", "......Deep    (d)"});
  EXPECT_EQ(menus.at(0).Items, (std::vector<PreviewItem>{{1, "Deep"}}));
}

TEST(MenuPreview, ANestedFirstRowIsNotReached) {
  EXPECT_TRUE(PreviewOf(MenuBarDesign(), {"...Lost    (l)"}).empty());
}

TEST(MenuPreview, APopUpMenuShowsTheCaptionsOfTheProgram) {
  const auto menus = PreviewOf(PopUpDesign(), {"Open...    (o)", "......Deep    (d)"});
  EXPECT_EQ(menus.at(0).Head.Caption, "Open...");
  EXPECT_EQ(menus.at(0).Items.at(0).Caption, "...Deep");
}

TEST(MenuPreview, FindsTheMenuThatARowBelongsTo) {
  const auto menus =
      PreviewOf(MenuBarDesign(), {"...L    (l)", "A    (a)", "...B    (b)", "C    (c)"});
  EXPECT_EQ(PreviewMenuOf(menus, 0), -1);
  EXPECT_EQ(PreviewMenuOf(menus, 1), 0);
  EXPECT_EQ(PreviewMenuOf(menus, 2), 0);
  EXPECT_EQ(PreviewMenuOf(menus, 9), 1);
  EXPECT_EQ(PreviewMenuOf({}, 3), -1);
}

}  // namespace
}  // namespace tarnwick::menus
