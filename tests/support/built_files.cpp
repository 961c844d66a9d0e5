#include "support/built_files.h"

namespace tarnwick::support {

std::string Delivered(const std::string& name) {
  const auto bytes = ReadFile(test::ProgramFolder() + "/" + name);
  EXPECT_TRUE(bytes) << name;
  return bytes.value_or("");
}

const SupportTables& DeliveredTables() {
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

const SupportSources& Sources() {
  static const SupportSources sources = [] {
    Faults faults;
    SupportSources read = LoadSources(test::SourceFolder() + "/support", faults);
    EXPECT_TRUE(faults.Empty());
    return read;
  }();
  return sources;
}

std::vector<std::string> RowsOf(const std::vector<language::KindMember>* list) {
  std::vector<std::string> names;
  if (list == nullptr) return names;
  for (const language::KindMember& member : *list) names.push_back(member.Name);
  return names;
}

}  // namespace tarnwick::support
