#include "codegen/object_lines.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
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

/// The lines that a kind writes, by their numbers.
struct LinesOfKind {
  std::array<std::uint8_t, kCommonLines.size()> Lines{};
  std::size_t Count = 0;
};
constexpr std::array<LinesOfKind, kKindCount> kLinesByKind = [] {
  std::array<LinesOfKind, kKindCount> kinds{};
  for (std::size_t kind = 0; kind < kKindCount; ++kind) {
    for (std::size_t line = 0; line < kCommonLines.size(); ++line) {
      LinesOfKind& list = kinds[kind];
      if (Writes(static_cast<Kind>(kind), kCommonLines[line])) {
        list.Lines[list.Count++] = static_cast<std::uint8_t>(line);
      }
    }
  }
  return kinds;
}();

/// Writes the lines of one object.
class LineWriter {
 public:
  LineWriter(Generation& gen, const DesignControl& control, std::int16_t& button_count)
      : gen_(gen), control_(control), button_count_(button_count) {}

  void Write(const CommonLine& line) {
    if (const auto* const member = std::get_if<Member>(&line.Value)) {
      std::visit([&](auto field) { PutMember(line.Text, field); }, FieldOf(*member));
    } else {
      PutDerived(line.Text, std::get<Derived>(line.Value));
    }
  }

 private:
  /// Font lines fill the shared Font object; all others are members of the object itself.
  template <class... Parts>
  void Put(std::string_view text, const Parts&... parts) {
    if (text.front() == '.') {
      gen_.Out.Line(control_.Tag, text, parts...);
    } else {
      gen_.Out.Line(text, parts...);
    }
  }

  /// A member's value: texts in quotes, lengths in pixels.
  template <class Field>
  void PutMember(std::string_view text, Field field) {
    if constexpr (std::is_same_v<Field, std::string DesignControl::*>) {
      Put(text, Quoted{control_.*field});
    } else if constexpr (std::is_same_v<Field, float DesignControl::*>) {
      Put(text, PixelsOf(control_.*field));
    } else if constexpr (std::is_same_v<Field, bool DesignControl::*>) {
      Put(text, control_.*field ? "True" : "False");
    } else if constexpr (!std::is_same_v<Field, std::monostate>) {
      Put(text, control_.*field);
    }
  }

  void PutDerived(std::string_view text, Derived value) {
    switch (value) {
      case Derived::FontSize:
        return PutFontSize(text);
      case Derived::FontColor:
        StepOrdinal(button_count_);
        return Put(text, RecordOrEmpty(gen_.Record().Buttons, button_count_).FontColor);
      case Derived::WordWrap:
        gen_.State.CurrentOrdinal = gen_.State.KindCounters.Step(Kind::Label);
        return Put(text, RecordOrEmpty(gen_.Record().Labels, gen_.State.CurrentOrdinal).Icon);
      case Derived::SharedFont:
        return Put(text);
      case Derived::Parent:
        return Put(text, gen_.Record().Name);
      case Derived::On:
        return Put(text, "1");
    }
  }

  void PutFontSize(std::string_view text) {
    const double size = RoundHalfEven(static_cast<double>(control_.FontSize));
    if (const std::optional<std::int32_t> whole = ToInt32(size)) {
      Put(text, *whole);
    } else {
      Put(text, static_cast<float>(size));
    }
  }

  Generation& gen_;
  const DesignControl& control_;
  std::int16_t& button_count_;
};

}  // namespace

void WriteCommonLines(Generation& gen, const DesignControl& control, std::int16_t& button_count) {
  LineWriter writer(gen, control, button_count);
  const LinesOfKind& lines = kLinesByKind[static_cast<std::size_t>(control.Id)];
  for (std::size_t i = 0; i < lines.Count; ++i) writer.Write(kCommonLines[lines.Lines[i]]);
}

}  // namespace tarnwick
