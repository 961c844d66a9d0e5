#include "model/design_control.h"

#include <type_traits>

#include "text/code_page.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

double NumberOf(const MemberValue& value) {
  return std::visit(
      [](const auto& v) -> double {
        using T = std::decay_t<decltype(v)>;
        if constexpr (std::is_same_v<T, bool>) {
          return v ? -1.0 : 0.0;
        } else if constexpr (std::is_same_v<T, std::string>) {
          return Val(v);
        } else {
          return static_cast<double>(v);
        }
      },
      value);
}

std::string TextOf(const MemberValue& value) {
  return std::visit(
      [](const auto& v) -> std::string {
        using T = std::decay_t<decltype(v)>;
        if constexpr (std::is_same_v<T, bool>) {
          return v ? "True" : "False";
        } else if constexpr (std::is_same_v<T, std::string>) {
          return v;
        } else if constexpr (std::is_same_v<T, float>) {
          return NumberText(v);
        } else {
          return NumberText(static_cast<std::int64_t>(v));
        }
      },
      value);
}

MemberValue ValueOf(std::int16_t field) {
  return static_cast<std::int32_t>(field);
}
template <class T>
MemberValue ValueOf(const T& field) {
  return field;
}

}  // namespace

std::optional<Member> MemberOfName(std::string_view name) noexcept {
  for (const MemberName& member : kMemberNames) {
    if (EqualsFolded(member.Name, name)) return member.Id;
  }
  return std::nullopt;
}

std::string DesignControl::ArrayAndIndex() const {
  std::string text(InfoOf(Id).Array);
  AppendNumber(text, static_cast<std::int64_t>(Index));
  return text;
}

std::optional<MemberValue> DesignControl::Get(Member member) const {
  if (!Has(member)) return std::nullopt;
  return std::visit(
      [&](auto field) -> std::optional<MemberValue> {
        if constexpr (std::is_same_v<decltype(field), std::monostate>) {
          return std::nullopt;
        } else {
          return ValueOf(this->*field);
        }
      },
      FieldOf(member));
}

std::optional<MemberValue> DesignControl::Get(std::string_view name) const {
  const std::optional<Member> member = MemberOfName(name);
  return member ? Get(*member) : std::nullopt;
}

bool DesignControl::Set(Member member, const MemberValue& value) {
  if (!Has(member)) return false;
  if (member == Member::Value && Class() == ControlClass::OptionButton) {
    SetOption(NumberOf(value));
    return true;
  }
  return std::visit(
      [&](auto field) {
        if constexpr (std::is_same_v<decltype(field), std::monostate>) {
          return false;
        } else if constexpr (std::is_same_v<decltype(field), std::string DesignControl::*>) {
          this->*field = TextOf(value);
          return true;
        } else {
          return SetNumber(this->*field, NumberOf(value));
        }
      },
      FieldOf(member));
}

bool DesignControl::Set(std::string_view name, const MemberValue& value) {
  const std::optional<Member> member = MemberOfName(name);
  return member && Set(*member, value);
}

bool DesignControl::AddItem(std::string_view row) {
  if (!Has(Member::List)) return false;
  Items.emplace_back(row);
  return true;
}

}  // namespace tarnwick
