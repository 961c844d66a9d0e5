// Values as they cross from the machine to the function library and to the hosts.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "basic/vm/body.h"

namespace tarnwick::basic {

/// A value with its kind. Copies share the body and count it; a copy of a Text behaves like a
/// copy of its bytes, because a shared body never changes.
class Value {
 public:
  Value() = default;
  Value(const Value& other) : kind_(other.kind_), stored_(other.stored_), slot_(other.slot_) {
    if (IsCounted(kind_)) Retain(slot_.B);
  }
  Value(Value&& other) noexcept
      : kind_(std::exchange(other.kind_, SlotKind::Empty)),
        stored_(other.stored_),
        slot_(std::exchange(other.slot_, {})) {}
  Value& operator=(Value other) noexcept {
    std::swap(kind_, other.kind_);
    std::swap(stored_, other.stored_);
    std::swap(slot_, other.slot_);
    return *this;
  }
  ~Value() {
    if (IsCounted(kind_)) Release(slot_.B);
  }

  [[nodiscard]] static Value Integer(std::int64_t value) {
    return {SlotKind::Integer, IntegerSlot(value)};
  }
  [[nodiscard]] static Value Number(double value) { return {SlotKind::Number, NumberSlot(value)}; }
  [[nodiscard]] static Value Object(ObjectId object) {
    return {SlotKind::Object, ObjectSlot(object)};
  }
  [[nodiscard]] static Value Text(std::string bytes);
  /// True is -1, as a comparison gives it.
  [[nodiscard]] static Value Truth(bool truth) { return Integer(truth ? -1 : 0); }
  /// The slot's value, counted once more when it has a body.
  [[nodiscard]] static Value OfSlot(SlotKind kind, Slot slot) {
    if (IsCounted(kind)) Retain(slot.B);
    return {kind, slot};
  }
  /// Takes over the slot's count.
  [[nodiscard]] static Value TakeSlot(SlotKind kind, Slot slot) { return {kind, slot}; }

  [[nodiscard]] SlotKind Kind() const { return kind_; }
  /// Width of the variable whose value it is, where it was handed over by reference; else None.
  [[nodiscard]] Storage Stored() const { return stored_; }
  void SetStored(Storage stored) { stored_ = stored; }
  [[nodiscard]] Slot Raw() const { return slot_; }
  /// Gives the slot with its count away; the value is Empty afterwards.
  [[nodiscard]] Slot Give() {
    kind_ = SlotKind::Empty;
    return std::exchange(slot_, {});
  }

  /// As a whole number: a Number rounded to the nearest, half to even, and held within 64 bits (0
  /// for what is no number); a Text as VAL reads it; 0 for the other kinds.
  [[nodiscard]] std::int64_t AsInteger() const;
  /// As a number: a Text as VAL reads it; 0 for the other kinds.
  [[nodiscard]] double AsNumber() const;
  /// The bytes of a Text; "" for every other kind. Valid as long as this value stays as it is.
  [[nodiscard]] std::string_view View() const {
    return kind_ == SlotKind::Text && slot_.B != nullptr
               ? std::string_view(static_cast<const TextBody*>(slot_.B)->Bytes)
               : std::string_view();
  }
  /// As text: numbers as STR$ writes them; "" for the kinds that are neither.
  [[nodiscard]] std::string AsText() const;
  /// The object; none for every other kind.
  [[nodiscard]] ObjectId AsObject() const {
    return kind_ == SlotKind::Object ? static_cast<ObjectId>(slot_.I) : ObjectId::None;
  }
  /// A condition: a number other than 0, a text that VAL reads as one, an object.
  [[nodiscard]] bool AsTruth() const;
  /// The array or record; null for every other kind.
  [[nodiscard]] ArrayBody* AsArray() const {
    return kind_ == SlotKind::Array ? static_cast<ArrayBody*>(slot_.B) : nullptr;
  }
  [[nodiscard]] RecordBody* AsRecord() const {
    return kind_ == SlotKind::Record ? static_cast<RecordBody*>(slot_.B) : nullptr;
  }

 private:
  Value(SlotKind kind, Slot slot) : kind_(kind), slot_(slot) {}

  SlotKind kind_ = SlotKind::Empty;
  Storage stored_ = Storage::None;
  Slot slot_{0};
};

}  // namespace tarnwick::basic
