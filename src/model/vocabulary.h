// The closed vocabulary of object kinds and events. Every word stands here once.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>

namespace tarnwick {

/// Events, in the order in which generator and member list walk them; OnPopUp stands apart.
enum class Event : std::uint8_t {
  OnTimer,
  OnClick,
  OnClose,
  OnChange,
  OnEnter,
  OnDblClick,
  OnHint,
  OnKeyDown,
  OnKeyPress,
  OnKeyUp,
  OnMouseDown,
  OnMouseMove,
  OnMouseUp,
  OnPaint,
  OnResize,
  OnShow,
  OnPopUp,
};
inline constexpr std::size_t kEventCount = 17;
/// The events from OnTimer to OnShow: those the generator walks.
inline constexpr std::size_t kWalkedEventCount = 16;

struct EventInfo {
  Event Id;
  std::string_view Code;       ///< decimal text
  std::string_view Name;       ///< "OnClick"
  std::string_view Suffix;     ///< ".OnClick"
  std::string_view Signature;  ///< Sub header text, parameters included
};

/// All events by enumerator.
inline constexpr std::array<EventInfo, kEventCount> kEvents{{
    {Event::OnTimer, "160", "OnTimer", ".OnTimer", "OnTimer"},
    {Event::OnClick, "10", "OnClick", ".OnClick", "OnClick"},
    {Event::OnClose, "20", "OnClose", ".OnClose", "OnClose (Action As Integer)"},
    {Event::OnChange, "120", "OnChange", ".OnChange", "OnChange"},
    {Event::OnEnter, "100", "OnEnter", ".OnEnter", "OnEnter"},
    {Event::OnDblClick, "110", "OnDblClick", ".OnDblClick", "OnDblClick"},
    {Event::OnHint, "30", "OnHint", ".OnHint", "OnHint (Hint As String)"},
    {Event::OnKeyDown, "40", "OnKeyDown", ".OnKeyDown",
     "OnKeyDown (Key As Word, Shift As Integer)"},
    {Event::OnKeyPress, "50", "OnKeyPress", ".OnKeyPress", "OnKeyPress (Key As Byte)"},
    {Event::OnKeyUp, "60", "OnKeyUp", ".OnKeyUp", "OnKeyUp (Key As Word, Shift As Integer)"},
    {Event::OnMouseDown, "70", "OnMouseDown", ".OnMouseDown",
     "OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)"},
    {Event::OnMouseMove, "80", "OnMouseMove", ".OnMouseMove",
     "OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)"},
    {Event::OnMouseUp, "90", "OnMouseUp", ".OnMouseUp",
     "OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)"},
    {Event::OnPaint, "130", "OnPaint", ".OnPaint", "OnPaint"},
    {Event::OnResize, "140", "OnResize", ".OnResize", "OnResize"},
    {Event::OnShow, "150", "OnShow", ".OnShow", "OnShow"},
    {Event::OnPopUp, "170", "OnPopUp", ".OnPopUp", "OnPopUp"},
}};

[[nodiscard]] constexpr const EventInfo& InfoOf(Event event) noexcept {
  return kEvents[static_cast<std::size_t>(event)];
}
[[nodiscard]] constexpr std::span<const EventInfo, kEventCount> AllEvents() noexcept {
  return kEvents;
}
/// The bit of an event in a set of them.
[[nodiscard]] constexpr unsigned long BitOf(Event event) noexcept {
  return 1UL << static_cast<unsigned>(event);
}
/// The event of a name without regard to case ("onclick").
[[nodiscard]] std::optional<Event> EventOfName(std::string_view name) noexcept;
/// The event of a code such as "120".
[[nodiscard]] std::optional<Event> EventOfCode(std::string_view code) noexcept;

/// What stands on a design form: the object kinds, then the parts that are no objects.
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
  Frame,
  Numero,
  Handle,  ///< `picHandle`
  Form,
};
inline constexpr std::size_t kKindCount = 23;
/// The kinds from Button to PopUpMenu: those the tool box places and a form file numbers.
inline constexpr std::size_t kObjectKindCount = 17;

