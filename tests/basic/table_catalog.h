// The classes of objects from the rows of support/objects, for tests of the checker.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "basic/check/class_catalog.h"
#include "text/code_page.h"

namespace tarnwick::basic::test {

/// Members as the rows have them, with the few that programs use and no row has. Methods return a
/// value where their row says FUNCTION.
class TableCatalog : public ClassCatalog {
 public:
  TableCatalog();
  [[nodiscard]] std::optional<ClassId> FindClass(std::string_view name) const override;
  [[nodiscard]] std::string_view ClassName(ClassId kind) const override;
  [[nodiscard]] const MemberFacts* FindMember(ClassId kind, std::string_view name) const override;
  [[nodiscard]] std::optional<ClassId> FindBuiltInObject(std::string_view name) const override;
  [[nodiscard]] bool CopiesValues(ClassId kind) const override;
  [[nodiscard]] bool IsParent(ClassId kind) const override;
  [[nodiscard]] std::vector<std::string_view> ClassNames() const override;
  [[nodiscard]] std::vector<std::string_view> MemberNames(ClassId kind) const override;

 private:
  struct ClassRow {
    std::string Name;
    std::unordered_map<std::string, MemberFacts, FoldedHash, FoldedEqual> Members;
  };
  ClassRow& RowOf(std::string_view name);
  void AddMember(ClassRow& row, std::string_view name, std::string_view category,
                 std::string_view signature, std::string_view access);
  void TakeSignature(std::string_view signature, MemberFacts& facts);
  [[nodiscard]] Type TypeNamed(std::string_view name);
  std::string_view Keep(std::string_view text) { return texts_.emplace_back(text); }

  std::deque<ClassRow> rows_;
  std::deque<std::string> texts_;
  std::deque<std::vector<MemberParameter>> parameters_;
};

/// One for all tests: it is never changed.
[[nodiscard]] const TableCatalog& Classes();

}  // namespace tarnwick::basic::test
