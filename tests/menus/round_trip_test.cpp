// Rows of a designer, through the arrays and a form file, and back.
#include <random>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "fakes/fake_project.h"
#include "menus/form_rebuild.h"
#include "menus/menu_designer.h"
#include "text/strings.h"

namespace tarnwick::menus {
namespace {

using test::FakeProject;

/// Rows that grammar and file can hold: no brackets, no separators of the file, no blanks around a
/// caption, names of the language, a top-level row first.
class RowMaker {
 public:
  explicit RowMaker(std::uint32_t seed) : random_(seed) {}

  Rows Make(int deepest) {
    Rows rows;
    for (int n = Below(30); n > 0; --n) {
      const int depth = rows.empty() ? 0 : Below(deepest + 1);
      rows.push_back(MenuRowText(depth, Caption(), "mnu" + std::to_string(rows.size())));
    }
    return rows;
  }

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }
  std::string Caption() {
    static constexpr std::string_view kLetters = "abzAZ09 &,;:'-_#*<>[]{}/\\\"\xE9\xDF\xFF+=%$!";
    if (Below(6) == 0) return "-";
    std::string caption;
    for (int n = Below(12); n > 0; --n) {
      caption += kLetters[static_cast<std::size_t>(Below(static_cast<int>(kLetters.size())))];
    }
    return std::string(Trim(caption)) + (Below(5) == 0 ? "..." : "");
  }

  std::mt19937 random_;
};

/// The caption alone may begin with dots by chance.
bool GrammarHolds(const Rows& rows) {
  for (const std::string& row : rows) {
    const MenuRowParts parts = SplitMenuRow(row);
    if (MenuRowText(parts.Depth, parts.Caption, parts.Name) != row) return false;
    if (parts.Caption.starts_with("...") || parts.Caption.empty()) return false;
  }
  return rows.empty() || MenuDepthOf(rows.front()) == 0;
}

TEST(MenuRoundTrip, RowsOfAMenuBarComeBackFromArraysAndFile) {
  int held = 0;
  for (std::uint32_t seed = 1; seed <= 400; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    const Rows rows = RowMaker(seed).Make(2);
    if (!GrammarHolds(rows)) continue;
    ++held;
    FakeProject project;
    project.Load("[Form](1) {F}\r\n");
    ASSERT_TRUE(RebuildFormWithMenu(project.Context, 1, rows));
    EXPECT_EQ(RowsOfFormMenu(project.User()), rows);
    FakeProject opened;
    opened.Load(project.Saved());
    ASSERT_EQ(RowsOfFormMenu(opened.User()), rows);
    History steps(opened.Tables, opened.Observer);
    EXPECT_EQ(FormMenu(opened.Context, steps, 1).List().HasText(), !rows.empty());
    // The arrays of the project that was opened are those of the rows.
    ProjectTables parsed;
    ParseMenuRows(parsed, rows);
    EXPECT_EQ(opened.Tables.MenuTitles.size(), parsed.MenuTitles.size());
    ASSERT_EQ(opened.Tables.MenuItems.size(), parsed.MenuItems.size());
    for (std::size_t item = 1; item < parsed.MenuItems.size(); ++item) {
      EXPECT_EQ(opened.Tables.MenuItems[item].Caption, parsed.MenuItems[item].Caption);
      EXPECT_EQ(opened.Tables.MenuItems[item].Name, parsed.MenuItems[item].Name);
      EXPECT_EQ(opened.Tables.MenuItems[item].Parent, parsed.MenuItems[item].Parent);
      EXPECT_EQ(opened.Tables.MenuItems[item].Tag, parsed.MenuItems[item].Tag);
    }
  }
  EXPECT_GT(held, 100);
}

TEST(MenuRoundTrip, RowsOfAPopUpMenuComeBackFromRecordsAndFile) {
  int held = 0;
  for (std::uint32_t seed = 1; seed <= 400; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    const Rows rows = RowMaker(seed).Make(2);
    if (!GrammarHolds(rows)) continue;
    ++held;
    FakeProject project;
    project.Load("[Form](1) {F}\r\n\r\n[PopUpMenu]  (1) {P} Left<1>Left\r\n");
    ParsePopUpRows(*project.Tables.PopUpMenus.Ensure(1), rows);
    EXPECT_EQ(RowsOfPopUp(*project.Tables.PopUpMenus.At(1)), rows);
    FakeProject opened;
    opened.Load(project.Saved());
    ASSERT_EQ(RowsOfPopUp(*opened.Tables.PopUpMenus.At(1)), rows);
  }
  EXPECT_GT(held, 100);
}

}  // namespace
}  // namespace tarnwick::menus
