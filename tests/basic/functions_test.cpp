// The conformance table of the functions, as far as the function library goes by itself.
#include <algorithm>
#include <array>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "basic/conformance_table.h"
#include "basic/lib/function_table.h"
#include "basic/native_lines.h"

namespace tarnwick::basic {
namespace {

TEST(FunctionRows, NativeFunctionsGiveWhatTheirRowsSay) {
  int count = 0;
  for (const ConformanceRow& row : ReadConformanceRows("functions.tsv")) {
    const std::optional<LineResult> result = RunNativeLine(row.Program);
    if (!result) continue;  // needs more of the language than the function library
    ++count;
    const std::string output = OutputField(result->Output, result->Error, result->Notes);
    EXPECT_TRUE(Fits(row, output)) << row.Where << ": " << row.Program << "\ngives    " << output
                                   << "\nexpected " << row.Output;
  }
  EXPECT_GT(count, 500);
}

TEST(FunctionRows, EveryNativeFunctionHasFiveRowsThatRun) {
  std::map<std::string, int, std::less<>> count;
  for (const ConformanceRow& row : ReadConformanceRows("functions.tsv")) {
    if (RunNativeLine(row.Program)) ++count[row.Word];
  }
  for (const FunctionInfo& function : Functions()) {
    if (!function.IsNative() || FindLeftOut(function.Name) != nullptr) continue;
    // Their arguments are addresses of variables.
    if (function.Name.starts_with("MEM") || function.Name == "VARPTR$") continue;
    EXPECT_GE(count[std::string(function.Name)], 5) << function.Name;
  }
}

/// Words that make or use objects, or other files: their rows stand with the objects' tests.
constexpr std::array<std::string_view, 8> kNeedsMore = {
    "CONSTRUCTOR", "CREATE", "EVENT", "EXTENDS", "PROPERTY SET", "SUPER", "$INCLUDE", "$RESOURCE"};

TEST(FunctionRows, EveryWordHasFiveRowsOrIsLeftOut) {
  std::map<std::string, int, std::less<>> count;
  for (const ConformanceRow& row : ReadConformanceRows("functions.tsv")) ++count[row.Word];
  for (const FunctionInfo& function : Functions()) {
    if (FindLeftOut(function.Name) != nullptr) continue;
    if (std::find(kNeedsMore.begin(), kNeedsMore.end(), function.Name) != kNeedsMore.end()) {
      continue;
    }
    EXPECT_GE(count[std::string(function.Name)], 5) << function.Name;
  }
}

TEST(FunctionRows, EveryRowNamesAWordAndItsMark) {
  for (const ConformanceRow& row : ReadConformanceRows("functions.tsv")) {
    EXPECT_FALSE(FindFunctions(row.Word).empty()) << row.Where;
    EXPECT_EQ(row.Mark.size(), 1U) << row.Where;
    EXPECT_NE(std::string("MGK?").find(row.Mark), std::string::npos) << row.Where;
  }
}

}  // namespace
}  // namespace tarnwick::basic
