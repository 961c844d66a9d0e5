// Variables, records and arrays as bytes of a stream.
#include <algorithm>
#include <cstring>

#include "basic/check/types.h"
#include "objects/behaviour.h"
#include "objects/streams.h"

namespace tarnwick::objects {
namespace {

using basic::ArrayBody;
using basic::FieldLayout;
using basic::RecordBody;
using basic::SlotKind;
using basic::Storage;

/// The types of numbers in streams by their number (Num_BYTE and so on).
constexpr Storage kNumberTypes[] = {Storage::None,   Storage::Byte,    Storage::Short,
                                    Storage::Word,   Storage::Integer, Storage::DWord,
                                    Storage::Single, Storage::Double};

Storage NumberType(std::int64_t number) {
  const auto last = static_cast<std::int64_t>(std::size(kNumberTypes)) - 1;
  return number < 1 || number > last ? Storage::Double
                                     : kNumberTypes[static_cast<std::size_t>(number)];
}

template <class Number>
std::string BytesOfNumber(Number number) {
  std::string bytes(sizeof(Number), '\0');
  std::memcpy(bytes.data(), &number, sizeof(Number));
  return bytes;
}

/// A value in the width of a variable; a text as its bytes.
std::string Packed(const Value& value, Storage storage) {
  if (value.Kind() == SlotKind::Text) return std::string(value.View());
  if (storage == Storage::Single) return BytesOfNumber(static_cast<float>(value.AsNumber()));
  if (storage == Storage::Double) return BytesOfNumber(value.AsNumber());
  const std::string whole = BytesOfNumber(value.AsInteger());
  return whole.substr(0, static_cast<std::size_t>(basic::BytesOf(storage)));
}

Value Unpacked(std::string bytes, Storage storage) {
  bytes.resize(static_cast<std::size_t>(basic::BytesOf(storage)));
  const auto as = [&]<class Number>(Number number) {
    std::memcpy(&number, bytes.data(), sizeof(Number));
    return number;
  };
  switch (storage) {
    case Storage::Byte:
      return Value::Integer(as(std::uint8_t{}));
    case Storage::Word:
      return Value::Integer(as(std::uint16_t{}));
    case Storage::Short:
      return Value::Integer(as(std::int16_t{}));
    case Storage::DWord:
      return Value::Integer(as(std::uint32_t{}));
    case Storage::Integer:
      return Value::Integer(as(std::int32_t{}));
    case Storage::Single:
      return Value::Number(static_cast<double>(as(float{})));
    case Storage::Double:
      return Value::Number(as(double{}));
    default:
      return Value::Integer(as(std::int64_t{}));
  }
}

/// The width of the variable an argument stands for.
Storage WidthOf(const Value& value) {
  if (value.Stored() != Storage::None) return value.Stored();
  return value.Kind() == SlotKind::Number ? Storage::Double : Storage::Integer;
}

bool ReadNum(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
             std::span<Value> arguments, Value& result) {
  Stream stream(world, object);
  if (!stream.Check()) return false;
  const Storage type = NumberType(arguments[0].AsInteger());
  result = Unpacked(stream.Read(basic::BytesOf(type)), type);
  return true;
}

bool WriteNum(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
              std::span<Value> arguments, Value& /*result*/) {
  Stream stream(world, object);
  const Storage type = NumberType(arguments[1].AsInteger());
  const Value number = type == Storage::Double || type == Storage::Single
                           ? Value::Number(arguments[0].AsNumber())
                           : Value::Integer(arguments[0].AsInteger());
  return stream.Check() && stream.Write(Packed(number, type));
}

/// As many bytes as the variable takes; a text as many as it has.
bool Read(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
          std::span<Value> arguments, Value& /*result*/) {
  Stream stream(world, object);
  if (!stream.Check()) return false;
  Value& variable = arguments[0];
  if (variable.Kind() == SlotKind::Text) {
    variable = Value::Text(stream.Read(static_cast<std::int64_t>(variable.View().size())));
  } else {
    const Storage width = WidthOf(variable);
    variable = Unpacked(stream.Read(basic::BytesOf(width)), width);
  }
  return true;
}

bool Write(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
           std::span<Value> arguments, Value& /*result*/) {
  Stream stream(world, object);
  return stream.Check() && stream.Write(Packed(arguments[0], WidthOf(arguments[0])));
}

// --- Records and arrays: each field in its width, texts of no fixed length with their length

/// Walks the values below a record or array, in order. `Use` gets a slot, its kind and its width in
/// bytes (of a text of fixed length; 0: any length). False from it ends the walk.
class Walker {
 public:
  using Use = bool (*)(Stream& stream, basic::Slot& slot, SlotKind kind, Storage storage,
                       std::uint32_t bytes);
  Walker(Stream& stream, Use use) : stream_(stream), use_(use) {}

