#include "inspector/row_bindings.h"

#include <array>
#include <type_traits>
#include <utility>

#include "model/units.h"
#include "text/code_page.h"
#include "text/numbers.h"

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
    RowBinding{"alignment", kPopUp, Shape::Place, &PopUpItemRec::Alignment, kNone},
    RowBinding{"autopopup", kPopUp, Shape::YesNo, &PopUpItemRec::AutoPopUp, kNone},
    RowBinding{"autosize", kObjects, Shape::YesNo, Member::AutoSize, kNone},
    RowBinding{"bmphandle", kButton | kImage, Shape::File, &Obj::ImageFile, kNone,
               Effect::Resource},
    RowBinding{"cancel", kButton, Shape::YesNo, Member::Cancel, kNone},
    RowBinding{"caption", kForm, Shape::Text, &DesignForm::Caption, kNone},
    RowBinding{"caption", kObjects, Shape::Text, Member::Caption, kNone},
    RowBinding{"title", kDialogs, Shape::Text, &Obj::Title, kNone},
    RowBinding{"cursor", kForm, Shape::Place, &FormRec::Cursor, kNone},
    RowBinding{"cursor", kFrame, Shape::Place, &FormRec::TfCursor, kNone},
    RowBinding{"cursor", kRecorded, Shape::Place, &Obj::Cursor, kNone},
    RowBinding{"default", kButton, Shape::YesNo, Member::Default, kNone},
    RowBinding{"enabled", kRecorded, Shape::YesNo, &Obj::Enabled, kNone},
    RowBinding{"font", kObjects, Shape::Font, Member::FontName, kNone},
    // The generated colour of a Button comes from its record; its control class has none.
    RowBinding{"fontcolor", kButton, Shape::Number, &Obj::FontColor, Member::ForeColor},
    RowBinding{"fontcolor", kObjects, Shape::Number, Member::ForeColor, kNone},
    RowBinding{"height", kForm, Shape::Extent, &FormRec::Height, &DesignForm::Height},
    RowBinding{"height", kFrame, Shape::Extent, &FormRec::TfHeight, Member::Height},
    RowBinding{"height", kObjects, Shape::Extent, Member::Height, kNone},
    RowBinding{"hint", kForm, Shape::Text, &FormRec::Hint, kNone},
    RowBinding{"hint", kObjects, Shape::Text, Member::ToolTipText, kNone},
    // A form's place is the program's: the design window stays where it is in its container.
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
    RowBinding{"borderstyle", kForm, Shape::Place, &FormRec::BorderStyle, kNone, Effect::Frame},
    RowBinding{"borderstyle", kTexts, Shape::Place, Member::BorderStyle, kNone},
    // A list has no border member; its appearance is what is saved and generated as one.
    RowBinding{"borderstyle", SetOf(Kind::ListBox), Shape::Place, Member::Appearance, kNone},
    RowBinding{"center", kForm, Shape::YesNo, &FormRec::Center, kNone},
    RowBinding{"color", kForm, Shape::Number, &DesignForm::BackColor, kNone, Effect::Recolor},
    RowBinding{"color", kFrame, Shape::Number, &FormRec::TfColor, kNone},
    RowBinding{"color", kObjects, Shape::Number, Member::BackColor, kNone},
    RowBinding{"icon(app)", kForm, Shape::File, &FormRec::IconFile, kNone, Effect::None, true},
    // The program takes the icon of its main window, so an edit of one is an edit of both.
    RowBinding{"icohandle", kForm, Shape::File, &FormRec::ImageFile, &FormRec::IconFile,
               Effect::WindowIcon, true},
    RowBinding{"icohandle", kImage, Shape::File, &Obj::PictureName, kNone, Effect::Picture, true},
    RowBinding{"windowstate", kForm, Shape::Place, &FormRec::WndState, kNone},
    RowBinding{"readonly", kTexts, Shape::YesNo, &Obj::ReadOnly, kNone},
    RowBinding{"text", kObjects, Shape::Text, Member::Text, kNone},
    RowBinding{"hidescrollbars", kRich, Shape::YesNo, &Obj::HideScrollBars, kNone},
    RowBinding{"scrollbars", kRich, Shape::Place, &Obj::ScrollBars, kNone},
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
    RowBinding{"align", kFrame, Shape::Place, &FormRec::TfAlign, kNone},
    RowBinding{"transparency", kFrame, Shape::Number, &FormRec::TfTransparency, kNone},
    RowBinding{"transpcolor", kFrame, Shape::Number, &FormRec::TfTranspColor, kNone},
    RowBinding{"interval", SetOf(Kind::Time), Shape::Number, &Obj::Interval, kNone},
    RowBinding{"navigate", SetOf(Kind::HtmlViewer), Shape::File, &HtmlViewerRec::Navigate, kNone,
               Effect::None, true},
};

