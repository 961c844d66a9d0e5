// The classes of objects as the checker, the runner and its lists ask for them.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "objects/class_info.h"

namespace tarnwick::objects {

/// The row of a class. `kind` must be a class of the table.
[[nodiscard]] const ClassInfo& InfoOf(basic::ClassId kind);
[[nodiscard]] inline const ClassInfo& InfoOf(ObjectClass kind) {
  return InfoOf(static_cast<basic::ClassId>(kind));
}

/// The class table as the checker sees it. Names are found by hash, whatever their case. Keeps
/// nothing of its own: any number of them are the same.
class ClassTable final : public basic::ClassCatalog {
 public:
  [[nodiscard]] std::optional<basic::ClassId> FindClass(std::string_view name) const override;
  [[nodiscard]] std::string_view ClassName(basic::ClassId kind) const override;
  [[nodiscard]] const basic::MemberFacts* FindMember(basic::ClassId kind,
                                                     std::string_view name) const override;
  [[nodiscard]] std::optional<basic::ClassId> FindBuiltInObject(
      std::string_view name) const override;
  [[nodiscard]] bool CopiesValues(basic::ClassId kind) const override;
  [[nodiscard]] bool IsParent(basic::ClassId kind) const override;
  [[nodiscard]] std::vector<std::string_view> ClassNames() const override;
  [[nodiscard]] std::vector<std::string_view> MemberNames(basic::ClassId kind) const override;
};

}  // namespace tarnwick::objects