  bool Record(RecordBody* record) {
    if (record == nullptr) return true;
    for (std::size_t i = 0; i < record->Fields.size(); ++i) {
      const FieldLayout& field = record->Layout->Fields[i];
      if (!Field(record->Fields[i], field, field.Kind)) return false;
    }
    return true;
  }
  bool Array(ArrayBody* array, std::int64_t count) {
    if (array == nullptr || array->Elements == nullptr) return true;
    basic::NeedSlots(*array);
    std::vector<basic::Slot>& slots = array->Elements->Slots;
    const std::size_t last =
        count > 0 ? std::min(slots.size(), static_cast<std::size_t>(count)) : slots.size();
    for (std::size_t i = 0; i < last; ++i) {
      if (!Field(slots[i], *array->Layout, array->Elements->Element)) return false;
    }
    return true;
  }

 private:
  bool Field(basic::Slot& slot, const FieldLayout& layout, SlotKind kind) {
    switch (kind) {
      case SlotKind::Record:
        return Record(static_cast<RecordBody*>(slot.B));
      case SlotKind::Array:
        return Array(static_cast<ArrayBody*>(slot.B), 0);
      case SlotKind::Integer:
      case SlotKind::Number:
      case SlotKind::Text:
        return use_(stream_, slot, kind, layout.Stored,
                    layout.Stored == Storage::FixedString ? layout.ByteSize : 0);
      default:
        return true;  // objects and variants have no bytes
    }
  }

  Stream& stream_;
  Use use_;
};

bool WriteSlot(Stream& stream, basic::Slot& slot, SlotKind kind, Storage storage,
               std::uint32_t bytes) {
  std::string packed = Packed(Value::OfSlot(kind, slot), storage);
  if (kind == SlotKind::Text && bytes == 0) {
    const auto length = static_cast<std::int32_t>(packed.size());
    return stream.Write(BytesOfNumber(length)) && stream.Write(packed);
  }
  if (kind == SlotKind::Text) packed.resize(bytes, ' ');
  return stream.Write(packed);
}

bool ReadSlot(Stream& stream, basic::Slot& slot, SlotKind kind, Storage storage,
              std::uint32_t bytes) {
  if (kind != SlotKind::Text) {
    slot = Unpacked(stream.Read(basic::BytesOf(storage)), storage).Raw();
    return true;
  }
  std::int64_t length = bytes;
  if (bytes == 0) length = Unpacked(stream.Read(4), Storage::Integer).AsInteger();
  Value text = Value::Text(stream.Read(length));
  basic::Release(slot.B);
  slot = text.Give();
  return true;
}

bool ReadWhole(ObjectWorld& world, ObjectRecord& object, const MemberInfo& method,
               std::span<Value> arguments, Value& /*result*/) {
  Stream stream(world, object);
  if (!stream.Check()) return false;
  const bool reads = method.Name == Word::ReadUDT || method.Name == Word::LoadArray;
  Walker walker(stream, reads ? ReadSlot : WriteSlot);
  const std::int64_t count = arguments.size() > 1 ? arguments[1].AsInteger() : 0;
  if (arguments[0].Kind() == SlotKind::Record) return walker.Record(arguments[0].AsRecord());
  if (arguments[0].Kind() == SlotKind::Array) return walker.Array(arguments[0].AsArray(), count);
  return world.Fail(std::string(method.Facts.Name) + " takes a variable of a TYPE or an array");
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QFileStream, Word::ReadNum, {.Call = ReadNum}},
    {QMemoryStream, Word::ReadNum, {.Call = ReadNum}},
    {QFileStream, Word::WriteNum, {.Call = WriteNum}},
    {QMemoryStream, Word::WriteNum, {.Call = WriteNum}},
    {QFileStream, Word::Read, {.Call = Read}},
    {QMemoryStream, Word::Read, {.Call = Read}},
    {QFileStream, Word::Write, {.Call = Write}},
    {QMemoryStream, Word::Write, {.Call = Write}},
    {None, Word::ReadUDT, {.Call = ReadWhole}},
    {None, Word::WriteUDT, {.Call = ReadWhole}},
    {None, Word::SaveArray, {.Call = ReadWhole}},
    {None, Word::LoadArray, {.Call = ReadWhole}},
};

}  // namespace

BehaviourRows StreamDataBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
