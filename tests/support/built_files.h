// The support files as they are delivered, read by the program's own reader, and their sources.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "build/support_sources.h"
#include "fakes/build_paths.h"
#include "persistence/support_tables.h"
#include "text/strings.h"

namespace tarnwick::support {

/// The bytes of a delivered file; a missing one fails the test.
inline std::string Delivered(const std::string& name) {
  const auto bytes = ReadFile(test::ProgramFolder() + "/" + name);
  EXPECT_TRUE(bytes) << name;
  return bytes.value_or("");
}

inline const SupportTables& DeliveredTables() {
  static const SupportTables tables = [] {
    SupportTables read;
    AddFunctionFile(read, Delivered("Add002.tn"));
    AddMemberFile(read, Delivered("Add001.tn"));
    AddKindFile(read, Delivered("Add004.tn"));
    AddKeywordFile(read, Delivered("Add003.tn"));
    return read;
  }();
  return tables;
}

inline const SupportSources& Sources() {
  static const SupportSources sources = [] {
    Faults faults;
    SupportSources read = LoadSources(test::SourceFolder() + "/support", faults);
    EXPECT_TRUE(faults.Empty());
    return read;
  }();
  return sources;
}

/// The rows of a list value; an empty value has none.
inline std::vector<std::string> RowsOf(const std::string* value) {
  std::vector<std::string> rows;
  if (value == nullptr || value->empty()) return rows;
  for (const auto row : Split(*value, "\x95")) rows.emplace_back(row);
  return rows;
}

}  // namespace tarnwick::support
