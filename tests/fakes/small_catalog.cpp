#include "fakes/small_catalog.h"

namespace tarnwick::test {

std::optional<basic::ClassId> SmallCatalog::FindClass(std::string_view name) const {
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    if (EqualsFolded(kNames[i], name)) return static_cast<basic::ClassId>(i);
  }
  return std::nullopt;
}

std::string_view SmallCatalog::ClassName(basic::ClassId kind) const {
  return kNames[static_cast<std::size_t>(kind)];
}

const basic::MemberFacts* SmallCatalog::FindMember(basic::ClassId /*kind*/,
                                                   std::string_view name) const {
  for (const basic::MemberFacts& facts : members_) {
    if (EqualsFolded(facts.Name, name)) return &facts;
  }
  return nullptr;
}

std::optional<basic::ClassId> SmallCatalog::FindBuiltInObject(std::string_view name) const {
  if (EqualsFolded(name, kNames[3])) return static_cast<basic::ClassId>(3);
  return std::nullopt;
}

bool SmallCatalog::CopiesValues(basic::ClassId kind) const {
  return kind == static_cast<basic::ClassId>(1);
}

bool SmallCatalog::IsParent(basic::ClassId kind) const {
  return kind == static_cast<basic::ClassId>(0);
}

std::vector<std::string_view> SmallCatalog::ClassNames() const {
  return {kNames.begin(), kNames.end()};
}

std::vector<std::string_view> SmallCatalog::MemberNames(basic::ClassId /*kind*/) const {
  std::vector<std::string_view> names;
  for (const basic::MemberFacts& facts : members_) names.push_back(facts.Name);
  return names;
}

basic::MemberFacts SmallCatalog::Property(int id, std::string_view name, basic::Type type) {
  return {static_cast<basic::MemberId>(id),
          name,
          Kind::Property,
          type,
          {},
          0,
          false,
          true,
          true,
          Level::Full,
          {}};
}

}  // namespace tarnwick::test
