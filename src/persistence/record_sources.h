// Where the values of a record live in the tables, and the words that the layouts name them by.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "model/design_control.h"
#include "model/project_records.h"

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

/// The source of a word in a layout. A word that does not exist is an error of the compilation.
consteval Source SourceFor(std::string_view word) {
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

}  // namespace tarnwick
