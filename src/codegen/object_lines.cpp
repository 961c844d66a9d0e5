#include "codegen/object_lines.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "model/units.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

/// Values that are no plain field of the control.
enum class Derived : std::uint8_t {
  FontSize,    ///< as a whole number
  FontColor,   ///< of the record, of a Button: its class has no colour of the text
  WordWrap,    ///< of the Label's record
  SharedFont,  ///< the program's one Font object, as the lines before left it
  Parent,      ///< the form
  On,          ///< 1
};

/// One line. A text that begins with "." follows the object's name. Kinds that lack the member
/// write no line, and neither do those whose row holds it back.
struct CommonLine {
  std::string_view Text;
  std::variant<Member, Derived> Value;
  std::optional<Member> Needs{};  ///< of a derived value
};

constexpr std::array kCommonLines{
    CommonLine{"Font.Name = ", Member::FontName},
    CommonLine{"Font.Size = ", Derived::FontSize, Member::FontSize},
    CommonLine{"Font.Bold = ", Member::FontBold},
    CommonLine{"Font.Italic = ", Member::FontItalic},
    CommonLine{"Font.Color = ", Member::ForeColor},
    CommonLine{"Font.Color = ", Derived::FontColor, Member::FontName},
    CommonLine{".Font = Font", Derived::SharedFont},
    CommonLine{".Parent = ", Derived::Parent},
    CommonLine{".WordWrap = ", Derived::WordWrap, Member::WordWrap},
    CommonLine{".AutoSize = ", Member::AutoSize},
    CommonLine{".Top = ", Member::Top},
    CommonLine{".Left = ", Member::Left},
    CommonLine{".Width = ", Member::Width},
    CommonLine{".Height = ", Member::Height},
    CommonLine{".Caption = ", Member::Caption},
    CommonLine{".Stretch = ", Member::Stretch},
    CommonLine{".Text = ", Member::Text},
    CommonLine{".BorderStyle = ", Member::BorderStyle},
    CommonLine{".BorderStyle = ", Member::Appearance},
    CommonLine{".Color = ", Member::BackColor},
    CommonLine{".Hint = ", Member::ToolTipText},
    CommonLine{".ShowHint = ", Derived::On},
};

constexpr bool Writes(Kind kind, const CommonLine& line) {
  const KindInfo& info = InfoOf(kind);
  const auto* const member = std::get_if<Member>(&line.Value);
  const std::optional<Member> needs = member != nullptr ? *member : line.Needs;
  if (needs && !HasMember(info.Class, *needs)) return false;
  const auto* const derived = std::get_if<Derived>(&line.Value);
  if (derived != nullptr && *derived == Derived::FontColor) {
    return !HasMember(info.Class, Member::ForeColor);
  }
  return member == nullptr || !Holds(info.Program.HeldBack, *member);
}

/// A member's value as it prints: texts in quotes, lengths in pixels.
Quoted Printed(const std::string& value) {
  return {value};
}
float Printed(float value) {
  return PixelsOf(value);
}
std::string_view Printed(bool value) {
  return value ? "True" : "False";
}
std::int32_t Printed(std::int32_t value) {
  return value;
}

/// Writes the lines of one object.
struct LineWriter {
  Generation& gen;
  const DesignControl& control;
  std::int16_t& button_count;

  /// Font lines fill the shared Font object; all others are members of the object itself.
  template <std::size_t line, class... Parts>
  void Put(const Parts&... parts) const {
    constexpr std::string_view text = kCommonLines[line].Text;
    if constexpr (text.front() == '.') {
      gen.Out.Line(control.Tag, text, parts...);
    } else {
      gen.Out.Line(text, parts...);
    }
  }

  template <std::size_t line>
  void Write() const {
    constexpr auto value = std::get<kCommonLines[line].Value.index()>(kCommonLines[line].Value);
    if constexpr (std::is_same_v<decltype(value), const Member>) {
      Put<line>(Printed(control.*std::get<FieldOf(value).index()>(FieldOf(value))));
    } else if constexpr (value == Derived::FontSize) {
      PutFontSize<line>();
    } else if constexpr (value == Derived::FontColor) {
      StepOrdinal(button_count);
      Put<line>(RecordOrEmpty(gen.Record().Buttons, button_count).FontColor);
    } else if constexpr (value == Derived::WordWrap) {
      gen.State.CurrentOrdinal = gen.State.KindCounters.Step(Kind::Label);
      Put<line>(RecordOrEmpty(gen.Record().Labels, gen.State.CurrentOrdinal).Icon);
    } else if constexpr (value == Derived::SharedFont) {
      Put<line>();
    } else if constexpr (value == Derived::Parent) {
      Put<line>(gen.Record().Name);
    } else {
      static_assert(value == Derived::On);
      Put<line>('1');
    }
  }

  template <std::size_t line>
  void PutFontSize() const {
    const double size = RoundHalfEven(static_cast<double>(control.FontSize));
    if (const std::optional<std::int32_t> whole = ToInt32(size)) {
      Put<line>(*whole);
    } else {
      Put<line>(NumberText(static_cast<float>(size)));
    }
  }
};

}  // namespace

void WriteCommonLines(Generation& gen, const DesignControl& control, std::int16_t& button_count) {
  const LineWriter writer{gen, control, button_count};
  // Straight code for each kind: most of a text is these lines.
  WithObjectKind(control.Id, [&](auto kind) {
    [&]<std::size_t... Lines>(std::index_sequence<Lines...>) {
      const auto write = [&](auto line) {
        if constexpr (Writes(kind, kCommonLines[line])) writer.Write<line>();
      };
      (write(std::integral_constant<std::size_t, Lines>{}), ...);
    }
    (std::make_index_sequence<kCommonLines.size()>{});
  });
}

}  // namespace tarnwick
