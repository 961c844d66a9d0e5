// The one table of kinds: a row has what differs from one kind to the next.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "model/kind_rules.h"
#include "text/enum_table.h"

namespace tarnwick {

/// The controls of a design form: the object kinds, then the parts that are no objects, in the
/// order in which a new form has them.
enum class Kind : std::uint8_t {
  Button,
  Label,
  Image,
  CheckBox,
  OptionButton,
  TextBox,
  RichTextBox,
  ListBox,
  ComboBox,
  Time,
  OpenDialog,
  SaveDialog,
  FileStream,
  TransparentFrame,
  HtmlViewer,
  WinSock,
  PopUpMenu,
  Menu,      ///< `mnuBar`, a title of the menu bar
  MenuItem,  ///< `ItemMnuBar`, an item under a title
  Numero,    ///< the hidden label with the form's number
  Frame,
  Handle,  ///< `picHandle`
  Form,
};
inline constexpr std::size_t kKindCount = static_cast<std::size_t>(Kind::Form) + 1;
/// The kinds from Button to PopUpMenu: those the tool box places and a form file numbers.
inline constexpr std::size_t kObjectKindCount = static_cast<std::size_t>(Kind::Menu);

/// The tool number of a kind that no tool places.
inline constexpr int kNoTool = -1;

/// The row of a kind. A field that a row does not name keeps the value given here.
struct KindInfo {
  Kind Id{};

  // Words.
  std::string_view Name{};       ///< in files, form list, property sheet and tool box
  std::string_view Tag{};        ///< lower-case array name, by which code compares
  std::string_view Array{};      ///< control array on `FormUser`
  std::string_view NameWord{};   ///< word of `NameObjet`
  std::string_view Prefix{};     ///< of a new object's default name
  std::string_view ComboText{};  ///< suffix in the list of objects, its blanks included

  // On the design form.
  ControlClass Class{};
  EventListId Events = EventListId::None;
  ControlTemplate Template{};
  bool Placed = false;      ///< a press of an armed tool can place it
  bool OnePerForm = false;  ///< a form has one at most, whose name has no index
  SizeRule Size = SizeRule::Free;

  // Records.
  RecordHome Records{};
  RecordArray<std::string> FormRec::*Companion = nullptr;  ///< grows along with the records
  std::span<const RecordDefault> Defaults{};
  TabRule Tab = TabRule::None;
  CopyRule Copy{};
  std::string_view PictureWord{};  ///< in the names of its picture resources; "" for no picture

