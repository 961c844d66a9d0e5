// What objects do beyond keeping values, and where it is shown: class_facts.tsv has a row for each
// behaviour with the test that shows it, or "left out: " and the reason.
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/source_tests.h"
#include "text/strings.h"

namespace tarnwick::objects {
namespace {

TEST(ClassFacts, EachIsShownByATestOrLeftOutWithAReason) {
  constexpr std::string_view kLeftOut = "left out: ";
  const std::set<std::string> tests = test::TestsOfTheSources();
  const std::string table = test::SourceBytes("tests/objects/class_facts.tsv");
  std::size_t rows = 0;
  for (const std::string_view line : Split(table, "\n")) {
    const std::vector<std::string_view> cells = Split(line, "\t");
    if (line.empty() || cells[0] == "subject") continue;
    ASSERT_EQ(cells.size(), 3U) << line;
    ++rows;
    if (cells[2].starts_with(kLeftOut)) {
      EXPECT_GT(cells[2].size(), kLeftOut.size()) << line;
    } else {
      EXPECT_TRUE(tests.contains(std::string(cells[2]))) << line;
    }
  }
  EXPECT_GT(rows, 100U);
}

}  // namespace
}  // namespace tarnwick::objects
