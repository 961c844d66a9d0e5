#include "persistence/record_layouts.h"

#include <array>
#include <cstddef>
#include <utility>

#include "persistence/layout_texts.h"

namespace tarnwick {

namespace {

/// The tag whose "<" ends the literal before a value; None for a literal of the head. A word that
/// is no tag is an error of the compilation.
constexpr Tag TagOf(std::string_view before) {
  const std::size_t bracket = before.rfind('<');
  if (bracket == std::string_view::npos) return Tag::None;
  const std::size_t start = before.rfind(' ', bracket) + 1;  // 0 where there is no blank
  const Tag tag = TagOfWord(before.substr(start, bracket - start));
  if (tag == Tag::None) throw "a layout has a tag that does not exist";
  return tag;
}

constexpr std::size_t CountFields(std::string_view text) {
  std::size_t marks = 0;
  for (const char c : text) marks += c == '@' ? 1 : 0;
  return marks / 2;
}

/// The fields of a layout's text.
template <std::size_t Count>
consteval std::array<LayoutField, Count> FieldsOf(std::string_view text) {
  std::array<LayoutField, Count> fields{};
  for (LayoutField& field : fields) {
    const std::size_t open = text.find('@');
    const std::size_t close = text.find('@', open + 1);
    field.Before = text.substr(0, open);
    field.Value = SourceFor(text.substr(open + 1, close - open - 1));
    field.In = TagOf(field.Before);
    text.remove_prefix(close + 1);
  }
  return fields;
}

template <std::size_t Place>
constexpr auto kFields = FieldsOf<CountFields(kLayoutTexts[Place].Text)>(kLayoutTexts[Place].Text);

/// The layouts by kind.
constexpr std::array<RecordLayout, kKindCount> kLayouts =
    []<std::size_t... Places>(std::index_sequence<Places...>) {
  std::array<RecordLayout, kKindCount> layouts{};
  const auto put = [&](std::span<const LayoutField> fields, const LayoutText& entry) {
    const std::size_t last = entry.Text.rfind('@');
    layouts[static_cast<std::size_t>(entry.Id)] = {fields, entry.Text.substr(last + 1)};
  };
  (put(kFields<Places>, kLayoutTexts[Places]), ...);
  return layouts;
}
(std::make_index_sequence<kLayoutTexts.size()>{});

static_assert(
    [] {
      for (const KindInfo& kind : ObjectKinds()) {
        if (kLayouts[static_cast<std::size_t>(kind.Id)].Fields.empty()) return false;
      }
      return !kLayouts[static_cast<std::size_t>(Kind::Form)].Fields.empty();
    }(),
    "a kind has no record in a form file");

constexpr std::array kFaceColor{InheritedMember{Member::BackColor, Tag::Color}};
constexpr std::array kLabelBorder{InheritedMember{Member::BorderStyle, Tag::Border},
                                  InheritedMember{Member::WordWrap, Tag::Icon}};
constexpr std::array kComboInk{InheritedMember{Member::ForeColor, Tag::FontClr}};
constexpr std::array kRichWrap{InheritedMember{Member::WordWrap, Tag::Icon}};
constexpr std::array kHtmlText{InheritedMember{Member::Text, Tag::String}};
// The tags of a frame's position and size go to the form's record, and to the control as well.
constexpr std::array kFramePlace{
    InheritedMember{Member::Left, Tag::Left}, InheritedMember{Member::Top, Tag::Top},
    InheritedMember{Member::Width, Tag::Width}, InheritedMember{Member::Height, Tag::Height}};

}  // namespace

const RecordLayout& LayoutOf(Kind kind) noexcept {
  return kLayouts[static_cast<std::size_t>(kind)];
}

std::span<const InheritedMember> InheritedMembersOf(Kind kind) noexcept {
  switch (kind) {
    case Kind::Button:
    case Kind::OptionButton:
    case Kind::CheckBox:
      return kFaceColor;
    case Kind::Label:
      return kLabelBorder;
    case Kind::RichTextBox:
      return kRichWrap;
    case Kind::ComboBox:
      return kComboInk;
    case Kind::HtmlViewer:
      return kHtmlText;
    case Kind::TransparentFrame:
      return kFramePlace;
    default:
      return {};
  }
}

}  // namespace tarnwick
