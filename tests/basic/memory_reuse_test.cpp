// What a program gives up can be used again: the limit of the elements counts what is in use.
#include <gtest/gtest.h>

#include "basic/run_source.h"

namespace tarnwick::basic {
namespace {

/// What the program prints, or its error, with so many elements at most.
std::string Output(const std::string& text, std::size_t elements) {
  ProgramWorld world;
  RunOptions options;
  options.ArrayLimit = elements;
  const LineResult result = RunSource(text, world, options);
  return result.Error.empty() ? result.Output : result.Error;
}

TEST(MemoryReuse, RedimGivesBackWhatItReplaces) {
  const std::string text =
      "DIM a(1) AS INTEGER, i AS INTEGER\nFOR i = 1 TO 100\nREDIM a(40) AS INTEGER\nNEXT\n"
      "PRINT UBOUND(a)\n";
  EXPECT_EQ(Output(text, 90), "40\n");
}

TEST(MemoryReuse, AnArrayThatGrewInAProcedureEndsWithIt) {
  const std::string text =
      "DIM i AS INTEGER\nSUB Fill\nDIM d() AS INTEGER, k AS INTEGER\n"
      "FOR k = 1 TO 20\nd(k) = k\nNEXT\nEND SUB\n"
      "FOR i = 1 TO 50\nFill\nNEXT\nPRINT i\n";
  EXPECT_EQ(Output(text, 200), "51\n");
}

TEST(MemoryReuse, AnArrayThatWasHandedOnAgainAndAgainEndsWithItsProcedure) {
  const std::string text =
      "DIM i AS INTEGER\nSUB Fill(a() AS INTEGER, n AS INTEGER)\na(n) = n\nEND SUB\n"
      "SUB Work\nDIM d(40) AS INTEGER, k AS INTEGER\n"
      "FOR k = 1 TO 5\nFill d, k\nNEXT\nEND SUB\n"
      "FOR i = 1 TO 50\nWork\nNEXT\nPRINT i\n";
  EXPECT_EQ(Output(text, 60), "51\n");
}

TEST(MemoryReuse, ALocalArrayEndsWithItsProcedure) {
  const std::string text =
      "DIM i AS INTEGER\nSUB Work\nDIM d(40) AS STRING\nd(3) = \"a\"\nEND SUB\n"
      "FOR i = 1 TO 50\nWork\nNEXT\nPRINT i\n";
  EXPECT_EQ(Output(text, 60), "51\n");
}

}  // namespace
}  // namespace tarnwick::basic
