#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "built_files.h"

namespace tarnwick::support {
namespace {

TEST(FunctionsFile, AtLeastTwoHundredFunctionsEachWithSyntaxDescriptionAndExample) {
  const SupportTables& tables = DeliveredTables();
  EXPECT_GE(tables.Functions.Rows().size(), 200U);
  for (const language::FunctionHelp& function : tables.Functions.Rows()) {
    const std::string& name = function.Name;
    const auto lines = Split(function.Help, "\r\n");
    ASSERT_GE(lines.size(), 6U) << name;
    EXPECT_NE(Upper(lines[0]).find(Upper(WordsOf(name).front())), std::string::npos) << name;
    EXPECT_EQ(lines[1], "") << name;
    EXPECT_GE(lines[2].size(), 8U) << name;
    const auto example = std::find(lines.begin(), lines.end(), "Example:");
    ASSERT_NE(example, lines.end()) << name;
    ASSERT_NE(example + 1, lines.end()) << name;
    EXPECT_TRUE((example + 1)->starts_with("  ")) << name;
  }
}

TEST(FunctionsFile, TheExampleUsesTheFunction) {
  // What stands at the end of a block is shown by the block.
  for (const FunctionEntry& function : Sources().Functions) {
    bool used = false;
    const std::string word = WordsOf(function.Name).front();
    for (const std::string& line : function.Example) {
      used = used || FindFolded(line, word) != std::string::npos;
    }
    EXPECT_TRUE(used) << function.Name;
  }
}

TEST(FunctionsFile, ThePanelListsEveryFunctionOnceAndInOrder) {
  const SupportTables& tables = DeliveredTables();
  std::vector<std::string> listed = tables.ListFunc1;
  listed.insert(listed.end(), tables.ListFunc0.begin(), tables.ListFunc0.end());
  std::vector<std::string> functions;
  for (const language::FunctionHelp& function : tables.Functions.Rows()) {
    functions.push_back(function.Name);
  }
  EXPECT_EQ(listed, functions);
  EXPECT_EQ(std::set<std::string>(listed.begin(), listed.end()).size(), listed.size());
  EXPECT_TRUE(std::is_sorted(tables.ListFunc1.begin(), tables.ListFunc1.end()));
  EXPECT_GE(tables.ListFunc1.size(), 100U);
  EXPECT_GE(tables.ListFunc0.size(), 20U);
}

TEST(FunctionsFile, TheFirstTabHasTheLanguageTheSecondTheFurtherParts) {
  const SupportTables& tables = DeliveredTables();
  const auto has = [](const std::vector<std::string>& list, const char* name) {
    return std::find(list.begin(), list.end(), name) != list.end();
  };
  EXPECT_TRUE(has(tables.ListFunc1, "MID$"));
  EXPECT_TRUE(has(tables.ListFunc1, "SELECT CASE"));
  EXPECT_TRUE(has(tables.ListFunc0, "$IFDEF"));
  EXPECT_TRUE(has(tables.ListFunc0, "TwAsk"));
}

// NOT turns every bit over: of TRUE, which is 1, it makes a number that is true as well.
TEST(FunctionsFile, ExamplesTurnRoundOnlyWhatIsMinusOneWhenItIsTrue) {
  for (const char* name : {"Add001.tn", "Add002.tn"}) {
    const std::string text = Delivered(name);
    for (std::size_t at = text.find("NOT "); at != std::string::npos;
         at = text.find("NOT ", at + 1)) {
      const auto ends = [](char c) { return c <= ' '; };  // separators count as negative
      const auto from = text.begin() + static_cast<std::ptrdiff_t>(at) + 4;
      const std::string operand(from, std::find_if(from, text.end(), ends));
      EXPECT_TRUE(operand == "a" || operand.starts_with("(") || operand.ends_with(".EOF"))
          << name << ": NOT " << operand;
    }
  }
}

TEST(FunctionsFile, CommasAreStoredByTheirStandIn) {
  const std::string text = Delivered("Add002.tn");
  const std::size_t functions = text.find("\r\n", text.find("\r\n") + 2);
  ASSERT_NE(functions, std::string::npos);
  EXPECT_EQ(text.find(',', functions), std::string::npos);
  EXPECT_EQ(std::count(text.begin(), text.end(), ','), 1);
  const language::FunctionHelp* mid = DeliveredTables().Functions.Find("MID$");
  ASSERT_NE(mid, nullptr);
  EXPECT_TRUE(mid->Help.starts_with("MID$(s$, start [, count])\r\n"));
}

TEST(KeywordsFile, IsOneLineOfWordsAndEachIsThere) {
  const std::string text = Delivered("Add003.tn");
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1);
  EXPECT_TRUE(text.ends_with("\r\n"));
  std::vector<std::string> expected;
  for (const Word& word : Sources().Keywords) expected.push_back(word.Text);
  EXPECT_EQ(DeliveredTables().Keywords, expected);
  EXPECT_GE(Sources().Keywords.size(), 250U);
}

TEST(KeywordsFile, EveryWordOfAFunctionOfTheLanguageIsColoured) {
  std::set<std::string> keywords;
  for (const Word& word : Sources().Keywords) keywords.insert(word.Text);
  for (const FunctionEntry& function : Sources().Functions) {
    if (function.Group == "library") continue;
    for (std::string word : WordsOf(function.Name)) {
      if (word.starts_with('$')) word.erase(0, 1);
      EXPECT_TRUE(keywords.contains(word)) << word;
    }
  }
}

}  // namespace
}  // namespace tarnwick::support
