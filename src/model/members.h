// The members that design controls can have, and which class of controls has which.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>

#include "text/enum_table.h"

namespace tarnwick {

/// Members that can be read and set by name. List is the list of a control, which AddItem() fills.
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
inline constexpr std::size_t kMemberCount = static_cast<std::size_t>(Member::WordWrap) + 1;

struct MemberName {
  Member Id;
  std::string_view Name;
};
/// Their names, by enumerator.
inline constexpr std::array<MemberName, kMemberCount> kMemberNames{{
    {Member::Appearance, "Appearance"},
    {Member::AutoSize, "AutoSize"},
    {Member::BackColor, "BackColor"},
    {Member::BackStyle, "BackStyle"},
    {Member::BorderStyle, "BorderStyle"},
    {Member::Cancel, "Cancel"},
    {Member::Caption, "Caption"},
    {Member::Default, "Default"},
    {Member::Enabled, "Enabled"},
    {Member::FontBold, "FontBold"},
    {Member::FontItalic, "FontItalic"},
    {Member::FontName, "FontName"},
    {Member::FontSize, "FontSize"},
    {Member::FontStrikethru, "FontStrikethru"},
    {Member::FontUnderline, "FontUnderline"},
    {Member::ForeColor, "ForeColor"},
    {Member::Height, "Height"},
    {Member::Left, "Left"},
    {Member::List, "List"},
    {Member::Picture, "Picture"},
    {Member::Stretch, "Stretch"},
    {Member::TabIndex, "TabIndex"},
    {Member::Tag, "Tag"},
    {Member::Text, "Text"},
    {Member::ToolTipText, "ToolTipText"},
    {Member::Top, "Top"},
    {Member::Value, "Value"},
    {Member::Visible, "Visible"},
    {Member::Width, "Width"},
    {Member::WordWrap, "WordWrap"},
}};
static_assert(HasRowOfEach(kMemberNames, kMemberCount));

/// The member of a name without regard to case; null for a word that no class knows.
[[nodiscard]] std::optional<Member> MemberOfName(std::string_view name) noexcept;

/// A set of members, one bit each.
using MemberSet = std::uint32_t;
static_assert(kMemberCount <= 32);

[[nodiscard]] constexpr MemberSet SetOf(std::initializer_list<Member> members) noexcept {
  MemberSet set = 0;
  for (const Member member : members) set |= MemberSet{1} << static_cast<unsigned>(member);
  return set;
}
[[nodiscard]] constexpr bool Holds(MemberSet set, Member member) noexcept {
  return (set >> static_cast<unsigned>(member) & 1U) != 0;
}

/// Class of a design control; it decides which members the control has.
enum class ControlClass : std::uint8_t {
  CommandButton,
  Label,
  Image,
  CheckBox,
  OptionButton,
  TextBox,
  ListBox,
  UserControl1,
  PictureBox,
  Frame,
  Menu,
  Form,
};
inline constexpr std::size_t kControlClassCount = static_cast<std::size_t>(ControlClass::Form) + 1;

struct ClassMembers {
  ControlClass Id;
  MemberSet Members;
};

/// The members of each control class. What a class lacks here is what the form file, the property
/// sheet and the generated program leave out for its kinds.
inline constexpr auto kMembersOf = [] {
  using enum Member;
  const MemberSet place = SetOf({Enabled, Height, Left, Tag, ToolTipText, Top, Visible, Width});
  const MemberSet font =
      SetOf({FontBold, FontItalic, FontName, FontSize, FontStrikethru, FontUnderline});
  return std::array<ClassMembers, kControlClassCount>{{
      // No foreground colour, hence the font colour in its record.
      {ControlClass::CommandButton,
       place | font | SetOf({Appearance, BackColor, Cancel, Caption, Default, Picture, TabIndex})},
      {ControlClass::Label, place | font |
                                SetOf({Appearance, AutoSize, BackColor, BackStyle, BorderStyle,
                                       Caption, ForeColor, TabIndex, WordWrap})},
      {ControlClass::Image, place | SetOf({Appearance, BorderStyle, Picture, Stretch})},
      {ControlClass::CheckBox,
       place | font | SetOf({Appearance, BackColor, Caption, ForeColor, TabIndex, Value})},
      {ControlClass::OptionButton,
       place | font | SetOf({Appearance, BackColor, Caption, ForeColor, TabIndex, Value})},
      {ControlClass::TextBox,
       place | font | SetOf({Appearance, BackColor, BorderStyle, ForeColor, TabIndex, Text})},
      {ControlClass::ListBox,
       place | font | SetOf({Appearance, BackColor, ForeColor, List, TabIndex})},
      // Its font is one object, not members.
      {ControlClass::UserControl1, place | SetOf({Appearance, BackColor, BackStyle, BorderStyle,
                                                  ForeColor, List, TabIndex, Text})},
      {ControlClass::PictureBox,
       place | font |
           SetOf({Appearance, AutoSize, BackColor, BorderStyle, ForeColor, Picture, TabIndex})},
      {ControlClass::Frame,
       place | font | SetOf({Appearance, BackColor, BorderStyle, Caption, ForeColor, TabIndex})},
      {ControlClass::Menu, SetOf({Caption, Enabled, Tag, Visible})},
      {ControlClass::Form,
       place | font | SetOf({Appearance, BackColor, BorderStyle, Caption, ForeColor, Picture})},
  }};
}();
static_assert(HasRowOfEach(kMembersOf, kControlClassCount));

/// True when controls of the class have the member.
[[nodiscard]] constexpr bool HasMember(ControlClass control_class, Member member) noexcept {
  return Holds(kMembersOf[static_cast<std::size_t>(control_class)].Members, member);
}

}  // namespace tarnwick
