#include "codegen/object_lines.h"

#include <array>
#include <optional>
#include <variant>
#include <vector>

#include "text/numbers.h"

namespace tarnwick {

namespace {

/// Values that are no plain field of the control.
enum class Derived : std::uint8_t {
  FontSize,    ///< as a whole number
  FontColor,   ///< of the Button's record
  WordWrap,    ///< of the Label's record
  SharedFont,  ///< the program's one Font object, as the lines before left it
  Parent,      ///< the form
  On,          ///< 1
};

using LineValue = std::variant<Derived, std::string DesignControl::*, float DesignControl::*,
                               bool DesignControl::*, std::int16_t DesignControl::*,
                               std::int32_t DesignControl::*>;

/// One line. A text that begins with "." follows the object's name. Kinds that lack the member
/// write no line, and neither do those of `HeldBack`, although they have it.
struct CommonLine {
  std::string_view Text;
  std::optional<Member> Needs;
  LineValue Value;
  KindSet HeldBack;
};

using C = DesignControl;

constexpr std::array kCommonLines{
    CommonLine{"Font.Name = ", Member::FontName, &C::FontName, {}},
    CommonLine{"Font.Size = ", Member::FontSize, Derived::FontSize, {}},
    CommonLine{"Font.Bold = ", Member::FontBold, &C::FontBold, {}},
    CommonLine{"Font.Italic = ", Member::FontItalic, &C::FontItalic, {}},
    CommonLine{"Font.Color = ", Member::ForeColor, &C::ForeColor, {}},
    CommonLine{"Font.Color = ", {}, Derived::FontColor, KindSet::AllBut(Kind::Button)},
    CommonLine{".Font = Font", {}, Derived::SharedFont, {}},
    CommonLine{".Parent = ", {}, Derived::Parent, {}},
    CommonLine{".WordWrap = ", Member::WordWrap, Derived::WordWrap, {}},
    CommonLine{".AutoSize = ", Member::AutoSize, &C::AutoSize, {}},
    CommonLine{".Top = ", Member::Top, &C::Top, {}},
    CommonLine{".Left = ", Member::Left, &C::Left, {}},
    CommonLine{".Width = ", Member::Width, &C::Width, {}},
    CommonLine{".Height = ", Member::Height, &C::Height, {}},
    CommonLine{".Caption = ", Member::Caption, &C::Caption, {}},
    CommonLine{".Stretch = ", Member::Stretch, &C::Stretch, {}},
    CommonLine{".Text = ", Member::Text, &C::Text, {}},
    CommonLine{".BorderStyle = ", Member::BorderStyle, &C::BorderStyle,
               KindSet::Of(Kind::Label, Kind::Image, Kind::ComboBox)},
    CommonLine{".BorderStyle = ", Member::Appearance, &C::Appearance,
               KindSet::AllBut(Kind::ListBox)},
    CommonLine{".Color = ", Member::BackColor, &C::BackColor,
               KindSet::Of(Kind::CheckBox, Kind::ComboBox, Kind::OptionButton)},
    CommonLine{".Hint = ", Member::ToolTipText, &C::ToolTipText, {}},
    CommonLine{".ShowHint = ", {}, Derived::On, {}},
};

using KindLines = std::vector<const CommonLine*>;

/// The lines of each kind, settled once.
const KindLines& LinesOf(Kind kind) {
  static const std::array<KindLines, kKindCount> table = [] {
    std::array<KindLines, kKindCount> lines;
    for (const KindInfo& info : AllKinds()) {
      for (const CommonLine& line : kCommonLines) {
        const bool has = !line.Needs || HasMember(info.Class, *line.Needs);
        if (has && !line.HeldBack.Has(info.Id)) {
          lines[static_cast<std::size_t>(info.Id)].push_back(&line);
        }
      }
    }
    return lines;
  }();
  return table[static_cast<std::size_t>(kind)];
}

struct LineWriter {
  Generation& gen;
  const DesignControl& control;
  std::int16_t& button_count;
  std::string_view text;

  /// Font lines fill the shared Font object; all others are members of the object itself.
  template <class... Parts>
  void Put(const Parts&... parts) const {
    if (text.front() == '.') {
      gen.Out.Line(control.Tag, text, parts...);
    } else {
      gen.Out.Line(text, parts...);
    }
  }

  void operator()(std::string DesignControl::*field) const { Put(Quoted{control.*field}); }
  void operator()(float DesignControl::*field) const { Put(Pixels{control.*field}); }
  void operator()(bool DesignControl::*field) const {
    Put(control.*field ? std::string_view("True") : std::string_view("False"));
  }
  void operator()(std::int16_t DesignControl::*field) const { Put(control.*field); }
  void operator()(std::int32_t DesignControl::*field) const { Put(control.*field); }
  void operator()(Derived value) const {
    const FormRec& form = gen.Record();
    switch (value) {
      case Derived::FontSize:
        return PutFontSize();
      case Derived::FontColor:
        StepOrdinal(button_count);
        return Put(RecordOrEmpty(form.Buttons, button_count).FontColor);
      case Derived::WordWrap:
        gen.State.CurrentOrdinal = gen.State.KindCounters.Step(Kind::Label);
        return Put(RecordOrEmpty(form.Labels, gen.State.CurrentOrdinal).Icon);
      case Derived::SharedFont:
        return Put();
      case Derived::Parent:
        return Put(form.Name);
      case Derived::On:
        return Put("1");
    }
  }

  void PutFontSize() const {
    const double size = RoundHalfEven(static_cast<double>(control.FontSize));
    if (const std::optional<std::int32_t> whole = ToInt32(size)) {
      Put(*whole);
    } else {
      Put(NumberText(static_cast<float>(size)));
    }
  }
};

}  // namespace

void WriteCommonLines(Generation& gen, const DesignControl& control, std::int16_t& button_count) {
  for (const CommonLine* line : LinesOf(control.Id)) {
    std::visit(LineWriter{gen, control, button_count, line->Text}, line->Value);
  }
}

}  // namespace tarnwick
