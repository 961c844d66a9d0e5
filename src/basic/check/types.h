// The types of values and variables.
#pragma once

#include <cstdint>

#include "basic/ids.h"

namespace tarnwick::basic {

/// Number of a TYPE in `Program::Records`.
enum class RecordId : std::uint32_t {};
/// Number of a label within its procedure.
enum class LabelId : std::uint32_t {};

/// What a variable stores. `Whole` is the 64-bit number of expressions; no variable has it unless
/// the checker made it. LONG is `Integer`.
enum class Storage : std::uint8_t {
  None,  ///< no value: the result of a SUB
  Byte,
  Word,
  DWord,
  Short,
  Integer,
  Whole,
  Single,
  Double,
  String,
  FixedString,
  Variant,
  Object,
  Record,
};

/// What kind of value an expression gives, whatever the width it is stored in.
enum class ValueKind : std::uint8_t { None, Whole, Real, Text, Variant, Object, Record };

/// Class of an object of which no class is known, such as a parameter AS QOBJECT.
inline constexpr std::uint32_t kAnyClass = 0xFFFFFFFFU;

/// A type. `Detail` is the class of an Object (`kAnyClass`: any), the `RecordId` of a Record, the
/// length in bytes of a FixedString, else 0. `Dimensions` is 0 for a single value and the number
/// of indexes of an array.
struct Type {
  Storage Kind = Storage::None;
  std::uint8_t Dimensions = 0;
  std::uint32_t Detail = 0;

  friend bool operator==(const Type&, const Type&) = default;

  [[nodiscard]] constexpr bool IsArray() const noexcept { return Dimensions > 0; }
  [[nodiscard]] constexpr ClassId Class() const noexcept { return static_cast<ClassId>(Detail); }
  [[nodiscard]] constexpr RecordId RecordType() const noexcept {
    return static_cast<RecordId>(Detail);
  }
  /// The type of an array's elements.
  [[nodiscard]] constexpr Type Element() const noexcept { return {Kind, 0, Detail}; }
};

inline constexpr Type kNoType{Storage::None, 0, 0};
inline constexpr Type kWholeType{Storage::Whole, 0, 0};
inline constexpr Type kRealType{Storage::Double, 0, 0};
inline constexpr Type kTextType{Storage::String, 0, 0};
inline constexpr Type kVariantType{Storage::Variant, 0, 0};
inline constexpr Type kAnyObjectType{Storage::Object, 0, kAnyClass};

/// The kind of value that a variable of that storage gives when it is read.
[[nodiscard]] constexpr ValueKind KindOf(Storage storage) noexcept {
  switch (storage) {
    case Storage::None:
      return ValueKind::None;
    case Storage::Byte:
    case Storage::Word:
    case Storage::DWord:
    case Storage::Short:
    case Storage::Integer:
    case Storage::Whole:
      return ValueKind::Whole;
    case Storage::Single:
    case Storage::Double:
      return ValueKind::Real;
    case Storage::String:
    case Storage::FixedString:
      return ValueKind::Text;
    case Storage::Variant:
      return ValueKind::Variant;
    case Storage::Object:
      return ValueKind::Object;
    case Storage::Record:
      return ValueKind::Record;
  }
  return ValueKind::None;
}
[[nodiscard]] constexpr ValueKind KindOf(const Type& type) noexcept {
  return KindOf(type.Kind);
}

/// The type of a value read from a variable of that type: Whole, Double and String for the widths
/// of each, any other type itself.
[[nodiscard]] constexpr Type ValueTypeOf(const Type& type) noexcept {
  switch (KindOf(type)) {
    case ValueKind::Whole:
      return kWholeType;
    case ValueKind::Real:
      return kRealType;
    case ValueKind::Text:
      return kTextType;
    default:
      return type;
  }
}

/// Bytes of a variable of that storage, as SIZEOF, Read and Write count them.
[[nodiscard]] constexpr int BytesOf(Storage storage) noexcept {
  switch (storage) {
    case Storage::Byte:
      return 1;
    case Storage::Word:
    case Storage::Short:
      return 2;
    case Storage::DWord:
    case Storage::Integer:
    case Storage::Single:
      return 4;
    case Storage::Whole:
    case Storage::Double:
      return 8;
    default:
      return 4;  // a reference
  }
}

}  // namespace tarnwick::basic