/// Class of a design control; it decides which members the control has.
enum class ControlClass : std::uint8_t {
  CommandButton,
  Label,
  Image,
  CheckBox,
  OptionButton,
  TextBox,
  ListBox,
  UserControl1,
  PictureBox,
  Frame,
  Menu,
  Form,
};

enum class EventListId : std::uint8_t {
  None,
  Form,
  Button,
  Edit,
  Rich,
  Picture,
  List,
  Click,
  Combo,
  Timer,
  PopUp,
};

struct KindInfo {
  Kind Id;
  std::string_view Name;       ///< in files, form list and property sheet
  std::string_view Tag;        ///< lower-case array name, by which code compares
  std::string_view Array;      ///< control array on `FormUser`
  std::string_view NameWord;   ///< word of `NameObjet`
  std::string_view Prefix;     ///< of a new object's default name
  std::string_view ComboText;  ///< suffix in the list of objects, its blanks included
  ControlClass Class;
  EventListId Events;
};

/// All kinds by enumerator.
inline constexpr std::array<KindInfo, kKindCount> kKinds{{
    {Kind::Button, "Button", "button", "Button", "Button", "Btn", "   (Button)",
     ControlClass::CommandButton, EventListId::Button},
    {Kind::Label, "Label", "label", "Label", "Label", "Label", "   (Label)", ControlClass::Label,
     EventListId::Picture},
    {Kind::Image, "Image", "images", "Images", "Image", "Image", "   (Images)", ControlClass::Image,
     EventListId::Picture},
    {Kind::CheckBox, "CheckBox", "checkbox", "CheckBox", "CheckBox", "Check", "   (CheckBox)",
     ControlClass::CheckBox, EventListId::Click},
    {Kind::OptionButton, "OptionButton", "optionbutton", "OptionButton", "OptionButton",
     "OptionBtn", "   (OptionButton)", ControlClass::OptionButton, EventListId::Click},
    {Kind::TextBox, "TextBox", "textbox", "TextBox", "TextBox", "Text", "   (TextBox)",
     ControlClass::TextBox, EventListId::Edit},
    {Kind::RichTextBox, "RichTextBox", "richtextbox", "RichTextBox", "RichTextBox", "RichText",
     "   (RichTextBox)", ControlClass::TextBox, EventListId::Rich},
    {Kind::ListBox, "ListBox", "listbox", "ListBox", "ListBox", "List", "   (ListBox)",
     ControlClass::ListBox, EventListId::List},
    {Kind::ComboBox, "ComboBox", "combobox", "ComboBox", "ComboBox", "Combo", "   (ComboBox)",
     ControlClass::UserControl1, EventListId::Combo},
    {Kind::Time, "Time", "time", "Time", "Time", "Time", "   (Time)", ControlClass::PictureBox,
     EventListId::Timer},
    {Kind::OpenDialog, "OpenDialog", "opendialog", "OpenDialog", "OpenDialog", "OpenDlg",
     "   (OpenDialog)", ControlClass::PictureBox, EventListId::None},
    {Kind::SaveDialog, "SaveDialog", "savedialog", "SaveDialog", "SaveDialog", "SaveDlg",
     "   (SaveDialog)", ControlClass::PictureBox, EventListId::None},
    {Kind::FileStream, "FileStream", "filestream", "FileStream", "FileStream", "FileStr",
     "   (FileStream)", ControlClass::PictureBox, EventListId::None},
    {Kind::TransparentFrame, "TransparentFrame", "transparentframe", "TransparentFrame",
     "TransparentFrame", "TrnspFrm", "  (TransparentFrame)", ControlClass::PictureBox,
     EventListId::None},
    {Kind::HtmlViewer, "HtmlViewer", "htmlviewer", "HtmlViewer", "HtmlViewer", "Html",
     "   (HtmlViewer)", ControlClass::TextBox, EventListId::None},
    {Kind::WinSock, "WinSock", "winsock", "WinSock", "WinSock", "Sock", "   (WinSock)",
     ControlClass::PictureBox, EventListId::None},
    {Kind::PopUpMenu, "PopUpMenu", "popupmnu", "PopUpMnu", "PopupMenu", "pMenu", "  (PopupMenu)",
     ControlClass::PictureBox, EventListId::PopUp},
    {Kind::Menu, "Menu", "menu", "mnuBar", "", "", "", ControlClass::Menu, EventListId::Click},
    {Kind::MenuItem, "MenuItem", "itemmnubar", "ItemMnuBar", "", "", "", ControlClass::Menu,
     EventListId::None},
    {Kind::Frame, "Frame", "frame", "Frame", "Frame", "", "", ControlClass::Frame,
     EventListId::None},
    {Kind::Numero, "", "numero", "Numero", "", "", "", ControlClass::Label, EventListId::None},
    {Kind::Handle, "", "pichandle", "picHandle", "", "", "", ControlClass::PictureBox,
     EventListId::None},
    {Kind::Form, "Form", "form", "Form", "Form", "Form", "   (Form)", ControlClass::Form,
     EventListId::Form},
}};

