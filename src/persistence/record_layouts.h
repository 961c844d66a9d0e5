// The layouts of the records in a form file. One table drives the writing, with its exact blanks,
// and tells the reader which tag of a kind carries which value.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
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

/// The layout of an object kind or of the form itself (Kind::Form).
[[nodiscard]] const RecordLayout& LayoutOf(Kind kind) noexcept;

/// A control member that reading sets beside what the layout names: from a tag of another field,
/// or from one that the kind's own record does not carry, whose value a line before left behind.
struct InheritedMember {
  Member Target;
  Tag In;
};
[[nodiscard]] std::span<const InheritedMember> InheritedMembersOf(Kind kind) noexcept;

}  // namespace tarnwick
