#include "inspector/row_store.h"

#include <cstdint>
#include <type_traits>
#include <utility>
#include <variant>

#include "model/units.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

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
/// member, and returns their result; false when the value is kept nowhere.
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
    case RowShape::Color:
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
  if (!TextIntoStore(binding.Value, target, text)) return false;
  TextIntoStore(binding.Also, target, text);
  return true;
}

bool SyncRecord(const RowBinding& binding, const RowTarget& target) {
  if (!IsMeasure(binding.Shape)) return false;
  const std::optional<double> pixels = NumberOfStore(binding.Also, binding.Shape, target);
  return pixels && NumberIntoStore(binding.Value, binding.Shape, target, *pixels);
}

}  // namespace tarnwick
