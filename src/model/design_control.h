// A design control: the object on a design form, with late-bound members.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "model/vocabulary.h"
#include "text/numbers.h"

namespace tarnwick {

/// Members that can be read and set by name. `AddItem` stands for the list of a control.
enum class Member : std::uint8_t {
  Appearance,
  AutoSize,
  BackColor,
  BackStyle,
  BorderStyle,
  Cancel,
  Caption,
  Default,
  Enabled,
  FontBold,
  FontItalic,
  FontName,
  FontSize,
  FontStrikethru,
  FontUnderline,
  ForeColor,
  Height,
  Left,
  List,
  Picture,
  Stretch,
  TabIndex,
  Tag,
  Text,
  ToolTipText,
  Top,
  Value,
  Visible,
  Width,
  WordWrap,
};
inline constexpr std::size_t kMemberCount = 30;
/// Their names, by enumerator.
inline constexpr std::array<std::string_view, kMemberCount> kMemberNames{
    "Appearance", "AutoSize", "BackColor", "BackStyle",      "BorderStyle",
    "Cancel",     "Caption",  "Default",   "Enabled",        "FontBold",
    "FontItalic", "FontName", "FontSize",  "FontStrikethru", "FontUnderline",
    "ForeColor",  "Height",   "Left",      "List",           "Picture",
    "Stretch",    "TabIndex", "Tag",       "Text",           "ToolTipText",
    "Top",        "Value",    "Visible",   "Width",          "WordWrap",
};

/// The member of a name without regard to case; nothing for a word no class knows.
[[nodiscard]] std::optional<Member> MemberOfName(std::string_view name) noexcept;

/// A set of members, one bit each.
using MemberSet = std::uint32_t;
static_assert(kMemberCount <= 32);

/// The members of each control class. What a class lacks here is what the form file, the property
/// sheet and the generated program leave out for its kinds.
inline constexpr auto kMembersOf = [] {
  using enum Member;
  const auto of = [](std::initializer_list<Member> members) {
    MemberSet set = 0;
    for (const Member member : members) set |= MemberSet{1} << static_cast<unsigned>(member);
    return set;
  };
  const MemberSet place = of({Enabled, Height, Left, Tag, ToolTipText, Top, Visible, Width});
  const MemberSet font =
      of({FontBold, FontItalic, FontName, FontSize, FontStrikethru, FontUnderline});
  return std::array<MemberSet, 12>{
      // CommandButton: no foreground colour, hence the font colour in its record
      place | font | of({Appearance, BackColor, Cancel, Caption, Default, Picture, TabIndex}),
      // Label
      place | font |
          of({Appearance, AutoSize, BackColor, BackStyle, BorderStyle, Caption, ForeColor, TabIndex,
              WordWrap}),
      // Image
      place | of({Appearance, BorderStyle, Picture, Stretch}),
      // CheckBox
      place | font | of({Appearance, BackColor, Caption, ForeColor, TabIndex, Value}),
      // OptionButton
      place | font | of({Appearance, BackColor, Caption, ForeColor, TabIndex, Value}),
      // TextBox
      place | font | of({Appearance, BackColor, BorderStyle, ForeColor, TabIndex, Text}),
      // ListBox
      place | font | of({Appearance, BackColor, ForeColor, List, TabIndex}),
      // UserControl1: its font is one object, not members
      place | of({Appearance, BackColor, BackStyle, BorderStyle, ForeColor, List, TabIndex, Text}),
      // PictureBox
      place | font |
          of({Appearance, AutoSize, BackColor, BorderStyle, ForeColor, Picture, TabIndex}),
      // Frame
      place | font | of({Appearance, BackColor, BorderStyle, Caption, ForeColor, TabIndex}),
      // Menu
      of({Caption, Enabled, Tag, Visible}),
      // Form
      place | font | of({Appearance, BackColor, BorderStyle, Caption, ForeColor, Picture}),
  };
}();

/// True when controls of the class have the member.
[[nodiscard]] constexpr bool HasMember(ControlClass control_class, Member member) noexcept {
  const MemberSet members = kMembersOf[static_cast<std::size_t>(control_class)];
  return (members >> static_cast<unsigned>(member) & 1U) != 0;
}

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

  /// The member's value; nothing when the class has no such member.
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

/// Where a member lives in a control; nothing for List, whose rows are no single value.
using MemberField = std::variant<std::monostate, bool DesignControl::*,
                                 std::int16_t DesignControl::*, std::int32_t DesignControl::*,
                                 float DesignControl::*, std::string DesignControl::*>;

/// The fields of the members, by enumerator: the one place that ties the two.
inline constexpr std::array<MemberField, kMemberCount> kMemberFields{
    &DesignControl::Appearance,
    &DesignControl::AutoSize,
    &DesignControl::BackColor,
    &DesignControl::BackStyle,
    &DesignControl::BorderStyle,
    &DesignControl::Cancel,
    &DesignControl::Caption,
    &DesignControl::Default,
    &DesignControl::Enabled,
    &DesignControl::FontBold,
    &DesignControl::FontItalic,
    &DesignControl::FontName,
    &DesignControl::FontSize,
    &DesignControl::FontStrikethru,
    &DesignControl::FontUnderline,
    &DesignControl::ForeColor,
    &DesignControl::Height,
    &DesignControl::Left,
    std::monostate{},
    &DesignControl::Picture,
    &DesignControl::Stretch,
    &DesignControl::TabIndex,
    &DesignControl::Tag,
    &DesignControl::Text,
    &DesignControl::ToolTipText,
    &DesignControl::Top,
    &DesignControl::Value,
    &DesignControl::Visible,
    &DesignControl::Width,
    &DesignControl::WordWrap,
};

[[nodiscard]] constexpr const MemberField& FieldOf(Member member) noexcept {
  return kMemberFields[static_cast<std::size_t>(member)];
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
