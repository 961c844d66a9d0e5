// The table of tolerated lines: what makes it whole, and what its rows become.
#include "basic/syntax/tolerance_table.h"

#include <string>

#include <gtest/gtest.h>

namespace tarnwick::basic {
namespace {

/// A row for each name, and `more` behind them; the row `without` is left out.
std::string Rows(std::string_view more = {}, std::size_t without = kToleranceCount) {
  std::string text = "name\tline\teffect\tnote\tremedy\n";
  for (std::size_t i = 0; i < kToleranceCount; ++i) {
    if (i != without) text.append(kToleranceNames[i]).append("\ta = \tskip\t\t\n");
  }
  return text.append(more);
}

TEST(ToleranceTable, EachRowStandsAtItsTolerance) {
  for (std::size_t i = 0; i < kToleranceCount; ++i) {
    EXPECT_EQ(kTolerances[i].Which, static_cast<Tolerance>(i));
    EXPECT_EQ(kTolerances[i].Name, kToleranceNames[i]);
    EXPECT_FALSE(kTolerances[i].Line.empty()) << kTolerances[i].Name;
  }
}

TEST(ToleranceTable, ARowHasExampleEffectNoteAndRemedy) {
  const ToleranceRow& row = RowOf(Tolerance::FrameModalRest);
  EXPECT_EQ(row.Line, "TrnspAbrFrm1odal");
  EXPECT_EQ(row.Effect, ToleranceEffect::Call);
  EXPECT_EQ(row.Note, "This line runs as a call of the frame's Sub");
  EXPECT_EQ(row.Remedy, "Call Show instead of ShowModal on a form with a transparent frame");
}

TEST(ToleranceTable, ARemedyNeedsANote) {
  for (const ToleranceRow& row : kTolerances) {
    EXPECT_TRUE(row.Remedy.empty() || !row.Note.empty()) << row.Name;
  }
}

TEST(ToleranceTable, ARowForEachNameIsWhole) {
  EXPECT_TRUE(ReadTolerances(Rows()).Whole);
}

TEST(ToleranceTable, TheOrderOfTheRowsIsFree) {
  const std::string first(kToleranceNames[0]);
  // The rows point into the text.
  const std::string text = Rows(first + "\tx = 1\tmerge\tn\tr\n", 0);
  const ToleranceTable table = ReadTolerances(text);
  EXPECT_TRUE(table.Whole);
  EXPECT_EQ(table.Rows[0].Line, "x = 1");
  EXPECT_EQ(table.Rows[0].Effect, ToleranceEffect::Merge);
}

TEST(ToleranceTable, AMissingRowAndARowTooManyAreFound) {
  EXPECT_FALSE(ReadTolerances(Rows({}, 3)).Whole);
  EXPECT_FALSE(ReadTolerances(Rows("other-name\ta = \tskip\t\t\n")).Whole);
  EXPECT_FALSE(ReadTolerances(Rows("loop-name\ta = \tskip\t\t\n")).Whole);
  EXPECT_FALSE(ReadTolerances(Rows("loop-name\ta = \tskip\t\t\n", 0)).Whole);
}

TEST(ToleranceTable, AnUnknownEffectIsFound) {
  const std::string first(kToleranceNames[0]);
  EXPECT_FALSE(ReadTolerances(Rows(first + "\ta = \tmend\t\t\n", 0)).Whole);
}

}  // namespace
}  // namespace tarnwick::basic
