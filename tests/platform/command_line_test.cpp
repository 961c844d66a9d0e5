#include "platform/command_line.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Words = std::vector<std::string>;

Words Programs(std::string_view line) {
  Words programs;
  for (const ProgramChoice& choice : ProgramChoices(line)) programs.push_back(choice.Program);
  return programs;
}

TEST(CommandLine, AQuotedProgramIsOnePath) {
  const std::string_view line = "\"C:\\a b\\Rc.exe\" /X y";
  const auto choices = ProgramChoices(line);
  ASSERT_EQ(choices.size(), 1U);
  EXPECT_EQ(choices[0].Program, "C:\\a b\\Rc.exe");
  EXPECT_EQ(choices[0].Rest, " /X y");
}

TEST(CommandLine, AProgramWithoutQuotesEndsAtEachBlankInTurn) {
  const std::string_view line = "C:\\a b\\Rc.exe /X  y";
  EXPECT_EQ(Programs(line),
            (Words{"C:\\a", "C:\\a b\\Rc.exe", "C:\\a b\\Rc.exe /X", "C:\\a b\\Rc.exe /X  y"}));
  EXPECT_EQ(ProgramChoices(line)[1].Rest, " /X  y");
}

TEST(CommandLine, NothingNamesNoProgram) {
  EXPECT_TRUE(Programs("").empty());
  EXPECT_TRUE(Programs("  \t").empty());
  EXPECT_EQ(Programs("\"open"), Words{"open"});
}

TEST(CommandLine, BlanksAndTabsPartArguments) {
  EXPECT_EQ(SplitArguments("  /COMPILE  a\tb "), (Words{"/COMPILE", "a", "b"}));
  EXPECT_TRUE(SplitArguments("  ").empty());
}

TEST(CommandLine, QuotesKeepBlanksAndEmptyArguments) {
  EXPECT_EQ(SplitArguments("\"a b\" \"\" c\"d e\"f"), (Words{"a b", "", "cd ef"}));
  EXPECT_EQ(SplitArguments("\"never closed x"), (Words{"never closed x"}));
}

TEST(CommandLine, BackslashesCountOnlyBeforeQuotes) {
  EXPECT_EQ(SplitArguments("a\\\\b"), (Words{"a\\\\b"}));
  EXPECT_EQ(SplitArguments("\"C:\\dir\\\\\" x"), (Words{"C:\\dir\\", "x"}));
  EXPECT_EQ(SplitArguments("a\\\"b"), (Words{"a\"b"}));
  EXPECT_EQ(SplitArguments("a\\\\\\\"b"), (Words{"a\\\"b"}));
  EXPECT_EQ(SplitArguments("end\\"), (Words{"end\\"}));
}

TEST(CommandLine, ADoubledQuoteWithinQuotesIsOne) {
  EXPECT_EQ(SplitArguments("\"a\"\"b c\" d"), (Words{"a\"b c", "d"}));
}

}  // namespace
}  // namespace tarnwick
