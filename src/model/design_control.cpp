#include "model/design_control.h"

#include <array>
#include <initializer_list>
#include <utility>

#include "text/code_page.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

/// A set of members, one bit each.
using Members = std::uint32_t;
static_assert(kMemberCount <= 32);

constexpr Members Of(std::initializer_list<Member> members) {
  Members set = 0;
  for (const Member member : members) set |= Members{1} << static_cast<unsigned>(member);
  return set;
}

using enum Member;

constexpr Members kPlace = Of({Enabled, Height, Left, Tag, ToolTipText, Top, Visible, Width});
constexpr Members kFont =
    Of({FontBold, FontItalic, FontName, FontSize, FontStrikethru, FontUnderline});

/// The members of each control class. What a class lacks here is what the form file, the property
/// sheet and the generated program leave out for its kinds.
constexpr std::array<Members, 12> kMembersOf{{
    // CommandButton: no foreground colour, hence the font colour in its record
    kPlace | kFont | Of({Appearance, BackColor, Cancel, Caption, Default, Picture, TabIndex}),
    // Label
    kPlace | kFont |
        Of({Appearance, AutoSize, BackColor, BackStyle, BorderStyle, Caption, ForeColor, TabIndex,
            WordWrap}),
    // Image
    kPlace | Of({Appearance, BorderStyle, Picture, Stretch}),
    // CheckBox
    kPlace | kFont | Of({Appearance, BackColor, Caption, ForeColor, TabIndex, Value}),
    // OptionButton
    kPlace | kFont | Of({Appearance, BackColor, Caption, ForeColor, TabIndex, Value}),
    // TextBox
    kPlace | kFont | Of({Appearance, BackColor, BorderStyle, ForeColor, TabIndex, Text}),
    // ListBox
    kPlace | kFont | Of({Appearance, BackColor, ForeColor, List, TabIndex}),
    // UserControl1: its font is one object, not members
    kPlace | Of({Appearance, BackColor, BackStyle, BorderStyle, ForeColor, List, TabIndex, Text}),
    // PictureBox
    kPlace | kFont |
        Of({Appearance, AutoSize, BackColor, BorderStyle, ForeColor, Picture, TabIndex}),
    // Frame
    kPlace | kFont | Of({Appearance, BackColor, BorderStyle, Caption, ForeColor, TabIndex}),
    // Menu
    Of({Caption, Enabled, Tag, Visible}),
    // Form
    kPlace | kFont | Of({Appearance, BackColor, BorderStyle, Caption, ForeColor, Picture}),
}};

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

bool SetNumber(bool& field, double number) {
  field = number != 0.0;
  return true;
}

template <class Number>
bool StoreIfFits(Number& field, const std::optional<Number>& number) {
  if (number) field = *number;
  return number.has_value();
}

bool SetNumber(std::int16_t& field, double number) {
  return StoreIfFits(field, ToInt16(number));
}
bool SetNumber(std::int32_t& field, double number) {
  return StoreIfFits(field, ToInt32(number));
}
bool SetNumber(float& field, double number) {
  return StoreIfFits(field, ToSingle(number));
}

template <class Field>
bool SetField(Field& field, const MemberValue& value) {
  if constexpr (std::is_same_v<Field, std::string>) {
    field = TextOf(value);
    return true;
  } else {
    return SetNumber(field, NumberOf(value));
  }
}

template <class Field>
bool SetFieldFromText(Field& field, std::string_view text) {
  if constexpr (std::is_same_v<Field, std::string>) {
    field = text;
    return true;
  } else if constexpr (std::is_same_v<Field, std::int16_t> || std::is_same_v<Field, std::int32_t>) {
    return ReadNumber(text, field);
  } else {
    return SetNumber(field, Val(text));
  }
}

/// An option button is on or off; it keeps no other number.
void SetOption(std::int16_t& value, double number) {
  value = number != 0.0 ? std::int16_t{-1} : std::int16_t{0};
}

MemberValue ValueOf(std::int16_t field) {
  return static_cast<std::int32_t>(field);
}
template <class T>
MemberValue ValueOf(const T& field) {
  return field;
}

/// Calls `use` with the field of a member; the one place that ties members to fields.
template <class Control, class Use>
auto WithField(Control& control, Member member, Use use) {
  switch (member) {
    case Appearance:
      return use(control.Appearance);
    case AutoSize:
      return use(control.AutoSize);
    case BackColor:
      return use(control.BackColor);
    case BackStyle:
      return use(control.BackStyle);
    case BorderStyle:
      return use(control.BorderStyle);
    case Cancel:
      return use(control.Cancel);
    case Caption:
      return use(control.Caption);
    case Default:
      return use(control.Default);
    case Enabled:
      return use(control.Enabled);
    case FontBold:
      return use(control.FontBold);
    case FontItalic:
      return use(control.FontItalic);
    case FontName:
      return use(control.FontName);
    case FontSize:
      return use(control.FontSize);
    case FontStrikethru:
      return use(control.FontStrikethru);
    case FontUnderline:
      return use(control.FontUnderline);
    case ForeColor:
      return use(control.ForeColor);
    case Height:
      return use(control.Height);
    case Left:
      return use(control.Left);
    case Picture:
      return use(control.Picture);
    case Stretch:
      return use(control.Stretch);
    case TabIndex:
      return use(control.TabIndex);
    case Tag:
      return use(control.Tag);
    case Text:
      return use(control.Text);
    case ToolTipText:
      return use(control.ToolTipText);
    case Top:
      return use(control.Top);
    case Value:
      return use(control.Value);
    case Visible:
      return use(control.Visible);
    case Width:
      return use(control.Width);
    case WordWrap:
      return use(control.WordWrap);
    case List:
      break;
  }
  return use(control.Text);
}

}  // namespace

std::optional<Member> MemberOfName(std::string_view name) noexcept {
  for (std::size_t i = 0; i < kMemberCount; ++i) {
    if (EqualsFolded(kMemberNames[i], name)) return static_cast<Member>(i);
  }
  return std::nullopt;
}

bool HasMember(ControlClass control_class, Member member) noexcept {
  const Members members = kMembersOf[static_cast<std::size_t>(control_class)];
  return (members >> static_cast<unsigned>(member) & 1U) != 0;
}

std::string DesignControl::ArrayAndIndex() const {
  std::string text(InfoOf(Id).Array);
  AppendNumber(text, static_cast<std::int64_t>(Index));
  return text;
}

std::optional<MemberValue> DesignControl::Get(Member member) const {
  if (!Has(member) || member == Member::List) return std::nullopt;
  return WithField(*this, member, [](const auto& field) -> MemberValue { return ValueOf(field); });
}

std::optional<MemberValue> DesignControl::Get(std::string_view name) const {
  const std::optional<Member> member = MemberOfName(name);
  return member ? Get(*member) : std::nullopt;
}

bool DesignControl::Set(Member member, const MemberValue& value) {
  if (!Has(member) || member == Member::List) return false;
  if (member == Member::Value && Class() == ControlClass::OptionButton) {
    SetOption(Value, NumberOf(value));
    return true;
  }
  return WithField(*this, member, [&](auto& field) { return SetField(field, value); });
}

bool DesignControl::SetFromText(Member member, std::string_view text) {
  if (!Has(member) || member == Member::List) return false;
  if (member == Member::Value && Class() == ControlClass::OptionButton) {
    SetOption(Value, Val(text));
    return true;
  }
  return WithField(*this, member, [&](auto& field) { return SetFieldFromText(field, text); });
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
