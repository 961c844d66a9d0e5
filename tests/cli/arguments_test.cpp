#include "cli/arguments.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

Arguments Parsed(const std::vector<std::string>& words) {
  const ParsedArguments parsed = ParseArguments(words);
  const auto* const arguments = std::get_if<Arguments>(&parsed);
  EXPECT_NE(arguments, nullptr);
  return arguments == nullptr ? Arguments{} : *arguments;
}

std::string Wrong(const std::vector<std::string>& words) {
  const ParsedArguments parsed = ParseArguments(words);
  const auto* const wrong = std::get_if<WrongUsage>(&parsed);
  return wrong == nullptr ? "" : wrong->Text;
}

TEST(ArgumentsTest, GenerateTakesAProjectAndAnOutputFile) {
  const Arguments arguments = Parsed({"generate", "a.tnp", "-o", "b.com"});
  EXPECT_EQ(arguments.What, Command::Generate);
  EXPECT_EQ(arguments.Input, "a.tnp");
  EXPECT_EQ(arguments.OutputFile, "b.com");
  EXPECT_FALSE(arguments.ProgramFolder.has_value());
}

TEST(ArgumentsTest, OptionsMayStandAheadOfTheProject) {
  const Arguments arguments = Parsed({"generate", "--program-folder", "C:\\T", "a.tnp"});
  EXPECT_EQ(arguments.Input, "a.tnp");
  EXPECT_EQ(arguments.ProgramFolder, "C:\\T");
}

TEST(ArgumentsTest, AnOptionTakesItsValueBehindAnEqualsSign) {
  const Arguments arguments = Parsed({"generate", "--program-folder=C:\\T", "--output=x", "a.tnp"});
  EXPECT_EQ(arguments.ProgramFolder, "C:\\T");
  EXPECT_EQ(arguments.OutputFile, "x");
}

TEST(ArgumentsTest, TheProgramFolderIsKeptInTheCodePage) {
  EXPECT_EQ(Parsed({"check", "a", "--program-folder", "C:\\\xC3\xA9"}).ProgramFolder, "C:\\\xE9");
}

TEST(ArgumentsTest, ResaveTakesAProjectAndAFolder) {
  const Arguments arguments = Parsed({"resave", "a.tnp", "out"});
  EXPECT_EQ(arguments.What, Command::Resave);
  EXPECT_EQ(arguments.OutputFolder, "out");
}

TEST(ArgumentsTest, AfterTwoDashesEverythingIsAName) {
  EXPECT_EQ(Parsed({"convert", "--", "-o"}).Input, "-o");
}

TEST(ArgumentsTest, WrongUsageIsOneLineThatSaysHowToCall) {
  for (const auto& words : std::vector<std::vector<std::string>>{{},
                                                                 {"paint"},
                                                                 {"generate"},
                                                                 {"generate", "a", "b"},
                                                                 {"generate", "a", "-o"},
                                                                 {"resave", "a"},
                                                                 {"check", "a", "-o", "b"},
                                                                 {"check", "a", "--program-folder"},
                                                                 {"convert", "a", "--fast"}}) {
    const std::string text = Wrong(words);
    EXPECT_EQ(text.find("tarnwick-cli: "), 0U);
    EXPECT_NE(text.find("usage: tarnwick-cli "), std::string::npos);
    EXPECT_EQ(text.find('\n'), text.size() - 1);
  }
}

TEST(ArgumentsTest, HelpNamesEveryCommandAndOption) {
  const ParsedArguments parsed = ParseArguments({"--help"});
  const auto* const print = std::get_if<PrintAndLeave>(&parsed);
  ASSERT_NE(print, nullptr);
  for (const char* word : {"generate", "resave", "convert", "check", "--program-folder",
                           "--version", "--help", "-o"}) {
    EXPECT_NE(print->Text.find(word), std::string::npos) << word;
  }
}

TEST(ArgumentsTest, HelpIsGivenBehindACommandToo) {
  EXPECT_TRUE(std::holds_alternative<PrintAndLeave>(ParseArguments({"generate", "--help"})));
}

TEST(ArgumentsTest, VersionIsTheProjectsVersion) {
  const ParsedArguments parsed = ParseArguments({"--version"});
  ASSERT_TRUE(std::holds_alternative<PrintAndLeave>(parsed));
  EXPECT_EQ(std::get<PrintAndLeave>(parsed).Text, "tarnwick-cli " TARNWICK_VERSION "\n");
}

}  // namespace
}  // namespace tarnwick
