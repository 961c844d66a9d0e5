// The support files as they are delivered, read by the program's own reader, and their sources.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "build/files.h"
#include "build/support_sources.h"
#include "fakes/build_paths.h"
#include "persistence/support_files.h"
#include "text/strings.h"

namespace tarnwick::support {

/// The bytes of a delivered file; a missing one fails the test.
inline std::string Delivered(const std::string& name) {
  const auto bytes = ReadFile(test::ProgramFolder() + "/" + name);
  EXPECT_TRUE(bytes) << name;
  return bytes.value_or("");
}

using language::SupportTables;

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

/// The rows of a list; one that is not there has none.
inline std::vector<std::string> RowsOf(const std::vector<std::string>* list) {
  return list == nullptr ? std::vector<std::string>{} : *list;
}
/// The names of the members of a list.
inline std::vector<std::string> RowsOf(const std::vector<language::KindMember>* list) {
  std::vector<std::string> names;
  if (list == nullptr) return names;
  for (const language::KindMember& member : *list) names.push_back(member.Name);
  return names;
}

}  // namespace tarnwick::support
