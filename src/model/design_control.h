// A design control: the object on a design form, with late-bound members.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "model/vocabulary.h"

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
/// True when controls of the class have the member.
[[nodiscard]] bool HasMember(ControlClass control_class, Member member) noexcept;

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
  /// Sets a member from text, as Set does.
  bool SetFromText(Member member, std::string_view text);
  /// Adds a row to the control's list; false for a class without one.
  bool AddItem(std::string_view row);
};

}  // namespace tarnwick