// What holds a field of each class. Reading never makes a record: one that is not there reads as
// an empty one. Writing makes it, so that no edit is lost.
const FormRec* Reader(const RowTarget& target, const FormRec* /*tag*/) {
  return &target.Record;
}
const DesignForm* Reader(const RowTarget& target, const DesignForm* /*tag*/) {
  return &target.Window;
}
const ObjectRec* Reader(const RowTarget& target, const ObjectRec* /*tag*/) {
  const RecordArray<ObjectRec>* records = std::as_const(target.Record).Objects(target.Id);
  return records == nullptr ? nullptr : &RecordOrEmpty(*records, target.Index);
}
const WinSockRec* Reader(const RowTarget& target, const WinSockRec* /*tag*/) {
  return &RecordOrEmpty(target.Record.WinSocks, target.Index);
}
const HtmlViewerRec* Reader(const RowTarget& target, const HtmlViewerRec* /*tag*/) {
  return &RecordOrEmpty(target.Record.HtmlViewers, target.Index);
}
const PopUpItemRec* Reader(const RowTarget& target, const PopUpItemRec* /*tag*/) {
  return &RecordOrEmpty(target.Record.PopUps, target.Index);
}

FormRec* Writer(const RowTarget& target, const FormRec* /*tag*/) {
  return &target.Record;
}
DesignForm* Writer(const RowTarget& target, const DesignForm* /*tag*/) {
  return &target.Window;
}
ObjectRec* Writer(const RowTarget& target, const ObjectRec* /*tag*/) {
  RecordArray<ObjectRec>* records = target.Record.Objects(target.Id);
  return records == nullptr ? nullptr : records->Ensure(target.Index);
}
WinSockRec* Writer(const RowTarget& target, const WinSockRec* /*tag*/) {
  return target.Record.WinSocks.Ensure(target.Index);
}
HtmlViewerRec* Writer(const RowTarget& target, const HtmlViewerRec* /*tag*/) {
  return target.Record.HtmlViewers.Ensure(target.Index);
}
PopUpItemRec* Writer(const RowTarget& target, const PopUpItemRec* /*tag*/) {
  return target.Record.PopUps.Ensure(target.Index);
}

template <class Pointer>
struct PointerParts;
template <class T, class Class>
struct PointerParts<T Class::*> {
  using Owner = Class;
  using Field = T;
};

struct ForReading {
  template <class Owner>
  static const Owner* Find(const RowTarget& target) {
    return Reader(target, static_cast<const Owner*>(nullptr));
  }
};
struct ForWriting {
  template <class Owner>
  static Owner* Find(const RowTarget& target) {
    return Writer(target, static_cast<const Owner*>(nullptr));
  }
};

/// Calls `on_field` with the field that a store names, or `on_member` with the control and the
/// member, and answers what they answer; false when there is no such place.
template <class Access, class OnField, class OnMember>
bool UseStore(const RowStore& store, const RowTarget& target, OnField on_field,
              OnMember on_member) {
  return std::visit(
      [&](const auto& where) -> bool {
        using Where = std::decay_t<decltype(where)>;
        if constexpr (std::is_same_v<Where, std::monostate>) {
          return false;
        } else if constexpr (std::is_same_v<Where, Member>) {
          return target.Control != nullptr && on_member(*target.Control, where);
        } else {
          using Owner = typename PointerParts<Where>::Owner;
          auto* const owner = Access::template Find<Owner>(target);
          return owner != nullptr && on_field(owner->*where);
        }
      },
      store);
}

bool IsMeasure(RowShape shape) noexcept {
  return shape == RowShape::Pixels || shape == RowShape::Extent;
}

/// Sizes are twips on controls and windows, pixels in records.
double UnitOf(RowShape shape) noexcept {
  return IsMeasure(shape) ? kTwipsPerPixel : 1;
}

double NumberIn(const MemberValue& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? 1 : 0;
  if (const auto* whole = std::get_if<std::int32_t>(&value)) return *whole;
  if (const auto* single = std::get_if<float>(&value)) return *single;
  return Val(std::get<std::string>(value));
}

std::optional<double> NumberOfStore(const RowStore& store, RowShape shape,
                                    const RowTarget& target) {
  double number = 0;
  const bool is_read = UseStore<ForReading>(
      store, target,
      [&](const auto& field) {
        using Field = std::decay_t<decltype(field)>;
        if constexpr (std::is_same_v<Field, std::string>) {
          number = Val(field);
        } else if constexpr (std::is_same_v<Field, float>) {
          number = static_cast<double>(field) / UnitOf(shape);
        } else {
          number = field;
        }
        return true;
      },
      [&](const DesignControl& control, Member member) {
        const std::optional<MemberValue> value = control.Get(member);
        if (value) number = NumberIn(*value) / UnitOf(shape);
        return value.has_value();
      });
  return is_read ? std::optional{number} : std::nullopt;
}

template <class Field>
bool Store(Field& field, const std::optional<Field>& value) {
  if (value) field = *value;
  return value.has_value();
}

