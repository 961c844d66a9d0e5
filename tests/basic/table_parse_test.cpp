#include <string>

#include <gtest/gtest.h>

#include "basic/conformance_table.h"
#include "fakes/source_text.h"

namespace tarnwick::basic {
namespace {

TEST(ConformanceRows, ProgramsWithoutAFaultParse) {
  for (const char* file : {"functions.tsv", "operators.tsv"}) {
    for (const ConformanceRow& row : ReadConformanceRows(file)) {
      if (row.Output.find("error: ") != std::string::npos) continue;
      const test::ParsedText parsed(row.Program);
      EXPECT_EQ(parsed.Faults(), "") << row.Where << ": " << row.Program;
    }
  }
}

}  // namespace
}  // namespace tarnwick::basic
