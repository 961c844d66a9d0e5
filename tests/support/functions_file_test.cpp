#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "built_files.h"

namespace tarnwick::support {
namespace {

TEST(FunctionsFile, AtLeastTwoHundredFunctionsEachWithSyntaxDescriptionAndExample) {
  const SupportTables& tables = DeliveredTables();
  ASSERT_EQ(tables.ListColFunc.size(), tables.FunctionDescriptions.size());
  EXPECT_GE(tables.ListColFunc.size() - 1, 200U);
  for (std::size_t n = 1; n < tables.ListColFunc.size(); ++n) {
    const std::string& name = tables.ListColFunc[n];
    const auto lines = Split(tables.FunctionDescriptions[n], "\r\n");
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
  std::vector<std::string> functions(tables.ListColFunc.begin() + 1, tables.ListColFunc.end());
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

TEST(FunctionsFile, CommasAreStoredByTheirStandIn) {
  const std::string text = Delivered("Add002.tn");
  const std::size_t functions = text.find("\r\n", text.find("\r\n") + 2);
  ASSERT_NE(functions, std::string::npos);
  EXPECT_EQ(text.find(',', functions), std::string::npos);
  EXPECT_EQ(std::count(text.begin(), text.end(), ','), 1);
  const auto& names = DeliveredTables().ListColFunc;
  const auto mid = std::find(names.begin(), names.end(), "MID$");
  ASSERT_NE(mid, names.end());
  EXPECT_TRUE(DeliveredTables()
                  .FunctionDescriptions[static_cast<std::size_t>(mid - names.begin())]
                  .starts_with("MID$(s$, start [, count])\r\n"));
}

TEST(KeywordsFile, IsOneLineOfWordsAndEachIsThere) {
  const std::string text = Delivered("Add003.tn");
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1);
  EXPECT_TRUE(text.ends_with("\r\n"));
  std::string expected;
  for (const Word& word : Sources().Keywords) expected += word.Text + "\n";
  EXPECT_EQ(DeliveredTables().Keywords, expected + "\n");
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
