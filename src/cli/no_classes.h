// The catalog of a run without objects.
#pragma once

#include "basic/check/class_catalog.h"

namespace tarnwick {

/// Knows no class: a DIM of an object is an error that says so.
class NoClasses final : public basic::ClassCatalog {
 public:
  [[nodiscard]] std::optional<basic::ClassId> FindClass(std::string_view) const override {
    return std::nullopt;
  }
  [[nodiscard]] std::string_view ClassName(basic::ClassId) const override { return {}; }
  [[nodiscard]] const basic::MemberFacts* FindMember(basic::ClassId,
                                                     std::string_view) const override {
    return nullptr;
  }
  [[nodiscard]] std::optional<basic::ClassId> FindBuiltInObject(std::string_view) const override {
    return std::nullopt;
  }
  [[nodiscard]] bool CopiesValues(basic::ClassId) const override { return false; }
  [[nodiscard]] bool IsParent(basic::ClassId) const override { return false; }
  [[nodiscard]] std::vector<std::string_view> ClassNames() const override { return {}; }
  [[nodiscard]] std::vector<std::string_view> MemberNames(basic::ClassId) const override {
    return {};
  }
};

}  // namespace tarnwick
