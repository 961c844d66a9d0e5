#include "inspector/row_help_texts.h"

#include <array>

#include "inspector/row_bindings.h"
#include "text/code_page.h"

namespace tarnwick {

namespace {

template <class... Kinds>
constexpr RowKinds Of(Kinds... kinds) noexcept {
  return (SetOf(kinds) | ...);
}

constexpr RowKinds kAny = ~RowKinds{0};
constexpr RowKinds kForm = SetOf(Kind::Form);
constexpr RowKinds kFrame = SetOf(Kind::TransparentFrame);
constexpr RowKinds kDialogs = Of(Kind::OpenDialog, Kind::SaveDialog);
constexpr RowKinds kPopUp = SetOf(Kind::PopUpMenu);
constexpr RowKinds kUnseen = kDialogs | kPopUp | Of(Kind::Time, Kind::FileStream, Kind::WinSock);

struct RowText {
  std::string_view Row;  ///< lower case
  RowKinds Kinds = 0;
  std::string_view Text;
};

/// The first line of a row that names the kind counts.
constexpr std::array kTexts{
    RowText{"name", kForm, "The name by which the program's code calls the form."},
    RowText{"name", kAny,
            "The name by which the program's code calls the object. It must be the only one of its "
            "name in the project."},
    RowText{"additems", kPopUp,
            "The items of the popup menu, with their names and sub-items. The button opens their "
            "editor."},
    RowText{"additems", kAny, "The rows that the list starts with. The button opens their editor."},
    RowText{"align", kFrame,
            "The side of the form to which the frame keeps. With alClient it fills the form, and "
            "Left, Top, Width and Height have no effect in the program."},
    RowText{"alignment", kPopUp, "Where the menu opens: left or right of the pointer, or centred."},
    RowText{"autopopup", kPopUp,
            "True: the right button on the object named in Parent opens the menu. False: the "
            "program opens it by Popup."},
    RowText{"autosize", kAny, "True: the label takes the size of its text."},
    RowText{"bmphandle", SetOf(Kind::Button),
            "The picture on the button, a .bmp file. It becomes a resource of the finished "
            "program. (None) is no picture."},
    RowText{"bmphandle", kAny,
            "The picture that is shown, a .bmp or .ico file. It becomes a resource of the finished "
            "program. (None) is no picture."},
    RowText{"borderstyle", kForm, "The window's frame, and whether the user can change its size."},
    RowText{"borderstyle", kAny, "A frame around the object, or none."},
    RowText{"cancel", kAny, "True: Esc presses the button."},
    RowText{"caption", kForm, "The text in the window's title bar."},
    RowText{"caption", kAny,
            "The text on the object. \"&\" in front of a letter makes it the key that is pressed "
            "together with Alt."},
    RowText{"center", kForm,
            "True: the window opens in the middle of the screen, and Left and Top have no effect."},
    RowText{"checked", SetOf(Kind::OptionButton),
            "True: the program starts with this option chosen."},
    RowText{"checked", kAny, "True: the program starts with the box ticked."},
    RowText{"color", kAny,
            "The background. A number with blue in the high byte and red in the low one (also "
            "&HBBGGRR), red, green and blue as $RRGGBB, or a name such as clRed or clBtnFace."},
    RowText{"columns", kAny, "The number of columns in which the rows stand; 0 is one column."},
    RowText{"cursor", kAny, "The shape of the mouse pointer while it is over the object."},
    RowText{"default", kAny, "True: Enter presses the button."},
    RowText{"enabled", SetOf(Kind::Time),
            "True: the timer runs from the start of the program, once Interval is set."},
    RowText{"enabled", kAny, "False: the object is greyed and cannot be used."},
    RowText{"family", kAny, "The family of addresses; for the internet AF_INET."},
    RowText{"filename", SetOf(Kind::SaveDialog),
            "The file name that the dialog proposes. The program takes the texts of a SaveDialog "
            "only when an OpenDialog stands before it on the form."},
    RowText{"filename", kAny, "The file name that the dialog proposes."},
    RowText{"filter", kAny,
            "The sorts of files that the dialog offers: text and pattern in turn, with \"|\" "
            "between them, as in Texts|*.txt|All files|*.*"},
    RowText{"font", kAny,
            "The font of the text: name, size, bold and italic. The button opens the font dialog, "
            "which sets the colour too."},
    RowText{"fontcolor", kAny,
            "The colour of the text. A number with blue in the high byte and red in the low one "
            "(also &HBBGGRR), red, green and blue as $RRGGBB, or a name such as clRed."},
    RowText{"height", kForm, "The height of the window, frame and title bar included, in pixels."},
    RowText{"height", kAny, "The height in pixels."},
    RowText{"hidescrollbars", kAny, "True: a scroll bar shows only while it is needed."},
    RowText{"hint", kAny, "The text that shows when the pointer rests on the object."},
    RowText{"icohandle", kForm,
            "The icon in the window's title bar, an .ico file that becomes a resource of the "
            "program. The file of the finished program takes the same icon. (Default) is the icon "
            "that comes with Tarnwick."},
    RowText{"icohandle", kAny, "The icon that is shown, an .ico file. (None) is no icon."},
    RowText{"icon(app)", kForm,
            "The icon of the finished program's file, an .ico file. (Default) is the icon that "
            "comes with Tarnwick."},
    RowText{"initialdir", kAny, "The folder in which the dialog opens."},
    RowText{"interval", kAny,
            "The time between two OnTimer events in thousandths of a second, 0 to 32767. With 0 "
            "the timer is silent."},
    RowText{"left", kForm,
            "The window's distance from the left edge of the screen in pixels. It has no effect "
            "while Center is True."},
    RowText{"left", kUnseen,
            "Where the picture stands on the design form, in pixels. The program does not show "
            "it."},
    RowText{"left", kAny, "The distance from the left edge of the form in pixels."},
    RowText{"multiselect", kAny, "True: several rows can be selected at once."},
    RowText{"navigate", kAny,
            "The page that the viewer opens at the start of the program. (None) is no page."},
    RowText{"parent", kPopUp,
            "The form or object whose right button opens the menu. It is kept by its name: choose "
            "it again when that object is renamed."},
    RowText{"protocol", kAny, "The protocol; for SOCK_STREAM mostly IPPROTO_TCP."},
    RowText{"readonly", kAny, "True: the user can read and copy the text, not change it."},
    RowText{"scrollbars", kAny, "The scroll bars of the editor."},
    RowText{"sorted", kAny, "True: the rows stand in alphabetical order."},
    RowText{"stretch", kAny, "True: the picture is drawn in the size of the object."},
    RowText{"taborder", kAny,
            "The object's turn when the Tab key goes from one to the next; the lowest number comes "
            "first."},
    RowText{"text", SetOf(Kind::RichTextBox),
            "The text with which the editor starts; one line. Further lines are set by the "
            "program's code."},
    RowText{"text", kAny, "The text with which the box starts."},
    RowText{"title", SetOf(Kind::SaveDialog),
            "The text in the dialog's title bar. The program takes the texts of a SaveDialog only "
            "when an OpenDialog stands before it on the form."},
    RowText{"title", kAny, "The text in the dialog's title bar."},
    RowText{"top", kForm,
            "The window's distance from the upper edge of the screen in pixels. It has no effect "
            "while Center is True."},
    RowText{"top", kUnseen,
            "Where the picture stands on the design form, in pixels. The program does not show "
            "it."},
    RowText{"top", kAny, "The distance from the upper edge of the form in pixels."},
    RowText{"transparency", kAny, "How much of what lies behind shows through the frame."},
    RowText{"transparent", kAny,
            "True: the form shows through the label, and Color has no effect."},
    RowText{"transpcolor", kAny,
            "The colour that is mixed with what lies behind. A number, $RRGGBB, &HBBGGRR or a name "
            "such as clBlue."},
    RowText{"type", kAny, "The sort of connection: SOCK_STREAM for TCP, SOCK_DGRAM for UDP."},
    RowText{"visible", kAny,
            "False: the program starts with the object hidden. The design form shows it all the "
            "same."},
    RowText{"width", kForm, "The width of the window, frame included, in pixels."},
    RowText{"width", kAny, "The width in pixels."},
    RowText{"windowstate", kForm,
            "How the window opens: in its own size, as an icon, or filling "
            "the screen."},
    RowText{
        "wmessage", kAny,
        "The number of the window message by which the socket notifies the program of an event."},
    RowText{"wordwrap", kAny, "True: long text goes on in the next line."},
};

}  // namespace

std::string_view RowHelpText(std::string_view row, Kind kind) noexcept {
  for (const RowText& text : kTexts) {
    if ((text.Kinds & SetOf(kind)) != 0 && EqualsFolded(text.Row, row)) return text.Text;
  }
  return {};
}

}  // namespace tarnwick
