#include "inspector/row_bindings.h"

#include <array>

#include "text/code_page.h"

namespace tarnwick {

namespace {

template <class... Kinds>
constexpr RowKinds Of(Kinds... kinds) noexcept {
  return (SetOf(kinds) | ...);
}

constexpr RowKinds kForm = SetOf(Kind::Form);
constexpr RowKinds kFrame = SetOf(Kind::TransparentFrame);
constexpr RowKinds kSocket = SetOf(Kind::WinSock);
constexpr RowKinds kPopUp = SetOf(Kind::PopUpMenu);
constexpr RowKinds kImage = SetOf(Kind::Image);
constexpr RowKinds kButton = SetOf(Kind::Button);
constexpr RowKinds kRich = SetOf(Kind::RichTextBox);
constexpr RowKinds kTexts = Of(Kind::TextBox, Kind::RichTextBox);
constexpr RowKinds kDialogs = Of(Kind::OpenDialog, Kind::SaveDialog);
constexpr RowKinds kChecks = Of(Kind::CheckBox, Kind::OptionButton);
constexpr RowKinds kLists = Of(Kind::ListBox, Kind::ComboBox);
constexpr RowKinds kObjects = (RowKinds{1} << kObjectKindCount) - 1;
/// Kinds whose cursor, enabled, tab order and visibility are kept in their records: those with an
/// object's record, but for the dialogs, which have a record for their texts.
constexpr RowKinds kRecorded = [] {
  RowKinds kinds = 0;
  for (const KindInfo& kind : ObjectKinds()) {
    if (std::holds_alternative<RecordArray<ObjectRec> FormRec::*>(kind.Records)) {
      kinds |= SetOf(kind.Id);
    }
  }
  return kinds & ~kDialogs;
}();

using Obj = ObjectRec;
using Shape = RowShape;
using Effect = RowEffect;
constexpr std::monostate kNone{};

/// The whole table. The first line of a row that names the kind counts, so a line for all objects
/// stands behind those for some.
constexpr std::array kBindings{
    RowBinding{"parent", kPopUp, Shape::Parent, &PopUpItemRec::PopUpMenu, kNone},
    RowBinding{"family", kSocket, Shape::Choice, &WinSockRec::Family, kNone},
    RowBinding{"protocol", kSocket, Shape::Choice, &WinSockRec::Protocol, kNone},
    RowBinding{"type", kSocket, Shape::Choice, &WinSockRec::Type, kNone},
    RowBinding{"wmessage", kSocket, Shape::Text, &WinSockRec::WMessage, kNone},
    RowBinding{"alignment", kPopUp, Shape::Index, &PopUpItemRec::Alignment, kNone},
    RowBinding{"autopopup", kPopUp, Shape::YesNo, &PopUpItemRec::AutoPopUp, kNone},
    RowBinding{"autosize", kObjects, Shape::YesNo, Member::AutoSize, kNone},
    RowBinding{"bmphandle", kButton | kImage, Shape::File, &Obj::ImageFile, kNone,
               Effect::Resource},
    RowBinding{"cancel", kButton, Shape::YesNo, Member::Cancel, kNone},
    RowBinding{"caption", kForm, Shape::Text, &DesignForm::Caption, kNone},
    RowBinding{"caption", kObjects, Shape::Text, Member::Caption, kNone},
    RowBinding{"title", kDialogs, Shape::Text, &Obj::Title, kNone},
    RowBinding{"cursor", kForm, Shape::Index, &FormRec::Cursor, kNone},
    RowBinding{"cursor", kFrame, Shape::Index, &FormRec::TfCursor, kNone},
    RowBinding{"cursor", kRecorded, Shape::Index, &Obj::Cursor, kNone},
    RowBinding{"default", kButton, Shape::YesNo, Member::Default, kNone},
    RowBinding{"enabled", kRecorded, Shape::YesNo, &Obj::Enabled, kNone},
    RowBinding{"font", kObjects, Shape::Font, Member::FontName, kNone},
    // The generated colour of a Button comes from its record; its control class has none.
    RowBinding{"fontcolor", kButton, Shape::Color, &Obj::FontColor, Member::ForeColor},
    RowBinding{"fontcolor", kObjects, Shape::Color, Member::ForeColor, kNone},
    RowBinding{"height", kForm, Shape::Extent, &FormRec::Height, &DesignForm::Height},
    RowBinding{"height", kFrame, Shape::Extent, &FormRec::TfHeight, Member::Height},
    RowBinding{"height", kObjects, Shape::Extent, Member::Height, kNone},
    RowBinding{"hint", kForm, Shape::Text, &FormRec::Hint, kNone},
    RowBinding{"hint", kObjects, Shape::Text, Member::ToolTipText, kNone},
    // A form's position is the program's: the design window stays where it is in its container.
    RowBinding{"left", kForm, Shape::Pixels, &FormRec::Left, kNone},
    RowBinding{"left", kFrame, Shape::Pixels, &FormRec::TfLeft, Member::Left},
    RowBinding{"left", kObjects, Shape::Pixels, Member::Left, kNone},
    RowBinding{"top", kForm, Shape::Pixels, &FormRec::Top, kNone},
    RowBinding{"top", kFrame, Shape::Pixels, &FormRec::TfTop, Member::Top},
    RowBinding{"top", kObjects, Shape::Pixels, Member::Top, kNone},
    RowBinding{"width", kForm, Shape::Extent, &FormRec::Width, &DesignForm::Width},
    RowBinding{"width", kFrame, Shape::Extent, &FormRec::TfWidth, Member::Width},
    RowBinding{"width", kObjects, Shape::Extent, Member::Width, kNone},
    RowBinding{"columns", SetOf(Kind::ListBox), Shape::Number, &Obj::Columns, kNone},
    RowBinding{"borderstyle", kForm, Shape::Index, &FormRec::BorderStyle, kNone, Effect::Frame},
    RowBinding{"borderstyle", kTexts, Shape::Index, Member::BorderStyle, kNone},
    // A list has no border member; its appearance is what is saved and generated as one.
    RowBinding{"borderstyle", SetOf(Kind::ListBox), Shape::Index, Member::Appearance, kNone},
    RowBinding{"center", kForm, Shape::YesNo, &FormRec::Center, kNone},
    RowBinding{"color", kForm, Shape::Color, &DesignForm::BackColor, kNone, Effect::Recolor},
    RowBinding{"color", kFrame, Shape::Color, &FormRec::TfColor, kNone},
    RowBinding{"color", kObjects, Shape::Color, Member::BackColor, kNone},
    RowBinding{"icon(app)", kForm, Shape::File, &FormRec::IconFile, kNone, Effect::None, true},
    // The program takes the icon of its main window, so an edit of one is an edit of both.
    RowBinding{"icohandle", kForm, Shape::File, &FormRec::ImageFile, &FormRec::IconFile,
               Effect::WindowIcon, true},
    RowBinding{"icohandle", kImage, Shape::File, &Obj::PictureName, kNone, Effect::Picture, true},
    RowBinding{"windowstate", kForm, Shape::Index, &FormRec::WndState, kNone},
    RowBinding{"readonly", kTexts, Shape::YesNo, &Obj::ReadOnly, kNone},
    RowBinding{"text", kObjects, Shape::Text, Member::Text, kNone},
    RowBinding{"hidescrollbars", kRich, Shape::YesNo, &Obj::HideScrollBars, kNone},
    RowBinding{"scrollbars", kRich, Shape::Index, &Obj::ScrollBars, kNone},
    RowBinding{"taborder", kRecorded, Shape::Number, &Obj::TabOrder, kNone},
    RowBinding{"visible", kForm, Shape::YesNo, &FormRec::Visible, kNone},
    RowBinding{"visible", kRecorded, Shape::YesNo, &Obj::Visible, kNone},
    // The word wrap that is saved and generated is the record's field `Icon`.
    RowBinding{"wordwrap", kRich | SetOf(Kind::Label), Shape::YesNo, &Obj::Icon, Member::WordWrap},
    RowBinding{"wordwrap", kObjects, Shape::YesNo, Member::WordWrap, kNone},
    // Generated from the record, saved from the control.
    RowBinding{"checked", kChecks, Shape::YesNo, &Obj::Checked, Member::Value},
    RowBinding{"additems", kLists | kPopUp, Shape::Items, kNone, kNone},
    RowBinding{"sorted", kLists, Shape::YesNo, &Obj::Sorted, kNone},
    RowBinding{"filename", kDialogs, Shape::Text, &Obj::FileName, kNone},
    RowBinding{"filter", kDialogs, Shape::Text, &Obj::Filter, kNone},
    RowBinding{"initialdir", kDialogs, Shape::Text, &Obj::InitialDir, kNone},
    RowBinding{"stretch", kObjects, Shape::YesNo, Member::Stretch, kNone},
    RowBinding{"transparent", kObjects, Shape::NotYes, Member::BackStyle, kNone},
    RowBinding{"multiselect", SetOf(Kind::ListBox), Shape::YesNo, &Obj::MultiSelect, kNone},
    RowBinding{"align", kFrame, Shape::Index, &FormRec::TfAlign, kNone},
    RowBinding{"transparency", kFrame, Shape::Number, &FormRec::TfTransparency, kNone},
    RowBinding{"transpcolor", kFrame, Shape::Color, &FormRec::TfTranspColor, kNone},
    RowBinding{"interval", SetOf(Kind::Time), Shape::Number, &Obj::Interval, kNone},
    // The design form shows the page's name in the viewer.
    RowBinding{"navigate", SetOf(Kind::HtmlViewer), Shape::File, &HtmlViewerRec::Navigate,
               Member::Text, Effect::None, true},
};

}  // namespace

const RowBinding* BindingOf(std::string_view row_name, Kind kind) noexcept {
  for (const RowBinding& binding : kBindings) {
    if ((binding.Kinds & SetOf(kind)) != 0 && EqualsFolded(binding.Row, row_name)) return &binding;
  }
  return nullptr;
}

}  // namespace tarnwick