  int Tool = kNoTool;  ///< the number that chooses its tool
  ProgramRules Program{};
};

namespace kind_rows {

inline constexpr std::int32_t kFaceColor = 12632256;
inline constexpr std::int32_t kPaperColor = 16777215;

// What new records hold.
inline constexpr std::array kShown{RecordDefault{&ObjectRec::Enabled, std::int16_t{1}},
                                   RecordDefault{&ObjectRec::Visible, std::int16_t{1}}};
inline constexpr std::array kNewButton{RecordDefault{&ObjectRec::Enabled, std::int16_t{1}},
                                       RecordDefault{&ObjectRec::Visible, std::int16_t{1}},
                                       RecordDefault{&ObjectRec::ImageFile, kNoPicture},
                                       RecordDefault{&ObjectRec::Title, kNoPicture}};
// The third "(None)" of an image goes to the Button of the same index. A form with fewer buttons
// has no place for it.
inline constexpr std::array kNewImage{
    RecordDefault{&ObjectRec::Enabled, std::int16_t{1}},
    RecordDefault{&ObjectRec::Visible, std::int16_t{1}},
    RecordDefault{&ObjectRec::ImageFile, kNoPicture},
    RecordDefault{&ObjectRec::PictureName, kNoPicture},
    RecordDefault{&ObjectRec::Title, kNoPicture, &FormRec::Buttons}};
inline constexpr std::array kNewDialog{
    RecordDefault{&ObjectRec::Filter, std::string_view{"All Files|*.*"}}};
inline constexpr std::array kNewFrame{RecordDefault{&FormRec::TfTop, std::int16_t{0}},
                                      RecordDefault{&FormRec::TfLeft, std::int16_t{0}},
                                      RecordDefault{&FormRec::TfWidth, std::int16_t{105}},
                                      RecordDefault{&FormRec::TfHeight, std::int16_t{105}},
                                      RecordDefault{&FormRec::TfTransparency, std::int16_t{60}},
                                      RecordDefault{&FormRec::TfAlign, std::int16_t{5}},
                                      RecordDefault{&FormRec::TfCursor, std::int16_t{0}},
                                      RecordDefault{&FormRec::TfTranspColor, std::int16_t{0}},
                                      RecordDefault{&FormRec::TfString, std::string_view{}}};
inline constexpr std::array kNewViewer{
    RecordDefault{&HtmlViewerRec::Navigate, kNoPicture},
    RecordDefault{&HtmlViewerRec::Left, std::string_view{"0"}},
    RecordDefault{&HtmlViewerRec::Top, std::string_view{"0"}},
    RecordDefault{&HtmlViewerRec::Width, std::string_view{"Form.ClientWidth"}},
    RecordDefault{&HtmlViewerRec::Height, std::string_view{"Form.ClientHeight"}}};
inline constexpr std::array kNewSocket{
    RecordDefault{&WinSockRec::Family, std::string_view{"AF_INET "}},
    RecordDefault{&WinSockRec::Protocol, std::string_view{"IPPROTO_IP"}},
    RecordDefault{&WinSockRec::Type, std::string_view{"SOCK_STREAM"}},
    RecordDefault{&WinSockRec::WMessage, std::string_view{"0"}}};
inline constexpr std::array kNewPopUp{RecordDefault{&PopUpItemRec::AutoPopUp, std::int16_t{1}},
                                      RecordDefault{&PopUpItemRec::PopUpMenu, NameOfForm{}}};

// What a copy takes over from its source's record.
inline constexpr std::array kCopiedButton{
    RecordField{&ObjectRec::Enabled},   RecordField{&ObjectRec::Visible},
    RecordField{&ObjectRec::ImageFile}, RecordField{&ObjectRec::Cursor},
    RecordField{&ObjectRec::FontColor}, RecordField{&ObjectRec::Title}};
inline constexpr std::array kCopiedLabel{
    RecordField{&ObjectRec::Visible}, RecordField{&ObjectRec::Enabled},
    RecordField{&ObjectRec::Cursor}, RecordField{&ObjectRec::Icon}};
inline constexpr std::array kCopiedImage{
    RecordField{&ObjectRec::Visible}, RecordField{&ObjectRec::Enabled},
    RecordField{&ObjectRec::ImageFile}, RecordField{&ObjectRec::Cursor},
    RecordField{&ObjectRec::Title}};
inline constexpr std::array kCopiedCheckBox{
    RecordField{&ObjectRec::Visible}, RecordField{&ObjectRec::Enabled},
    RecordField{&ObjectRec::Cursor}, RecordField{&ObjectRec::Checked}};
inline constexpr std::array kCopiedOption{RecordField{&ObjectRec::Visible},
                                          RecordField{&ObjectRec::Enabled},
                                          RecordField{&ObjectRec::Cursor}};
inline constexpr std::array kCopiedTextBox{RecordField{&ObjectRec::Visible},
                                           RecordField{&ObjectRec::Enabled},
                                           RecordField{&ObjectRec::ReadOnly}};
inline constexpr std::array kCopiedRichTextBox{
    RecordField{&ObjectRec::Enabled},    RecordField{&ObjectRec::Visible},
    RecordField{&ObjectRec::ReadOnly},   RecordField{&ObjectRec::HideScrollBars},
    RecordField{&ObjectRec::ScrollBars}, RecordField{&ObjectRec::Icon}};
inline constexpr std::array kCopiedListBox{
    RecordField{&ObjectRec::Visible},    RecordField{&ObjectRec::Enabled},
    RecordField{&ObjectRec::Columns},    RecordField{&ObjectRec::Cursor},
    RecordField{&ObjectRec::InitialDir}, RecordField{&ObjectRec::MultiSelect},
    RecordField{&ObjectRec::Sorted},     RecordField{&ObjectRec::Items}};
inline constexpr std::array kCopiedComboBox{
    RecordField{&ObjectRec::Enabled}, RecordField{&ObjectRec::Visible},
    RecordField{&ObjectRec::Items}, RecordField{&ObjectRec::Sorted},
    RecordField{&ObjectRec::Cursor}};
inline constexpr std::array kCopiedTime{RecordField{&ObjectRec::Enabled},
                                        RecordField{&ObjectRec::Interval}};
inline constexpr std::array kCopiedDialog{
    RecordField{&ObjectRec::FileName}, RecordField{&ObjectRec::Filter},
    RecordField{&ObjectRec::InitialDir}, RecordField{&ObjectRec::Title}};
inline constexpr std::array kCopiedViewer{RecordField{&HtmlViewerRec::Navigate}};
inline constexpr std::array kCopiedPopUp{RecordField{&PopUpItemRec::Alignment},
                                         RecordField{&PopUpItemRec::AutoPopUp}};

}  // namespace kind_rows

/// All kinds by enumerator. The irregular capitals of the classes are those of the language.
inline constexpr std::array<KindInfo, kKindCount> kKinds{{
    {.Id = Kind::Button,
     .Name = "Button",
     .Tag = "button",
     .Array = "Button",
     .NameWord = "Button",
     .Prefix = "Btn",
     .ComboText = "   (Button)",
     .Class = ControlClass::CommandButton,
     .Events = EventListId::Button,
     .Template = {1, 75, 25, kind_rows::kFaceColor},
     .Placed = true,
     .Records = &FormRec::Buttons,
     .Defaults = kind_rows::kNewButton,
     .Tab = TabRule::Own,
     .Copy = {.Copied = true, .Tab = TabRule::Own, .Fields = kind_rows::kCopiedButton},
     .PictureWord = "Btn",
     .Tool = 0,
     .Program = {.Dim = {DimRule::Stem, "QButton", 3},
                 .SetUp = SetUpRule::AllLines,
                 .Events = EventWalk::Numbered}},
    {.Id = Kind::Label,
     .Name = "Label",
     .Tag = "label",
     .Array = "Label",
     .NameWord = "Label",
     .Prefix = "Label",
     .ComboText = "   (Label)",
     .Class = ControlClass::Label,
     .Events = EventListId::Picture,
     .Template = {1, 65, 17, kind_rows::kFaceColor},
     .Placed = true,
     .Records = &FormRec::Labels,
     .Defaults = kind_rows::kShown,
     .Copy = {.Copied = true,
              .Tab = TabRule::None,
              .Fields = kind_rows::kCopiedLabel,
              .First = Member::WordWrap},
     .Tool = 3,
     .Program = {.Dim = {DimRule::Stem, "Qlabel", 7},
                 .SetUp = SetUpRule::AllLines,
                 .HeldBack = SetOf({Member::Appearance, Member::BorderStyle}),
                 .Events = EventWalk::Numbered}},
    {.Id = Kind::Image,
     .Name = "Image",
     .Tag = "images",
     .Array = "Images",
     .NameWord = "Image",
     .Prefix = "Image",
     .ComboText = "   (Images)",
     .Class = ControlClass::Image,
     .Events = EventListId::Picture,
     .Template = {1, 105, 105, kind_rows::kFaceColor},
     .Placed = true,
     .Records = &FormRec::Images,
     .Defaults = kind_rows::kNewImage,
     .Copy = {.Copied = true,
              .Tab = TabRule::None,
              .Fields = kind_rows::kCopiedImage,
              .First = Member::Stretch},
     .PictureWord = "Image",
     .Tool = 2,
     .Program = {.Dim = {DimRule::Plain, "QImage", 6},
                 .SetUp = SetUpRule::AllLines,
                 .HeldBack = SetOf({Member::Appearance, Member::BorderStyle}),
                 .Events = EventWalk::Numbered}},
    {.Id = Kind::CheckBox,
     .Name = "CheckBox",
     .Tag = "checkbox",
     .Array = "CheckBox",
     .NameWord = "CheckBox",
     .Prefix = "Check",
     .ComboText = "   (CheckBox)",
     .Class = ControlClass::CheckBox,
     .Events = EventListId::Click,
     .Template = {1, 97, 17, kind_rows::kFaceColor},
     .Placed = true,
     .Records = &FormRec::CheckBoxes,
     .Defaults = kind_rows::kShown,
     .Tab = TabRule::Own,
     .Copy = {.Copied = true, .Tab = TabRule::Own, .Fields = kind_rows::kCopiedCheckBox},
     .Tool = 6,
     .Program = {.Dim = {DimRule::Stem, "QCheckBox", 4},
                 .SetUp = SetUpRule::AllLines,
                 .HeldBack = SetOf({Member::Appearance, Member::BackColor}),
                 .Events = EventWalk::Numbered}},
    {.Id = Kind::OptionButton,
     .Name = "OptionButton",
     .Tag = "optionbutton",
     .Array = "OptionButton",
     .NameWord = "OptionButton",
     .Prefix = "OptionBtn",
     .ComboText = "   (OptionButton)",
     .Class = ControlClass::OptionButton,
     .Events = EventListId::Click,
     .Template = {1, 97, 17, kind_rows::kFaceColor},
     .Placed = true,
     .Records = &FormRec::OptionButtons,
     .Defaults = kind_rows::kShown,
     .Tab = TabRule::Own,
     .Copy = {.Copied = true, .Tab = TabRule::Own, .Fields = kind_rows::kCopiedOption},
     .Tool = 5,
     .Program = {.Dim = {DimRule::Stem, "QRadiobutton", 9},
                 .SetUp = SetUpRule::AllLines,
                 .HeldBack = SetOf({Member::Appearance, Member::BackColor}),
                 .Events = EventWalk::Numbered}},
    {.Id = Kind::TextBox,
     .Name = "TextBox",
     .Tag = "textbox",
     .Array = "TextBox",
     .NameWord = "TextBox",
     .Prefix = "Text",
     .ComboText = "   (TextBox)",
     .Class = ControlClass::TextBox,
     .Events = EventListId::Edit,
     .Template = {1, 121, 21, kind_rows::kPaperColor},
     .Placed = true,
     .Size = SizeRule::KeepsHeight,
     .Records = &FormRec::TextBoxes,
     .Defaults = kind_rows::kShown,
     .Tab = TabRule::Own,
     .Copy = {.Copied = true, .Tab = TabRule::Own, .Fields = kind_rows::kCopiedTextBox},
     .Tool = 1,
     .Program = {.Dim = {DimRule::Stem, "Qedit", 11},
                 .SetUp = SetUpRule::AllLines,
                 .Events = EventWalk::Numbered}},
    {.Id = Kind::RichTextBox,
     .Name = "RichTextBox",
     .Tag = "richtextbox",
     .Array = "RichTextBox",
     .NameWord = "RichTextBox",
     .Prefix = "RichText",
     .ComboText = "   (RichTextBox)",
     .Class = ControlClass::TextBox,
     .Events = EventListId::Rich,
     .Template = {1, 185, 89, kind_rows::kPaperColor},
     .Placed = true,
     .Records = &FormRec::RichTextBoxes,
     .Defaults = kind_rows::kShown,
     .Tab = TabRule::InTextBoxes,
     .Copy = {.Copied = true,
              .Tab = TabRule::InTextBoxes,
              .Fields = kind_rows::kCopiedRichTextBox,
              .First = Member::WordWrap},
     .Tool = 10,
     .Program = {.Dim = {DimRule::Stem, "Qrichedit", 10},
                 .SetUp = SetUpRule::AllLines,
                 .Events = EventWalk::Numbered}},
    {.Id = Kind::ListBox,
     .Name = "ListBox",
     .Tag = "listbox",
     .Array = "ListBox",
     .NameWord = "ListBox",
     .Prefix = "List",
     .ComboText = "   (ListBox)",
     .Class = ControlClass::ListBox,
     .Events = EventListId::List,
     .Template = {1, 121, 97, kind_rows::kPaperColor},
     .Placed = true,
     .Records = &FormRec::ListBoxes,
     .Defaults = kind_rows::kShown,
     .Tab = TabRule::Own,
     .Copy = {.Copied = true,
              .Tab = TabRule::Own,
              .Fields = kind_rows::kCopiedListBox,
              .First = Member::Appearance},
     .Tool = 4,
     .Program = {.Dim = {DimRule::Stem, "Qlistbox", 8, true},
                 .SetUp = SetUpRule::AllLines,
                 .HeldBack = 0,
                 .Events = EventWalk::Numbered}},
    {.Id = Kind::ComboBox,
     .Name = "ComboBox",
     .Tag = "combobox",
     .Array = "ComboBox",
     .NameWord = "ComboBox",
     .Prefix = "Combo",
     .ComboText = "   (ComboBox)",
     .Class = ControlClass::UserControl1,
     .Events = EventListId::Combo,
     .Template = {1, 145, 21, kind_rows::kPaperColor},
     .Placed = true,
     .Records = &FormRec::ComboBoxes,
     .Companion = &FormRec::ComboItems,
     .Defaults = kind_rows::kShown,
     .Tab = TabRule::Own,
     .Copy = {.Copied = true, .Tab = TabRule::Own, .Fields = kind_rows::kCopiedComboBox},
     .Tool = 7,
     .Program = {.Dim = {DimRule::Stem, "Qcombobox", 5, true},
                 .SetUp = SetUpRule::AllLines,
                 .HeldBack = SetOf({Member::Appearance, Member::BorderStyle, Member::BackColor}),
                 .Events = EventWalk::Numbered}},
    {.Id = Kind::Time,
     .Name = "Time",
     .Tag = "time",
     .Array = "Time",
     .NameWord = "Time",
     .Prefix = "Time",
     .ComboText = "   (Time)",
     .Class = ControlClass::PictureBox,
     .Events = EventListId::Timer,
     .Template = {1, 28, 28, kind_rows::kFaceColor},
     .Placed = true,
     .Size = SizeRule::KeepsBoth,
     .Records = &FormRec::Times,
     .Copy = {.Copied = true, .Fields = kind_rows::kCopiedTime},
     .Tool = 11,
     .Program = {.Dim = {DimRule::Stem, "Qtimer", 13},
                 .SetUp = SetUpRule::OwnLines,
                 .Events = EventWalk::Numbered}},
    {.Id = Kind::OpenDialog,
     .Name = "OpenDialog",
     .Tag = "opendialog",
     .Array = "OpenDialog",
     .NameWord = "OpenDialog",
     .Prefix = "OpenDlg",
     .ComboText = "   (OpenDialog)",
     .Class = ControlClass::PictureBox,
     .Events = EventListId::None,
     .Template = {1, 28, 28, kind_rows::kFaceColor},
     .Placed = true,
     .Size = SizeRule::KeepsBoth,
     .Records = &FormRec::OpenDialogs,
     .Defaults = kind_rows::kNewDialog,
     .Copy = {.Copied = true, .Fields = kind_rows::kCopiedDialog},
     .Tool = 12,
     .Program = {.Dim = {DimRule::Stem, "Qopendialog", 14},
                 .SetUp = SetUpRule::OwnLines,
                 .Events = EventWalk::Unnumbered}},
    {.Id = Kind::SaveDialog,
     .Name = "SaveDialog",
     .Tag = "savedialog",
     .Array = "SaveDialog",
     .NameWord = "SaveDialog",
     .Prefix = "SaveDlg",
     .ComboText = "   (SaveDialog)",
     .Class = ControlClass::PictureBox,
     .Events = EventListId::None,
     .Template = {1, 28, 28, kind_rows::kFaceColor},
     .Placed = true,
     .Size = SizeRule::KeepsBoth,
     .Records = &FormRec::SaveDialogs,
     .Defaults = kind_rows::kNewDialog,
     .Copy = {.Copied = true, .Fields = kind_rows::kCopiedDialog},
     .Tool = 13,
     .Program = {.Dim = {DimRule::Stem, "Qsavedialog", 15},
                 .SetUp = SetUpRule::OwnLines,
                 .Events = EventWalk::Unnumbered}},
    {.Id = Kind::FileStream,
     .Name = "FileStream",
     .Tag = "filestream",
     .Array = "FileStream",
     .NameWord = "FileStream",
     .Prefix = "FileStr",
     .ComboText = "   (FileStream)",
     .Class = ControlClass::PictureBox,
     .Events = EventListId::None,
     .Template = {1, 28, 28, kind_rows::kFaceColor},
     .Placed = true,
     .Size = SizeRule::KeepsBoth,
     .Copy = {.Copied = true, .Prefix = "FileStream"},
     .Tool = 14,
     .Program = {.Dim = {DimRule::Plain, "QFileStream", 16}}},
    {.Id = Kind::TransparentFrame,
     .Name = "TransparentFrame",
     .Tag = "transparentframe",
     .Array = "TransparentFrame",
     .NameWord = "TransparentFrame",
     .Prefix = "TrnspFrm",
     .ComboText = "  (TransparentFrame)",
     .Class = ControlClass::PictureBox,
     .Events = EventListId::None,
     .Template = {1, 105, 105, kind_rows::kFaceColor},
     .Placed = true,
     .OnePerForm = true,
     .Size = SizeRule::KeepsBoth,
     .Defaults = kind_rows::kNewFrame,
     .Tool = 15,
     .Program = {.Dim = {DimRule::FirstOnly, "QGlassFrame", 17},
                 .SetUp = SetUpRule::OwnLines,
                 .Events = EventWalk::Unnumbered}},
    {.Id = Kind::HtmlViewer,
     .Name = "HtmlViewer",
     .Tag = "htmlviewer",
     .Array = "HtmlViewer",
     .NameWord = "HtmlViewer",
     .Prefix = "Html",
     .ComboText = "   (HtmlViewer)",
     .Class = ControlClass::TextBox,
     .Events = EventListId::None,
     .Template = {1, 185, 120, kind_rows::kPaperColor},
     .Placed = true,
     .Records = &FormRec::HtmlViewers,
     .Defaults = kind_rows::kNewViewer,
     .Copy = {.Copied = true, .Prefix = "HtmlViewer", .Fields = kind_rows::kCopiedViewer},
     .Tool = 16,
     .Program = {.Dim = {DimRule::Stem, "QOleContainer", 18},
                 .SetUp = SetUpRule::OwnLines,
                 .Events = EventWalk::Unnumbered,
                 .Counter = CounterLife::Form}},
    {.Id = Kind::WinSock,
     .Name = "WinSock",
     .Tag = "winsock",
     .Array = "WinSock",
     .NameWord = "WinSock",
     .Prefix = "Sock",
     .ComboText = "   (WinSock)",
     .Class = ControlClass::PictureBox,
     .Events = EventListId::None,
     .Template = {1, 28, 28, kind_rows::kFaceColor},
     .Placed = true,
     .Size = SizeRule::KeepsBoth,
     .Records = &FormRec::WinSocks,
     .Defaults = kind_rows::kNewSocket,
     .Tool = 18,
     .Program = {.Dim = {DimRule::WholeName, "QSocket", 2},
                 .SetUp = SetUpRule::OwnLines,
                 .Events = EventWalk::Unnumbered,
                 .Counter = CounterLife::Process}},
    {.Id = Kind::PopUpMenu,
     .Name = "PopUpMenu",
     .Tag = "popupmnu",
     .Array = "PopUpMnu",
     .NameWord = "PopupMenu",
     .Prefix = "pMenu",
     .ComboText = "  (PopupMenu)",
     .Class = ControlClass::PictureBox,
     .Events = EventListId::PopUp,
     .Template = {1, 28, 28, kind_rows::kFaceColor},
     .Placed = true,
     .Size = SizeRule::KeepsBoth,
     .Records = &FormRec::PopUps,
     .Defaults = kind_rows::kNewPopUp,
     .Copy = {.Copied = true, .Prefix = "PopupMenu", .Fields = kind_rows::kCopiedPopUp},
     .Tool = 19,
     .Program = {.Dim = {DimRule::PopUps, "QPopupmenu", 1},
                 .SetUp = SetUpRule::PopUp,
                 .Counter = CounterLife::Process}},
    {.Id = Kind::Menu,
     .Name = "Menu",
     .Tag = "menu",
     .Array = "mnuBar",
     .Class = ControlClass::Menu,
     .Events = EventListId::Click,
     .Program = {.Dim = {DimRule::MenuBar, "QMenuItem", 12},
                 .SetUp = SetUpRule::MenuBar,
                 .Events = EventWalk::Unnumbered}},
    {.Id = Kind::MenuItem,
     .Name = "MenuItem",
     .Tag = "itemmnubar",
     .Array = "ItemMnuBar",
     .Class = ControlClass::Menu},
    {.Id = Kind::Numero, .Tag = "numero", .Array = "Numero", .Class = ControlClass::Label},
    {.Id = Kind::Frame,
     .Name = "Frame",
     .Tag = "frame",
     .Array = "Frame",
     .NameWord = "Frame",
     .Prefix = "Frame",
     .Class = ControlClass::Frame,
     .Template = {1, 105, 105, kind_rows::kFaceColor},
     .Placed = true,
     .Tab = TabRule::CountOnly},
    {.Id = Kind::Handle,
     .Tag = "pichandle",
     .Array = "picHandle",
     .Class = ControlClass::PictureBox,
     .Template = {8, 7, 7, 0}},
    {.Id = Kind::Form,
     .Name = "Form",
     .Tag = "form",
     .Array = "Form",
     .NameWord = "Form",
     .Prefix = "Form",
     .ComboText = "   (Form)",
     .Class = ControlClass::Form,
     .Events = EventListId::Form,
     .Template = {0}},
}};
static_assert(HasRowOfEach(kKinds, kKindCount), "a kind has no row, or its row stands elsewhere");

[[nodiscard]] constexpr const KindInfo& InfoOf(Kind kind) noexcept {
  return kKinds[static_cast<std::size_t>(kind)];
}
[[nodiscard]] constexpr std::span<const KindInfo, kKindCount> AllKinds() noexcept {
  return kKinds;
}
/// True for the kinds of objects, from Button to PopUpMenu.
[[nodiscard]] constexpr bool IsObjectKind(Kind kind) noexcept {
  return static_cast<std::size_t>(kind) < kObjectKindCount;
}
/// The rows of the object kinds.
[[nodiscard]] constexpr std::span<const KindInfo, kObjectKindCount> ObjectKinds() noexcept {
  return std::span(kKinds).first<kObjectKindCount>();
}

static_assert(
    [] {
      for (const KindInfo& kind : ObjectKinds()) {
        const bool worded = !kind.Name.empty() && !kind.Tag.empty() && !kind.Array.empty() &&
                            !kind.NameWord.empty() && !kind.Prefix.empty() &&
                            !kind.ComboText.empty();
        if (!worded || !kind.Placed || kind.Tool == kNoTool ||
            kind.Program.Dim.Rule == DimRule::None) {
          return false;
        }
      }
      return true;
    }(),
    "an object kind lacks a word, its tool or its class");

/// The kind of a lower-case tag: array names and file words both ("images", "image"). Nothing for
/// an unknown word.
[[nodiscard]] std::optional<Kind> KindOfTag(std::string_view tag) noexcept;
/// The kind of a record word in a form file, without regard to case.
[[nodiscard]] std::optional<Kind> KindOfFileWord(std::string_view word) noexcept;
/// The kind of a text as `NameObjet` has it: kind word and index ("Button3"), in any case. Nothing
/// for the name of a menu item and for unknown words.
[[nodiscard]] std::optional<Kind> KindOfNameObjet(std::string_view name_objet) noexcept;
/// The event list of a lower-case kind tag; empty for kinds without events and unknown words.
[[nodiscard]] const EventList& EventListOfTag(std::string_view tag) noexcept;

}  // namespace tarnwick
