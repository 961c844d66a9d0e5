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

TEST(MemoryReuse, ATextEndsWhereAnArrayTakesItsRegister) {
  const std::string text =
      "DIM d(3) AS INTEGER, n AS INTEGER\nSUB Fill(a() AS INTEGER)\na(1) = 1\nEND SUB\n"
      "PRINT IIF(n = 0, \"none\", \"some\")\nFill d\nPRINT d(1)\n";
  for (const Dispatch how : {Dispatch::Threaded, Dispatch::Switch}) {
    ProgramWorld world;
    RunOptions options;
    options.How = how;
    const LineResult result = RunSource(text, world, options);
    EXPECT_EQ(result.Output, "none\n1\n");
    EXPECT_EQ(result.TextsHeld, 0U);
  }
}

}  // namespace
}  // namespace tarnwick::basic
