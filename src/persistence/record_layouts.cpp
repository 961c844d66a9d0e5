#include "persistence/record_layouts.h"

#include <algorithm>
#include <array>

#include "text/code_page.h"

namespace tarnwick {

namespace {

/// The records as they stand in a file; a value's place is its word between two "@". The blanks
/// are part of the format. They differ from kind to kind.
struct LayoutText {
  Kind Id;
  std::string_view Text;
};

constexpr std::array<LayoutText, 18> kLayoutTexts{{
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
const std::vector<SourceWord>& SourceWords() {
  static const std::vector<SourceWord> words{
      {"number", Special::Number},
      {"name", Special::Name},
      {"window.caption", Special::WindowCaption},
      {"window.color", Special::WindowColor},
      {"rows", Special::ItemList},
      {"one", Special::One},
      {"items", ItemsText{&ObjectRec::Items}},
      {"rec.Title", &ObjectRec::Title},
      {"rec.Filter", &ObjectRec::Filter},
      {"rec.InitialDir", &ObjectRec::InitialDir},
      {"rec.FileName", &ObjectRec::FileName},
      {"rec.ImageFile", &ObjectRec::ImageFile},
      {"rec.FontColor", &ObjectRec::FontColor},
      {"rec.Interval", &ObjectRec::Interval},
      {"rec.Sorted", &ObjectRec::Sorted},
      {"rec.MultiSelect", &ObjectRec::MultiSelect},
      {"rec.HideScrollBars", &ObjectRec::HideScrollBars},
      {"rec.Icon", &ObjectRec::Icon},
      {"rec.ScrollBars", &ObjectRec::ScrollBars},
      {"rec.Visible", &ObjectRec::Visible},
      {"rec.Enabled", &ObjectRec::Enabled},
      {"rec.Cursor", &ObjectRec::Cursor},
      {"rec.Columns", &ObjectRec::Columns},
      {"rec.TabOrder", &ObjectRec::TabOrder},
      {"rec.ReadOnly", &ObjectRec::ReadOnly},
      {"form.Left", &FormRec::Left},
      {"form.Top", &FormRec::Top},
      {"form.Width", &FormRec::Width},
      {"form.Height", &FormRec::Height},
      {"form.ImageFile", &FormRec::ImageFile},
      {"form.IconFile", &FormRec::IconFile},
      {"form.BorderStyle", &FormRec::BorderStyle},
      {"form.Cursor", &FormRec::Cursor},
      {"form.Hint", CommaText{&FormRec::Hint}},
      {"form.WndState", &FormRec::WndState},
      {"form.Center", &FormRec::Center},
      {"form.Visible", &FormRec::Visible},
      {"form.TfLeft", &FormRec::TfLeft},
      {"form.TfTop", &FormRec::TfTop},
      {"form.TfWidth", &FormRec::TfWidth},
      {"form.TfHeight", &FormRec::TfHeight},
      {"form.TfCursor", &FormRec::TfCursor},
      {"form.TfAlign", &FormRec::TfAlign},
      {"form.TfTransparency", &FormRec::TfTransparency},
      {"form.TfTranspColor", &FormRec::TfTranspColor},
      {"sock.Family", &WinSockRec::Family},
      {"sock.Protocol", &WinSockRec::Protocol},
      {"sock.Type", &WinSockRec::Type},
      {"sock.WMessage", &WinSockRec::WMessage},
      {"html.Navigate", &HtmlViewerRec::Navigate},
      {"popup.Alignment", &PopUpItemRec::Alignment},
      {"popup.AutoPopUp", &PopUpItemRec::AutoPopUp},
      {"popup.PopUpMenu", &PopUpItemRec::PopUpMenu},
  };
  return words;
}

Source SourceFor(std::string_view word) {
  for (const SourceWord& entry : SourceWords()) {
    if (entry.Word == word) return entry.Value;
  }
  if (const auto event = EventOfName(word)) return *event;
  return MemberOfName(word).value_or(Member::Tag);
}

/// The tag whose "<" ends the literal before a value.
Tag TagOf(std::string_view before) {
  const std::size_t bracket = before.rfind('<');
  if (bracket == std::string_view::npos) return Tag::None;
  const std::size_t blank = before.rfind(' ', bracket);
  const std::size_t start = blank == std::string_view::npos ? 0 : blank + 1;
  return TagOfWord(Lower(before.substr(start, bracket - start)));
}

RecordLayout Parse(std::string_view text) {
  RecordLayout layout;
  std::size_t at = 0;
  for (std::size_t open = text.find('@'); open != std::string_view::npos;
       open = text.find('@', at)) {
    const std::size_t close = text.find('@', open + 1);
    LayoutField field;
    field.Before = text.substr(at, open - at);
    field.Value = SourceFor(text.substr(open + 1, close - open - 1));
    const auto* const special = std::get_if<Special>(&field.Value);
    const bool in_head =
        special != nullptr && (*special == Special::Number || *special == Special::Name);
    if (!in_head) field.In = TagOf(field.Before);
    layout.Fields.push_back(std::move(field));
    at = close + 1;
  }
  layout.End = text.substr(at);
  return layout;
}

constexpr std::array kFaceColor{InheritedMember{Member::BackColor, Tag::Color}};
constexpr std::array kLabelBorder{InheritedMember{Member::BorderStyle, Tag::Border},
                                  InheritedMember{Member::WordWrap, Tag::Icon}};
constexpr std::array kComboInk{InheritedMember{Member::ForeColor, Tag::FontClr}};
constexpr std::array kRichWrap{InheritedMember{Member::WordWrap, Tag::Icon}};
constexpr std::array kHtmlText{InheritedMember{Member::Text, Tag::String}};
// The tags of a frame's place go to the form's record; the control stands where they say, too.
constexpr std::array kFramePlace{
    InheritedMember{Member::Left, Tag::Left}, InheritedMember{Member::Top, Tag::Top},
    InheritedMember{Member::Width, Tag::Width}, InheritedMember{Member::Height, Tag::Height}};

}  // namespace

const RecordLayout& LayoutOf(Kind kind) {
  static const std::array<RecordLayout, kKindCount> layouts = [] {
    std::array<RecordLayout, kKindCount> all;
    for (const LayoutText& entry : kLayoutTexts) {
      all[static_cast<std::size_t>(entry.Id)] = Parse(entry.Text);
    }
    return all;
  }();
  return layouts[static_cast<std::size_t>(kind)];
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
