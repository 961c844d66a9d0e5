// The conformance tables through parser, checker, emitter and machine.
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "basic/conformance_table.h"
#include "basic/lib/function_table.h"
#include "basic/run_source.h"

namespace tarnwick::basic {
namespace {

void ExpectRows(const char* file, Dispatch how) {
  for (const ConformanceRow& row : ReadConformanceRows(file)) {
    const LineResult result = RunTableProgram(row.Program, how);
    const std::string output = OutputField(result.Output, result.Error, result.Notes);
    EXPECT_TRUE(Fits(row, output)) << row.Where << ": " << row.Program << "\ngives    " << output
                                   << "\nexpected " << row.Output;
  }
}

TEST(SourceRows, FunctionsGiveWhatTheirRowsSay) {
  ExpectRows("functions.tsv", Dispatch::Threaded);
}

TEST(SourceRows, OperatorsGiveWhatTheirRowsSay) {
  ExpectRows("operators.tsv", Dispatch::Threaded);
}

TEST(SourceRows, BothDispatchesGiveTheSame) {
  ExpectRows("operators.tsv", Dispatch::Switch);
  ExpectRows("functions.tsv", Dispatch::Switch);
}

TEST(SourceRows, EveryOperatorHasFiveRows) {
  std::map<std::string, int, std::less<>> count;
  for (const char* file : {"functions.tsv", "operators.tsv"}) {
    for (const ConformanceRow& row : ReadConformanceRows(file)) ++count[row.Word];
  }
  for (const char* word :
       {"+",  "-",   "*",   "/",   "\\",  "^",   "&",         "=",         "<>",  "<",
        ">",  "<=",  ">=",  "[]",  "++",  "--",  "+=",        "-=",        "NOT", "AND",
        "OR", "XOR", "MOD", "INV", "SHL", "SHR", "narrowing", "precedence"}) {
    EXPECT_GE(count[word], 5) << word;
  }
}

TEST(SourceRows, AWrongNumberOfArgumentsIsAFaultOfTheProgram) {
  for (const FunctionInfo& row : Functions()) {
    const bool one_row = FindFunctions(row.Name).size() == 1;
    if (!row.IsNative() || FindLeftOut(row.Name) != nullptr || !one_row) continue;
    const auto call = [&row](std::size_t count) {
      std::string text = std::string(row.Name) + "(";
      for (std::size_t i = 0; i < count; ++i) text += i == 0 ? "1" : ", 1";
      return (row.Form == FunctionForm::Function ? "PRINT " : "") + text + ")";
    };
    if (row.MaxArguments != kAnyNumber) {
      EXPECT_NE(RunTableProgram(call(row.MaxArguments + 1)).Error, "") << row.Name;
    }
    if (row.MinArguments > 0) {
      EXPECT_NE(RunTableProgram(call(row.MinArguments - 1)).Error, "") << row.Name;
    }
  }
}

}  // namespace
}  // namespace tarnwick::basic
