// What the language does beyond its functions, and where it is shown: language_facts.tsv has a row
// for each behaviour with the line of a golden program, the row of a table, or the test.
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/source_tests.h"
#include "text/strings.h"

namespace tarnwick::basic {
namespace {

constexpr std::string_view kGolden = "golden ";

/// True when a row of the conformance tables is about the word.
bool HasRow(std::string_view word) {
  const std::string wanted = std::string("\n").append(word).append("\t");
  return test::SourceBytes("tests/basic/functions.tsv").find(wanted) != std::string::npos ||
         test::SourceBytes("tests/basic/operators.tsv").find(wanted) != std::string::npos;
}

TEST(LanguageFacts, EachIsShownByALineARowOrATestOrLeftOutWithAReason) {
  const std::set<std::string> tests = test::TestsOfTheSources();
  const std::string table = test::SourceBytes("tests/basic/language_facts.tsv");
  std::size_t rows = 0;
  for (const std::string_view line : Split(table, "\n")) {
    const std::vector<std::string_view> cells = Split(line, "\t");
    if (line.empty() || cells[0] == "subject") continue;
    ASSERT_EQ(cells.size(), 4U) << line;
    ++rows;
    const std::string where(cells[3]);
    if (cells[2].starts_with(kGolden)) {
      const std::string name(cells[2].substr(kGolden.size()));
      const std::string program = test::SourceBytes("tests/basic/golden/" + name + ".bas");
      EXPECT_FALSE(program.empty()) << line;
      EXPECT_NE(program.find(where), std::string::npos) << line;
    } else if (cells[2] == "table") {
      EXPECT_TRUE(HasRow(where)) << line;
    } else if (cells[2] == "test") {
      EXPECT_TRUE(tests.contains(where)) << line;
    } else {
      EXPECT_EQ(cells[2], "left out") << line;
      EXPECT_FALSE(where.empty()) << line;
    }
  }
  EXPECT_GT(rows, 90U);
}

}  // namespace
}  // namespace tarnwick::basic