bool NumberIntoStore(const RowStore& store, RowShape shape, const RowTarget& target, double value) {
  return UseStore<ForWriting>(
      store, target,
      [&](auto& field) {
        using Field = std::decay_t<decltype(field)>;
        if constexpr (std::is_same_v<Field, std::string>) {
          return false;
        } else if constexpr (std::is_same_v<Field, float>) {
          return Store(field, ToSingle(value * UnitOf(shape)));
        } else if constexpr (std::is_same_v<Field, std::int16_t>) {
          return Store(field, ToInt16(value));
        } else {
          return Store(field, ToInt32(value));
        }
      },
      [&](DesignControl& control, Member member) {
        if (IsMeasure(shape)) {
          const std::optional<float> twips = ToSingle(value * UnitOf(shape));
          return twips && control.Set(member, *twips);
        }
        const std::optional<std::int32_t> whole = ToInt32(value);
        return whole && control.Set(member, *whole);
      });
}

bool TextIntoStore(const RowStore& store, const RowTarget& target, std::string_view text) {
  return UseStore<ForWriting>(
      store, target,
      [&](auto& field) {
        if constexpr (std::is_same_v<std::decay_t<decltype(field)>, std::string>) {
          field = text;
          return true;
        } else {
          return false;
        }
      },
      [&](DesignControl& control, Member member) {
        return control.Set(member, std::string{text});
      });
}

std::optional<std::string> TextOfStore(const RowStore& store, const RowTarget& target) {
  std::string text;
  const bool is_read = UseStore<ForReading>(
      store, target,
      [&](const auto& field) {
        if constexpr (std::is_same_v<std::decay_t<decltype(field)>, std::string>) {
          text = field;
          return true;
        } else {
          return false;
        }
      },
      [&](const DesignControl& control, Member member) {
        const std::optional<MemberValue> value = control.Get(member);
        if (!value || !std::holds_alternative<std::string>(*value)) return false;
        text = std::get<std::string>(*value);
        return true;
      });
  return is_read ? std::optional{std::move(text)} : std::nullopt;
}

}  // namespace

const RowBinding* BindingOf(std::string_view row_name, Kind kind) noexcept {
  for (const RowBinding& binding : kBindings) {
    if ((binding.Kinds & SetOf(kind)) != 0 && EqualsFolded(binding.Row, row_name)) return &binding;
  }
  return nullptr;
}

std::optional<double> StoredNumber(const RowBinding& binding, const RowTarget& target) {
  return NumberOfStore(binding.Value, binding.Shape, target);
}

std::optional<std::string> StoredText(const RowBinding& binding, const RowTarget& target) {
  switch (binding.Shape) {
    case RowShape::Items:
      return "Items";
    case RowShape::Text:
    case RowShape::Choice:
    case RowShape::Parent:
    case RowShape::Font:
      return TextOfStore(binding.Value, target);
    case RowShape::File: {
      std::optional<std::string> text = TextOfStore(binding.Value, target);
      if (text && text->empty()) text = kNoPicture;
      return text;
    }
    default:
      break;
  }
  const std::optional<double> number = StoredNumber(binding, target);
  if (!number) return std::nullopt;
  switch (binding.Shape) {
    case RowShape::YesNo:
      return *number != 0 ? "True" : "False";
    case RowShape::NotYes:
      return *number == 0 ? "True" : "False";
    case RowShape::Number:
      return NumberText(static_cast<std::int64_t>(*number));
    case RowShape::Pixels:
    case RowShape::Extent:
      return NumberText(static_cast<float>(*number));
    default:
      return std::nullopt;
  }
}

bool StoreNumber(const RowBinding& binding, const RowTarget& target, double value) {
  if (binding.Shape == RowShape::Extent && value < 0) return false;
  if (binding.Shape == RowShape::NotYes) value = value == 0 ? 1 : 0;
  if (!NumberIntoStore(binding.Value, binding.Shape, target, value)) return false;
  NumberIntoStore(binding.Also, binding.Shape, target, value);
  return true;
}

bool StoreText(const RowBinding& binding, const RowTarget& target, std::string_view text) {
  switch (binding.Shape) {
    case RowShape::Text:
    case RowShape::File:
    case RowShape::Choice:
    case RowShape::Parent:
      if (!TextIntoStore(binding.Value, target, text)) return false;
      TextIntoStore(binding.Also, target, text);
      return true;
    case RowShape::Number:
    case RowShape::Pixels:
    case RowShape::Extent:
      return StoreNumber(binding, target, Val(text));
    default:
      return false;
  }
}

bool SyncRecord(const RowBinding& binding, const RowTarget& target) {
  if (!IsMeasure(binding.Shape)) return false;
  const std::optional<double> pixels = NumberOfStore(binding.Also, binding.Shape, target);
  return pixels && NumberIntoStore(binding.Value, binding.Shape, target, *pixels);
}

}  // namespace tarnwick
