// Where the value of each property row lives, how it prints and what an edit of it does.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "model/design_form.h"
#include "model/project_records.h"

namespace tarnwick {

/// How a value prints in the grid, and thereby how a text is read back.
enum class RowShape : std::uint8_t {
  Text,
  File,    ///< a text; an empty one prints "(None)"
  Number,  ///< a whole number, read by its leading digits
  Color,   ///< a colour: a number, also in hexadecimal digits, or a name of the language
  Pixels,  ///< a position or size, in pixels; held in twips on controls and windows
  Extent,  ///< the same for a width or height, which cannot be negative
  YesNo,   ///< "False" 0, "True" any other number
  NotYes,  ///< "True" is 0 and "False" 1
  Index,   ///< a value of the row's list, held as its index
  Choice,  ///< a value of the row's list, held as its text
  Parent,  ///< the same, the list being the names of the form and its objects
  Font,    ///< the font's name; only the font dialog writes it
  Items,   ///< always "Items"; only a designer writes it
};

/// What an edit does besides storing the value.
enum class RowEffect : std::uint8_t {
  None,
  Recolor,     ///< the design window is painted again
  WindowIcon,  ///< the design window takes the icon
  Picture,     ///< the control takes the picture
  Resource,    ///< the same, and the record the name of the picture's resource
  Frame,       ///< the design window takes the frame
};

/// What holds a value: a field of a record or a window, or a member of the control.
using RowStore =
    std::variant<std::monostate, std::int16_t FormRec::*, std::int32_t FormRec::*,
                 std::string FormRec::*, std::int16_t ObjectRec::*, std::int32_t ObjectRec::*,
                 std::string ObjectRec::*, std::string WinSockRec::*, std::string HtmlViewerRec::*,
                 std::int16_t PopUpItemRec::*, std::string PopUpItemRec::*,
                 std::string DesignForm::*, std::int32_t DesignForm::*, float DesignForm::*,
                 Member>;

using RowKinds = std::uint32_t;
[[nodiscard]] constexpr RowKinds SetOf(Kind kind) noexcept {
  return RowKinds{1} << static_cast<unsigned>(kind);
}

/// One line of the table: a row on some kinds. What is read and what is written are one and the
/// same field, so an edit always reads back; `Also` only follows.
struct RowBinding {
  std::string_view Row;  ///< lower case
  RowKinds Kinds = 0;
  RowShape Shape = RowShape::Text;
  RowStore Value;
  RowStore Also;
  RowEffect Effect = RowEffect::None;
  bool HasReset = false;  ///< the row can be put back to "(None)" or "(Default)"
};

/// The object or form whose rows are meant. `Control` is null for the form.
struct RowTarget {
  DesignForm& Window;
  FormRec& Record;
  DesignControl* Control = nullptr;
  Kind Id = Kind::Form;
  int Index = 0;
};

/// True for a position or size: pixels in the grid.
[[nodiscard]] constexpr bool IsMeasure(RowShape shape) noexcept {
  return shape == RowShape::Pixels || shape == RowShape::Extent;
}
/// True for a row whose text is read as a number.
[[nodiscard]] constexpr bool IsTypedNumber(RowShape shape) noexcept {
  return shape == RowShape::Number || shape == RowShape::Color || IsMeasure(shape);
}

/// The line for a row name, in any case, on a kind; null when the kind has no such row.
[[nodiscard]] const RowBinding* BindingOf(std::string_view row_name, Kind kind) noexcept;

}  // namespace tarnwick
