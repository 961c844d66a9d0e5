// A few classes with a member of every sort, for checks of programs that need no more.
#pragma once

#include <array>
#include <cstddef>

#include "basic/check/class_catalog.h"
#include "text/code_page.h"

namespace tarnwick::test {

/// QFORM, which can be a parent; QFONT, whose values are copied; QMENUITEM; the object Screen. All
/// have the same members.
class SmallCatalog : public basic::ClassCatalog {
 public:
  [[nodiscard]] std::optional<basic::ClassId> FindClass(std::string_view name) const override;
  [[nodiscard]] std::string_view ClassName(basic::ClassId kind) const override;
  [[nodiscard]] const basic::MemberFacts* FindMember(basic::ClassId /*kind*/,
                                                     std::string_view name) const override;
  [[nodiscard]] std::optional<basic::ClassId> FindBuiltInObject(
      std::string_view name) const override;
  [[nodiscard]] bool CopiesValues(basic::ClassId kind) const override;
  [[nodiscard]] bool IsParent(basic::ClassId kind) const override;
  [[nodiscard]] std::vector<std::string_view> ClassNames() const override;
  [[nodiscard]] std::vector<std::string_view> MemberNames(basic::ClassId /*kind*/) const override;

 private:
  static constexpr std::array<std::string_view, 4> kNames = {"QFORM", "QFONT", "QMENUITEM",
                                                             "Screen"};
  static constexpr std::array<basic::MemberParameter, 1> kWhole = {{{basic::kWholeType, false}}};
  static constexpr std::array<basic::MemberParameter, 1> kAny = {{{basic::kVariantType, false}}};
  static constexpr std::array<basic::MemberParameter, 1> kVariable = {
      {{basic::kVariantType, true}}};

  using Kind = basic::MemberKind;
  using Level = basic::SupportLevel;
  static basic::MemberFacts Property(int id, std::string_view name, basic::Type type);
  std::array<basic::MemberFacts, 9> members_ = {{
      Property(0, "Caption", basic::kTextType),
      Property(1, "Width", basic::kWholeType),
      Property(2, "Font", basic::kAnyObjectType),
      Property(3, "Parent", basic::kAnyObjectType),
      {basic::MemberId{4},
       "Item",
       Kind::ArrayProperty,
       basic::kTextType,
       kWhole,
       1,
       false,
       true,
       true,
       Level::Full,
       {}},
      {basic::MemberId{5},
       "AddItems",
       Kind::Method,
       basic::kNoType,
       kAny,
       1,
       true,
       true,
       true,
       Level::Full,
       {}},
      {basic::MemberId{6},
       "Read",
       Kind::Method,
       basic::kWholeType,
       kVariable,
       1,
       false,
       true,
       true,
       Level::Full,
       {}},
      {basic::MemberId{7},
       "OnClick",
       Kind::Event,
       basic::kNoType,
       {},
       0,
       false,
       true,
       true,
       Level::Full,
       {}},
      {basic::MemberId{8},
       "WndProc",
       Kind::Event,
       basic::kNoType,
       {},
       0,
       false,
       true,
       true,
       Level::None,
       "Use the events"},
  }};
};

}  // namespace tarnwick::test
