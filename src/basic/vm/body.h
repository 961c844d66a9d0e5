// What the machine keeps on the heap: counted bodies behind 8-byte slots.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "basic/check/types.h"

namespace tarnwick::basic {

/// What a slot or a value holds. A slot does not carry its kind: the instruction, the array or the
/// record layout it belongs to knows it.
enum class SlotKind : std::uint8_t {
  Empty,    ///< an argument left out; reads as 0 and ""
  Integer,  ///< whole number of 64 bits
  Number,   ///< double
  Text,     ///< bytes in Windows-1252
  Object,   ///< ObjectId
  Array,
  Record,
  Variant,   ///< box with an Integer, a Number, a Text or an Object
  Elements,  ///< what an array holds; never a value of its own
};

/// Integer, Number, Object need no counting; the others are bodies.
constexpr bool IsCounted(SlotKind kind) {
  return kind == SlotKind::Text || kind >= SlotKind::Array;
}

/// The kind of slot that holds what an expression gives.
constexpr SlotKind SlotKindOf(ValueKind kind) {
  switch (kind) {
    case ValueKind::None:
      return SlotKind::Empty;
    case ValueKind::Whole:
      return SlotKind::Integer;
    case ValueKind::Real:
      return SlotKind::Number;
    case ValueKind::Text:
      return SlotKind::Text;
    case ValueKind::Variant:
      return SlotKind::Variant;
    case ValueKind::Object:
      return SlotKind::Object;
    case ValueKind::Record:
      return SlotKind::Record;
  }
  return SlotKind::Empty;
}
/// The kind of slot of a variable.
constexpr SlotKind SlotKindOf(const Type& type) {
  return type.IsArray() ? SlotKind::Array : SlotKindOf(KindOf(type));
}

/// Head of everything counted. The machine runs in one thread, so the count is a plain number.
struct Body {
  explicit Body(SlotKind kind) : Kind(kind) {}
  Body(const Body&) = delete;
  Body& operator=(const Body&) = delete;

  std::uint32_t Count = 1;
  SlotKind Kind;
};

/// 8 bytes of a variable, a register or an array element. All bits zero is the start value of
/// every kind: 0, 0.0, "", no object, no array.
union Slot {
  std::int64_t I;
  double D;
  Body* B;
  Slot* R;  ///< reference (BYREF): the slot of the variable meant
};
static_assert(sizeof(Slot) == 8);

inline Slot IntegerSlot(std::int64_t value) {
  Slot slot;
  slot.I = value;
  return slot;
}

inline Slot NumberSlot(double value) {
  Slot slot;
  slot.D = value;
  return slot;
}

inline Slot ObjectSlot(ObjectId object) {
  return IntegerSlot(static_cast<std::int64_t>(object));
}

/// Bytes of a string. A body with Count 1 may be changed in place.
struct TextBody : Body {
  TextBody() : Body(SlotKind::Text) {}
  explicit TextBody(std::string bytes) : Body(SlotKind::Text), Bytes(std::move(bytes)) {}
  std::string Bytes;
};

struct FieldLayout;

/// Lowest and highest index of one dimension, both included.
struct Bound {
  std::int64_t Low = 0;
  std::int64_t High = -1;
  [[nodiscard]] std::int64_t Length() const { return High - Low + 1; }
};

/// Elements of an array. A body of its own, so that a reference to an element keeps it alive
/// while REDIM gives the array other elements.
///
/// Those of an array of bytes with one dimension are kept as `Bytes` until something needs slots of
/// them, a reference for instance; one of the two lists is always empty.
struct ElementsBody : Body {
  explicit ElementsBody(SlotKind element) : Body(SlotKind::Elements), Element(element) {}
  [[nodiscard]] std::size_t Size() const { return Slots.size() + Bytes.size(); }
  std::vector<Slot> Slots;
  std::vector<std::uint8_t> Bytes;
  SlotKind Element;
  std::size_t* InUse = nullptr;  ///< counter of array slots of the running program
};

/// An array variable: passed by reference, so all who hold it see a REDIM. The last index runs
/// fastest. An array that `Grows` has one dimension from 0 on and gets longer as it is used.
struct ArrayBody : Body {
  explicit ArrayBody(const FieldLayout& layout) : Body(SlotKind::Array), Layout(&layout) {}
  const FieldLayout* Layout;
  std::vector<Bound> Bounds;
  ElementsBody* Elements = nullptr;
  bool Grows = false;
  // The same once more for quick access: the first slot, and the first two dimensions. Lengths
  // are 0 when there are no elements; the second is 1 when there is one dimension.
  Slot* First = nullptr;
  std::size_t Rank = 0;               ///< number of dimensions; 0 when there is no first slot
  std::uint8_t* FirstByte = nullptr;  ///< set instead of `First` where the elements are bytes
  std::int64_t Low = 0;
  std::uint64_t Length = 0;
  std::int64_t Low2 = 0;
  std::uint64_t Length2 = 0;
};

struct RecordLayout;

/// A variable or a field of a TYPE: what is made for it.
struct FieldLayout {
  std::string Name;
  SlotKind Kind = SlotKind::Integer;
  SlotKind Element = SlotKind::Empty;    ///< of an array
  const RecordLayout* Record = nullptr;  ///< of a record, or of an array's elements
  ClassId Class{};                       ///< of an object, or of an array's elements
  bool AnyClass = false;                 ///< an object variable for which none is made
  Storage Stored = Storage::None;        ///< width of the value, or of an array's elements
  std::uint32_t ByteSize = 0;            ///< bytes of the value, or of an array's elements
  std::vector<Bound> Bounds;             ///< of an array field; empty for one that grows
};

/// The fields of a TYPE, in order of declaration.
struct RecordLayout {
  std::string Name;
  std::vector<FieldLayout> Fields;
  bool HasObject = false;     ///< field 0 is the object of the class that the TYPE extends
  ProcedureId Constructor{};  ///< 0: none
};

/// A variable of a TYPE.
struct RecordBody : Body {
  explicit RecordBody(const RecordLayout& layout)
      : Body(SlotKind::Record), Layout(&layout), Fields(layout.Fields.size(), Slot{0}) {}
  const RecordLayout* Layout;
  std::vector<Slot> Fields;
};

/// A VARIANT: passed by reference, changes its kind with each assignment.
struct VariantBody : Body {
  VariantBody() : Body(SlotKind::Variant) {}
  SlotKind Held = SlotKind::Empty;
  Slot Content{0};
};

/// Gives the elements of an array slots, for what needs them.
void NeedSlots(ArrayBody& array);

/// Ends the life of a body whose count went to 0, and of what only it held.
void Destroy(Body* body);

inline void Retain(Body* body) {
  if (body != nullptr) ++body->Count;
}

inline void Release(Body* body) {
  if (body != nullptr && --body->Count == 0) Destroy(body);
}

}  // namespace tarnwick::basic