[[nodiscard]] constexpr const KindInfo& InfoOf(Kind kind) noexcept {
  return kKinds[static_cast<std::size_t>(kind)];
}
[[nodiscard]] constexpr std::span<const KindInfo, kKindCount> AllKinds() noexcept {
  return kKinds;
}
/// Calls `use` with a kind from Button to PopUpMenu as a constant, for code that is made for each
/// of them.
template <class Use>
auto WithObjectKind(Kind kind, Use use) {
  using Result = decltype(use(std::integral_constant<Kind, Kind::Button>{}));
  using Call = Result (*)(Use&);
  static constexpr auto calls = []<std::size_t... Kinds>(std::index_sequence<Kinds...>) {
    return std::array<Call, kObjectKindCount>{
        [](Use& of) { return of(std::integral_constant<Kind, static_cast<Kind>(Kinds)>{}); }...};
  }
  (std::make_index_sequence<kObjectKindCount>{});
  return calls[static_cast<std::size_t>(kind)](use);
}

/// The kind of a lower-case tag: array names and file words both ("images", "image"). Nothing for
/// an unknown word.
[[nodiscard]] std::optional<Kind> KindOfTag(std::string_view tag) noexcept;
/// The kind of a record word in a form file, without regard to case.
[[nodiscard]] std::optional<Kind> KindOfFileWord(std::string_view word) noexcept;

/// An event list of a kind: signature texts, each followed by "#", and beside it the codes.
struct EventList {
  std::span<const Event> Events;
  std::string_view Signatures;
  std::string_view Codes;
};

[[nodiscard]] const EventList& ListOf(EventListId id) noexcept;
/// The event list of a lower-case kind tag; empty for kinds without events and unknown words.
[[nodiscard]] const EventList& EventListOfTag(std::string_view tag) noexcept;

/// Events of the member list of the code editor, OnTimer first, no OnPopUp.
inline constexpr std::string_view kMemberEventNames =
    "OnTimer#OnClick#OnClose#OnChange#OnEnter#OnDblClick#OnHint#OnKeyDown#OnKeyPress#OnKeyUp#"
    "OnMouseDown#OnMouseMove#OnMouseUp#OnPaint#OnResize#OnShow#";
/// Short list for forms; OnKeyPress is missing in it.
inline constexpr std::string_view kShortFormEventNames =
    "OnClick#OnClose#OnHint#OnKeyDown#OnKeyUp#OnMouseDown#OnMouseMove#OnMouseUp#OnPaint#OnResize#"
    "OnShow";
/// Short list for objects.
inline constexpr std::string_view kShortObjectEventNames =
    "OnClick#OnKeyDown#OnKeyPress#OnKeyUp#OnMouseDown#OnMouseMove#OnMouseUp";

/// The events whose entries a new form gets, in the order of adding. OnTimer is among them though
/// no form ever raises it.
[[nodiscard]] std::span<const Event> NewFormEvents() noexcept;
/// The events whose entries a new object gets, whatever its kind.
[[nodiscard]] std::span<const Event> NewObjectEvents() noexcept;

}  // namespace tarnwick
