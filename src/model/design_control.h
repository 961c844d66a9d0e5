// A design control: the object on a design form, with late-bound members.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "model/kinds.h"
#include "model/members.h"
#include "text/numbers.h"

namespace tarnwick {

using MemberValue = std::variant<bool, std::int32_t, float, std::string>;

/// One control of a design form: plain data, plus access by member for callers that set a member
/// on every kind and go on where the kind lacks it. Left, Top, Width and Height are twips.
struct DesignControl {
  Kind Id = Kind::Button;
  int Index = 0;  ///< element of the control array; 0 is the template

  std::string Tag;  ///< the name that the user sees
  bool Visible = false;
  bool Enabled = true;
  float Left = 0;
  float Top = 0;
  float Width = 0;
  float Height = 0;

  std::string Caption;
  std::string Text;
  std::string ToolTipText;
  std::string FontName;
  float FontSize = 8;
  bool FontBold = false;
  bool FontItalic = false;
  bool FontUnderline = false;
  bool FontStrikethru = false;
  bool AutoSize = false;
  bool Stretch = false;
  bool WordWrap = false;
  bool Default = false;
  bool Cancel = false;
  std::int16_t Value = 0;  ///< of an option button only 0 and -1
  std::int16_t BackStyle = 1;
  std::int16_t BorderStyle = 1;
  std::int16_t Appearance = 1;
  std::int16_t TabIndex = 0;
  std::int32_t BackColor = 0;
  std::int32_t ForeColor = 0;
  std::string Picture;             ///< path of the loaded picture; "" for none
  std::vector<std::string> Items;  ///< rows of the control's own list
  std::int16_t MenuParent = 0;     ///< of a menu item: the number of its title

  [[nodiscard]] ControlClass Class() const noexcept { return InfoOf(Id).Class; }
  [[nodiscard]] bool Has(Member member) const noexcept { return HasMember(Class(), member); }
  /// The kind's word of the array and the element's index, "Images3".
  [[nodiscard]] std::string ArrayAndIndex() const;

  /// The member's value; null when the class has no such member.
  [[nodiscard]] std::optional<MemberValue> Get(Member member) const;
  [[nodiscard]] std::optional<MemberValue> Get(std::string_view name) const;
  /// Sets a member. False, and nothing changed, when the class has no such member or the value
  /// does not fit it. Numbers convert as the platform does: a text counts by the number at its
  /// head, a yes/no member is on for any number but 0.
  bool Set(Member member, const MemberValue& value);
  bool Set(std::string_view name, const MemberValue& value);
  /// Sets the state of an option button: it is on or off and keeps no other number.
  void SetOption(double number) noexcept {
    Value = number != 0.0 ? std::int16_t{-1} : std::int16_t{0};
  }
  /// Adds a row to the control's list; false for a class without one.
  bool AddItem(std::string_view row);
};

/// The field of a member in a control; none for List, whose rows are no single value.
using MemberField = std::variant<std::monostate, bool DesignControl::*,
                                 std::int16_t DesignControl::*, std::int32_t DesignControl::*,
                                 float DesignControl::*, std::string DesignControl::*>;

/// The fields of the members, by enumerator. No other table maps members to fields.
struct MemberFieldRow {
  Member Id;
  MemberField Field;
};
inline constexpr std::array<MemberFieldRow, kMemberCount> kMemberFields{{
    {Member::Appearance, &DesignControl::Appearance},
    {Member::AutoSize, &DesignControl::AutoSize},
    {Member::BackColor, &DesignControl::BackColor},
    {Member::BackStyle, &DesignControl::BackStyle},
    {Member::BorderStyle, &DesignControl::BorderStyle},
    {Member::Cancel, &DesignControl::Cancel},
    {Member::Caption, &DesignControl::Caption},
    {Member::Default, &DesignControl::Default},
    {Member::Enabled, &DesignControl::Enabled},
    {Member::FontBold, &DesignControl::FontBold},
    {Member::FontItalic, &DesignControl::FontItalic},
    {Member::FontName, &DesignControl::FontName},
    {Member::FontSize, &DesignControl::FontSize},
    {Member::FontStrikethru, &DesignControl::FontStrikethru},
    {Member::FontUnderline, &DesignControl::FontUnderline},
    {Member::ForeColor, &DesignControl::ForeColor},
    {Member::Height, &DesignControl::Height},
    {Member::Left, &DesignControl::Left},
    {Member::List, std::monostate{}},
    {Member::Picture, &DesignControl::Picture},
    {Member::Stretch, &DesignControl::Stretch},
    {Member::TabIndex, &DesignControl::TabIndex},
    {Member::Tag, &DesignControl::Tag},
    {Member::Text, &DesignControl::Text},
    {Member::ToolTipText, &DesignControl::ToolTipText},
    {Member::Top, &DesignControl::Top},
    {Member::Value, &DesignControl::Value},
    {Member::Visible, &DesignControl::Visible},
    {Member::Width, &DesignControl::Width},
    {Member::WordWrap, &DesignControl::WordWrap},
}};
static_assert(HasRowOfEach(kMemberFields, kMemberCount));

[[nodiscard]] constexpr const MemberField& FieldOf(Member member) noexcept {
  return kMemberFields[static_cast<std::size_t>(member)].Field;
}

/// Puts a number into a member's field. A yes/no field is on for any number but 0; false, and the
/// field as it was, for one that does not fit.
template <class Field>
bool SetNumber(Field& field, double number) noexcept {
  if constexpr (std::is_same_v<Field, bool>) {
    field = number != 0.0;
    return true;
  } else {
    const std::optional<Field> fitting = [&] {
      if constexpr (std::is_same_v<Field, float>) {
        return ToSingle(number);
      } else {
        return ToWhole<Field>(number);
      }
    }();
    if (fitting) field = *fitting;
    return fitting.has_value();
  }
}

/// Puts a text, or the number at its head, into a member's field as SetNumber does.
template <class Field>
bool SetFromText(Field& field, std::string_view text) {
  if constexpr (std::is_same_v<Field, std::string>) {
    field = text;
    return true;
  } else if constexpr (std::is_same_v<Field, std::int16_t> || std::is_same_v<Field, std::int32_t>) {
    return ReadNumber(text, field);
  } else {
    return SetNumber(field, Val(text));
  }
}

}  // namespace tarnwick
