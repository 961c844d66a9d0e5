// The layouts of the records in a form file. One table drives the writing, with its exact blanks,
// and tells the reader which tag of a kind carries which value.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "model/design_control.h"
#include "model/project_records.h"
#include "persistence/record_tags.h"

namespace tarnwick {

/// Values that are no field of a record.
enum class Special : std::uint8_t {
  Number,         ///< running number of the object within its kind
  Name,           ///< the object's or form's name
  WindowCaption,  ///< of the design window
  WindowColor,    ///< of the design window
  ItemList,       ///< rows of a popup menu
  One,            ///< always "1"
};

/// A text of a record that keeps its commas under another byte.
struct CommaText {
  std::string FormRec::*Field;
};
/// An item list of an object's record.
struct ItemsText {
  std::string ObjectRec::*Field;
};

/// Where a value of a record lives.
using Source =
    std::variant<Special, Member, Event, std::int16_t ObjectRec::*, std::int32_t ObjectRec::*,
                 std::string ObjectRec::*, ItemsText, std::int16_t FormRec::*,
                 std::int32_t FormRec::*, std::string FormRec::*, CommaText,
                 std::string WinSockRec::*, std::string HtmlViewerRec::*,
                 std::int16_t PopUpItemRec::*, std::string PopUpItemRec::*>;

/// A piece of a record: literal text, then a value. `In` is the tag in which the value stands;
/// None for the head's number and name.
struct LayoutField {
  std::string_view Before;
  Source Value;
  Tag In = Tag::None;
  /// The literal up to its "<": what a layout has behind it is read as part of the value.
  std::string_view Lead;
};

/// The tags of a record differ, none is the end of one before it, and each value lies between
/// its tag's two words and no others: a line that holds all literals of a layout can be read by
/// their places.
struct RecordLayout {
  std::span<const LayoutField> Fields;
  std::string_view End;
};

namespace layouts {

/// The records as they stand in a file; a value's place is its word between two "@". The blanks
/// are part of the format. They differ from kind to kind.
struct LayoutText {
  Kind Id;
  std::string_view Text;
};

inline constexpr std::array<LayoutText, 18> kLayoutTexts{{
    {Kind::Form,
     "[Form](@number@) {@name@}  Left<@form.Left@>Left   Top<@form.Top@>Top   "
     "Width<@form.Width@>Width   Height<@form.Height@>Height   Image<@form.ImageFile@>Image  "
     "Icon<@form.IconFile@>Icon  String<@window.caption@>String  Border<@form.BorderStyle@>Border  "
     "Color<@window.color@>Color  Cursor<@form.Cursor@>Cursor  Tip<@form.Hint@>Tip  "
     "WndState<@form.WndState@>WndState  Center<@form.Center@>Center  "
     "Visible<@form.Visible@>Visible  Click<@OnClick@>Click  Close<@OnClose@>Close   "
     "Hint<@OnHint@>Hint   KeyDown<@OnKeyDown@>KeyDown   KeyPress<@OnKeyPress@>KeyPress   "
     "KeyUp<@OnKeyUp@>KeyUp   MouseDown<@OnMouseDown@>MouseDown   "
     "MouseMove<@OnMouseMove@>MouseMove   MouseUp<@OnMouseUp@>MouseUp   Paint<@OnPaint@>Paint   "
     "Resize<@OnResize@>Resize   Show<@OnShow@>Show"},
    {Kind::Button,
     "[Button]   (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height   String<@Caption@>String  Tip<@ToolTipText@>Tip  "
     "Image<@rec.ImageFile@>Image  Cursor<@rec.Cursor@>Cursor  Enabled<@rec.Enabled@>Enabled  "
     "FontName<@FontName@>FontName FontClr<@rec.FontColor@>FontClr FontSize<@FontSize@>FontSize  "
     "FontBold<@FontBold@>FontBold  FontItalic<@FontItalic@>FontItalic  "
     "TabOrder<@rec.TabOrder@>TabOrder  Visible<@rec.Visible@>Visible  Click<@OnClick@>Click   "
     "KeyDown<@OnKeyDown@>KeyDown   KeyPress<@OnKeyPress@>KeyPress   KeyUp<@OnKeyUp@>KeyUp   "
     "MouseDown<@OnMouseDown@>MouseDown   MouseMove<@OnMouseMove@>MouseMove   "
     "MouseUp<@OnMouseUp@>MouseUp"},
    {Kind::Label,
     "[Label]   (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height   String<@Caption@>String   Tip<@ToolTipText@>Tip  "
     "Cursor<@rec.Cursor@>Cursor  Enabled<@rec.Enabled@>Enabled  Autosize<@AutoSize@>Autosize  "
     "FontName<@FontName@>FontName FontClr<@ForeColor@>FontClr FontSize<@FontSize@>FontSize  "
     "FontBold<@FontBold@>FontBold  FontItalic<@FontItalic@>FontItalic  "
     "TabOrder<@rec.TabOrder@>TabOrder  Transparent<@BackStyle@>Transparent  "
     "Icon<@rec.Icon@>Icon  Color<@BackColor@>Color  Visible<@rec.Visible@>Visible  "
     "Click<@OnClick@>Click   DblClick<@OnDblClick@>DblClick   "
     "MouseDown<@OnMouseDown@>MouseDown   MouseMove<@OnMouseMove@>MouseMove   "
     "MouseUp<@OnMouseUp@>MouseUp"},
    {Kind::Image,
     "[Image]   (@number@) {@name@} Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height  Image<@rec.ImageFile@>Image  Tip<@ToolTipText@>Tip  "
     "Cursor<@rec.Cursor@>Cursor  Enabled<@rec.Enabled@>Enabled  Stretch<@Stretch@>Stretch  "
     "Visible<@rec.Visible@>Visible  Click<@OnClick@>Click   DblClick<@OnDblClick@>DblClick   "
     "MouseDown<@OnMouseDown@>MouseDown   MouseMove<@OnMouseMove@>MouseMove   "
     "MouseUp<@OnMouseUp@>MouseUp"},
    {Kind::CheckBox,
     "[CheckBox]   (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height   String<@Caption@>String  Checked<@Value@>Checked  "
     "Enabled<@rec.Enabled@>Enabled   FontName<@FontName@>FontName  FontSize<@FontSize@>FontSize  "
     "FontBold<@FontBold@>FontBold  FontItalic<@FontItalic@>FontItalic  "
     "FontClr<@ForeColor@>FontClr  Tip<@ToolTipText@>Tip  TabOrder<@rec.TabOrder@>TabOrder   "
     "Visible<@rec.Visible@>Visible  Click<@OnClick@>Click"},
    {Kind::OptionButton,
     "[OptionButton]  (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   "
     "Width<@Width@>Width   Height<@Height@>Height   String<@Caption@>String  "
     "Checked<@Value@>Checked  Enabled<@rec.Enabled@>Enabled   FontName<@FontName@>FontName  "
     "FontSize<@FontSize@>FontSize  FontBold<@FontBold@>FontBold  "
     "FontItalic<@FontItalic@>FontItalic  FontClr<@ForeColor@>FontClr  Tip<@ToolTipText@>Tip  "
     "TabOrder<@rec.TabOrder@>TabOrder   Visible<@rec.Visible@>Visible  Click<@OnClick@>Click"},
    {Kind::TextBox,
     "[TextBox] (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height   String<@Text@>String   Border<@BorderStyle@>Border  "
     "Color<@BackColor@>Color  Enabled<@rec.Enabled@>Enabled  FontName<@FontName@>FontName  "
     "FontSize<@FontSize@>FontSize  FontBold<@FontBold@>FontBold  "
     "FontItalic<@FontItalic@>FontItalic  FontClr<@ForeColor@>FontClr  Tip<@ToolTipText@>Tip  "
     "ReadOnly<@rec.ReadOnly@>ReadOnly  TabOrder<@rec.TabOrder@>TabOrder  "
     "Visible<@rec.Visible@>Visible  Change<@OnChange@>Change   KeyPress<@OnKeyPress@>KeyPress   "
     "KeyUp<@OnKeyUp@>KeyUp   KeyDown<@OnKeyDown@>KeyDown"},
    {Kind::RichTextBox,
     "[RichTextBox] (@number@)  {@name@} Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height   String<@Text@>String  Border<@BorderStyle@>Border  "
     "Color<@BackColor@>Color  Enabled<@rec.Enabled@>Enabled  FontName<@FontName@>FontName  "
     "FontSize<@FontSize@>FontSize  FontBold<@FontBold@>FontBold  "
     "FontItalic<@FontItalic@>FontItalic  FontClr<@ForeColor@>FontClr  Tip<@ToolTipText@>Tip  "
     "ReadOnly<@rec.ReadOnly@>ReadOnly  TabOrder<@rec.TabOrder@>TabOrder   "
     "Visible<@rec.Visible@>Visible  HideScrollBars<@rec.HideScrollBars@>HideScrollBars  "
     "ScrllBars<@rec.ScrollBars@>ScrllBars   Icon<@rec.Icon@>Icon   Change<@OnChange@>Change  "
     "KeyPress< @OnKeyPress@>KeyPress  KeyUp<@OnKeyUp@>KeyUp  KeyDown<@OnKeyDown@>KeyDown   "
     "MouseDown<@OnMouseDown@>MouseDown   MouseMove<@OnMouseMove@>MouseMove   "
     "MouseUp<@OnMouseUp@>MouseUp"},
    {Kind::ListBox,
     "[ListBox] (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height  Items<@items@>Items   Border<@Appearance@>Border  "
     "Color<@BackColor@>Color  Enabled<@rec.Enabled@>Enabled  FontName<@FontName@>FontName  "
     "FontSize<@FontSize@>FontSize  FontBold<@FontBold@>FontBold  "
     "FontItalic<@FontItalic@>FontItalic  FontClr<@ForeColor@>FontClr  Tip<@ToolTipText@>Tip  "
     "TabOrder<@rec.TabOrder@>TabOrder   Visible<@rec.Visible@>Visible Sorted<@rec.Sorted@>Sorted  "
     "MultiSelect<@rec.MultiSelect@>MultiSelect  Cursor<@rec.Cursor@>Cursor  "
     "Columns<@rec.Columns@>Columns Click<@OnClick@>Click   DblClick<@OnDblClick@>DblClick   "
     "Enter<@OnEnter@>Enter"},
    {Kind::ComboBox,
     "[ComboBox] (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height   String<@Text@>String   Items<@items@>Items  "
     "Enabled<@rec.Enabled@>Enabled Tip<@ToolTipText@>Tip  TabOrder<@rec.TabOrder@>TabOrder   "
     "Visible<@rec.Visible@>Visible  Cursor<@rec.Cursor@>Cursor Sorted<@rec.Sorted@>Sorted  "
     "Change<@OnChange@>Change"},
    {Kind::Time,
     "[Time] (@number@) {@name@} Left<@Left@>Left   Top<@Top@>Top   "
     "Enabled<@rec.Enabled@>Enabled   Tip<@rec.Interval@>Tip   Click<@OnTimer@>Click"},
    {Kind::OpenDialog,
     "[OpenDialog]  (@number@) {@name@} Left<@Left@>Left   Top<@Top@>Top  "
     "String<@rec.Title@>String   Tip<@rec.Filter@>Tip   Width<@rec.FileName@>Width   "
     "Height<@rec.InitialDir@>Height"},
    {Kind::SaveDialog,
     "[SaveDialog] (@number@) {@name@} Left<@Left@>Left   Top<@Top@>Top   "
     "String<@rec.Title@>String   Tip<@rec.Filter@>Tip   Width<@rec.FileName@>Width   "
     "Height<@rec.InitialDir@>Height"},
    {Kind::FileStream, "[FileStream] {@name@} Left<@Left@>Left   Top<@Top@>Top"},
    {Kind::WinSock,
     "[WinSock] {@name@} Left<@Left@>Left   Top<@Top@>Top  Width<@Width@>Width  "
     "Height<@Height@>Height  Tip<@sock.Family@>Tip  Cursor<@sock.Protocol@>Cursor  "
     "String<@sock.Type@>String  Items<@sock.WMessage@>Items"},
    {Kind::TransparentFrame,
     "[TransparentFrame] {@name@} Left<@form.TfLeft@>Left   Top<@form.TfTop@>Top  "
     "Width<@form.TfWidth@>Width  Height<@form.TfHeight@>Height  Tip<@ToolTipText@>Tip  "
     "Cursor<@form.TfCursor@>Cursor  String<@form.TfAlign@>String  "
     "Items<@form.TfTransparency@>Items  Transparent<@form.TfTranspColor@>Transparent  "
     "Visible<@one@>Visible  Enabled<@one@>Enabled"},
    {Kind::HtmlViewer,
     "[HtmlViewer] (@number@) {@name@} Left<@Left@>Left Top<@Top@>Top Width<@Width@>Width "
     "Height<@Height@>Height String<@html.Navigate@>String "},
    {Kind::PopUpMenu,
     "[PopUpMenu]  (@number@) {@name@} Left<@Left@>Left   Top<@Top@>Top  "
     "String<@popup.Alignment@>String   Tip<@popup.AutoPopUp@>Tip "
     "Width<@popup.PopUpMenu@>Width  Items<@rows@>Items  Click<@OnPopUp@>Click"},
}};

struct SourceWord {
  std::string_view Word;
  Source Value;
};

/// The words of the layouts that are no control members and no events.
inline constexpr std::array kSourceWords{
    SourceWord{"number", Special::Number},
    SourceWord{"name", Special::Name},
    SourceWord{"window.caption", Special::WindowCaption},
    SourceWord{"window.color", Special::WindowColor},
    SourceWord{"rows", Special::ItemList},
    SourceWord{"one", Special::One},
    SourceWord{"items", ItemsText{&ObjectRec::Items}},
    SourceWord{"rec.Title", &ObjectRec::Title},
    SourceWord{"rec.Filter", &ObjectRec::Filter},
    SourceWord{"rec.InitialDir", &ObjectRec::InitialDir},
    SourceWord{"rec.FileName", &ObjectRec::FileName},
    SourceWord{"rec.ImageFile", &ObjectRec::ImageFile},
    SourceWord{"rec.FontColor", &ObjectRec::FontColor},
    SourceWord{"rec.Interval", &ObjectRec::Interval},
    SourceWord{"rec.Sorted", &ObjectRec::Sorted},
    SourceWord{"rec.MultiSelect", &ObjectRec::MultiSelect},
    SourceWord{"rec.HideScrollBars", &ObjectRec::HideScrollBars},
    SourceWord{"rec.Icon", &ObjectRec::Icon},
    SourceWord{"rec.ScrollBars", &ObjectRec::ScrollBars},
    SourceWord{"rec.Visible", &ObjectRec::Visible},
    SourceWord{"rec.Enabled", &ObjectRec::Enabled},
    SourceWord{"rec.Cursor", &ObjectRec::Cursor},
    SourceWord{"rec.Columns", &ObjectRec::Columns},
    SourceWord{"rec.TabOrder", &ObjectRec::TabOrder},
    SourceWord{"rec.ReadOnly", &ObjectRec::ReadOnly},
    SourceWord{"form.Left", &FormRec::Left},
    SourceWord{"form.Top", &FormRec::Top},
    SourceWord{"form.Width", &FormRec::Width},
    SourceWord{"form.Height", &FormRec::Height},
    SourceWord{"form.ImageFile", &FormRec::ImageFile},
    SourceWord{"form.IconFile", &FormRec::IconFile},
    SourceWord{"form.BorderStyle", &FormRec::BorderStyle},
    SourceWord{"form.Cursor", &FormRec::Cursor},
    SourceWord{"form.Hint", CommaText{&FormRec::Hint}},
    SourceWord{"form.WndState", &FormRec::WndState},
    SourceWord{"form.Center", &FormRec::Center},
    SourceWord{"form.Visible", &FormRec::Visible},
    SourceWord{"form.TfLeft", &FormRec::TfLeft},
    SourceWord{"form.TfTop", &FormRec::TfTop},
    SourceWord{"form.TfWidth", &FormRec::TfWidth},
    SourceWord{"form.TfHeight", &FormRec::TfHeight},
    SourceWord{"form.TfCursor", &FormRec::TfCursor},
    SourceWord{"form.TfAlign", &FormRec::TfAlign},
    SourceWord{"form.TfTransparency", &FormRec::TfTransparency},
    SourceWord{"form.TfTranspColor", &FormRec::TfTranspColor},
    SourceWord{"sock.Family", &WinSockRec::Family},
    SourceWord{"sock.Protocol", &WinSockRec::Protocol},
    SourceWord{"sock.Type", &WinSockRec::Type},
    SourceWord{"sock.WMessage", &WinSockRec::WMessage},
    SourceWord{"html.Navigate", &HtmlViewerRec::Navigate},
    SourceWord{"popup.Alignment", &PopUpItemRec::Alignment},
    SourceWord{"popup.AutoPopUp", &PopUpItemRec::AutoPopUp},
    SourceWord{"popup.PopUpMenu", &PopUpItemRec::PopUpMenu},
};

constexpr Source SourceFor(std::string_view word) {
  for (const SourceWord& entry : kSourceWords) {
    if (entry.Word == word) return entry.Value;
  }
  for (const EventInfo& event : kEvents) {
    if (event.Name == word) return event.Id;
  }
  for (const MemberName& member : kMemberNames) {
    if (member.Name == word) return member.Id;
  }
  throw "a layout names what does not exist";
}

/// The tag whose "<" ends the literal before a value.
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
constexpr std::array<LayoutField, Count> FieldsOf(std::string_view text) {
  std::array<LayoutField, Count> fields{};
  for (LayoutField& field : fields) {
    const std::size_t open = text.find('@');
    const std::size_t close = text.find('@', open + 1);
    field.Before = text.substr(0, open);
    field.Value = SourceFor(text.substr(open + 1, close - open - 1));
    const auto* const special = std::get_if<Special>(&field.Value);
    const bool in_head =
        special != nullptr && (*special == Special::Number || *special == Special::Name);
    if (!in_head) field.In = TagOf(field.Before);
    field.Lead = field.Before.substr(0, field.Before.rfind('<') + 1);
    text.remove_prefix(close + 1);
  }
  return fields;
}

template <std::size_t Place>
inline constexpr auto kFields =
    FieldsOf<CountFields(kLayoutTexts[Place].Text)>(kLayoutTexts[Place].Text);

/// The layouts by kind; kinds without a record have an empty one.
inline constexpr std::array<RecordLayout, kKindCount> kLayouts =
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

}  // namespace layouts

/// The layout of an object kind or of the form itself (Kind::Form).
[[nodiscard]] constexpr const RecordLayout& LayoutOf(Kind kind) noexcept {
  return layouts::kLayouts[static_cast<std::size_t>(kind)];
}
static_assert(
    [] {
      for (const KindInfo& kind : ObjectKinds()) {
        if (LayoutOf(kind.Id).Fields.empty()) return false;
      }
      return !LayoutOf(Kind::Form).Fields.empty();
    }(),
    "a kind has no record in a form file");

/// Calls `use` with the place of each field of a kind's layout that stands in a tag, in their order
/// and as long as it answers true. The place is a constant, so that a record is read by straight
/// code made for its kind. False when `use` answered so.
template <Kind kind, class Use>
constexpr bool ForEachField(Use use) {
  constexpr std::span<const LayoutField> fields = LayoutOf(kind).Fields;
  return [&]<std::size_t... Places>(std::index_sequence<Places...>) {
    const auto call = [&](auto place) {
      if constexpr (fields[decltype(place)::value].In == Tag::None) {
        return true;
      } else {
        return use(place);
      }
    };
    return (call(std::integral_constant<std::size_t, Places>{}) && ...);
  }
  (std::make_index_sequence<fields.size()>{});
}

/// A control member that reading sets beside what the layout names: from a tag of another field,
/// or from one that the kind's own record does not carry, whose value a line before left behind.
struct InheritedMember {
  Member Target;
  Tag In;
};

namespace layouts {

inline constexpr std::array kFaceColor{InheritedMember{Member::BackColor, Tag::Color}};
inline constexpr std::array kLabelBorder{InheritedMember{Member::BorderStyle, Tag::Border},
                                         InheritedMember{Member::WordWrap, Tag::Icon}};
inline constexpr std::array kComboInk{InheritedMember{Member::ForeColor, Tag::FontClr}};
inline constexpr std::array kRichWrap{InheritedMember{Member::WordWrap, Tag::Icon}};
inline constexpr std::array kHtmlText{InheritedMember{Member::Text, Tag::String}};
// The tags of a frame's place go to the form's record; the control stands where they say, too.
inline constexpr std::array kFramePlace{
    InheritedMember{Member::Left, Tag::Left}, InheritedMember{Member::Top, Tag::Top},
    InheritedMember{Member::Width, Tag::Width}, InheritedMember{Member::Height, Tag::Height}};

}  // namespace layouts

[[nodiscard]] constexpr std::span<const InheritedMember> InheritedMembersOf(Kind kind) noexcept {
  switch (kind) {
    case Kind::Button:
    case Kind::OptionButton:
    case Kind::CheckBox:
      return layouts::kFaceColor;
    case Kind::Label:
      return layouts::kLabelBorder;
    case Kind::RichTextBox:
      return layouts::kRichWrap;
    case Kind::ComboBox:
      return layouts::kComboInk;
    case Kind::HtmlViewer:
      return layouts::kHtmlText;
    case Kind::TransparentFrame:
      return layouts::kFramePlace;
    default:
      return {};
  }
}

}  // namespace tarnwick
