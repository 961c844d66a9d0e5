#include "objects/class_table.h"

#include <unordered_map>

#include "objects/name_hash.h"
#include "text/code_page.h"

namespace tarnwick::objects {
namespace {

using basic::ClassId;

const std::unordered_map<std::string_view, ClassId, FoldedHash, FoldedEqual>& ByName() {
  static const auto kTable = [] {
    std::unordered_map<std::string_view, ClassId, FoldedHash, FoldedEqual> table;
    std::uint16_t number = 0;
    for (const ClassInfo& row : ClassRows())
      table.emplace(row.Name, static_cast<ClassId>(++number));
    return table;
  }();
  return kTable;
}

std::optional<ClassId> Find(std::string_view name, bool built_in) {
  const auto found = ByName().find(name);
  if (found == ByName().end() || InfoOf(found->second).Has(ClassFlag::BuiltIn) != built_in) {
    return std::nullopt;
  }
  return found->second;
}

}  // namespace

const ClassInfo& InfoOf(ClassId kind) {
  return ClassRows()[static_cast<std::size_t>(kind) - 1];
}

const MemberInfo* ClassInfo::Find(std::string_view name) const noexcept {
  const std::uint8_t index = ByHash[NameHash(name, Seed) & (ByHash.size() - 1)];
  if (index == 255) return nullptr;
  const MemberInfo& member = Members[index];
  return EqualsFolded(member.Facts.Name, name) ? &member : nullptr;
}

std::optional<ClassId> ClassTable::FindClass(std::string_view name) const {
  return Find(name, false);
}

std::string_view ClassTable::ClassName(ClassId kind) const {
  return InfoOf(kind).Name;
}

const basic::MemberFacts* ClassTable::FindMember(ClassId kind, std::string_view name) const {
  const MemberInfo* const member = InfoOf(kind).Find(name);
  return member == nullptr ? nullptr : &member->Facts;
}

std::optional<ClassId> ClassTable::FindBuiltInObject(std::string_view name) const {
  return Find(name, true);
}

bool ClassTable::CopiesValues(ClassId kind) const {
  return InfoOf(kind).Has(ClassFlag::Values);
}

bool ClassTable::IsParent(ClassId kind) const {
  return InfoOf(kind).Has(ClassFlag::Parent);
}

std::vector<std::string_view> ClassTable::ClassNames() const {
  std::vector<std::string_view> names;
  for (const ClassInfo& row : ClassRows()) {
    if (!row.Has(ClassFlag::BuiltIn)) names.push_back(row.Name);
  }
  return names;
}

std::vector<std::string_view> ClassTable::MemberNames(ClassId kind) const {
  std::vector<std::string_view> names;
  for (const MemberInfo& member : InfoOf(kind).Members) names.push_back(member.Facts.Name);
  return names;
}

}  // namespace tarnwick::objects
