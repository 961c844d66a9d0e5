#include "model/vocabulary.h"

#include <algorithm>

#include "text/code_page.h"

namespace tarnwick {

namespace {

using enum Event;

constexpr std::array<EventInfo, kEventCount> kEvents{{
    {OnTimer, "160", "OnTimer", ".OnTimer", "OnTimer"},
    {OnClick, "10", "OnClick", ".OnClick", "OnClick"},
    {OnClose, "20", "OnClose", ".OnClose", "OnClose (Action As Integer)"},
    {OnChange, "120", "OnChange", ".OnChange", "OnChange"},
    {OnEnter, "100", "OnEnter", ".OnEnter", "OnEnter"},
    {OnDblClick, "110", "OnDblClick", ".OnDblClick", "OnDblClick"},
    {OnHint, "30", "OnHint", ".OnHint", "OnHint (Hint As String)"},
    {OnKeyDown, "40", "OnKeyDown", ".OnKeyDown", "OnKeyDown (Key As Word, Shift As Integer)"},
    {OnKeyPress, "50", "OnKeyPress", ".OnKeyPress", "OnKeyPress (Key As Byte)"},
    {OnKeyUp, "60", "OnKeyUp", ".OnKeyUp", "OnKeyUp (Key As Word, Shift As Integer)"},
    {OnMouseDown, "70", "OnMouseDown", ".OnMouseDown",
     "OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)"},
    {OnMouseMove, "80", "OnMouseMove", ".OnMouseMove",
     "OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)"},
    {OnMouseUp, "90", "OnMouseUp", ".OnMouseUp",
     "OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)"},
    {OnPaint, "130", "OnPaint", ".OnPaint", "OnPaint"},
    {OnResize, "140", "OnResize", ".OnResize", "OnResize"},
    {OnShow, "150", "OnShow", ".OnShow", "OnShow"},
    {OnPopUp, "170", "OnPopUp", ".OnPopUp", "OnPopUp"},
}};

using Class = ControlClass;
using List = EventListId;

constexpr std::array<KindInfo, kKindCount> kKinds{{
    {Kind::Button, "Button", "button", "Button", "Button", "Btn", "   (Button)",
     Class::CommandButton, List::Button},
    {Kind::Label, "Label", "label", "Label", "Label", "Label", "   (Label)", Class::Label,
     List::Picture},
    {Kind::Image, "Image", "images", "Images", "Image", "Image", "   (Images)", Class::Image,
     List::Picture},
    {Kind::CheckBox, "CheckBox", "checkbox", "CheckBox", "CheckBox", "Check", "   (CheckBox)",
     Class::CheckBox, List::Click},
    {Kind::OptionButton, "OptionButton", "optionbutton", "OptionButton", "OptionButton",
     "OptionBtn", "   (OptionButton)", Class::OptionButton, List::Click},
    {Kind::TextBox, "TextBox", "textbox", "TextBox", "TextBox", "Text", "   (TextBox)",
     Class::TextBox, List::Edit},
    {Kind::RichTextBox, "RichTextBox", "richtextbox", "RichTextBox", "RichTextBox", "RichText",
     "   (RichTextBox)", Class::TextBox, List::Rich},
    {Kind::ListBox, "ListBox", "listbox", "ListBox", "ListBox", "List", "   (ListBox)",
     Class::ListBox, List::List},
    {Kind::ComboBox, "ComboBox", "combobox", "ComboBox", "ComboBox", "Combo", "   (ComboBox)",
     Class::UserControl1, List::Combo},
    {Kind::Time, "Time", "time", "Time", "Time", "Time", "   (Time)", Class::PictureBox,
     List::Timer},
    {Kind::OpenDialog, "OpenDialog", "opendialog", "OpenDialog", "OpenDialog", "OpenDlg",
     "   (OpenDialog)", Class::PictureBox, List::None},
    {Kind::SaveDialog, "SaveDialog", "savedialog", "SaveDialog", "SaveDialog", "SaveDlg",
     "   (SaveDialog)", Class::PictureBox, List::None},
    {Kind::FileStream, "FileStream", "filestream", "FileStream", "FileStream", "FileStr",
     "   (FileStream)", Class::PictureBox, List::None},
    {Kind::TransparentFrame, "TransparentFrame", "transparentframe", "TransparentFrame",
     "TransparentFrame", "TrnspFrm", "  (TransparentFrame)", Class::PictureBox, List::None},
    {Kind::HtmlViewer, "HtmlViewer", "htmlviewer", "HtmlViewer", "HtmlViewer", "Html",
     "   (HtmlViewer)", Class::TextBox, List::None},
    {Kind::WinSock, "WinSock", "winsock", "WinSock", "WinSock", "Sock", "   (WinSock)",
     Class::PictureBox, List::None},
    {Kind::PopUpMenu, "PopUpMenu", "popupmnu", "PopUpMnu", "PopupMenu", "pMenu", "  (PopupMenu)",
     Class::PictureBox, List::PopUp},
    {Kind::Menu, "Menu", "menu", "mnuBar", "", "", "", Class::Menu, List::Click},
    {Kind::MenuItem, "MenuItem", "itemmnubar", "ItemMnuBar", "", "", "", Class::Menu, List::None},
    {Kind::Frame, "Frame", "frame", "Frame", "Frame", "", "", Class::Frame, List::None},
    {Kind::Numero, "", "numero", "Numero", "", "", "", Class::Label, List::None},
    {Kind::Handle, "", "pichandle", "picHandle", "", "", "", Class::PictureBox, List::None},
    {Kind::Form, "Form", "form", "Form", "Form", "Form", "   (Form)", Class::Form, List::Form},
}};

constexpr std::array kFormEvents{OnClick,    OnClose, OnHint,      OnKeyDown,
                                 OnKeyPress, OnKeyUp, OnMouseDown, OnMouseMove,
                                 OnMouseUp,  OnPaint, OnResize,    OnShow};
constexpr std::array kButtonEvents{OnClick,     OnKeyDown,   OnKeyPress, OnKeyUp,
                                   OnMouseDown, OnMouseMove, OnMouseUp};
constexpr std::array kEditEvents{OnChange, OnKeyDown, OnKeyPress, OnKeyUp};
constexpr std::array kRichEvents{OnChange,    OnKeyDown,   OnKeyPress, OnKeyUp,
                                 OnMouseDown, OnMouseMove, OnMouseUp};
constexpr std::array kPictureEvents{OnClick, OnDblClick, OnMouseDown, OnMouseMove, OnMouseUp};
constexpr std::array kListEvents{OnClick, OnDblClick, OnEnter};
constexpr std::array kClickEvents{OnClick};
constexpr std::array kComboEvents{OnChange};
constexpr std::array kTimerEvents{OnTimer};
constexpr std::array kPopUpEvents{OnPopUp};

#define TARNWICK_KEY_ROWS                                                                     \
  "OnKeyDown (Key As Word, Shift As Integer)#OnKeyPress (Key As Byte)#OnKeyUp (Key As Word, " \
  "Shift As Integer)#"
#define TARNWICK_MOUSE_ROWS                                                        \
  "OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)#" \
  "OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)#"                 \
  "OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)#"

constexpr std::size_t kEventListCount = 11;

const std::array<EventList, kEventListCount> kLists{{
    {{}, "", ""},
    {kFormEvents,
     "OnClick#OnClose (Action As Integer)#OnHint (Hint As String)#" TARNWICK_KEY_ROWS
         TARNWICK_MOUSE_ROWS "OnPaint#OnResize#OnShow#",
     "10#20#30#40#50#60#70#80#90#130#140#150#"},
    {kButtonEvents, "OnClick#" TARNWICK_KEY_ROWS TARNWICK_MOUSE_ROWS, "10#40#50#60#70#80#90#"},
    {kEditEvents, "OnChange#" TARNWICK_KEY_ROWS, "120#40#50#60#"},
    {kRichEvents, "OnChange#" TARNWICK_KEY_ROWS TARNWICK_MOUSE_ROWS, "120#40#50#60#70#80#90#"},
    {kPictureEvents, "OnClick#OnDblClick#" TARNWICK_MOUSE_ROWS, "10#110#70#80#90#"},
    {kListEvents, "OnClick#OnDblClick#OnEnter#", "10#110#100#"},
    {kClickEvents, "OnClick#", "10#"},
    {kComboEvents, "OnChange#", "120#"},
    {kTimerEvents, "OnTimer#", "160#"},
    {kPopUpEvents, "OnPopUp#", "170#"},
}};

#undef TARNWICK_KEY_ROWS
#undef TARNWICK_MOUSE_ROWS

constexpr std::array kNewFormEvents{OnTimer,     OnClick,     OnClose,   OnHint,     OnPaint,
                                    OnResize,    OnShow,      OnKeyDown, OnKeyPress, OnKeyUp,
                                    OnMouseDown, OnMouseMove, OnMouseUp};
constexpr std::array kNewObjectEvents{OnTimer,    OnClick, OnDblClick,  OnKeyDown,
                                      OnKeyPress, OnKeyUp, OnMouseDown, OnMouseMove,
                                      OnMouseUp,  OnEnter, OnChange};

}  // namespace

const EventInfo& InfoOf(Event event) noexcept {
  return kEvents[static_cast<std::size_t>(event)];
}

std::span<const EventInfo, kEventCount> AllEvents() noexcept {
  return kEvents;
}

std::optional<Event> EventOfName(std::string_view name) noexcept {
  for (const EventInfo& info : kEvents) {
    if (EqualsFolded(info.Name, name)) return info.Id;
  }
  return std::nullopt;
}

std::optional<Event> EventOfCode(std::string_view code) noexcept {
  for (const EventInfo& info : kEvents) {
    if (info.Code == code) return info.Id;
  }
  return std::nullopt;
}

const KindInfo& InfoOf(Kind kind) noexcept {
  return kKinds[static_cast<std::size_t>(kind)];
}

std::span<const KindInfo, kKindCount> AllKinds() noexcept {
  return kKinds;
}

std::optional<Kind> KindOfTag(std::string_view tag) noexcept {
  if (tag.empty()) return std::nullopt;
  if (tag == "image") return Kind::Image;
  if (tag == "popupmenu") return Kind::PopUpMenu;
  const auto* const found =
      std::find_if(kKinds.begin(), kKinds.end(), [&](const KindInfo& k) { return k.Tag == tag; });
  if (found == kKinds.end()) return std::nullopt;
  return found->Id;
}

std::optional<Kind> KindOfFileWord(std::string_view word) noexcept {
  for (std::size_t i = 0; i < kObjectKindCount; ++i) {
    if (EqualsFolded(kKinds[i].Name, word)) return kKinds[i].Id;
  }
  return std::nullopt;
}

const EventList& ListOf(EventListId id) noexcept {
  return kLists[static_cast<std::size_t>(id)];
}

const EventList& EventListOfTag(std::string_view tag) noexcept {
  const std::optional<Kind> kind = KindOfTag(tag);
  return ListOf(kind ? InfoOf(*kind).Events : EventListId::None);
}

std::span<const Event> NewFormEvents() noexcept {
  return kNewFormEvents;
}

std::span<const Event> NewObjectEvents() noexcept {
  return kNewObjectEvents;
}

}  // namespace tarnwick
