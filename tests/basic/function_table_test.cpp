#include "basic/lib/function_table.h"

#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "fakes/build_paths.h"

namespace tarnwick::basic {
namespace {

TEST(FunctionTable, FindsANameWithoutRegardToCase) {
  const FunctionInfo* row = FindFunction("left$", 2);
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->Id, FunctionId::Left);
  EXPECT_EQ(row->Name, "LEFT$");
  EXPECT_EQ(row->Result, FunctionType::String);
  EXPECT_EQ(FindFunction("LEFT", 2), nullptr);
}

TEST(FunctionTable, PicksTheRowByTheNumberOfArguments) {
  EXPECT_EQ(FindFunction("INSTR", 2)->Id, FunctionId::Instr);
  EXPECT_EQ(FindFunction("INSTR", 3)->Id, FunctionId::InstrFrom);
  EXPECT_EQ(FindFunction("INSTR", 4), nullptr);
  EXPECT_EQ(FindFunctions("INSTR").size(), 2U);
}

TEST(FunctionTable, CountsOptionalAndRepeatedParameters) {
  const FunctionInfo& mid = FunctionOf(FunctionId::Mid);
  EXPECT_EQ(mid.MinArguments, 2U);
  EXPECT_EQ(mid.MaxArguments, 3U);
  const FunctionInfo& format = FunctionOf(FunctionId::Format);
  EXPECT_EQ(format.MinArguments, 1U);
  EXPECT_EQ(format.MaxArguments, kAnyNumber);
  EXPECT_EQ(format.ParameterOf(9).Kind, ParameterKind::Any);
}

TEST(FunctionTable, RowsOfOneNameStandTogether) {
  for (const FunctionInfo& row : Functions()) {
    const auto same = FindFunctions(row.Name);
    EXPECT_TRUE(&row >= same.data() && &row < same.data() + same.size()) << row.Name;
  }
}

TEST(FunctionTable, NativeFunctionsTakeValuesOnly) {
  for (const FunctionInfo& row : Functions()) {
    if (!row.IsNative()) continue;
    for (const Parameter& parameter : row.Parameters) {
      EXPECT_LE(parameter.Kind, ParameterKind::Any) << row.Name;
    }
  }
}

TEST(FunctionTable, HasEveryWordOfTheLanguagesFunctionHelp) {
  std::ifstream file(test::SourceFolder() + "/support/functions/functions.txt", std::ios::binary);
  std::size_t count = 0;
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.size() < 3 || line.front() != '[' || line.back() != ']') continue;
    const std::string name = line.substr(1, line.size() - 2);
    if (name.starts_with("Tw")) continue;  // a routine of the include file
    ++count;
    EXPECT_FALSE(FindFunctions(name).empty()) << name;
  }
  EXPECT_EQ(count, 211U);
}

TEST(LeftOut, NamesAReasonForEachWord) {
  ASSERT_FALSE(LeftOutWords().empty());
  for (const LeftOut& word : LeftOutWords()) {
    EXPECT_FALSE(word.Reason.empty()) << word.Name;
    // The others are classes, of which a DIM says that there are none.
    EXPECT_NE(FindFunctions(word.Name).empty(), !word.Name.starts_with('Q')) << word.Name;
  }
  ASSERT_NE(FindLeftOut("inputhandle"), nullptr);
  EXPECT_EQ(FindLeftOut("PRINT"), nullptr);
}

}  // namespace
}  // namespace tarnwick::basic
